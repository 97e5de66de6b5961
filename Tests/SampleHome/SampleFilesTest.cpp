// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/AwkwardFirefox.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/SafariFiles.h"
#include "SampleHome/SqliteFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <functional>
#include <vector>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

/// What the first column of this statement holds, row by row; a failure is a row of its own.
QStringList query(const QString &path, const char *sql)
{
    sqlite3 *database = nullptr;
    sqlite3_open_v2(path.toUtf8().constData(), &database, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
    QStringList rows;
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement)) == SQLITE_ROW) {
        const auto *bytes = static_cast<const char *>(sqlite3_column_blob(statement, 0));
        rows.append(QString::fromUtf8(bytes, sqlite3_column_bytes(statement, 0)));
    }
    sqlite3_finalize(statement);
    if (result != SQLITE_DONE)
        rows.append(u"failed: " % QString::fromUtf8(sqlite3_errmsg(database)));
    sqlite3_close(database);
    return rows;
}

/// The same from a copy of the main file alone, or with the files beside it.
QStringList queryCopy(const QString &path, const char *sql, const QStringList &suffixes)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(u"copy"_s);
    for (const QString &suffix : QStringList(u""_s) + suffixes)
        QFile::copy(path % suffix, copy % suffix);
    return query(copy, sql);
}

QStringList queryMainFile(const QString &path, const char *sql)
{
    return queryCopy(path, sql, {});
}

QStringList queryWithSidecars(const QString &path, const char *sql)
{
    return queryCopy(path, sql, {u"-wal"_s, u"-shm"_s, u"-journal"_s});
}

Rows<HistoryRow> pages(qsizetype count)
{
    return Rows<HistoryRow>::generated(count, [](qsizetype index) {
        return HistoryRow{.url = u"https://www.example.org/page/%1"_s.arg(index),
                          .title = u"Page %1"_s.arg(index),
                          .lastVisitTime = chromiumTime(1'700'000'000 + index)};
    });
}

constexpr auto visiblePages = "SELECT title FROM urls WHERE hidden = 0 ORDER BY id";

/// "Page 0" up to, but not including, this number.
QStringList titles(qsizetype count)
{
    QStringList titles;
    for (qsizetype index = 0; index < count; ++index)
        titles.append(u"Page %1"_s.arg(index));
    return titles;
}

} // namespace

class SampleFiles : public testing::Test
{
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

TEST_F(SampleFiles, aCleanDatabaseIsOneFile)
{
    const QString file = path(u"History"_s);
    writeHistory(file, pages(5));
    EXPECT_EQ(queryMainFile(file, visiblePages), titles(5));
    for (const QString &suffix : {u"-wal"_s, u"-shm"_s, u"-journal"_s})
        EXPECT_FALSE(QFile::exists(file % suffix)) << qPrintable(suffix);
    writeSafariHistory(path(u"History.db"_s), {}, {});
    EXPECT_FALSE(QFile::exists(path(u"History.db-wal"_s)));
    EXPECT_EQ(queryMainFile(path(u"History.db"_s), "PRAGMA journal_mode"), QStringList{u"wal"_s});
}

TEST_F(SampleFiles, theLaterHalfIsOnlyInAnUnmergedLog)
{
    for (const qsizetype count : {1, 10, 10'000}) {
        const QString file = path(u"History"_s);
        writeHistory(file, pages(count), Journal::UnmergedWal);
        EXPECT_TRUE(QFile::exists(file % u"-wal"));
        EXPECT_TRUE(QFile::exists(file % u"-shm"));
        EXPECT_EQ(queryMainFile(file, visiblePages), titles(count / 2)) << count;
        EXPECT_EQ(queryWithSidecars(file, visiblePages), titles(count)) << count;
    }
}

TEST_F(SampleFiles, aHotJournalIsNeededToReadTheRows)
{
    for (const qsizetype count : {1, 10, 10'000}) {
        const QString file = path(u"History"_s);
        writeHistory(file, pages(count), Journal::HotJournal);
        const QStringList wrongRows = queryMainFile(file, visiblePages);
        EXPECT_LT(wrongRows.size(), count);
        EXPECT_EQ(wrongRows.last(qMax(0, count - 2000)), titles(count).mid(2000)) << count;
        EXPECT_EQ(queryWithSidecars(file, visiblePages), titles(count)) << count;
        EXPECT_EQ(queryWithSidecars(file, "PRAGMA integrity_check"), QStringList{u"ok"_s}) << count;
    }
}

TEST_F(SampleFiles, everyDatabaseCanBeLeftInEveryState)
{
    struct Case {
        const char *name;
        std::function<void(const QString &, Journal)> write;
        const char *sql;
    };
    const Rows<FaviconBitmap> bitmaps{{.iconID = 1, .image = QByteArray("first"), .width = 16},
                                      {.iconID = 2, .image = QByteArray("second"), .width = 32}};
    const Rows<FaviconMapping> mappings{{.pageURL = u"https://a.example/"_s, .iconID = 1},
                                        {.pageURL = u"https://b.example/"_s, .iconID = 2}};
    const Rows<SafariItem> items{{.id = 1, .url = u"https://a.example/"_s},
                                 {.id = 2, .url = u"https://b.example/"_s}};
    const Rows<SafariVisit> visits{{.itemID = 1, .time = 1.5, .title = u"first"_s},
                                   {.itemID = 2, .time = 2.5, .title = u"second"_s}};
    const Rows<SafariProfileRow> profiles{{.title = u"first"_s, .serverID = u"A"_s},
                                          {.title = u"second"_s, .serverID = u"B"_s}};
    const Rows<SafariIcon> icons{{.uuid = u"first"_s, .timestamp = 1}, {.uuid = u"second"_s, .timestamp = 2}};
    const Rows<SafariIconPage> iconPages{{.url = u"https://a.example/"_s, .uuid = u"first"_s},
                                         {.url = u"https://b.example/"_s, .uuid = u"second"_s}};
    const Rows<FirefoxPage> places{{.url = u"https://a.example/"_s, .title = u"first"_s},
                                   {.url = u"https://b.example/"_s, .title = u"second"_s}};
    const Rows<FirefoxIcon> placeIcons{
        {.id = 1, .url = u"https://a.example/i"_s, .data = QByteArray("first")},
        {.id = 2, .url = u"https://b.example/i"_s, .data = QByteArray("second")}};
    const Rows<FirefoxIconPage> iconPlaces{{.url = u"https://a.example/"_s, .icons = {1}},
                                           {.url = u"https://b.example/"_s, .icons = {2}}};
    const Rows<FirefoxGroupProfile> group{{.path = u"a"_s, .name = u"first"_s},
                                          {.path = u"b"_s, .name = u"second"_s}};
    const std::vector<Case> cases{
        {"places.sqlite",
         [&](const QString &file, Journal journal) { writeFirefoxPlaces(file, places, {}, journal); },
         "SELECT title FROM moz_places WHERE hidden = 0 ORDER BY id"},
        {"favicons.sqlite",
         [&](const QString &file, Journal journal) {
             writeFirefoxFavicons(file, placeIcons, iconPlaces, journal);
         },
         "SELECT data FROM moz_icons_to_pages JOIN moz_icons ON id = icon_id ORDER BY id"},
        {"1234abcd.sqlite",
         [&](const QString &file, Journal journal) { writeFirefoxGroup(file, group, journal); },
         "SELECT name FROM Profiles ORDER BY id"},
        {"Favicons",
         [&](const QString &file, Journal journal) { writeFavicons(file, bitmaps, mappings, journal); },
         "SELECT image_data FROM icon_mapping JOIN favicon_bitmaps USING (icon_id) ORDER BY icon_id"},
        {"History.db",
         [&](const QString &file, Journal journal) { writeSafariHistory(file, items, visits, journal); },
         "SELECT title FROM history_visits ORDER BY visit_time"},
        {"SafariTabs.db",
         [&](const QString &file, Journal journal) { writeSafariTabs(file, profiles, journal); },
         "SELECT title FROM bookmarks WHERE subtype = 2 AND server_id != 'DefaultProfile' ORDER BY "
         "order_index"},
        {"favicons.db",
         [&](const QString &file, Journal journal) {
             writeSafariFavicons(file.chopped(QStringLiteral("/favicons.db").size()), icons, iconPages,
                                 journal);
         },
         "SELECT p.uuid FROM page_url p JOIN icon_info i ON i.uuid = p.uuid ORDER BY i.timestamp"}};
    const QStringList rows{u"first"_s, u"second"_s};
    for (const Case &database : cases) {
        const QString file = path(QString::fromLatin1(database.name));
        for (const Journal journal :
             {Journal::Clean, Journal::UnmergedWal, Journal::WalAlone, Journal::HotJournal}) {
            database.write(file, journal);
            EXPECT_EQ(queryWithSidecars(file, database.sql), rows) << database.name;
            EXPECT_EQ(queryMainFile(file, database.sql) == rows, journal == Journal::Clean) << database.name;
        }
    }
}

TEST_F(SampleFiles, nothingIsInTheMainFileWhereTheLogIsAlone)
{
    const QString file = path(u"places.sqlite"_s);
    writeFirefoxPlaces(file, {{.url = u"https://a.example/"_s}}, {}, Journal::WalAlone);
    EXPECT_EQ(queryMainFile(file, "SELECT count(*) FROM sqlite_master"), QStringList{u"0"_s});
    EXPECT_EQ(queryWithSidecars(file, "SELECT url FROM moz_places"), QStringList{u"https://a.example/"_s});
}

TEST_F(SampleFiles, firefoxKeepsNoSharedMemoryBesideItsLogs)
{
    for (const Journal journal : {Journal::UnmergedWal, Journal::WalAlone}) {
        writeFirefoxPlaces(path(u"places.sqlite"_s), {{.url = u"https://a.example/"_s}}, {}, journal);
        EXPECT_TRUE(QFile::exists(path(u"places.sqlite-wal"_s)));
        EXPECT_FALSE(QFile::exists(path(u"places.sqlite-shm"_s)));
    }
}

TEST_F(SampleFiles, firefoxFindsItsPagesByTheNumbersThatItMakes)
{
    // The numbers were read from a database that Firefox had written.
    const QString file = path(u"places.sqlite"_s);
    writeFirefoxPlaces(file, {{.url = u"https://www.mozilla.org/about/"_s}});
    EXPECT_EQ(query(file, "SELECT url_hash FROM moz_places"), QStringList{u"47357608426557"_s});
    EXPECT_EQ(query(file, "SELECT rev_host FROM moz_places"), QStringList{u"gro.allizom.www."_s});
    EXPECT_EQ(query(file, "SELECT prefix || host FROM moz_origins"),
              QStringList{u"https://www.mozilla.org"_s});
    const QString icons = path(u"favicons.sqlite"_s);
    writeFirefoxFavicons(icons, {{.url = u"fake-favicon-uri:https://www.mozilla.org/about/"_s}},
                         {{.url = u"https://www.mozilla.org/about/"_s}});
    EXPECT_EQ(query(icons, "SELECT fixed_icon_url_hash FROM moz_icons"), QStringList{u"136571782002801"_s});
    EXPECT_EQ(query(icons, "SELECT page_url_hash FROM moz_pages_w_icons"), QStringList{u"47357608426557"_s});
}

TEST_F(SampleFiles, aFirefoxBookmarkSharesThePageOfTheHistory)
{
    const QString file = path(u"places.sqlite"_s);
    const FirefoxBookmarks bookmarks{
        .toolbar = {firefoxBookmark(u"Visited"_s, u"https://a.example/"_s, firefoxTime(1), {u"later"_s}),
                    firefoxSeparator(),
                    firefoxFolder(u"Folder"_s, {firefoxBookmark(u"New"_s, u"https://b.example/"_s, 2)})},
        .mobile = {firefoxBookmark(u"Pocket"_s, u"https://c.example/"_s, 3)}};
    writeFirefoxPlaces(file, {{.id = 70, .url = u"https://a.example/"_s, .lastVisitDate = firefoxTime(9)}},
                       firefoxBookmarkRows(bookmarks), Journal::UnmergedWal);
    EXPECT_EQ(
        query(file, "SELECT id || ' ' || url || ' ' || visit_count || ' ' || foreign_count FROM moz_places"),
        (QStringList{u"70 https://a.example/ 1 2"_s, u"71 https://b.example/ 0 1"_s,
                     u"72 https://c.example/ 0 1"_s}));
    EXPECT_EQ(
        query(file, "SELECT p.guid || ' ' || b.position || ' ' || b.type || ' ' || b.title || ' ' ||"
                    " coalesce(b.fk, '') FROM moz_bookmarks b JOIN moz_bookmarks p ON p.id = b.parent"
                    " WHERE p.id IN (3, 4, 6) ORDER BY p.id, b.position"),
        (QStringList{u"toolbar_____ 0 1 Visited 70"_s, u"toolbar_____ 1 3  "_s, u"toolbar_____ 2 2 Folder "_s,
                     u"tags________ 0 2 later "_s, u"mobile______ 0 1 Pocket 72"_s}));
    EXPECT_EQ(query(file, "SELECT b.fk FROM moz_bookmarks b JOIN moz_bookmarks f ON f.id = b.parent WHERE"
                          " f.title IN ('Folder', 'later') ORDER BY b.fk"),
              (QStringList{u"70"_s, u"71"_s}));
    EXPECT_EQ(query(file, "SELECT count(DISTINCT guid) = count(*) FROM moz_bookmarks"), QStringList{u"1"_s});
}

TEST_F(SampleFiles, firefoxProfilesAreWrittenAsFirefoxDoes)
{
    const QString file = path(u"profiles.ini"_s);
    writeFirefoxProfiles(
        file,
        {{.name = u"Work"_s, .path = u"abcd1234.Work"_s, .isDefault = true},
         {.name = u"default"_s, .path = u"/somewhere/else"_s, .isRelative = false, .storeID = u"1234abcd"_s}},
        {{.hash = u"4F96D1932A9F858E"_s, .defaultPath = u"abcd1234.Work"_s}});
    QFile written(file);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll(), "[Profile1]\nName=default\nIsRelative=0\nPath=/somewhere/else\n"
                                 "StoreID=1234abcd\nShowSelector=1\n\n"
                                 "[Profile0]\nName=Work\nIsRelative=1\nPath=abcd1234.Work\nDefault=1\n\n"
                                 "[General]\nStartWithLastProfile=1\nVersion=2\n\n"
                                 "[Install4F96D1932A9F858E]\nDefault=abcd1234.Work\nLocked=1\n\n");
}

TEST_F(SampleFiles, aProfileListCanBeWrittenInAWayThatFirefoxOnlyReads)
{
    const QList<FirefoxProfile> profiles{{.name = u"a"_s, .path = u"x.a"_s},
                                         {.name = u"b"_s, .path = u"x.b"_s, .isDefault = true}};
    const auto written = [&](const IniStyle &style) {
        writeFirefoxProfiles(path(u"profiles.ini"_s), profiles, {}, style);
        QFile file(path(u"profiles.ini"_s));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        return bytes.first(bytes.indexOf("[General]"));
    };
    EXPECT_EQ(written({.hasByteOrderMark = true}), "\xef\xbb\xbf" + written({}));
    EXPECT_EQ(written({.hasWindowsLineEnds = true}), written({}).replace("\n", "\r\n"));
    EXPECT_EQ(written({.step = 5}), written({}).replace("[Profile1]", "[Profile5]"));
    EXPECT_TRUE(written({.repeatsKeys = true}).startsWith("[Profile1]\nName=an earlier value\nName=b\n"));
    EXPECT_TRUE(written({.hasComments = true}).contains("\n;Path=comment\n#Path=comment\nPath=x.a\n"));
    EXPECT_TRUE(written({.splitsSections = true})
                    .endsWith("[Profile0]\nName=a\n\n[Profile0]\nIsRelative=1\nPath=x.a\n\n"));
}

TEST_F(SampleFiles, firefoxFoldersCanBeDeepAndRound)
{
    const QString file = path(u"places.sqlite"_s);
    writeFirefoxPlaces(file, {}, deepFirefoxFolders(firefox_folder::firstFree, 200'000));
    EXPECT_EQ(query(file, "WITH RECURSIVE below(id, level) AS (SELECT 3, 0 UNION ALL"
                          " SELECT b.id, level + 1 FROM below JOIN moz_bookmarks b ON b.parent = below.id)"
                          " SELECT max(level) FROM below"),
              QStringList{u"200001"_s});
    QList<FirefoxBookmarkRow> rows = circlingFirefoxFolders(50);
    rows += firefoxRootBelowItself(firefox_folder::mobile, u"mobile______"_s, 90);
    writeFirefoxPlaces(file, {}, rows);
    EXPECT_EQ(query(file, "SELECT id || ' in ' || parent FROM moz_bookmarks WHERE type = 2 AND id > 5"),
              (QStringList{u"6 in 6"_s, u"50 in 51"_s, u"51 in 50"_s, u"52 in 52"_s}));
    EXPECT_EQ(query(file, "SELECT guid FROM moz_bookmarks WHERE id = 6"), QStringList{u"mobile______"_s});
}

TEST_F(SampleFiles, awkwardFirefoxRowsAreWhatTheirNamesSay)
{
    const QString file = path(u"places.sqlite"_s);
    writeFirefoxPlaces(file, awkwardFirefoxPages(1'700'000'000), awkwardFirefoxBookmarks(100));
    EXPECT_EQ(query(file, "SELECT title FROM moz_bookmarks WHERE position IS NULL"),
              QStringList{u"Without a place"_s});
    EXPECT_EQ(query(file, "SELECT title FROM moz_bookmarks WHERE guid IS NULL"),
              QStringList{u"Without a GUID"_s});
    EXPECT_EQ(query(file, "SELECT b.title FROM moz_bookmarks b JOIN moz_places p ON p.id = b.fk"
                          " WHERE p.url IS NULL"),
              QStringList{u"Page without an address"_s});
    EXPECT_EQ(query(file, "SELECT title FROM moz_bookmarks WHERE fk NOT IN (SELECT id FROM moz_places)"),
              QStringList{u"Missing page"_s});
    EXPECT_EQ(query(file, "SELECT title FROM moz_places WHERE hidden"), QStringList{u"Hidden"_s});
    EXPECT_EQ(query(file, "SELECT title FROM moz_places WHERE last_visit_date < -1e15 ORDER BY id"),
              (QStringList{u"Visited at -11644473600000000"_s, u"Visited at -9223372036854775808"_s}));
    const QString icons = path(u"favicons.sqlite"_s);
    writeFirefoxFavicons(icons, awkwardFirefoxIcons(1), awkwardFirefoxIconPages(1));
    EXPECT_EQ(query(icons, "SELECT icon_url FROM moz_icons WHERE data IS NULL"),
              QStringList{u"fake-favicon-uri:https://no-bytes.example/"_s});
    EXPECT_EQ(query(icons,
                    "SELECT width FROM moz_icons JOIN moz_icons_to_pages ON id = icon_id WHERE page_id ="
                    " (SELECT id FROM moz_pages_w_icons WHERE page_url = 'https://many.example/')"
                    " ORDER BY id"),
              (QStringList{u"16"_s, u"32"_s, u"64"_s, u"65535"_s}));
}

TEST_F(SampleFiles, encryptedBookmarksBeginWithTheirVersion)
{
    for (const QByteArray &version : {QByteArray("v10"), QByteArray("v11")}) {
        writeEncryptedBookmarks(path(u"EncryptedBookmarks2"_s), version);
        QFile file(path(u"EncryptedBookmarks2"_s));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        EXPECT_TRUE(bytes.startsWith(version));
        EXPECT_FALSE(bytes.contains("roots"));
        EXPECT_EQ(bytes.size(), 400);
    }
}

TEST_F(SampleFiles, textsAreStoredByteForByte)
{
    const QByteArray broken("NUL \0, half a character \xc3", 26);
    const QString file = path(u"History"_s);
    writeHistory(file, {{.url = u"https://a.example/"_s, .title = Text::raw(broken), .lastVisitTime = 1},
                        {.url = u"https://b.example/"_s, .lastVisitTime = 1},
                        {.url = u"https://c.example/"_s, .title = u""_s, .lastVisitTime = 1}});
    EXPECT_EQ(query(file, "SELECT hex(title) FROM urls"),
              (QStringList{QString::fromLatin1(broken.toHex().toUpper()), u""_s, u""_s}));
    EXPECT_EQ(query(file, "SELECT typeof(title) FROM urls"), (QStringList{u"text"_s, u"null"_s, u"text"_s}));
}

} // namespace roamlet::sample
