// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/BookmarkTable.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

QList<TableColumn> bookmarkColumns()
{
    using Content = TableColumn::Content;
    return {{u"title"_s, BookmarkTable::tr("Title"), Content::Title, 40},
            {u"folder"_s, BookmarkTable::tr("Folder"), Content::Folder, 24},
            //: The column that says when a bookmark was added.
            {u"added"_s, BookmarkTable::tr("Added"), Content::Date, 16},
            //: The column that says from which browser and profile a bookmark is.
            {u"source"_s, BookmarkTable::tr("Source"), Content::Source, 26}};
}

} // namespace

BookmarkTable::BookmarkTable(const WindowServices &services, QWidget *parent)
    : LinkTable(services,
                {.mode = ListWish::Mode::Bookmarks,
                 .objectName = u"bookmarkTable"_s,
                 .accessibleName = tr("Bookmarks"),
                 .layoutKey = u"columns.bookmarkSearch"_s,
                 .shape = TableView::Shape::List,
                 .columns = bookmarkColumns(),
                 .order = {},
                 .nothingText = tr("No bookmarks yet")},
                parent)
{
}

LinkMenuSubject BookmarkTable::menuSubject(const QList<TableRow> &rows) const
{
    return LinkMenuSubject::ofBookmarks(rows);
}

} // namespace roamlet
