// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace roamlet
{

/// What the user has set for the desktop. Until it is known, things may move; what runs without an end looks
/// here at each step.
void setMotionAllowed(bool isAllowed);

/// Whether the style and the desktop let things move. Where they do not, things are at once where they would
/// have gone.
bool isMotionWanted(const QWidget &widget);

/// How long something may move that would take so many milliseconds: not at all where nothing moves.
int motionTime(const QWidget &widget, int milliseconds);

} // namespace roamlet
