// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/BackgroundRefineRunner.h"

#include "Platform/Clock.h"

#include <utility>

namespace roamlet
{

void BackgroundRefineRunner::after(std::chrono::milliseconds duration, std::function<void()> action)
{
    m_clock.after(duration, &m_context, std::move(action));
}

void BackgroundRefineRunner::run(std::function<void()> work, std::function<void()> deliver)
{
    m_tasks.run(
        &m_context,
        [work = std::move(work)](const std::stop_token &) {
            work();
            return true;
        },
        [deliver = std::move(deliver)](bool) { deliver(); });
}

} // namespace roamlet
