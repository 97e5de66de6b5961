// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/qnamespace.h>

class QColor;
class QPainter;
class QRectF;

namespace roamlet
{

/// Draws the small arrow of what opens and closes, pointing to this side, as large as fits into `place`.
void drawChevron(QPainter &painter, const QRectF &place, Qt::ArrowType direction, const QColor &color);
/// The arrow of what is open by this share: 0 points to where lines go, 1 down.
void drawChevron(QPainter &painter, const QRectF &place, double opened, Qt::LayoutDirection direction,
                 const QColor &color);

} // namespace roamlet
