// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/BackgroundTasks.h"

#include "Support/NoThreads.h"
#include "Support/Waiting.h"

#include <QCoreApplication>
#include <QList>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <optional>
#include <semaphore>
#include <utility>

namespace roamlet::testing
{
namespace
{

TEST(BackgroundTasksTest, workRunsElsewhereAndItsResultComesBackHere)
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

TEST(BackgroundTasksTest, aResultThatCanOnlyBeMovedArrives)
{
    BackgroundTasks tasks;
    QObject context;
    std::unique_ptr<int> delivered;
    tasks.run(
        &context, [](const std::stop_token &) { return std::make_unique<int>(5); },
        [&delivered](std::unique_ptr<int> result) { delivered = std::move(result); });
    ASSERT_TRUE(waitUntil([&delivered] { return delivered != nullptr; }));
    EXPECT_EQ(*delivered, 5);
}

TEST(BackgroundTasksTest, withoutAnyMoreThreadsTheResultsComeAllTheSame)
{
    BackgroundTasks tasks;
    QObject context;
    QList<int> delivered;
    const auto deliver = [&delivered](int result) { delivered.append(result); };
    {
        const NoThreads noThreads;
        tasks.run(&context, [](const std::stop_token &) { return 1; }, deliver);
        tasks.run(&context, [](const std::stop_token &) { return 2; }, deliver).request_stop();
        EXPECT_TRUE(delivered.isEmpty()) << "whoever asks is told of nothing before it returns";
    }
    tasks.run(&context, [](const std::stop_token &) { return 3; }, deliver);
    ASSERT_TRUE(waitUntil([&delivered] { return delivered.size() == 2; }));
    EXPECT_EQ(delivered.contains(2), false);
}

TEST(BackgroundTasksTest, nothingIsDeliveredToWhoIsGoneOrHasStopped)
{
    std::counting_semaphore<> ended(0);
    BackgroundTasks tasks;
    QObject context;
    auto gone = std::make_unique<QObject>();
    int deliveries = 0;
    const auto work = [&ended](const std::stop_token &) {
        ended.release();
        return true;
    };
    const auto count = [&deliveries](bool) { ++deliveries; };
    tasks.run(gone.get(), work, count);
    std::stop_source stopped = tasks.run(&context, work, count);
    // Both have ended here, and neither was delivered yet.
    ended.acquire();
    ended.acquire();
    gone.reset();
    stopped.request_stop();
    std::stop_source wanted = tasks.run(&context, work, count);
    ASSERT_TRUE(waitUntil([&deliveries] { return deliveries > 0; }));
    wanted.request_stop();
    EXPECT_EQ(deliveries, 1);
}

TEST(BackgroundTasksTest, aStopReachesOnlyTheWorkThatItIsFor)
{
    std::binary_semaphore mayLook(0);
    BackgroundTasks tasks;
    QObject context;
    std::optional<bool> sawStop;
    std::stop_source other =
        tasks.run(&context, [](const std::stop_token &) { return true; }, [](bool) { FAIL(); });
    tasks.run(
        &context,
        [&mayLook](const std::stop_token &stop) {
            mayLook.acquire();
            return stop.stop_requested();
        },
        [&sawStop](bool saw) { sawStop = saw; });
    other.request_stop();
    mayLook.release();
    ASSERT_TRUE(waitUntil([&sawStop] { return sawStop.has_value(); }));
    EXPECT_EQ(sawStop, false);
}

TEST(BackgroundTasksTest, whatEndedIsNotDeliveredAfterGoing)
{
    QObject context;
    {
        std::binary_semaphore ended(0);
        BackgroundTasks tasks;
        tasks.run(
            &context,
            [&ended](const std::stop_token &) {
                ended.release();
                return true;
            },
            [](bool) { FAIL(); });
        ended.acquire();
    }
    QCoreApplication::processEvents();
}

TEST(BackgroundTasksTest, goingAsksAllWorkToStopAndWaitsForIt)
{
    std::atomic<int> ended = 0;
    QObject context;
    {
        std::counting_semaphore<> started(0);
        BackgroundTasks tasks;
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

TEST(BackgroundTasksTest, aDeliveryMayDestroyWhatRanTheWork)
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
