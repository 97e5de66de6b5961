// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/SystemClock.h"

#include <QTimer>

#include <semaphore>
#include <utility>

namespace roamlet
{

PointInTime SystemClock::now() const
{
    return std::chrono::time_point_cast<PointInTime::duration>(std::chrono::system_clock::now());
}

void SystemClock::sleep(Duration duration, const std::stop_token &stop) const
{
    std::binary_semaphore woken(0);
    const std::stop_callback wake(stop, [&woken] { woken.release(); });
    static_cast<void>(woken.try_acquire_for(duration));
}

void SystemClock::after(Duration duration, QObject *context, std::function<void()> action) const
{
    // A single shot would outlive a context that goes, and wake the process for nothing. Only the context's
    // own thread can give it children.
    const auto begin = [duration, context, action = std::move(action)] {
        auto *timer = new QTimer(context);
        timer->setTimerType(Qt::PreciseTimer);
        timer->setSingleShot(true);
        QObject::connect(timer, &QTimer::timeout, context, action);
        QObject::connect(timer, &QTimer::timeout, timer, &QObject::deleteLater);
        timer->start(duration);
    };
    QMetaObject::invokeMethod(context, begin);
}

} // namespace roamlet
