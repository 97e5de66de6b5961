// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/UpdateSchedule.h"

#include "Platform/UserDefaults.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr Clock::Duration interval = 24h;
constexpr Clock::Duration firstRetry = 1h;
/// Login and launch have better things to do, and the network may not be up yet.
constexpr Clock::Duration shortestWait = 1min;
/// Timers stand still while the machine sleeps, so a long wait looks at the calendar in between.
constexpr Clock::Duration longestStep = 1h;

const QString automaticKey = u"SUEnableAutomaticChecks"_s;
const QString lastCheckKey = u"SULastCheckTime"_s;

} // namespace

UpdateSchedule::UpdateSchedule(const Clock &clock, UserDefaults &defaults, std::function<void()> check)
    : m_clock(clock), m_defaults(defaults), m_check(std::move(check))
{
}

void UpdateSchedule::start()
{
    m_isStarted = true;
    plan();
}

bool UpdateSchedule::isAutomatic() const
{
    return m_defaults.boolean(automaticKey).value_or(true);
}

void UpdateSchedule::setAutomatic(bool isAutomatic)
{
    m_defaults.setBoolean(automaticKey, isAutomatic);
    plan();
}

void UpdateSchedule::beginCheck()
{
    m_isChecking = true;
    m_timer.reset();
}

void UpdateSchedule::noteSuccess()
{
    m_failures = 0;
    setLastCheck(now());
}

void UpdateSchedule::noteFailure()
{
    ++m_failures;
}

void UpdateSchedule::endCheck()
{
    m_isChecking = false;
    plan();
}

void UpdateSchedule::plan()
{
    m_timer.reset();
    if (!m_isStarted || m_isChecking || !isAutomatic())
        return;
    m_timer = std::make_unique<QObject>();
    const Clock::Duration wait = timeUntilNextCheck();
    waitFor(wait, m_clock.now() + wait);
}

void UpdateSchedule::waitFor(Clock::Duration wait, PointInTime end)
{
    const Clock::Duration step = std::min(wait, longestStep);
    m_clock.after(step, m_timer.get(), [this, rest = wait - step, end] {
        // Either is enough: a calendar that was set back meanwhile must not begin the wait anew.
        if (rest <= Clock::Duration::zero() || m_clock.now() >= end)
            m_check();
        else
            waitFor(rest, end);
    });
}

Clock::Duration UpdateSchedule::timeUntilNextCheck()
{
    if (m_failures > 0) {
        Clock::Duration wait = firstRetry;
        for (int i = 1; i < m_failures && wait < interval; ++i)
            wait *= 2;
        return std::min(wait, interval);
    }
    const auto last = lastCheck();
    if (!last)
        return shortestWait;
    const Time present = now();
    if (*last > present) {
        // The calendar was set back. Writing it down lets the day end even over many short runs.
        setLastCheck(present);
        return interval;
    }
    const Clock::Duration elapsed = present - *last;
    return std::clamp(interval - std::min(elapsed, interval), shortestWait, interval);
}

std::optional<UpdateSchedule::Time> UpdateSchedule::lastCheck() const
{
    const QDateTime time =
        QDateTime::fromString(m_defaults.string(lastCheckKey).value_or(QString()), Qt::ISODateWithMs);
    if (!time.isValid())
        return {};
    return Time(Clock::Duration(time.toMSecsSinceEpoch()));
}

void UpdateSchedule::setLastCheck(Time time)
{
    m_defaults.setString(
        lastCheckKey,
        QDateTime::fromMSecsSinceEpoch(time.time_since_epoch().count(), Qt::UTC).toString(Qt::ISODateWithMs));
}

} // namespace roamlet
