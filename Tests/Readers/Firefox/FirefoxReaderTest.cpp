// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Firefox/FirefoxReader.h"

#include "Readers/BrowserReader.h"
#include "Readers/ReaderTest.h"
#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/PlainFiles.h"

#include <optional>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using sample::FirefoxPage;
using sample::Journal;

namespace
{

/// 2023-11-14 22:13:20 UTC in Firefox's microseconds.
constexpr qint64 visitTime = 1'700'000'000'000'000;
constexpr double visitTimeSince1970 = 1'700'000'000;

class FirefoxHistory : public ReaderTest
{
protected:
    void write(const sample::Rows<FirefoxPage> &pages, Journal journal = Journal::Clean,
               const sample::Rows<sample::FirefoxBookmarkRow> &bookmarks = {})
    {
        change(
            [&] { sample::writeFirefoxPlaces(firefoxFile(u"places.sqlite"_s), pages, bookmarks, journal); });
    }

    QList<HistoryItem> read(const HistoryQuery &query = HistoryQuery::recent(),
                            const Source &source = firefox())
    {
        const auto items = FirefoxReader::history(source, query, context());
        if (!items)
            ADD_FAILURE() << items.error();
        return items.value_or(QList<HistoryItem>());
    }

    QStringList found(const QString &text, const std::optional<QString> &site = {})
    {
        return titlesOf(read(HistoryQuery::matching(text, site, HistoryQuery::Order::Latest)));
    }

    /// One bookmark in the bar.
    static QList<sample::FirefoxBookmarkRow> oneBookmark()
    {
        return sample::firefoxBookmarkRows(
            {.toolbar = {sample::firefoxBookmark(u"Bookmark"_s, u"https://b.example/"_s, visitTime)}});
    }
};

} // namespace

TEST_F(FirefoxHistory, aRowIsAWholeItem)
{
    write({{.id = 4711,
            .url = u"HTTPS://www.Example.com:8443/Path?Q=1"_s,
            .title = u"ÄTitle"_s,
            .visitCount = 5'000'000'000,
            .lastVisitDate = visitTime}});
    EXPECT_EQ(read(), (QList<HistoryItem>{{.id = u"firefox/abcd.default/4711"_s,
                                           .title = u"ÄTitle"_s,
                                           .url = u"HTTPS://www.Example.com:8443/Path?Q=1"_s,
                                           .lastVisit = pointInTime(visitTimeSince1970),
                                           .visitCount = 5'000'000'000,
                                           .source = firefox(),
                                           .site = u"example.com"_s}}));
}

TEST_F(FirefoxHistory, eachProfileHasItsOwnFile)
{
    write({{.id = 1, .url = u"https://a.example/"_s, .title = u"first"_s, .lastVisitDate = visitTime}});
    change([&] {
        sample::writeFirefoxPlaces(
            firefoxFile(u"places.sqlite"_s, u"../far/efgh.work"_s),
            {{.id = 1, .url = u"https://a.example/"_s, .title = u"second"_s, .lastVisitDate = visitTime}});
    });
    EXPECT_EQ(titlesOf(read()), QStringList{u"first"_s});
    const QList<HistoryItem> items = read({}, firefox(u"../far/efgh.work"_s));
    EXPECT_EQ(titlesOf(items), QStringList{u"second"_s});
    EXPECT_EQ(items.value(0).id, u"firefox/../far/efgh.work/1"_s);
    EXPECT_EQ(titlesOf(read({}, firefox(firefoxFile({}, u"../far/efgh.work"_s)))), QStringList{u"second"_s});
}

TEST_F(FirefoxHistory, microsecondsAreKept)
{
    write({{.url = u"https://a.example/"_s, .title = u"first"_s, .lastVisitDate = visitTime + 1},
           {.url = u"https://b.example/"_s, .title = u"second"_s, .lastVisitDate = visitTime + 2},
           {.url = u"https://c.example/"_s, .title = u"oldest"_s, .lastVisitDate = 1}});
    const QList<HistoryItem> items = read();
    ASSERT_EQ(titlesOf(items), (QStringList{u"second"_s, u"first"_s, u"oldest"_s}));
    EXPECT_GT(items[0].lastVisit, items[1].lastVisit);
    EXPECT_DOUBLE_EQ(secondsSince1970(items[2].lastVisit), 0.000001);
}

TEST_F(FirefoxHistory, rowsThatWereNeverVisitedAreNotShown)
{
    write({{.url = u"https://a.example/"_s, .title = u"bookmark only"_s, .visitCount = 9},
           {.url = u"https://b.example/"_s, .title = u"never"_s, .visitCount = 8, .lastVisitDate = 0},
           {.url = u"https://c.example/"_s, .title = u"before"_s, .visitCount = 7, .lastVisitDate = -5},
           {.url = u"https://d.example/"_s, .title = u"visited"_s, .visitCount = 1, .lastVisitDate = 1}});
    EXPECT_EQ(titlesOf(read()), QStringList{u"visited"_s});
    EXPECT_EQ(found(u"example"_s), QStringList{u"visited"_s});
    // A date that means none is seen by us alone, after the database has counted.
    EXPECT_EQ(read(listing(HistoryQuery::Order::MostVisited, 2)), QList<HistoryItem>());
    EXPECT_EQ(read(listing(HistoryQuery::Order::MostVisited, 3)).size(), 1);
}

TEST_F(FirefoxHistory, aRowWithoutATitleIsFoundByItsAddress)
{
    write({{.url = u"https://a.example/"_s, .lastVisitDate = 2},
           {.url = u"https://a.example/"_s, .title = u""_s, .lastVisitDate = 1},
           {.title = u"example"_s, .lastVisitDate = 3}});
    EXPECT_EQ(found(u"example"_s), (QStringList{u"https://a.example/"_s, u"https://a.example/"_s}));
    EXPECT_EQ(found({}, u"a.example"_s).size(), 2);
}

TEST_F(FirefoxHistory, columnsOfOtherVersionsDoNotMatter)
{
    sample::makeFolder(firefoxFile({}));
    sample::Database(firefoxFile(u"places.sqlite"_s))
        .execute("CREATE TABLE moz_places(visit_count, last_visit_date, hidden, title, url, future,"
                 " id INTEGER PRIMARY KEY);"
                 "INSERT INTO moz_places VALUES(3, 2000000, 0, 't', 'https://a.example/', 'x', 9)");
    const QList<HistoryItem> items = read();
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].id, u"firefox/abcd.default/9"_s);
    EXPECT_EQ(items[0].visitCount, 3);
    EXPECT_EQ(secondsSince1970(items[0].lastVisit), 2);
}

TEST_F(FirefoxHistory, aLoadCopiesTheDatabaseOnce)
{
    write({{.url = u"https://a.example/"_s, .title = u"Page"_s, .lastVisitDate = visitTime}},
          Journal::UnmergedWal, oneBookmark());
    int copies = 0;
    home.files.afterCopy = [&](const QString &file) {
        copies += file == firefoxFile(u"places.sqlite"_s) ? 1 : 0;
    };
    const BrowserReader::Content content = BrowserReader::content(firefox(), context());
    home.files.afterCopy = {};
    EXPECT_EQ(copies, 1);
    ASSERT_TRUE(content.history.has_value());
    EXPECT_EQ(titlesOf(*content.history), QStringList{u"Page"_s});
    ASSERT_TRUE(content.bookmarks.has_value());
    EXPECT_EQ(titlesOf(content.bookmarks->roots), QStringList{u"Bookmarks Toolbar"_s});
    EXPECT_EQ(content.favicons, Favicons());
    EXPECT_FALSE(content.isHistoryFirst);
}

TEST_F(FirefoxHistory, aBrowserThatWritesDuringEveryCopyIsReadAllTheSame)
{
    constexpr qint64 rows = 900;
    constexpr qint64 visits = 1000;
    const QString file = firefoxFile(u"places.sqlite"_s);
    write(sample::Rows<FirefoxPage>::generated(rows, [](qsizetype i) {
        return FirefoxPage{.url = u"https://a.example/%1"_s.arg(i),
                           .title = u"wide "_s.repeated(100),
                           .visitCount = visits,
                           .lastVisitDate = i + 1};
    }));
    std::optional<sample::Database> browser;
    change([&] {
        browser.emplace(file);
        browser->execute(
            "PRAGMA synchronous = OFF; PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0");
    });
    // Each change moves visits between far pages of the file, so that a part of one is a wrong sum.
    const char *const moves = "BEGIN; UPDATE moz_places SET visit_count = visit_count - 1 WHERE id = 1;"
                              " UPDATE moz_places SET visit_count = visit_count + 1 WHERE id = 900; COMMIT";
    const char *const movesBack =
        "BEGIN; UPDATE moz_places SET visit_count = visit_count - 1 WHERE id = 1;"
        " UPDATE moz_places SET visit_count = visit_count + 1 WHERE id = 450; COMMIT";
    const char *const merges = "PRAGMA wal_checkpoint(RESTART)";
    const auto readWhile = [&](const QList<const char *> &written) {
        int copies = 0;
        home.files.afterCopy = [&](const QString &copied) {
            copies += copied == file ? 1 : 0;
            change([&] {
                for (const char *statements : written)
                    browser->execute(statements);
            });
        };
        const auto items = FirefoxReader::history(firefox(), HistoryQuery::recent(), context());
        home.files.afterCopy = {};
        EXPECT_EQ(copies, 3);
        return items.value();
    };
    const auto visitsOf = [](const QList<HistoryItem> &items) {
        qint64 sum = 0;
        for (const HistoryItem &item : items)
            sum += item.visitCount;
        return sum;
    };
    const QList<HistoryItem> appended = readWhile({moves});
    EXPECT_EQ(appended.size(), rows);
    EXPECT_EQ(visitsOf(appended), rows * visits) << "a log that only grows is read up to one of its commits";
    // The third copy serves whatever happens meanwhile; the next reading is whole again.
    EXPECT_EQ(readWhile({moves, merges}).size(), rows);
    EXPECT_EQ(readWhile({moves, merges, movesBack}).size(), rows);
    const auto rested = FirefoxReader::history(firefox(), HistoryQuery::recent(), context());
    EXPECT_EQ(visitsOf(rested.value()), rows * visits);
    change([&] { browser.reset(); });
}

TEST_F(FirefoxHistory, eachPartOfALoadIsReadOrNotOnItsOwn)
{
    const auto content = [this] {
        return FirefoxReader::content(firefox(), HistoryQuery::recent(), context());
    };
    EXPECT_TRUE(content().history.value().isEmpty());
    EXPECT_TRUE(content().bookmarks.value().roots.isEmpty());

    write({{.url = u"https://a.example/"_s, .title = u"Page"_s, .lastVisitDate = visitTime}}, Journal::Clean,
          oneBookmark());
    const QString file = firefoxFile(u"places.sqlite"_s);
    change([&] { sample::Database(file).execute("DROP TABLE moz_bookmarks"); });
    EXPECT_EQ(content().history.value().size(), 1);
    ASSERT_FALSE(content().bookmarks.has_value());
    EXPECT_EQ(content().bookmarks.error(),
              ReadErrors{ReadError::unreadable(u"query"_s, u"no such table: moz_bookmarks"_s)});

    refuse(file, std::errc::permission_denied);
    ASSERT_FALSE(content().history.has_value());
    EXPECT_EQ(content().history.error(), ReadError::noAccess(file));
    ASSERT_FALSE(content().bookmarks.has_value());
    EXPECT_EQ(content().bookmarks.error(), ReadErrors{ReadError::noAccess(file)});
}

TEST_F(FirefoxHistory, onlyItsDatabaseAndTheLogOfItAreWatched)
{
    constexpr auto family = Browser::Family::Firefox;
    for (const QString &name : {u"places.sqlite"_s, u"places.sqlite-wal"_s})
        EXPECT_TRUE(BrowserReader::isRead(name, family)) << name.toStdString();
    for (const QString &name :
         {u"favicons.sqlite"_s, u"favicons.sqlite-wal"_s, u"places.sqlite-shm"_s, u"History"_s})
        EXPECT_FALSE(BrowserReader::isRead(name, family)) << name.toStdString();
}

} // namespace roamlet::testing
