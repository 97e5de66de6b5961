// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/RowSelectionModel.h"

#include <QSet>

#include <utility>

namespace roamlet
{

void RowSelectionModel::select(const QItemSelection &selection, SelectionFlags command)
{
    if (!command.testFlag(Rows)) {
        QItemSelectionModel::select(selection, command);
        return;
    }
    QItemSelection rows;
    // Beside a hidden column the same rows come a second time.
    QSet<std::pair<QModelIndex, QModelIndex>> seen;
    for (const QItemSelectionRange &range : selection) {
        if (!range.isValid())
            continue;
        const QModelIndex first = model()->index(range.top(), 0, range.parent());
        const QModelIndex last =
            model()->index(range.bottom(), model()->columnCount(range.parent()) - 1, range.parent());
        const auto before = seen.size();
        seen.insert({first, last});
        if (seen.size() > before)
            rows.append(QItemSelectionRange(first, last));
    }
    QItemSelectionModel::select(rows, command & ~SelectionFlags(Rows));
}

} // namespace roamlet
