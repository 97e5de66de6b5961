// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/ChoiceRow.h"

#include "App/Look/Look.h"
#include "App/Look/Painting.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

#include <utility>

namespace roamlet
{

namespace
{

void drawRadio(QPainter &painter, const QRectF &circle, bool isOn, const Look &look)
{
    constexpr qreal outline = 1.5;
    constexpr qreal half = outline / 2;
    painter.setBrush(isOn ? QBrush(look.on) : QBrush(Qt::NoBrush));
    painter.setPen(QPen(isOn ? look.on : look.edge, outline));
    painter.drawEllipse(circle.adjusted(half, half, -half, -half));
    if (isOn) {
        const qreal inset = circle.width() * 0.31;
        painter.setPen(Qt::NoPen);
        painter.setBrush(look.knob);
        painter.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
    }
}

} // namespace

ChoiceRow::ChoiceRow(const QString &text, QString note, QWidget *parent)
    : QRadioButton(text, parent), m_note(std::move(note))
{
    setAccessibleName(text);
    setAccessibleDescription(m_note);
    setAttribute(Qt::WA_Hover);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int ChoiceRow::noteHeight(int width, const QFont &font) const
{
    const QFontMetrics metrics(font);
    // Where it just fits, wrapping may still want a pixel more.
    if (metrics.horizontalAdvance(m_note) <= width)
        return metrics.height();
    return metrics.boundingRect(0, 0, width, QWIDGETSIZE_MAX, Qt::TextWordWrap, m_note).height();
}

int ChoiceRow::heightForWidth(int width) const
{
    const Look look = Look::of(*this);
    const Measures &measures = look.measures;
    const int words = width - (2 * measures.boxPadding) - measures.radioSide - measures.gapAfterIcon;
    return measures.exportChoiceHeight + noteHeight(words, look.smallFont) -
           QFontMetrics(look.smallFont).height();
}

QSize ChoiceRow::sizeHint() const
{
    const Look look = Look::of(*this);
    const Measures &measures = look.measures;
    const int words =
        qMax(fontMetrics().horizontalAdvance(text()), QFontMetrics(look.smallFont).horizontalAdvance(m_note));
    return {measures.boxPadding + measures.radioSide + measures.gapAfterIcon + words + measures.boxPadding,
            measures.exportChoiceHeight};
}

QSize ChoiceRow::minimumSizeHint() const
{
    const Measures measures = Look::of(*this).measures;
    return {2 * measures.boxPadding + measures.radioSide, measures.exportChoiceHeight};
}

bool ChoiceRow::event(QEvent *event)
{
    const bool isHandled = QRadioButton::event(event);
    // The list draws what lies below the row, and a style may take away that the pointer is told.
    if (event->type() == QEvent::Polish)
        setAttribute(Qt::WA_Hover);
    return isHandled;
}

bool ChoiceRow::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void ChoiceRow::paintEvent(QPaintEvent * /*event*/)
{
    const Look look = Look::of(*this);
    const Measures &measures = look.measures;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect inner = rect().adjusted(measures.boxPadding, 0, -measures.boxPadding, 0);
    const QRect circle = QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter,
                                             QSize(measures.radioSide, measures.radioSide), inner);
    if (!isEnabled())
        painter.setOpacity(0.5);
    drawRadio(painter, circle, isChecked(), look);
    painter.setOpacity(1);

    QRect line = inner.adjusted(measures.radioSide + measures.gapAfterIcon, 0, 0, 0);
    const int note = noteHeight(line.width(), look.smallFont);
    line.setTop((height() - fontMetrics().height() - note) / 2);
    line.setHeight(fontMetrics().height());
    const auto alignment = static_cast<int>(
        QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter).toInt());
    const auto draw = [&](const QString &words, const QFont &font, const QColor &ink, int wrapping) {
        painter.setFont(font);
        painter.setPen(isEnabled() ? ink : look.card.faint);
        readInOwnDirection(painter, words);
        painter.drawText(QStyle::visualRect(layoutDirection(), rect(), line), alignment | wrapping, words);
    };
    draw(fontMetrics().elidedText(text(), Qt::ElideRight, line.width()), font(), look.card.ink,
         Qt::TextSingleLine);
    line.translate(0, line.height());
    line.setHeight(note);
    const bool isOneLine = note == QFontMetrics(look.smallFont).height();
    draw(m_note, look.smallFont, look.card.quiet, isOneLine ? Qt::TextSingleLine : Qt::TextWordWrap);
}

} // namespace roamlet
