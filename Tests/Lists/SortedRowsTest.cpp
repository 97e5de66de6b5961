// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/SortedRows.h"

#include "Lists/ListRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

template<typename Row>
std::string sortedTitles(const QList<Row> &rows, const QList<SortComparator> &order,
                         const QString &locale = u"en_US"_s)
{
    return titles(*sortedRows(allRows(rows), order, Collation(locale)));
}

} // namespace

TEST(SortedRows, eachColumnOfHistoryHasItsOrder)
{
    const QList<HistoryItem> rows{visited(u"b9"_s, pointInTime(3), 10, chrome(u"Work 2"_s)),
                                  visited(u"B10"_s, pointInTime(1), -1, chrome(u"work 10"_s)),
                                  visited(u"a"_s, pointInTime(2), 9, Source::safari())};
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Title, SortOrder::Forward}}), "a b9 B10");
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Title, SortOrder::Reverse}}), "B10 b9 a");
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Date, SortOrder::Forward}}), "B10 a b9");
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Date, SortOrder::Reverse}}), "b9 a B10");
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Visits, SortOrder::Forward}}), "B10 a b9");
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Visits, SortOrder::Reverse}}), "b9 a B10");
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Source, SortOrder::Forward}}), "b9 B10 a");
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Source, SortOrder::Reverse}}), "a B10 b9");
}

TEST(SortedRows, eachColumnOfBookmarksHasItsOrder)
{
    Bookmark safari = bookmark(u"c"_s, pointInTime(2), {u"a"_s, u"b"_s});
    safari.source = Source::safari();
    const QList<Bookmark> rows{safari, bookmark(u"a"_s, pointInTime(1), {u"B"_s}),
                               bookmark(u"b"_s, {}, {u"a 2"_s})};
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Title, SortOrder::Forward}}), "a b c");
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Folder, SortOrder::Forward}}), "c b a");
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Folder, SortOrder::Reverse}}), "a b c");
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Date, SortOrder::Forward}}), "a c b");
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Source, SortOrder::Forward}}), "a b c");
}

TEST(SortedRows, nodesOfATreeSortByTitleAndDate)
{
    BookmarkNode folder;
    folder.title = u"b"_s;
    folder.children.emplace();
    BookmarkNode leaf;
    leaf.title = u"a"_s;
    leaf.dateAdded = pointInTime(1);
    const QList<BookmarkNode> nodes{folder, leaf};
    EXPECT_EQ(sortedTitles(nodes, {{SortColumn::Title, SortOrder::Forward}}), "a b");
    EXPECT_EQ(sortedTitles(nodes, {{SortColumn::Title, SortOrder::Reverse}}), "b a");
    EXPECT_EQ(sortedTitles(nodes, {{SortColumn::Date, SortOrder::Forward}}), "a b");
    EXPECT_EQ(sortedTitles(nodes, {{SortColumn::Date, SortOrder::Reverse}}), "b a");
}

TEST(SortedRows, bookmarksWithoutADateAreLastWithTheOldestFirstAndFirstWithTheNewest)
{
    const QList<Bookmark> rows{bookmark(u"none1"_s), bookmark(u"new"_s, pointInTime(2)), bookmark(u"none2"_s),
                               bookmark(u"old"_s, pointInTime(-1))};
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Date, SortOrder::Forward}}), "old new none1 none2");
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Date, SortOrder::Reverse}}), "none1 none2 new old");
}

TEST(SortedRows, theFirstComparatorDecidesAndTheNextBreaksTies)
{
    const QList<HistoryItem> rows{visited(u"b"_s, pointInTime(1), 2), visited(u"a"_s, pointInTime(2), 1),
                                  visited(u"c"_s, pointInTime(3), 2), visited(u"d"_s, pointInTime(4), 1)};
    EXPECT_EQ(sortedTitles(
                  rows, {{SortColumn::Visits, SortOrder::Reverse}, {SortColumn::Title, SortOrder::Forward}}),
              "b c a d");
    EXPECT_EQ(sortedTitles(
                  rows, {{SortColumn::Visits, SortOrder::Forward}, {SortColumn::Date, SortOrder::Reverse}}),
              "d a c b");
    EXPECT_EQ(sortedTitles(
                  rows, {{SortColumn::Title, SortOrder::Reverse}, {SortColumn::Visits, SortOrder::Forward}}),
              "d c b a");
}

TEST(SortedRows, equalRowsKeepTheirOrderInBothDirections)
{
    QList<HistoryItem> rows;
    for (int i = 0; i < 500; ++i) {
        HistoryItem row = visited(u"title"_s, pointInTime(5), i % 3);
        row.id = QString::number(i);
        rows.append(row);
    }
    const Collation collation(u"en_US"_s);
    for (const SortOrder direction : {SortOrder::Forward, SortOrder::Reverse}) {
        for (const SortColumn column : {SortColumn::Title, SortColumn::Date, SortColumn::Source})
            EXPECT_EQ(*sortedRows(allRows(rows), {{column, direction}}, collation), allRows(rows));
        const RowPointers<HistoryItem> sorted =
            *sortedRows(allRows(rows), {{SortColumn::Visits, direction}}, collation);
        for (std::size_t i = 1; i < sorted.size(); ++i) {
            if (sorted[i - 1]->visitCount == sorted[i]->visitCount) {
                EXPECT_LT(sorted[i - 1]->id.toInt(), sorted[i]->id.toInt());
            }
        }
    }
}

TEST(SortedRows, withoutAnOrderRowsStayAsTheyAre)
{
    const QList<HistoryItem> rows{visited(u"b"_s, pointInTime(1)), visited(u"a"_s, pointInTime(2))};
    EXPECT_EQ(sortedTitles(rows, {}), "b a");
    EXPECT_EQ(sortedTitles(QList<HistoryItem>(), {{SortColumn::Title, SortOrder::Forward}}), "");
}

TEST(SortedRows, doNotTouchTheListThatTheyCameFrom)
{
    const QList<HistoryItem> rows{visited(u"b"_s, pointInTime(1)), visited(u"a"_s, pointInTime(2))};
    const QList<HistoryItem> before{visited(u"b"_s, pointInTime(1)), visited(u"a"_s, pointInTime(2))};
    EXPECT_EQ(sortedTitles(rows, {{SortColumn::Title, SortOrder::Forward}}), "a b");
    EXPECT_EQ(rows, before);
}

TEST(SortedRows, haveTheOrderOfComparingThemInPairs)
{
    // Titles with long common beginnings, numbers, other scripts, nothing, and the same in other cases.
    const QStringList parts{
        u"Straße"_s, u"strasse"_s, u" "_s,    u"10"_s,         u"9"_s, u"The very same beginning of "_s,
        u"É"_s,      u"e\u0301"_s, u"日本"_s, u"\U0001F600"_s, u"-"_s, u"a"_s,
        u"A"_s,      u"\u0000"_s};
    std::mt19937 random(7);
    QList<HistoryItem> rows;
    for (int i = 0; i < 3000; ++i) {
        QString title;
        for (auto count = random() % 5; count > 0; --count)
            title += parts[static_cast<qsizetype>(random() % static_cast<unsigned>(parts.size()))];
        HistoryItem row = visited(title, pointInTime(static_cast<double>(random() % 4)));
        row.title = title;
        rows.append(row);
    }
    for (const QString &locale : {u"en_US"_s, u"de_DE"_s, u"sv_SE"_s, u"ja_JP"_s, u"C"_s}) {
        const Collation collation(locale);
        QList<HistoryItem> expected = rows;
        std::ranges::stable_sort(expected, [&](const HistoryItem &left, const HistoryItem &right) {
            if (left.lastVisit != right.lastVisit)
                return left.lastVisit < right.lastVisit;
            return collation.compare(left.title, right.title) > 0;
        });
        EXPECT_EQ(copies(*sortedRows(
                      allRows(rows),
                      {{SortColumn::Date, SortOrder::Forward}, {SortColumn::Title, SortOrder::Reverse}},
                      collation)),
                  expected)
            << qPrintable(locale);
    }
}

TEST(SortedRows, takeTitlesOfAnyLength)
{
    const QString same(200'000, u'x');
    const QList<HistoryItem> rows{visited(same + u"2"_s, pointInTime(1)), visited(same, pointInTime(2)),
                                  visited(same + u"10"_s, pointInTime(3)),
                                  visited(same + u"1"_s, pointInTime(4))};
    const QList<HistoryItem> sorted =
        copies(*sortedRows(allRows(rows), {{SortColumn::Title, SortOrder::Forward}}, Collation(u"en_US"_s)));
    EXPECT_EQ(sorted, (QList<HistoryItem>{rows[1], rows[3], rows[0], rows[2]}));
}

TEST(SortedRows, areNothingOnceAStopIsRequested)
{
    const auto source = std::make_unique<std::stop_source>();
    source->request_stop();
    const QList<HistoryItem> rows{visited(u"b"_s, pointInTime(1))};
    EXPECT_FALSE(sortedRows(allRows(rows), {{SortColumn::Title, SortOrder::Forward}}, Collation(u"en_US"_s),
                            source->get_token()));
}

} // namespace roamlet::testing
