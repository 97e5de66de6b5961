// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace roamlet
{

/// Whether the desktop lets things move. Where it does not, they are at once where they would have gone.
bool isMotionWanted(const QWidget &widget);

/// How long something may move that would take so many milliseconds: not at all where nothing moves.
int motionTime(const QWidget &widget, int milliseconds);

} // namespace roamlet
