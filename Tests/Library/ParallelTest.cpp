// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/Parallel.h"

#include "Support/NoThreads.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <latch>
#include <new>
#include <thread>
#include <vector>

namespace roamlet::testing
{
namespace
{

TEST(ParallelTest, everyIndexIsWorkedOnOnce)
{
    for (const size_t count : {size_t{0}, size_t{1}, size_t{2}, size_t{50}}) {
        std::vector<std::atomic<int>> calls(count);
        forEachInParallel(count, [&calls](size_t index, CoreTurns &turns) {
            const CoreTurns::Turn turn(turns);
            ++calls[index];
        });
        for (const std::atomic<int> &number : calls)
            EXPECT_EQ(number, 1);
    }
}

TEST(ParallelTest, whatOneThrowsIsThrownOnceAllHaveEnded)
{
    for (const size_t count : {size_t{1}, size_t{2}, size_t{20}}) {
        std::atomic<size_t> ended = 0;
        EXPECT_THROW(forEachInParallel(count,
                                       [&](size_t index, CoreTurns &turns) {
                                           const CoreTurns::Turn turn(turns);
                                           ++ended;
                                           if (index == count / 2)
                                               throw std::bad_alloc();
                                       }),
                     std::bad_alloc);
        EXPECT_EQ(ended, count);
    }
}

TEST(ParallelTest, asManyHaveATurnAsThereAreCoresAndNoMore)
{
    const int cores = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    std::latch firstOnes(cores);
    std::atomic<int> arrivals = 0;
    std::atomic<int> busy = 0;
    std::atomic<int> most = 0;
    forEachInParallel(static_cast<size_t>(cores) * 5, [&](size_t, CoreTurns &turns) {
        const CoreTurns::Turn turn(turns);
        const int now = ++busy;
        for (int seen = most; now > seen && !most.compare_exchange_weak(seen, now);) {
        }
        // Ends only when all of the first ones have their turn at the same time.
        if (arrivals++ < cores)
            firstOnes.arrive_and_wait();
        --busy;
    });
    EXPECT_EQ(most, cores);
}

TEST(ParallelTest, whoOnlyWaitsKeepsNobodyFromWorking)
{
    // All of them wait for each other without a turn; that ends only when all of them run.
    constexpr int count = 30;
    std::latch everybody(count);
    std::atomic<int> worked = 0;
    forEachInParallel(count, [&](size_t, CoreTurns &turns) {
        everybody.arrive_and_wait();
        const CoreTurns::Turn turn(turns);
        ++worked;
    });
    EXPECT_EQ(worked, count);
}

TEST(ParallelTest, withoutAnyMoreThreadsTheWorkIsDoneAllTheSame)
{
    const NoThreads noThreads;
    std::vector<int> calls(5);
    forEachInParallel(calls.size(), [&](size_t index, CoreTurns &turns) {
        const CoreTurns::Turn turn(turns);
        ++calls[index];
    });
    EXPECT_EQ(calls, std::vector<int>(5, 1));
}

} // namespace
} // namespace roamlet::testing
