// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Window/Pane.h"

#include <optional>

namespace roamlet
{

class UserDefaults;

/// The windows that are open when the user's session ends. A session manager that brings the session back
/// starts the program again, and then they come back, too.
struct SessionWindows {
    bool hasMain = false;
    /// What the main window shows; absent where nothing is picked.
    std::optional<Pane> pane = HistoryPane();
    bool hasSettings = false;

    bool isEmpty() const { return !hasMain && !hasSettings; }

    /// As they were stored last; none where they never were.
    static SessionWindows stored(const UserDefaults &defaults);
    void store(UserDefaults &defaults) const;

    bool operator==(const SessionWindows &) const = default;
};

} // namespace roamlet
