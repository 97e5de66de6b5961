// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Fade.h"

#include "App/Look/Motion.h"

#include <QWidget>

namespace roamlet
{

Fade::Fade(QWidget &widget, int milliseconds) : Fade(widget, milliseconds, [&widget] { widget.update(); }) {}

Fade::Fade(QWidget &widget, int milliseconds, const std::function<void()> &draw)
    : m_widget(widget), m_milliseconds(milliseconds)
{
    m_animation.setStartValue(0.0);
    m_animation.setEndValue(1.0);
    m_animation.setEasingCurve(QEasingCurve::OutCubic);
    QObject::connect(&m_animation, &QVariantAnimation::valueChanged, &m_animation, draw);
    QObject::connect(&m_animation, &QVariantAnimation::finished, &m_animation, draw);
}

void Fade::begin()
{
    m_animation.stop();
    if (const int time = motionTime(m_widget, m_milliseconds); time > 0) {
        m_animation.setDuration(time);
        m_animation.start();
    }
}

double Fade::share() const
{
    return isRunning() ? m_animation.currentValue().toDouble() : 1;
}

} // namespace roamlet
