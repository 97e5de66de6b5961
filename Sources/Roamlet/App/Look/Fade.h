// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariantAnimation>

#include <functional>

class QWidget;

namespace roamlet
{

/// The short way of something that is drawn from where it was to where it is: a ground that comes in, an
/// arrow that turns. Where nothing shall move, it is there at once.
class Fade final
{
public:
    /// What lies under the pointer is lit; it is dark at once when the pointer leaves it.
    static constexpr int hoverTime = 80; // milliseconds
    /// The arrow of what opens and closes.
    static constexpr int turningTime = 120; // milliseconds

    /// Draws this widget again on the way, which takes so many milliseconds,
    Fade(QWidget &widget, int milliseconds);
    /// or that part of it which `draw` knows.
    Fade(QWidget &widget, int milliseconds, const std::function<void()> &draw);

    /// From where it was.
    void begin();
    /// How much of the way is done; all of it when there is none.
    double share() const;
    bool isRunning() const { return m_animation.state() == QAbstractAnimation::Running; }

private:
    QWidget &m_widget;
    int m_milliseconds;
    QVariantAnimation m_animation;
};

} // namespace roamlet
