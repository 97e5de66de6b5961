// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Clock.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace roamlet
{

class UserDefaults;

/// When it is time for the next automatic check: once a day, and after a failure sooner, but less and less
/// often. One timer runs until then, and none where nothing is to be checked. On the main thread.
class UpdateSchedule
{
public:
    /// `check` is called each time a check is due. The schedule then rests until the check's end is told.
    UpdateSchedule(const Clock &clock, UserDefaults &defaults, std::function<void()> check);

    /// Begins to plan. Without this call no check is ever due.
    void start();
    /// Whether the user wants automatic checks; they do until they say otherwise.
    bool isAutomatic() const;
    void setAutomatic(bool isAutomatic);

    /// A check has begun, whoever asked for it.
    void beginCheck();
    /// The feed was read. From now on it is a day again.
    void noteSuccess();
    /// An automatic check failed.
    void noteFailure();
    /// The check that had begun is over, and the next one can be planned.
    void endCheck();

private:
    void plan();
    /// A check is due when the wait is over, or when the calendar has come to its end.
    void waitFor(Clock::Duration wait, PointInTime end);
    Clock::Duration timeUntilNextCheck();
    /// No finer than what is stored, so that the two can be compared.
    using Time = std::chrono::sys_time<Clock::Duration>;
    Time now() const { return std::chrono::round<Clock::Duration>(m_clock.now()); }
    std::optional<Time> lastCheck() const;
    void setLastCheck(Time time);

    const Clock &m_clock;
    UserDefaults &m_defaults;
    std::function<void()> m_check;
    bool m_isStarted = false;
    bool m_isChecking = false;
    /// How often in a row it failed.
    int m_failures = 0;
    /// The timer's context; the timer ends with it.
    std::unique_ptr<QObject> m_timer;
};

} // namespace roamlet
