// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/BrowserWatcher.h"

#include "Platform/Linux/InotifyFileEvents.h"
#include "SampleHome/PlainFiles.h"
#include "Support/LibraryHome.h"
#include "Support/Sources.h"
#include "Support/Waiting.h"

#include <QFile>

#include <algorithm>
#include <memory>

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

TEST_F(BrowserWatcherTest, filesBelongToTheSourceInWhoseFolderTheyLie)
{
    addChromium();
    const QString container = safariContainerFile({});
    struct Row {
        QString path;
        std::optional<QString> id;
    };
    const QList<Row> rows{
        {chromeFile(u"Default/History"_s), u"chrome/Default"_s},
        {chromeFile(u"Default/History-wal"_s), u"chrome/Default"_s},
        {chromeFile(u"Default/Bookmarks"_s), u"chrome/Default"_s},
        {chromeFile(u"Profile 1/Bookmarks"_s), u"chrome/Profile 1"_s},
        {chromeFile(u"Default/AccountBookmarks"_s), u"chrome/Default"_s},
        {chromeFile(u"Default/EncryptedBookmarks"_s), u"chrome/Default"_s},
        {chromeFile(u"Default/EncryptedBookmarks2"_s), u"chrome/Default"_s},
        {chromeFile(u"Default/EncryptedAccountBookmarks"_s), u"chrome/Default"_s},
        {chromeFile(u"Default/EncryptedAccountBookmarks2"_s), u"chrome/Default"_s},
        {chromeFile(u"Default/EncryptedBookmarks3"_s), {}},
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
        {container % u"Profiles/UUID-1/Sub/History.db", {}},
        {container % u"Profiles/UUID-1/History", {}},
        {container % u"SafariTabs.db", {}},
        {container % u"History.db", {}},
        {safariFile(u"History.db-shm"_s), {}},
        {safariFile(u"Bookmarks"_s), {}},
        {chromeFile(u"Default/History.db"_s), {}},
        {chromeFile(u"Default"_s), {}},
        {u"/x" % chromeFile(u"Default/History"_s), {}},
        {home.path(u"Default/History"_s), {}},
        {u"History"_s, {}},
        {u""_s, {}},
    };
    for (const Row &row : rows)
        EXPECT_EQ(sourceID(row.path), row.id) << qPrintable(row.path);
}

TEST_F(BrowserWatcherTest, dataThatTheUserPutElsewhereBelongsToItsBrowserToo)
{
    home.defaults.setString(u"dataRoot.chrome"_s, home.path(u"else/where"_s));
    home.defaults.setString(u"dataRoot.safari"_s, home.path(u"backup"_s));
    EXPECT_EQ(sourceID(home.path(u"else/where/Profile 2/History"_s)), u"chrome/Profile 2"_s);
    EXPECT_EQ(sourceID(chromeFile(u"Default/History"_s)), std::nullopt);
    EXPECT_EQ(sourceID(home.path(u"backup/History.db"_s)), u"safari"_s);
    EXPECT_EQ(sourceID(safariFile(u"History.db"_s)), std::nullopt);
}

TEST_F(BrowserWatcherTest, anUnchangedFileIsReportedOnlyTheFirstTime)
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
    change([&history] { QFile::remove(history); });
    home.fileEvents.report({history});
    home.fileEvents.report({history});
    EXPECT_EQ(reports.size(), 3) << "gone counts once";
}

TEST_F(BrowserWatcherTest, oneReportNamesAllItsSources)
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

TEST_F(BrowserWatcherTest, eachFileOfASourceHasItsOwnStamp)
{
    addChromium();
    int reports = 0;
    const BrowserWatcher watcher(home.platform(), [&reports](const QSet<QString> &) { ++reports; });
    home.fileEvents.report({chromeFile(u"Default/History"_s)});
    home.fileEvents.report({chromeFile(u"Default/Bookmarks"_s)});
    EXPECT_EQ(reports, 2) << "each file counts the first time";
    home.fileEvents.report({chromeFile(u"Default/Bookmarks"_s), chromeFile(u"Default/History"_s)});
    EXPECT_EQ(reports, 2);
    change([this] { sample::writeBookmarks(chromeFile(u"Default/Bookmarks"_s), {}); });
    home.fileEvents.report({chromeFile(u"Default/History"_s), chromeFile(u"Default/Bookmarks"_s)});
    EXPECT_EQ(reports, 3);
}

TEST_F(BrowserWatcherTest, aFileThatOnlyGotANewModeIsUnchanged)
{
    addChromium();
    int reports = 0;
    const BrowserWatcher watcher(home.platform(), [&reports](const QSet<QString> &) { ++reports; });
    const QString history = chromeFile(u"Default/History"_s);
    home.fileEvents.report({history});
    change([&history] { QFile::setPermissions(history, QFile::ReadOwner); });
    home.fileEvents.report({history});
    EXPECT_EQ(reports, 1);
}

TEST_F(BrowserWatcherTest, safarisFoldersAreAskedForFirst)
{
    const BrowserWatcher watcher(home.platform(), [](const QSet<QString> &) { FAIL(); });
    const QStringList &folders = home.fileEvents.watchedFolders;
    const QList<qsizetype> places{
        folders.indexOf(home.path(u"Library/Safari"_s)), folders.indexOf(safariContainerFile(u"Profiles"_s)),
        folders.indexOf(home.path(u"Library/Application Support/Google/Chrome"_s)),
        folders.indexOf(home.path(u"Library/Application Support/Microsoft Edge"_s))};
    EXPECT_FALSE(places.contains(-1));
    EXPECT_TRUE(std::ranges::is_sorted(places));
}

TEST_F(BrowserWatcherTest, everyInstallationsFilesAreItsOwn)
{
    const QString beta = home.path(u".config/google-chrome-beta"_s);
    const QString firefox = home.path(u".mozilla/firefox"_s);
    change([&] {
        sample::writeFile(beta % u"/Local State", "{}");
        sample::writeFile(firefox % u"/profiles.ini", "");
    });
    EXPECT_EQ(sourceID(beta % u"/Default/History"), u"chrome@beta/Default"_s);
    EXPECT_EQ(sourceID(firefox % u"/abc.default/places.sqlite"), u"firefox/abc.default"_s);
    EXPECT_EQ(sourceID(firefox % u"/abc.default/places.sqlite-wal"), u"firefox/abc.default"_s);
    for (const QString &name : {u"abc.default/favicons.sqlite"_s, u"abc.default/History"_s, u"profiles.ini"_s,
                                u"places.sqlite"_s, u"Profile Groups/1a2b.sqlite"_s})
        EXPECT_EQ(sourceID(firefox % u'/' % name), std::nullopt) << qPrintable(name);
}

TEST_F(BrowserWatcherTest, profilesThatLieElsewhereAreFollowed)
{
    const QString opera = home.path(u".config/opera"_s);
    const QString side = opera % u"/_side_profiles/Work/Default";
    const QString distant = home.path(u"elsewhere/profile"_s);
    change([&] {
        sample::writeFile(opera % u"/Local State", "{}");
        sample::writeFile(opera % u"/History", "x");
        sample::writeFile(side % u"/History", "x");
        sample::writeFile(home.path(u".mozilla/firefox/profiles.ini"_s), "");
        sample::writeFile(distant % u"/places.sqlite", "x");
    });
    QList<QSet<QString>> reports;
    BrowserWatcher watcher(home.platform(),
                           [&reports](const QSet<QString> &report) { reports.append(report); });
    home.fileEvents.report({opera % u"/History", side % u"/History", distant % u"/places.sqlite"});
    EXPECT_TRUE(reports.isEmpty()) << "nobody knows of them yet";
    watcher.setProfiles({profileOf(browserKind(u"opera"), u""_s),
                         profileOf(browserKind(u"opera"), u"_side_profiles/Work/Default"_s),
                         profileOf(browserKind(u"firefox"), distant),
                         profileOf(Source::Kind::Chrome, u"Default"_s), Source::safari()});
    for (const QString &folder : {opera, side, distant})
        EXPECT_TRUE(home.fileEvents.watchedFolders.contains(folder)) << qPrintable(folder);
    home.fileEvents.report({opera % u"/History", side % u"/History", distant % u"/places.sqlite",
                            opera % u"/Local State", distant % u"/favicons.sqlite"});
    EXPECT_EQ(reports, QList<QSet<QString>>({{u"opera/"_s, u"opera/_side_profiles/Work/Default"_s,
                                              QString(u"firefox/" % distant)}}));
    watcher.setProfiles({});
    change([&] { sample::writeFile(side % u"/History", "longer"); });
    home.fileEvents.report({side % u"/History"});
    EXPECT_EQ(reports.size(), 1) << "a profile that is gone is no longer followed";
}

TEST_F(BrowserWatcherTest, aProfileThatIsListedUnderAnotherNameThanItsFoldersIsReportedByItsKey)
{
    const QString root = home.path(u".mozilla/firefox"_s);
    change([&] {
        sample::writeFile(root % u"/profiles.ini", "");
        sample::writeFile(root % u"/a/places.sqlite", "x");
        sample::writeFile(root % u"/b/places.sqlite", "x");
    });
    QList<QSet<QString>> reports;
    BrowserWatcher watcher(home.platform(),
                           [&reports](const QSet<QString> &report) { reports.append(report); });
    watcher.setProfiles(
        {profileOf(browserKind(u"firefox"), u"./a"_s), profileOf(browserKind(u"firefox"), root % u"/b")});
    home.fileEvents.report({root % u"/a/places.sqlite", root % u"/b/places.sqlite"});
    EXPECT_EQ(reports, QList<QSet<QString>>({{u"firefox/./a"_s, QString(u"firefox/" % root % u"/b")}}));
}

TEST_F(BrowserWatcherTest, aProfileThatTwoInstallationsListIsReportedForBoth)
{
    const QString root = home.path(u".mozilla/firefox"_s);
    change([&] {
        sample::writeFile(root % u"/profiles.ini", "");
        sample::writeFile(root % u"/a/places.sqlite", "x");
        sample::writeFile(home.path(u".librewolf/profiles.ini"_s), "");
    });
    QList<QSet<QString>> reports;
    BrowserWatcher watcher(home.platform(),
                           [&reports](const QSet<QString> &report) { reports.append(report); });
    watcher.setProfiles({profileOf(browserKind(u"firefox"), u"a"_s),
                         profileOf(browserKind(u"librewolf"), root % u"/a"),
                         profileOf(browserKind(u"waterfox"), root % u"/a")});
    home.fileEvents.report({root % u"/a/places.sqlite"});
    EXPECT_EQ(reports, QList<QSet<QString>>({{u"firefox/a"_s, QString(u"librewolf/" % root % u"/a"),
                                              QString(u"waterfox/" % root % u"/a")}}));
}

TEST_F(BrowserWatcherTest, onlyProfilesElsewhereThatAreNewToItAreFollowedAnew)
{
    const QString first = home.path(u"elsewhere/first"_s);
    const QString second = home.path(u"elsewhere/second"_s);
    change([&] {
        sample::writeFile(home.path(u".mozilla/firefox/profiles.ini"_s), "");
        sample::writeFile(first % u"/places.sqlite", "x");
        sample::writeFile(second % u"/places.sqlite", "x");
    });
    BrowserWatcher watcher(home.platform(), [](const QSet<QString> &) {});
    Source firstProfile = profileOf(browserKind(u"firefox"), first);
    const Source secondProfile = profileOf(browserKind(u"firefox"), second);
    EXPECT_EQ(watcher.setProfiles({firstProfile, Source::safari()}), QSet<QString>{firstProfile.id()});
    firstProfile.name = u"renamed"_s;
    EXPECT_EQ(watcher.setProfiles({firstProfile}), QSet<QString>());
    EXPECT_EQ(watcher.setProfiles({firstProfile, secondProfile}), QSet<QString>{secondProfile.id()});
    EXPECT_EQ(watcher.setProfiles({}), QSet<QString>());
    EXPECT_EQ(watcher.setProfiles({firstProfile}), QSet<QString>{firstProfile.id()});
}

TEST_F(BrowserWatcherTest, profilesMayBeSetWhileOneOfThemIsReported)
{
    const QString places = home.path(u"elsewhere/profile/places.sqlite"_s);
    change([&] {
        sample::writeFile(home.path(u".mozilla/firefox/profiles.ini"_s), "");
        sample::writeFile(places, "x");
    });
    InotifyFileEvents events(home.clock);
    QList<QSet<QString>> reports;
    std::unique_ptr<BrowserWatcher> watcher;
    watcher = std::make_unique<BrowserWatcher>(
        Platform{home.folders, home.files, home.defaults, events, home.clock},
        [&](const QSet<QString> &report) {
            reports.append(report);
            watcher->setProfiles({});
        });
    const QString profile = home.path(u"elsewhere/profile"_s);
    watcher->setProfiles({profileOf(browserKind(u"firefox"), profile)});
    change([&] { sample::writeFile(places, "longer"); });
    ASSERT_TRUE(waitUntil([this] { return home.clock.waiting() == 1; }));
    home.clock.advance(InotifyFileEvents::latency);
    EXPECT_EQ(reports, QList<QSet<QString>>{{QString(u"firefox/" % profile)}});
}

TEST_F(BrowserWatcherTest, aBrowserThatIsInstalledLaterElsewhereIsKnown)
{
    QList<QSet<QString>> reports;
    const BrowserWatcher watcher(home.platform(),
                                 [&reports](const QSet<QString> &report) { reports.append(report); });
    const QString root = home.path(u".config/google-chrome"_s);
    EXPECT_TRUE(home.fileEvents.watchedFolders.contains(root));
    const QString history = root % u"/Default/History";
    home.fileEvents.report({history});
    EXPECT_TRUE(reports.isEmpty()) << "nothing is read from there yet";
    change([&] {
        sample::writeHistory(history, {});
        sample::writeFile(root % u"/Local State", "{}");
    });
    home.fileEvents.report({history});
    EXPECT_EQ(reports, QList<QSet<QString>>{{u"chrome/Default"_s}});
}

TEST_F(BrowserWatcherTest, changesOfFilesThatNobodyReadsCostNoLookAtTheFileSystem)
{
    class Files final : public LinuxFiles
    {
    public:
        bool exists(const QString &path) const override
        {
            ++looks;
            return LinuxFiles::exists(path);
        }
        QString fileStamp(const QString &path) const override
        {
            ++looks;
            return LinuxFiles::fileStamp(path);
        }

        mutable int looks = 0;
    };
    addChromium();
    const Files files;
    const Platform platform{home.folders, files, home.defaults, home.fileEvents, home.clock};
    int reports = 0;
    const BrowserWatcher watcher(platform, [&reports](const QSet<QString> &) { ++reports; });
    files.looks = 0;
    home.fileEvents.report({chromeFile(u"Default/Favicons"_s), chromeFile(u"Default/History-journal"_s),
                            chromeFile(u"Local State"_s), chromeFile(u"Default/Cookies"_s)});
    EXPECT_EQ(files.looks, 0);
    home.fileEvents.report({chromeFile(u"Default/Favicons"_s), chromeFile(u"Default/History"_s)});
    EXPECT_GT(files.looks, 0);
    EXPECT_EQ(reports, 1);
}

TEST_F(BrowserWatcherTest, aWatcherThatGoesEndsItsStream)
{
    class Events final : public FileEvents
    {
    public:
        std::unique_ptr<Stream> open(const QStringList &, Handler) override
        {
            class Counted final : public Stream
            {
            public:
                explicit Counted(int &open) : m_open(open) { ++m_open; }
                ~Counted() override { --m_open; }

            private:
                int &m_open;
            };
            return std::make_unique<Counted>(openStreams);
        }

        int openStreams = 0;
    };
    Events events;
    {
        const Platform platform{home.folders, home.files, home.defaults, events, home.clock};
        const BrowserWatcher watcher(platform, [](const QSet<QString> &) {});
        EXPECT_EQ(events.openStreams, 1);
    }
    EXPECT_EQ(events.openStreams, 0);
}

TEST_F(BrowserWatcherTest, tenChangesToThreeProfilesAreOneReloadOfJustThese)
{
    addChromium();
    addSafari();
    Library library(home.platform());
    library.start();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    recordReads();
    const QStringList files{chromeFile(u"Default/History"_s), chromeFile(u"Profile 1/History"_s),
                            edgeFile(u"Default/History"_s)};
    for (int i = 0; i < 10; ++i) {
        setChromeHistory(u"Profile 1"_s, QStringList(i + 1, u"p"_s));
        home.fileEvents.report({files[i % 3], files[1]});
        home.clock.advance(400ms);
    }
    setChromeHistory(u"Default"_s, {u"changed"_s});
    EXPECT_EQ(library.generation(), 1);
    home.clock.advance(999ms);
    EXPECT_FALSE(library.isLoading()) << "4,999 ms after the first change";
    home.clock.advance(1ms);
    EXPECT_TRUE(library.isLoading());
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(library.generation(), 2);
    EXPECT_EQ(takeReads(), (QStringList{u"chrome/Default"_s, u"chrome/Profile 1"_s, u"edge/Default"_s}));
    EXPECT_TRUE(titles(library.snapshot().history).contains(u"changed"_s));
    EXPECT_EQ(home.clock.waiting(), 0U);
    home.clock.advance(1h);
    EXPECT_FALSE(library.isLoading());

    setChromeHistory(u"Default"_s, {u"changed again"_s, u"x"_s});
    home.fileEvents.report({files[0]});
    home.clock.advance(5s);
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(library.generation(), 3);
    EXPECT_EQ(takeReads(), QStringList{u"chrome/Default"_s});
}

TEST_F(BrowserWatcherTest, aLoadThatRunsTakesTheChangesAlong)
{
    addChromium();
    Library library(home.platform());
    library.start();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    Gate gate;
    recordReads(&gate);
    library.load(QSet<QString>{u"edge/Default"_s});
    gate.awaitReader();
    home.fileEvents.report({chromeFile(u"Default/History"_s)});
    gate.open();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(takeReads(), (QStringList{u"chrome/Default"_s, u"edge/Default"_s})) << "without waiting";
    EXPECT_EQ(library.generation(), 3);
    home.clock.advance(5s);
    EXPECT_FALSE(library.isLoading()) << "nothing is left to read";
    EXPECT_EQ(library.generation(), 3);
    EXPECT_EQ(library.lastLoaded(), pointInTime(newest + 5));
}

TEST_F(BrowserWatcherTest, aDelayThatEndsDuringALoadLeavesTheChangesToItsNextPass)
{
    addChromium();
    Library library(home.platform());
    library.start();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    home.fileEvents.report({chromeFile(u"Default/History"_s)});
    home.clock.advance(4s);
    Gate gate;
    recordReads(&gate);
    // A load in between has the change from the start; a second change comes while it runs.
    library.load(QSet<QString>{u"edge/Default"_s});
    gate.awaitReader();
    home.fileEvents.report({chromeFile(u"Profile 1/History"_s)});
    home.clock.advance(1s);
    EXPECT_EQ(home.clock.waiting(), 0U);
    gate.open();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(takeReads(), (QStringList{u"chrome/Default"_s, u"chrome/Profile 1"_s, u"edge/Default"_s}));
    EXPECT_EQ(library.generation(), 3);
}

TEST_F(BrowserWatcherTest, aLibraryThatGoesBeforeTheDelayEndsReadsNothing)
{
    addChromium();
    {
        Library library(home.platform());
        library.start();
        ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
        home.fileEvents.report({chromeFile(u"Default/History"_s)});
        EXPECT_EQ(home.clock.waiting(), 1U);
    }
    recordReads();
    home.clock.advance(1h);
    EXPECT_EQ(takeReads(), QStringList());
}

TEST_F(BrowserWatcherTest, tellsWhetherItWatches)
{
    EXPECT_TRUE(BrowserWatcher(home.platform(), [](const QSet<QString> &) {}).isWatching());
    home.fileEvents.isAvailable = false;
    EXPECT_FALSE(BrowserWatcher(home.platform(), [](const QSet<QString> &) {}).isWatching());
}

TEST_F(BrowserWatcherTest, withoutFileEventsEverythingElseWorks)
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

TEST_F(BrowserWatcherTest, aPageThatIsVisitedReachesTheSnapshotThroughTheKernelsEvents)
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
