// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/BackgroundTasks.h"

namespace roamlet
{

BackgroundTasks::~BackgroundTasks()
{
    // All at once, so that the wait is only as long as the slowest.
    for (auto &[id, task] : m_tasks)
        task.thread.request_stop();
}

std::stop_source BackgroundTasks::start(std::function<void(std::stop_token)> work,
                                        std::function<void()> deliver)
{
    const std::uint64_t id = m_nextID++;
    Task &task = m_tasks[id];
    task.deliver = std::move(deliver);
    task.thread = std::jthread([this, id, work = std::move(work)](const std::stop_token &stop) {
        work(stop);
        QMetaObject::invokeMethod(&m_receiver, [this, id] { finish(id); }, Qt::QueuedConnection);
    });
    return task.thread.get_stop_source();
}

void BackgroundTasks::finish(std::uint64_t id)
{
    auto entry = m_tasks.extract(id);
    Task &task = entry.mapped();
    const bool isWanted = !task.thread.get_stop_token().stop_requested();
    task.thread.join();
    if (isWanted)
        task.deliver();
}

} // namespace roamlet
