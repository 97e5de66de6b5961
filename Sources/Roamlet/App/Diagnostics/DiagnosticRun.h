// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Diagnostics/RowOfID.h"

#include <optional>

/// A run of the program that was asked for one job, and needs no display.
namespace roamlet::DiagnosticRun
{

/// Runs the job that the arguments ask for and returns the process's status; nothing when they ask for the
/// windows. An argument that nobody knows is answered here as well. The jobs know no other programs, so that
/// a page is opened by `openPage`.
std::optional<int> run(int argc, char **argv, const OpenPage &openPage);

} // namespace roamlet::DiagnosticRun
