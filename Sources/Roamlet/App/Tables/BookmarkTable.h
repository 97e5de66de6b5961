// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Tables/LinkTable.h"

namespace roamlet
{

/// The flat table of bookmarks, for when they are searched, narrowed to a site or grouped by it.
class BookmarkTable final : public LinkTable
{
    Q_OBJECT

public:
    enum Column { Title, Folder, Added, Source, ColumnCount };

    explicit BookmarkTable(const WindowServices &services, QWidget *parent = nullptr);

protected:
    LinkMenuSubject menuSubject(const QList<TableRow> &rows) const override;
};

} // namespace roamlet
