// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Firefox/FirefoxBookmarks.h"

#include "Readers/Firefox/FirefoxReader.h"
#include "Readers/ReaderTest.h"
#include "SampleHome/AwkwardFirefox.h"
#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/PlainFiles.h"

#include <limits>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using sample::firefoxBookmark;
using sample::FirefoxBookmarkRow;
using sample::FirefoxBookmarks;
using sample::firefoxFolder;
using sample::Journal;
using sample::Text;

namespace folder = sample::firefox_folder;

namespace
{

constexpr qint64 addedTime = 1'700'000'000'000'000;
constexpr qint64 first = folder::firstFree;

class FirefoxBookmarksTest : public ReaderTest
{
protected:
    void write(const sample::Rows<FirefoxBookmarkRow> &rows, Journal journal = Journal::Clean)
    {
        change([&] { sample::writeFirefoxPlaces(firefoxFile(u"places.sqlite"_s), {}, rows, journal); });
    }

    void write(const FirefoxBookmarks &bookmarks) { write(sample::firefoxBookmarkRows(bookmarks)); }

    /// Puts these rows behind those of the roots into tables without any rules.
    void writeRows(const QByteArray &values)
    {
        change([&] {
            const QString file = firefoxFile(u"places.sqlite"_s);
            QFile::remove(file);
            sample::makeFolderOf(file);
            const QByteArray sql =
                "CREATE TABLE moz_places(id, url); INSERT INTO moz_places VALUES(1, 'https://a.example/');"
                "CREATE TABLE moz_bookmarks(id, type, fk, parent, position, title, dateAdded, guid);"
                "INSERT INTO moz_bookmarks VALUES(1, 2, NULL, 0, 0, '', 0, 'root________'), " +
                values;
            sample::Database(file).execute(sql.constData());
        });
    }

    QList<BookmarkNode> read(const Source &source = firefox())
    {
        const auto trees = FirefoxReader::bookmarks(source, context());
        if (!trees) {
            ADD_FAILURE() << trees.error().first();
            return {};
        }
        EXPECT_TRUE(trees->problems.isEmpty());
        EXPECT_FALSE(trees->areEncrypted);
        return trees->roots;
    }

    QStringList outline() { return outlineOf(read()); }

    /// What stands in the first root.
    QList<BookmarkNode> bar() { return read().value(0).children.value_or(QList<BookmarkNode>()); }

    static FirefoxBookmarkRow leaf(const QString &title, qint64 parent = folder::toolbar)
    {
        return {.parent = parent, .title = title, .url = u"https://%1.example/"_s.arg(title), .guid = title};
    }
};

} // namespace

TEST_F(FirefoxBookmarksTest, aMissingFileMeansNone)
{
    EXPECT_TRUE(read().isEmpty());
}

TEST_F(FirefoxBookmarksTest, nodesAreRead)
{
    write({{.title = u"A page"_s,
            .url = u"https://a.example/"_s,
            .dateAdded = addedTime,
            .guid = u"aaaaaaaaaaaa"_s},
           {.id = 20,
            .type = FirefoxBookmarkRow::folder,
            .position = 1,
            .title = u"Inner"_s,
            .dateAdded = addedTime,
            .guid = u"bbbbbbbbbbbb"_s},
           {.parent = 20, .title = u"B"_s, .url = u"https://b.example/"_s, .guid = u"cccccccccccc"_s},
           {.type = FirefoxBookmarkRow::folder, .position = 2, .title = u""_s, .guid = u"dddddddddddd"_s}});
    EXPECT_EQ(
        outline(),
        (QStringList{u"firefox/abcd.default/toolbar_____ | Bookmarks Toolbar / *"_s,
                     u"  firefox/abcd.default/aaaaaaaaaaaa | A page | https://a.example/ | 1700000000.000"_s,
                     u"  firefox/abcd.default/bbbbbbbbbbbb | Inner /"_s,
                     u"    firefox/abcd.default/cccccccccccc | B | https://b.example/"_s,
                     u"  firefox/abcd.default/dddddddddddd |  /"_s}));
    EXPECT_EQ(read().value(0).source, firefox());
    EXPECT_EQ(bar().value(1).children.value_or(QList<BookmarkNode>()).value(0).source, firefox());
}

TEST_F(FirefoxBookmarksTest, theRootsComeInTheirOrderUnderTheirOwnTitles)
{
    const auto one = [](const QString &title) {
        return QList{firefoxBookmark(title, u"https://%1.example/"_s.arg(title), addedTime)};
    };
    write({.toolbar = one(u"a"_s), .menu = one(u"b"_s), .unfiled = one(u"c"_s), .mobile = one(u"d"_s)});
    const QList<BookmarkNode> roots = read();
    EXPECT_EQ(titlesOf(roots), (QStringList{u"Bookmarks Toolbar"_s, u"Bookmarks Menu"_s, u"Other Bookmarks"_s,
                                            u"Mobile Bookmarks"_s}));
    QStringList titles;
    for (const BookmarkNode &root : roots) {
        titles += titlesOf(root.children.value_or(QList<BookmarkNode>()));
        EXPECT_EQ(root.isBar, root.id.endsWith(u"toolbar_____"));
    }
    EXPECT_EQ(titles, (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
}

TEST_F(FirefoxBookmarksTest, rootsWithoutBookmarksAreLeftOut)
{
    write(FirefoxBookmarks());
    EXPECT_TRUE(read().isEmpty());
    write({.toolbar = {firefoxFolder(u"Empty"_s, {firefoxFolder(u"Empty, too"_s, {})})},
           .menu = {sample::firefoxSeparator()},
           .mobile = {firefoxBookmark(u"x"_s, u"https://x.example/"_s, addedTime)}});
    EXPECT_EQ(titlesOf(read()), QStringList{u"Mobile Bookmarks"_s});
    EXPECT_FALSE(read().value(0).isBar);
}

TEST_F(FirefoxBookmarksTest, rootsAreKnownByTheirGuidAlone)
{
    writeRows("(50, 2, NULL, 77, 3, 'anything', 0, 'menu________'), (51, 2, NULL, NULL, 0, NULL, 0, "
              "'toolbar_____'), (2, 2, NULL, 1, 0, 'menu', 0, 'unknown_____'),"
              "(60, 1, 1, 50, 0, 'in the menu', 0, 'a'), (61, 1, 1, 51, 0, 'in the bar', 0, 'b'),"
              "(62, 1, 1, 2, 0, 'nowhere', 0, 'c')");
    const QList<BookmarkNode> roots = read();
    EXPECT_EQ(titlesOf(roots), (QStringList{u"Bookmarks Toolbar"_s, u"Bookmarks Menu"_s}));
    EXPECT_EQ(titlesOf(bar()), QStringList{u"in the bar"_s});
    // A bookmark is no folder, whatever it is called.
    writeRows("(3, 1, 1, 1, 0, 'no bar', 0, 'toolbar_____'), (61, 1, 1, 3, 0, 'in it', 0, 'b')");
    EXPECT_TRUE(read().isEmpty());
}

TEST_F(FirefoxBookmarksTest, childrenComeByPositionThenByNumber)
{
    write({{.id = 20, .position = 2, .title = u"e"_s, .url = u"https://e.example/"_s},
           {.id = 21, .position = 1, .title = u"d"_s, .url = u"https://d.example/"_s},
           {.id = 19, .position = 1, .title = u"c"_s, .url = u"https://c.example/"_s},
           {.id = 22, .position = {}, .title = u"a"_s, .url = u"https://a.example/"_s},
           {.id = 23, .position = -5, .title = u"b"_s, .url = u"https://b.example/"_s}});
    EXPECT_EQ(titlesOf(bar()), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s}));
}

TEST_F(FirefoxBookmarksTest, onlyBookmarksOfPagesAndFoldersAreRead)
{
    write({leaf(u"good"_s),
           {.title = u"search"_s, .url = u"place:type=6&sort=14&maxResults=10"_s},
           {.title = u"SEARCH"_s, .url = u"PLACE:parent=toolbar_____"_s},
           {.title = u"missing page"_s, .page = 1'000'000},
           {.title = u"no page"_s},
           {.type = FirefoxBookmarkRow::separator, .title = u"separator"_s, .url = u"https://s.example/"_s},
           {.type = 0, .title = u"type 0"_s, .url = u"https://t.example/"_s},
           {.type = 4, .title = u"type 4"_s, .url = u"https://t.example/"_s},
           {.type = -1, .title = u"type -1"_s, .url = u"https://t.example/"_s},
           {.type = FirefoxBookmarkRow::folder,
            .position = 1,
            .title = u"folder with a page"_s,
            .url = u"https://f.example/"_s}});
    EXPECT_EQ(titlesOf(bar()), (QStringList{u"good"_s, u"folder with a page"_s}));
    EXPECT_TRUE(bar().value(1).isFolder());
    EXPECT_EQ(bar().value(1).url, std::nullopt);
    writeRows("(3, 2, NULL, 1, 0, '', 0, 'toolbar_____'), (4, 1, 2, 3, 0, 'NULL as address', 0, 'a'), (5, 1, "
              "1, 3, 1, 'x', "
              "0, 'b'); INSERT INTO moz_places VALUES(2, NULL)");
    EXPECT_EQ(titlesOf(bar()), QStringList{u"x"_s});
}

TEST_F(FirefoxBookmarksTest, tagsAreNoBookmarks)
{
    write({.toolbar = {firefoxBookmark(u"a"_s, u"https://a.example/"_s, addedTime, {u"tag"_s, u"other"_s})}});
    EXPECT_EQ(titlesOf(read()), QStringList{u"Bookmarks Toolbar"_s});
    EXPECT_EQ(titlesOf(bar()), QStringList{u"a"_s});
    // Nor are they where the folder of the tags is drawn into another.
    writeRows("(3, 2, NULL, 1, 0, '', 0, 'toolbar_____'), (4, 2, NULL, 3, 0, 'tags', 0, 'tags________'),"
              "(5, 2, NULL, 4, 0, 'tag', 0, 'a'), (6, 1, 1, 5, 0, 'tagged', 0, 'b'),"
              "(7, 1, 1, 3, 1, 'x', 0, 'c')");
    EXPECT_EQ(titlesOf(bar()), QStringList{u"x"_s});
    EXPECT_EQ(read().value(0).bookmarkCount(), 1);
}

TEST_F(FirefoxBookmarksTest, aBookmarkWithoutATitleShowsItsAddress)
{
    write({{.title = u""_s, .url = u"https://a.example/"_s},
           {.position = 1, .url = u"https://b.example/"_s},
           {.type = FirefoxBookmarkRow::folder, .position = 2}});
    EXPECT_EQ(titlesOf(bar()), (QStringList{u"https://a.example/"_s, u"https://b.example/"_s, u""_s}));
}

TEST_F(FirefoxBookmarksTest, aDateBelowOneIsNone)
{
    constexpr qint64 lowest = std::numeric_limits<qint64>::min();
    QList<FirefoxBookmarkRow> rows;
    for (const std::optional<qint64> date :
         {std::optional<qint64>(), std::optional<qint64>(0), std::optional<qint64>(-1),
          std::optional<qint64>(lowest), std::optional<qint64>(1), std::optional<qint64>(addedTime + 1)})
        rows.append(
            {.position = rows.size(), .title = u"x"_s, .url = u"https://a.example/"_s, .dateAdded = date});
    write(rows);
    const QList<BookmarkNode> nodes = bar();
    ASSERT_EQ(nodes.size(), 6);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(nodes[i].dateAdded, std::nullopt) << i;
    EXPECT_EQ(nodes[4].dateAdded, pointInTime(0.000001));
    EXPECT_EQ(nodes[5].dateAdded, pointInTime(1'700'000'000.000001));
}

TEST_F(FirefoxBookmarksTest, aRowWithoutAGuidIsKnownByItsNumber)
{
    write({{.id = 20, .title = u"a"_s, .url = u"https://a.example/"_s, .guid = Text()},
           {.id = 21, .position = 1, .title = u"b"_s, .url = u"https://b.example/"_s, .guid = u""_s}});
    EXPECT_EQ(bar().value(0).id, u"firefox/abcd.default/20"_s);
    EXPECT_EQ(bar().value(1).id, u"firefox/abcd.default/21"_s);
}

TEST_F(FirefoxBookmarksTest, whatLiesInNoFolderIsLeftOut)
{
    write(QList{leaf(u"good"_s)} + sample::orphanedFirefoxBookmarks(100) +
          sample::circlingFirefoxFolders(200) +
          QList<FirefoxBookmarkRow>{leaf(u"in the root"_s, folder::root)});
    // One of the orphans' parents is a bookmark of the bar.
    EXPECT_EQ(titlesOf(bar()), (QStringList{u"good"_s, u"Parent that is a bookmark"_s}));
    EXPECT_EQ(read().size(), 1);
}

TEST_F(FirefoxBookmarksTest, aRootBelowItselfHoldsEachRowOnce)
{
    write(sample::firefoxRootBelowItself(folder::toolbar, u"toolbar_____"_s, first));
    EXPECT_EQ(titlesOf(bar()), QStringList{u"Beside its root"_s});
    // The bar in a folder of the bar, and another root in it, too.
    writeRows("(3, 2, NULL, 9, 0, '', 0, 'toolbar_____'), (9, 2, NULL, 3, 0, 'inner', 0, 'a'),"
              "(4, 2, NULL, 9, 1, '', 0, 'menu________'), (5, 1, 1, 9, 2, 'x', 0, 'b'),"
              "(6, 1, 1, 4, 2, 'in the menu', 0, 'c')");
    EXPECT_EQ(outline(), (QStringList{u"firefox/abcd.default/toolbar_____ | Bookmarks Toolbar / *"_s,
                                      u"  firefox/abcd.default/a | inner /"_s,
                                      u"    firefox/abcd.default/b | x | https://a.example/"_s,
                                      u"firefox/abcd.default/menu________ | Bookmarks Menu /"_s,
                                      u"  firefox/abcd.default/c | in the menu | https://a.example/"_s}));
}

TEST_F(FirefoxBookmarksTest, foldersThatShareANumberDoNotUnfold)
{
    QByteArray rows = "(3, 2, NULL, 1, 0, '', 0, 'toolbar_____')";
    // Each level is there twice: 2^60 folders, if each had the next level.
    for (int level = 100; level < 160; ++level) {
        const QByteArray parent = level == 100 ? "3" : QByteArray::number(level - 1);
        for (const char *guid : {"a", "b"})
            rows +=
                ",(" + QByteArray::number(level) + ", 2, NULL, " + parent + ", 0, 'f', 0, '" + guid + "')";
    }
    writeRows(rows + ",(200, 1, 1, 159, 0, 'bottom', 0, 'x')");
    const QList<BookmarkNode> roots = read();
    ASSERT_EQ(roots.size(), 1);
    EXPECT_EQ(roots[0].bookmarkCount(), 1);
    EXPECT_EQ(roots[0].folderCount(), 121);
}

TEST_F(FirefoxBookmarksTest, foldersMayBeNestedAsDeepAsTheyLike)
{
    for (const qsizetype depth : {qsizetype(5'000), qsizetype(200'000)}) {
        write(sample::deepFirefoxFolders(first, depth));
        onAnotherThread([&] {
            const QList<BookmarkNode> roots = read();
            ASSERT_EQ(roots.size(), 1);
            EXPECT_EQ(roots[0].folderCount(), depth + 1);
            EXPECT_EQ(roots[0].bookmarkCount(), 1);
        });
    }
}

TEST_F(FirefoxBookmarksTest, twoHundredThousandBookmarksAreRead)
{
    constexpr qsizetype folders = 1000;
    constexpr qsizetype count = 200'000;
    write(sample::Rows<FirefoxBookmarkRow>::generated(folders + count, [](qsizetype i) {
        if (i < folders)
            return FirefoxBookmarkRow{
                .id = first + i, .type = FirefoxBookmarkRow::folder, .position = i, .title = u"f"_s};
        return FirefoxBookmarkRow{
            .parent = first + i % folders, .position = i, .title = u"b"_s, .url = u"https://a.example/"_s};
    }));
    const QList<BookmarkNode> roots = read();
    ASSERT_EQ(roots.size(), 1);
    EXPECT_EQ(roots[0].bookmarkCount(), count);
    EXPECT_EQ(roots[0].folderCount(), folders + 1);
}

TEST_F(FirefoxBookmarksTest, awkwardRowsAreReadAsFarAsTheyGo)
{
    write(sample::awkwardFirefoxBookmarks(first));
    const QList<BookmarkNode> roots = read();
    EXPECT_EQ(titlesOf(roots), QStringList{u"Bookmarks Menu"_s});
    const QStringList titles = titlesOf(bar().value(0).children.value_or(QList<BookmarkNode>()));
    EXPECT_EQ(titles.first(5),
              (QStringList{u"Without a place"_s, u"The lowest place"_s, u"Second by its place"_s,
                           u"In the same place"_s, u"Third by its place"_s}));
    for (const QString &title :
         {u"Page without an address"_s, u"Missing page"_s, u"No page at all"_s, u"Recent tags"_s,
          u"Capital place"_s, u"A separator with a title"_s, u"Unknown type"_s})
        EXPECT_FALSE(titles.contains(title)) << title.toStdString();
}

TEST_F(FirefoxBookmarksTest, rowsThatAreNotMergedYetCount)
{
    const QList<FirefoxBookmarkRow> rows = sample::firefoxBookmarkRows(
        {.toolbar = {firefoxBookmark(u"a"_s, u"https://a.example/"_s, addedTime)}});
    for (const Journal journal : {Journal::UnmergedWal, Journal::WalAlone}) {
        write(rows, journal);
        EXPECT_EQ(titlesOf(bar()), QStringList{u"a"_s});
    }
}

TEST_F(FirefoxBookmarksTest, eachSourceHasItsOwnFileAndIds)
{
    change([&] {
        sample::writeFirefoxPlaces(firefoxFile(u"places.sqlite"_s, u"efgh.work"_s), {}, QList{leaf(u"a"_s)});
    });
    EXPECT_TRUE(read().isEmpty());
    EXPECT_EQ(read(firefox(u"efgh.work"_s)).value(0).id, u"firefox/efgh.work/toolbar_____"_s);
    EXPECT_EQ(read(firefox(u"efgh.work"_s)).value(0).source, firefox(u"efgh.work"_s));
}

} // namespace roamlet::testing
