// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/BookmarkTable.h"

#include "Lists/SiteGroups.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

using BookmarkColumn = SortColumns<Bookmark>::Column;

static_assert(static_cast<int>(BookmarkColumn::Folder) == BookmarkTable::Folder &&
              static_cast<int>(BookmarkColumn::DateAdded) == BookmarkTable::Added &&
              static_cast<int>(BookmarkColumn::Source) == BookmarkTable::Source);

QList<TableColumn> bookmarkColumns()
{
    using Content = TableColumn::Content;
    return {{u"title"_s, u"Title"_s, Content::Title, 40},
            {u"folder"_s, u"Folder"_s, Content::Folder, 24},
            {u"added"_s, u"Added"_s, Content::Date, 16},
            {u"source"_s, u"Source"_s, Content::Source, 22}};
}

} // namespace

BookmarkTable::BookmarkTable(const WindowServices &services, QWidget *parent)
    : SortedTable(services,
                  {.objectName = u"bookmarkTable"_s,
                   .accessibleName = u"Bookmarks"_s,
                   .layoutKey = u"columns.bookmarkSearch"_s,
                   .shape = TableView::Shape::List,
                   .columns = bookmarkColumns(),
                   .nothingText = u"No bookmarks yet"_s},
                  {}, parent)
{
}

void BookmarkTable::refresh()
{
    if (services().library.generation() == 0)
        return;
    if (!maker().needs(key())) {
        if (maker().shown() == key())
            showWhyItIsEmpty();
        return;
    }
    showThatItWorks();
    maker().make(
        key(), bookmarks(), inputs().search,
        [isBySite = inputs().grouping == Grouping::Site,
         collation = services().collation](const QList<Bookmark> &rows) {
            return isBySite ? RowTree::ofGroups(siteGroups(rows, &Bookmark::site, *collation))
                            : RowTree::ofRows(rows);
        },
        [this](const SharedRowTree &tree, ListChange change) { deliver(tree, change); });
}

QList<Bookmark> BookmarkTable::bookmarks() const
{
    const QList<Bookmark> &all = services().library.snapshot().bookmarks;
    const auto &[sourceID, search, site, grouping] = inputs();
    if (!sourceID && !site)
        return all;
    const std::optional source = services().library.source(sourceID);
    QList<Bookmark> result;
    // A source that has gone has no bookmarks either.
    if (sourceID && !source)
        return result;
    for (const Bookmark &bookmark : all) {
        if ((!source || bookmark.source == *source) && (!site || bookmark.site == *site))
            result.append(bookmark);
    }
    return result;
}

LinkMenuSubject BookmarkTable::menuSubject(const QList<TableRow> &rows) const
{
    return LinkMenuSubject::ofBookmarks(rows);
}

} // namespace roamlet
