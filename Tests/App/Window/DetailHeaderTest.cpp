// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/DetailHeader.h"

#include "App/Look/Look.h"
#include "App/Look/Motion.h"
#include "App/Look/StillStyle.h"
#include "App/Window/GroupByButton.h"
#include "App/Window/ReloadButton.h"
#include "App/Window/SearchField.h"
#include "Support/Waiting.h"

#include <QAccessible>
#include <QAction>
#include <QFontInfo>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

class DetailHeaderTest : public ::testing::Test
{
protected:
    DetailHeaderTest()
    {
        header.setTitle(u"Recent History"_s, u"4,812 items · latest 1,000 from each source"_s);
        header.setGroupings(GroupedList::History, Grouping::Day);
        header.resize(1000, header.height());
        header.show();
    }

    template<typename Widget>
    Widget *part(const QString &name)
    {
        return header.findChild<Widget *>(name);
    }

    DetailHeader header;
    QWidget *title = part<QWidget>(u"listTitle"_s);
    QWidget *subtitle = part<QWidget>(u"listSubtitle"_s);
    SearchField *search = part<SearchField>(u"searchField"_s);
    GroupByButton *groupBy = part<GroupByButton>(u"groupByButton"_s);
};

TEST_F(DetailHeaderTest, roomRunsOutForTheSubtitleFirstThenForTheSearchAndThenForTheWordsOfGroupBy)
{
    const int whole = subtitle->sizeHint().width();
    const int usual = Measures(header.font()).units(12);
    ASSERT_GT(whole, usual);
    bool wasElided = false;
    bool wasNarrow = false;
    for (int width = 1200; width >= header.minimumSizeHint().width(); --width) {
        header.resize(width, header.height());
        const bool isNarrow = search->width() < search->sizeHint().width();
        if (isNarrow && !groupBy->isCompact()) {
            EXPECT_LE(subtitle->width(), usual) << width;
        }
        if (groupBy->isCompact()) {
            EXPECT_LE(search->width(), search->minimumSizeHint().width()) << width;
        }
        if (search->width() < search->minimumSizeHint().width()) {
            EXPECT_LE(title->width(), title->sizeHint().width()) << "for nothing but the title, at " << width;
        }
        if (search->width() > Measures(header.font()).leastSearchWidth) {
            EXPECT_GE(title->width(), title->sizeHint().width()) << width;
        }
        wasElided = wasElided || (subtitle->width() < whole && !isNarrow);
        wasNarrow = wasNarrow || (isNarrow && !groupBy->isCompact());
        EXPECT_LE(part<QWidget>(u"menuButton"_s)->geometry().right(), width);
    }
    EXPECT_TRUE(wasElided);
    EXPECT_TRUE(wasNarrow);
    EXPECT_TRUE(groupBy->isCompact());
}

TEST_F(DetailHeaderTest, groupBySaysWhatIsChosenAlsoWithoutItsWords)
{
    EXPECT_EQ(groupBy->toolTip(), QString()) << "the button says it";
    EXPECT_EQ(groupBy->accessibleDescription(), u"Day");
    header.resize(header.minimumSizeHint());
    ASSERT_TRUE(groupBy->isCompact());
    EXPECT_EQ(groupBy->toolTip(), u"Group By Day");
    EXPECT_EQ(groupBy->accessibleName(), u"Group By");
    header.groupingMenu()->actions()[2]->trigger();
    EXPECT_EQ(groupBy->toolTip(), u"Group By Site");
    header.setGroupings({}, Grouping::None);
    EXPECT_EQ(groupBy->toolTip(), u"Group By");
    header.resize(1000, header.height());
    ASSERT_FALSE(groupBy->isCompact());
    EXPECT_EQ(groupBy->toolTip(), QString());
}

TEST_F(DetailHeaderTest, isMirrored)
{
    const QRect before = search->geometry();
    header.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(search->geometry().right(), header.width() - 1 - before.left());
    EXPECT_GT(subtitle->geometry().left(), search->geometry().right());
}

TEST_F(DetailHeaderTest, whatIsTypedBeginsBesideTheMagnifierInBothDirections)
{
    const auto wordsIn = [this] {
        const QString words = search->placeholderText();
        const QImage with = search->grab().toImage();
        search->setPlaceholderText({});
        const QImage without = search->grab().toImage();
        search->setPlaceholderText(words);
        QRect result;
        for (int y = 0; y < with.height(); ++y) {
            for (int x = 0; x < with.width(); ++x) {
                if (with.pixel(x, y) != without.pixel(x, y))
                    result |= QRect(x, y, 1, 1);
            }
        }
        return result;
    };
    const QRect leftToRight = wordsIn();
    ASSERT_FALSE(leftToRight.isEmpty());
    header.setLayoutDirection(Qt::RightToLeft);
    const QRect rightToLeft = wordsIn();
    // Where a letter's soft edge falls within a pixel depends on the font.
    EXPECT_NEAR(rightToLeft.width(), leftToRight.width(), 2);
    constexpr int sideBearings = 4;
    EXPECT_NEAR(search->width() - rightToLeft.right(), leftToRight.left(), sideBearings);
}

TEST_F(DetailHeaderTest, theMagnifierGrowsWithTheLetters)
{
    const auto magnifierSide = [this] { return search->findChildren<QToolButton *>().first()->width(); };
    const int before = magnifierSide();
    QFont font = header.font();
    font.setPointSizeF(3 * QFontInfo(font).pointSizeF());
    header.setFont(font);
    header.resize(3000, header.sizeHint().height());
    EXPECT_GE(magnifierSide(), Look::of(header).measures.iconSide);
    EXPECT_GT(magnifierSide(), 2 * before);
}

TEST_F(DetailHeaderTest, aProblemHasASignAndIsToldWhole)
{
    const QImage before = subtitle->grab().toImage();
    EXPECT_TRUE(subtitle->toolTip().isEmpty());
    header.setTitle(u"Work History"_s, u"History: <b>broken</b>\nIcons: gone"_s,
                    DetailHeader::Subtitle::Problem);
    EXPECT_EQ(subtitle->toolTip(), u"<qt>History: &lt;b&gt;broken&lt;/b&gt;<br>Icons: gone</qt>");
    EXPECT_EQ(subtitle->accessibleDescription(), u"History: <b>broken</b>\nIcons: gone");
    const QColor sign = Look::of(header).warningMark;
    const QImage image = subtitle->grab().toImage();
    bool isSignSeen = false;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.height(); ++x)
            isSignSeen = isSignSeen || image.pixelColor(x, y) == sign;
    }
    EXPECT_TRUE(isSignSeen);
    header.setTitle(u"Work History"_s, u"4 items"_s);
    EXPECT_TRUE(subtitle->toolTip().isEmpty());
    EXPECT_TRUE(subtitle->accessibleDescription().isEmpty());
}

TEST_F(DetailHeaderTest, titleAndSubtitleAreTextsToScreenReaders)
{
    const QString whole = u"4,812 items · latest 1,000 from each source"_s;
    for (const QString &name : {u"listTitle"_s, u"listSubtitle"_s}) {
        const QAccessibleInterface *text = QAccessible::queryAccessibleInterface(part<QWidget>(name));
        ASSERT_NE(text, nullptr);
        EXPECT_EQ(text->role(), QAccessible::StaticText);
        EXPECT_EQ(text->text(QAccessible::Name), name == u"listTitle" ? u"Recent History"_s : whole);
    }
}

TEST_F(DetailHeaderTest, aFontInPixelsIsScaledLikeAnyOther)
{
    QFont font = header.font();
    font.setPixelSize(40);
    header.setFont(font);
    EXPECT_GT(part<QWidget>(u"listTitle"_s)->font().pixelSize(), 40);
    EXPECT_LT(subtitle->font().pixelSize(), 40);
    EXPECT_GT(subtitle->font().pixelSize(), 30);
    EXPECT_EQ(header.height(), Measures(font).headerHeight);
}

TEST_F(DetailHeaderTest, theSearchFieldHasARingOnlyWhileItHasTheKeyboard)
{
    const auto edge = [this] { return search->grab().toImage().pixelColor(search->width() / 2, 0); };
    header.activateWindow();
    ASSERT_TRUE(waitUntil([this] { return header.isActiveWindow(); }));
    const QColor accent = Look::of(header).accent;
    EXPECT_NE(edge(), accent);
    search->setFocus();
    EXPECT_EQ(edge(), accent);
}

TEST_F(DetailHeaderTest, aButtonHasARingOnlyAfterAKey)
{
    header.activateWindow();
    ASSERT_TRUE(waitUntil([this] { return header.isActiveWindow(); }));
    auto *reload = part<ReloadButton>(u"reloadButton"_s);
    const auto edge = [reload] { return reload->grab().toImage().pixelColor(reload->width() / 2, 1); };
    const QColor accent = Look::of(header).accent;
    reload->setFocus(Qt::ActiveWindowFocusReason);
    QTest::mouseClick(&header, Qt::LeftButton);
    EXPECT_NE(edge(), accent);
    search->setFocus();
    for (int presses = 0; presses < 5 && !reload->hasFocus(); ++presses)
        QTest::keyClick(header.focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_TRUE(reload->hasFocus());
    EXPECT_EQ(edge(), accent);
}

TEST_F(DetailHeaderTest, aButtonIsLitByAndByUnderThePointer)
{
    auto *reload = part<ReloadButton>(u"reloadButton"_s);
    const auto ground = [reload] { return reload->grab().toImage().pixelColor(reload->width() / 2, 2); };
    const auto enter = [reload] {
        reload->setAttribute(Qt::WA_UnderMouse);
        QHoverEvent event(QEvent::HoverEnter, QPointF(2, 2), QPointF(2, 2), QPointF());
        QCoreApplication::sendEvent(reload, &event);
    };
    const RowGround list = Look::of(header).list;
    enter();
    EXPECT_NE(ground(), list.hover);
    EXPECT_TRUE(waitUntil([&] { return ground() == list.hover; }));
    reload->setAttribute(Qt::WA_UnderMouse, false);
    EXPECT_NE(ground(), list.hover);
    StillStyle style;
    reload->setStyle(&style);
    enter();
    EXPECT_EQ(ground(), list.hover);
    reload->setStyle(nullptr);
}

TEST_F(DetailHeaderTest, theArrowTurnsAtLeastOnce)
{
    auto *reload = part<ReloadButton>(u"reloadButton"_s);
    header.setReloading(true);
    header.setReloading(false);
    EXPECT_FALSE(header.isReloading());
    EXPECT_TRUE(reload->isTurning());
    EXPECT_TRUE(waitUntil([reload] { return !reload->isTurning(); }));
}

TEST_F(DetailHeaderTest, aWishForStillnessThatComesLateStopsTheArrow)
{
    const auto *reload = part<ReloadButton>(u"reloadButton"_s);
    header.setReloading(true);
    ASSERT_TRUE(reload->isTurning());
    setMotionAllowed(false);
    EXPECT_TRUE(waitUntil([reload] { return !reload->isTurning(); }));
    EXPECT_TRUE(header.isReloading());
    setMotionAllowed(true);
}

TEST_F(DetailHeaderTest, whereNothingMovesTheArrowOnlyDims)
{
    StillStyle style;
    auto *reload = part<ReloadButton>(u"reloadButton"_s);
    reload->setStyle(&style);
    const QImage before = reload->grab().toImage();
    header.setReloading(true);
    EXPECT_FALSE(reload->isTurning());
    EXPECT_NE(reload->grab().toImage(), before);
    header.setReloading(false);
    EXPECT_EQ(reload->grab().toImage(), before);
    reload->setStyle(nullptr);
}

} // namespace roamlet::testing
