// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

class QKeyEvent;

namespace roamlet
{

/// Whether the user is at the keyboard: the last thing that was pressed in any window was a key that leads
/// somewhere, not the mouse. Qt asks how a widget got the focus instead, and takes a command of a menu for a
/// key.
bool isKeyboardUsed();

/// Whether a key is one that is held down for another key or a click, or by chance.
bool isModifier(const QKeyEvent &event);

} // namespace roamlet
