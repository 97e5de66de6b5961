// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Settings/ProfileList.h"

#include "App/Look/Hairline.h"
#include "App/Look/Look.h"
#include "App/Look/Motion.h"
#include "App/Look/Painting.h"
#include "App/Settings/ProfileDelegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <utility>

namespace roamlet
{

ProfileList::ProfileList(QWidget *parent) : QListView(parent)
{
    setItemDelegate(new ProfileDelegate(this));
    setSelectionMode(SingleSelection);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setResizeMode(Adjust);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    setMouseTracking(true);
    // The window's own ground shows around the box.
    viewport()->setAutoFillBackground(false);
    // Dragging is done here: it is only about the order of these rows.
    setDragDropMode(NoDragDrop);
    m_moving.setStartValue(0.0);
    m_moving.setEndValue(1.0);
    m_moving.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_moving, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        const double share = value.toDouble();
        for (auto offset = m_offsets.begin(); offset != m_offsets.end(); ++offset) {
            const double before = m_offsetsBefore.value(offset.key());
            *offset = before + (m_offsetsAfter.value(offset.key()) - before) * share;
        }
        viewport()->update();
    });
    connect(&m_moving, &QVariantAnimation::finished, this, [this] {
        if (m_target < 0)
            forgetOffsets();
    });
}

void ProfileList::setModel(QAbstractItemModel *model)
{
    QListView::setModel(model);
    const auto resize = [this] { updateGeometry(); };
    connect(model, &QAbstractItemModel::modelReset, this, resize);
    connect(model, &QAbstractItemModel::modelReset, this, &ProfileList::forgetOffsets);
}

void ProfileList::setPlaceholderText(const QString &text)
{
    m_placeholderText = text;
    viewport()->update();
}

QStyleOptionViewItem ProfileList::optionOf(const QModelIndex &index) const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    return option;
}

QRect ProfileList::switchRect(const QModelIndex &index) const
{
    return ProfileDelegate::switchRect(optionOf(index));
}

QRect ProfileList::shownRect(const QModelIndex &index) const
{
    return visualRect(index).translated(0, qRound(m_offsets.value(index.row())));
}

QSize ProfileList::sizeHint() const
{
    const Look look = Look::of(*this);
    const int rows = model() != nullptr ? model()->rowCount() : 0;
    int width = look.measures.sidebarWidth;
    for (int row = 0; row < rows; ++row) {
        const QString note = model()->index(row, 0).data(Qt::ToolTipRole).toString();
        if (!note.isEmpty())
            width = std::max(width, ProfileDelegate::widthForNote(note, look));
    }
    return {width, look.measures.settingsRowHeight * std::max(rows, 2)};
}

QSize ProfileList::minimumSizeHint() const
{
    const Measures measures = Look::of(*this).measures;
    return {measures.sidebarWidth, measures.settingsRowHeight * 2};
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
    drag(position);
}

void ProfileList::drag(QPoint position)
{
    viewport()->setCursor(Qt::ClosedHandCursor);
    m_lifted = m_pressed;
    // It stays among the others.
    const QRect rows = box();
    const QRect place = visualRect(m_lifted);
    const int lowest = std::max(rows.top(), rows.bottom() + 1 - place.height());
    const int distance =
        std::clamp(place.top() + position.y() - m_pressedAt.y(), rows.top(), lowest) - place.top();
    const QRect lifted = place.translated(0, distance);
    // Wherever it was grabbed: the others make room where the row itself is.
    const int row = rowAt(lifted.center().y());
    const int target = row > m_lifted.row() ? row + 1 : row;
    if (target != m_target) {
        m_target = target;
        makeRoom();
    }
    for (QHash<int, double> *offsets : {&m_offsets, &m_offsetsAfter, &m_offsetsBefore})
        offsets->insert(m_lifted.row(), distance);
    // The row that it has reached comes into view, and on the next move the one after it.
    const int scrolledFrom = verticalOffset();
    scrollTo(model()->index(rowAt(distance < 0 ? lifted.top() : lifted.bottom()), 0));
    m_pressedAt.ry() -= verticalOffset() - scrolledFrom;
    viewport()->update();
}

void ProfileList::makeRoom()
{
    const int from = m_lifted.row();
    const int height = visualRect(m_lifted).height();
    m_offsetsAfter.clear();
    for (int row = 0; row < model()->rowCount(); ++row) {
        if (row > from && row < m_target)
            m_offsetsAfter.insert(row, -height);
        else if (row < from && row >= m_target)
            m_offsetsAfter.insert(row, height);
    }
    settle();
}

void ProfileList::settle()
{
    m_moving.stop();
    for (auto after = m_offsetsAfter.cbegin(); after != m_offsetsAfter.cend(); ++after)
        m_offsets.insert(after.key(), m_offsets.value(after.key()));
    m_offsetsBefore = m_offsets;
    constexpr int milliseconds = 120;
    if (const int time = motionTime(*this, milliseconds); time > 0) {
        m_moving.setDuration(time);
        m_moving.start();
    } else if (m_target < 0) {
        forgetOffsets();
    } else {
        m_offsets = m_offsetsAfter;
        viewport()->update();
    }
}

void ProfileList::mouseReleaseEvent(QMouseEvent *event)
{
    const int target = m_target;
    const QPersistentModelIndex pressed = std::exchange(m_pressed, QPersistentModelIndex());
    if (target < 0 || !pressed.isValid()) {
        endDragging();
        QListView::mouseReleaseEvent(event);
        return;
    }
    const int shownAt = shownRect(pressed).top();
    const bool isMoved = model()->moveRow({}, pressed.row(), {}, target);
    if (isMoved) {
        // The others have made room where they are now; it only has to come down.
        m_moving.stop();
        m_offsets = {{pressed.row(), shownAt - visualRect(pressed).top()}};
    }
    endDragging();
}

void ProfileList::focusOutEvent(QFocusEvent *event)
{
    endDragging();
    QListView::focusOutEvent(event);
}

int ProfileList::rowAt(int y) const
{
    const int last = model()->rowCount() - 1;
    for (int row = 0; row < last; ++row) {
        if (y <= visualRect(model()->index(row, 0)).bottom())
            return row;
    }
    return last;
}

void ProfileList::endDragging()
{
    m_pressed = QPersistentModelIndex();
    viewport()->unsetCursor();
    viewport()->update();
    if (std::exchange(m_target, -1) >= 0) {
        m_offsetsAfter.clear();
        settle();
    }
}

void ProfileList::forgetOffsets()
{
    m_moving.stop();
    m_lifted = QPersistentModelIndex();
    m_offsets.clear();
    viewport()->update();
}

QRect ProfileList::box() const
{
    const int rows = model() != nullptr ? model()->rowCount() : 0;
    const int lift = Look::of(*this).measures.lift;
    QRect result = viewport()->rect();
    if (rows > 0) {
        result.setTop(visualRect(model()->index(0, 0)).top());
        result.setBottom(visualRect(model()->index(rows - 1, 0)).bottom());
    }
    return result.adjusted(lift, 0, -lift, 0);
}

void ProfileList::drawRow(QPainter &painter, const QModelIndex &index, const QRect &place) const
{
    QStyleOptionViewItem option = optionOf(index);
    option.rect = place;
    painter.save();
    itemDelegate()->paint(&painter, option, index);
    painter.restore();
}

void ProfileList::drawLifted(QPainter &painter) const
{
    const Look look = Look::of(*this);
    const qreal radius = look.measures.fieldRadius;
    const QRect place = shownRect(m_lifted);
    // At its sides there is no room for one: above and below it ends softly there.
    drawShadow(painter, QRectF(place).adjusted(radius, 0, -radius, 0), radius, look);
    const qreal line = hairline(painter);
    painter.setPen(QPen(look.outline, line));
    painter.setBrush(look.card.base);
    painter.drawRoundedRect(QRectF(place).adjusted(line / 2, line / 2, -line / 2, -line / 2), radius, radius);
    drawRow(painter, m_lifted, place);
}

void ProfileList::paintEvent(QPaintEvent * /*event*/)
{
    const Look look = Look::of(*this);
    const qreal radius = look.measures.boxRadius;
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal line = hairline(painter);
    const QRect rows = box();
    QPainterPath outline;
    outline.addRoundedRect(QRectF(rows).adjusted(line / 2, line / 2, -line / 2, -line / 2), radius, radius);
    painter.fillPath(outline, look.card.base);
    const int count = model() != nullptr ? model()->rowCount() : 0;
    if (count == 0) {
        painter.setPen(look.card.quiet);
        readInOwnDirection(painter, m_placeholderText);
        painter.drawText(rows, Qt::AlignCenter | Qt::TextWordWrap, m_placeholderText);
    }

    const bool isKeyboardUsed = showsFocus(*this);
    const QModelIndex pointed = viewport()->underMouse() && m_target < 0
                                    ? indexAt(viewport()->mapFromGlobal(QCursor::pos()))
                                    : QModelIndex();
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = model()->index(row, 0);
        const QRect own = visualRect(index);
        const QRectF inBox(rows.left(), own.top(), rows.width(), own.height());
        if (index == pointed) {
            painter.save();
            painter.setClipPath(outline);
            painter.fillRect(inBox, look.rowVeil);
            painter.restore();
        }
        // The lines stay where they are while rows are carried over them.
        if (row > 0)
            painter.fillRect(QRectF(inBox.left(), inBox.top(), inBox.width(), line), look.card.hairline);
        if (m_lifted == index)
            continue;
        drawRow(painter, index, shownRect(index));
        if (isKeyboardUsed && index == currentIndex() && m_offsets.isEmpty()) {
            constexpr qreal inside = 1;
            drawFocusRing(painter, inBox.adjusted(inside, inside, -inside, -inside), radius - inside, look);
        }
    }
    painter.setPen(QPen(look.card.hairline, line));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(outline);
    if (m_lifted.isValid())
        drawLifted(painter);
}

} // namespace roamlet
