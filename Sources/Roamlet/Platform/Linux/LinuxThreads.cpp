// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Threads.h"

#include <sys/resource.h>

namespace roamlet::Threads
{

void giveWay()
{
    // Half as far back as `nice` sets a whole program: on a machine that is busy with something else, the
    // work still has to get done. What the system calls a process here is the thread that asks.
    constexpr int background = 5;
    if (getpriority(PRIO_PROCESS, 0) < background)
        setpriority(PRIO_PROCESS, 0, background);
}

} // namespace roamlet::Threads
