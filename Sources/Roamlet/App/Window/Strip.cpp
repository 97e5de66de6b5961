// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/Strip.h"

#include "App/Look/MixedColor.h"

#include <QHBoxLayout>
#include <QPainter>

namespace roamlet
{

Strip::Strip(Tone tone, QWidget *parent) : QWidget(parent), m_tone(tone), m_row(new QHBoxLayout(this))
{
    m_row->setContentsMargins(12, 8, 12, 8);
    m_row->setSpacing(10);
}

QColor Strip::warningColor()
{
    return {0xF5, 0x8A, 0x0B};
}

void Strip::paintEvent(QPaintEvent * /*event*/)
{
    const QColor ground = palette().color(QPalette::Base);
    const QColor tint = m_tone == Tone::Warning ? warningColor() : palette().color(QPalette::Highlight);
    QPainter painter(this);
    painter.fillRect(rect(), mixedColor(ground, tint, 0.12F));
    painter.fillRect(QRect(0, height() - 1, width(), 1), mixedColor(ground, tint, 0.3F));
}

} // namespace roamlet
