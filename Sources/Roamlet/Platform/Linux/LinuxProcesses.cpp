// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Processes.h"

#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <latch>
#include <malloc.h>
#include <thread>
#include <vector>

namespace roamlet::Processes
{

namespace
{

/// More threads share them: of those that read, no more work at a time than there are cores.
constexpr int mostHeaps = 4;

} // namespace

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
void limitHeaps()
{
    mallopt(M_ARENA_MAX, mostHeaps);
}

void giveBackMemory()
{
    // What is free at the end of a thread's heap is not trimmed: it goes when a thread that has this heap
    // frees a large block while more than this much is free. New threads get the heaps of those that have
    // ended.
    constexpr int mostAtRest = 128 << 10;
    constexpr std::size_t largeFreedBlock = 100 << 10;
    mallopt(M_TRIM_THRESHOLD, mostAtRest);
    {
        // None ends before the last has a heap, which would otherwise be the same one.
        std::latch haveHeaps(mostHeaps);
        std::vector<std::jthread> threads;
        threads.reserve(mostHeaps);
        try {
            while (threads.size() < mostHeaps) {
                threads.emplace_back([&haveHeaps] {
                    void *volatile block = std::malloc(largeFreedBlock);
                    haveHeaps.arrive_and_wait();
                    std::free(block);
                });
            }
        } catch (const std::exception &) {
            // There is no memory for a thread, or there are too many already.
            haveHeaps.count_down(mostHeaps - static_cast<std::ptrdiff_t>(threads.size()));
        }
    }
    malloc_trim(0);
    // A busy process would lose time by giving back what it takes again soon. From here on these hold;
    // before, the C library went by the largest block that was freed.
    constexpr int mostWhenBusy = 8 << 20;
    constexpr int largestFromHeap = 4 << 20;
    mallopt(M_TRIM_THRESHOLD, mostWhenBusy);
    mallopt(M_MMAP_THRESHOLD, largestFromHeap);
}
// NOLINTEND(concurrency-mt-unsafe)

} // namespace roamlet::Processes
