// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

class QColor;
class QLabel;
class QPainter;
class QString;
class QWidget;

namespace roamlet
{

struct Look;

/// Whether the widget has the keyboard and the user is at the keyboard: after a click nobody looks for a
/// ring.
bool showsFocus(const QWidget &widget);

/// The ring around what has the keyboard, within `outline`.
void drawFocusRing(QPainter &painter, const QRectF &outline, qreal radius, const Look &look);

/// The place of an icon or an arrow that begins at `left`, in the middle of a line of text.
QRect squareIn(const QRect &line, int left, int side);

/// The soft shadow of a rounded rectangle that lies above its ground. What covers it is drawn afterwards.
void drawShadow(QPainter &painter, const QRectF &rect, qreal radius, const Look &look);

/// Lets a label's text begin where lines begin in the program's language, whatever language the text is in.
/// To be done again when that changes.
void alignToLine(QLabel &label);

/// Words are drawn in the direction in which they are read, wherever they stand: in a window from right to
/// left, an English sentence would otherwise begin with its full stop.
void readInOwnDirection(QPainter &painter, const QString &words);

} // namespace roamlet
