// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>

class QColor;
class QLabel;
class QPainter;
class QWidget;

namespace roamlet
{

struct Look;

/// Whether the widget has the keyboard and the user is at the keyboard: after a click nobody looks for a
/// ring.
bool showsFocus(const QWidget &widget);

/// The ring around what has the keyboard, within `outline`.
void drawFocusRing(QPainter &painter, const QRectF &outline, qreal radius, const Look &look);

/// The soft shadow of a rounded rectangle that lies above its ground. What covers it is drawn afterwards.
void drawShadow(QPainter &painter, const QRectF &rect, qreal radius, const Look &look);

/// The sign that something opens downwards, in the middle of `rect`, as large as an icon.
void drawChevron(QPainter &painter, const QRectF &rect, const QColor &ink, const Look &look);

/// The thickness of the thinnest line that this display can draw.
qreal hairline(const QPainter &painter);

/// Lets a label's text begin where lines begin in the program's language, whatever language the text is in.
/// To be done again when that changes.
void alignToLine(QLabel &label);

/// How long something may move that would take so many milliseconds: not at all where the desktop wants it
/// still.
int motionTime(const QWidget &widget, int milliseconds);

} // namespace roamlet
