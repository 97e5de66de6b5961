// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/PointInTime.h"

#include <chrono>
#include <functional>
#include <stop_token>

class QObject;

namespace roamlet
{

/// Time: what it is now, and how to wait for later.
class Clock
{
public:
    using Duration = std::chrono::milliseconds;

    Clock() = default;
    Clock(const Clock &) = delete;
    Clock &operator=(const Clock &) = delete;
    virtual ~Clock() = default;

    virtual PointInTime now() const = 0;
    /// Blocks the calling thread for `duration` or until `stop` is requested. Any thread.
    virtual void sleep(Duration duration, const std::stop_token &stop) const = 0;
    /// Calls `action` once on the thread of `context` after `duration`, unless `context` is gone by then.
    virtual void after(Duration duration, QObject *context, std::function<void()> action) const = 0;
};

} // namespace roamlet
