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
    HistoryText::Builder builder(Source::safari(), HistoryText::Builder::Ties::FirstRead,
                                 HistoryText::Builder::Pages::SeveralRows, plenty);
    builder.add({.id = 1, .url = "u", .title = "old name", .order = 1, .lastVisit = pointInTime(1)});
    builder.add({.id = 1, .url = "u", .title = "new name", .order = 5, .lastVisit = pointInTime(5)});
    builder.add({.id = 1, .url = "u", .title = "old name", .order = 3, .lastVisit = pointInTime(3)});
    builder.add({.id = 2, .url = "u", .title = "other name", .order = 4, .lastVisit = pointInTime(4)});
    const auto text = builder.finish({});
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
    auto builder = builderOf();
    builder.add({.id = 1, .url = "https://a.test/", .title = "a"});
    const auto text = builder.finish({});
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
}

TEST(HistoryTextSearchTest, asManyAsAreWantedAreTheFirstOfAll)
{
    auto builder = builderOf();
    sample::Random random(7);
    constexpr qint64 count = 30'000;
    for (qint64 i = 0; i < count; ++i) {
        const QByteArray url = "https://" + QByteArray(random.below(50) == 0 ? "rare" : "often") + ".test/" +
                               QByteArray::number(i);
        const QByteArray title = random.below(300) == 0 ? "needle \xC3\x89\xFF"
                                 : random.below(3) == 0 ? "hay \xC3\x89"
                                                        : "hay";
        builder.add({.id = i,
                     .url = std::string_view(url.constData(), static_cast<size_t>(url.size())),
                     .title = std::string_view(title.constData(), static_cast<size_t>(title.size())),
                     .order = -i,
                     .lastVisit = random.below(9) == 0 ? std::nullopt : std::optional(pointInTime(1.0))});
    }
    const auto text = builder.finish({});
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
    HistoryText::Builder builder(Source::safari(), HistoryText::Builder::Ties::FirstRead,
                                 HistoryText::Builder::Pages::SeveralRows, plenty);
    constexpr qint64 pages = 6000;
    for (qint64 page = 0; page < pages; ++page) {
        for (const std::string_view title : {"word one", "word two", "other"})
            builder.add({.id = page,
                         .url = "https://a.test/",
                         .title = title,
                         .order = -page,
                         .lastVisit = pointInTime(1)});
    }
    const auto text = builder.finish({});
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
    auto builder = builderOf();
    builder.add(
        {.id = 1, .url = "https://a.test/", .title = "small", .order = 2, .lastVisit = pointInTime(1)});
    builder.add({.id = 2, .url = "https://b.test/", .title = title, .order = 1, .lastVisit = pointInTime(1)});
    const auto text = builder.finish({});
    EXPECT_EQ(text->search(wordsQuery({u"needles"_s}))->rows.size(), 0U);
    EXPECT_EQ(found(*text, wordsQuery({u"small"_s})), QStringList{u"small"_s});
    const auto answer = text->search(wordsQuery({u"needle"_s, u"b.test"_s}));
    ASSERT_EQ(answer->results.items.size(), 1);
    EXPECT_EQ(answer->results.items.first().title.size(), static_cast<qsizetype>(title.size()));
    auto small = builderOf(size);
    EXPECT_THROW(small.add({.id = 1, .title = title}), std::bad_alloc);
}

TEST(HistoryTextSearchTest, aMillionEmptyRowsAreSearched)
{
    auto builder = builderOf();
    for (qint64 i = 0; i < 1'000'000; ++i)
        builder.add({.id = i, .order = i, .lastVisit = pointInTime(1), .visitCount = i % 7});
    builder.add({.id = -1, .title = "x", .order = -1, .lastVisit = pointInTime(1)});
    const auto text = builder.finish({});
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
    auto builder = builderOf();
    builder.add({.id = 1, .url = "https://a.test/", .title = title, .order = 2, .lastVisit = pointInTime(2)});
    builder.add({.id = 2, .url = "https://b.test/", .title = "n", .order = 1, .lastVisit = pointInTime(1)});
    const auto text = builder.finish({});
    const auto answer = text->search(wordsQuery({u"needle"_s, u"a.test"_s}));
    ASSERT_TRUE(answer);
    ASSERT_EQ(answer->results.items.size(), 1);
    EXPECT_EQ(answer->results.items.first().title.size(), 20'000'006);
    EXPECT_EQ(text->search(wordsQuery({u"needles"_s}))->rows.size(), 0U);
}

TEST(HistoryTextSearchTest, takesHalfAsMuchMemoryMoreThanTheTexts)
{
    auto builder = builderOf();
    size_t texts = 0;
    for (qint64 i = 0; i < 100'000; ++i) {
        const sample::Page page = sample::page(1, i);
        const std::string url = page.url.toStdString();
        const std::string title = page.title.toStdString();
        texts += url.size() + title.size();
        builder.add({.id = i, .url = url, .title = title, .order = (i * 7919) % 100'003});
    }
    EXPECT_LE(builder.finish({})->byteCount(), texts + texts / 2);
}

TEST(HistoryTextSearchTest, aTextThatIsStoppedWhileItIsMadeIsNone)
{
    auto builder = builderOf();
    builder.add({.id = 1, .url = "a"});
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(builder.finish(stop.get_token()), nullptr);
}

TEST(HistoryTextSearchTest, moreBytesThanAllowedAreRefused)
{
    auto builder = builderOf(10'000);
    const std::string title(9'000, 't');
    builder.add({.id = 1, .title = title});
    EXPECT_THROW(builder.add({.id = 2, .title = title}), std::bad_alloc);
}

} // namespace roamlet::testing
