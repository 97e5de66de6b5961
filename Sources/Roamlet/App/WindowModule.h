// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace roamlet
{

struct Source;

/// The functions of the window module. This one runs the program with its windows, takes the process's
/// arguments and returns its status.
using WindowModuleEntry = int(int argc, char **argv);
inline constexpr const char *windowModuleEntry = "roamletRunWindows";
/// This one opens an address in the browser and the profile of its source, without a window. It says what is
/// wrong where it cannot, and nothing where it can.
using OpenPageEntry = void(const QString &url, const Source &source, QString &problem);
inline constexpr const char *openPageEntry = "roamletOpenPage";

} // namespace roamlet
