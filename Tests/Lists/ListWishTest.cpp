// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/ListWish.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

// Made anew each time, so that nothing is compared with a copy of itself.
SearchKey someSearch()
{
    return {.sourceID = u"safari"_s, .search = u"Words "_s, .site = u"example.org"_s, .generation = 3};
}

RefineKey someList()
{
    return {.sourceID = u"safari"_s,
            .search = u"Words "_s,
            .site = u"example.org"_s,
            .grouping = Grouping::Day,
            .order = {{SortColumn::Date, SortOrder::Reverse}},
            .generation = 3};
}

const SearchKey knownSearch = someSearch();
const RefineKey knownList = someList();

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
    EXPECT_TRUE(tellsApart(knownList, [](RefineKey &changed) { changed.grouping = Grouping::Site; }));
    EXPECT_TRUE(tellsApart(knownList, [](RefineKey &changed) { changed.order.clear(); }));
    EXPECT_TRUE(
        tellsApart(knownList, [](RefineKey &changed) { changed.order.first().order = SortOrder::Forward; }));
    EXPECT_TRUE(tellsApart(knownList, [](RefineKey &changed) { changed.order.append({SortColumn::Title}); }));
}

TEST(RefineKey, changesTogetherWithTheSearchWhenTheLibraryIsReloaded)
{
    EXPECT_TRUE(tellsApart(knownSearch, [](SearchKey &changed) { changed.generation = 4; }));
    EXPECT_TRUE(tellsApart(knownList, [](RefineKey &changed) { changed.generation = 4; }));
}

TEST(ListWish, isSearchedForAnewOnlyWhereItsRowsMayBeOthers)
{
    const ListWish known{.mode = ListWish::Mode::Recent,
                         .sourceID = u"safari"_s,
                         .search = u"Words "_s,
                         .site = u"example.org"_s,
                         .grouping = Grouping::Day,
                         .order = {{SortColumn::Date, SortOrder::Reverse}},
                         .generation = 3};
    EXPECT_EQ(known.searchKey(), someSearch());
    EXPECT_EQ(known.refineKey(), someList());
    ListWish sorted = known;
    sorted.order = {{SortColumn::Title, SortOrder::Forward}};
    ListWish grouped = known;
    grouped.grouping = Grouping::Site;
    for (const ListWish &wish : {sorted, grouped}) {
        EXPECT_EQ(wish.searchKey(), known.searchKey()) << "no new search of the databases";
        EXPECT_NE(wish.refineKey(), known.refineKey()) << "but a new list";
    }
    ListWish reloaded = known;
    reloaded.generation = 4;
    EXPECT_NE(reloaded.searchKey(), known.searchKey());
    EXPECT_NE(reloaded.refineKey(), known.refineKey());
}

TEST(ListWish, isOfHistoryOrOfBookmarks)
{
    EXPECT_TRUE(ListWish{.mode = ListWish::Mode::Recent}.isOfHistory());
    EXPECT_TRUE(ListWish{.mode = ListWish::Mode::MostVisited}.isOfHistory());
    EXPECT_FALSE(ListWish{.mode = ListWish::Mode::Bookmarks}.isOfHistory());
    EXPECT_FALSE(ListWish{.mode = ListWish::Mode::BookmarkTree}.isOfHistory());
}

} // namespace roamlet::testing
