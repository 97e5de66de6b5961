// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/TableView.h"

#include "App/Look/LastInput.h"
#include "App/Look/Painting.h"
#include "App/Tables/RowDelegate.h"
#include "App/Tables/RowFolds.h"
#include "App/Tables/RowSelectionModel.h"
#include "App/Tables/RowTips.h"
#include "App/Tables/TableHeader.h"
#include "App/Tables/TableModel.h"
#include "App/Tables/ViewPlace.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace roamlet
{

using RowKind = TableRow::Kind;

namespace
{

/// Beyond this, finding out where each row begins takes too long while somebody types, and all rows get the
/// height of links.
constexpr std::size_t mostRowsOfTwoHeights = 20'000;
/// One level of folders.
constexpr double indentInLines = 1.25;

} // namespace

TableView::TableView(TableModel &model, Shape shape, QWidget *parent)
    : QTreeView(parent),
      m_model(model),
      m_header(*new TableHeader(model, this)),
      m_selection(*new RowSelectionModel(model, this)),
      m_look(Look::of(*this)),
      m_delegate(*new RowDelegate(model, m_header, m_look, this)),
      m_tips(*new RowTips(*this, m_delegate)),
      m_folds(*new RowFolds(*this)),
      m_rowPainter(*this, m_look, m_delegate, m_tips, m_folds)
{
    setHeader(&m_header);
    setModel(&model);
    delete selectionModel();
    setSelectionModel(&m_selection);
    // A view takes these away from a header that does not sort the model itself.
    m_header.setSectionsClickable(true);
    m_header.setSortIndicatorShown(true);
    setItemDelegate(&m_delegate);
    setUniformRowHeights(true);
    setMouseTracking(true);
    setDragEnabled(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setFrameShape(QFrame::NoFrame);
    setAnimated(false);
    if (shape == Shape::List) {
        // Headings are drawn over the whole width, and the rows below them begin where others do.
        setRootIsDecorated(false);
        setIndentation(0);
    }
    updateLook();

    connect(this, &QTreeView::collapsed, &m_selection, &RowSelectionModel::leaveBelow);
}

bool TableView::isKind(const QModelIndex &index, RowKind kind) const
{
    return index.isValid() && m_model.rowAt(index).kind == kind;
}

QList<TableRow> TableView::selectedRows() const
{
    return m_selection.linksAndFolders();
}

bool TableView::selectsLinks() const
{
    return std::ranges::any_of(selectedRows(), [](const TableRow &row) { return row.kind == RowKind::Link; });
}

void TableView::showTree(const SharedRowTree &tree, Scrolling scrolling)
{
    if (tree == m_model.tree()) {
        // The same rows, but perhaps with other icons.
        viewport()->update();
        if (scrolling == Scrolling::ToTop)
            scrollToTop();
        return;
    }
    const ViewPlace place(*this);
    const int horizontal = horizontalScrollBar()->value();
    m_tips.fallSilent();
    const bool hasBands = tree->node(RowTree::root).childCount > 0 && TableModel::isBand(tree->node(1));
    setUniformRowHeights(!hasBands || tree->nodes().size() > mostRowsOfTwoHeights);
    m_model.setTree(tree);
    m_header.fitColumns();
    m_folds.restore();
    place.restoreSelection(*this);
    if (scrolling == Scrolling::ToTop)
        scrollToTop();
    else
        place.restoreScrolling(*this);
    horizontalScrollBar()->setValue(horizontal);
    m_tips.followRows();
}

void TableView::drawRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    m_rowPainter.paint(*painter, option, index);
}

int TableView::sizeHintForColumn(int column) const
{
    return m_rowPainter.naturalWidth(column);
}

bool TableView::hasRing(const QModelIndex &index) const
{
    return showsFocus(*this) && currentIndex().siblingAtColumn(0) == index.siblingAtColumn(0);
}

QRect TableView::rowRect(const QModelIndex &index) const
{
    const QRect cell = visualRect(index.siblingAtColumn(TableHeader::titleColumn));
    return cell.isValid() ? QRect(0, cell.top(), viewport()->width(), cell.height()) : QRect();
}

void TableView::updateRow(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    viewport()->update(rowRect(index));
    // The strip of its section lights another hour.
    if (index.parent().isValid())
        viewport()->update(rowRect(index.parent()));
}

void TableView::goToTick(const QModelIndex &section, std::size_t tick)
{
    const VisitStrip::Tick &target = m_model.tree()->visits(TableModel::numberOf(section)).ticks[tick];
    if (target.count == 0)
        return;
    setExpanded(section, true);
    const QModelIndex row = m_model.index(target.firstRow, 0, section);
    setCurrentIndex(row);
    scrollTo(row, QAbstractItemView::PositionAtCenter);
}

void TableView::followCurrentRow()
{
    if (showsFocus(*this))
        m_tips.tellOf(currentIndex().siblingAtColumn(0));
}

void TableView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTreeView::currentChanged(current, previous);
    updateRow(previous);
    updateRow(current);
    followCurrentRow();
}

void TableView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    // The corners of its neighbours change with a row.
    viewport()->update();
    m_tips.followSelection();
}

void TableView::focusInEvent(QFocusEvent *event)
{
    QTreeView::focusInEvent(event);
    followCurrentRow();
}

void TableView::focusOutEvent(QFocusEvent *event)
{
    QTreeView::focusOutEvent(event);
    m_tips.loseFocus();
}

void TableView::scrollContentsBy(int dx, int dy)
{
    QTreeView::scrollContentsBy(dx, dy);
    m_tips.followRows();
}

bool TableView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::Leave)
        m_tips.leave();
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        m_tips.showToolTip(help->pos(), help->globalPos());
        return true;
    }
    return QTreeView::viewportEvent(event);
}

void TableView::mouseMoveEvent(QMouseEvent *event)
{
    m_tips.movePointer(event->position().toPoint());
    // A press on a band was none for Qt, which would go on from an earlier one.
    if (!m_isBandPressed)
        QTreeView::mouseMoveEvent(event);
}

void TableView::mouseReleaseEvent(QMouseEvent *event)
{
    if (!std::exchange(m_isBandPressed, false))
        QTreeView::mouseReleaseEvent(event);
}

void TableView::mousePressEvent(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    const QModelIndex index = indexAt(point);
    // With these keys a source's heading is selected like other folders.
    const bool isChosen = isKind(index, RowKind::Folder) && event->modifiers() != Qt::NoModifier;
    m_isBandPressed = index.isValid() && m_model.isBand(index) && !isChosen &&
                      (isKind(index, RowKind::Section) || event->button() == Qt::LeftButton);
    if (!m_isBandPressed) {
        QTreeView::mousePressEvent(event);
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    if (const std::optional<std::size_t> tick = m_rowPainter.tickAt(point)) {
        goToTick(index.siblingAtColumn(0), *tick);
        return;
    }
    selectionModel()->setCurrentIndex(index,
                                      isKind(index, RowKind::Section)
                                          ? QItemSelectionModel::NoUpdate
                                          : QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_folds.toggle(index);
}

void TableView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid() && m_model.isBand(index)) {
        // Each of two quick clicks counts.
        mousePressEvent(event);
        return;
    }
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && isKind(index, RowKind::Link))
        Q_EMIT openRequested();
}

void TableView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        Q_EMIT copyRequested();
        return;
    }
    if (isModifier(*event)) {
        QTreeView::keyPressEvent(event);
        return;
    }
    m_tips.useKeys();
    const QModelIndex current = currentIndex();
    const bool hasModifiers = (event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (hasModifiers)
            break;
        // Where links are selected the key is theirs, wherever the current row is.
        if (!selectsLinks() && (isKind(current, RowKind::Section) || isKind(current, RowKind::Folder)))
            m_folds.toggle(current);
        else
            Q_EMIT openRequested();
        return;
    case Qt::Key_Space:
        if (!isKind(current, RowKind::Section))
            break;
        m_folds.toggle(current);
        return;
    case Qt::Key_Asterisk:
        // Without a current row everything would be opened.
        if (current.isValid())
            m_folds.openAllBelow(current);
        return;
    default:
        break;
    }
    QTreeView::keyPressEvent(event);
    followCurrentRow();
    updateRow(currentIndex());
}

void TableView::keyboardSearch(const QString &typed)
{
    // Escape and Delete come along as characters, too.
    const auto isControl = [](QChar character) { return character.category() == QChar::Other_Control; };
    if (!typed.trimmed().isEmpty() && std::ranges::none_of(typed, isControl))
        Q_EMIT searchRequested(typed);
}

void TableView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isMouse = event->reason() == QContextMenuEvent::Mouse;
    const QModelIndex index = isMouse ? indexAt(event->pos()) : currentIndex();
    if (!index.isValid())
        return;
    if (isKind(index, RowKind::Section)) {
        const QString site = m_model.rowAt(index).site;
        const QPoint place = isMouse ? event->globalPos() : viewport()->mapToGlobal(rowRect(index).center());
        if (!site.isEmpty())
            Q_EMIT siteMenuRequested(site, place);
        return;
    }
    if (!selectionModel()->isSelected(index))
        setCurrentIndex(index);
    if (isMouse) {
        Q_EMIT linkMenuRequested(event->globalPos());
        return;
    }
    scrollTo(index);
    Q_EMIT linkMenuRequested(viewport()->mapToGlobal(visualRect(index).center()));
}

void TableView::setSearch(const ShownSearch &search)
{
    m_delegate.setSearch(search);
}

void TableView::updateLook()
{
    m_look = Look::of(*this);
    setIconSize({m_look.measures.iconSide, m_look.measures.iconSide});
    if (rootIsDecorated()) {
        setIndentation(m_look.measures.units(indentInLines));
        m_header.setTitleIndent(indentation());
    }
    scheduleDelayedItemsLayout();
    m_tips.place();
}

void TableView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange ||
        event->type() == QEvent::StyleChange)
        updateLook();
    QTreeView::changeEvent(event);
}

void TableView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    m_tips.place();
}

} // namespace roamlet
