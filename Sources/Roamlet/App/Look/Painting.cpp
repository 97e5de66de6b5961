// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Painting.h"

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
    return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
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

void drawChevron(QPainter &painter, const QRectF &rect, const QColor &ink, const Look &look)
{
    const qreal sixteenth = look.measures.iconSide / 16.0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 1.5 * sixteenth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF tip = rect.center() + QPointF(0, 1.6 * sixteenth);
    const qreal arm = 3.25 * sixteenth;
    const QPolygonF chevron{tip + QPointF(-arm, -arm), tip, tip + QPointF(arm, -arm)};
    painter.drawPolyline(chevron);
    painter.restore();
}

qreal hairline(const QPainter &painter)
{
    return 1 / painter.device()->devicePixelRatioF();
}

void alignToLine(QLabel &label)
{
    label.setAlignment(QStyle::visualAlignment(label.layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter) |
                       Qt::AlignAbsolute);
}

int motionTime(const QWidget &widget, int milliseconds)
{
    const bool isStill =
        widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) == 0;
    return isStill ? 0 : milliseconds;
}

} // namespace roamlet
