// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Clock.h"

#include <QObject>
#include <QPointer>

#include <mutex>
#include <vector>

namespace roamlet::testing
{

/// A clock that stands still until a test moves it. Sleeping takes no time and is written down.
class FakeClock final : public Clock
{
public:
    PointInTime now() const override;
    void sleep(Duration duration, const std::stop_token &stop) const override;
    void after(Duration duration, QObject *context, std::function<void()> action) const override;

    /// Moves on and runs what is due on the way, in order. On the main thread.
    void advance(Duration duration);
    /// The machine sleeps: time passes, and what waits for its time does not notice.
    void jump(Duration duration) { m_asleep += duration; }
    /// How long threads have slept, one entry for each sleep.
    std::vector<Duration> sleeps() const;
    /// How many actions wait for their time, and for somebody who is still there.
    std::size_t waiting() const;

private:
    struct Action {
        Duration due;
        QPointer<QObject> context;
        std::function<void()> run;
    };

    Duration m_elapsed{0};
    Duration m_asleep{0};
    mutable std::vector<Action> m_actions;
    mutable std::mutex m_sleepsMutex;
    mutable std::vector<Duration> m_sleeps;
};

} // namespace roamlet::testing
