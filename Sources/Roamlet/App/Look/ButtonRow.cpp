// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/ButtonRow.h"

#include "App/Look/Look.h"
#include "App/Look/Painting.h"

#include <QEvent>
#include <QPainter>

namespace roamlet
{

ButtonRow::ButtonRow(const QString &text, QWidget *parent) : QPushButton(text, parent)
{
    setAccessibleName(text);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ButtonRow::sizeHint() const
{
    const Look look = Look::of(*this);
    return {QFontMetrics(look.headingFont).horizontalAdvance(text()) + 2 * look.measures.boxPadding,
            look.measures.settingsRowHeight};
}

QSize ButtonRow::minimumSizeHint() const
{
    return sizeHint();
}

bool ButtonRow::event(QEvent *event)
{
    const bool isHandled = QPushButton::event(event);
    // The list draws what lies below the row, and a style may take away that the pointer is told.
    if (event->type() == QEvent::Polish)
        setAttribute(Qt::WA_Hover);
    return isHandled;
}

void ButtonRow::paintEvent(QPaintEvent * /*event*/)
{
    const Look look = Look::of(*this);
    QPainter painter(this);
    painter.setFont(look.headingFont);
    painter.setPen(isEnabled() ? look.accentText : look.card.faint);
    readInOwnDirection(painter, text());
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

} // namespace roamlet
