// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/AppDelegate.h"

#include "Support/FakeActivationPolicy.h"
#include "Support/MemoryUserDefaults.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

class AppDelegateTest : public ::testing::Test
{
protected:
    AppDelegate::OpenWindow opener()
    {
        return [this] {
            ++opened;
            delegate.mainWindowDidAppear();
        };
    }

    MemoryUserDefaults defaults;
    FakeActivationPolicy activation;
    bool hasMenuBarIcon = true;
    AppDelegate delegate{defaults, activation, [this] { return hasMenuBarIcon; }};
    int opened = 0;
};

using Policy = ActivationPolicy::Policy;

TEST_F(AppDelegateTest, aNormalLaunchOpensTheMainWindowOnce)
{
    delegate.applicationWillFinishLaunching(false);
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(activation.current, Policy::Accessory);
    delegate.windowOpenerIsReady(opener());
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(activation.current, Policy::Regular);
    // The icon was made once more.
    delegate.windowOpenerIsReady(opener());
    EXPECT_EQ(opened, 1);
}

TEST_F(AppDelegateTest, aLaunchAtLoginStaysSilent)
{
    delegate.applicationWillFinishLaunching(true);
    delegate.applicationDidFinishLaunching();
    delegate.windowOpenerIsReady(opener());
    EXPECT_EQ(opened, 0);
    EXPECT_EQ(activation.current, Policy::Accessory);
    EXPECT_EQ(activation.timesInFront, 0);
    delegate.windowOpenerIsReady(opener());
    EXPECT_EQ(opened, 0);
}

TEST_F(AppDelegateTest, aLaunchAtLoginShowsTheDockIconIfTheUserWantsIt)
{
    defaults.setBoolean(u"showDockIcon"_s, true);
    delegate.applicationWillFinishLaunching(true);
    delegate.applicationDidFinishLaunching();
    delegate.windowOpenerIsReady(opener());
    EXPECT_EQ(opened, 0);
    EXPECT_EQ(activation.current, Policy::Regular);
}

TEST_F(AppDelegateTest, startingItAgainReopensTheWindowWhenNoneIsVisible)
{
    delegate.applicationWillFinishLaunching(true);
    delegate.applicationShouldHandleReopen(false);
    EXPECT_EQ(opened, 0);
    delegate.windowOpenerIsReady(opener());
    delegate.applicationShouldHandleReopen(false);
    EXPECT_EQ(opened, 1);
    const int before = activation.timesInFront;
    delegate.applicationShouldHandleReopen(true);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(activation.timesInFront, before + 1);
}

TEST_F(AppDelegateTest, withoutTheMainWindowTheSettingDecides)
{
    delegate.windowOpenerIsReady(opener());
    ASSERT_TRUE(delegate.isMainWindowOpen());
    delegate.mainWindowDidDisappear(false);
    EXPECT_FALSE(delegate.isMainWindowOpen());
    EXPECT_EQ(activation.current, Policy::Accessory);
    defaults.setBoolean(u"showDockIcon"_s, true);
    delegate.mainWindowDidAppear();
    delegate.mainWindowDidDisappear(false);
    EXPECT_EQ(activation.current, Policy::Regular);
}

TEST_F(AppDelegateTest, withoutAMenuBarIconItsWindowsStayInTheTaskSwitcher)
{
    hasMenuBarIcon = false;
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(activation.current, Policy::Regular);
    delegate.mainWindowDidAppear();
    delegate.mainWindowDidDisappear(false);
    EXPECT_EQ(activation.current, Policy::Regular);
}

TEST_F(AppDelegateTest, anotherWindowKeepsTheKeyboardWhenTheMainWindowCloses)
{
    delegate.mainWindowDidAppear();
    const int before = activation.timesInFront;
    delegate.mainWindowDidDisappear(false);
    EXPECT_EQ(activation.timesInFront, before);
    delegate.mainWindowDidAppear();
    delegate.mainWindowDidDisappear(true);
    EXPECT_EQ(activation.timesInFront, before + 2);
    EXPECT_EQ(activation.policyInFront, Policy::Accessory);
}

} // namespace roamlet::testing
