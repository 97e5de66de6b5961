// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

namespace roamlet::testing
{

/// Says for how long the main thread was away from its event loop at most: for so long a click would have
/// waited. Time in which the thread wanted a core and other programs had them all is not counted.
class StallMeter : public QObject
{
public:
    struct Stall {
        std::chrono::microseconds duration{0};
        /// What was being done.
        QString activity;
    };

    /// Measures from now on.
    StallMeter();
    ~StallMeter() override;

    /// Stalls from now on belong to this.
    void setActivity(const QString &activity);
    /// The longest one.
    const Stall &longest() const { return m_longest; }

private:
    using Clock = std::chrono::steady_clock;

    void beat();
    /// How long the thread has waited for a core so far.
    std::chrono::nanoseconds waitedForCore() const;

    QTimer m_timer;
    int m_statistics;
    QString m_activity;
    Stall m_longest;
    Clock::time_point m_last;
    std::chrono::nanoseconds m_lastWaited;
};

} // namespace roamlet::testing
