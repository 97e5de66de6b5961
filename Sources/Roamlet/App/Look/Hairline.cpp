// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Hairline.h"

#include <QPainter>

namespace roamlet
{

qreal hairline(const QPainter &painter)
{
    return 1 / painter.device()->devicePixelRatioF();
}

void paintHairline(QPainter &painter, const QRect &rect, Qt::Edge edge, const QColor &color)
{
    const qreal thickness = hairline(painter);
    QRectF line(rect);
    switch (edge) {
    case Qt::TopEdge:
        line.setHeight(thickness);
        break;
    case Qt::BottomEdge:
        line.setTop(line.bottom() - thickness);
        break;
    case Qt::LeftEdge:
        line.setWidth(thickness);
        break;
    case Qt::RightEdge:
        line.setLeft(line.right() - thickness);
        break;
    }
    painter.fillRect(line, color);
}

} // namespace roamlet
