// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Processes.h"

#include "Platform/WithoutPrivileges.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <limits>

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

TEST(Processes, noProcessHasANumberBeyondTheSystemsLimit)
{
    EXPECT_FALSE(Processes::exists(std::numeric_limits<std::int32_t>::max()));
}

} // namespace roamlet::testing
