// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/BusyBar.h"

#include "App/Look/Look.h"
#include "App/Look/Motion.h"

#include <QPainter>
#include <QStyle>

namespace roamlet
{

BusyBar::BusyBar(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("busyBar"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFixedHeight(thickness);
    constexpr int onePass = 1200; // milliseconds
    m_running.setStartValue(0.0);
    m_running.setEndValue(1.0);
    m_running.setDuration(onePass);
    m_running.setLoopCount(-1);
    connect(&m_running, &QVariantAnimation::valueChanged, this, [this] {
        // What the desktop wants may become known late, or change.
        if (!isMotionWanted(*this))
            m_running.stop();
        update();
    });
}

void BusyBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (isMotionWanted(*this))
        m_running.start();
}

void BusyBar::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_running.stop();
}

void BusyBar::paintEvent(QPaintEvent * /*event*/)
{
    const QColor color = Look::of(*this).accent;
    QPainter painter(this);
    if (m_running.state() != QAbstractAnimation::Running) {
        painter.setOpacity(0.5);
        painter.fillRect(rect(), color);
        return;
    }
    // It comes in from the start of the line and leaves at its end.
    const int runner = qRound(width() * 0.26);
    const int place = qRound(m_running.currentValue().toReal() * (width() + runner)) - runner;
    painter.fillRect(QStyle::visualRect(layoutDirection(), rect(), QRect(place, 0, runner, height())), color);
}

} // namespace roamlet
