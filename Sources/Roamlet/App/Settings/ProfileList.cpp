// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Settings/ProfileList.h"

#include "App/Look/Look.h"
#include "App/Settings/ProfileDelegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace roamlet
{

ProfileList::ProfileList(QWidget *parent) : QListView(parent)
{
    setItemDelegate(new ProfileDelegate(this));
    setSelectionMode(SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setResizeMode(Adjust);
    // Dragging is done here: it is only about the order of these rows.
    setDragDropMode(NoDragDrop);
}

void ProfileList::setPlaceholderText(const QString &text)
{
    m_placeholderText = text;
    viewport()->update();
}

QRect ProfileList::switchRect(const QModelIndex &index) const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    return ProfileDelegate::switchRect(option);
}

bool ProfileList::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && m_target >= 0 &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
        event->accept();
    return QListView::event(event);
}

void ProfileList::keyPressEvent(QKeyEvent *event)
{
    const bool moves = event->modifiers() == Qt::AltModifier || event->modifiers() == Qt::ControlModifier;
    if (event->key() == Qt::Key_Escape && m_target >= 0) {
        endDragging();
    } else if (moves && currentIndex().isValid() &&
               (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
        const int row = currentIndex().row();
        // The destination counts positions before the move.
        model()->moveRow({}, row, {}, event->key() == Qt::Key_Up ? row - 1 : row + 2);
        scrollTo(currentIndex());
    } else {
        QListView::keyPressEvent(event);
    }
}

void ProfileList::mousePressEvent(QMouseEvent *event)
{
    const QPoint position = event->position().toPoint();
    const QModelIndex index = indexAt(position);
    if (event->button() == Qt::LeftButton && index.isValid() && !switchRect(index).contains(position)) {
        m_pressed = index;
        m_pressedAt = position;
    }
    QListView::mousePressEvent(event);
}

void ProfileList::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressed.isValid() || !event->buttons().testFlag(Qt::LeftButton)) {
        QListView::mouseMoveEvent(event);
        return;
    }
    const QPoint position = event->position().toPoint();
    if (m_target < 0 && (position - m_pressedAt).manhattanLength() < QApplication::startDragDistance())
        return;
    viewport()->setCursor(Qt::ClosedHandCursor);
    m_target = rowAt(position);
    // The row at the edge comes into view, and on the next move the one after it.
    scrollTo(
        model()->index(qBound(0, position.y() < 0 ? m_target - 1 : m_target, model()->rowCount() - 1), 0));
    viewport()->update();
}

void ProfileList::mouseReleaseEvent(QMouseEvent *event)
{
    const int target = m_target;
    const QPersistentModelIndex pressed = std::exchange(m_pressed, QPersistentModelIndex());
    endDragging();
    if (target >= 0 && pressed.isValid())
        model()->moveRow({}, pressed.row(), {}, target);
    else
        QListView::mouseReleaseEvent(event);
}

void ProfileList::focusOutEvent(QFocusEvent *event)
{
    endDragging();
    QListView::focusOutEvent(event);
}

int ProfileList::rowAt(QPoint position) const
{
    for (int row = 0; row < model()->rowCount(); ++row) {
        if (position.y() < visualRect(model()->index(row, 0)).center().y())
            return row;
    }
    return model()->rowCount();
}

void ProfileList::endDragging()
{
    m_pressed = QPersistentModelIndex();
    m_target = -1;
    viewport()->unsetCursor();
    viewport()->update();
}

void ProfileList::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    QPainter painter(viewport());
    if (model() != nullptr && model()->rowCount() == 0) {
        painter.setPen(Look::of(*this).list.quiet);
        painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, m_placeholderText);
    }
    if (m_target >= 0) {
        const bool isLast = m_target == model()->rowCount();
        const QRect row = visualRect(model()->index(isLast ? m_target - 1 : m_target, 0));
        const int y = isLast ? row.bottom() : qMax(row.top() - 1, 0);
        painter.fillRect(QRect(row.left(), y, row.width(), 2), Look::of(*this).accent);
    }
}

} // namespace roamlet
