// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

class QPainter;

namespace roamlet
{

struct Look;

/// What lies behind a row: the ground of its state, and the ring of the keyboard.
struct RowBackground {
    bool isSelected = false;
    bool isInActiveWindow = true;
    /// By how much the pointer over it lights it.
    double lit = 0;
    bool hasRing = false;
    /// Selected neighbours are one piece, without corners in between.
    bool isSelectedAbove = false;
    bool isSelectedBelow = false;

    /// `row` is as wide as the list.
    void paint(QPainter &painter, const QRect &row, const Look &look) const;
};

} // namespace roamlet
