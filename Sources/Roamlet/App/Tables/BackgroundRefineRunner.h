// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/Refine.h"
#include "Platform/BackgroundTasks.h"

#include <QObject>

namespace roamlet
{

class Clock;

/// Lets refinements wait on the program's clock and work on threads of their own. When it goes, running work
/// is waited for and nothing is called any more.
class BackgroundRefineRunner final : public RefineRunner
{
public:
    explicit BackgroundRefineRunner(const Clock &clock) : m_clock(clock) {}

    void after(std::chrono::milliseconds duration, std::function<void()> action) override;
    void run(std::function<void()> work, std::function<void()> deliver) override;

private:
    const Clock &m_clock;
    QObject m_context;
    BackgroundTasks m_tasks;
};

} // namespace roamlet
