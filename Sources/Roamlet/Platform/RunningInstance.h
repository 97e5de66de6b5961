// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace roamlet
{

/// Sees to it that the program runs once for each user session. On the main thread.
class RunningInstance
{
public:
    enum class Claim {
        First,      ///< this is the one; later starts activate it
        HandedOver, ///< another one runs already and was brought forward; this process is to end
        Alone,      ///< the system offers no way to find out; run as if it were the first
    };

    RunningInstance() = default;
    RunningInstance(const RunningInstance &) = delete;
    RunningInstance &operator=(const RunningInstance &) = delete;
    virtual ~RunningInstance() = default;

    /// Claims to be the running program. As the first one, `activated` is called for each later start.
    virtual Claim claim(std::function<void()> activated) = 0;
};

} // namespace roamlet
