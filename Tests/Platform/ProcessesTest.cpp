// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Processes.h"

#include "Platform/WithoutPrivileges.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <latch>
#include <limits>
#include <memory>
#include <thread>
#include <vector>

namespace roamlet::testing
{

TEST(Processes, knowsThisOne)
{
    EXPECT_EQ(Processes::ownID(), ::getpid());
    EXPECT_TRUE(Processes::exists(Processes::ownID()));
}

TEST(Processes, aProcessExistsUntilItHasEnded)
{
    int pipe[2] = {};
    ASSERT_EQ(::pipe(pipe), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        // Ends when the other side of the pipe is closed.
        ::close(pipe[1]);
        char byte = 0;
        _exit(::read(pipe[0], &byte, 1) == 0 ? 0 : 1);
    }
    ASSERT_GT(child, 0);
    ::close(pipe[0]);
    EXPECT_TRUE(Processes::exists(child));
    ::close(pipe[1]);
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(Processes::exists(child));
}

TEST(Processes, somebodyElsesProcessExistsToo)
{
    const WithoutPrivileges guard;
    EXPECT_TRUE(Processes::exists(1));
}

/// In kB.
long memoryInUse()
{
    std::FILE *status = std::fopen("/proc/self/statm", "re");
    long size = 0;
    long resident = 0;
    EXPECT_NE(status, nullptr);
    EXPECT_EQ(std::fscanf(status, "%ld %ld", &size, &resident), 2);
    static_cast<void>(std::fclose(status));
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

TEST(Processes, memoryThatIsNoLongerUsedIsGivenBack)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "a sanitizer keeps what was freed";
#endif
    constexpr std::size_t piece = 512;
    std::vector<std::unique_ptr<std::array<char, piece>>> pieces(100'000);
    for (auto &each : pieces)
        each = std::make_unique<std::array<char, piece>>();
    // The last one lies above all others, and keeps their memory in the process.
    const auto last = std::move(pieces.back());
    pieces.clear();
    const long before = memoryInUse();
    Processes::giveBackMemory();
    EXPECT_LT(memoryInUse(), before - 30'000);
}

TEST(Processes, whatThreadsHaveFreedIsGivenBackOnceTheyHaveEnded)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "a sanitizer keeps what was freed";
#endif
    // From here on a thread's heap keeps some MB that are free.
    Processes::giveBackMemory();
    constexpr std::size_t piece = 512;
    constexpr int count = 4;
    {
        std::latch allAreThere(count);
        std::vector<std::jthread> threads;
        for (int i = 0; i < count; ++i) {
            threads.emplace_back([&allAreThere] {
                std::vector<std::unique_ptr<std::array<char, piece>>> pieces(10'000);
                for (auto &each : pieces)
                    each = std::make_unique<std::array<char, piece>>();
                allAreThere.arrive_and_wait();
            });
        }
    }
    const long before = memoryInUse();
    Processes::giveBackMemory();
    // Each had 5 MB.
    EXPECT_LT(memoryInUse(), before - 12'000);
}

TEST(Processes, withLimitedHeapsTheMemoryOfAnyNumberOfThreadsIsGivenBack)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "a sanitizer keeps what was freed";
#endif
    // How many heaps there are counts for the whole process, and nothing takes one away.
    const pid_t child = ::fork();
    if (child == 0) {
        Processes::limitHeaps();
        // From here on a thread's heap keeps some MB that are free.
        Processes::giveBackMemory();
        const long before = memoryInUse();
        constexpr std::size_t piece = 512;
        constexpr int count = 24;
        {
            std::latch allAreThere(count);
            std::vector<std::jthread> threads;
            for (int i = 0; i < count; ++i) {
                threads.emplace_back([&allAreThere] {
                    std::vector<std::unique_ptr<std::array<char, piece>>> pieces(10'000);
                    for (auto &each : pieces)
                        each = std::make_unique<std::array<char, piece>>();
                    allAreThere.arrive_and_wait();
                });
            }
        }
        Processes::giveBackMemory();
        // Each had 5 MB.
        _exit(memoryInUse() < before + 10'000 ? 0 : 1);
    }
    ASSERT_GT(child, 0);
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

TEST(Processes, noProcessHasANumberBeyondTheSystemsLimit)
{
    EXPECT_FALSE(Processes::exists(std::numeric_limits<std::int32_t>::max()));
}

} // namespace roamlet::testing
