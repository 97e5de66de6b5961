// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Threads.h"

#include <sys/resource.h>

namespace roamlet::Threads
{

void giveWay()
{
    // As far back as `nice` sets a whole program. What it calls a process is the thread that asks.
    constexpr int background = 10;
    if (getpriority(PRIO_PROCESS, 0) < background)
        setpriority(PRIO_PROCESS, 0, background);
}

} // namespace roamlet::Threads
