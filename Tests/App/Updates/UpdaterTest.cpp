// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/Updater.h"

#include "App/Updates/BundleInformation.h"
#include "Platform/Update.h"
#include "Support/FakeUpdateDriver.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class UpdaterTest : public ::testing::Test
{
protected:
    void create(const QString &feedURL = u"https://example.org/feed.xml"_s)
    {
        auto newDriver = std::make_unique<FakeUpdateDriver>();
        driver = newDriver.get();
        information.feedURL = feedURL;
        updater = std::make_unique<Updater>(information, std::move(newDriver));
        changes = std::make_unique<QSignalSpy>(updater.get(), &Updater::updateIsWaitingChanged);
    }

    BundleInformation information;
    FakeUpdateDriver *driver = nullptr;
    std::unique_ptr<Updater> updater;
    std::unique_ptr<QSignalSpy> changes;
    Update update{.version = u"2.0"_s, .displayVersion = u"2.0"_s, .notes = {}, .size = {}};
    UpdateState scheduled;
};

TEST_F(UpdaterTest, aBuildWithAFeedIsUpdatedByItself)
{
    create();
    EXPECT_TRUE(updater->isAvailable());
    EXPECT_FALSE(updater->updateIsWaiting());
    EXPECT_EQ(driver->scheduler, UpdateDriver::Scheduler::Started);
}

TEST_F(UpdaterTest, aBuildWithoutAFeedNeverStartsTheScheduler)
{
    create(QString());
    EXPECT_FALSE(updater->isAvailable());
    EXPECT_EQ(driver->scheduler, UpdateDriver::Scheduler::NotStarted) << "but the driver is there";
}

TEST_F(UpdaterTest, anyTextIsAFeed)
{
    create(u" "_s);
    EXPECT_TRUE(updater->isAvailable());
}

TEST_F(UpdaterTest, theOperationsAreTheDrivers)
{
    create();
    updater->checkForUpdates();
    EXPECT_EQ(driver->checks, 1);
    EXPECT_TRUE(updater->automaticallyChecksForUpdates());
    updater->setAutomaticallyChecksForUpdates(false);
    EXPECT_FALSE(driver->isAutomatic);
    EXPECT_FALSE(updater->automaticallyChecksForUpdates());
    driver->isAutomatic = true;
    EXPECT_TRUE(updater->automaticallyChecksForUpdates()) << "nothing is remembered here";
}

TEST_F(UpdaterTest, remindersAreTheApps)
{
    create();
    EXPECT_TRUE(driver->delegate->supportsGentleScheduledUpdateReminders());
    EXPECT_TRUE(driver->delegate->shouldHandleShowingScheduledUpdate(update, true));
    EXPECT_FALSE(driver->delegate->shouldHandleShowingScheduledUpdate(update, false));
    EXPECT_EQ(changes->size(), 0);
}

TEST_F(UpdaterTest, anUpdateThatTheDriverShowsDoesNotWait)
{
    create();
    driver->delegate->willHandleShowingUpdate(true, update, scheduled);
    EXPECT_FALSE(updater->updateIsWaiting());
    EXPECT_EQ(changes->size(), 0);
}

TEST_F(UpdaterTest, anUpdateThatIsLeftToTheAppWaitsUntilTheUserSeesIt)
{
    create();
    driver->delegate->willHandleShowingUpdate(false, update, scheduled);
    EXPECT_TRUE(updater->updateIsWaiting());
    driver->delegate->didReceiveUserAttention(update);
    EXPECT_FALSE(updater->updateIsWaiting());
    ASSERT_EQ(changes->size(), 2);
    EXPECT_EQ(changes->at(0), QVariantList{true});
    EXPECT_EQ(changes->at(1), QVariantList{false});
}

TEST_F(UpdaterTest, anUpdateThatIsShownLaterDoesNotTakeTheWaitAway)
{
    create();
    driver->delegate->willHandleShowingUpdate(false, update, scheduled);
    driver->delegate->willHandleShowingUpdate(true, update, scheduled);
    EXPECT_TRUE(updater->updateIsWaiting()) << "only the user's eyes do";
}

TEST_F(UpdaterTest, theEndOfACheckEndsTheWait)
{
    create();
    driver->delegate->willHandleShowingUpdate(false, update, scheduled);
    driver->delegate->willFinishUpdateSession();
    EXPECT_FALSE(updater->updateIsWaiting());
    EXPECT_EQ(changes->size(), 2);
}

TEST_F(UpdaterTest, nobodyIsToldWhatTheyKnow)
{
    create();
    driver->delegate->didReceiveUserAttention(update);
    driver->delegate->willFinishUpdateSession();
    EXPECT_EQ(changes->size(), 0);
    driver->delegate->willHandleShowingUpdate(false, update, scheduled);
    driver->delegate->willHandleShowingUpdate(false, update, scheduled);
    EXPECT_EQ(changes->size(), 1);
}

} // namespace
} // namespace roamlet::testing
