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

// Only the main thread calls these.
// NOLINTBEGIN(concurrency-mt-unsafe)
void useOneHeap()
{
    // A thread's own heap grows by one page at a time, and what is free at its end is not trimmed.
    mallopt(M_ARENA_MAX, 1);
    // A busy process would lose time by giving back what it takes again soon.
    constexpr int growth = 1 << 20;
    constexpr int mostFreeWhenBusy = 8 << 20;
    constexpr int largestFromHeap = 4 << 20;
    mallopt(M_TOP_PAD, growth);
    mallopt(M_TRIM_THRESHOLD, mostFreeWhenBusy);
    mallopt(M_MMAP_THRESHOLD, largestFromHeap);
}

void giveBackMemory()
{
    malloc_trim(0);
}
// NOLINTEND(concurrency-mt-unsafe)

} // namespace roamlet::Processes
