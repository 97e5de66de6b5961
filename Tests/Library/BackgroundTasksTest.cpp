// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/BackgroundTasks.h"

#include "Support/Waiting.h"

#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <semaphore>

namespace roamlet::testing
{
namespace
{

TEST(BackgroundTasksTest, WorkRunsElsewhereAndItsResultComesBackHere)
{
    BackgroundTasks tasks;
    QObject context;
    std::optional<int> delivered;
    tasks.run(
        &context,
        [main = QThread::currentThread()](const std::stop_token &) {
            return QThread::currentThread() == main ? 1 : 2;
        },
        [&, main = QThread::currentThread()](int result) {
            EXPECT_EQ(QThread::currentThread(), main);
            delivered = result;
        });
    ASSERT_TRUE(waitUntil([&delivered] { return delivered.has_value(); }));
    EXPECT_EQ(delivered, 2);
}

TEST(BackgroundTasksTest, GoingAsksAllWorkToStopAndWaitsForIt)
{
    std::atomic<int> ended = 0;
    QObject context;
    {
        BackgroundTasks tasks;
        std::counting_semaphore<> started(0);
        for (int i = 0; i < 3; ++i) {
            tasks.run(
                &context,
                [&](const std::stop_token &stop) {
                    std::binary_semaphore woken(0);
                    const std::stop_callback wake(stop, [&woken] { woken.release(); });
                    started.release();
                    woken.acquire();
                    return ++ended;
                },
                [](int) { FAIL(); });
        }
        for (int i = 0; i < 3; ++i)
            started.acquire();
    }
    EXPECT_EQ(ended, 3);
}

TEST(BackgroundTasksTest, ADeliveryMayDestroyWhatRanTheWork)
{
    auto tasks = std::make_unique<BackgroundTasks>();
    QObject context;
    bool isDelivered = false;
    tasks->run(
        &context, [](const std::stop_token &) { return true; },
        [&](bool) {
            tasks.reset();
            isDelivered = true;
        });
    ASSERT_TRUE(waitUntil([&isDelivered] { return isDelivered; }));
    EXPECT_EQ(tasks, nullptr);
}

} // namespace
} // namespace roamlet::testing
