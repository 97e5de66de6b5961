// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/TableView.h"

#include "App/Look/Look.h"
#include "App/Tables/RowIcons.h"
#include "App/Tables/RowSelectionModel.h"
#include "App/Tables/TableHeader.h"
#include "App/Tables/TableModel.h"
#include "App/Tables/ViewPlace.h"

#include <QContextMenuEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOption>
#include <QStyledItemDelegate>

#include <algorithm>
#include <unordered_set>

namespace roamlet
{

using RowKind = TableRow::Kind;

namespace
{

/// How many levels of folders one key opens.
constexpr int deepestOpening = 100;

/// Gives every row room for an icon and some air, whether it has an icon or not: the first row decides about
/// the height of all.
class RowDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        constexpr int air = 8;
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width(), std::max(option.fontMetrics.height(), RowIcons::side) + air};
    }
};

} // namespace

TableView::TableView(TableModel &model, Shape shape, QWidget *parent)
    : QTreeView(parent),
      m_model(model),
      m_header(*new TableHeader(model, this)),
      m_emptyLabel(*new QLabel(viewport()))
{
    setHeader(&m_header);
    setModel(&model);
    delete selectionModel();
    setSelectionModel(new RowSelectionModel(&model, this));
    // A view takes these away from a header that does not sort the model itself.
    m_header.setSectionsClickable(true);
    m_header.setSortIndicatorShown(true);
    setItemDelegate(new RowDelegate(this));
    setIconSize({RowIcons::side, RowIcons::side});
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
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

    m_emptyLabel.setObjectName(QStringLiteral("emptyText"));
    m_emptyLabel.setAlignment(Qt::AlignCenter);
    m_emptyLabel.setTextFormat(Qt::PlainText);
    m_emptyLabel.setWordWrap(true);
    m_emptyLabel.setAttribute(Qt::WA_TransparentForMouseEvents);
    updateColors();

    connect(this, &QTreeView::expanded, this, [this](const QModelIndex &index) { noteToggled(index, true); });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex &index) {
        noteToggled(index, false);
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
    // Numbers go level by level; people read from top to bottom.
    const RowTree &tree = *m_model.tree();
    std::vector<RowTree::Number> open{RowTree::root};
    while (!open.empty() && !selected.empty()) {
        const RowTree::Number number = open.back();
        open.pop_back();
        if (selected.erase(number) > 0 && tree.row(number).kind != RowKind::Section)
            rows.append(tree.row(number));
        const RowTree::Node &node = tree.node(number);
        for (int child = node.childCount - 1; child >= 0; --child)
            open.push_back(node.firstChild + static_cast<RowTree::Number>(child));
    }
    return rows;
}

bool TableView::selectsLinks() const
{
    return std::ranges::any_of(selectedRows(), [](const TableRow &row) { return row.kind == RowKind::Link; });
}

void TableView::setEmptyText(const QString &text)
{
    m_emptyLabel.setText(text);
    m_emptyLabel.setVisible(m_model.rowCount() == 0 && !text.isEmpty());
    setAccessibleDescription(m_model.rowCount() == 0 ? text : QString());
}

QString TableView::emptyText() const
{
    return m_model.rowCount() == 0 ? m_emptyLabel.text() : QString();
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
    m_model.setTree(tree);
    openFoldersAndSections();
    m_isRestoring = false;
    place.restoreSelection(*this);
    if (scrolling == Scrolling::ToTop)
        scrollToTop();
    else
        place.restoreScrolling(*this);
    horizontalScrollBar()->setValue(horizontal);
    setEmptyText(m_emptyLabel.text());
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
    if (isKind(index, RowKind::Section))
        drawSection(painter, option, index);
    else
        QTreeView::drawRow(painter, option, index);
}

void TableView::drawSection(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    row.features &= ~QStyleOptionViewItem::Alternate;
    row.state.setFlag(QStyle::State_Selected, false);
    row.rect = QRect(0, option.rect.top(), viewport()->width(), option.rect.height());
    painter->fillRect(row.rect, palette().color(QPalette::Base));
    style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &row, painter, this);

    const int arrow = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    const auto mirrored = [&row](const QRect &rect) {
        return QStyle::visualRect(row.direction, row.rect, rect);
    };
    QRect rest = row.rect;
    QStyleOption branch = row;
    branch.rect = mirrored(QRect(rest.left(), rest.top(), arrow, rest.height()));
    branch.state = QStyle::State_Children | QStyle::State_Enabled;
    branch.state.setFlag(QStyle::State_Open, isExpanded(index));
    style()->drawPrimitive(QStyle::PE_IndicatorBranch, &branch, painter, this);
    rest.setLeft(rest.left() + arrow + margin);

    if (const auto icon = index.data(Qt::DecorationRole).value<QIcon>(); !icon.isNull()) {
        const int side = RowIcons::side;
        icon.paint(painter, mirrored(QRect(rest.left(), rest.top(), side, rest.height())));
        rest.setLeft(rest.left() + side + 2 * margin);
    }
    QFont bold = font();
    bold.setBold(true);
    painter->save();
    painter->setFont(bold);
    const QString title =
        QFontMetrics(bold).elidedText(index.data().toString(), Qt::ElideRight, rest.width());
    style()->drawItemText(painter, mirrored(rest), static_cast<int>(Qt::AlignVCenter | Qt::AlignLeading),
                          palette(), isEnabled(), title, QPalette::Text);
    painter->restore();

    if (hasFocus() && currentIndex().siblingAtColumn(0) == index.siblingAtColumn(0)) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = row.rect;
        focus.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
        focus.backgroundColor = palette().color(QPalette::Base);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, this);
    }
}

void TableView::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (!isKind(index, RowKind::Section)) {
        QTreeView::mousePressEvent(event);
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    toggle(index);
}

void TableView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (isKind(index, RowKind::Section)) {
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
        expandRecursively(current, deepestOpening);
        return;
    default:
        break;
    }
    QTreeView::keyPressEvent(event);
}

void TableView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isMouse = event->reason() == QContextMenuEvent::Mouse;
    const QModelIndex index = isMouse ? indexAt(event->pos()) : currentIndex();
    if (!index.isValid() || isKind(index, RowKind::Section))
        return;
    if (!selectionModel()->isSelected(index))
        setCurrentIndex(index);
    if (isMouse) {
        Q_EMIT linkMenuRequested(event->globalPos());
        return;
    }
    scrollTo(index);
    Q_EMIT linkMenuRequested(viewport()->mapToGlobal(visualRect(index).center()));
}

void TableView::updateColors()
{
    setPaletteColor(m_emptyLabel, QPalette::WindowText, Look::of(*this).list.quiet);
}

void TableView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        updateColors();
    QTreeView::changeEvent(event);
}

void TableView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    m_emptyLabel.setGeometry(viewport()->rect());
}

} // namespace roamlet
