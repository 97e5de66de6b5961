// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/ListKeys.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using History = SortComparator<HistoryItem>;

// Made anew each time, so that nothing is compared with a copy of itself.
SearchKey someSearch()
{
    return {.sourceID = u"safari"_s, .search = u"Words "_s, .site = u"example.org"_s, .generation = 3};
}

RefineKey<HistoryItem> someList()
{
    return {.sourceID = u"safari"_s,
            .search = u"Words "_s,
            .site = u"example.org"_s,
            .grouping = Grouping::Day,
            .order = {{History::Column::LastVisit, SortOrder::Reverse}},
            .generation = 3};
}

const SearchKey knownSearch = someSearch();
const RefineKey<HistoryItem> knownList = someList();

/// Whether `key` differs after `change`, in itself and in its hash.
template<typename Key, typename Change>
bool tellsApart(Key key, Change change)
{
    const Key before = key;
    change(key);
    return key != before && qHash(key) != qHash(before);
}

/// The four things that both keys know.
template<typename Key>
void expectToTellSearchesApart(const Key &key)
{
    EXPECT_TRUE(tellsApart(key, [](Key &changed) { changed.sourceID = u"chrome/Default"_s; }));
    EXPECT_TRUE(tellsApart(key, [](Key &changed) { changed.sourceID.reset(); }));
    EXPECT_TRUE(tellsApart(key, [](Key &changed) { changed.search = u"Words"_s; })) << "as typed";
    EXPECT_TRUE(tellsApart(key, [](Key &changed) { changed.site = u"example.com"_s; }));
    EXPECT_TRUE(tellsApart(key, [](Key &changed) { changed.site.reset(); }));
    EXPECT_TRUE(tellsApart(key, [](Key &changed) { ++changed.generation; }));
}

} // namespace

TEST(SearchKey, isEqualWhenAllOfItIs)
{
    EXPECT_EQ(someSearch(), knownSearch);
    EXPECT_EQ(qHash(someSearch()), qHash(knownSearch));
    expectToTellSearchesApart(knownSearch);
}

TEST(SearchKey, allSourcesAreNotASourceWithoutAnId)
{
    EXPECT_TRUE(tellsApart(SearchKey(), [](SearchKey &changed) { changed.sourceID = u""_s; }));
    EXPECT_TRUE(tellsApart(SearchKey(), [](SearchKey &changed) { changed.site = u""_s; }));
}

TEST(RefineKey, isEqualWhenAllOfItIs)
{
    EXPECT_EQ(someList(), knownList);
    EXPECT_EQ(qHash(someList()), qHash(knownList));
    expectToTellSearchesApart(knownList);
    using Key = RefineKey<HistoryItem>;
    EXPECT_TRUE(tellsApart(knownList, [](Key &changed) { changed.grouping = Grouping::Site; }));
    EXPECT_TRUE(tellsApart(knownList, [](Key &changed) { changed.order.clear(); }));
    EXPECT_TRUE(
        tellsApart(knownList, [](Key &changed) { changed.order.first().order = SortOrder::Forward; }));
    EXPECT_TRUE(tellsApart(knownList, [](Key &changed) { changed.order.append({History::Column::Title}); }));
}

TEST(RefineKey, changesWithTheSortColumnWhereTheSearchDoesNot)
{
    RefineKey<HistoryItem> sorted = knownList;
    sorted.order = {{History::Column::Title, SortOrder::Forward}};
    const auto searchOf = [](const RefineKey<HistoryItem> &key) {
        return SearchKey{key.sourceID, key.search, key.site, key.generation};
    };
    EXPECT_EQ(searchOf(sorted), searchOf(knownList)) << "no new search of the databases";
    EXPECT_NE(sorted, knownList) << "but a new list";
}

TEST(RefineKey, changesTogetherWithTheSearchWhenTheLibraryIsReloaded)
{
    EXPECT_TRUE(tellsApart(knownSearch, [](SearchKey &changed) { changed.generation = 4; }));
    EXPECT_TRUE(tellsApart(knownList, [](RefineKey<HistoryItem> &changed) { changed.generation = 4; }));
}

TEST(RefineKey, isMadeForBookmarksToo)
{
    using Key = RefineKey<Bookmark>;
    using Comparator = SortComparator<Bookmark>;
    const auto sortedByTitle = [] {
        Key key;
        key.order = {{Comparator::Column::Title, SortOrder::Forward}};
        return key;
    };
    const Key byTitle = sortedByTitle();
    EXPECT_EQ(byTitle, sortedByTitle());
    EXPECT_TRUE(
        tellsApart(byTitle, [](Key &changed) { changed.order.first().column = Comparator::Column::Folder; }));
}

} // namespace roamlet::testing
