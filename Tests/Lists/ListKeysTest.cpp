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

const SearchKey someSearch{
    .sourceID = u"safari"_s, .search = u"Words "_s, .site = u"example.org"_s, .generation = 3};

const RefineKey<HistoryItem> list{.sourceID = u"safari"_s,
                                  .search = u"Words "_s,
                                  .site = u"example.org"_s,
                                  .grouping = Grouping::Day,
                                  .order = {{History::Column::LastVisit, SortOrder::Reverse}},
                                  .generation = 3};

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
    const SearchKey copy = someSearch; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(copy, someSearch);
    EXPECT_EQ(qHash(copy), qHash(someSearch));
    expectToTellSearchesApart(someSearch);
}

TEST(SearchKey, allSourcesAreNotASourceWithoutAnId)
{
    EXPECT_TRUE(tellsApart(SearchKey(), [](SearchKey &changed) { changed.sourceID = u""_s; }));
    EXPECT_TRUE(tellsApart(SearchKey(), [](SearchKey &changed) { changed.site = u""_s; }));
}

TEST(RefineKey, isEqualWhenAllOfItIs)
{
    const RefineKey<HistoryItem> copy = list; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(copy, list);
    EXPECT_EQ(qHash(copy), qHash(list));
    expectToTellSearchesApart(list);
    using Key = RefineKey<HistoryItem>;
    EXPECT_TRUE(tellsApart(list, [](Key &changed) { changed.grouping = Grouping::Site; }));
    EXPECT_TRUE(tellsApart(list, [](Key &changed) { changed.order.clear(); }));
    EXPECT_TRUE(tellsApart(list, [](Key &changed) { changed.order.first().order = SortOrder::Forward; }));
    EXPECT_TRUE(tellsApart(list, [](Key &changed) { changed.order.append({History::Column::Title}); }));
}

TEST(RefineKey, changesWithTheSortColumnWhereTheSearchDoesNot)
{
    RefineKey<HistoryItem> sorted = list;
    sorted.order = {{History::Column::Title, SortOrder::Forward}};
    const auto searchOf = [](const RefineKey<HistoryItem> &key) {
        return SearchKey{key.sourceID, key.search, key.site, key.generation};
    };
    EXPECT_EQ(searchOf(sorted), searchOf(list)) << "no new search of the databases";
    EXPECT_NE(sorted, list) << "but a new list";
}

TEST(RefineKey, changesTogetherWithTheSearchWhenTheLibraryIsReloaded)
{
    EXPECT_TRUE(tellsApart(someSearch, [](SearchKey &changed) { changed.generation = 4; }));
    EXPECT_TRUE(tellsApart(list, [](RefineKey<HistoryItem> &changed) { changed.generation = 4; }));
}

TEST(RefineKey, isMadeForBookmarksToo)
{
    using Key = RefineKey<Bookmark>;
    using Comparator = SortComparator<Bookmark>;
    Key byTitle;
    byTitle.order = {{Comparator::Column::Title, SortOrder::Forward}};
    EXPECT_EQ(byTitle, Key(byTitle));
    EXPECT_TRUE(
        tellsApart(byTitle, [](Key &changed) { changed.order.first().column = Comparator::Column::Folder; }));
}

} // namespace roamlet::testing
