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

} // namespace roamlet
