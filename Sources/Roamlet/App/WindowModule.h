// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

namespace roamlet
{

/// The one function of the window module: it runs the program with its windows, takes the process's arguments
/// and returns its status.
using WindowModuleEntry = int(int argc, char **argv);
inline constexpr const char *windowModuleEntry = "roamletRunWindows";

} // namespace roamlet
