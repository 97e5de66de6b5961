// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/PageSteering.h"

#include "Platform/FakeBrowserWindows.h"
#include "Support/FakeClock.h"

#include <gtest/gtest.h>

#include <chrono>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class PageSteeringTest : public ::testing::Test
{
protected:
    void show(const QString &page)
    {
        steering.show({.page = page, .windowClasses = {u"chromium"_s}, .openBlankTab = [this] { ++tabs; }});
    }
    void showBlankTab(bool isActive = true)
    {
        windows.window = {.id = 7, .title = u"about:blank - Chromium"_s, .isActive = isActive};
    }

    /// What has been typed once a page was shown.
    static QStringList keysFor(const QString &page)
    {
        return {u"7: <ctrl+l>"_s, u"7: <ctrl+l>"_s, u"7: " % page, u"7: <Delete>"_s, u"7: <Return>"_s};
    }

    FakeBrowserWindows windows;
    FakeClock clock;
    PageSteering steering{windows, clock};
    int tabs = 0;
};

TEST_F(PageSteeringTest, theAddressIsTypedIntoTheBlankTab)
{
    show(u"chrome://history/"_s);
    EXPECT_EQ(tabs, 1);
    EXPECT_EQ(windows.askedClasses, QStringList({u"chromium"_s}));
    showBlankTab();
    clock.advance(100ms);
    EXPECT_EQ(windows.keys, QStringList({u"7: <ctrl+l>"_s}));
    clock.advance(299ms);
    EXPECT_EQ(windows.keys.size(), 1) << "the address field needs its time";
    clock.advance(1ms);
    EXPECT_EQ(windows.keys, QStringList({u"7: <ctrl+l>"_s, u"7: <ctrl+l>"_s}));
    clock.advance(100ms);
    EXPECT_EQ(windows.keys, keysFor(u"chrome://history/"_s));
    clock.advance(10s);
    EXPECT_EQ(windows.keys, keysFor(u"chrome://history/"_s));
    EXPECT_EQ(clock.waiting(), 0U);
}

TEST_F(PageSteeringTest, keysThatGotLostAreTypedAgain)
{
    windows.takesAddresses = false;
    showBlankTab();
    show(u"chrome://history/"_s);
    clock.advance(400ms);
    EXPECT_EQ(windows.keys, keysFor(u"chrome://history/"_s));
    windows.takesAddresses = true;
    clock.advance(10s);
    EXPECT_EQ(windows.keys, keysFor(u"chrome://history/"_s) + keysFor(u"chrome://history/"_s));
    EXPECT_EQ(windows.window->title, u"A page");
}

TEST_F(PageSteeringTest, aBrowserThatTakesNoAddressIsLeftAloneSoon)
{
    windows.takesAddresses = false;
    showBlankTab();
    show(u"chrome://history/"_s);
    clock.advance(1min);
    EXPECT_EQ(windows.keys.count(u"7: chrome://history/"_s), 3);
    EXPECT_EQ(clock.waiting(), 0U);
}

TEST_F(PageSteeringTest, givesUpQuietlyAfterFortyLooks)
{
    windows.window = {.id = 7, .title = u"Example - Chromium"_s, .isActive = true};
    show(u"chrome://history/"_s);
    clock.advance(3900ms);
    EXPECT_EQ(windows.looks, 40);
    EXPECT_EQ(clock.waiting(), 1U);
    clock.advance(100ms);
    showBlankTab();
    clock.advance(10s);
    EXPECT_EQ(windows.looks, 40);
    EXPECT_TRUE(windows.keys.isEmpty());
    EXPECT_EQ(clock.waiting(), 0U);
}

TEST_F(PageSteeringTest, theLastLookStillCounts)
{
    show(u"chrome://history/"_s);
    clock.advance(3800ms);
    showBlankTab();
    clock.advance(100ms);
    EXPECT_EQ(windows.looks, 40);
    clock.advance(1s);
    EXPECT_EQ(windows.keys, keysFor(u"chrome://history/"_s));
}

TEST_F(PageSteeringTest, aBrowserWithoutAWindowIsWaitedFor)
{
    show(u"chrome://history/"_s);
    clock.advance(2s);
    EXPECT_TRUE(windows.keys.isEmpty());
    showBlankTab();
    clock.advance(1s);
    EXPECT_EQ(windows.keys, keysFor(u"chrome://history/"_s));
}

TEST_F(PageSteeringTest, aWindowInTheBackgroundIsBroughtForwardOnce)
{
    showBlankTab(false);
    windows.letsActivate = false;
    show(u"chrome://history/"_s);
    clock.advance(10s);
    EXPECT_EQ(windows.keys, QStringList({u"(activate 7)"_s})) << "nothing is typed into what is not active";
}

TEST_F(PageSteeringTest, aWindowThatWasBroughtForwardIsSteered)
{
    showBlankTab(false);
    show(u"chrome://history/"_s);
    clock.advance(1s);
    EXPECT_EQ(windows.keys, QStringList(u"(activate 7)"_s) + keysFor(u"chrome://history/"_s));
}

TEST_F(PageSteeringTest, nothingIsTypedWhenTheUserTurnsElsewhere)
{
    showBlankTab();
    windows.onPress = [this] { windows.window->title = u"Mail - Chromium"_s; };
    show(u"chrome://history/"_s);
    clock.advance(10s);
    EXPECT_EQ(windows.keys, QStringList({u"7: <ctrl+l>"_s}));
}

TEST_F(PageSteeringTest, anotherBlankWindowIsStartedWithAnew)
{
    showBlankTab();
    show(u"chrome://history/"_s);
    windows.window->id = 8;
    clock.advance(1s);
    EXPECT_EQ(windows.keys.value(0), u"7: <ctrl+l>");
    EXPECT_EQ(windows.keys.value(1), u"8: <ctrl+l>");
    EXPECT_EQ(windows.keys.value(2), u"8: <ctrl+l>");
    EXPECT_EQ(windows.keys.value(3), u"8: chrome://history/");
}

TEST_F(PageSteeringTest, keysThatTheUserHoldsAreWaitedOut)
{
    showBlankTab();
    windows.isShiftHeld = true;
    show(u"chrome://history/"_s);
    clock.advance(1s);
    EXPECT_TRUE(windows.keys.isEmpty());
    windows.isShiftHeld = false;
    clock.advance(100ms);
    windows.isShiftHeld = true;
    clock.advance(300ms);
    EXPECT_EQ(windows.keys, QStringList({u"7: <ctrl+l>"_s}));
    windows.isShiftHeld = false;
    clock.advance(2s);
    EXPECT_EQ(windows.keys, QStringList(u"7: <ctrl+l>"_s) + keysFor(u"chrome://history/"_s));
}

TEST_F(PageSteeringTest, pagesAreShownOneAfterTheOther)
{
    show(u"chrome://history/"_s);
    show(u"chrome://bookmarks/"_s);
    EXPECT_EQ(tabs, 1) << "two blank tabs could not be told apart";
    showBlankTab();
    clock.advance(500ms);
    EXPECT_EQ(tabs, 1) << "the first tab may still look blank";
    clock.advance(500ms);
    EXPECT_EQ(tabs, 2);
    showBlankTab();
    clock.advance(1s);
    EXPECT_EQ(windows.keys, keysFor(u"chrome://history/"_s) + keysFor(u"chrome://bookmarks/"_s));
    EXPECT_EQ(clock.waiting(), 0U);
}

TEST_F(PageSteeringTest, aPageThatFailsDoesNotKeepTheNextOne)
{
    show(u"chrome://history/"_s);
    show(u"chrome://bookmarks/"_s);
    clock.advance(4s);
    EXPECT_EQ(tabs, 2);
    showBlankTab();
    clock.advance(1s);
    EXPECT_EQ(windows.keys, keysFor(u"chrome://bookmarks/"_s));
}

TEST_F(PageSteeringTest, aBlankTabIsKnownByTheBeginningOfTheTitle)
{
    struct Case {
        QString title;
        bool isBlank;
    };
    const Case cases[] = {
        {u"about:blank"_s, true},
        {u"about:blank - Google Chrome"_s, true},
        {u"about:blank and 2 more pages - Personal - Microsoft Edge"_s, true},
        {u"\u202babout:blank - Chromium\u202c"_s, true},
        {u"about:blanket - Chromium"_s, false},
        {u"What is about:blank? - Chromium"_s, false},
        {u"New Tab - Chromium"_s, false},
        {QString(), false},
    };
    for (const auto &[title, isBlank] : cases) {
        FakeBrowserWindows screen;
        screen.window = {.id = 1, .title = title, .isActive = true};
        PageSteering aSteering(screen, clock);
        aSteering.show({.page = u"chrome://history/"_s, .windowClasses = {}, .openBlankTab = [] {}});
        EXPECT_EQ(!screen.keys.isEmpty(), isBlank) << title.toStdString();
    }
}

TEST(PageSteeringEndTest, nothingHappensOnceItIsGone)
{
    FakeBrowserWindows windows;
    FakeClock clock;
    {
        PageSteering steering(windows, clock);
        steering.show({.page = u"chrome://history/"_s, .windowClasses = {}, .openBlankTab = [] {}});
    }
    const int looks = windows.looks;
    clock.advance(10s);
    EXPECT_EQ(windows.looks, looks);
}

} // namespace
} // namespace roamlet::testing
