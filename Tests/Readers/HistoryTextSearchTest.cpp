// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/HistoryTextTest.h"
#include "SampleHome/SampleText.h"

#include <algorithm>
#include <new>
#include <stop_token>
#include <utility>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

TEST(HistoryTextSearchTest, aSafariPageIsFoundByEachOfItsTitlesAndShownOnce)
{
    TextRows rows(plenty, HistoryText::Builder::Pages::SeveralRows);
    rows.add({.id = 1, .url = "u", .title = "old name", .order = 1, .lastVisit = pointInTime(1)});
    rows.add({.id = 1, .url = "u", .title = "new name", .order = 5, .lastVisit = pointInTime(5)});
    rows.add({.id = 1, .url = "u", .title = "old name", .order = 3, .lastVisit = pointInTime(3)});
    rows.add({.id = 2, .url = "u", .title = "other name", .order = 4, .lastVisit = pointInTime(4)});
    const auto text = rows.text();
    EXPECT_EQ(text->rowCount(), 3U);
    for (const HistoryQuery::Order order : {HistoryQuery::Order::Latest, HistoryQuery::Order::MostVisited}) {
        EXPECT_EQ(found(*text, wordsQuery({u"name"_s}, order)),
                  (QStringList{u"new name"_s, u"other name"_s}));
        EXPECT_EQ(found(*text, wordsQuery({u"old"_s}, order)), QStringList{u"old name"_s});
    }
    EXPECT_EQ(text->search(wordsQuery({u"old"_s}))->results.items.first().lastVisit, pointInTime(3));
}

TEST(HistoryTextSearchTest, whatOnlyTheDatabaseAnswersIsLeftToIt)
{
    TextRows rows;
    rows.add({.id = 1, .url = "https://a.test/", .title = "a"});
    const auto text = rows.text();
    const QString longest = u"a"_s.repeated(9'998);
    EXPECT_TRUE(text->search(wordsQuery({longest})));
    EXPECT_FALSE(text->search(wordsQuery({longest + u"a"})));
    EXPECT_TRUE(text->search(wordsQuery(QStringList(500, u"a"_s))));
    EXPECT_FALSE(text->search(wordsQuery(QStringList(501, u"a"_s))));
    EXPECT_FALSE(text->search(wordsQuery({u""_s})));
    EXPECT_FALSE(text->search(wordsQuery({u"a"_s + QChar(QChar::Null)})));
    HistoryQuery site;
    site.site = u"a"_s + QChar(QChar::Null);
    EXPECT_FALSE(text->search(site));
    HistoryQuery since;
    since.visited.begin = pointInTime(1);
    EXPECT_FALSE(text->search(since));
    HistoryQuery row;
    row.rowID = 1;
    EXPECT_FALSE(text->search(row));
}

TEST(HistoryTextSearchTest, asManyAsAreWantedAreTheFirstOfAll)
{
    TextRows rows;
    sample::Random random(7);
    constexpr qint64 count = 30'000;
    for (qint64 i = 0; i < count; ++i) {
        const QByteArray url = "https://" + QByteArray(random.below(50) == 0 ? "rare" : "often") + ".test/" +
                               QByteArray::number(i);
        const QByteArray title = random.below(300) == 0 ? "needle \xC3\x89\xFF"
                                 : random.below(3) == 0 ? "hay \xC3\x89"
                                                        : "hay";
        rows.add({.id = i,
                  .url = std::string_view(url.constData(), static_cast<size_t>(url.size())),
                  .title = std::string_view(title.constData(), static_cast<size_t>(title.size())),
                  .order = -i,
                  .lastVisit = random.below(9) == 0 ? std::nullopt : std::optional(pointInTime(1.0))});
    }
    const auto text = rows.text();
    for (const QStringList &words : {QStringList{u"hay"_s},
                                     {u"needle"_s},
                                     {u"hay"_s, u"rare"_s},
                                     {u"É"_s},
                                     {u"needle"_s, u"often"_s, u"1"_s},
                                     {u"nowhere"_s},
                                     {}}) {
        for (const std::optional<QString> &site : {std::optional<QString>(), std::optional(u"rare.test"_s)}) {
            HistoryQuery query = wordsQuery(words, HistoryQuery::Order::Latest, -1);
            query.site = site;
            const auto all = text->search(query);
            ASSERT_TRUE(all && all->hasAllRows);
            for (const qint64 limit : {0, 1, 10, 500, 1000, 29'999, 30'000, 40'000}) {
                query.limit = limit;
                const auto some = text->search(query);
                const auto wanted = std::min(static_cast<size_t>(limit), all->rows.size());
                ASSERT_GE(some->rows.size(), wanted);
                EXPECT_TRUE(std::equal(some->rows.begin(), some->rows.end(), all->rows.begin()));
                if (some->hasAllRows || std::cmp_greater(limit, all->rows.size())) {
                    EXPECT_EQ(some->rows.size(), all->rows.size()) << limit;
                }
                EXPECT_EQ(some->results.items, all->results.items.first(some->results.items.size()));
                EXPECT_LE(some->results.items.size(), limit);
            }
        }
    }
}

TEST(HistoryTextSearchTest, asManyPagesAsAreWantedAreFoundWhereEachHasSeveralRows)
{
    TextRows rows(plenty, HistoryText::Builder::Pages::SeveralRows);
    constexpr qint64 pages = 6000;
    for (qint64 page = 0; page < pages; ++page) {
        for (const std::string_view title : {"word one", "word two", "other"})
            rows.add({.id = page,
                      .url = "https://a.test/",
                      .title = title,
                      .order = -page,
                      .lastVisit = pointInTime(1)});
    }
    const auto text = rows.text();
    const auto all = text->search(wordsQuery({u"word"_s}, HistoryQuery::Order::Latest, -1));
    ASSERT_EQ(all->results.items.size(), pages) << "each once";
    for (const qint64 limit : {1, 1000, 5999, 6000}) {
        const auto some = text->search(wordsQuery({u"word"_s}, HistoryQuery::Order::Latest, limit));
        EXPECT_EQ(some->results.items, all->results.items.first(limit));
        EXPECT_TRUE(some->results.isCapped);
    }
}

TEST(HistoryTextSearchTest, aRowOfAHundredMegabytesIsSearched)
{
    constexpr size_t size = 100'000'000;
    const std::string title = std::string(size, 'x') + " needle";
    TextRows rows;
    rows.add({.id = 1, .url = "https://a.test/", .title = "small", .order = 2, .lastVisit = pointInTime(1)});
    rows.add({.id = 2, .url = "https://b.test/", .title = title, .order = 1, .lastVisit = pointInTime(1)});
    const auto text = rows.text();
    EXPECT_EQ(text->search(wordsQuery({u"needles"_s}))->rows.size(), 0U);
    EXPECT_EQ(found(*text, wordsQuery({u"small"_s})), QStringList{u"small"_s});
    const auto answer = text->search(wordsQuery({u"needle"_s, u"b.test"_s}));
    ASSERT_EQ(answer->results.items.size(), 1);
    EXPECT_EQ(answer->results.items.first().title.size(), static_cast<qsizetype>(title.size()));
    TextRows small(size);
    small.add({.id = 1, .title = title});
    EXPECT_THROW(small.text(), std::bad_alloc);
}

TEST(HistoryTextSearchTest, aMillionEmptyRowsAreSearched)
{
    TextRows rows;
    for (qint64 i = 0; i < 1'000'000; ++i)
        rows.add({.id = i, .order = i, .lastVisit = pointInTime(1), .visitCount = i % 7});
    rows.add({.id = -1, .title = "x", .order = -1, .lastVisit = pointInTime(1)});
    const auto text = rows.text();
    EXPECT_EQ(text->rowCount(), 1'000'001U);
    const auto answer = text->search(wordsQuery({u"x"_s}));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->rows, HistoryText::RowNumbers{1'000'000});
    EXPECT_EQ(text->search(wordsQuery({u"y"_s}))->rows.size(), 0U);
    const auto blanks = text->search(wordsQuery({u" "_s}));
    EXPECT_EQ(blanks->results.items.size(), 1000);
    EXPECT_TRUE(blanks->results.isCapped);
    EXPECT_FALSE(blanks->hasAllRows) << "nobody needs to see them all";
    EXPECT_EQ(text->search(wordsQuery({u" "_s}, HistoryQuery::Order::Latest, -1))->rows.size(), 1'000'001U);
    const auto most = text->search(listing(HistoryQuery::Order::MostVisited, 2));
    ASSERT_EQ(most->results.items.size(), 2);
    EXPECT_EQ(most->results.items[0].id, u"safari/999998"_s);
    EXPECT_EQ(most->results.items[1].id, u"safari/999991"_s);
}

TEST(HistoryTextSearchTest, aTitleOfMegabytesIsSearchedToItsEnd)
{
    const QByteArray bytes = QByteArray(20'000'000, 'n') + "Needle";
    const std::string_view title(bytes.constData(), static_cast<size_t>(bytes.size()));
    TextRows rows;
    rows.add({.id = 1, .url = "https://a.test/", .title = title, .order = 2, .lastVisit = pointInTime(2)});
    rows.add({.id = 2, .url = "https://b.test/", .title = "n", .order = 1, .lastVisit = pointInTime(1)});
    const auto text = rows.text();
    const auto answer = text->search(wordsQuery({u"needle"_s, u"a.test"_s}));
    ASSERT_TRUE(answer);
    ASSERT_EQ(answer->results.items.size(), 1);
    EXPECT_EQ(answer->results.items.first().title.size(), 20'000'006);
    EXPECT_EQ(text->search(wordsQuery({u"needles"_s}))->rows.size(), 0U);
}

TEST(HistoryTextSearchTest, takesHalfAsMuchMemoryMoreThanTheTexts)
{
    TextRows rows;
    size_t texts = 0;
    for (qint64 i = 0; i < 100'000; ++i) {
        const sample::Page page = sample::page(1, i);
        const std::string url = page.url.toStdString();
        const std::string title = page.title.toStdString();
        texts += url.size() + title.size();
        rows.add({.id = i, .url = url, .title = title, .order = (i * 7919) % 100'003});
    }
    EXPECT_LE(rows.text()->byteCount(), texts + texts / 2);
}

TEST(HistoryTextSearchTest, rowsThatComeInTwoPartsAreOneText)
{
    using Builder = HistoryText::Builder;
    for (const Builder::Ties ties : {Builder::Ties::FirstRead, Builder::Ties::LastRead}) {
        for (const Builder::Pages pages : {Builder::Pages::OneRow, Builder::Pages::SeveralRows}) {
            TextRows rows(plenty, pages, ties);
            sample::Random random(11);
            constexpr qint64 count = 300;
            std::vector<size_t> pageStarts;
            for (qint64 i = 0; i < count; ++i) {
                pageStarts.push_back(static_cast<size_t>(i) * 2);
                for (const char *title : {"word", random.below(3) == 0 ? "word" : "\xFFother"}) {
                    const qint64 time = random.below(20);
                    rows.add({.id = i,
                              .url = "https://a.test/",
                              .title = title,
                              .order = time,
                              .lastVisit = pointInTime(static_cast<double>(time)),
                              .visitCount = i % 5});
                }
            }
            const auto whole = rows.text();
            for (const size_t first : {pageStarts[0], pageStarts[1], pageStarts[150], pageStarts[299]}) {
                const auto inParts = rows.text(first);
                ASSERT_EQ(inParts->rowCount(), whole->rowCount());
                for (const QString &word : {u"word"_s, u"other"_s, u"https"_s, u"é"_s}) {
                    for (const HistoryQuery::Order order :
                         {HistoryQuery::Order::Latest, HistoryQuery::Order::MostVisited}) {
                        const HistoryQuery query = wordsQuery({word}, order, 100);
                        EXPECT_EQ(inParts->search(query)->results, whole->search(query)->results);
                    }
                }
            }
        }
    }
}

TEST(HistoryTextSearchTest, rowsThatAreOthersTheSecondTimeAreNoText)
{
    using Builder = HistoryText::Builder;
    const HistoryTextRow row{.id = 1, .url = "a", .title = "b"};
    const HistoryTextRow longer{.id = 1, .url = "a", .title = "longer"};
    const auto made = [&](const std::vector<HistoryTextRow> &second) {
        Builder builder(Source::safari(), Builder::Ties::FirstRead, Builder::Pages::OneRow, plenty);
        builder.part(0).measure(row);
        builder.part(0).measure(row);
        builder.part(0).sort();
        builder.arrange();
        for (const HistoryTextRow &each : second)
            builder.part(0).put(each);
        return builder.finish();
    };
    EXPECT_NE(made({row, row}), nullptr);
    EXPECT_EQ(made({}), nullptr);
    EXPECT_EQ(made({row}), nullptr);
    EXPECT_EQ(made({row, longer}), nullptr);
    EXPECT_EQ(made({row, row, row}), nullptr);
}

TEST(HistoryTextSearchTest, moreBytesThanAllowedAreRefused)
{
    TextRows rows(10'000);
    const std::string title(9'000, 't');
    rows.add({.id = 1, .title = title});
    EXPECT_NE(rows.text(), nullptr);
    rows.add({.id = 2, .title = title});
    EXPECT_THROW(rows.text(), std::bad_alloc) << "in one part";
    EXPECT_THROW(rows.text(1), std::bad_alloc) << "each of two parts alone would be small enough";
}

TEST(HistoryTextSearchTest, aPageThatIsReloadedAllTheTimeIsRefusedOnceItTakesTooMuch)
{
    TextRows rows(10'000, HistoryText::Builder::Pages::SeveralRows);
    const HistoryTextRow visit{.id = 1, .url = "u", .title = "t", .lastVisit = pointInTime(1)};
    for (int i = 0; i < 1000; ++i)
        rows.add(visit);
    EXPECT_EQ(rows.text()->rowCount(), 1U);
    for (int i = 0; i < 1000; ++i)
        rows.add(visit);
    EXPECT_THROW(rows.text(), std::bad_alloc);
}

} // namespace roamlet::testing
