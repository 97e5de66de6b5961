// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/SystemClock.h"

#include "Support/Waiting.h"

#include <QCoreApplication>
#include <QObject>
#include <QPointer>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <thread>

namespace roamlet::testing
{

using namespace std::chrono_literals;
using Steady = std::chrono::steady_clock;

namespace
{
const std::stop_token never;
} // namespace

TEST(SystemClock, tellsTheTime)
{
    const auto system = [] {
        return std::chrono::time_point_cast<PointInTime::duration>(std::chrono::system_clock::now());
    };
    const PointInTime before = system();
    const PointInTime now = SystemClock().now();
    EXPECT_LE(before, now);
    EXPECT_LE(now, system());
}

TEST(SystemClock, keepsNoTimerForAContextThatIsGone)
{
    QObject other;
    auto context = std::make_unique<QObject>();
    SystemClock().after(1h, context.get(), [] {});
    SystemClock().after(1h, &other, [] {});
    const auto timers = [](const QObject &object) { return object.findChildren<QTimer *>().size(); };
    EXPECT_EQ(timers(*context), 1);
    const QPointer<QTimer> timer = context->findChild<QTimer *>();
    context.reset();
    EXPECT_EQ(timer, nullptr);
    EXPECT_EQ(timers(other), 1);
}

TEST(SystemClock, sleepsAsLongAsAsked)
{
    const auto start = Steady::now();
    SystemClock().sleep(30ms, never);
    EXPECT_GE(Steady::now() - start, 30ms);
}

TEST(SystemClock, doesNotSleepForNothing)
{
    const auto start = Steady::now();
    SystemClock().sleep(0ms, never);
    SystemClock().sleep(-1h, never);
    EXPECT_LT(Steady::now() - start, 10s);
}

TEST(SystemClock, isWokenByAStopThatWasRequestedBefore)
{
    const auto start = Steady::now();
    std::jthread sleeper([](const std::stop_token &stop) {
        while (!stop.stop_requested())
            std::this_thread::yield();
        SystemClock().sleep(1h, stop);
    });
    sleeper.request_stop();
    sleeper.join();
    EXPECT_LT(Steady::now() - start, 10s);
}

TEST(SystemClock, isWokenByAStopFromAnotherThread)
{
    const auto start = Steady::now();
    std::jthread sleeper([](const std::stop_token &stop) { SystemClock().sleep(1h, stop); });
    sleeper.request_stop();
    sleeper.join();
    EXPECT_LT(Steady::now() - start, 10s);
}

TEST(SystemClock, callsBackOnceAndNotTooEarly)
{
    QObject context;
    int calls = 0;
    const QThread *thread = nullptr;
    const auto start = Steady::now();
    SystemClock().after(30ms, &context, [&] {
        ++calls;
        thread = QThread::currentThread();
        EXPECT_GE(Steady::now() - start, 30ms);
    });
    EXPECT_EQ(calls, 0) << "never before the caller returned";
    ASSERT_TRUE(waitUntil([&] { return calls > 0; }));
    EXPECT_EQ(thread, context.thread());

    int later = 0;
    SystemClock().after(60ms, &context, [&] { ++later; });
    ASSERT_TRUE(waitUntil([&] { return later > 0; }));
    EXPECT_EQ(calls, 1) << "it does not repeat";
}

TEST(SystemClock, callsBackInTheOrderOfTheTimes)
{
    QObject context;
    QList<int> calls;
    const SystemClock clock;
    clock.after(60ms, &context, [&] { calls.append(2); });
    clock.after(1ms, &context, [&] { calls.append(1); });
    ASSERT_TRUE(waitUntil([&] { return calls.size() == 2; }));
    EXPECT_EQ(calls, (QList<int>{1, 2}));
}

TEST(SystemClock, aCallBackAtOnceWaitsForTheEventLoop)
{
    QObject context;
    bool isCalled = false;
    SystemClock().after(0ms, &context, [&] { isCalled = true; });
    EXPECT_FALSE(isCalled);
    EXPECT_TRUE(waitUntil([&] { return isCalled; }));
}

TEST(SystemClock, nobodyIsCalledBackWhoIsGone)
{
    bool isGoneCalled = false;
    bool isThereCalled = false;
    QObject there;
    auto gone = std::make_unique<QObject>();
    const SystemClock clock;
    clock.after(1ms, gone.get(), [&] { isGoneCalled = true; });
    clock.after(20ms, &there, [&] { isThereCalled = true; });
    gone.reset();
    ASSERT_TRUE(waitUntil([&] { return isThereCalled; }));
    EXPECT_FALSE(isGoneCalled);
}

} // namespace roamlet::testing
