// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/BackgroundRefineRunner.h"

#include "Support/FakeClock.h"
#include "Support/Waiting.h"

#include <QCoreApplication>
#include <QThread>

#include <gtest/gtest.h>

#include <memory>

namespace roamlet::testing
{

using namespace std::chrono_literals;

TEST(BackgroundRefineRunnerTest, waitsOnTheClock)
{
    FakeClock clock;
    BackgroundRefineRunner runner(clock);
    int calls = 0;
    runner.after(150ms, [&calls] { ++calls; });
    clock.advance(149ms);
    EXPECT_EQ(calls, 0);
    clock.advance(1ms);
    EXPECT_EQ(calls, 1);
}

TEST(BackgroundRefineRunnerTest, worksElsewhereAndDeliversHere)
{
    const FakeClock clock;
    BackgroundRefineRunner runner(clock);
    QThread *worker = nullptr;
    QThread *receiver = nullptr;
    runner.run([&worker] { worker = QThread::currentThread(); },
               [&receiver] { receiver = QThread::currentThread(); });
    ASSERT_TRUE(waitUntil([&receiver] { return receiver != nullptr; }));
    EXPECT_EQ(receiver, QThread::currentThread());
    EXPECT_NE(worker, receiver);
}

TEST(BackgroundRefineRunnerTest, callsNothingOnceItIsGone)
{
    FakeClock clock;
    int calls = 0;
    auto runner = std::make_unique<BackgroundRefineRunner>(clock);
    runner->after(150ms, [&calls] { ++calls; });
    runner->run([] {}, [&calls] { ++calls; });
    runner.reset();
    clock.advance(1s);
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, 0);
}

} // namespace roamlet::testing
