// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/HistoryRows.h"

#include "Model/Browser.h"
#include "Readers/BrowserReader.h"
#include "Readers/ReaderTest.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/PlainFiles.h"

#include <expected>
#include <optional>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using sample::Journal;
using sample::Text;

/// A row of whichever family's table of pages.
struct PageRow {
    std::optional<qint64> id = {};
    Text url = {};
    Text title = {};
    qint64 visitCount = 1;
    /// Microseconds of the family's own clock.
    qint64 time = 1;
    bool hidden = false;
};

/// What the families that keep each page in one row have in common.
class FamilyHistory : public ReaderTest, public ::testing::WithParamInterface<Browser::Family>
{
protected:
    static bool isFirefox() { return GetParam() == Browser::Family::Firefox; }
    static Source source() { return isFirefox() ? firefox() : chrome(); }
    QString file() const { return isFirefox() ? firefoxFile(u"places.sqlite"_s) : chromeFile(u"History"_s); }

    void write(const sample::Rows<PageRow> &rows, Journal journal = Journal::Clean)
    {
        const auto firefoxPage = [&rows](qsizetype i) {
            const PageRow row = rows.at(i);
            return sample::FirefoxPage{.id = row.id,
                                       .url = row.url,
                                       .title = row.title,
                                       .visitCount = row.visitCount,
                                       .lastVisitDate = row.time,
                                       .hidden = row.hidden};
        };
        const auto chromiumRow = [&rows](qsizetype i) {
            const PageRow row = rows.at(i);
            return sample::HistoryRow{.id = row.id,
                                      .url = row.url,
                                      .title = row.title,
                                      .visitCount = row.visitCount,
                                      .lastVisitTime = row.time,
                                      .hidden = row.hidden};
        };
        change([&] {
            if (isFirefox())
                sample::writeFirefoxPlaces(
                    file(), sample::Rows<sample::FirefoxPage>::generated(rows.count(), firefoxPage), {},
                    journal);
            else
                sample::writeHistory(
                    file(), sample::Rows<sample::HistoryRow>::generated(rows.count(), chromiumRow), journal);
        });
    }

    std::expected<QList<HistoryItem>, ReadError> tryToRead(const HistoryQuery &query)
    {
        return BrowserReader::history(source(), query, context());
    }
    QList<HistoryItem> read(const HistoryQuery &query = HistoryQuery::recent())
    {
        const auto items = tryToRead(query);
        if (!items)
            ADD_FAILURE() << items.error();
        return items.value_or(QList<HistoryItem>());
    }
    QStringList found(const QString &text, const std::optional<QString> &site = {})
    {
        return titlesOf(read(HistoryQuery::matching(text, site, HistoryQuery::Order::Latest)));
    }
};

INSTANTIATE_TEST_SUITE_P(Of, FamilyHistory,
                         ::testing::Values(Browser::Family::Chromium, Browser::Family::Firefox),
                         [](const auto &family) {
                             return family.param == Browser::Family::Firefox ? "Firefox" : "Chromium";
                         });

} // namespace

TEST_P(FamilyHistory, aMissingFileIsAnEmptyHistory)
{
    EXPECT_EQ(read(), QList<HistoryItem>());
    change([this] { sample::makeFolderOf(file()); });
    EXPECT_EQ(read(), QList<HistoryItem>());
}

TEST_P(FamilyHistory, hiddenRowsAreNotShown)
{
    write({{.url = u"https://a.example/"_s, .title = u"shown"_s},
           {.url = u"https://b.example/"_s, .title = u"hidden"_s, .hidden = true}});
    EXPECT_EQ(titlesOf(read()), QStringList{u"shown"_s});
}

TEST_P(FamilyHistory, missingTextsAreReplaced)
{
    write({{.id = 1, .url = u"https://a.example/X"_s, .title = u""_s, .time = 3},
           {.id = 2, .url = u"https://b.example/"_s, .time = 2},
           {.id = 3, .time = 1}});
    const QList<HistoryItem> items = read();
    ASSERT_EQ(items.size(), 3);
    EXPECT_EQ(items[0].title, u"https://a.example/X"_s);
    EXPECT_EQ(items[0].searchKey(), u"https://a.example/x\nhttps://a.example/x"_s);
    EXPECT_EQ(items[1].title, u"https://b.example/"_s);
    EXPECT_EQ(items[1].searchKey(), u"https://b.example/\nhttps://b.example/"_s);
    EXPECT_EQ(items[2].title, u""_s);
    EXPECT_EQ(items[2].url, u""_s);
    EXPECT_EQ(items[2].site, u""_s);
}

TEST_P(FamilyHistory, theOrderIsTheQuerys)
{
    write({{.url = u"https://a.example/"_s, .title = u"often, old"_s, .visitCount = 5, .time = 10},
           {.url = u"https://b.example/"_s, .title = u"once, new"_s, .visitCount = 1, .time = 30},
           {.url = u"https://c.example/"_s, .title = u"often, newer"_s, .visitCount = 5, .time = 20}});
    EXPECT_EQ(titlesOf(read()), (QStringList{u"once, new"_s, u"often, newer"_s, u"often, old"_s}));
    EXPECT_EQ(titlesOf(read(listing(HistoryQuery::Order::MostVisited))),
              (QStringList{u"often, newer"_s, u"often, old"_s, u"once, new"_s}));
}

TEST_P(FamilyHistory, theLimitIsExact)
{
    write(sample::Rows<PageRow>::generated(1500, [](qsizetype i) {
        return PageRow{.url = u"https://a.example/%1"_s.arg(i), .title = QString::number(i), .time = i + 1};
    }));
    EXPECT_EQ(read().size(), 1000);
    EXPECT_EQ(titlesOf(read(listing(HistoryQuery::Order::Latest, 2))), (QStringList{u"1499"_s, u"1498"_s}));
    EXPECT_EQ(read(listing(HistoryQuery::Order::Latest, 0)).size(), 0);
    EXPECT_EQ(read(listing(HistoryQuery::Order::Latest, 5'000'000'000)).size(), 1500);
}

TEST_P(FamilyHistory, aTimeNarrowsToTheMomentWhateverTheLimit)
{
    constexpr qint64 noon = 1'778'328'000;
    const auto stored = [](qint64 seconds) {
        return isFirefox() ? seconds * 1'000'000 : sample::chromiumTime(seconds);
    };
    write(sample::Rows<PageRow>::generated(3000, [&](qsizetype i) {
        return PageRow{.url = u"https://a.example/%1"_s.arg(i),
                       .title = QString::number(i),
                       .time = stored(noon) + i * 1000};
    }));
    HistoryQuery query = HistoryQuery::matching(u"a.example"_s, {}, HistoryQuery::Order::Latest);
    query.visited = {.begin = pointInTime(noon), .end = pointInTime(noon + 2)};
    query.limit = -1;
    const QStringList titles = titlesOf(read(query));
    ASSERT_EQ(titles.size(), 2000);
    EXPECT_EQ(titles.first(), u"1999"_s) << "the moment of the end is the first one after it";
    EXPECT_EQ(titles.last(), u"0"_s) << "the first moment belongs to it";
    query.visited.end = pointInTime(noon + 2.00001);
    EXPECT_EQ(read(query).first().title, u"2000"_s);
    query.limit = 1;
    query.visited = {.end = pointInTime(noon + 1)};
    EXPECT_EQ(titlesOf(read(query)), QStringList{u"999"_s}) << "the limit counts what lies in the time only";
    query.visited = {.begin = pointInTime(noon + 3)};
    EXPECT_TRUE(read(query).isEmpty());
    query.visited = {.begin = pointInTime(-1e300), .end = pointInTime(1e300)};
    EXPECT_EQ(read(query).size(), 1) << "what no browser can have stored is no obstacle";
}

TEST_P(FamilyHistory, aRowIsFoundByItsNumber)
{
    write({{.id = 7, .url = u"https://a.example/"_s, .title = u"seven"_s},
           {.id = 8, .url = u"https://b.example/"_s, .title = u"eight"_s},
           {.id = 9, .url = u"https://c.example/"_s, .title = u"hidden"_s, .hidden = true}});
    HistoryQuery query;
    query.rowID = 8;
    EXPECT_EQ(titlesOf(read(query)), QStringList{u"eight"_s});
    query.rowID = 9;
    EXPECT_TRUE(read(query).isEmpty());
    query.rowID = -8;
    EXPECT_TRUE(read(query).isEmpty());
}

TEST_P(FamilyHistory, everyWordMustOccurInTheAddressOrTheTitle)
{
    write({{.url = u"https://a.example/Apple"_s, .title = u"Pear"_s, .time = 3},
           {.url = u"https://b.example/"_s, .title = u"apple tree"_s, .time = 2},
           {.url = u"https://c.example/"_s, .title = u"ÄPFEL"_s, .time = 1}});
    EXPECT_EQ(found(u"apple"_s), (QStringList{u"Pear"_s, u"apple tree"_s}));
    EXPECT_EQ(found(u"PEAR  Apple "_s), QStringList{u"Pear"_s});
    EXPECT_EQ(found(u"pear tree"_s), QStringList());
    // The letter case of ASCII letters alone is ignored.
    EXPECT_EQ(found(u"pfel"_s), QStringList{u"ÄPFEL"_s});
    EXPECT_EQ(found(u"äpfel"_s), QStringList());
    // Address and title meet with a blank between them.
    EXPECT_EQ(found(u"/\tapple"_s), QStringList());
    EXPECT_EQ(found(u" "_s).size(), 3);
}

TEST_P(FamilyHistory, aSigmaIsFoundWhereverItStandsInAWord)
{
    write({{.url = u"https://a.example/"_s, .title = u"ο σίσυφος"_s, .time = 2},
           {.url = u"https://b.example/"_s, .time = 1}});
    for (const QString &text : {u"ΣΊΣΥΦΟΣ"_s, u"σίσυφος"_s, u"ΣΊΣ"_s, u"ΦΟΣ Ο"_s})
        EXPECT_EQ(found(text), QStringList{u"ο σίσυφος"_s}) << text.toStdString();
}

TEST_P(FamilyHistory, wordsAreMeantLiterally)
{
    const QString first = u"100% sure_thing C:\\"_s;
    write({{.url = u"https://a.example/"_s, .title = first, .time = 2},
           {.url = u"https://b.example/"_s, .title = u"1000 sureXthing 'quoted'"_s, .time = 1}});
    EXPECT_EQ(found(u"100%"_s), QStringList{first});
    EXPECT_EQ(found(u"sure_thing"_s), QStringList{first});
    EXPECT_EQ(found(u"c:\\"_s), QStringList{first});
    EXPECT_EQ(found(u"\\"_s), QStringList{first});
    EXPECT_EQ(found(u"%"_s), QStringList{first});
    EXPECT_EQ(found(u"'quoted'"_s).size(), 1);
    for (const QString &table : {u"urls"_s, u"moz_places"_s})
        EXPECT_EQ(found(u"'; DROP TABLE "_s % table % u"; --"), QStringList());
    EXPECT_EQ(read().size(), 2);
}

TEST_P(FamilyHistory, aSiteIsItsHostWithOrWithoutWww)
{
    const QStringList urls{u"https://example.com/a"_s,       u"http://www.example.com:80/"_s,
                           u"https://example.com:8443/"_s,   u"ftp://www.example.com/x"_s,
                           u"https://sub.example.com/"_s,    u"https://example.com"_s,
                           u"https://example.company/"_s,    u"https://other.test/?u=https://example.com/"_s,
                           u"https://www.www.example.com/"_s};
    write(sample::Rows<PageRow>::generated(urls.size(), [&urls](qsizetype i) {
        return PageRow{.url = urls[i], .title = QString::number(i), .time = 100 - i};
    }));
    // What only holds the address further on is removed by whoever compares the sites.
    EXPECT_EQ(found({}, u"example.com"_s), (QStringList{u"0"_s, u"1"_s, u"2"_s, u"3"_s, u"7"_s}));
    EXPECT_EQ(found(u"8443"_s, u"example.com"_s), QStringList{u"2"_s});
    EXPECT_EQ(found({}, u"exa_ple.com"_s), QStringList());
    EXPECT_EQ(found({}, u"%"_s), QStringList());
}

TEST_P(FamilyHistory, changesThatAreNotMergedYetCount)
{
    const auto rows = sample::Rows<PageRow>::generated(1000, [](qsizetype i) {
        return PageRow{.url = u"https://a.example/%1"_s.arg(i), .title = QString::number(i), .time = i + 1};
    });
    for (const Journal journal : {Journal::UnmergedWal, Journal::WalAlone, Journal::HotJournal}) {
        write(rows, journal);
        const QList<HistoryItem> items = read();
        ASSERT_EQ(items.size(), 1000);
        EXPECT_EQ(items.first().title, u"999"_s);
        EXPECT_EQ(items.last().title, u"0"_s);
        // What the file alone would have said.
        home.files.failure = [this](const QString &path) {
            return path == file() ? std::error_code()
                                  : std::make_error_code(std::errc::no_such_file_or_directory);
        };
        const auto alone = tryToRead(HistoryQuery::recent());
        EXPECT_TRUE(!alone || alone->size() != 1000);
        home.files.failure = {};
    }
}

TEST_P(FamilyHistory, awkwardTextsAreReadAsFarAsTheyGo)
{
    const QString megabyte = u"ü"_s.repeated(1'000'000);
    write(
        {{.id = 1,
          .url = u"https://a.example/"_s,
          .title = Text::raw(QByteArray("before\0after", 12)),
          .time = 9},
         {.id = 2, .url = u"https://b.example/"_s, .title = Text::raw("Z\xFCrich \xE2\x82"), .time = 8},
         {.id = 3, .url = u"https://c.example/"_s, .title = u"\u202Eright to left\u200F"_s, .time = 7},
         {.id = 4, .url = u"https://d.example/"_s, .title = megabyte, .time = 6},
         {.id = 5,
          .url = Text::raw(QByteArray("https://e.example/\0.evil.test/", 30)),
          .title = u"e"_s,
          .time = 5},
         {.id = 6, .url = u"https://f.example/"_s, .title = Text::raw(QByteArray("\0hidden", 7)), .time = 4},
         {.id = 7, .url = u"\uFEFFhttps://g.example/"_s, .title = u"\uFEFFmarked"_s, .time = 3}});
    const QList<HistoryItem> items = read();
    ASSERT_EQ(items.size(), 7);
    EXPECT_EQ(items[0].title, u"before"_s);
    EXPECT_TRUE(items[1].title.startsWith(u"Z\uFFFDrich \uFFFD"_s));
    EXPECT_EQ(items[2].title, u"\u202Eright to left\u200F"_s);
    EXPECT_EQ(items[3].title, megabyte);
    EXPECT_EQ(items[4].url, u"https://e.example/"_s);
    EXPECT_EQ(items[4].site, u"e.example"_s);
    EXPECT_EQ(items[5].title, u"https://f.example/"_s);
    EXPECT_EQ(items[6].url, u"\uFEFFhttps://g.example/"_s);
    EXPECT_EQ(items[6].title, u"\uFEFFmarked"_s);
    EXPECT_EQ(found(u"zz"_s), QStringList());
    EXPECT_EQ(found(u"üüü"_s).size(), 1);
}

TEST_P(FamilyHistory, aWordThatIsTooLongIsTheDatabasesError)
{
    write({{.url = u"https://a.example/"_s, .title = u"a"_s}});
    const auto items =
        tryToRead(HistoryQuery::matching(u"x"_s.repeated(50'001), {}, HistoryQuery::Order::Latest));
    ASSERT_FALSE(items.has_value());
    EXPECT_EQ(items.error(), ReadError::unreadable(u"query"_s, u"LIKE or GLOB pattern too complex"_s));
    // The longest that passes, with the two wildcards around it.
    EXPECT_EQ(found(u"x"_s.repeated(49'998)), QStringList());
}

TEST_P(FamilyHistory, moreWordsThanTheDatabaseTakesAreItsError)
{
    write({{.url = u"https://a.example/"_s, .title = u"a"_s}});
    const auto items =
        tryToRead(HistoryQuery::matching(u"a "_s.repeated(100'000), {}, HistoryQuery::Order::Latest));
    ASSERT_FALSE(items.has_value());
    EXPECT_EQ(items.error().path(), u"query"_s);
    EXPECT_EQ(found(u"a "_s.repeated(500)), QStringList{u"a"_s});
}

} // namespace roamlet::testing
