// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/PlatformUpdateDriver.h"

#include "App/Updates/BundleInformation.h"
#include "App/Updates/Updater.h"
#include "Platform/Update.h"
#include "Support/FakeUpdateUserInterface.h"
#include "Support/HttpServer.h"
#include "Support/TestHome.h"
#include "Support/Waiting.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

/// The driver of the program itself, with the module that it loads.
class PlatformUpdateDriverTest : public ::testing::Test
{
protected:
    /// What the user is told when they check for updates.
    UpdateError errorOf(const BundleInformation &information)
    {
        Updater updater(information, platformUpdateDriver(information, home.platform(), windows));
        updater.checkForUpdates();
        EXPECT_TRUE(waitUntil([this] { return windows.events.contains(u"error"_s); }));
        EXPECT_EQ(windows.events, (QStringList{u"checking"_s, u"error"_s}));
        return windows.error;
    }

    TestHome home;
    FakeUpdateUserInterface windows;
};

TEST_F(PlatformUpdateDriverTest, aBuildThatNobodyReleasedSaysSo)
{
    EXPECT_EQ(errorOf({.name = u"Roamlet"_s, .version = u"1.0"_s, .feedURL = {}, .publicKey = {}}).code,
              UpdateError::Code::NotConfigured);
}

TEST_F(PlatformUpdateDriverTest, aFeedIsAskedForOverTheNetwork)
{
    // Nobody listens there.
    EXPECT_EQ(errorOf({.name = u"Roamlet"_s,
                       .version = u"1.0"_s,
                       .feedURL = u"https://127.0.0.1:1/feed.xml"_s,
                       .publicKey = u"11qYAYKxCrfVS/7TyWQHOg7hcvPapiMlrwIaaPcHURo="_s})
                  .code,
              UpdateError::Code::NetworkFailed);
}

TEST_F(PlatformUpdateDriverTest, theSystemsProxyIsAsked)
{
    const HttpServer proxy;
    qputenv("https_proxy", proxy.address(QString()).toEncoded());
    EXPECT_EQ(errorOf({.name = u"Roamlet"_s,
                       .version = u"1.0"_s,
                       .feedURL = u"https://updates.invalid/feed.xml"_s,
                       .publicKey = u"11qYAYKxCrfVS/7TyWQHOg7hcvPapiMlrwIaaPcHURo="_s})
                  .code,
              UpdateError::Code::NetworkFailed);
    qunsetenv("https_proxy");
    EXPECT_EQ(proxy.requests(u"updates.invalid:443"_s), 1);
}

} // namespace roamlet::testing
