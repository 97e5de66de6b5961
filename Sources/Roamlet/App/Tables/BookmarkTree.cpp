// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/BookmarkTree.h"

#include "Library/Library.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

QList<TableColumn> treeColumns()
{
    using Content = TableColumn::Content;
    return {{u"title"_s, BookmarkTree::tr("Title"), Content::Title, 40},
            //: The column that says when a bookmark was added.
            {u"added"_s, BookmarkTree::tr("Added"), Content::Date, 16}};
}

} // namespace

BookmarkTree::BookmarkTree(const WindowServices &services, QWidget *parent)
    : LinkTable(services,
                {.mode = ListWish::Mode::BookmarkTree,
                 .objectName = u"bookmarkTree"_s,
                 .accessibleName = tr("Bookmarks"),
                 .layoutKey = u"columns.bookmarkTree"_s,
                 .shape = TableView::Shape::Tree,
                 .columns = treeColumns(),
                 .order = {},
                 .nothingText = tr("No bookmarks yet")},
                parent)
{
    // The folders of all sources stand in the user's order, of which the snapshot says nothing.
    connect(&services.library, &Library::sourceOrderChanged, this, &BookmarkTree::remake);
}

LinkMenuSubject BookmarkTree::menuSubject(const QList<TableRow> &rows) const
{
    return LinkMenuSubject::ofBookmarks(rows);
}

} // namespace roamlet
