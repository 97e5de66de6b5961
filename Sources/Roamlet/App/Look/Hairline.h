// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QRect>

class QPainter;

namespace roamlet
{

/// The thickness of the thinnest line that this display can draw.
qreal hairline(const QPainter &painter);

/// Draws a line along an edge inside of a rectangle, one pixel of the screen thick whatever the scale.
void paintHairline(QPainter &painter, const QRect &rect, Qt::Edge edge, const QColor &color);

} // namespace roamlet
