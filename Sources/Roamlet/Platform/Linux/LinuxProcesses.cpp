// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Processes.h"

#include <signal.h>
#include <system_error>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <latch>
#include <malloc.h>
#include <thread>
#include <utility>
#include <vector>

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
    // What is free at the end of a thread's heap is not trimmed: it goes when a thread that has this heap
    // frees a large block while more than this much is free. New threads get the heaps of those that ended
    // last, and these were background tasks, of which no more than a few run at the same time.
    constexpr int mostAtRest = 128 << 10;
    constexpr std::size_t largeFreedBlock = 100 << 10;
    constexpr std::ptrdiff_t heaps = 4;
    mallopt(M_TRIM_THRESHOLD, mostAtRest);
    {
        // None ends before the last has a heap, which would otherwise be the same one.
        std::latch haveHeaps(heaps);
        std::vector<std::jthread> threads;
        try {
            while (std::cmp_less(threads.size(), heaps)) {
                threads.emplace_back([&haveHeaps] {
                    void *volatile block = std::malloc(largeFreedBlock);
                    haveHeaps.arrive_and_wait();
                    std::free(block);
                });
            }
        } catch (const std::system_error &) {
            // There are too many threads already.
            haveHeaps.count_down(heaps - static_cast<std::ptrdiff_t>(threads.size()));
        }
    }
    malloc_trim(0);
    // A busy process would lose time by giving back what it takes again soon. These are what the C library
    // comes to by itself when it is let alone.
    constexpr int mostWhenBusy = 8 << 20;
    constexpr int largestFromHeap = 4 << 20;
    mallopt(M_TRIM_THRESHOLD, mostWhenBusy);
    mallopt(M_MMAP_THRESHOLD, largestFromHeap);
}

} // namespace roamlet::Processes
