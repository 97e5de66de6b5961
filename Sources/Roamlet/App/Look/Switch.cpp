// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Switch.h"

#include "App/Look/Look.h"

#include <QPainter>

namespace roamlet
{

void SwitchLook::paint(QPainter &painter, const QRectF &rect, const Look &look) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled)
        painter.setOpacity(0.5);
    constexpr qreal ringWidth = 2;
    const QRectF track = rect.adjusted(ringWidth, ringWidth, -ringWidth, -ringWidth);
    const qreal radius = track.height() / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(isOn ? look.on : look.edge);
    painter.drawRoundedRect(track, radius, radius);

    constexpr qreal gap = 2;
    QRectF knob(0, 0, track.height() - 2 * gap, track.height() - 2 * gap);
    knob.moveTop(track.top() + gap);
    if (isOn == (direction == Qt::LeftToRight))
        knob.moveRight(track.right() - gap);
    else
        knob.moveLeft(track.left() + gap);
    painter.setBrush(Qt::white);
    painter.drawEllipse(knob);

    if (hasFocus) {
        // Apart from the track, or the ring of a switch that is on could not be seen.
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(look.accent, 1.2));
        const QRectF ring = rect.adjusted(0.6, 0.6, -0.6, -0.6);
        painter.drawRoundedRect(ring, ring.height() / 2, ring.height() / 2);
    }
    painter.restore();
}

QSize SwitchLook::size(const QFontMetrics &metrics)
{
    const int height = qMax(metrics.height(), 14) + 4;
    return {height * 9 / 5, height};
}

Switch::Switch(QWidget *parent) : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Switch::sizeHint() const
{
    return SwitchLook::size(fontMetrics());
}

void Switch::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    SwitchLook{
        .isOn = isChecked(), .isEnabled = isEnabled(), .hasFocus = hasFocus(), .direction = layoutDirection()}
        .paint(painter, QRectF(rect()), Look::of(*this));
}

} // namespace roamlet
