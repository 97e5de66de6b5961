// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Support/StallMeter.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdio>

namespace roamlet::testing
{

StallMeter::StallMeter()
    : m_statistics(open("/proc/thread-self/schedstat", O_RDONLY | O_CLOEXEC)),
      m_last(Clock::now()),
      m_lastWaited(waitedForCore())
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.callOnTimeout(this, &StallMeter::beat);
    m_timer.start(std::chrono::milliseconds(1));
}

StallMeter::~StallMeter()
{
    close(m_statistics);
}

void StallMeter::setActivity(const QString &activity)
{
    beat();
    m_activity = activity;
}

void StallMeter::beat()
{
    const Clock::time_point now = Clock::now();
    const std::chrono::nanoseconds waited = waitedForCore();
    const auto busy =
        std::chrono::duration_cast<std::chrono::microseconds>(now - m_last - (waited - m_lastWaited));
    if (busy > m_longest.duration)
        m_longest = {busy, m_activity};
    m_last = now;
    m_lastWaited = waited;
}

std::chrono::nanoseconds StallMeter::waitedForCore() const
{
    std::array<char, 128> text{};
    unsigned long long running = 0;
    unsigned long long waiting = 0;
    if (pread(m_statistics, text.data(), text.size() - 1, 0) <= 0 ||
        std::sscanf(text.data(), "%llu %llu", &running, &waiting) != 2)
        return {};
    return std::chrono::nanoseconds(waiting);
}

} // namespace roamlet::testing
