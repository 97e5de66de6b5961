// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/PointInTime.h"

#include <gtest/gtest.h>

#include <limits>

namespace roamlet::testing
{

TEST(PointInTime, millisecondsAreWholeAndNeverLaterThanTheMoment)
{
    EXPECT_EQ(millisecondsSince1970(pointInTime(1.5)), 1500);
    EXPECT_EQ(millisecondsSince1970(pointInTime(1.9999)), 1999);
    EXPECT_EQ(millisecondsSince1970(pointInTime(-0.0001)), -1);
}

TEST(PointInTime, whatIsNoDateIsTheNearestThatCounts)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const PointInTime earliest = countable(pointInTime(-infinity));
    const PointInTime latest = countable(pointInTime(infinity));
    EXPECT_EQ(countable(pointInTime(std::numeric_limits<double>::quiet_NaN())), earliest);
    EXPECT_EQ(countable(pointInTime(-1e300)), earliest);
    EXPECT_EQ(countable(pointInTime(1e300)), latest);
    EXPECT_EQ(countable(latest), latest);
    EXPECT_EQ(millisecondsSince1970(pointInTime(1e300)),
              static_cast<qint64>(secondsSince1970(latest)) * 1000);
    EXPECT_EQ(millisecondsSince1970(pointInTime(-1e300)), -millisecondsSince1970(pointInTime(1e300)));
}

} // namespace roamlet::testing
