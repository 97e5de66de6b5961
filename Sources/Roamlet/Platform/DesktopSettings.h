// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>

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
    /// Calls `changed` on the main thread each time the user may have set something else, as long as somebody
    /// keeps what is returned. Takes as long as reading, and is no more for the main thread; but what is
    /// returned has to go there.
    static std::shared_ptr<void> follow(const std::function<void()> &changed);

    bool operator==(const DesktopSettings &) const = default;
};

} // namespace roamlet
