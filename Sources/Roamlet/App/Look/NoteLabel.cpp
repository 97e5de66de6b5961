// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/NoteLabel.h"

#include "App/Look/MixedColor.h"

#include <QEvent>
#include <QGuiApplication>

namespace roamlet
{

namespace
{

/// Both are readable on their background, with a contrast of more than 4.5 to 1.
constexpr QRgb redOnLight = 0xffb3261e;
constexpr QRgb redOnDark = 0xffff8a80;

constexpr float quietness = 0.32F;

} // namespace

NoteLabel::NoteLabel(QWidget *parent) : QLabel(parent)
{
    setWordWrap(true);
    // Reasons and names come from elsewhere: they are never markup.
    setTextFormat(Qt::PlainText);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    setFont(small);
    updateColor();
}

void NoteLabel::setTone(Tone tone)
{
    m_tone = tone;
    updateColor();
}

bool NoteLabel::event(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange)
        updateColor();
    return QLabel::event(event);
}

void NoteLabel::updateColor()
{
    // Not from this label's own palette, which holds the last mixture.
    const QPalette around =
        parentWidget() != nullptr ? parentWidget()->palette() : QGuiApplication::palette();
    const QColor background = around.color(QPalette::Active, QPalette::Window);
    const bool isDark = background.lightnessF() < 0.5F;
    const QColor color =
        m_tone == Tone::Problem
            ? QColor::fromRgba(isDark ? redOnDark : redOnLight)
            : mixedColor(around.color(QPalette::Active, QPalette::WindowText), background, quietness);
    if (palette().color(QPalette::Active, QPalette::WindowText) == color)
        return;
    QPalette own = palette();
    own.setColor(QPalette::Active, QPalette::WindowText, color);
    own.setColor(QPalette::Inactive, QPalette::WindowText, color);
    setPalette(own);
}

} // namespace roamlet
