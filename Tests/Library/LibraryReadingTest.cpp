// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/PlainFiles.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <atomic>
#include <new>
#include <string>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using LibraryReadingTest = LibraryHome;

TEST_F(LibraryReadingTest, whatCannotBeReadIsTriedOnceMoreAfterASecondAndKeepsWhatWasKnown)
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

TEST_F(LibraryReadingTest, whatThereIsNoMemoryForIsAProblemOfEachSourceAndKeepsWhatWasKnown)
{
    addChromium();
    const auto lackMemory = [] { throw std::bad_alloc(); };
    Library library(home.platform());
    home.files.beforeStamp = lackMemory;
    loadNow(library);
    EXPECT_EQ(library.snapshot().sources.size(), 3);
    EXPECT_EQ(library.snapshot().problems.size(), 3);
    EXPECT_TRUE(library.snapshot().history.isEmpty());

    home.files.beforeStamp = {};
    loadNow(library);
    EXPECT_TRUE(library.snapshot().problems.isEmpty());
    home.files.beforeStamp = lackMemory;
    loadNow(library);
    EXPECT_EQ(library.snapshot().problems.value(u"chrome/Default"_s),
              QString(u"Couldn't read " % chromeFile(u"Default/History"_s) % u": Cannot allocate memory"));
    EXPECT_EQ(titles(library.snapshot().history), (QStringList{u"a1"_s, u"a2"_s, u"b1"_s, u"e1"_s}));
    EXPECT_TRUE(library.snapshot().historyStates.isEmpty()) << "nobody knows what the files hold now";

    // What the user has just switched off must not stay.
    library.setEnabled(false, *library.source(u"chrome/Default"_s));
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_TRUE(library.snapshot().history.isEmpty());
    EXPECT_EQ(library.snapshot().problems.size(), 2);
    home.files.beforeStamp = {};
}

TEST_F(LibraryReadingTest, aListOfProfilesThatCannotBeReadIsToldOnce)
{
    addChromium();
    const QString list = home.path(u".mozilla/firefox/profiles.ini"_s);
    const QString folder = home.path(u".mozilla/firefox/a"_s);
    change([&] {
        sample::writeFile(folder % u"/places.sqlite", "no database");
        sample::writeFile(list, "[Profile0]\nName=A\nIsRelative=1\nPath=a\n");
    });
    Library library(home.platform());
    loadNow(library);
    ASSERT_EQ(library.snapshot().sources.size(), 4);
    fail(list, std::errc::io_error);
    ::testing::internal::CaptureStderr();
    loadNow(library);
    loadNow(library);
    const std::string told = ::testing::internal::GetCapturedStderr();
    EXPECT_EQ(told, "roamlet: Couldn't read " + list.toStdString() + ": Input/output error\n");
    EXPECT_EQ(library.snapshot().sources.size(), 4) << "what was known stays";
}

TEST_F(LibraryReadingTest, whatCouldNeverBeReadIsEmpty)
{
    addChromium();
    fail(chromeFile(u"Default/History"_s), std::errc::io_error);
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(titles(library.snapshot().history), (QStringList{u"b1"_s, u"e1"_s}));
    EXPECT_EQ(library.snapshot().bookmarks.size(), 1) << "the other parts are read";
    EXPECT_EQ(library.snapshot().sources.size(), 3) << "a source with a problem is a source";
}

TEST_F(LibraryReadingTest, bookmarksThatCannotBeReadStayAsTheyWere)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    const Library::Snapshot before = library.snapshot();
    change([this] { sample::writeFile(chromeFile(u"Default/Bookmarks"_s), "{"); });
    loadNow(library);
    EXPECT_EQ(library.snapshot().bookmarkTrees, before.bookmarkTrees);
    EXPECT_EQ(library.snapshot().bookmarks, before.bookmarks);
    EXPECT_EQ(library.snapshot().problems.keys(), QStringList{u"chrome/Default"_s});
    change([this] { sample::writeBookmarks(chromeFile(u"Default/Bookmarks"_s), {}); });
    loadNow(library);
    EXPECT_TRUE(library.snapshot().bookmarks.isEmpty()) << "what can be read replaces what was known";
}

TEST_F(LibraryReadingTest, aRetryThatSucceedsLeavesNoProblem)
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

TEST_F(LibraryReadingTest, theSecondAttemptStandsWhateverItBrings)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    change([this] { sample::writeBookmarks(chromeFile(u"Default/Bookmarks"_s), {}); });
    setChromeHistory(u"Default"_s, {u"changed"_s});
    // The first attempt reads the bookmarks alone, the second one the history alone.
    std::atomic<int> attempts = 0;
    home.files.failure = [&](const QString &path) {
        const bool fails = path == chromeFile(u"Default/Bookmarks"_s)
                               ? attempts.fetch_add(1) == 1
                               : path == chromeFile(u"Default/History"_s) && attempts == 1;
        return fails ? std::make_error_code(std::errc::io_error) : std::error_code{};
    };
    loadNow(library);
    EXPECT_EQ(attempts, 2);
    EXPECT_EQ(library.snapshot().problems.value(u"chrome/Default"_s),
              QString(u"Couldn't read " % chromeFile(u"Default/Bookmarks"_s) % u": Input/output error"));
    EXPECT_EQ(titles(library.snapshot().history), (QStringList{u"changed"_s, u"b1"_s, u"e1"_s}));
    EXPECT_EQ(library.snapshot().bookmarks.size(), 1)
        << "as in the last snapshot, not as in the first attempt";
    EXPECT_EQ(home.clock.sleeps().size(), 1U);
}

TEST_F(LibraryReadingTest, aSecondAttemptThatIsRefusedEmptiesThePart)
{
    addSafari();
    Library library(home.platform());
    loadNow(library);
    std::atomic<int> attempts = 0;
    home.files.failure = [&](const QString &path) {
        if (path != safariFile(u"History.db"_s))
            return std::error_code{};
        return std::make_error_code(attempts.fetch_add(1) == 0 ? std::errc::io_error
                                                               : std::errc::permission_denied);
    };
    loadNow(library);
    EXPECT_EQ(attempts, 2);
    EXPECT_TRUE(library.snapshot().history.isEmpty());
    EXPECT_TRUE(library.snapshot().safariBlocked);
}

TEST_F(LibraryReadingTest, eachSourceWithAFailureWaitsForItselfOnce)
{
    addChromium();
    home.files.failure = [](const QString &path) {
        return path.endsWith(u"/Default/History"_s) ? std::make_error_code(std::errc::io_error)
                                                    : std::error_code{};
    };
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(home.clock.sleeps(), (std::vector<Clock::Duration>{1000ms, 1000ms}));
    EXPECT_EQ(library.snapshot().problems.size(), 2);
}

TEST_F(LibraryReadingTest, severalProblemsOfASourceAreOneLineEach)
{
    addChromium();
    const QString bookmarks = chromeFile(u"Default/Bookmarks"_s);
    change([&] {
        sample::writeFile(chromeFile(u"Default/History"_s), "not a database, by no means, none at all");
        sample::writeFile(bookmarks, "{");
    });
    Library library(home.platform());
    loadNow(library);
    const QStringList lines = library.snapshot().problems.value(u"chrome/Default"_s).split(u'\n');
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].startsWith(u"Couldn't read " % bookmarks % u": not valid JSON"_s));
    EXPECT_EQ(lines[1], u"Couldn't read query: file is not a database"_s);
}

TEST_F(LibraryReadingTest, ofSafariTheHistoryIsReadFirst)
{
    addSafari();
    home.files.failure = [this](const QString &path) {
        return path == safariFile(u"History.db"_s) || path == safariFile(u"Bookmarks.plist"_s)
                   ? std::make_error_code(std::errc::io_error)
                   : std::error_code{};
    };
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(library.snapshot().problems.value(u"safari"_s),
              QString(u"Couldn't read " % safariFile(u"History.db"_s) %
                      u": Input/output error\nCouldn't read " % safariFile(u"Bookmarks.plist"_s) %
                      u": Input/output error"));
    EXPECT_FALSE(library.snapshot().safariBlocked) << "nothing was refused";
}

TEST_F(LibraryReadingTest, aRefusalEmptiesThePartAndIsNotTriedAgain)
{
    addSafari();
    Library library(home.platform());
    loadNow(library);
    ASSERT_EQ(titles(library.snapshot().history), QStringList{u"s1"_s});
    fail(safariFile(u"History.db"_s), std::errc::permission_denied);
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

TEST_F(LibraryReadingTest, aTemporaryFolderThatRefusesBlocksNobodyAndLeavesWhatIsKnown)
{
    addChromium();
    addSafari();
    addSafariProfile();
    Library library(home.platform());
    loadNow(library);
    const Library::Snapshot before = library.snapshot();
    ASSERT_EQ(titles(before.history).size(), 6);
    home.files.privateFolderFailure = std::make_error_code(std::errc::permission_denied);
    loadNow(library, QSet<QString>{u"safari"_s, u"chrome/Default"_s});
    EXPECT_FALSE(library.snapshot().safariBlocked);
    EXPECT_EQ(library.snapshot().history, before.history);
    EXPECT_EQ(library.snapshot().sourceFavicons, before.sourceFavicons);
    EXPECT_EQ(library.snapshot().problems.value(u"safari"_s),
              QString(u"Couldn't read " % safariFile(u"History.db"_s) % u": cannot make a copy in " %
                      home.temporary() % u": Permission denied"));
    EXPECT_FALSE(home.clock.sleeps().empty()) << "it may pass: it is tried again";
}

TEST_F(LibraryReadingTest, besideARefusalAnotherFailureIsNotTriedAgainEither)
{
    addSafari();
    Library library(home.platform());
    loadNow(library);
    home.files.failure = [this](const QString &path) {
        if (path == safariFile(u"History.db"_s))
            return std::make_error_code(std::errc::io_error);
        return path == safariFile(u"Bookmarks.plist"_s)
                   ? std::make_error_code(std::errc::operation_not_permitted)
                   : std::error_code{};
    };
    loadNow(library);
    EXPECT_TRUE(home.clock.sleeps().empty());
    EXPECT_EQ(titles(library.snapshot().history), QStringList{u"s1"_s}) << "kept: it could not be read";
    EXPECT_TRUE(library.snapshot().bookmarks.isEmpty()) << "empty: it was refused";
    EXPECT_TRUE(library.snapshot().safariBlocked);
    EXPECT_EQ(library.snapshot().problems.value(u"safari"_s).split(u'\n').size(), 2);
}

TEST_F(LibraryReadingTest, aRefusalByAnotherBrowserDoesNotBlockSafari)
{
    addChromium();
    addSafari();
    fail(chromeFile(u"Default/History"_s), std::errc::permission_denied);
    Library library(home.platform());
    loadNow(library);
    EXPECT_FALSE(library.snapshot().safariBlocked);
    EXPECT_EQ(library.snapshot().problems.keys(), QStringList{u"chrome/Default"_s});
    EXPECT_EQ(titles(library.snapshot().history), (QStringList{u"s1"_s, u"b1"_s, u"e1"_s}));
}

TEST_F(LibraryReadingTest, aRefusalOfOneSafariProfileLeavesTheOthersAlone)
{
    addSafari();
    addSafariProfile();
    fail(safariContainerFile(u"Profiles/T/History.db"_s), std::errc::permission_denied);
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(titles(library.snapshot().history), QStringList{u"s1"_s});
    EXPECT_EQ(library.snapshot().problems.keys(), QStringList{u"safari/T"_s});
    EXPECT_TRUE(library.snapshot().safariBlocked);
}

TEST_F(LibraryReadingTest, sourcesThatAPartialLoadLeavesOutKeepTheirProblems)
{
    addChromium();
    addSafari();
    home.files.failure = [this](const QString &path) {
        if (path == safariFile(u"History.db"_s))
            return std::make_error_code(std::errc::permission_denied);
        return path == chromeFile(u"Profile 1/History"_s) ? std::make_error_code(std::errc::io_error)
                                                          : std::error_code{};
    };
    Library library(home.platform());
    loadNow(library);
    const Library::Snapshot before = library.snapshot();
    ASSERT_EQ(before.problems.size(), 2);
    home.files.failure = {};
    loadNow(library, QSet<QString>{u"chrome/Default"_s});
    EXPECT_EQ(library.snapshot().problems, before.problems);
    EXPECT_TRUE(library.snapshot().safariBlocked);
    loadNow(library, QSet<QString>{u"safari"_s});
    EXPECT_FALSE(library.snapshot().safariBlocked);
    EXPECT_EQ(library.snapshot().problems.keys(), QStringList{u"chrome/Profile 1"_s});
}

TEST_F(LibraryReadingTest, aProfileThatWasOffHasNothingToKeep)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    const Source source = *library.source(u"chrome/Default"_s);
    library.setEnabled(false, source);
    loadNow(library);
    const Library::Snapshot &snapshot = library.snapshot();
    EXPECT_FALSE(snapshot.bookmarkTrees.contains(u"chrome/Default"_s));
    EXPECT_FALSE(snapshot.sourceFavicons.contains(u"chrome/Default"_s));
    EXPECT_TRUE(snapshot.bookmarks.isEmpty());
    fail(chromeFile(u"Default/History"_s), std::errc::io_error);
    library.setEnabled(true, source);
    loadNow(library);
    EXPECT_EQ(titles(snapshot.history), (QStringList{u"b1"_s, u"e1"_s}));
    EXPECT_EQ(snapshot.bookmarks.size(), 1);
}

TEST_F(LibraryReadingTest, ofEachSourceTheLatestThousandRowsAreKept)
{
    addChromium();
    const auto rows = sample::Rows<sample::HistoryRow>::generated(1001, [](qsizetype i) {
        return sample::HistoryRow{.url = u"https://many.example/%1"_s.arg(i),
                                  .title = QString::number(i),
                                  .lastVisitTime = sample::chromiumTime(newest + i)};
    });
    change([&] {
        sample::writeHistory(chromeFile(u"Default/History"_s), rows);
        sample::writeHistory(edgeFile(u"Default/History"_s), rows);
    });
    Library library(home.platform());
    loadNow(library);
    const QList<HistoryItem> &history = library.snapshot().history;
    ASSERT_EQ(history.size(), 1000 + 1 + 1000);
    EXPECT_EQ(history[0].title, u"1000"_s);
    EXPECT_EQ(history[999].title, u"1"_s);
    EXPECT_EQ(history[1000].title, u"b1"_s);
    EXPECT_EQ(history[1001].source.id(), u"edge/Default"_s);
}

} // namespace
} // namespace roamlet::testing
