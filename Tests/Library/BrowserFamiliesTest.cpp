// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/LibraryReading.h"
#include "SampleHome/PlainFiles.h"
#include "Support/LibraryHome.h"

#include <QFile>

#include <algorithm>
#include <atomic>
#include <utility>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using sample::bookmarkNode;
using sample::folderNode;

/// What a load makes of browsers that keep their files in other ways than the first ones.
class BrowserFamiliesTest : public LibraryHome
{
protected:
    static QJsonObject rootsWith(const QString &title)
    {
        return {{u"bookmark_bar"_s,
                 folderNode(u"1"_s, u"Bar"_s, {bookmarkNode(u"2"_s, title, u"https://a.example/"_s, 0)})}};
    }
    void writeBookmarks(const QString &name, const QString &title)
    {
        change([&] { sample::writeBookmarks(chromeFile(u"Default/"_s % name), rootsWith(title)); });
    }
    void damage(const QString &name)
    {
        change([&] { sample::writeFile(chromeFile(u"Default/"_s % name), "{"); });
    }
    static QStringList bookmarksOf(const Library &library, const QString &id)
    {
        QStringList result;
        for (const Bookmark &bookmark : library.snapshot().bookmarks) {
            if (bookmark.source.id() == id)
                result.append(bookmark.title);
        }
        return result;
    }
    QString problemOf(const Library &library) const
    {
        return library.snapshot().problems.value(u"chrome/Default"_s);
    }
};

TEST_F(BrowserFamiliesTest, bookmarksOfTheAccountStandBesideTheLocalOnes)
{
    addChromium();
    writeBookmarks(u"Bookmarks"_s, u"local"_s);
    writeBookmarks(u"AccountBookmarks"_s, u"account"_s);
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(bookmarksOf(library, u"chrome/Default"_s), (QStringList{u"local"_s, u"account"_s}));
    EXPECT_EQ(library.snapshot().bookmarkTrees.value(u"chrome/Default"_s).value(1).title, u"Bar (Account)");
}

TEST_F(BrowserFamiliesTest, aDamagedFileTakesItsOwnBookmarksAwayAndNoOthers)
{
    addChromium();
    writeBookmarks(u"Bookmarks"_s, u"local"_s);
    writeBookmarks(u"AccountBookmarks"_s, u"account"_s);
    Library library(home.platform());
    loadNow(library);
    damage(u"AccountBookmarks"_s);
    loadNow(library);
    EXPECT_EQ(bookmarksOf(library, u"chrome/Default"_s), QStringList{u"local"_s});
    EXPECT_TRUE(problemOf(library).startsWith(
        QString(u"Couldn't read " % chromeFile(u"Default/AccountBookmarks"_s) % u": ")))
        << qPrintable(problemOf(library));
    EXPECT_FALSE(problemOf(library).contains(u'\n'));

    damage(u"Bookmarks"_s);
    loadNow(library);
    EXPECT_EQ(bookmarksOf(library, u"chrome/Default"_s), QStringList{u"local"_s})
        << "where nothing can be read, what was known stays";
    EXPECT_EQ(problemOf(library).count(u'\n'), 1) << qPrintable(problemOf(library));

    writeBookmarks(u"Bookmarks"_s, u"again"_s);
    writeBookmarks(u"AccountBookmarks"_s, u"account"_s);
    loadNow(library);
    EXPECT_EQ(bookmarksOf(library, u"chrome/Default"_s), (QStringList{u"again"_s, u"account"_s}));
    EXPECT_EQ(problemOf(library), QString());
}

TEST_F(BrowserFamiliesTest, aRefusedFileTakesItsOwnBookmarksAwayAndNoOthers)
{
    addChromium();
    writeBookmarks(u"Bookmarks"_s, u"local"_s);
    writeBookmarks(u"AccountBookmarks"_s, u"account"_s);
    Library library(home.platform());
    loadNow(library);
    for (const auto &[refused, left] :
         {std::pair(u"AccountBookmarks"_s, u"local"_s), std::pair(u"Bookmarks"_s, u"account"_s)}) {
        const QString file = chromeFile(u"Default/"_s % refused);
        fail(file, std::errc::permission_denied);
        loadNow(library);
        EXPECT_EQ(bookmarksOf(library, u"chrome/Default"_s), QStringList{left});
        EXPECT_EQ(problemOf(library), QString(u"macOS blocked access to " % file % u'.'));
        EXPECT_TRUE(home.clock.sleeps().empty()) << "nobody grants access in a moment";
        EXPECT_TRUE(titles(library.snapshot().history).contains(u"a1"_s));
        EXPECT_FALSE(library.snapshot().safariBlocked);
    }
    home.files.failure = {};
    loadNow(library);
    EXPECT_EQ(bookmarksOf(library, u"chrome/Default"_s), (QStringList{u"local"_s, u"account"_s}));
    EXPECT_EQ(problemOf(library), QString());
}

TEST_F(BrowserFamiliesTest, sourcesWithEncryptedBookmarksAreKnown)
{
    addChromium();
    change([this] {
        QFile::remove(chromeFile(u"Default/Bookmarks"_s));
        sample::writeEncryptedBookmarks(chromeFile(u"Default/EncryptedBookmarks2"_s));
    });
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(library.snapshot().encryptedBookmarks, QSet<QString>{u"chrome/Default"_s});
    EXPECT_EQ(problemOf(library), QString());
    loadNow(library, QSet<QString>{u"edge/Default"_s});
    EXPECT_EQ(library.snapshot().encryptedBookmarks, QSet<QString>{u"chrome/Default"_s})
        << "also where another source was read";
    writeBookmarks(u"Bookmarks"_s, u"clear"_s);
    loadNow(library);
    EXPECT_TRUE(library.snapshot().encryptedBookmarks.isEmpty());
}

TEST_F(BrowserFamiliesTest, aFirefoxIsReadWithOneCopyOfItsDatabase)
{
    addFirefox();
    std::atomic<int> copies = 0;
    home.files.afterCopy = [&copies](const QString &source) {
        if (source.endsWith(u"/places.sqlite"))
            ++copies;
    };
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(library.snapshot().sources.value(0).label(), u"Firefox - default");
    EXPECT_EQ(titles(library.snapshot().history), QStringList{u"Fox"_s});
    EXPECT_EQ(bookmarksOf(library, u"firefox/abc.default"_s), QStringList{u"Kept"_s});
    EXPECT_EQ(copies, 1);
    EXPECT_TRUE(library.snapshot().problems.isEmpty());
}

TEST_F(BrowserFamiliesTest, aFileOfTwoPartsHasOneProblem)
{
    addFirefox();
    Library library(home.platform());
    loadNow(library);
    const QString places = firefoxFile(u"abc.default/places.sqlite"_s);
    fail(places, std::errc::io_error);
    loadNow(library);
    EXPECT_EQ(library.snapshot().problems.value(u"firefox/abc.default"_s),
              QString(u"Couldn't read " % places % u": Input/output error"));
    EXPECT_EQ(titles(library.snapshot().history), QStringList{u"Fox"_s}) << "what was known stays";
    fail(places, std::errc::permission_denied);
    loadNow(library);
    EXPECT_EQ(library.snapshot().problems.value(u"firefox/abc.default"_s),
              QString(u"macOS blocked access to " % places % u'.'));
    EXPECT_TRUE(library.snapshot().history.isEmpty());
    EXPECT_FALSE(library.snapshot().safariBlocked);
}

TEST_F(BrowserFamiliesTest, browsersFollowEachOtherInTheirOrder)
{
    addFirefox();
    addChromium();
    addSafari();
    addChromeBeta();
    for (const QString &folder :
         {u".config/opera"_s, u".config/BraveSoftware/Brave-Browser"_s, u".config/chromium"_s}) {
        change([&] {
            sample::writeLocalState(home.path(folder % u"/Local State"),
                                    {{u"Default"_s, sample::profileInfo(u"Me"_s)}});
            sample::makeFolder(home.path(folder % u"/Default"));
        });
    }
    QStringList ids;
    for (const Source &source : LibraryReading::allProfiles({}, home.context()))
        ids.append(source.id());
    EXPECT_EQ(ids, (QStringList{u"safari"_s, u"chrome/Default"_s, u"chrome/Profile 1"_s,
                                u"chrome@beta/Default"_s, u"edge/Default"_s, u"chromium/Default"_s,
                                u"brave/Default"_s, u"opera/Default"_s, u"firefox/abc.default"_s}));
}

TEST_F(BrowserFamiliesTest, rowsGetANewLabelWhenAnotherInstallationComes)
{
    addFirefox(flatpakFirefox);
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(library.snapshot().history.value(0).source.label(), u"Firefox - default");
    addFirefox();
    loadNow(library, QSet<QString>{u"firefox/abc.default"_s});
    for (const HistoryResults &rows : {HistoryResults{.items = library.snapshot().history},
                                       library.queryHistory(HistoryQuery::recent(), {}).run({}).results}) {
        const auto row = std::ranges::find_if(rows.items, [](const HistoryItem &item) {
            return item.source.id() == u"firefox@flatpak/abc.default";
        });
        ASSERT_NE(row, rows.items.end());
        EXPECT_EQ(row->source.label(), u"Firefox (Flatpak) - default");
    }
}

} // namespace
} // namespace roamlet::testing
