// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Tables/SortedTable.h"
#include "Model/Bookmark.h"

namespace roamlet
{

/// The flat table of bookmarks, for when they are searched, narrowed to a site or grouped by it.
class BookmarkTable final : public SortedTable<Bookmark>
{
    Q_OBJECT

public:
    enum Column { Title, Folder, Added, Source, ColumnCount };

    explicit BookmarkTable(const WindowServices &services, QWidget *parent = nullptr);

protected:
    void refresh() override;
    LinkMenuSubject menuSubject(const QList<TableRow> &rows) const override;

private:
    /// The bookmarks of the source and the site that are asked for.
    QList<Bookmark> bookmarks() const;
};

} // namespace roamlet
