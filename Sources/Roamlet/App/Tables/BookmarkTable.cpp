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
    return {{u"title"_s, u"Title"_s, Content::Title, 40},
            {u"folder"_s, u"Folder"_s, Content::Folder, 24},
            {u"added"_s, u"Added"_s, Content::Date, 16},
            {u"source"_s, u"Source"_s, Content::Source, 26}};
}

} // namespace

BookmarkTable::BookmarkTable(const WindowServices &services, QWidget *parent)
    : LinkTable(services,
                {.mode = ListWish::Mode::Bookmarks,
                 .objectName = u"bookmarkTable"_s,
                 .accessibleName = u"Bookmarks"_s,
                 .layoutKey = u"columns.bookmarkSearch"_s,
                 .shape = TableView::Shape::List,
                 .columns = bookmarkColumns(),
                 .order = {},
                 .nothingText = u"No bookmarks yet"_s},
                parent)
{
}

LinkMenuSubject BookmarkTable::menuSubject(const QList<TableRow> &rows) const
{
    return LinkMenuSubject::ofBookmarks(rows);
}

} // namespace roamlet
