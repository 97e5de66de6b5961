// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Painting.h"

#include "App/Look/LastInput.h"
#include "App/Look/Look.h"

#include <QLabel>
#include <QPainter>
#include <QPolygonF>
#include <QStyle>
#include <QWidget>

namespace roamlet
{

bool showsFocus(const QWidget &widget)
{
    return widget.hasFocus() && isKeyboardUsed();
}

void drawFocusRing(QPainter &painter, const QRectF &outline, qreal radius, const Look &look)
{
    constexpr qreal half = Measures::focusRingWidth / 2.0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(look.accent, Measures::focusRingWidth));
    painter.drawRoundedRect(outline.adjusted(half, half, -half, -half), radius, radius);
    painter.restore();
}

QRect squareIn(const QRect &line, int left, int side)
{
    return {left, line.top() + ((line.height() - side) / 2), side, side};
}

void drawShadow(QPainter &painter, const QRectF &rect, qreal radius, const Look &look)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    constexpr int layers = 8;
    const qreal reach = look.measures.boxRadius;
    QColor layer = look.shadow;
    layer.setAlphaF(layer.alphaF() / layers);
    painter.setBrush(layer);
    for (int i = 1; i <= layers; ++i) {
        const qreal spread = reach * i / layers;
        painter.drawRoundedRect(rect.adjusted(-spread, -spread / 2, spread, spread), radius + spread,
                                radius + spread);
    }
    painter.restore();
}

void readInOwnDirection(QPainter &painter, const QString &words)
{
    painter.setLayoutDirection(words.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
}

void alignToLine(QLabel &label)
{
    label.setAlignment(QStyle::visualAlignment(label.layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter) |
                       Qt::AlignAbsolute);
}

} // namespace roamlet
