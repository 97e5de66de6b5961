// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/RoamletStyle.h"

#include "App/Look/Contrast.h"
#include "App/Look/Look.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class RoamletStyleTest : public ::testing::Test
{
protected:
    RoamletStyleTest()
    {
        auto *layout = new QHBoxLayout(&window);
        layout->addWidget(first);
        layout->addWidget(second);
        layout->addWidget(check);
        RoamletStyle::applyTo(window);
        window.resize(500, 100);
        window.show();
    }

    QImage picture(QWidget &widget) { return widget.grab().toImage(); }
    /// Where nothing is written.
    QColor groundOf(QWidget &widget)
    {
        return picture(widget).pixelColor(widget.width() / 2, Look::of(widget).measures.focusRingWidth +
                                                                  Measures::focusRingGap + 3);
    }

    QWidget window;
    QPushButton *first = new QPushButton(u"Cancel"_s);
    QPushButton *second = new QPushButton(u"Export"_s);
    QCheckBox *check = new QCheckBox(u"Other"_s);
};

TEST_F(RoamletStyleTest, isGivenToPushButtonsAndToFieldsThatAskForIt)
{
    EXPECT_NE(dynamic_cast<const RoamletStyle *>(first->style()), nullptr);
    EXPECT_EQ(first->style(), second->style());
    EXPECT_EQ(dynamic_cast<const RoamletStyle *>(check->style()), nullptr);
    EXPECT_EQ(dynamic_cast<const RoamletStyle *>(window.style()), nullptr);
    QPushButton alone;
    RoamletStyle::applyTo(alone);
    EXPECT_EQ(alone.style(), first->style());
    QLineEdit field(&window);
    RoamletStyle::applyTo(window);
    EXPECT_NE(field.style(), first->style());
    RoamletStyle::applyTo(field);
    EXPECT_EQ(field.style(), first->style());
}

TEST_F(RoamletStyleTest, englishWordsAreReadFromLeftToRightEverywhere)
{
    second->setText(u"Export…"_s);
    const QImage before = picture(*second);
    second->setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(picture(*second), before);
}

TEST_F(RoamletStyleTest, iconsInAFieldGrowWithItsLetters)
{
    QLineEdit field;
    RoamletStyle::applyTo(field);
    for (const int points : {10, 24}) {
        QFont font = field.font();
        font.setPointSize(points);
        field.setFont(font);
        EXPECT_EQ(field.style()->pixelMetric(QStyle::PM_LineEditIconSize, nullptr, &field),
                  Look::of(field).measures.iconSide);
    }
}

TEST_F(RoamletStyleTest, buttonsAreAsHighAsOtherControlsAndHaveRoomForTheRing)
{
    const int ring = 2 * (Measures::focusRingWidth + Measures::focusRingGap);
    EXPECT_EQ(first->sizeHint().height(), Look::of(*first).measures.controlHeight + ring);
    // Layouts do not count that room.
    EXPECT_EQ(second->x() - first->geometry().right() - 1, window.layout()->spacing() - ring);
}

TEST_F(RoamletStyleTest, theDefaultButtonIsFilledAndDoesNotGrow)
{
    const QSize before = second->sizeHint();
    second->setDefault(true);
    EXPECT_EQ(second->sizeHint(), before);
    EXPECT_EQ(groundOf(*second), Look::of(*second).fill);
    EXPECT_NE(groundOf(*first), Look::of(*second).fill);
    second->setDown(true);
    EXPECT_EQ(groundOf(*second), Look::of(*second).fillPressed);
}

TEST_F(RoamletStyleTest, everyStateLooksDifferent)
{
    QList<QImage> pictures{picture(*first)};
    const auto expectAnother = [&](const char *state) {
        const QImage drawn = picture(*first);
        EXPECT_FALSE(pictures.contains(drawn)) << state;
        pictures.append(drawn);
    };
    first->setDown(true);
    expectAnother("pressed");
    first->setDown(false);
    first->setDefault(true);
    expectAnother("default");
    first->setEnabled(false);
    expectAnother("disabled");
}

TEST_F(RoamletStyleTest, theFocusRingComesWithTheFirstKey)
{
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const QImage before = picture(*first);
    first->setFocus();
    QTest::mouseClick(&window, Qt::LeftButton);
    EXPECT_EQ(picture(*first), before);
    QTest::keyClick(first, Qt::Key_Tab);
    QTest::keyClick(second, Qt::Key_Backtab);
    ASSERT_TRUE(first->hasFocus());
    const QImage ringed = picture(*first);
    EXPECT_NE(ringed, before);
    EXPECT_EQ(ringed.pixelColor(ringed.width() / 2, 0), Look::of(*first).accent);
}

TEST_F(RoamletStyleTest, aButtonIsToldFromItsGroundInEveryTheme)
{
    for (const auto &[ground, ink] : {std::pair(Qt::white, Qt::black), std::pair(Qt::black, Qt::white)}) {
        QPalette palette;
        palette.setColor(QPalette::Window, ground);
        palette.setColor(QPalette::Base, ground);
        palette.setColor(QPalette::WindowText, ink);
        palette.setColor(QPalette::Text, ink);
        window.setPalette(palette);
        EXPECT_GE(contrastRatio(groundOf(*first), ground), 1.06);
    }
}

TEST_F(RoamletStyleTest, aMenuHasAnOutlineOnlyWhereItsThemesOwnCannotBeSeen)
{
    QMenu menu(&window);
    RoamletStyle::outline(menu);
    menu.addAction(u"Open"_s);
    for (const bool isBlack : {true, false, true}) {
        QPalette palette = menu.palette();
        palette.setColor(QPalette::Window, isBlack ? Qt::black : Qt::lightGray);
        palette.setColor(QPalette::Base, isBlack ? Qt::black : Qt::white);
        palette.setColor(QPalette::Text, isBlack ? Qt::white : Qt::black);
        menu.setPalette(palette);
        menu.popup(QPoint(10, 10));
        EXPECT_EQ(dynamic_cast<const RoamletStyle *>(menu.style()) != nullptr, isBlack);
        if (isBlack) {
            const QImage image = picture(menu);
            for (const QPoint edge :
                 {QPoint(0, 5), QPoint(5, 0), QPoint(menu.width() - 1, 5), QPoint(5, menu.height() - 1)})
                EXPECT_GE(contrastRatio(image.pixelColor(edge), Qt::black), 3);
        }
        menu.close();
    }
}

} // namespace
} // namespace roamlet::testing
