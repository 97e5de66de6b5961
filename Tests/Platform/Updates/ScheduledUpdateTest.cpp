// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "FeedUpdateDriverTest.h"

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Code = UpdateError::Code;
using Choice = UpdateUserInterface::Choice;

/// Checks that nobody asked for.
class ScheduledUpdateTest : public FeedUpdateDriverTest
{
};

TEST_F(ScheduledUpdateTest, aScheduledUpdateBeforeTheUsersEyesIsShownAtOnce)
{
    open();
    waitForTheFirstCheck(u"attention 2.0"_s);
    EXPECT_EQ(events, (QStringList{u"should handle 2.0 in focus"_s, u"will handle 2.0 by schedule"_s,
                                   u"update"_s, u"attention 2.0"_s}));
    windows.choose(Choice::Later);
    EXPECT_EQ(events.mid(4), (QStringList{u"close"_s, u"finish"_s}));
    events.clear();
    passADay(u"attention 2.0"_s);
}

TEST_F(ScheduledUpdateTest, aScheduledUpdateBehindOtherWindowsWaitsForTheUser)
{
    isInFront = false;
    open();
    waitForTheFirstCheck(u"leaves 2.0 by schedule"_s);
    EXPECT_EQ(events, (QStringList{u"should handle 2.0 behind"_s, u"leaves 2.0 by schedule"_s}));
    clock.advance(1000h);
    EXPECT_EQ(feedRequests(), 1) << "it waits as long as it takes";

    driver->checkForUpdates();
    EXPECT_EQ(events.mid(2), (QStringList{u"update"_s, u"attention 2.0"_s}));
    EXPECT_EQ(feedRequests(), 1);
    driver->checkForUpdates();
    EXPECT_EQ(events.mid(4), QStringList{u"focus"_s});
    windows.choose(Choice::Later);
    EXPECT_EQ(events.mid(5), (QStringList{u"close"_s, u"finish"_s}));
    events.clear();
    waitForTheFirstCheck(u"leaves 2.0 by schedule"_s);
}

TEST_F(ScheduledUpdateTest, anAppWithoutRemindersGetsItsUpdatesShown)
{
    isInFront = false;
    delegate.isGentle = false;
    open();
    waitForTheFirstCheck(u"update"_s);
    EXPECT_EQ(events, (QStringList{u"will handle 2.0 by schedule"_s, u"update"_s}));
    windows.choose(Choice::Later);
    EXPECT_EQ(events.mid(2), (QStringList{u"attention 2.0"_s, u"close"_s, u"finish"_s}));
}

TEST_F(ScheduledUpdateTest, aScheduledCheckThatFindsNothingIsSilent)
{
    offer("1.0");
    open();
    waitForTheFirstCheck(u"finish"_s);
    EXPECT_EQ(events, QStringList{u"finish"_s});
}

TEST_F(ScheduledUpdateTest, aScheduledCheckThatFailsIsSilentAndTriedAgain)
{
    server.add(u"/feed.xml"_s, {.body = "later", .status = "503 Later"});
    open();
    clock.advance(1min);
    ASSERT_TRUE(comesTo(u"finish"_s));
    EXPECT_EQ(events, QStringList{u"finish"_s});
    EXPECT_EQ(feedRequests(), 1);
    clock.advance(59min);
    EXPECT_EQ(events.size(), 1);
    clock.advance(1min);
    ASSERT_TRUE(settle([this] { return events.size() == 2; }));
    EXPECT_EQ(feedRequests(), 2);
}

TEST_F(ScheduledUpdateTest, whoeverAsksDuringAScheduledCheckSeesItsEnd)
{
    server.add(u"/feed.xml"_s, {.claimedLength = 10, .end = HttpServer::End::Hang});
    options.patience = 500ms;
    isInFront = false;
    open();
    clock.advance(1min);
    ASSERT_TRUE(settle([this] { return feedRequests() == 1; }));
    driver->checkForUpdates();
    EXPECT_EQ(events, QStringList{u"checking"_s});
    ASSERT_TRUE(comesTo(u"error"_s));
    EXPECT_EQ(windows.error, (UpdateError{Code::TimedOut, {}}));
    windows.acknowledge();
    EXPECT_EQ(events, (QStringList{u"checking"_s, u"error"_s, u"close"_s, u"finish"_s}));
}

TEST_F(ScheduledUpdateTest, aSkippedVersionIsNotMentionedAgainUntilTheUserAsks)
{
    open();
    waitForTheFirstCheck(u"attention 2.0"_s);
    windows.choose(Choice::Skip);
    EXPECT_EQ(defaults.string(u"SUSkippedVersion"_s), u"2.0"_s);
    for (const QByteArray version : {"2.0", "1.9", "2.0.0"}) {
        offer(version);
        open();
        events.clear();
        passADay(u"finish"_s);
        EXPECT_EQ(events, QStringList{u"finish"_s}) << version.constData();
    }
    check(u"attention 2.0.0"_s);
    windows.choose(Choice::Later);
    offer("2.1");
    passADay(u"attention 2.1"_s);
}

TEST_F(ScheduledUpdateTest, aCriticalUpdateIsMentionedThoughItWasSkipped)
{
    defaults.setString(u"SUSkippedVersion"_s, u"2.0"_s);
    offer("2.0", "<sparkle:criticalUpdate/>");
    open();
    waitForTheFirstCheck(u"attention 2.0"_s);
    EXPECT_TRUE(windows.update.isCritical);
}

TEST_F(ScheduledUpdateTest, theUsersSwitchIsTheDriversOwn)
{
    open();
    EXPECT_TRUE(driver->automaticallyChecksForUpdates());
    driver->setAutomaticallyChecksForUpdates(false);
    EXPECT_FALSE(driver->automaticallyChecksForUpdates());
    EXPECT_EQ(defaults.boolean(u"SUEnableAutomaticChecks"_s), false);
    clock.advance(1000h);
    EXPECT_EQ(feedRequests(), 0);
    check(u"attention 2.0"_s);
}

TEST_F(ScheduledUpdateTest, withoutASchedulerNothingIsCheckedByItself)
{
    open(UpdateDriver::Scheduler::NotStarted);
    clock.advance(1000h);
    EXPECT_EQ(feedRequests(), 0);
    check(u"attention 2.0"_s);
    windows.choose(Choice::Later);
    clock.advance(1000h);
    EXPECT_EQ(feedRequests(), 1);
}

} // namespace
} // namespace roamlet::testing
