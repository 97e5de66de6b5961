// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/TableView.h"

#include "App/Look/Chevron.h"
#include "App/Tables/RowBackground.h"
#include "App/Tables/RowDelegate.h"
#include "App/Tables/RowSelectionModel.h"
#include "App/Tables/RowTips.h"
#include "App/Tables/SectionBand.h"
#include "App/Tables/TableHeader.h"
#include "App/Tables/TableModel.h"
#include "App/Tables/ViewPlace.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace roamlet
{

using RowKind = TableRow::Kind;

namespace
{

/// Held down for another key or a click, or by chance: it leads nowhere by itself.
bool isModifier(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
        return true;
    default:
        return false;
    }
}

/// How many levels of folders one key opens.
constexpr int deepestOpening = 100;

/// Beyond this, finding out where each row begins takes too long while somebody types, and all rows get the
/// height of links.
constexpr std::size_t mostRowsOfTwoHeights = 20'000;

/// What a heading keeps beside its strip.
constexpr double leastHeading = 8;
/// One level of folders.
constexpr double indentInLines = 1.25;

} // namespace

TableView::TableView(TableModel &model, Shape shape, QWidget *parent)
    : QTreeView(parent),
      m_model(model),
      m_header(*new TableHeader(model, this)),
      m_look(Look::of(*this)),
      m_delegate(*new RowDelegate(model, m_header, m_look, this)),
      m_tips(*new RowTips(*this, m_delegate)),
      m_turning(*viewport(), Fade::turningTime, [this] { updateRow(m_turned); })
{
    setHeader(&m_header);
    setModel(&model);
    delete selectionModel();
    setSelectionModel(new RowSelectionModel(&model, this));
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

    connect(this, &QTreeView::expanded, this, [this](const QModelIndex &index) {
        noteToggled(index, true);
        turn(index);
    });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex &index) {
        noteToggled(index, false);
        turn(index);
        leaveBelow(index);
    });
}

bool TableView::isKind(const QModelIndex &index, RowKind kind) const
{
    return index.isValid() && m_model.rowAt(index).kind == kind;
}

bool TableView::isOpen(const RowTree::Node &node) const
{
    const bool isOutermost = node.depth == 0;
    return isOutermost != m_toggled.contains(node.row.id);
}

void TableView::noteToggled(const QModelIndex &index, bool isNowOpen)
{
    if (m_isRestoring)
        return;
    const RowTree::Node &node = m_model.tree()->node(TableModel::numberOf(index));
    if (isOpen(node) == isNowOpen)
        return;
    if (!m_toggled.remove(node.row.id))
        m_toggled.insert(node.row.id);
}

void TableView::toggle(const QModelIndex &index)
{
    setExpanded(index.siblingAtColumn(0), !isExpanded(index.siblingAtColumn(0)));
}

void TableView::turn(const QModelIndex &index)
{
    // What comes with its place has not moved, and of thousands of folders only a few are in sight.
    if (m_isRestoring || m_isOpeningAll)
        return;
    m_turned = index;
    m_turning.begin();
}

double TableView::openedShare(const QModelIndex &index) const
{
    const double share = m_turned == index.siblingAtColumn(0) ? m_turning.share() : 1;
    return isExpanded(index.siblingAtColumn(0)) ? share : 1 - share;
}

void TableView::leaveBelow(const QModelIndex &closed)
{
    const auto isBelow = [&closed](QModelIndex index) {
        while (index.isValid() && index != closed)
            index = index.parent();
        return index.isValid();
    };
    // A row that cannot be seen must not be opened or copied with the others.
    QItemSelection hidden;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        if (isBelow(range.parent()))
            hidden.append(range);
    }
    selectionModel()->select(hidden, QItemSelectionModel::Deselect);
    // Nor do the arrow keys go on from there.
    if (isBelow(currentIndex().parent()))
        selectionModel()->setCurrentIndex(closed, QItemSelectionModel::NoUpdate);
}

QList<TableRow> TableView::selectedRows() const
{
    std::unordered_set<RowTree::Number> selected;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            selected.insert(TableModel::numberOf(m_model.index(row, 0, range.parent())));
    }
    QList<TableRow> rows;
    rows.reserve(static_cast<qsizetype>(selected.size()));
    const RowTree &tree = *m_model.tree();
    for (const RowTree::Number number : tree.inReadingOrder(std::move(selected))) {
        if (tree.row(number).kind != RowKind::Section)
            rows.append(tree.row(number));
    }
    return rows;
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
    m_isRestoring = true;
    m_tips.fallSilent();
    const bool hasBands = tree->node(RowTree::root).childCount > 0 && TableModel::isBand(tree->node(1));
    setUniformRowHeights(!hasBands || tree->nodes().size() > mostRowsOfTwoHeights);
    m_model.setTree(tree);
    m_header.fitColumns();
    openFoldersAndSections();
    m_isRestoring = false;
    place.restoreSelection(*this);
    if (scrolling == Scrolling::ToTop)
        scrollToTop();
    else
        place.restoreScrolling(*this);
    horizontalScrollBar()->setValue(horizontal);
    m_tips.followRows();
}

void TableView::openFoldersAndSections()
{
    const std::vector<RowTree::Node> &nodes = m_model.tree()->nodes();
    for (RowTree::Number number = 1; number < nodes.size(); ++number) {
        if (nodes[number].childCount > 0 && isOpen(nodes[number]))
            setExpanded(m_model.indexOf(number), true);
    }
}

void TableView::drawRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QRect row(0, option.rect.top(), viewport()->width(), option.rect.height());
    const bool isBand = m_model.isBand(index);
    if (isBand && !index.flags().testFlag(Qt::ItemIsSelectable)) {
        drawBand(painter, row, index);
        return;
    }
    drawGround(painter, row, index);
    if (isBand) {
        drawBand(painter, row, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    cell.state.setFlag(QStyle::State_Selected, isSelectedRow(index));
    const RowTree::Node &node = m_model.tree()->node(TableModel::numberOf(index));
    const int indent = (node.depth + (rootIsDecorated() ? 1 : 0)) * indentation();
    for (int column = 0; column < m_header.count(); ++column) {
        if (m_header.isSectionHidden(column))
            continue;
        cell.rect =
            QRect(columnViewportPosition(column), row.top(), m_header.sectionSize(column), row.height());
        if (column == TableHeader::titleColumn) {
            if (node.row.kind == RowKind::Folder && node.childCount > 0) {
                const int arrow = m_look.measures.chevronSide;
                // Before the line of its level, as far as others stand before the outermost one.
                const int line = indent + m_header.leadingPadding(TableHeader::titleColumn);
                const int before = m_look.measures.alignmentLine - m_look.measures.gutter;
                const QRect place(cell.rect.left() + line - before,
                                  cell.rect.top() + ((cell.rect.height() - arrow) / 2), arrow, arrow);
                drawChevron(*painter, QStyle::visualRect(layoutDirection(), cell.rect, place),
                            openedShare(index), layoutDirection(), groundOf(index).quiet);
            }
            if (isRightToLeft())
                cell.rect.setRight(cell.rect.right() - indent);
            else
                cell.rect.setLeft(cell.rect.left() + indent);
        }
        if (cell.rect.intersects(viewport()->rect()))
            m_delegate.paint(painter, cell, index.siblingAtColumn(column));
    }
}

bool TableView::isSelectedRow(const QModelIndex &index) const
{
    return index.isValid() && selectionModel()->isSelected(index.siblingAtColumn(TableHeader::titleColumn));
}

bool TableView::hasRing(const QModelIndex &index) const
{
    return m_isByKeyboard && hasFocus() && currentIndex().siblingAtColumn(0) == index.siblingAtColumn(0);
}

const Ground &TableView::groundOf(const QModelIndex &index) const
{
    return m_look.list.of(isSelectedRow(index), isActiveWindow());
}

void TableView::drawGround(QPainter *painter, const QRect &row, const QModelIndex &index) const
{
    const bool isSelected = isSelectedRow(index);
    const RowBackground background{.isSelected = isSelected,
                                   .isInActiveWindow = isActiveWindow(),
                                   .lit = m_tips.lit(index),
                                   .hasRing = hasRing(index),
                                   .isSelectedAbove = isSelected && isSelectedRow(indexAbove(index)),
                                   .isSelectedBelow = isSelected && isSelectedRow(indexBelow(index))};
    background.paint(*painter, row, m_look);
}

void TableView::drawBand(QPainter *painter, const QRect &band, const QModelIndex &index) const
{
    const RowTree::Number number = TableModel::numberOf(index);
    const RowTree &tree = *m_model.tree();
    const bool isSource = tree.row(number).kind == RowKind::Folder;
    const SectionBand content{.title = index.siblingAtColumn(0).data().toString(),
                              .count = m_model.localText().number(tree.node(number).linksBelow),
                              .icon = index.siblingAtColumn(0).data(Qt::DecorationRole).value<QIcon>(),
                              .opened = openedShare(index),
                              .isFirst = index.row() == 0,
                              .ground = isSource ? &groundOf(index) : nullptr,
                              .visits = stripOf(index),
                              .litTick = m_tips.litTick(index),
                              .now = m_model.localText().now()};
    content.paint(*painter, band, layoutDirection(), m_header.dateEnd().value_or(0), m_look);
    if (!isSource)
        RowBackground{.hasRing = hasRing(index)}.paint(*painter, band, m_look);
}

const VisitStrip *TableView::stripOf(const QModelIndex &section) const
{
    // The strip stands above the times, whose column may be hidden.
    const std::optional<int> end = m_header.dateEnd();
    if (!end || !isKind(section, RowKind::Section))
        return nullptr;
    const VisitStrip &visits = m_model.tree()->visits(TableModel::numberOf(section));
    if (visits.ticks.empty())
        return nullptr;
    // Where the column of dates comes first, the title needs the place.
    const QRect band(0, 0, viewport()->width(), m_look.measures.sectionHeight);
    const QRect strip = visitStripPlace(visits, band, Qt::LeftToRight, *end, m_look);
    return strip.left() < m_look.measures.alignmentLine + m_look.measures.units(leastHeading) ? nullptr
                                                                                              : &visits;
}

std::optional<std::size_t> TableView::tickAt(const QPoint &point) const
{
    const QModelIndex section = indexAt(point);
    const VisitStrip *const visits = stripOf(section);
    if (visits == nullptr)
        return {};
    return visitTickAt(*visits, point, rowRect(section), layoutDirection(), *m_header.dateEnd(), m_look);
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
    if (m_isByKeyboard && hasFocus())
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
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
        event->reason() == Qt::ShortcutFocusReason)
        m_isByKeyboard = true;
    else if (event->reason() == Qt::MouseFocusReason || event->reason() == Qt::OtherFocusReason)
        m_isByKeyboard = false;
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

int TableView::sizeHintForColumn(int column) const
{
    // Of the rows in sight, as when the user fits a column to its content.
    int width = 0;
    for (QModelIndex index = indexAt(QPoint(0, 0)); index.isValid(); index = indexBelow(index)) {
        if (rowRect(index).top() > viewport()->height())
            break;
        if (m_model.isBand(index))
            continue;
        const int depth = m_model.tree()->node(TableModel::numberOf(index)).depth;
        const int indent =
            column == TableHeader::titleColumn ? (depth + (rootIsDecorated() ? 1 : 0)) * indentation() : 0;
        width = std::max(width, indent + m_delegate.naturalWidth(index.siblingAtColumn(column)));
    }
    return width;
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
    m_isByKeyboard = false;
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
    if (const std::optional<std::size_t> tick = tickAt(point)) {
        goToTick(index.siblingAtColumn(0), *tick);
        return;
    }
    selectionModel()->setCurrentIndex(index,
                                      isKind(index, RowKind::Section)
                                          ? QItemSelectionModel::NoUpdate
                                          : QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    toggle(index);
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
    if (isModifier(event->key())) {
        QTreeView::keyPressEvent(event);
        return;
    }
    m_isByKeyboard = true;
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
            toggle(current);
        else
            Q_EMIT openRequested();
        return;
    case Qt::Key_Space:
        if (!isKind(current, RowKind::Section))
            break;
        toggle(current);
        return;
    case Qt::Key_Asterisk:
        // Qt lays out what is open by calling itself for each level, and foreign folders may be that deep.
        // Without a current row it would open everything.
        if (current.isValid()) {
            m_isOpeningAll = true;
            expandRecursively(current, deepestOpening);
            m_isOpeningAll = false;
        }
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
