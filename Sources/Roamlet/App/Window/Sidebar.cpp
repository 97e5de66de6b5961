// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/Sidebar.h"

#include "App/Look/Hairline.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"
#include "App/Look/RoamletStyle.h"
#include "App/Look/Symbol.h"
#include "App/Window/PaneText.h"
#include "App/Window/SidebarDelegate.h"
#include "App/Window/SidebarModel.h"
#include "Library/Library.h"
#include "Opening/Opener.h"
#include "Platform/UserDefaults.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString foldedKey = u"sidebar.folded"_s;

} // namespace

Sidebar::Sidebar(const WindowServices &services, QWidget *parent)
    : QTreeView(parent),
      m_services(services),
      m_model(new SidebarModel(services.library, this)),
      m_sourceIcons(services.library, services.opener, *this),
      m_delegate(new SidebarDelegate(m_sourceIcons, this)),
      m_lighting(*viewport(), Fade::hoverTime),
      m_turning(*viewport(), Fade::turningTime)
{
    setObjectName(u"sidebar"_s);
    setAccessibleName(tr("Sidebar"));
    setModel(m_model);
    setItemDelegate(m_delegate);
    setFrameShape(QFrame::NoFrame);
    setMinimumWidth(minimumWidthOfColumn);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    setHeaderHidden(true);
    header()->setMinimumSectionSize(0);
    setRootIsDecorated(false);
    setIndentation(0);
    setExpandsOnDoubleClick(false);
    setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_Hover);
    setBackgroundRole(QPalette::Window);
    viewport()->setBackgroundRole(QPalette::Window);
    updateColors();
    restoreFolded();
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex &index) {
        storeFolded(index, true);
        turn(index);
    });
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex &index) {
        storeFolded(index, false);
        turn(index);
    });
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &Sidebar::followSelection);
    // A reset empties the selection; the window's pane stays what it was.
    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        m_isRestoring = true;
        endDragging();
    });
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        restoreFolded();
        select(m_pane);
    });
}

void Sidebar::setIsOverList(bool isOverList)
{
    m_isOverList = isOverList;
    viewport()->update();
}

void Sidebar::select(const std::optional<Pane> &pane)
{
    m_isRestoring = true;
    m_pane = pane;
    const QModelIndex index = pane ? m_model->indexOf(*pane) : QModelIndex();
    using Flag = QItemSelectionModel::SelectionFlag;
    if (!index.isValid()) {
        selectionModel()->clear();
    } else {
        selectionModel()->select(index, Flag::ClearAndSelect);
        // To go to a row in a folded section would unfold it.
        selectionModel()->setCurrentIndex(isExpanded(index.parent()) ? index : index.parent(),
                                          Flag::NoUpdate);
    }
    m_isRestoring = false;
}

void Sidebar::followSelection()
{
    if (m_isRestoring)
        return;
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    m_pane = selected.isEmpty() ? std::nullopt : m_model->pane(selected.first());
    Q_EMIT paneSelected();
}

bool Sidebar::isSection(const QModelIndex &index) const
{
    return index.isValid() && !m_model->pane(index);
}

void Sidebar::setFolded(const QModelIndex &section, bool isFolded)
{
    if (isFolded && currentIndex().parent() == section)
        selectionModel()->setCurrentIndex(section, QItemSelectionModel::NoUpdate);
    setExpanded(section, !isFolded);
}

void Sidebar::turn(const QModelIndex &section)
{
    // What comes with its place has not moved.
    if (m_isRestoring)
        return;
    m_turned = section;
    m_turning.begin();
}

void Sidebar::storeFolded(const QModelIndex &section, bool isFolded)
{
    if (m_isRestoring)
        return;
    // Sources that are switched off at present keep what they were.
    QStringList ids = m_services.defaults.stringList(foldedKey).value_or(QStringList());
    ids.removeAll(m_model->sectionID(section));
    if (isFolded)
        ids.append(m_model->sectionID(section));
    m_services.defaults.setStringList(foldedKey, ids);
}

void Sidebar::restoreFolded()
{
    const bool wasRestoring = std::exchange(m_isRestoring, true);
    const QStringList ids = m_services.defaults.stringList(foldedKey).value_or(QStringList());
    for (int number = 0; number < m_model->rowCount(); ++number) {
        const QModelIndex section = m_model->index(number, 0);
        setExpanded(section, !ids.contains(m_model->sectionID(section)));
    }
    m_isRestoring = wasRestoring;
}

QModelIndex Sidebar::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    QModelIndex index = QTreeView::moveCursor(action, modifiers);
    const bool isUpwards = action == MoveUp || action == MovePrevious;
    // An open section is no place to go to, but a folded one can be opened.
    while (isSection(index) && isExpanded(index)) {
        index = isUpwards ? indexAbove(index) : indexBelow(index);
        if (!index.isValid())
            return currentIndex();
    }
    return index;
}

QItemSelectionModel::SelectionFlags Sidebar::selectionCommand(const QModelIndex &index,
                                                              const QEvent *event) const
{
    // What is shown stays selected while somebody is at a section.
    return isSection(index) ? QItemSelectionModel::NoUpdate : QTreeView::selectionCommand(index, event);
}

bool Sidebar::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && m_dropTarget &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
        event->accept();
    return QTreeView::event(event);
}

bool Sidebar::viewportEvent(QEvent *event)
{
    const bool isMoving = event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverMove;
    if (isMoving || event->type() == QEvent::HoverLeave) {
        const QModelIndex hovered =
            isMoving ? indexAt(static_cast<QHoverEvent *>(event)->position().toPoint()) : QModelIndex();
        if (hovered != m_hovered) {
            m_hovered = hovered;
            m_lighting.begin();
            viewport()->update();
        }
    }
    return QTreeView::viewportEvent(event);
}

void Sidebar::keyPressEvent(QKeyEvent *event)
{
    const bool carries = event->modifiers() == Qt::AltModifier || event->modifiers() == Qt::ControlModifier;
    const QModelIndex current = currentIndex();
    const QModelIndex section = isSection(current) ? current : current.parent();
    const bool isMirrored = isRightToLeft();
    const auto move = [this](CursorAction action) {
        const QModelIndex target = moveCursor(action, Qt::NoModifier);
        if (target.isValid())
            selectionModel()->setCurrentIndex(target, selectionCommand(target, nullptr));
    };
    switch (event->key()) {
    case Qt::Key_Escape:
        if (m_dropTarget)
            endDragging();
        else
            event->ignore();
        return;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (section.isValid())
            setFolded(section, (event->key() == Qt::Key_Left) != isMirrored);
        return;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (isSection(current))
            setFolded(current, isExpanded(current));
        else
            Q_EMIT rowChosen();
        return;
    case Qt::Key_Up:
    case Qt::Key_Down: {
        const bool isUp = event->key() == Qt::Key_Up;
        // The target counts places before the move.
        if (carries)
            carry(section, isUp ? section.row() - 1 : section.row() + 2);
        else
            move(isUp ? MoveUp : MoveDown);
        return;
    }
    default:
        QTreeView::keyPressEvent(event);
    }
}

void Sidebar::focusOutEvent(QFocusEvent *event)
{
    endDragging();
    QTreeView::focusOutEvent(event);
}

void Sidebar::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        m_pressed = indexAt(event->position().toPoint());
        m_pressedAt = event->position().toPoint();
    }
    viewport()->update();
}

void Sidebar::mouseDoubleClickEvent(QMouseEvent *event)
{
    // Two clicks on a section fold and unfold it, however fast they come.
    mousePressEvent(event);
}

void Sidebar::mouseMoveEvent(QMouseEvent *event)
{
    // The view knows of no press, and would select whatever a button is held down over.
    if (event->buttons() == Qt::NoButton) {
        QTreeView::mouseMoveEvent(event);
        return;
    }
    const QPoint place = event->position().toPoint();
    const bool isSource = m_pressed.isValid() && m_model->source(m_pressed).has_value();
    if (!isSource || !event->buttons().testFlag(Qt::LeftButton))
        return;
    if (!m_dropTarget && (place - m_pressedAt).manhattanLength() < QApplication::startDragDistance())
        return;
    viewport()->setCursor(Qt::ClosedHandCursor);
    m_dropTarget = dropTarget(place.y());
    viewport()->update();
}

void Sidebar::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPersistentModelIndex pressed = m_pressed;
    const std::optional<int> target = m_dropTarget;
    endDragging();
    if (!pressed.isValid())
        return;
    if (target)
        drop(pressed, *target);
    else if (indexAt(event->position().toPoint()) != pressed)
        return;
    else if (isSection(pressed))
        setFolded(pressed, isExpanded(pressed));
    else {
        setCurrentIndex(pressed);
        Q_EMIT rowChosen();
    }
}

int Sidebar::dropTarget(int y) const
{
    // A section with its rows is one thing; above its middle means before it.
    for (int number = 1; number < m_model->rowCount(); ++number) {
        const QModelIndex section = m_model->index(number, 0);
        const QModelIndex last = m_model->index(m_model->rowCount(section) - 1, 0, section);
        const QRect whole = visualRect(section) | (isExpanded(section) ? visualRect(last) : QRect());
        if (y < whole.center().y())
            return number;
    }
    return m_model->rowCount();
}

void Sidebar::drop(const QModelIndex &section, int target)
{
    // The order is of all profiles, also of those that are switched off and not seen here.
    const QList<Source> all = m_services.library.ordered(m_services.library.snapshot().browserProfiles);
    const auto offset = [&all, this](int number) {
        const QString id = m_model->sectionID(m_model->index(number, 0));
        return std::ranges::find(all, id, &Source::id) - all.begin();
    };
    if (target == section.row() || target == section.row() + 1)
        return;
    const qsizetype destination = target < m_model->rowCount() ? offset(target) : offset(target - 1) + 1;
    m_services.library.moveProfiles({offset(section.row())}, destination);
}

void Sidebar::carry(const QModelIndex &section, int target)
{
    // The first section is of all sources, and stays where it is.
    if (!m_model->source(section) || target < 1 || target > m_model->rowCount())
        return;
    const bool isAtSection = currentIndex() == section;
    const QString id = m_model->sectionID(section);
    drop(section, target);
    for (int number = 0; isAtSection && number < m_model->rowCount(); ++number) {
        const QModelIndex carried = m_model->index(number, 0);
        if (m_model->sectionID(carried) == id)
            selectionModel()->setCurrentIndex(carried, QItemSelectionModel::NoUpdate);
    }
    scrollTo(currentIndex());
}

void Sidebar::endDragging()
{
    m_pressed = QPersistentModelIndex();
    if (!m_dropTarget)
        return;
    m_dropTarget.reset();
    viewport()->unsetCursor();
    viewport()->update();
}

void Sidebar::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = isByKeyboard ? currentIndex() : indexAt(event->pos());
    const std::optional<Pane> pane = m_model->pane(index);
    if (!pane || !std::holds_alternative<BookmarksPane>(*pane))
        return;
    const std::optional<QString> sourceID = sourceIDOf(*pane);
    auto *menu = new QMenu(this);
    RoamletStyle::outline(*menu);
    menu->setObjectName(u"sidebarMenu"_s);
    menu->setAccessibleName(tr("Bookmarks"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *action = menu->addAction(tr("Export Bookmarks…"));
    action->setEnabled(PaneText::hasBookmarks(sourceID, m_services.library.snapshot()));
    connect(action, &QAction::triggered, this, [this, sourceID] { Q_EMIT exportRequested(sourceID); });
    menu->popup(isByKeyboard ? viewport()->mapToGlobal(visualRect(index).bottomLeft()) : event->globalPos());
}

void Sidebar::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    const Look look = Look::of(*this);
    QPainter painter(viewport());
    if (m_isOverList)
        paintHairline(painter, viewport()->rect(),
                      layoutDirection() == Qt::RightToLeft ? Qt::LeftEdge : Qt::RightEdge,
                      look.sidebar.hairline);
    if (!m_dropTarget)
        return;
    const bool isLast = *m_dropTarget == m_model->rowCount();
    QModelIndex next = m_model->index(isLast ? *m_dropTarget - 1 : *m_dropTarget, 0);
    if (isLast && isExpanded(next))
        next = m_model->index(m_model->rowCount(next) - 1, 0, next);
    const QRect row = visualRect(next);
    const int y = isLast ? row.bottom() : row.top() + (look.measures.gapAroundGroups / 2);
    const int margin = look.measures.gapAroundGroups;
    painter.fillRect(QRect(margin, y, viewport()->width() - (2 * margin), Measures::focusRingWidth),
                     look.accent);
}

void Sidebar::drawRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    // Not by the style, whose selection goes from edge to edge.
    QStyleOptionViewItem row(option);
    row.widget = this;
    row.rect = QRect(0, option.rect.top(), viewport()->width(), option.rect.height());
    const bool hasRing = showsFocus(*this) && index == currentIndex();
    row.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
    row.state.setFlag(QStyle::State_MouseOver, index == m_hovered);
    row.state.setFlag(QStyle::State_Open, isExpanded(index));
    row.state.setFlag(QStyle::State_HasFocus, hasRing);
    m_delegate->setMotion({.lit = m_lighting.share(), .turned = m_turned == index ? m_turning.share() : 1});
    m_delegate->paint(painter, row, index);
}

void Sidebar::updateColors()
{
    const QColor base = Look::of(*this).sidebar.base;
    setPaletteColor(*viewport(), QPalette::Window, base);
}

void Sidebar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        updateColors();
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        scheduleDelayedItemsLayout();
}

QSize Sidebar::sizeHint() const
{
    return {qMax(idealWidthOfColumn, Measures(font()).sidebarWidth), QTreeView::sizeHint().height()};
}

} // namespace roamlet
