// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/RowTree.h"

#include <QItemSelectionModel>
#include <QList>

namespace roamlet
{

class TableModel;

/// Which rows of a table are selected. It selects whole rows, also of thousands of sections at once; Qt's own
/// way compares each range with all before it when it widens them to rows.
class RowSelectionModel final : public QItemSelectionModel
{
    Q_OBJECT

public:
    explicit RowSelectionModel(TableModel &model, QObject *parent = nullptr);

    /// The selected links and folders from top to bottom.
    QList<TableRow> linksAndFolders() const;
    /// Nothing below what has been closed stays selected or current.
    void leaveBelow(const QModelIndex &closed);

    using QItemSelectionModel::select;
    void select(const QItemSelection &selection, SelectionFlags command) override;

private:
    const TableModel &m_rows;
};

} // namespace roamlet
