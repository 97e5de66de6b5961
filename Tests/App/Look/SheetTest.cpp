// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Sheet.h"

#include "App/Look/Look.h"
#include "App/Look/RoamletStyle.h"
#include "App/Look/StillStyle.h"
#include "Support/Waiting.h"

#include <QAccessible>
#include <QImage>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// A sheet with a field and two buttons over a window with a button.
class SheetTest : public ::testing::Test
{
protected:
    SheetTest()
    {
        below->setGeometry(10, 10, 100, 30);
        window.resize(900, 500);
        window.show();
        window.activateWindow();
    }

    void make()
    {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        below->setFocus();
        sheet = new Sheet(&window);
        field = new QLineEdit;
        other = new QPushButton(u"Other"_s);
        standard = new QPushButton(u"Standard"_s);
        standard->setDefault(true);
        auto *layout = new QVBoxLayout(&sheet->card());
        for (QWidget *widget :
             {static_cast<QWidget *>(field), static_cast<QWidget *>(other), static_cast<QWidget *>(standard)})
            layout->addWidget(widget);
        field->setFocus();
    }
    void open()
    {
        make();
        sheet->open();
    }

    QWidget window;
    QPushButton *below = new QPushButton(u"Below"_s, &window);
    QPointer<Sheet> sheet;
    QLineEdit *field = nullptr;
    QPushButton *other = nullptr;
    QPushButton *standard = nullptr;
};

TEST_F(SheetTest, whatAKeyHasBroughtHasARingAtOnce)
{
    RoamletStyle::applyTo(*below);
    const auto hasRing = [](QWidget &button) {
        return button.grab().toImage().pixelColor(button.width() / 2, 0) == Look::of(button).accent;
    };
    for (const bool isKey : {false, true}) {
        make();
        RoamletStyle::applyTo(*sheet);
        standard->setFocus();
        if (isKey)
            QTest::keyClick(below, Qt::Key_Down);
        else
            QTest::mouseClick(&window, Qt::LeftButton);
        sheet->open();
        ASSERT_TRUE(standard->hasFocus());
        EXPECT_EQ(hasRing(*standard), isKey);
        delete sheet;
    }
}

TEST_F(SheetTest, comesDownFromUnderTheFrame)
{
    open();
    EXPECT_LT(sheet->card().y(), 0);
    ASSERT_TRUE(waitUntil([this] { return sheet->card().y() == 0; }));
    const Measures measures = Look::of(*sheet).measures;
    EXPECT_EQ(sheet->card().width(), measures.sheetWidth);
    EXPECT_EQ(sheet->card().geometry().center().x(), window.rect().center().x());
}

TEST_F(SheetTest, isThereAtOnceWhereNothingShallMove)
{
    StillStyle still;
    make();
    sheet->setStyle(&still);
    sheet->open();
    EXPECT_EQ(sheet->card().y(), 0);
    delete sheet;
}

TEST_F(SheetTest, darkensAllButItself)
{
    const QColor before = window.grab().toImage().pixelColor(5, 5);
    open();
    ASSERT_TRUE(waitUntil([this] { return sheet->card().y() == 0; }));
    const QImage picture = window.grab().toImage();
    const Look look = Look::of(*sheet);
    const double share = 1 - look.scrim.alphaF();
    EXPECT_NEAR(picture.pixelColor(5, 5).green(), before.green() * share, 2);
    EXPECT_EQ(picture.pixelColor(sheet->card().geometry().center().x(), 4), look.page.base);
}

TEST_F(SheetTest, returnPressesTheDefaultButtonWhereverTheKeyboardIs)
{
    open();
    const QSignalSpy pressed(standard, &QPushButton::clicked);
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClick(other, Qt::Key_Enter);
    EXPECT_EQ(pressed.count(), 2);
    standard->setEnabled(false);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(pressed.count(), 2);
}

TEST_F(SheetTest, escapeRejectsItAndItGoes)
{
    open();
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_FALSE(sheet->isVisible());
    EXPECT_TRUE(below->hasFocus());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(sheet.isNull());
}

TEST_F(SheetTest, aWindowThatIsClosedByItsFrameTakesTheSheetAlong)
{
    open();
    window.windowHandle()->close();
    EXPECT_FALSE(window.isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(sheet.isNull());
}

TEST_F(SheetTest, itsPlaceIsTheWholeWindowAndNothingBelowGetsTheMouse)
{
    open();
    const QSignalSpy clicked(below, &QPushButton::clicked);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, below->geometry().center());
    EXPECT_EQ(clicked.count(), 0);
    EXPECT_TRUE(sheet->isVisible());
    window.resize(700, 450);
    EXPECT_EQ(sheet->size(), window.size());
}

TEST_F(SheetTest, aWindowThatIsTooLowForItGrows)
{
    window.resize(900, 60);
    open();
    EXPECT_GE(window.height(), sheet->card().sizeHint().height());
}

TEST_F(SheetTest, isADialogForThoseWhoHearIt)
{
    open();
    sheet->setAccessibleName(u"Question"_s);
    QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(sheet.data());
    EXPECT_EQ(heard->role(), QAccessible::Dialog);
    EXPECT_EQ(heard->text(QAccessible::Name), u"Question"_s);
}

} // namespace
} // namespace roamlet::testing
