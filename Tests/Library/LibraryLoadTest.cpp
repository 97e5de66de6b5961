// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/LibraryHome.h"
#include "Support/FolderFingerprint.h"
#include "Support/Waiting.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>

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
    void refuse(const QString &path)
    {
        home.files.failure = [path](const QString &file) {
            return file == path ? std::make_error_code(std::errc::permission_denied) : std::error_code{};
        };
    }
};

TEST_F(LibraryLoadTest, AnEmptyHomeLoadsAnEmptySnapshot)
{
    Library library(home.platform());
    EXPECT_EQ(library.snapshot(), Library::Snapshot());
    EXPECT_EQ(library.lastLoaded(), std::nullopt);
    loadNow(library);
    EXPECT_EQ(library.snapshot(), Library::Snapshot());
    EXPECT_EQ(library.generation(), 1);
    EXPECT_EQ(library.lastLoaded(), pointInTime(newest));
    EXPECT_TRUE(home.clock.sleeps().empty());
}

TEST_F(LibraryLoadTest, EverythingIsReadInDiscoveryOrderAndNothingIsTouched)
{
    addChromium();
    addSafari();
    const FolderFingerprint before(home.path());
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
    EXPECT_EQ(before.differencesTo(FolderFingerprint(home.path())), "");
}

TEST_F(LibraryLoadTest, SignalsTellOfEachChangeOnce)
{
    addChromium();
    Library library(home.platform());
    const QSignalSpy snapshots(&library, &Library::snapshotChanged);
    const QSignalSpy loading(&library, &Library::isLoadingChanged);
    const QSignalSpy loaded(&library, &Library::lastLoadedChanged);
    const QSignalSpy recent(&library, &Library::menuRecentChanged);
    loadNow(library);
    EXPECT_EQ(snapshots.count(), 1);
    EXPECT_EQ(loading.count(), 2);
    EXPECT_EQ(loaded.count(), 1);
    EXPECT_EQ(recent.count(), 1);
}

TEST_F(LibraryLoadTest, RequestsDuringALoadAreOneFurtherPassOfJustThese)
{
    addChromium();
    std::binary_semaphore mayCopy(0);
    std::atomic<int> copies = 0;
    home.files.failure = [&](const QString &path) {
        if (path.endsWith(u"/History"_s) && copies.fetch_add(1) == 0)
            mayCopy.acquire();
        return std::error_code{};
    };
    Library library(home.platform());
    library.load({});
    library.load(QSet<QString>{u"chrome/Default"_s});
    library.load(QSet<QString>{u"chrome/Default"_s});
    EXPECT_TRUE(library.isLoading());
    mayCopy.release();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(library.generation(), 2);
    EXPECT_EQ(copies, 3 + 1) << "three profiles, then one of them again";
}

TEST_F(LibraryLoadTest, AFullRequestWinsOverPartialOnes)
{
    addChromium();
    std::binary_semaphore mayCopy(0);
    std::atomic<int> copies = 0;
    home.files.failure = [&](const QString &path) {
        if (path.endsWith(u"/History"_s) && copies.fetch_add(1) == 0)
            mayCopy.acquire();
        return std::error_code{};
    };
    Library library(home.platform());
    library.load({});
    library.load(QSet<QString>{u"chrome/Default"_s});
    library.load({});
    mayCopy.release();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(library.generation(), 2);
    EXPECT_EQ(copies, 6);
}

TEST_F(LibraryLoadTest, APartialLoadReadsOnlyWhatWasAskedForAndWhatIsNew)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    setChromeHistory(u"Default"_s, {u"changed"_s});
    setChromeHistory(u"Profile 1"_s, {u"changed too"_s});
    sample::writeLocalState(edgeFile(u"Local State"_s),
                            {{u"Default"_s, QJsonObject{{u"name"_s, u"Office"_s}}},
                             {u"Profile 1"_s, QJsonObject{{u"name"_s, u"New"_s}}}});
    sample::writeHistory(edgeFile(u"Profile 1/History"_s),
                         {sample::HistoryRow{.url = u"https://n.example/"_s,
                                             .title = u"new"_s,
                                             .lastVisitTime = sample::chromiumTime(newest)}});
    loadNow(library, QSet<QString>{u"chrome/Default"_s});
    EXPECT_EQ(titles(library.snapshot().history), (QStringList{u"changed"_s, u"b1"_s, u"e1"_s, u"new"_s}));
}

TEST_F(LibraryLoadTest, SafariProfilesAreLookedForOnlyWhenAPartialLoadNeedsThem)
{
    addChromium();
    addSafari();
    std::atomic<int> looks = 0;
    home.files.failure = [&looks](const QString &path) {
        looks += path.endsWith(u"/SafariTabs.db"_s) ? 1 : 0;
        return std::error_code{};
    };
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(looks, 1);
    loadNow(library, QSet<QString>{u"chrome/Default"_s});
    loadNow(library, QSet<QString>{u"safari"_s, u"chrome/Default"_s});
    EXPECT_EQ(looks, 1) << "the known one serves";
    loadNow(library, QSet<QString>{u"safari/unknown"_s});
    EXPECT_EQ(looks, 2);
    loadNow(library);
    EXPECT_EQ(looks, 3);
}

TEST_F(LibraryLoadTest, WhatCannotBeReadIsTriedOnceMoreAfterASecondAndKeepsWhatWasKnown)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    const QString history = chromeFile(u"Default/History"_s);
    std::atomic<int> attempts = 0;
    home.files.failure = [&](const QString &path) {
        if (path != history)
            return std::error_code{};
        ++attempts;
        return std::make_error_code(std::errc::io_error);
    };
    loadNow(library);
    EXPECT_EQ(attempts, 2);
    EXPECT_EQ(home.clock.sleeps(), std::vector<Clock::Duration>{1000ms});
    EXPECT_EQ(library.snapshot().problems.value(u"chrome/Default"_s),
              QString(u"Couldn't read " % history % u": Input/output error"));
    EXPECT_EQ(titles(library.snapshot().history), (QStringList{u"a1"_s, u"a2"_s, u"b1"_s, u"e1"_s}));
    EXPECT_EQ(library.snapshot().problems.size(), 1);

    home.files.failure = {};
    loadNow(library, QSet<QString>{u"chrome/Default"_s});
    EXPECT_TRUE(library.snapshot().problems.isEmpty());
}

TEST_F(LibraryLoadTest, ARetryThatSucceedsLeavesNoProblem)
{
    addChromium();
    std::atomic<int> attempts = 0;
    home.files.failure = [&](const QString &path) {
        const bool fails = path == chromeFile(u"Default/History"_s) && attempts.fetch_add(1) == 0;
        return fails ? std::make_error_code(std::errc::io_error) : std::error_code{};
    };
    Library library(home.platform());
    loadNow(library);
    EXPECT_TRUE(library.snapshot().problems.isEmpty());
    EXPECT_EQ(titles(library.snapshot().history), (QStringList{u"a1"_s, u"a2"_s, u"b1"_s, u"e1"_s}));
}

TEST_F(LibraryLoadTest, SeveralProblemsOfASourceAreOneLineEach)
{
    addChromium();
    QFile::remove(chromeFile(u"Default/History"_s));
    QFile history(chromeFile(u"Default/History"_s));
    ASSERT_TRUE(history.open(QIODevice::WriteOnly));
    history.write("not a database, by no means, none at all");
    history.close();
    QFile bookmarks(chromeFile(u"Default/Bookmarks"_s));
    ASSERT_TRUE(bookmarks.open(QIODevice::WriteOnly));
    bookmarks.write("{");
    bookmarks.close();
    Library library(home.platform());
    loadNow(library);
    const QStringList lines = library.snapshot().problems.value(u"chrome/Default"_s).split(u'\n');
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].startsWith(u"Couldn't read " % bookmarks.fileName() % u": not valid JSON"_s));
    EXPECT_EQ(lines[1], u"Couldn't read query: file is not a database"_s);
}

TEST_F(LibraryLoadTest, ARefusalEmptiesThePartAndIsNotTriedAgain)
{
    addSafari();
    Library library(home.platform());
    loadNow(library);
    ASSERT_EQ(titles(library.snapshot().history), QStringList{u"s1"_s});
    refuse(safariFile(u"History.db"_s));
    loadNow(library);
    EXPECT_TRUE(library.snapshot().history.isEmpty());
    EXPECT_EQ(library.snapshot().bookmarks.size(), 1) << "the other parts are read";
    EXPECT_TRUE(library.snapshot().safariBlocked);
    EXPECT_EQ(library.snapshot().problems.value(u"safari"_s),
              QString(u"macOS blocked access to " % safariFile(u"History.db"_s) % u"."));
    EXPECT_TRUE(home.clock.sleeps().empty());

    home.files.failure = {};
    loadNow(library);
    EXPECT_FALSE(library.snapshot().safariBlocked);
    EXPECT_EQ(titles(library.snapshot().history), QStringList{u"s1"_s});
}

TEST_F(LibraryLoadTest, ARefusalByAnotherBrowserDoesNotBlockSafari)
{
    addChromium();
    refuse(chromeFile(u"Default/History"_s));
    Library library(home.platform());
    loadNow(library);
    EXPECT_FALSE(library.snapshot().safariBlocked);
    EXPECT_TRUE(library.snapshot().problems.contains(u"chrome/Default"_s));
    EXPECT_EQ(titles(library.snapshot().history), (QStringList{u"b1"_s, u"e1"_s}));
}

TEST_F(LibraryLoadTest, IconsThatCannotBeReadAreKeptWithoutAWord)
{
    addChromium();
    setChromeIcon(u"Default"_s, u"https://icon.example/"_s, png(16, Qt::red));
    Library library(home.platform());
    loadNow(library);
    ASSERT_TRUE(library.snapshot().favicons.contains(u"icon.example"_s));
    home.files.failure = [this](const QString &path) {
        return path == chromeFile(u"Default/Favicons"_s) ? std::make_error_code(std::errc::io_error)
                                                         : std::error_code{};
    };
    loadNow(library);
    EXPECT_TRUE(library.snapshot().favicons.contains(u"icon.example"_s));
    EXPECT_TRUE(library.snapshot().problems.isEmpty());
    EXPECT_TRUE(home.clock.sleeps().empty());
}

TEST_F(LibraryLoadTest, TheFirstSourcesIconOfASiteWins)
{
    addChromium();
    addSafari();
    setChromeIcon(u"Default"_s, u"https://shared.example/"_s, png(16, Qt::red));
    setChromeIcon(u"Profile 1"_s, u"https://shared.example/"_s, png(16, Qt::blue));
    Library library(home.platform());
    loadNow(library);
    EXPECT_TRUE(std::holds_alternative<FaviconFile>(library.snapshot().favicons.value(u"shared.example"_s)));
    EXPECT_EQ(library.snapshot().sourceFavicons.value(u"chrome/Profile 1"_s).value(u"shared.example"_s),
              Favicon(FaviconData{png(16, Qt::blue)}));
}

TEST_F(LibraryLoadTest, AnIconIsDecodedOnceForEachGenerationAlsoWhenItIsBroken)
{
    addChromium();
    setChromeIcon(u"Default"_s, u"https://icon.example/"_s, png(16, Qt::red));
    setChromeIcon(u"Profile 1"_s, u"https://broken.example/"_s, "no image at all");
    Library library(home.platform());
    loadNow(library);
    const std::optional<QImage> image = library.favicon(u"icon.example"_s);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixelColor(3, 3), QColor(Qt::red));
    EXPECT_EQ(library.favicon(u"icon.example"_s)->cacheKey(), image->cacheKey());
    EXPECT_EQ(library.favicon(u"broken.example"_s), std::nullopt);
    EXPECT_EQ(library.favicon(u"broken.example"_s), std::nullopt);
    EXPECT_EQ(library.favicon(u"unknown.example"_s), std::nullopt);

    loadNow(library);
    EXPECT_NE(library.favicon(u"icon.example"_s)->cacheKey(), image->cacheKey());
}

TEST_F(LibraryLoadTest, AnIconFileIsReadWhenItIsAskedForAndAMissingOneIsNothing)
{
    addSafari();
    Library library(home.platform());
    loadNow(library);
    ASSERT_TRUE(library.favicon(u"shared.example"_s));
    loadNow(library);
    QFile::remove(std::get<FaviconFile>(library.snapshot().favicons.value(u"shared.example"_s)).path);
    EXPECT_EQ(library.favicon(u"shared.example"_s), std::nullopt);
}

TEST_F(LibraryLoadTest, StartingSweepsLoadsAndWatches)
{
    addChromium();
    const QString leftover = home.temporary() % u"/Roamlet-leftover";
    ASSERT_TRUE(QDir().mkpath(leftover));
    Library library(home.platform());
    library.start();
    ASSERT_TRUE(waitUntil([&] { return !library.isLoading() && !QDir(leftover).exists(); }));
    EXPECT_EQ(library.generation(), 1);
    EXPECT_TRUE(home.fileEvents.watchedFolders.contains(chromeFile(u""_s).chopped(1)));
}

TEST_F(LibraryLoadTest, ALibraryThatGoesWhileItLoadsLeavesNothing)
{
    addChromium();
    addSafari();
    std::counting_semaphore<> copies(0);
    home.files.afterCopy = [&copies](const QString &) { copies.release(); };
    {
        Library library(home.platform());
        library.load({});
        copies.acquire();
    }
    EXPECT_TRUE(home.leftovers().isEmpty());
}

} // namespace
} // namespace roamlet::testing
