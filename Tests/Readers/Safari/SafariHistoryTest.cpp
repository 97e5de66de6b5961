// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/ReaderTest.h"
#include "Readers/Safari/SafariReader.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/SafariFiles.h"

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using sample::SafariItem;
using sample::SafariVisit;
using sample::Text;

namespace
{

/// 2026-05-09 06:13:20 UTC, in seconds since 2001.
constexpr double someSafariTime = 800'000'000;

class SafariHistory : public ReaderTest
{
protected:
    void write(const QList<SafariItem> &items, const QList<SafariVisit> &visits,
               sample::Journal journal = sample::Journal::Clean)
    {
        change([&] { sample::writeSafariHistory(safariFile(u"History.db"_s), items, visits, journal); });
    }

    QList<HistoryItem> read(const HistoryQuery &query = HistoryQuery::recent(),
                            const Source &source = Source::safari())
    {
        const auto items = SafariReader::history(source, query, context());
        if (!items)
            ADD_FAILURE() << items.error();
        return items.value_or(QList<HistoryItem>());
    }

    QStringList found(const QString &text, const std::optional<QString> &site = {})
    {
        return titlesOf(read(HistoryQuery::matching(text, site, HistoryQuery::Order::Latest)));
    }

    QString profileFile(const QString &profile) const
    {
        return safariContainerFile(u"Profiles/%1/History.db"_s.arg(profile));
    }
};

} // namespace

TEST_F(SafariHistory, theDefaultProfileMustHaveAHistory)
{
    const auto items = SafariReader::history(Source::safari(), HistoryQuery::recent(), context());
    ASSERT_FALSE(items.has_value());
    EXPECT_EQ(items.error(),
              ReadError::unreadable(safariFile(u"History.db"_s), u"No such file or directory"_s));
}

TEST_F(SafariHistory, aNamedProfileMayHaveNone)
{
    EXPECT_EQ(read({}, namedSafari(u"A-B-C"_s, Source::None{})), QList<HistoryItem>());
    change([this] { sample::makeFolderOf(profileFile(u"A-B-C"_s)); });
    EXPECT_EQ(read({}, namedSafari(u"A-B-C"_s, Source::None{})), QList<HistoryItem>());
}

TEST_F(SafariHistory, aRowIsAWholeItem)
{
    write({{.id = 982, .url = u"HTTPS://www.Example.com/A"_s, .visitCount = 5'000'000'000}},
          {{.itemID = 982, .time = someSafariTime + 0.25, .title = u"ÄTitle"_s}});
    EXPECT_EQ(read(), (QList<HistoryItem>{{.id = u"safari/982"_s,
                                           .title = u"ÄTitle"_s,
                                           .url = u"HTTPS://www.Example.com/A"_s,
                                           .lastVisit = pointInTime(1'778'307'200.25),
                                           .visitCount = 5'000'000'000,
                                           .source = Source::safari(),
                                           .site = u"example.com"_s}}));
}

TEST_F(SafariHistory, timesCountFromTheBeginningOf2001)
{
    write({{.id = 1, .url = u"https://a.example/"_s}, {.id = 2, .url = u"https://b.example/"_s}},
          {{.itemID = 1, .time = 0, .title = u"zero"_s},
           {.itemID = 2, .time = -978'307'201, .title = u"1969"_s}});
    const QList<HistoryItem> items = read();
    ASSERT_EQ(titlesOf(items), (QStringList{u"zero"_s, u"1969"_s}));
    EXPECT_EQ(secondsSince1970(items[0].lastVisit), 978'307'200);
    EXPECT_EQ(secondsSince1970(items[1].lastVisit), -1);
}

TEST_F(SafariHistory, profilesKeepTheirRowsApart)
{
    write({{.id = 1, .url = u"https://a.example/"_s}}, {{.itemID = 1, .time = 1, .title = u"default"_s}});
    change([this] {
        sample::writeSafariHistory(profileFile(u"A-B-C"_s), {{.id = 1, .url = u"https://a.example/"_s}},
                                   {{.itemID = 1, .time = 1, .title = u"named"_s}});
    });
    EXPECT_EQ(titlesOf(read()), QStringList{u"default"_s});
    const Source named = namedSafari(u"A-B-C"_s, Source::None{});
    EXPECT_EQ(titlesOf(read({}, named)), QStringList{u"named"_s});
    EXPECT_EQ(read({}, named).value(0).id, u"safari/A-B-C/1"_s);
    EXPECT_EQ(read({}, named).value(0).source, named);
}

TEST_F(SafariHistory, aPageIsListedOnceWithItsNewestVisit)
{
    write({{.id = 1, .url = u"https://a.example/"_s, .visitCount = 3}},
          {{.itemID = 1, .time = 20, .title = u"middle"_s},
           {.itemID = 1, .time = 30, .title = u"newest"_s},
           {.itemID = 1, .time = 10, .title = u"oldest"_s}});
    const QList<HistoryItem> items = read();
    ASSERT_EQ(titlesOf(items), QStringList{u"newest"_s});
    EXPECT_EQ(secondsSince1970(items[0].lastVisit), 978'307'230);
    EXPECT_EQ(items[0].visitCount, 3);
}

TEST_F(SafariHistory, aTimeNarrowsToPagesWhoseLastVisitLiesInIt)
{
    write({{.id = 1, .url = u"https://a.example/"_s, .visitCount = 2},
           {.id = 2, .url = u"https://b.example/"_s},
           {.id = 3, .url = u"https://c.example/"_s}},
          {{.itemID = 1, .time = someSafariTime, .title = u"older title"_s},
           {.itemID = 1, .time = someSafariTime + 20, .title = u"newer title"_s},
           {.itemID = 2, .time = someSafariTime + 10, .title = u"b"_s},
           {.itemID = 3, .time = someSafariTime - 0.25, .title = u"c"_s}});
    constexpr double begin = 1'778'307'200;
    const auto visited = [this](const TimeSpan &span, const QString &words = {}) {
        HistoryQuery query = HistoryQuery::matching(words, {}, HistoryQuery::Order::Latest);
        query.visited = span;
        return titlesOf(read(query));
    };
    EXPECT_EQ(visited({.begin = pointInTime(begin)}), (QStringList{u"newer title"_s, u"b"_s}));
    EXPECT_EQ(visited({.end = pointInTime(begin + 20)}), (QStringList{u"b"_s, u"c"_s}));
    EXPECT_EQ(visited({.begin = pointInTime(begin), .end = pointInTime(begin + 20.5)}),
              (QStringList{u"newer title"_s, u"b"_s}));
    EXPECT_EQ(visited({.begin = pointInTime(begin + 10), .end = pointInTime(begin + 11)}),
              QStringList{u"b"_s});
    EXPECT_EQ(visited({.begin = pointInTime(begin), .end = pointInTime(begin + 1)}, u"older"_s),
              QStringList{u"older title"_s})
        << "of the visits that match";
    EXPECT_TRUE(visited({.begin = pointInTime(1e300)}).isEmpty());
    EXPECT_EQ(visited({.begin = pointInTime(-1e300), .end = pointInTime(1e300)}).size(), 3);
}

TEST_F(SafariHistory, aRowIsFoundByItsNumber)
{
    write({{.id = 1, .url = u"https://a.example/"_s}, {.id = 2, .url = u"https://b.example/"_s}},
          {{.itemID = 1, .time = 5, .title = u"a"_s}, {.itemID = 2, .time = 5, .title = u"b"_s}});
    HistoryQuery query;
    query.rowID = 2;
    EXPECT_EQ(titlesOf(read(query)), QStringList{u"b"_s});
    query.rowID = 3;
    EXPECT_TRUE(read(query).isEmpty());
}

TEST_F(SafariHistory, aMissingTitleOfTheNewestVisitIsReplacedByTheAddress)
{
    write({{.id = 1, .url = u"https://A.example/"_s}, {.id = 2, .url = u"https://b.example/"_s}},
          {{.itemID = 1, .time = 20},
           {.itemID = 1, .time = 10, .title = u"older title"_s},
           {.itemID = 2, .time = 5, .title = u""_s}});
    const QList<HistoryItem> items = read();
    ASSERT_EQ(titlesOf(items), (QStringList{u"https://A.example/"_s, u"https://b.example/"_s}));
    EXPECT_EQ(items[0].searchKey(), u"https://a.example/\nhttps://a.example/"_s);
    EXPECT_EQ(items[1].searchKey(), u"https://b.example/\nhttps://b.example/"_s);
}

TEST_F(SafariHistory, pagesWithoutAVisitAreNotListed)
{
    write({{.id = 1, .url = u"https://a.example/"_s}, {.id = 2, .url = u"https://b.example/"_s}},
          {{.itemID = 1, .time = 1, .title = u"visited"_s}, {.itemID = 99, .time = 2, .title = u"orphan"_s}});
    EXPECT_EQ(titlesOf(read()), QStringList{u"visited"_s});
}

TEST_F(SafariHistory, theOrderIsTheQuerys)
{
    write({{.id = 1, .url = u"https://a.example/"_s, .visitCount = 5},
           {.id = 2, .url = u"https://b.example/"_s, .visitCount = 1},
           {.id = 3, .url = u"https://c.example/"_s, .visitCount = 5}},
          {{.itemID = 1, .time = 10, .title = u"often, old"_s},
           {.itemID = 2, .time = 10.000001, .title = u"once, newer"_s},
           {.itemID = 3, .time = 10.0000005, .title = u"often, between"_s}});
    EXPECT_EQ(titlesOf(read()), (QStringList{u"once, newer"_s, u"often, between"_s, u"often, old"_s}));
    EXPECT_EQ(titlesOf(read(listing(HistoryQuery::Order::MostVisited))),
              (QStringList{u"often, between"_s, u"often, old"_s, u"once, newer"_s}));
    EXPECT_EQ(titlesOf(read(listing(HistoryQuery::Order::MostVisited, 2))),
              (QStringList{u"often, between"_s, u"often, old"_s}));
    EXPECT_EQ(titlesOf(read(listing(HistoryQuery::Order::Latest, 1))), QStringList{u"once, newer"_s});
    EXPECT_EQ(read(listing(HistoryQuery::Order::Latest, 0)).size(), 0);
}

TEST_F(SafariHistory, wordsAreLookedForInEachVisit)
{
    write({{.id = 1, .url = u"https://a.example/"_s}}, {{.itemID = 1, .time = 30, .title = u"new words"_s},
                                                        {.itemID = 1, .time = 20, .title = u"Old words"_s},
                                                        {.itemID = 1, .time = 10}});
    // The row then shows the visit that matches.
    EXPECT_EQ(found(u"words"_s), QStringList{u"new words"_s});
    EXPECT_EQ(found(u"old"_s), QStringList{u"Old words"_s});
    EXPECT_EQ(secondsSince1970(read(HistoryQuery::matching(u"old"_s, {}, {})).value(0).lastVisit),
              978'307'220);
    EXPECT_EQ(found(u"old new"_s), QStringList());
    EXPECT_EQ(found(u"a.example OLD"_s), QStringList{u"Old words"_s});
}

TEST_F(SafariHistory, aVisitWithoutTitleIsFoundByItsAddress)
{
    write({{.id = 1, .url = u"https://a.example/Page"_s}}, {{.itemID = 1, .time = 1}});
    EXPECT_EQ(found(u"page"_s), QStringList{u"https://a.example/Page"_s});
    EXPECT_EQ(found({}, u"a.example"_s).size(), 1);
    EXPECT_EQ(found(u"null"_s), QStringList());
}

TEST_F(SafariHistory, wordsAndSitesAreMeantLiterally)
{
    write({{.id = 1, .url = u"https://a_b.example/100%"_s},
           {.id = 2, .url = u"https://axb.example/1000"_s},
           {.id = 3, .url = u"http://www.a_b.example:8080/"_s}},
          {{.itemID = 1, .time = 3, .title = u"one"_s},
           {.itemID = 2, .time = 2, .title = u"two"_s},
           {.itemID = 3, .time = 1, .title = u"three \\ %"_s}});
    EXPECT_EQ(found(u"100%"_s), QStringList{u"one"_s});
    EXPECT_EQ(found(u"\\"_s), QStringList{u"three \\ %"_s});
    EXPECT_EQ(found({}, u"a_b.example"_s), (QStringList{u"one"_s, u"three \\ %"_s}));
}

TEST_F(SafariHistory, changesThatAreNotMergedYetCount)
{
    QList<SafariItem> items;
    QList<SafariVisit> visits;
    for (int i = 0; i < 1000; ++i) {
        items.append({.id = i + 1, .url = u"https://a.example/%1"_s.arg(i)});
        visits.append({.itemID = i + 1, .time = double(i), .title = u"title %1"_s.arg(i)});
    }
    for (const sample::Journal journal : {sample::Journal::UnmergedWal, sample::Journal::HotJournal}) {
        write(items, visits, journal);
        const QStringList titles = titlesOf(read());
        ASSERT_EQ(titles.size(), 1000);
        EXPECT_EQ(titles.first(), u"title 999"_s);
        EXPECT_EQ(titles.last(), u"title 0"_s);
        home.files.failure = [this](const QString &path) {
            return path == safariFile(u"History.db"_s)
                       ? std::error_code()
                       : std::make_error_code(std::errc::no_such_file_or_directory);
        };
        EXPECT_NE(titlesOf(read()), titles);
        home.files.failure = {};
    }
}

TEST_F(SafariHistory, awkwardTextsAreReadAsFarAsTheyGo)
{
    const QString megabyte = u"ü"_s.repeated(1'000'000);
    write({{.id = 1, .url = u"https://a.example/"_s},
           {.id = 2, .url = u"https://b.example/"_s},
           {.id = 3, .url = u"https://c.example/"_s},
           {.id = 4, .url = Text::raw(QByteArray("\0", 1))},
           {.id = 5, .url = u"\uFEFFhttps://e.example/"_s}},
          {{.itemID = 1, .time = 4, .title = Text::raw(QByteArray("before\0after", 12))},
           {.itemID = 2, .time = 3, .title = Text::raw("Z\xFCrich")},
           {.itemID = 3, .time = 2, .title = megabyte},
           {.itemID = 4, .time = 1},
           {.itemID = 5, .time = 0, .title = u"\uFEFFmarked"_s}});
    EXPECT_EQ(titlesOf(read()),
              (QStringList{u"before"_s, u"Z\uFFFDrich"_s, megabyte, u""_s, u"\uFEFFmarked"_s}));
    EXPECT_EQ(read().value(4).url, u"\uFEFFhttps://e.example/"_s);
}

TEST_F(SafariHistory, aWordThatIsTooLongIsTheDatabasesError)
{
    write({{.id = 1, .url = u"https://a.example/"_s}}, {{.itemID = 1, .time = 1}});
    const auto items = SafariReader::history(
        Source::safari(), HistoryQuery::matching(u"x"_s.repeated(50'001), {}, HistoryQuery::Order::Latest),
        context());
    ASSERT_FALSE(items.has_value());
    EXPECT_EQ(items.error(), ReadError::unreadable(u"query"_s, u"LIKE or GLOB pattern too complex"_s));
}

TEST_F(SafariHistory, aRefusalIsNoAccessWithThePath)
{
    write({}, {});
    refuse(safariFile(u"History.db"_s), std::errc::operation_not_permitted);
    const auto items = SafariReader::history(Source::safari(), HistoryQuery::recent(), context());
    ASSERT_FALSE(items.has_value());
    EXPECT_EQ(items.error(), ReadError::noAccess(safariFile(u"History.db"_s)));
}

} // namespace roamlet::testing
