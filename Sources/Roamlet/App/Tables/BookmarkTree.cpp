// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/BookmarkTree.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

static_assert(static_cast<int>(SortColumns<BookmarkNode>::Column::DateAdded) == BookmarkTree::Added);

QList<TableColumn> treeColumns()
{
    using Content = TableColumn::Content;
    return {{u"title"_s, u"Title"_s, Content::Title, 40}, {u"added"_s, u"Added"_s, Content::Date, 16}};
}

} // namespace

BookmarkTree::BookmarkTree(const WindowServices &services, QWidget *parent)
    : SortedTable(services,
                  {.objectName = u"bookmarkTree"_s,
                   .accessibleName = u"Bookmarks"_s,
                   .layoutKey = u"columns.bookmarkTree"_s,
                   .shape = TableView::Shape::Tree,
                   .columns = treeColumns(),
                   .nothingText = u"No bookmarks yet"_s},
                  {}, parent)
{
    // The folders of all sources stand in the user's order, of which the snapshot says nothing.
    connect(&services.library, &Library::sourceOrderChanged, this, [this] {
        invalidate();
        refreshIfVisible();
    });
}

RefineKey<BookmarkNode> BookmarkTree::treeKey() const
{
    // Nothing is searched for here, so nothing has to be made anew when the search changes.
    RefineKey<BookmarkNode> result = key();
    result.search.clear();
    result.site.reset();
    result.grouping = Grouping::None;
    return result;
}

void BookmarkTree::refresh()
{
    if (services().library.generation() == 0)
        return;
    const RefineKey<BookmarkNode> asked = treeKey();
    if (!maker().needs(asked)) {
        if (maker().shown() == asked)
            showWhyItIsEmpty();
        return;
    }
    showThatItWorks();
    maker().make(
        asked,
        [nodes = services().library.bookmarkTree(asked.sourceID), order = asked.order,
         collation = services().collation](const std::stop_token &stop) {
            return RowTree::ofBookmarks(nodes, order, *collation, stop);
        },
        [this](const SharedRowTree &tree, ListChange change) { deliver(tree, change); });
}

LinkMenuSubject BookmarkTree::menuSubject(const QList<TableRow> &rows) const
{
    return LinkMenuSubject::ofBookmarks(rows);
}

} // namespace roamlet
