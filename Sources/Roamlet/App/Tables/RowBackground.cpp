// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/RowBackground.h"

#include "App/Look/Contrast.h"
#include "App/Look/Look.h"
#include "App/Look/Painting.h"

#include <QPainter>
#include <QPainterPath>

namespace roamlet
{

namespace
{

/// From the edge of the list to the ground, in lines of text.
constexpr double rowInset = 0.4;

QPainterPath roundedRow(const QRectF &body, qreal radius, bool isRoundAbove, bool isRoundBelow)
{
    QPainterPath path;
    if (isRoundAbove && isRoundBelow) {
        path.addRoundedRect(body, radius, radius);
        return path;
    }
    path.setFillRule(Qt::WindingFill);
    path.addRoundedRect(body, radius, radius);
    if (!isRoundAbove)
        path.addRect(body.adjusted(0, 0, 0, -body.height() / 2));
    if (!isRoundBelow)
        path.addRect(body.adjusted(0, body.height() / 2, 0, 0));
    return path.simplified();
}

} // namespace

void RowBackground::paint(QPainter &painter, const QRect &row, const Look &look) const
{
    const int inset = look.measures.units(rowInset);
    const QRectF body = row.adjusted(inset, 0, -inset, 0);
    const qreal radius = look.measures.rowRadius;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (isSelected) {
        painter.setBrush(look.list.of(isSelected, isInActiveWindow).base);
        painter.drawPath(roundedRow(body, radius, !isSelectedAbove, !isSelectedBelow));
    } else if (lit > 0) {
        painter.setBrush(mixedColor(look.list.base, look.list.hover, lit));
        painter.drawRoundedRect(body, radius, radius);
    }
    if (hasRing) {
        drawFocusRing(painter, body, radius, look);
    }
    painter.restore();
}

} // namespace roamlet
