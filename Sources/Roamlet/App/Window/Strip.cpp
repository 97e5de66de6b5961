// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/Strip.h"

#include "App/Look/Look.h"

#include <QHBoxLayout>
#include <QPainter>

namespace roamlet
{

Strip::Strip(Tone tone, QWidget *parent) : QWidget(parent), m_tone(tone), m_row(new QHBoxLayout(this))
{
    m_row->setContentsMargins(12, 8, 12, 8);
    m_row->setSpacing(10);
}

void Strip::paintEvent(QPaintEvent * /*event*/)
{
    const Look look = Look::of(*this);
    const Ground &ground = m_tone == Tone::Warning ? look.warning : look.notice;
    QPainter painter(this);
    painter.fillRect(rect(), ground.base);
    painter.fillRect(QRect(0, height() - 1, width(), 1), ground.hairline);
}

} // namespace roamlet
