// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

namespace roamlet
{

/// The one function of the module that answers desktops: takes the process's arguments and returns its
/// status, once nobody has asked for a while.
using DesktopSearchEntry = int(int argc, char **argv);
inline constexpr const char *desktopSearchEntry = "roamletRunDesktopSearch";

} // namespace roamlet
