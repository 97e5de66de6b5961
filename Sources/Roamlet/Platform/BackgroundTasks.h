// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stop_token>
#include <thread>
#include <utility>

namespace roamlet
{

/// Work away from the main thread whose results come back to it. Lives on the main thread; when it goes,
/// running work is asked to stop and waited for, and nothing is delivered any more.
class BackgroundTasks
{
public:
    BackgroundTasks() = default;
    BackgroundTasks(const BackgroundTasks &) = delete;
    BackgroundTasks &operator=(const BackgroundTasks &) = delete;
    ~BackgroundTasks();

    /// Runs work(stop token) on a thread of its own and then deliver(result) on the main thread, unless
    /// `context` is gone by then or a stop was requested through the source that is returned. Where the
    /// system has no more threads for us, the main thread does the work when it is back in its event loop.
    template<typename Work, typename Deliver>
    std::stop_source run(QObject *context, Work work, Deliver deliver)
    {
        using Result = std::invoke_result_t<Work, std::stop_token>;
        auto result = std::make_shared<std::optional<Result>>();
        return start([result, work = std::move(work)](const std::stop_token &stop) { *result = work(stop); },
                     [result, deliver = std::move(deliver), context = QPointer(context)] {
                         if (context)
                             deliver(std::move(**result));
                     });
    }

private:
    struct Task {
        std::stop_source stop;
        /// Joined when the task goes.
        std::jthread thread;
        std::function<void()> deliver;
    };

    std::stop_source start(std::function<void(std::stop_token)> work, std::function<void()> deliver);
    void finish(std::uint64_t id);

    QObject m_receiver;
    std::map<std::uint64_t, Task> m_tasks;
    std::uint64_t m_nextID = 0;
};

} // namespace roamlet
