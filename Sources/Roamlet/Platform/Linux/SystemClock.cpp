// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/SystemClock.h"

#include <QTimer>

#include <semaphore>
#include <utility>

namespace roamlet
{

std::chrono::system_clock::time_point SystemClock::now() const
{
    return std::chrono::system_clock::now();
}

void SystemClock::sleep(Duration duration, const std::stop_token &stop) const
{
    std::binary_semaphore woken(0);
    const std::stop_callback wake(stop, [&woken] { woken.release(); });
    static_cast<void>(woken.try_acquire_for(duration));
}

void SystemClock::after(Duration duration, QObject *context, std::function<void()> action) const
{
    QTimer::singleShot(duration, Qt::PreciseTimer, context, std::move(action));
}

} // namespace roamlet
