// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/PageRanking.h"

#include "Readers/HistoryTextTest.h"
#include "SampleHome/SampleText.h"

#include <algorithm>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

constexpr double day = 24.0 * 60 * 60;

int placesOf(const QStringList &words, std::string_view url, std::string_view title)
{
    return PageRanking::of(words)->rank(url, title, pointInTime(0), 1).places;
}

PageRank rankOf(qint64 visits, double days)
{
    return PageRanking::of({u"a"_s})->rank("https://x.test/", "", pointInTime(days * day), visits);
}

QStringList bestTitles(const HistoryText &text, const QStringList &words, size_t most = 10)
{
    QStringList result;
    const std::vector<RankedPage> best = text.best(words, most).value();
    for (const RankedPage &page : best)
        result.append(page.item.title);
    return result;
}

} // namespace

TEST(PageRankingTest, aWordCountsByItsBestPlace)
{
    EXPECT_EQ(placesOf({u"garden"_s}, "https://a.test/", "Garden plans"), 0);
    EXPECT_EQ(placesOf({u"garden"_s}, "https://a.test/", "My kindergarden, garden"), 1);
    EXPECT_EQ(placesOf({u"garden"_s}, "https://www.garden.test/", "Kindergarden"), 2);
    EXPECT_EQ(placesOf({u"garden"_s}, "https://a.test/garden", "Kindergarden"), 3);
    EXPECT_EQ(placesOf({u"garden"_s, u"plans"_s}, "https://a.test/", "Garden plans"), 1);
}

TEST(PageRankingTest, theSiteIsTheHostAndNothingAroundIt)
{
    EXPECT_EQ(placesOf({u"https"_s}, "https://a.test/", ""), 3);
    EXPECT_EQ(placesOf({u"www"_s}, "https://www.a.test/", ""), 3);
    EXPECT_EQ(placesOf({u"anna"_s}, "https://anna@a.test/", ""), 3);
    EXPECT_EQ(placesOf({u"a.test"_s}, "https://anna@A.TEST:80/", ""), 2);
    EXPECT_EQ(placesOf({u"about"_s}, "about:blank", ""), 3);
    EXPECT_EQ(placesOf({u"test"_s}, "https://a?test", ""), 3);
}

TEST(PageRankingTest, lettersAreThoseOfASearch)
{
    EXPECT_EQ(placesOf({u"οδός"_s}, "https://a.test/", "οδόσ"), 0);
    EXPECT_EQ(placesOf({u"é"_s}, "https://a.test/", "é"), 0);
    // Behind a letter beyond ASCII nothing begins a word.
    EXPECT_EQ(placesOf({u"ab"_s}, "https://b.test/", "éab"), 3);
}

TEST(PageRankingTest, twiceAsManyVisitsMakeUpForAMonth)
{
    EXPECT_TRUE(rankOf(7, 0).isBefore(rankOf(3, 29)));
    EXPECT_TRUE(rankOf(3, 31).isBefore(rankOf(7, 0)));
}

TEST(PageRankingTest, ofEqualPagesTheNewestIsFirst)
{
    // A month and twice the visits outweigh each other to the bit.
    EXPECT_EQ(rankOf(3, 30).use, rankOf(7, 0).use);
    EXPECT_TRUE(rankOf(3, 30).isBefore(rankOf(7, 0)));
    EXPECT_FALSE(rankOf(7, 0).isBefore(rankOf(3, 30)));
}

TEST(PageRankingTest, aBrokenTimeOrCountHasItsPlace)
{
    EXPECT_TRUE(rankOf(1, 0).isBefore(rankOf(-5, -1)));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(rankOf(1, 0).isBefore(rankOf(1, nan)));
}

TEST(PageRankingTest, aWordThatNoTextHoldsHasNoRanking)
{
    EXPECT_FALSE(PageRanking::of({u""_s}));
    EXPECT_FALSE(PageRanking::of({u"a"_s + QChar(QChar::Null)}));
}

TEST(PageRankingTest, aTextGivesItsBestRows)
{
    TextRows rows;
    rows.add({.id = 1,
              .url = "https://a.test/map",
              .title = "elsewhere",
              .lastVisit = pointInTime(5),
              .visitCount = 9});
    rows.add({.id = 2,
              .url = "https://b.test/",
              .title = "The map",
              .lastVisit = pointInTime(4),
              .visitCount = 1});
    rows.add(
        {.id = 3, .url = "https://c.test/", .title = "Maps", .lastVisit = pointInTime(3), .visitCount = 1});
    rows.add(
        {.id = 4, .url = "https://map.test/", .title = "site", .lastVisit = pointInTime(2), .visitCount = 1});
    rows.add(
        {.id = 5, .url = "https://d.test/", .title = "Mapped", .lastVisit = pointInTime(1), .visitCount = 8});
    rows.add({.id = 6, .url = "https://e.test/", .title = "Map never visited", .visitCount = 8});
    const auto text = rows.text();
    EXPECT_EQ(bestTitles(*text, {u"map"_s}),
              (QStringList{u"Mapped"_s, u"Maps"_s, u"The map"_s, u"site"_s, u"elsewhere"_s}));
    EXPECT_EQ(bestTitles(*text, {u"map"_s}, 2), (QStringList{u"Mapped"_s, u"Maps"_s}));
    EXPECT_EQ(bestTitles(*text, {u"map"_s}, 0), QStringList());
    EXPECT_EQ(bestTitles(*text, {u"map"_s, u"the"_s}), QStringList{u"The map"_s});
    EXPECT_FALSE(text->best({u"a"_s + QChar(QChar::Null)}, 5));
}

TEST(PageRankingTest, aPageOfSeveralTitlesIsGivenOnce)
{
    TextRows rows(plenty, HistoryText::Builder::Pages::SeveralRows);
    rows.add({.id = 1, .url = "u", .title = "old name", .order = 1, .lastVisit = pointInTime(1)});
    rows.add({.id = 1, .url = "u", .title = "new name", .order = 5, .lastVisit = pointInTime(5)});
    EXPECT_EQ(bestTitles(*rows.text(), {u"name"_s}), QStringList{u"new name"_s});
}

TEST(PageRankingTest, theBestOfManyAreThoseOfASortOfAll)
{
    TextRows rows;
    sample::Random random(3);
    for (qint64 i = 0; i < 5'000; ++i) {
        const std::string_view words[] = {"tea time", "iced tea", "steam", "team tea", "other"};
        rows.add({.id = i,
                  .url = random.below(2) == 0 ? "https://tea.test/" : "https://x.test/tea",
                  .title = words[random.below(5)],
                  .order = i,
                  .lastVisit = pointInTime(static_cast<double>(random.below(100)) * day),
                  .visitCount = random.below(4)});
    }
    const auto text = rows.text();
    const PageRanking ranking = *PageRanking::of({u"tea"_s});
    QList<HistoryItem> all =
        text->search(wordsQuery({u"tea"_s}, HistoryQuery::Order::Latest, -1))->results.items;
    ASSERT_EQ(all.size(), 5'000);
    const auto best = text->best({u"tea"_s}, 20).value();
    ASSERT_EQ(best.size(), 20U);
    std::ranges::stable_sort(all, [&](const HistoryItem &left, const HistoryItem &right) {
        return ranking.rank(left).isBefore(ranking.rank(right));
    });
    for (qsizetype i = 0; i < 20; ++i) {
        const PageRank wanted = ranking.rank(all[i]);
        const PageRank &given = best[static_cast<size_t>(i)].rank;
        EXPECT_FALSE(wanted.isBefore(given) || given.isBefore(wanted)) << i;
    }
}

} // namespace roamlet::testing
