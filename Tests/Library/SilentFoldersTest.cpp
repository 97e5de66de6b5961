// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/BrowserWatcher.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QFile>

#include <memory>
#include <utility>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Folders of which nobody tells every change.
class SilentFoldersTest : public LibraryHome
{
protected:
    SilentFoldersTest()
    {
        addChromium();
        home.fileEvents.silentFolders = {home.path(u"Library/Application Support/Google/Chrome"_s)};
    }

    void watch(std::function<void()> onLimit = {})
    {
        watcher = std::make_unique<BrowserWatcher>(
            home.platform(), [this](const QSet<QString> &report) { reports.append(report); },
            std::move(onLimit));
        ASSERT_TRUE(looked());
    }
    /// Waits until the look that goes on has ended: then the next one waits for its time.
    bool looked() const
    {
        return waitUntil([this] { return home.clock.waiting() == 1; });
    }
    bool lookAfterAMinute()
    {
        home.clock.advance(BrowserWatcher::lookInterval);
        return looked();
    }

    std::unique_ptr<BrowserWatcher> watcher;
    QList<QSet<QString>> reports;
};

TEST_F(SilentFoldersTest, aChangeThatNobodyTellsOfIsSeenWithinAMinute)
{
    watch();
    ASSERT_TRUE(lookAfterAMinute());
    EXPECT_TRUE(reports.isEmpty()) << "what was there before is no change";
    setChromeHistory(u"Profile 1"_s, {u"more"_s, u"than"_s, u"before"_s});
    home.clock.advance(BrowserWatcher::lookInterval - 1ms);
    EXPECT_EQ(home.clock.waiting(), 1U);
    EXPECT_TRUE(reports.isEmpty());
    home.clock.advance(1ms);
    ASSERT_TRUE(looked());
    EXPECT_EQ(reports, QList<QSet<QString>>{{u"chrome/Profile 1"_s}});
    ASSERT_TRUE(lookAfterAMinute());
    EXPECT_EQ(reports.size(), 1);
}

TEST_F(SilentFoldersTest, filesThatComeAndGoAreChanges)
{
    watch();
    change([this] { sample::writeHistory(chromeFile(u"Profile 7/History"_s), {}); });
    ASSERT_TRUE(lookAfterAMinute());
    EXPECT_EQ(reports, QList<QSet<QString>>{{u"chrome/Profile 7"_s}});
    change([this] { QFile::remove(chromeFile(u"Profile 7/History"_s)); });
    ASSERT_TRUE(lookAfterAMinute());
    EXPECT_EQ(reports, (QList<QSet<QString>>{{u"chrome/Profile 7"_s}, {u"chrome/Profile 7"_s}}));
}

TEST_F(SilentFoldersTest, onlyTheyAreLookedAt)
{
    watch();
    change([this] { sample::writeHistory(edgeFile(u"Default/History"_s), {}); });
    ASSERT_TRUE(lookAfterAMinute());
    EXPECT_TRUE(reports.isEmpty()) << "whoever tells of it has not";
}

TEST_F(SilentFoldersTest, aChangeThatIsBothToldAndSeenCountsOnce)
{
    watch();
    setChromeHistory(u"Default"_s, {u"more"_s, u"than"_s, u"before"_s});
    home.fileEvents.report({chromeFile(u"Default/History"_s)});
    ASSERT_TRUE(lookAfterAMinute());
    EXPECT_EQ(reports.size(), 1);
}

TEST_F(SilentFoldersTest, aFolderThatFallsSilentIsLookedAtFromThenOn)
{
    const QStringList silent = std::exchange(home.fileEvents.silentFolders, {});
    watcher = std::make_unique<BrowserWatcher>(
        home.platform(), [this](const QSet<QString> &report) { reports.append(report); });
    EXPECT_EQ(home.clock.waiting(), 0U) << "nobody looks where everything is told";
    home.fileEvents.silentFolders = silent;
    home.fileEvents.report({});
    ASSERT_TRUE(looked());
    EXPECT_TRUE(reports.isEmpty());
    setChromeHistory(u"Default"_s, {u"more"_s, u"than"_s, u"before"_s});
    ASSERT_TRUE(lookAfterAMinute());
    EXPECT_EQ(reports, QList<QSet<QString>>{{u"chrome/Default"_s}});
    home.fileEvents.silentFolders.clear();
    home.clock.advance(BrowserWatcher::lookInterval);
    EXPECT_EQ(home.clock.waiting(), 0U);
}

TEST_F(SilentFoldersTest, aLimitThatIsReachedIsToldOnce)
{
    int told = 0;
    home.fileEvents.isLimitReached = true;
    watch([&told] { ++told; });
    EXPECT_EQ(told, 1);
    ASSERT_TRUE(lookAfterAMinute());
    home.fileEvents.report({chromeFile(u"Default/History"_s)});
    EXPECT_EQ(told, 1);
}

TEST_F(SilentFoldersTest, aLibraryReloadsWhatWasSeen)
{
    home.fileEvents.isLimitReached = true;
    Library library(home.platform());
    int told = 0;
    QObject::connect(&library, &Library::watchLimitReached, &library, [&told] { ++told; });
    EXPECT_FALSE(library.isWatchLimitReached());
    library.start();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_TRUE(library.isWatchLimitReached());
    EXPECT_EQ(told, 1);
    ASSERT_TRUE(looked());
    setChromeHistory(u"Profile 1"_s, {u"changed"_s});
    home.clock.advance(BrowserWatcher::lookInterval);
    ASSERT_TRUE(waitUntil([this] { return home.clock.waiting() == 2; })) << "the next look, and the reload";
    home.clock.advance(5s);
    ASSERT_TRUE(waitUntil([&library] { return library.generation() == 2 && !library.isLoading(); }));
    EXPECT_TRUE(titles(library.snapshot().history).contains(u"changed"_s));
}

} // namespace
} // namespace roamlet::testing
