// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

namespace roamlet
{

/// A point in time in seconds since 1970-01-01 00:00:00 UTC. Fractions decide orders (browsers store
/// microseconds), which is why this is no QDateTime.
using PointInTime = std::chrono::sys_time<std::chrono::duration<double>>;

/// The point `seconds` after 1970-01-01 00:00:00 UTC.
constexpr PointInTime pointInTime(double seconds)
{
    return PointInTime(std::chrono::duration<double>(seconds));
}

/// Seconds since 1970-01-01 00:00:00 UTC.
constexpr double secondsSince1970(PointInTime time)
{
    return time.time_since_epoch().count();
}

} // namespace roamlet
