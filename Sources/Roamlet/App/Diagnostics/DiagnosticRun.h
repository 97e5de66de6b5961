// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

/// A run of the program that was asked for one job, and needs no display.
namespace roamlet::DiagnosticRun
{

/// Runs the job that the arguments ask for and returns the process's status; nothing when they ask for the
/// windows. An argument that nobody knows is answered here as well.
std::optional<int> run(int argc, char **argv);

} // namespace roamlet::DiagnosticRun
