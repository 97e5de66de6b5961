// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Tables/LinkTable.h"

namespace roamlet
{

/// The bookmarks in their folders, which open and close. Of its inputs only the source counts.
class BookmarkTree final : public LinkTable
{
    Q_OBJECT

public:
    enum Column { Title, Added, ColumnCount };

    explicit BookmarkTree(const WindowServices &services, QWidget *parent = nullptr);

protected:
    LinkMenuSubject menuSubject(const QList<TableRow> &rows) const override;
};

} // namespace roamlet
