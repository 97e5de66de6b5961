// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/BackgroundTasks.h"

#include <system_error>

namespace roamlet
{

BackgroundTasks::~BackgroundTasks()
{
    // All at once, so that the wait is only as long as the slowest.
    for (auto &[id, task] : m_tasks)
        task.stop.request_stop();
}

std::stop_source BackgroundTasks::start(std::function<void(std::stop_token)> work,
                                        std::function<void()> deliver)
{
    const std::uint64_t id = m_nextID++;
    Task &task = m_tasks[id];
    task.deliver = std::move(deliver);
    const auto perform = [this, id, work = std::move(work), stop = task.stop.get_token()] {
        work(stop);
        QMetaObject::invokeMethod(&m_receiver, [this, id] { finish(id); }, Qt::QueuedConnection);
    };
    try {
        task.thread = std::jthread(perform);
    } catch (const std::system_error &) {
        QMetaObject::invokeMethod(
            &m_receiver,
            [this, id, perform, stop = task.stop.get_token()] {
                if (stop.stop_requested())
                    finish(id);
                else
                    perform();
            },
            Qt::QueuedConnection);
    }
    return task.stop;
}

void BackgroundTasks::finish(std::uint64_t id)
{
    auto entry = m_tasks.extract(id);
    Task &task = entry.mapped();
    if (task.thread.joinable())
        task.thread.join();
    if (!task.stop.stop_requested())
        task.deliver();
}

} // namespace roamlet
