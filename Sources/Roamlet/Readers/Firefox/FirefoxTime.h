// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/PointInTime.h"

#include <cstdint>
#include <optional>

namespace roamlet
{

/// The point in time of a count of microseconds since 1970, as Firefox's databases have it, or nothing for
/// "never".
inline std::optional<PointInTime> firefoxTime(std::int64_t microseconds)
{
    constexpr double microsecondsPerSecond = 1'000'000;
    if (microseconds < 1)
        return {};
    return pointInTime(static_cast<double>(microseconds) / microsecondsPerSecond);
}

} // namespace roamlet
