// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/Sidebar.h"

#include "App/Look/Look.h"
#include "App/Window/PaneText.h"
#include "App/Window/SidebarModel.h"
#include "Library/Library.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Quiet headings, and a rounded selection that does not touch the edges.
class SidebarDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const int line = option.fontMetrics.height();
        const bool isHeading = index.data(SidebarModel::IsHeadingRole).toBool();
        return {0, isHeading ? line + (index.row() == 0 ? 14 : 20) : line + 10};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const QString text = index.data(Qt::DisplayRole).toString();
        if (index.data(SidebarModel::IsHeadingRole).toBool())
            paintHeading(painter, option, text);
        else
            paintRow(painter, option, text, index.data(Qt::DecorationRole).value<QIcon>());
        painter->restore();
    }

private:
    static constexpr int margin = 8;
    static constexpr int padding = 8;
    static constexpr int iconSide = 16;

    static void paintHeading(QPainter *painter, const QStyleOptionViewItem &option, const QString &text)
    {
        QFont font = option.font;
        font.setBold(true);
        font.setPointSizeF(font.pointSizeF() * 0.9);
        painter->setFont(font);
        painter->setPen(Look::of(*option.widget).sidebar.quiet);
        const QRect place = option.rect.adjusted(margin + padding, 0, -margin, -4);
        painter->drawText(place, Qt::AlignLeft | Qt::AlignBottom,
                          QFontMetrics(font).elidedText(text, Qt::ElideRight, place.width()));
    }

    static void paintRow(QPainter *painter, const QStyleOptionViewItem &option, const QString &text,
                         const QIcon &icon)
    {
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        const bool hasFocus = isSelected && option.state.testFlag(QStyle::State_HasFocus);
        const Look look = Look::of(*option.widget);
        const RowGround &sidebar = look.sidebar;
        // Not State_Active, which a view only sets while it has the keyboard.
        const Ground &selected =
            option.widget->isActiveWindow() ? sidebar.selected : sidebar.selectedInactive;
        const QColor ink = isSelected ? selected.ink : sidebar.ink;
        const QRect body = option.rect.adjusted(margin, 1, -margin, -1);
        painter->setPen(Qt::NoPen);
        painter->setBrush(Qt::NoBrush);
        if (isSelected)
            painter->setBrush(selected.base);
        else if (option.state.testFlag(QStyle::State_MouseOver))
            painter->setBrush(sidebar.hover);
        painter->drawRoundedRect(body, 5, 5);
        if (hasFocus) {
            // The ring tells that the arrow keys move this selection and no other.
            painter->setPen(QPen(look.accent, Measures::focusRingWidth));
            painter->setBrush(Qt::NoBrush);
            painter->drawRoundedRect(body.adjusted(1, 1, -1, -1), 4, 4);
        }
        const QRect content = body.adjusted(padding, 0, -padding, 0);
        QRect iconPlace(0, 0, iconSide, iconSide);
        iconPlace.moveCenter(content.center());
        iconPlace.moveLeft(content.left());
        icon.paint(painter, iconPlace, Qt::AlignCenter, ink == sidebar.ink ? QIcon::Normal : QIcon::Selected);
        painter->setPen(ink);
        const QRect place = content.adjusted(iconSide + padding, 0, 0, 0);
        painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                          option.fontMetrics.elidedText(text, Qt::ElideRight, place.width()));
    }
};

} // namespace

Sidebar::Sidebar(const Library &library, QWidget *parent)
    : QListView(parent), m_library(library), m_model(new SidebarModel(library, this))
{
    setObjectName(u"sidebar"_s);
    setAccessibleName(u"Sidebar"_s);
    setModel(m_model);
    setItemDelegate(new SidebarDelegate(this));
    setFrameShape(QFrame::NoFrame);
    setMinimumWidth(minimumWidthOfColumn);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    setMouseTracking(true);
    setBackgroundRole(QPalette::Window);
    viewport()->setBackgroundRole(QPalette::Window);
    updateColors();
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &Sidebar::followSelection);
    // A reset empties the selection; the window's pane stays what it was.
    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { m_isRestoring = true; });
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] { select(m_pane); });
}

void Sidebar::select(const std::optional<Pane> &pane)
{
    m_isRestoring = true;
    m_pane = pane;
    const QModelIndex index = pane ? m_model->indexOf(*pane) : QModelIndex();
    if (index.isValid())
        setCurrentIndex(index);
    else
        selectionModel()->clear();
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

QModelIndex Sidebar::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex index = QListView::moveCursor(action, modifiers);
    // A heading is no place to go to, but there is always a row under it.
    return m_model->pane(index) ? index : index.siblingAtRow(index.row() + 1);
}

void Sidebar::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        QListView::mousePressEvent(event);
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
    menu->setObjectName(u"sidebarMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *action = menu->addAction(u"Export Bookmarks…"_s);
    action->setEnabled(PaneText::hasBookmarks(sourceID, m_library.snapshot()));
    connect(action, &QAction::triggered, this, [this, sourceID] { Q_EMIT exportRequested(sourceID); });
    menu->popup(isByKeyboard ? viewport()->mapToGlobal(visualRect(index).bottomLeft()) : event->globalPos());
}

void Sidebar::updateColors()
{
    setPaletteColor(*viewport(), QPalette::Window, Look::of(*this).sidebar.base);
}

void Sidebar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        updateColors();
    QListView::changeEvent(event);
}

QSize Sidebar::sizeHint() const
{
    return {idealWidthOfColumn, QListView::sizeHint().height()};
}

} // namespace roamlet
