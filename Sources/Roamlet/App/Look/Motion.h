// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class QWidget;

namespace roamlet
{

/// Who knows what the user has set for the desktop. Asked once, and not before something is about to move.
void setMotionSetting(std::function<bool()> isMotionAllowed);

/// Whether the style and the desktop let things move. Where they do not, things are at once where they would
/// have gone.
bool isMotionWanted(const QWidget &widget);

/// How long something may move that would take so many milliseconds: not at all where nothing moves.
int motionTime(const QWidget &widget, int milliseconds);

} // namespace roamlet
