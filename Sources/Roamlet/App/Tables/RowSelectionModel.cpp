// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/RowSelectionModel.h"

#include "App/Tables/TableModel.h"

#include <QSet>

#include <unordered_set>
#include <utility>

namespace roamlet
{

RowSelectionModel::RowSelectionModel(TableModel &model, QObject *parent)
    : QItemSelectionModel(&model, parent), m_rows(model)
{
}

QList<TableRow> RowSelectionModel::linksAndFolders() const
{
    std::unordered_set<RowTree::Number> selected;
    for (const QItemSelectionRange &range : selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            selected.insert(TableModel::numberOf(m_rows.index(row, 0, range.parent())));
    }
    QList<TableRow> rows;
    rows.reserve(static_cast<qsizetype>(selected.size()));
    const RowTree &tree = *m_rows.tree();
    for (const RowTree::Number number : tree.inReadingOrder(std::move(selected))) {
        if (tree.row(number).kind != TableRow::Kind::Section)
            rows.append(tree.row(number));
    }
    return rows;
}

void RowSelectionModel::leaveBelow(const QModelIndex &closed)
{
    const auto isBelow = [&closed](QModelIndex index) {
        while (index.isValid() && index != closed)
            index = index.parent();
        return index.isValid();
    };
    // A row that cannot be seen must not be opened or copied with the others.
    QItemSelection hidden;
    for (const QItemSelectionRange &range : selection()) {
        if (isBelow(range.parent()))
            hidden.append(range);
    }
    select(hidden, Deselect);
    // Nor do the arrow keys go on from there.
    if (isBelow(currentIndex().parent()))
        setCurrentIndex(closed, NoUpdate);
}

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
