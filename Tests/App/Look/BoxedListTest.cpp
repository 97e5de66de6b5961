// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/BoxedList.h"

#include "App/Look/BoxedComboBox.h"
#include "App/Look/ButtonRow.h"
#include "App/Look/ChoiceRow.h"
#include "App/Look/Look.h"
#include "App/Look/NoteLabel.h"
#include "App/Look/Switch.h"
#include "App/Look/SwitchRow.h"

#include <QAccessible>
#include <QImage>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// Two choices and a button.
class BoxedListTest : public ::testing::Test
{
protected:
    BoxedListTest()
    {
        list->addRow(first);
        list->addRow(second);
        list->addRow(button);
        window.resize(400, 300);
        list->setGeometry(20, 20, 360, list->sizeHint().height());
        window.show();
        window.activateWindow();
    }

    QImage picture() { return window.grab().toImage(); }
    QColor at(int x, int y) { return picture().pixelColor(list->pos() + QPoint(x, y)); }

    QWidget window;
    BoxedList *list = new BoxedList(&window);
    ChoiceRow *first = new ChoiceRow(u"First"_s, u"The one"_s);
    ChoiceRow *second = new ChoiceRow(u"Second"_s, u"The other"_s);
    ButtonRow *button = new ButtonRow(u"Do It"_s);
};

TEST_F(BoxedListTest, itsRowsLieOnACardWithRoundCornersAndLinesBetweenThem)
{
    const Look look = Look::of(*list);
    EXPECT_EQ(at(180, 5), look.card.base);
    EXPECT_EQ(at(0, 0), look.page.base) << "a round corner";
    EXPECT_EQ(at(180, second->y()), look.card.hairline);
    EXPECT_EQ(at(180, button->y()), look.card.hairline);
    EXPECT_EQ(first->height(), look.measures.exportChoiceHeight);
    EXPECT_EQ(button->height(), look.measures.settingsRowHeight);
    first->hide();
    QCoreApplication::sendPostedEvents(list, QEvent::LayoutRequest);
    list->resize(list->width(), list->sizeHint().height());
    EXPECT_EQ(second->y(), 0);
    EXPECT_EQ(at(180, second->y() + 1), look.card.base) << "no line above the first that is shown";
}

TEST_F(BoxedListTest, allOfAChoiceIsItsButton)
{
    QTest::mouseClick(second, Qt::LeftButton, {}, QPoint(second->width() - 1, second->height() - 1));
    EXPECT_TRUE(second->isChecked());
    QTest::mouseClick(first, Qt::LeftButton, {}, QPoint(0, 0));
    EXPECT_TRUE(first->isChecked());
    EXPECT_FALSE(second->isChecked());
}

TEST_F(BoxedListTest, aChoiceIsARadioButtonWithADescriptionForThoseWhoHearIt)
{
    QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(first);
    EXPECT_EQ(heard->role(), QAccessible::RadioButton);
    EXPECT_EQ(heard->text(QAccessible::Name), u"First"_s);
    EXPECT_EQ(heard->text(QAccessible::Description), u"The one"_s);
}

TEST_F(BoxedListTest, aButtonRowIsPressedByMouseAndSpace)
{
    const QSignalSpy clicked(button, &ButtonRow::clicked);
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(3, 3));
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(clicked.count(), 2);
    EXPECT_EQ(button->accessibleName(), u"Do It"_s);
}

TEST_F(BoxedListTest, theRowWithTheKeyboardHasARingAndNoFill)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const Look look = Look::of(*list);
    first->setChecked(true);
    first->setFocus();
    QTest::mouseClick(&window, Qt::LeftButton);
    EXPECT_NE(at(180, 2), look.accent) << "nobody uses keys";
    QTest::keyClick(first, Qt::Key_Down);
    ASSERT_TRUE(second->hasFocus());
    EXPECT_EQ(at(180, second->y() + 2), look.accent);
    EXPECT_EQ(at(180, second->y() + 5), look.card.base);
    QTest::keyClick(second, Qt::Key_Tab);
    ASSERT_TRUE(button->hasFocus());
    EXPECT_EQ(at(180, button->y() + 2), look.accent);
}

TEST_F(BoxedListTest, theWordsOfARowFollowTheLanguagesDirection)
{
    const auto inkAtTheLeft = [&] {
        const QImage row = first->grab().toImage();
        const QColor ground = row.pixelColor(row.width() / 2, 2);
        for (int x = 0; x < Look::of(*first).measures.boxPadding + 8; ++x) {
            if (row.pixelColor(x, row.height() / 2) != ground)
                return true;
        }
        return false;
    };
    EXPECT_TRUE(inkAtTheLeft());
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_FALSE(inkAtTheLeft());
}

TEST(SwitchRowTest, theNoteStandsBelowTheTextAndTheRowHasRoomForBoth)
{
    BoxedList list;
    auto *row = new SwitchRow(u"Open at login"_s);
    list.addRow(row);
    list.resize(400, list.sizeHint().height());
    list.show();
    const int height = row->height();
    EXPECT_FALSE(row->note().isVisible());
    EXPECT_EQ(height, Look::of(*row).measures.settingsRowHeight);
    row->note().setText(u"Why"_s);
    row->note().show();
    EXPECT_EQ(list.sizeHint().height(), height) << "two lines fit";
    QTest::mouseClick(row, Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_TRUE(row->control().isChecked());
}

TEST(SwitchRowTest, theTextBeginsWhereLinesDoWhateverItsLanguage)
{
    SwitchRow row(u"Open at login"_s);
    auto *name = row.findChild<QLabel *>();
    EXPECT_TRUE(name->alignment().testFlag(Qt::AlignLeft));
    row.setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(name->alignment().testFlag(Qt::AlignRight));
    EXPECT_TRUE(name->alignment().testFlag(Qt::AlignAbsolute));
}

TEST(BoxedComboBoxTest, showsTheChoiceAndCutsWhatDoesNotFit)
{
    BoxedComboBox box;
    box.setPlaceholderText(u"None"_s);
    box.addItem(QString(1000, u'w'));
    box.addItem(u"Short"_s);
    EXPECT_EQ(box.sizeHint().height(), Look::of(box).measures.comboBoxHeight);
    EXPECT_LT(box.minimumSizeHint().width(), 200);
    box.resize(300, box.sizeHint().height());
    QList<QImage> pictures;
    for (const int index : {0, 1, -1}) {
        box.setCurrentIndex(index);
        const QImage drawn = box.grab().toImage();
        EXPECT_FALSE(pictures.contains(drawn)) << index;
        pictures.append(drawn);
    }
    box.setEnabled(false);
    EXPECT_FALSE(pictures.contains(box.grab().toImage()));
}

} // namespace
} // namespace roamlet::testing
