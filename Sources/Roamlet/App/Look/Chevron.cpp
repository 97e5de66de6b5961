// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Chevron.h"

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QPolygonF>

#include <algorithm>

namespace roamlet
{

namespace
{

/// Pointing down, turned clockwise by so many degrees.
void drawTurnedChevron(QPainter &painter, const QRectF &place, qreal angle, const QColor &color)
{
    // On a square of 16 units around its middle.
    constexpr qreal square = 16;
    constexpr qreal halfWidth = 3.25;
    constexpr qreal halfHeight = 1.625;
    const qreal scale = std::min(place.width(), place.height()) / square;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.center());
    painter.rotate(angle);
    painter.scale(scale, scale);
    painter.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({{-halfWidth, -halfHeight}, {0, halfHeight}, {halfWidth, -halfHeight}}));
    painter.restore();
}

} // namespace

void drawChevron(QPainter &painter, const QRectF &place, Qt::ArrowType direction, const QColor &color)
{
    qreal angle = 0;
    if (direction == Qt::UpArrow)
        angle = 180;
    else if (direction == Qt::LeftArrow)
        angle = 90;
    else if (direction == Qt::RightArrow)
        angle = -90;
    drawTurnedChevron(painter, place, angle, color);
}

void drawChevron(QPainter &painter, const QRectF &place, double opened, Qt::LayoutDirection direction,
                 const QColor &color)
{
    const qreal closed = direction == Qt::RightToLeft ? 90 : -90;
    drawTurnedChevron(painter, place, closed * (1 - opened), color);
}

} // namespace roamlet
