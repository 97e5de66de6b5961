// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/ViewPlace.h"

#include "App/Tables/TableModel.h"
#include "App/Tables/TableView.h"

#include <QScrollBar>

#include <algorithm>
#include <vector>

namespace roamlet
{

namespace
{

/// For each row whether it can be seen by scrolling, since all around it is open.
std::vector<bool> reachableRows(const TableView &view)
{
    const TableModel &model = view.tableModel();
    const std::vector<RowTree::Node> &nodes = model.tree()->nodes();
    std::vector<bool> isReachable(nodes.size());
    std::vector<bool> isOpen(nodes.size());
    isOpen[RowTree::root] = true;
    for (RowTree::Number number = 1; number < nodes.size(); ++number) {
        isReachable[number] = isOpen[nodes[number].parent];
        isOpen[number] =
            isReachable[number] && nodes[number].childCount > 0 && view.isExpanded(model.indexOf(number));
    }
    return isReachable;
}

} // namespace

ViewPlace::ViewPlace(const TableView &view)
    : m_isAtTop(view.verticalScrollBar()->value() == view.verticalScrollBar()->minimum())
{
    const TableModel &model = view.tableModel();
    for (const QItemSelectionRange &range : view.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            m_selected.insert(model.rowAt(model.index(row, 0, range.parent())).id);
    }
    if (const QModelIndex current = view.currentIndex(); current.isValid()) {
        m_current = model.rowAt(current).id;
        m_column = current.column();
    }
    for (QModelIndex index = view.indexAt(QPoint(0, 0)); index.isValid(); index = view.indexBelow(index)) {
        const int top = view.visualRect(index).top();
        if (top >= view.viewport()->height())
            break;
        m_inSight.insert(model.rowAt(index).id, top);
    }
}

void ViewPlace::restoreSelection(TableView &view) const
{
    const TableModel &model = view.tableModel();
    const std::vector<RowTree::Node> &nodes = model.tree()->nodes();
    const std::vector<bool> isReachable = reachableRows(view);
    QItemSelection selection;
    RowTree::Number current = RowTree::root;
    // Neighbours are selected together: many single rows would slow down every question about the selection.
    RowTree::Number first = RowTree::root;
    RowTree::Number last = RowTree::root;
    const auto select = [&] {
        if (first != RowTree::root)
            selection.append(
                QItemSelectionRange(model.indexOf(first), model.indexOf(last, model.columnCount() - 1)));
    };
    for (RowTree::Number number = 1; number < nodes.size(); ++number) {
        const QString &id = nodes[number].row.id;
        if (current == RowTree::root && !m_current.isEmpty() && id == m_current)
            current = number;
        // A row that cannot be seen must not be opened or copied with the others.
        if (!isReachable[number] || !m_selected.contains(id))
            continue;
        if (first != RowTree::root && last + 1 == number && nodes[last].parent == nodes[number].parent) {
            last = number;
            continue;
        }
        select();
        first = last = number;
    }
    select();
    view.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);

    while (current != RowTree::root && !isReachable[current])
        current = nodes[current].parent;
    if (current == RowTree::root)
        return;
    // The view would scroll to the row.
    view.setAutoScroll(false);
    // After the selection, of which it is to say nothing.
    view.selectionModel()->setCurrentIndex(model.indexOf(current, m_column), QItemSelectionModel::NoUpdate);
    view.setAutoScroll(true);
}

void ViewPlace::restoreScrolling(TableView &view) const
{
    if (m_isAtTop) {
        view.scrollToTop();
        return;
    }
    const TableModel &model = view.tableModel();
    const std::vector<RowTree::Node> &nodes = model.tree()->nodes();
    const std::vector<bool> isReachable = reachableRows(view);
    QScrollBar &bar = *view.verticalScrollBar();
    // By how much each row has moved. Some go elsewhere, such as a page that was visited again; the one in
    // the middle of all tells where most are.
    std::vector<int> moves;
    for (RowTree::Number number = 1; number < nodes.size(); ++number) {
        if (const auto before = m_inSight.constFind(nodes[number].row.id);
            isReachable[number] && before != m_inSight.cend())
            moves.push_back(view.visualRect(model.indexOf(number)).top() - *before);
    }
    if (moves.empty())
        return;
    const auto middle = moves.begin() + static_cast<std::ptrdiff_t>(moves.size() / 2);
    std::ranges::nth_element(moves, middle);
    bar.setValue(bar.value() + *middle);
}

} // namespace roamlet
