// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Tables/SortedTable.h"
#include "Model/Bookmark.h"

namespace roamlet
{

/// The bookmarks in their folders, which open and close. Of its inputs only the source counts.
class BookmarkTree final : public SortedTable<BookmarkNode>
{
    Q_OBJECT

public:
    enum Column { Title, Added, ColumnCount };

    explicit BookmarkTree(const WindowServices &services, QWidget *parent = nullptr);

protected:
    void refresh() override;
    LinkMenuSubject menuSubject(const QList<TableRow> &rows) const override;

private:
    RefineKey<BookmarkNode> treeKey() const;
};

} // namespace roamlet
