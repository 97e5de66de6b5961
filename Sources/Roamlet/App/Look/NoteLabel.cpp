// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/NoteLabel.h"

#include "App/Look/Look.h"

#include <QEvent>
#include <QGuiApplication>

namespace roamlet
{

NoteLabel::NoteLabel(QWidget *parent) : QLabel(parent)
{
    setWordWrap(true);
    // Reasons and names come from elsewhere: they are never markup.
    setTextFormat(Qt::PlainText);
    setFont(Look::of(*this).smallFont);
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
    const Look look =
        parentWidget() != nullptr ? Look::of(*parentWidget()) : Look(QGuiApplication::palette(), font());
    setPaletteColor(*this, QPalette::WindowText, m_tone == Tone::Problem ? look.problem : look.page.quiet);
}

} // namespace roamlet
