// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Switch.h"

#include "App/Look/Look.h"
#include "App/Look/Motion.h"
#include "App/Look/Painting.h"

#include <QPainter>

namespace roamlet
{

namespace
{

constexpr int roomAroundSwitch = Measures::focusRingWidth + Measures::focusRingGap;

} // namespace

void SwitchLook::paint(QPainter &painter, const QRectF &rect, const Look &look) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled)
        painter.setOpacity(0.5);
    constexpr qreal room = roomAroundSwitch;
    const QRectF track = rect.adjusted(room, room, -room, -room);
    const qreal radius = track.height() / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(isOn ? look.on : look.edge);
    painter.drawRoundedRect(track, radius, radius);

    const qreal gap = track.height() / 10;
    QRectF knob(track.left() + gap, track.top() + gap, track.height() - 2 * gap, track.height() - 2 * gap);
    const qreal share = isOn ? way : 1 - way;
    const qreal length = track.width() - track.height();
    knob.translate(length * (direction == Qt::LeftToRight ? share : 1 - share), 0);
    painter.setBrush(look.knob);
    painter.drawEllipse(knob);
    painter.restore();

    // Apart from the track, or the ring of a switch that is on could not be seen.
    if (hasFocus)
        drawFocusRing(painter, rect, rect.height() / 2, look);
}

QSize SwitchLook::size(const Measures &measures)
{
    return QSize(measures.switchWidth, measures.switchHeight) +
           QSize(2 * roomAroundSwitch, 2 * roomAroundSwitch);
}

Switch::Switch(QWidget *parent) : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_moving.setStartValue(0.0);
    m_moving.setEndValue(1.0);
    m_moving.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_moving, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
}

QSize Switch::sizeHint() const
{
    return SwitchLook::size(Look::of(*this).measures);
}

void Switch::nextCheckState()
{
    const bool wasChecked = isChecked();
    QAbstractButton::nextCheckState();
    m_moving.stop();
    constexpr int milliseconds = 120;
    // Whoever is told may have turned it back.
    if (const int time = motionTime(*this, milliseconds); time > 0 && isChecked() != wasChecked) {
        m_moving.setDuration(time);
        m_moving.start();
    }
}

void Switch::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const bool isMoving = m_moving.state() == QAbstractAnimation::Running;
    SwitchLook{.isOn = isChecked(),
               .isEnabled = isEnabled(),
               .hasFocus = showsFocus(*this),
               .direction = layoutDirection(),
               .way = isMoving ? m_moving.currentValue().toDouble() : 1}
        .paint(painter, QRectF(rect()), Look::of(*this));
}

} // namespace roamlet
