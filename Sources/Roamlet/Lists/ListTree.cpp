// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/ListTree.h"

#include "Lists/DayGroups.h"
#include "Lists/Refine.h"
#include "Lists/SiteGroups.h"

namespace roamlet::ListTree
{

namespace
{

/// The bookmarks of the source and the site that are asked for.
RowPointers<Bookmark> narrowed(const QList<Bookmark> &all, const ListWish &wish)
{
    RowPointers<Bookmark> result;
    result.reserve(static_cast<std::size_t>(all.size()));
    for (const Bookmark &bookmark : all) {
        if (wish.site && bookmark.site != *wish.site)
            continue;
        if (!wish.sourceID || bookmark.source.id() == *wish.sourceID)
            result.push_back(&bookmark);
    }
    return result;
}

} // namespace

std::optional<RowTree> ofHistory(const QList<HistoryItem> &found, const ListWish &wish,
                                 const Setting &setting, const std::stop_token &stop)
{
    // The words were searched for where the rows were found; what is left is the order.
    const std::optional rows = sortedRows(allRows(found), wish.order, *setting.collation, stop);
    if (!rows)
        return {};
    switch (wish.grouping) {
    case Grouping::None:
        break;
    case Grouping::Day:
        return RowTree::ofGroups(dayGroups(*rows, newestFirst(wish.order), setting.now, setting.calendar));
    case Grouping::Site:
        return RowTree::ofGroups(siteGroups(*rows, &HistoryItem::site, *setting.collation));
    }
    return RowTree::ofRows(*rows);
}

std::optional<RowTree> ofBookmarks(const QList<Bookmark> &all, const ListWish &wish, const Setting &setting,
                                   const std::stop_token &stop)
{
    const std::optional rows =
        refine(narrowed(all, wish), wish.search, wish.order, &Bookmark::searchKey, *setting.collation, stop);
    if (!rows)
        return {};
    if (wish.grouping == Grouping::Site)
        return RowTree::ofGroups(siteGroups(*rows, &Bookmark::site, *setting.collation));
    return RowTree::ofRows(*rows);
}

} // namespace roamlet::ListTree
