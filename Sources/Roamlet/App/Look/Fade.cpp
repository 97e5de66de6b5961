// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Fade.h"

#include "App/Look/Motion.h"

#include <QWidget>

namespace roamlet
{

Fade::Fade(QWidget &widget, int milliseconds) : m_widget(widget), m_milliseconds(milliseconds)
{
    m_animation.setStartValue(0.0);
    m_animation.setEndValue(1.0);
    m_animation.setEasingCurve(QEasingCurve::OutCubic);
    const auto draw = [this] { m_widget.update(); };
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
