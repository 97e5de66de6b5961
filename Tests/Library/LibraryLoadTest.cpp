// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/LibraryReading.h"
#include "Platform/Variable.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>

#include <linux/landlock.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <semaphore>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class LibraryLoadTest : public LibraryHome
{
protected:
    static void awaitEnd(const Library &library)
    {
        ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    }

    /// A second profile of Edge's with one page.
    void addEdgeProfile()
    {
        change([this] {
            sample::writeLocalState(edgeFile(u"Local State"_s),
                                    {{u"Default"_s, QJsonObject{{u"name"_s, u"Office"_s}}},
                                     {u"Profile 1"_s, QJsonObject{{u"name"_s, u"New"_s}}}});
            sample::writeHistory(edgeFile(u"Profile 1/History"_s),
                                 {sample::HistoryRow{.url = u"https://n.example/"_s,
                                                     .title = u"new"_s,
                                                     .lastVisitTime = sample::chromiumTime(newest)}});
        });
    }
};

TEST_F(LibraryLoadTest, anEmptyHomeLoadsAnEmptySnapshot)
{
    Library library(home.platform());
    EXPECT_EQ(library.snapshot(), Library::Snapshot());
    EXPECT_EQ(library.lastLoaded(), std::nullopt);
    EXPECT_EQ(library.generation(), 0);
    loadNow(library);
    EXPECT_EQ(library.snapshot(), Library::Snapshot());
    EXPECT_EQ(library.generation(), 1);
    EXPECT_EQ(library.lastLoaded(), pointInTime(newest));
    EXPECT_TRUE(home.clock.sleeps().empty());
}

TEST_F(LibraryLoadTest, everythingIsReadInDiscoveryOrder)
{
    addChromium();
    addSafari();
    Library library(home.platform());
    loadNow(library);
    const Library::Snapshot &snapshot = library.snapshot();
    EXPECT_EQ(ids(snapshot.sources),
              (QStringList{u"safari"_s, u"chrome/Default"_s, u"chrome/Profile 1"_s, u"edge/Default"_s}));
    EXPECT_EQ(snapshot.sources, snapshot.browserProfiles);
    EXPECT_EQ(titles(snapshot.history), (QStringList{u"s1"_s, u"a1"_s, u"a2"_s, u"b1"_s, u"e1"_s}));
    ASSERT_EQ(snapshot.bookmarks.size(), 2);
    EXPECT_EQ(snapshot.bookmarks[0].title, u"Safari mark"_s);
    EXPECT_EQ(snapshot.bookmarks[0].folder, u"Favorites"_s);
    EXPECT_EQ(snapshot.bookmarks[1].title, u"Mark"_s);
    EXPECT_EQ(snapshot.bookmarkTrees.value(u"chrome/Default"_s).size(), 1);
    EXPECT_TRUE(snapshot.problems.isEmpty());
    EXPECT_FALSE(snapshot.safariBlocked);
}

TEST_F(LibraryLoadTest, theUsersOrderDoesNotChangeTheSnapshots)
{
    addChromium();
    home.defaults.setStringList(u"sourceOrder"_s, {u"edge/Default"_s, u"chrome/Profile 1"_s});
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(ids(library.snapshot().sources),
              (QStringList{u"chrome/Default"_s, u"chrome/Profile 1"_s, u"edge/Default"_s}));
    EXPECT_EQ(titles(library.snapshot().history), (QStringList{u"a1"_s, u"a2"_s, u"b1"_s, u"e1"_s}));
}

TEST_F(LibraryLoadTest, signalsTellOfEachChangeOnce)
{
    addChromium();
    Library library(home.platform());
    const QSignalSpy snapshots(&library, &Library::snapshotChanged);
    const QSignalSpy loading(&library, &Library::isLoadingChanged);
    const QSignalSpy loaded(&library, &Library::lastLoadedChanged);
    const QSignalSpy recent(&library, &Library::menuRecentChanged);
    library.load({});
    EXPECT_EQ(loading.count(), 1);
    EXPECT_TRUE(library.isLoading());
    EXPECT_EQ(snapshots.count(), 0);
    awaitEnd(library);
    EXPECT_EQ(snapshots.count(), 1);
    EXPECT_EQ(loading.count(), 2);
    EXPECT_EQ(loaded.count(), 1);
    EXPECT_EQ(recent.count(), 1);
}

TEST_F(LibraryLoadTest, whoHearsOfASnapshotFindsItsGenerationAndALoadThatRuns)
{
    addChromium();
    Library library(home.platform());
    QList<int> generations;
    QObject::connect(&library, &Library::snapshotChanged, &library, [&] {
        generations.append(library.generation());
        EXPECT_EQ(library.snapshot().sources.size(), 3);
        EXPECT_TRUE(library.isLoading());
    });
    QObject::connect(&library, &Library::lastLoadedChanged, &library,
                     [&library] { EXPECT_FALSE(library.isLoading()); });
    loadNow(library);
    loadNow(library, QSet<QString>{u"edge/Default"_s});
    EXPECT_EQ(generations, (QList<int>{1, 2}));
}

TEST_F(LibraryLoadTest, aLoadWasFinishedWhenItsLastPassEnded)
{
    addChromium();
    Gate gate;
    recordReads(&gate);
    Library library(home.platform());
    library.load({});
    gate.awaitReader();
    home.clock.advance(7s);
    gate.open();
    awaitEnd(library);
    EXPECT_EQ(library.lastLoaded(), pointInTime(newest + 7));
}

TEST_F(LibraryLoadTest, requestsDuringALoadAreOneFurtherPassOfJustThese)
{
    addChromium();
    Gate gate;
    recordReads(&gate);
    Library library(home.platform());
    const QSignalSpy loading(&library, &Library::isLoadingChanged);
    library.load({});
    gate.awaitReader();
    library.load(QSet<QString>{u"chrome/Default"_s});
    library.load(QSet<QString>{u"chrome/Default"_s});
    library.load(QSet<QString>{u"edge/Default"_s});
    gate.open();
    awaitEnd(library);
    EXPECT_EQ(library.generation(), 2);
    EXPECT_EQ(loading.count(), 2) << "one loop";
    EXPECT_EQ(takeReads(), (QStringList{u"chrome/Default"_s, u"chrome/Default"_s, u"chrome/Profile 1"_s,
                                        u"edge/Default"_s, u"edge/Default"_s}));
}

TEST_F(LibraryLoadTest, aFullRequestWinsOverPartialOnes)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    Gate gate;
    recordReads(&gate);
    library.load(QSet<QString>{u"edge/Default"_s});
    gate.awaitReader();
    library.load(QSet<QString>{u"chrome/Default"_s});
    library.load({});
    library.load(QSet<QString>{u"chrome/Default"_s});
    gate.open();
    awaitEnd(library);
    EXPECT_EQ(library.generation(), 3) << "the partial requests need no pass of their own";
    EXPECT_EQ(takeReads(), (QStringList{u"chrome/Default"_s, u"chrome/Profile 1"_s, u"edge/Default"_s,
                                        u"edge/Default"_s}));
}

TEST_F(LibraryLoadTest, aRequestFromWhoHearsOfASnapshotIsAFurtherPass)
{
    addChromium();
    Library library(home.platform());
    QObject::connect(&library, &Library::snapshotChanged, &library, [&library] {
        if (library.generation() == 1)
            library.load(QSet<QString>{u"chrome/Default"_s});
    });
    recordReads();
    loadNow(library);
    EXPECT_EQ(library.generation(), 2);
    EXPECT_EQ(takeReads(), (QStringList{u"chrome/Default"_s, u"chrome/Default"_s, u"chrome/Profile 1"_s,
                                        u"edge/Default"_s}));
}

TEST_F(LibraryLoadTest, aRequestFromWhoHearsOfTheEndStartsAnew)
{
    addChromium();
    Library library(home.platform());
    QObject::connect(&library, &Library::lastLoadedChanged, &library, [&library] {
        if (library.generation() == 1)
            library.load({});
    });
    library.load({});
    ASSERT_TRUE(waitUntil([&library] { return library.generation() == 2 && !library.isLoading(); }));
}

TEST_F(LibraryLoadTest, aRequestForNothingReadsNothing)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    const Library::Snapshot before = library.snapshot();
    recordReads();
    home.clock.advance(60s);
    library.load(QSet<QString>());
    EXPECT_FALSE(library.isLoading());
    EXPECT_EQ(library.generation(), 1);
    EXPECT_EQ(library.lastLoaded(), pointInTime(newest + 60)) << "the loop ran, if without a pass";
    EXPECT_EQ(library.menuUpdated(), library.lastLoaded());
    EXPECT_EQ(takeReads(), QStringList());
}

TEST_F(LibraryLoadTest, aPartialLoadReadsOnlyWhatWasAskedForAndWhatIsNew)
{
    addChromium();
    addSafari();
    Library library(home.platform());
    loadNow(library);
    setChromeHistory(u"Default"_s, {u"changed"_s});
    setChromeHistory(u"Profile 1"_s, {u"changed too"_s});
    addEdgeProfile();
    recordReads();
    loadNow(library, QSet<QString>{u"chrome/Default"_s});
    EXPECT_EQ(takeReads(), (QStringList{u"chrome/Default"_s, u"edge/Profile 1"_s}));
    EXPECT_EQ(titles(library.snapshot().history),
              (QStringList{u"s1"_s, u"changed"_s, u"b1"_s, u"e1"_s, u"new"_s}));
    EXPECT_EQ(library.snapshot().bookmarks.size(), 2);
    EXPECT_EQ(library.snapshot().favicons.size(), 1);
}

TEST_F(LibraryLoadTest, aPartialLoadOfAnUnknownSourceTakesOverEverything)
{
    addChromium();
    addSafari();
    Library library(home.platform());
    loadNow(library);
    const Library::Snapshot before = library.snapshot();
    recordReads();
    loadNow(library, QSet<QString>{u"chrome/Profile 9"_s});
    EXPECT_EQ(library.snapshot(), before);
    EXPECT_EQ(library.generation(), 2);
    EXPECT_EQ(takeReads(), QStringList());
}

TEST_F(LibraryLoadTest, aPartialLoadDropsWhatIsGone)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    change([this] { QDir(edgeFile(u"Default"_s)).removeRecursively(); });
    loadNow(library, QSet<QString>{u"chrome/Default"_s});
    EXPECT_EQ(ids(library.snapshot().browserProfiles),
              (QStringList{u"chrome/Default"_s, u"chrome/Profile 1"_s}));
    EXPECT_EQ(titles(library.snapshot().history), (QStringList{u"a1"_s, u"a2"_s, u"b1"_s}));
    EXPECT_FALSE(library.snapshot().bookmarkTrees.contains(u"edge/Default"_s));
}

TEST_F(LibraryLoadTest, aProfileThatWasSwitchedOffBeforeIsNewToAPartialPass)
{
    addChromium();
    const ReadContext context = LibraryReading::readContext(home.platform());
    const QSet<QString> edge{u"edge/Default"_s};
    const Library::Snapshot without =
        LibraryReading::readAll({.disabled = edge, .only = {}, .previous = {}}, context, home.clock);
    ASSERT_EQ(titles(without.history), (QStringList{u"a1"_s, u"a2"_s, u"b1"_s}));
    recordReads();
    const Library::Snapshot with = LibraryReading::readAll(
        {.disabled = {}, .only = QSet<QString>{u"chrome/Default"_s}, .previous = without}, context,
        home.clock);
    EXPECT_EQ(takeReads(), (QStringList{u"chrome/Default"_s, u"edge/Default"_s}));
    EXPECT_EQ(titles(with.history), (QStringList{u"a1"_s, u"a2"_s, u"b1"_s, u"e1"_s}));
}

TEST_F(LibraryLoadTest, safariProfilesAreLookedForOnlyWhenAPartialLoadNeedsThem)
{
    addChromium();
    addSafari();
    addSafariProfile();
    home.defaults.setStringList(u"disabledProfiles"_s, {u"safari/T"_s});
    std::atomic<int> looks = 0;
    home.files.failure = [&looks](const QString &path) {
        looks += path.endsWith(u"/SafariTabs.db"_s) ? 1 : 0;
        return std::error_code{};
    };
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(looks, 1);
    loadNow(library, QSet<QString>{u"chrome/Default"_s});
    loadNow(library, QSet<QString>{u"chrome/unknown"_s});
    loadNow(library, QSet<QString>{u"safari"_s, u"chrome/Default"_s});
    loadNow(library, QSet<QString>{u"safari/T"_s});
    EXPECT_EQ(looks, 1) << "the known ones serve, also the ones that are switched off";
    EXPECT_EQ(ids(library.snapshot().browserProfiles).first(2), (QStringList{u"safari"_s, u"safari/T"_s}));
    loadNow(library, QSet<QString>{u"safari"_s, u"safari/unknown"_s});
    EXPECT_EQ(looks, 2);
    loadNow(library);
    EXPECT_EQ(looks, 3);
}

TEST_F(LibraryLoadTest, theFirstLoadLooksForSafariEvenWhenItIsAPartialOne)
{
    addSafari();
    addSafariProfile();
    Library library(home.platform());
    loadNow(library, QSet<QString>{u"chrome/Default"_s});
    EXPECT_EQ(ids(library.snapshot().sources), (QStringList{u"safari"_s, u"safari/T"_s}));
    EXPECT_EQ(titles(library.snapshot().history), (QStringList{u"s1"_s, u"t1"_s}));
}

TEST_F(LibraryLoadTest, aSafariThatAppearsIsFoundByTheNextLoadOfAnything)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    addSafari();
    loadNow(library, QSet<QString>{u"chrome/Default"_s});
    EXPECT_EQ(ids(library.snapshot().sources).first(), u"safari"_s);
    addSafariProfile();
    loadNow(library, QSet<QString>{u"chrome/Default"_s});
    EXPECT_EQ(library.snapshot().sources.size(), 4) << "Safari is known by now";
    loadNow(library, QSet<QString>{u"safari/T"_s});
    EXPECT_EQ(ids(library.snapshot().sources).first(2), (QStringList{u"safari"_s, u"safari/T"_s}));
}

TEST_F(LibraryLoadTest, startingSweepsLoadsAndWatches)
{
    addChromium();
    const QString leftover = home.temporary() % u"/Roamlet-leftover";
    ASSERT_TRUE(QDir().mkpath(leftover));
    Library library(home.platform());
    library.start();
    EXPECT_TRUE(library.isLoading());
    ASSERT_TRUE(waitUntil([&] { return !library.isLoading() && !QDir(leftover).exists(); }));
    EXPECT_EQ(library.generation(), 1);
    EXPECT_EQ(library.snapshot().sources.size(), 3);
    EXPECT_TRUE(home.fileEvents.watchedFolders.contains(chromeFile(u""_s).chopped(1)));
}

TEST_F(LibraryLoadTest, aLibraryThatGoesWhileItLoadsLeavesNothing)
{
    addChromium();
    addSafari();
    std::counting_semaphore<> copies(0);
    home.files.afterCopy = [&copies](const QString &) { copies.release(); };
    {
        Library library(home.platform());
        library.start();
        copies.acquire();
    }
    EXPECT_TRUE(home.leftovers().isEmpty());
}

TEST_F(LibraryLoadTest, whatReadsCannotWriteToABrowsersFolder)
{
    if (::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION) < 1)
        GTEST_SKIP() << "this kernel cannot do it";
    const Variable sorting("SQLITE_TMPDIR", QFile::encodeName(home.temporary()));
    addChromium();
    std::atomic<int> attempts = 0;
    std::atomic<int> refusals = 0;
    home.files.afterCopy = [&](const QString &source) {
        ++attempts;
        QFile file(source % u"-from-a-reader");
        refusals += file.open(QIODevice::WriteOnly) ? 0 : 1;
    };
    Library library(home.platform());
    library.start();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_GE(attempts, 3);
    EXPECT_EQ(refusals, attempts);
    EXPECT_TRUE(library.snapshot().problems.isEmpty());
}

} // namespace
} // namespace roamlet::testing
