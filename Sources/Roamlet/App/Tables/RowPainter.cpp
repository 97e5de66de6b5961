// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/RowPainter.h"

#include "App/Look/Chevron.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"
#include "App/Tables/RowBackground.h"
#include "App/Tables/RowDelegate.h"
#include "App/Tables/RowFolds.h"
#include "App/Tables/RowTips.h"
#include "App/Tables/SectionBand.h"
#include "App/Tables/TableHeader.h"
#include "App/Tables/TableModel.h"
#include "App/Tables/TableView.h"

#include <QItemSelectionModel>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace roamlet
{

using RowKind = TableRow::Kind;

namespace
{

/// What a heading keeps beside its strip.
constexpr double leastHeading = 8;

} // namespace

RowPainter::RowPainter(const TableView &view, const Look &look, const RowDelegate &delegate,
                       const RowTips &tips, const RowFolds &folds)
    : m_view(view),
      m_model(view.tableModel()),
      m_header(view.tableHeader()),
      m_look(look),
      m_delegate(delegate),
      m_tips(tips),
      m_folds(folds)
{
}

void RowPainter::paint(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QRect row(0, option.rect.top(), m_view.viewport()->width(), option.rect.height());
    const bool isBand = m_model.isBand(index);
    if (isBand && !index.flags().testFlag(Qt::ItemIsSelectable)) {
        paintBand(painter, row, index);
        return;
    }
    paintGround(painter, row, index);
    if (isBand) {
        paintBand(painter, row, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    cell.state.setFlag(QStyle::State_Selected, isSelected(index));
    const RowTree::Node &node = m_model.tree()->node(TableModel::numberOf(index));
    const Qt::LayoutDirection direction = m_view.layoutDirection();
    const int indent = indentOf(index);
    for (int column = 0; column < m_header.count(); ++column) {
        if (m_header.isSectionHidden(column))
            continue;
        cell.rect = QRect(m_view.columnViewportPosition(column), row.top(), m_header.sectionSize(column),
                          row.height());
        if (column == TableHeader::titleColumn) {
            if (node.row.kind == RowKind::Folder && node.childCount > 0) {
                const int arrow = m_look.measures.chevronSide;
                // Before the line of its level, as far as others stand before the outermost one.
                const int line = indent + m_header.leadingPadding(TableHeader::titleColumn);
                const int before = m_look.measures.alignmentLine - m_look.measures.gutter;
                const QRect place = squareIn(cell.rect, cell.rect.left() + line - before, arrow);
                drawChevron(painter, QStyle::visualRect(direction, cell.rect, place),
                            m_folds.openedShare(index), direction, groundOf(index).quiet);
            }
            if (direction == Qt::RightToLeft)
                cell.rect.setRight(cell.rect.right() - indent);
            else
                cell.rect.setLeft(cell.rect.left() + indent);
        }
        if (cell.rect.intersects(m_view.viewport()->rect()))
            m_delegate.paint(&painter, cell, index.siblingAtColumn(column));
    }
}

void RowPainter::paintGround(QPainter &painter, const QRect &row, const QModelIndex &index) const
{
    const bool selected = isSelected(index);
    const RowBackground background{.isSelected = selected,
                                   .isInActiveWindow = m_view.isActiveWindow(),
                                   .lit = m_tips.lit(index),
                                   .hasRing = m_view.hasRing(index),
                                   .isSelectedAbove = selected && isSelected(m_view.indexAbove(index)),
                                   .isSelectedBelow = selected && isSelected(m_view.indexBelow(index))};
    background.paint(painter, row, m_look);
}

void RowPainter::paintBand(QPainter &painter, const QRect &band, const QModelIndex &index) const
{
    const RowTree::Number number = TableModel::numberOf(index);
    const RowTree &tree = *m_model.tree();
    const bool isSource = tree.row(number).kind == RowKind::Folder;
    const SectionBand content{.title = index.siblingAtColumn(0).data().toString(),
                              .count = m_model.localText().number(tree.node(number).linksBelow),
                              .icon = index.siblingAtColumn(0).data(Qt::DecorationRole).value<QIcon>(),
                              .opened = m_folds.openedShare(index),
                              .isFirst = index.row() == 0,
                              .ground = isSource ? &groundOf(index) : nullptr,
                              .visits = stripOf(index),
                              .litTick = m_tips.litTick(index),
                              .now = m_model.localText().now()};
    content.paint(painter, band, m_view.layoutDirection(), m_header.dateEnd().value_or(0), m_look);
    if (!isSource)
        RowBackground{.hasRing = m_view.hasRing(index)}.paint(painter, band, m_look);
}

int RowPainter::indentOf(const QModelIndex &index) const
{
    const int depth = m_model.tree()->node(TableModel::numberOf(index)).depth;
    return (depth + (m_view.rootIsDecorated() ? 1 : 0)) * m_view.indentation();
}

bool RowPainter::isSelected(const QModelIndex &index) const
{
    return index.isValid() &&
           m_view.selectionModel()->isSelected(index.siblingAtColumn(TableHeader::titleColumn));
}

const Ground &RowPainter::groundOf(const QModelIndex &index) const
{
    return m_look.list.of(isSelected(index), m_view.isActiveWindow());
}

const VisitStrip *RowPainter::stripOf(const QModelIndex &section) const
{
    // The strip stands above the times, whose column may be hidden.
    const std::optional<int> end = m_header.dateEnd();
    if (!end || !section.isValid() || m_model.rowAt(section).kind != RowKind::Section)
        return nullptr;
    const VisitStrip &visits = m_model.tree()->visits(TableModel::numberOf(section));
    if (visits.ticks.empty())
        return nullptr;
    // Where the column of dates comes first, the title needs the place.
    const QRect band(0, 0, m_view.viewport()->width(), m_look.measures.sectionHeight);
    const QRect strip = visitStripPlace(visits, band, Qt::LeftToRight, *end, m_look);
    const int least = m_look.measures.alignmentLine + m_look.measures.units(leastHeading);
    return strip.left() < least ? nullptr : &visits;
}

std::optional<std::size_t> RowPainter::tickAt(const QPoint &point) const
{
    const QModelIndex section = m_view.indexAt(point);
    const VisitStrip *const visits = stripOf(section);
    if (visits == nullptr)
        return {};
    return visitTickAt(*visits, point, m_view.rowRect(section), m_view.layoutDirection(), *m_header.dateEnd(),
                       m_look);
}

int RowPainter::naturalWidth(int column) const
{
    int width = 0;
    for (QModelIndex index = m_view.indexAt(QPoint(0, 0)); index.isValid();
         index = m_view.indexBelow(index)) {
        if (m_view.rowRect(index).top() > m_view.viewport()->height())
            break;
        if (m_model.isBand(index))
            continue;
        const int indent = column == TableHeader::titleColumn ? indentOf(index) : 0;
        width = std::max(width, indent + m_delegate.naturalWidth(index.siblingAtColumn(column)));
    }
    return width;
}

} // namespace roamlet
