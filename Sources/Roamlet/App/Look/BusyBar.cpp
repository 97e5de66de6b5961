// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/BusyBar.h"

#include "App/Look/Look.h"

#include <QPainter>

namespace roamlet
{

BusyBar::BusyBar(const QString &work, QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("busyBar"));
    setAccessibleName(work);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFixedHeight(thickness);
    constexpr int wayAndBack = 2400; // milliseconds
    m_running.setStartValue(0.0);
    m_running.setKeyValueAt(0.5, 1.0);
    m_running.setEndValue(0.0);
    m_running.setDuration(wayAndBack);
    m_running.setLoopCount(-1);
    connect(&m_running, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
}

void BusyBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_running.start();
}

void BusyBar::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_running.stop();
}

void BusyBar::paintEvent(QPaintEvent * /*event*/)
{
    constexpr int share = 4;
    const int runner = width() / share;
    const int place = qRound(m_running.currentValue().toReal() * (width() - runner));
    const Look look = Look::of(*this);
    QPainter painter(this);
    painter.fillRect(rect(), look.list.hairline);
    painter.fillRect(QRect(place, 0, runner, height()), look.accent);
}

} // namespace roamlet
