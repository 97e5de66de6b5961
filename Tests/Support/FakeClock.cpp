// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Support/FakeClock.h"

#include <algorithm>
#include <utility>

namespace roamlet::testing
{

PointInTime FakeClock::now() const
{
    // 2026-05-09 06:13:20 UTC
    return pointInTime(1'778'307'200) + m_elapsed + m_asleep;
}

void FakeClock::sleep(Duration duration, const std::stop_token & /*stop*/) const
{
    const std::scoped_lock lock(m_sleepsMutex);
    m_sleeps.push_back(duration);
}

void FakeClock::after(Duration duration, QObject *context, std::function<void()> action) const
{
    m_actions.push_back({m_elapsed + duration, context, std::move(action)});
}

void FakeClock::advance(Duration duration)
{
    const Duration end = m_elapsed + duration;
    for (;;) {
        const auto next = std::ranges::min_element(m_actions, {}, &Action::due);
        if (next == m_actions.end() || next->due > end)
            break;
        const Action action = std::move(*next);
        m_actions.erase(next);
        m_elapsed = action.due;
        if (action.context)
            action.run();
    }
    m_elapsed = end;
}

std::size_t FakeClock::waiting() const
{
    return static_cast<std::size_t>(
        std::ranges::count_if(m_actions, [](const Action &action) { return !action.context.isNull(); }));
}

std::vector<Clock::Duration> FakeClock::sleeps() const
{
    const std::scoped_lock lock(m_sleepsMutex);
    return m_sleeps;
}

} // namespace roamlet::testing
