// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Diagnostics/CommandLine.h"
#include "App/Diagnostics/RowOfID.h"
#include "Platform/Platform.h"

#include <stop_token>

namespace roamlet
{

class Console;

/// The jobs that run the engine without a window, print and end.
namespace Diagnostics
{

/// Runs the job of `command`, which is one of those that read, and returns the process's status. Blocks until
/// it has finished, until nobody reads the output any more or until `stop` is requested. Watching needs a
/// QCoreApplication, opening somebody who opens.
int run(const Command &command, const Platform &platform, Console &console, const std::stop_token &stop,
        const OpenPage &openPage = {});

} // namespace Diagnostics

} // namespace roamlet
