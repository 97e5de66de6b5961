// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/SegmentedTabs.h"

#include "App/Look/Look.h"

#include <QAccessible>
#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class SegmentedTabsTest : public ::testing::Test
{
protected:
    SegmentedTabsTest()
    {
        tabs.addSection(u"gearshape"_s, u"General"_s);
        tabs.addSection(u"person.2"_s, u"Browser Profiles"_s);
        tabs.resize(tabs.sizeHint());
        tabs.show();
    }

    QColor groundOf(int index)
    {
        const QRect tab = tabs.tabRect(index);
        return tabs.grab().toImage().pixelColor(tab.center().x(),
                                                tab.top() + Look::of(tabs).measures.tabInset + 3);
    }

    SegmentedTabs tabs;
};

TEST_F(SegmentedTabsTest, theShownSectionLiesOnTheTrackAndNothingMovesWithIt)
{
    const Look look = Look::of(tabs);
    EXPECT_EQ(groundOf(0), look.tab);
    EXPECT_EQ(groundOf(1), look.tabTrack);
    const QRect second = tabs.tabRect(1);
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, second.center());
    EXPECT_EQ(tabs.currentIndex(), 1);
    EXPECT_EQ(groundOf(0), look.tabTrack);
    EXPECT_EQ(groundOf(1), look.tab);
    EXPECT_EQ(tabs.tabRect(1), second);
}

TEST_F(SegmentedTabsTest, theArrowsChooseASection)
{
    tabs.setFocus();
    QTest::keyClick(&tabs, Qt::Key_Right);
    EXPECT_EQ(tabs.currentIndex(), 1);
    QTest::keyClick(&tabs, Qt::Key_Left);
    EXPECT_EQ(tabs.currentIndex(), 0);
}

TEST_F(SegmentedTabsTest, areTabsForThoseWhoHearThem)
{
    QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(&tabs);
    EXPECT_EQ(heard->role(), QAccessible::PageTabList);
    EXPECT_EQ(heard->child(1)->role(), QAccessible::PageTab);
    EXPECT_EQ(heard->child(1)->text(QAccessible::Name), u"Browser Profiles"_s);
}

TEST_F(SegmentedTabsTest, theFirstSectionIsWhereLinesBegin)
{
    EXPECT_LT(tabs.tabRect(0).x(), tabs.tabRect(1).x());
    tabs.setLayoutDirection(Qt::RightToLeft);
    tabs.resize(tabs.sizeHint() + QSize(1, 0));
    EXPECT_GT(tabs.tabRect(0).x(), tabs.tabRect(1).x());
    EXPECT_EQ(groundOf(0), Look::of(tabs).tab);
}

} // namespace
} // namespace roamlet::testing
