// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <algorithm>
#include <chrono>
#include <cmath>

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

/// `time`, or the nearest moment that every calendar counts. Browsers' files hold any number, also ones that
/// are no date at all; what is none of either side counts as the earliest.
inline PointInTime countable(PointInTime time)
{
    // Far enough for every date that a browser can have stored.
    constexpr double farthest = 1e12;
    const double seconds = secondsSince1970(time);
    return pointInTime(std::isnan(seconds) ? -farthest : std::clamp(seconds, -farthest, farthest));
}

/// The whole milliseconds since 1970-01-01 00:00:00 UTC of the countable time, as Qt's dates want them. The
/// last moment of a day is not rounded into the next one.
inline qint64 millisecondsSince1970(PointInTime time)
{
    return static_cast<qint64>(std::floor(secondsSince1970(countable(time)) * 1000));
}

} // namespace roamlet
