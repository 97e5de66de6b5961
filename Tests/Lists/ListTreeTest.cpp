// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/ListTree.h"

#include "Lists/ListRows.h"

#include <gtest/gtest.h>

#include <string>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

constexpr qint64 day = 86'400;

/// Saturday, 2026-05-09, at 06:13:20 in UTC.
const ListTree::Setting setting{.collation = std::make_shared<const Collation>(u"en_US"_s),
                                .calendar = {.timeZone = u"UTC"_s, .locale = u"en_US"_s},
                                .now = pointInTime(1'778'307'200)};

HistoryItem page(const QString &title, qint64 secondsAgo, const QString &site)
{
    return HistoryItem::ofRow(1, title, u"https://" % site % u"/",
                              setting.now - std::chrono::seconds(secondsAgo), 1, chrome());
}

const QList<HistoryItem> pages{page(u"b"_s, day, u"z.example"_s), page(u"a"_s, 0, u"y.example"_s),
                               page(u"c"_s, 1, u"z.example"_s)};

std::string titlesOf(const std::optional<RowTree> &tree)
{
    std::string result;
    for (const RowTree::Node &node : tree->nodes()) {
        if (&node != &tree->nodes().front())
            result += (result.empty() ? "" : " ") + node.row.title.toStdString();
    }
    return result;
}

QList<Bookmark> bookmarksOfTwoSources()
{
    QList<Bookmark> result{bookmark(u"Foo"_s), bookmark(u"Bar"_s, {}, {}, u"https://other.example/"_s),
                           bookmark(u"Foo too"_s)};
    result[2].source = chrome(u"Default"_s);
    return result;
}

} // namespace

TEST(ListTree, historyIsSortedAndCutAndNotSearchedAgain)
{
    EXPECT_EQ(titlesOf(ListTree::ofHistory(pages, {.search = u"nowhere"_s}, setting)), "b a c");
    EXPECT_EQ(
        titlesOf(ListTree::ofHistory(pages, {.order = {{SortColumn::Title, SortOrder::Reverse}}}, setting)),
        "c b a");
    EXPECT_EQ(
        titlesOf(ListTree::ofHistory(
            pages, {.grouping = Grouping::Day, .order = {{SortColumn::Date, SortOrder::Reverse}}}, setting)),
        "Today Yesterday a c b");
    EXPECT_EQ(
        titlesOf(ListTree::ofHistory(
            pages, {.grouping = Grouping::Day, .order = {{SortColumn::Date, SortOrder::Forward}}}, setting)),
        "Yesterday Today b c a");
    EXPECT_EQ(titlesOf(ListTree::ofHistory(pages, {.grouping = Grouping::Site}, setting)),
              "y.example z.example a b c");
}

TEST(ListTree, bookmarksAreNarrowedSearchedSortedAndCut)
{
    const QList<Bookmark> all = bookmarksOfTwoSources();
    const auto list = [&all](const ListWish &wish) {
        return titlesOf(ListTree::ofBookmarks(all, wish, setting));
    };
    EXPECT_EQ(list({}), "Foo Bar Foo too");
    EXPECT_EQ(list({.sourceID = u"chrome/Default"_s}), "Foo too");
    EXPECT_EQ(list({.sourceID = u"nobody"_s}), "");
    EXPECT_EQ(list({.site = u"other.example"_s}), "Bar");
    EXPECT_EQ(list({.sourceID = u"chrome/Default"_s, .site = u"other.example"_s}), "");
    EXPECT_EQ(list({.search = u" FOO  "_s}), "Foo Foo too");
    EXPECT_EQ(list({.search = u"foo"_s, .order = {{SortColumn::Title, SortOrder::Reverse}}}), "Foo too Foo");
    EXPECT_EQ(list({.search = u"foo too"_s, .site = u"other.example"_s}), "");
    EXPECT_EQ(list({.grouping = Grouping::Site, .order = {{SortColumn::Title, SortOrder::Forward}}}),
              "example.org other.example Foo Foo too Bar");
    EXPECT_EQ(list({.grouping = Grouping::Day}), "Foo Bar Foo too") << "a bookmark has no day";
}

TEST(ListTree, whatIsStoppedIsNoList)
{
    std::stop_source stop;
    stop.request_stop();
    const ListWish sorted{.order = {{SortColumn::Title, SortOrder::Forward}}};
    EXPECT_FALSE(ListTree::ofHistory(pages, sorted, setting, stop.get_token()));
    EXPECT_FALSE(ListTree::ofBookmarks(bookmarksOfTwoSources(), sorted, setting, stop.get_token()));
}

} // namespace roamlet::testing
