// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Collation.h"
#include "Model/UserCalendar.h"

#include <functional>
#include <memory>

namespace roamlet
{

class Clock;
class Folders;
class Library;
class Opener;
class UserDefaults;
class Workspace;

/// What the main window and its tables work with. All of it outlives them.
struct WindowServices {
    Library &library;
    UserDefaults &defaults;
    const Clock &clock;
    const Folders &folders;
    Opener &opener;
    Workspace &workspace;
    /// The order of names in the user's language.
    std::shared_ptr<const Collation> collation;
    /// How the user counts days, asked anew each time.
    std::function<UserCalendar()> calendar;
};

} // namespace roamlet
