// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

/// The program with its windows.
namespace roamlet::RoamletApp
{

/// Runs until the user quits, and returns the process's status.
int run(int argc, char **argv);

} // namespace roamlet::RoamletApp
