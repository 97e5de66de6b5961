// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

namespace roamlet
{

/// What the user has set for the whole desktop and everything on it has to follow.
struct DesktopSettings {
    /// Whether things may move on the screen.
    bool allowsMotion = true;
    /// Whether texts and signs have to stand out more than usual.
    bool wantsMoreContrast = false;

    /// As the desktop says it, with the values above where it has no such settings. Takes a few milliseconds,
    /// half a second where the desktop does not answer. On any thread, but never on the main one.
    static DesktopSettings read();

    bool operator==(const DesktopSettings &) const = default;
};

} // namespace roamlet
