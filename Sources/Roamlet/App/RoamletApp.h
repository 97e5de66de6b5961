// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

namespace roamlet::RoamletApp
{

/// Runs the program as its arguments say and returns the process's status.
int run(int argc, char **argv);

} // namespace roamlet::RoamletApp
