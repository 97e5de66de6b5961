// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Switch.h"

#include "App/Look/MixedColor.h"

#include <QPainter>

namespace roamlet
{

void SwitchLook::paint(QPainter &painter, const QRectF &rect, const QPalette &palette) const
{
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    const QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    const bool isDark = ground.lightnessF() < 0.5F;

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled)
        painter.setOpacity(0.45);
    constexpr qreal ringWidth = 2;
    const QRectF track = rect.adjusted(ringWidth, ringWidth, -ringWidth, -ringWidth);
    const qreal radius = track.height() / 2;
    // A track that is off has an edge, so that it is seen on any ground.
    painter.setPen(isOn ? QPen(Qt::NoPen) : QPen(mixedColor(ground, text, 0.45F), 1));
    painter.setBrush(isOn ? accent : mixedColor(ground, text, 0.25F));
    painter.drawRoundedRect(track, radius, radius);

    constexpr qreal gap = 2;
    QRectF knob(0, 0, track.height() - 2 * gap, track.height() - 2 * gap);
    knob.moveTop(track.top() + gap);
    if (isOn == (direction == Qt::LeftToRight))
        knob.moveRight(track.right() - gap);
    else
        knob.moveLeft(track.left() + gap);
    painter.setPen(Qt::NoPen);
    if (isOn)
        painter.setBrush(palette.color(QPalette::Active, QPalette::HighlightedText));
    else
        painter.setBrush(isDark ? text : palette.color(QPalette::Active, QPalette::Base));
    painter.drawEllipse(knob);

    if (hasFocus) {
        // Apart from the track, or the ring of a switch that is on could not be seen.
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(mixedColor(accent, text, 0.25F), 1.2));
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
        .paint(painter, QRectF(rect()), palette());
}

} // namespace roamlet
