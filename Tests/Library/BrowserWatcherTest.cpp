// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/BrowserWatcher.h"

#include "Library/LibraryHome.h"
#include "Platform/Linux/InotifyFileEvents.h"
#include "Support/Waiting.h"

#include <QFile>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class BrowserWatcherTest : public LibraryHome
{
protected:
    std::optional<QString> sourceID(const QString &path)
    {
        return BrowserWatcher::sourceID(path, home.context().folders);
    }
};

TEST_F(BrowserWatcherTest, FilesBelongToTheSourceInWhoseFolderTheyLie)
{
    addChromium();
    const QString container = home.path(u"Library/Containers/com.apple.Safari/Data/Library/Safari/"_s);
    struct Row {
        QString path;
        std::optional<QString> id;
    };
    const QList<Row> rows{
        {chromeFile(u"Default/History"_s), u"chrome/Default"_s},
        {chromeFile(u"Default/History-wal"_s), u"chrome/Default"_s},
        {chromeFile(u"Default/Bookmarks"_s), u"chrome/Default"_s},
        {chromeFile(u"Profile 1/Bookmarks"_s), u"chrome/Profile 1"_s},
        {chromeFile(u"Default/Favicons"_s), {}},
        {chromeFile(u"Default/History-journal"_s), {}},
        {chromeFile(u"Default/history"_s), {}},
        {chromeFile(u"Default/Cache/History"_s), {}},
        {chromeFile(u"History"_s), {}},
        {chromeFile(u"Local State"_s), {}},
        {edgeFile(u"Default/History"_s), u"edge/Default"_s},
        {safariFile(u"History.db"_s), u"safari"_s},
        {safariFile(u"History.db-wal"_s), u"safari"_s},
        {safariFile(u"Bookmarks.plist"_s), u"safari"_s},
        {safariFile(u"History"_s), {}},
        {safariFile(u"Sub/History.db"_s), {}},
        {container % u"Profiles/UUID-1/History.db", u"safari/UUID-1"_s},
        {container % u"Profiles/UUID-1/Bookmarks.plist", u"safari/UUID-1"_s},
        {container % u"Profiles/History.db", {}},
        {container % u"SafariTabs.db", {}},
        {home.path(u"Default/History"_s), {}},
        {u"History"_s, {}},
        {u""_s, {}},
    };
    for (const Row &row : rows)
        EXPECT_EQ(sourceID(row.path), row.id) << qPrintable(row.path);
}

TEST_F(BrowserWatcherTest, AnUnchangedFileIsReportedOnlyTheFirstTime)
{
    addChromium();
    QList<QSet<QString>> reports;
    const BrowserWatcher watcher(home.platform(),
                                 [&reports](const QSet<QString> &report) { reports.append(report); });
    const QString history = chromeFile(u"Default/History"_s);
    home.fileEvents.report({history});
    home.fileEvents.report({history});
    EXPECT_EQ(reports, QList<QSet<QString>>{{u"chrome/Default"_s}});
    setChromeHistory(u"Default"_s, {u"more"_s, u"than"_s, u"before"_s});
    home.fileEvents.report({history});
    EXPECT_EQ(reports.size(), 2);
    QFile::remove(history);
    home.fileEvents.report({history});
    home.fileEvents.report({history});
    EXPECT_EQ(reports.size(), 3) << "gone counts once";
}

TEST_F(BrowserWatcherTest, OneReportNamesAllItsSources)
{
    addChromium();
    QList<QSet<QString>> reports;
    const BrowserWatcher watcher(home.platform(),
                                 [&reports](const QSet<QString> &report) { reports.append(report); });
    home.fileEvents.report({chromeFile(u"Default/History"_s), chromeFile(u"Default/Bookmarks"_s),
                            edgeFile(u"Default/History"_s), chromeFile(u"Default/Favicons"_s)});
    EXPECT_EQ(reports, (QList<QSet<QString>>{{u"chrome/Default"_s, u"edge/Default"_s}}));
    home.fileEvents.report({chromeFile(u"Default/Favicons"_s)});
    home.fileEvents.report({});
    EXPECT_EQ(reports.size(), 1);
}

TEST_F(BrowserWatcherTest, ManyChangesWithinFiveSecondsAreOneReload)
{
    addChromium();
    home.fileEvents.isAvailable = true;
    Library library(home.platform());
    library.start();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    setChromeHistory(u"Default"_s, {u"changed"_s});
    for (int i = 0; i < 10; ++i) {
        setChromeHistory(u"Profile 1"_s, QStringList(i + 1, u"p"_s));
        home.fileEvents.report({chromeFile(u"Default/History"_s), chromeFile(u"Profile 1/History"_s),
                                edgeFile(u"Default/History"_s)});
        home.clock.advance(400ms);
    }
    EXPECT_EQ(library.generation(), 1);
    EXPECT_FALSE(library.isLoading());
    home.clock.advance(999ms);
    EXPECT_FALSE(library.isLoading()) << "4,999 ms after the first change";
    home.clock.advance(1ms);
    EXPECT_TRUE(library.isLoading());
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(library.generation(), 2);
    EXPECT_TRUE(titles(library.snapshot().history).contains(u"changed"_s));
    EXPECT_EQ(home.clock.waiting(), 0U);
    home.clock.advance(1h);
    EXPECT_FALSE(library.isLoading());

    setChromeHistory(u"Default"_s, {u"changed again"_s, u"x"_s});
    home.fileEvents.report({chromeFile(u"Default/History"_s)});
    home.clock.advance(5s);
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(library.generation(), 3);
}

TEST_F(BrowserWatcherTest, WithoutFileEventsEverythingElseWorks)
{
    addChromium();
    home.fileEvents.isAvailable = false;
    Library library(home.platform());
    library.start();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    setChromeHistory(u"Default"_s, {u"changed"_s});
    home.fileEvents.report({chromeFile(u"Default/History"_s)});
    home.clock.advance(1h);
    EXPECT_EQ(library.generation(), 1);
    loadNow(library);
    EXPECT_TRUE(titles(library.snapshot().history).contains(u"changed"_s));
}

TEST_F(BrowserWatcherTest, APageThatIsVisitedReachesTheSnapshotThroughTheKernelsEvents)
{
    addChromium();
    InotifyFileEvents events(home.clock);
    Library library({home.folders, home.files, home.defaults, events, home.clock});
    library.start();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    setChromeHistory(u"Profile 1"_s, {u"just visited"_s});
    ASSERT_TRUE(waitUntil([this] { return home.clock.waiting() == 1; }))
        << "the kernel's events are being gathered";
    home.clock.advance(InotifyFileEvents::latency);
    home.clock.advance(5s);
    ASSERT_TRUE(waitUntil([&library] { return library.generation() == 2 && !library.isLoading(); }));
    EXPECT_EQ(library.menuRecent().first().source.id(), u"edge/Default"_s);
    EXPECT_TRUE(titles(library.menuRecent()).contains(u"just visited"_s));
}

} // namespace
} // namespace roamlet::testing
