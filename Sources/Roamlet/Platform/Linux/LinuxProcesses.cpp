// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Processes.h"

#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <malloc.h>

namespace roamlet::Processes
{

std::int32_t ownID()
{
    return getpid();
}

bool exists(std::int32_t id)
{
    return kill(id, 0) == 0 || errno == EPERM;
}

void giveBackMemory()
{
    malloc_trim(0);
}

} // namespace roamlet::Processes
