// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Support/Waiting.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

namespace roamlet::testing
{

bool waitUntil(const std::function<bool()> &condition, std::chrono::milliseconds deadline,
               std::chrono::milliseconds interval)
{
    const QDeadlineTimer timer(deadline);
    while (!condition()) {
        if (timer.hasExpired())
            return false;
        QEventLoop loop;
        QTimer::singleShot(interval, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}

} // namespace roamlet::testing
