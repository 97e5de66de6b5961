// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/RowFolds.h"

#include "App/Tables/TableModel.h"
#include "App/Tables/TableView.h"

#include <vector>

namespace roamlet
{

namespace
{

/// How many levels of folders one key opens.
constexpr int deepestOpening = 100;

} // namespace

RowFolds::RowFolds(TableView &view)
    : QObject(&view),
      m_view(view),
      m_turning(*view.viewport(), Fade::turningTime, [this] { m_view.updateRow(m_turned); })
{
    connect(&view, &QTreeView::expanded, this, [this](const QModelIndex &index) { note(index, true); });
    connect(&view, &QTreeView::collapsed, this, [this](const QModelIndex &index) { note(index, false); });
}

void RowFolds::toggle(const QModelIndex &index)
{
    m_view.setExpanded(index.siblingAtColumn(0), !m_view.isExpanded(index.siblingAtColumn(0)));
}

void RowFolds::openAllBelow(const QModelIndex &index)
{
    m_isOpeningAll = true;
    // Qt lays out what is open by calling itself for each level, and foreign folders may be that deep.
    m_view.expandRecursively(index, deepestOpening);
    m_isOpeningAll = false;
}

void RowFolds::restore()
{
    m_isRestoring = true;
    const TableModel &model = m_view.tableModel();
    const std::vector<RowTree::Node> &nodes = model.tree()->nodes();
    for (RowTree::Number number = 1; number < nodes.size(); ++number) {
        if (nodes[number].childCount > 0 && isOpen(nodes[number]))
            m_view.setExpanded(model.indexOf(number), true);
    }
    m_isRestoring = false;
}

double RowFolds::openedShare(const QModelIndex &index) const
{
    const double share = m_turned == index.siblingAtColumn(0) ? m_turning.share() : 1;
    return m_view.isExpanded(index.siblingAtColumn(0)) ? share : 1 - share;
}

bool RowFolds::isOpen(const RowTree::Node &node) const
{
    const bool isOutermost = node.depth == 0;
    return isOutermost != m_toggled.contains(node.row.id);
}

void RowFolds::note(const QModelIndex &index, bool isNowOpen)
{
    if (m_isRestoring)
        return;
    const RowTree::Node &node = m_view.tableModel().tree()->node(TableModel::numberOf(index));
    if (isOpen(node) != isNowOpen && !m_toggled.remove(node.row.id))
        m_toggled.insert(node.row.id);
    // Of thousands of folders only a few are in sight.
    if (m_isOpeningAll)
        return;
    m_turned = index;
    m_turning.begin();
}

} // namespace roamlet
