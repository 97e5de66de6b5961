// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Threads.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <thread>

namespace roamlet::testing
{

namespace
{

int ownNiceness()
{
    return getpriority(PRIO_PROCESS, 0);
}

template<typename Work>
void onAThread(Work work)
{
    std::jthread thread(work);
}

} // namespace

TEST(ThreadsTest, oneThatGivesWayTakesAlongThoseThatItStarts)
{
    const int before = ownNiceness();
    if (before > 0)
        GTEST_SKIP() << "the tests themselves give way";
    onAThread([] {
        Threads::giveWay();
        EXPECT_EQ(ownNiceness(), 5);
        onAThread([] { EXPECT_EQ(ownNiceness(), 5); });
    });
    EXPECT_EQ(ownNiceness(), before);
    onAThread([before] { EXPECT_EQ(ownNiceness(), before); });
}

TEST(ThreadsTest, givingWayNeverComesToTheFront)
{
    onAThread([] {
        constexpr int last = 19;
        ASSERT_EQ(setpriority(PRIO_PROCESS, 0, last), 0);
        Threads::giveWay();
        EXPECT_EQ(ownNiceness(), last);
    });
}

} // namespace roamlet::testing
