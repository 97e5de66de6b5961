// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/UpdateSchedule.h"

#include "Support/FakeClock.h"
#include "Support/MemoryUserDefaults.h"

#include <gtest/gtest.h>

#include <utility>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// A clock whose calendar the user can set.
class ResettableClock final : public Clock
{
public:
    PointInTime now() const override { return timer.now() + shift; }
    void sleep(Duration duration, const std::stop_token &stop) const override { timer.sleep(duration, stop); }
    void after(Duration duration, QObject *context, std::function<void()> action) const override
    {
        timer.after(duration, context, std::move(action));
    }

    FakeClock timer;
    Duration shift{0};
};

class UpdateScheduleTest : public ::testing::Test
{
protected:
    /// As after a start of the program.
    void restart()
    {
        schedule = std::make_unique<UpdateSchedule>(clock, defaults, [this] {
            ++checks;
            schedule->beginCheck();
            if (succeeds)
                schedule->noteSuccess();
            else
                schedule->noteFailure();
            schedule->endCheck();
        });
        schedule->start();
    }
    /// How many checks there are in this time.
    int checksWithin(Clock::Duration duration)
    {
        const int before = checks;
        clock.timer.advance(duration);
        return checks - before;
    }

    ResettableClock clock;
    MemoryUserDefaults defaults;
    std::unique_ptr<UpdateSchedule> schedule;
    bool succeeds = true;
    int checks = 0;
};

TEST_F(UpdateScheduleTest, theFirstCheckIsSoonAndThenDaily)
{
    restart();
    EXPECT_EQ(checksWithin(59s), 0);
    EXPECT_EQ(checksWithin(1s), 1);
    EXPECT_EQ(checksWithin(24h - 1ms), 0);
    EXPECT_EQ(checksWithin(1ms), 1);
    EXPECT_EQ(checksWithin(240h), 10);
}

TEST_F(UpdateScheduleTest, oneTimerRunsUntilTheNextCheck)
{
    restart();
    EXPECT_EQ(clock.timer.waiting(), 1U);
    clock.timer.advance(1min);
    EXPECT_EQ(clock.timer.waiting(), 1U);
}

TEST_F(UpdateScheduleTest, itIsADayAlsoOverRestarts)
{
    restart();
    EXPECT_EQ(checksWithin(1min), 1);
    for (int hours = 0; hours < 23; ++hours) {
        restart();
        EXPECT_EQ(checksWithin(1h), 0);
    }
    restart();
    EXPECT_EQ(checksWithin(1h), 1);
    EXPECT_EQ(defaults.string(u"SULastCheckTime"_s), u"2026-05-10T06:14:20.000Z"_s);
}

TEST_F(UpdateScheduleTest, afterALongBreakItChecksSoonAfterTheStart)
{
    restart();
    EXPECT_EQ(checksWithin(1min), 1);
    schedule.reset();
    clock.timer.advance(1000h);
    restart();
    EXPECT_EQ(checksWithin(1min), 1);
}

TEST_F(UpdateScheduleTest, nothingIsPlannedBeforeTheStart)
{
    schedule = std::make_unique<UpdateSchedule>(clock, defaults, [this] { ++checks; });
    schedule->setAutomatic(true);
    EXPECT_EQ(clock.timer.waiting(), 0U);
    EXPECT_EQ(checksWithin(1000h), 0);
}

TEST_F(UpdateScheduleTest, theUsersSwitchIsStoredAndHoldsAtOnce)
{
    restart();
    EXPECT_TRUE(schedule->isAutomatic()) << "until the user says otherwise";
    schedule->setAutomatic(false);
    EXPECT_EQ(defaults.boolean(u"SUEnableAutomaticChecks"_s), false);
    EXPECT_FALSE(schedule->isAutomatic());
    EXPECT_EQ(checksWithin(1000h), 0);
    restart();
    EXPECT_FALSE(schedule->isAutomatic());
    EXPECT_EQ(checksWithin(1000h), 0);
    schedule->setAutomatic(true);
    EXPECT_EQ(checksWithin(1min), 1);
    EXPECT_EQ(checksWithin(24h), 1);
}

TEST_F(UpdateScheduleTest, afterFailuresItTriesAgainSoonerButLessAndLessOften)
{
    succeeds = false;
    restart();
    EXPECT_EQ(checksWithin(1min), 1);
    for (const Clock::Duration wait : {1h, 2h, 4h, 8h, 16h, 24h, 24h, 24h}) {
        EXPECT_EQ(checksWithin(wait - 1ms), 0);
        EXPECT_EQ(checksWithin(1ms), 1);
    }
    EXPECT_FALSE(defaults.contains(u"SULastCheckTime"_s));
    succeeds = true;
    EXPECT_EQ(checksWithin(24h), 1);
    succeeds = false;
    EXPECT_EQ(checksWithin(24h), 1);
    EXPECT_EQ(checksWithin(1h), 1) << "it begins with an hour again";
}

TEST_F(UpdateScheduleTest, afterManyFailuresNothingOverflows)
{
    succeeds = false;
    restart();
    EXPECT_EQ(checksWithin(24h * 200), 204) << "six on the first two days";
}

TEST_F(UpdateScheduleTest, aCalendarThatIsSetBackDoesNotStopChecks)
{
    restart();
    EXPECT_EQ(checksWithin(1min), 1);
    clock.shift = -10'000h;
    EXPECT_EQ(checksWithin(24h), 1) << "while it runs";
    EXPECT_EQ(checksWithin(24h), 1);

    clock.shift = -20'000h;
    // Runs of an hour each add up to a day.
    int found = 0;
    for (int hours = 0; hours < 26; ++hours) {
        restart();
        found += checksWithin(1h);
    }
    EXPECT_EQ(found, 1);
}

TEST_F(UpdateScheduleTest, aCalendarThatIsSetForwardMeansOneCheck)
{
    restart();
    EXPECT_EQ(checksWithin(1min), 1);
    clock.shift = 10'000h;
    EXPECT_EQ(checksWithin(24h), 1);
    EXPECT_EQ(checksWithin(24h), 1);
}

TEST_F(UpdateScheduleTest, theHoursInWhichTheMachineSleepsCountAsWell)
{
    restart();
    EXPECT_EQ(checksWithin(1min), 1);
    for (int days = 0; days < 5; ++days) {
        EXPECT_EQ(checksWithin(3h), 0);
        clock.shift += 17h;
        EXPECT_EQ(checksWithin(4h), 1);
    }
    succeeds = false;
    clock.shift += 24h;
    EXPECT_EQ(checksWithin(7h), 3) << "again after an hour, and after two more";
    clock.shift += 17h;
    EXPECT_EQ(checksWithin(1h), 1);
}

TEST_F(UpdateScheduleTest, aStoredTimeThatIsNoneCountsAsNever)
{
    for (const QString &text : {QString(), u"yesterday"_s, u"2026-13-45T99:00:00Z"_s}) {
        defaults.setString(u"SULastCheckTime"_s, text);
        restart();
        EXPECT_EQ(checksWithin(1min), 1) << qPrintable(text);
    }
    defaults.setBoolean(u"SULastCheckTime"_s, true);
    restart();
    EXPECT_EQ(checksWithin(1min), 1);
}

TEST_F(UpdateScheduleTest, aStoredTimeOfAnotherAgeIsOneLikeAnyOther)
{
    // A time too far ahead for the system's clock must not come round to one that is long ago.
    defaults.setString(u"SULastCheckTime"_s, u"2610-01-01T00:00:00.000Z"_s);
    restart();
    EXPECT_EQ(checksWithin(24h - 1ms), 0);
    EXPECT_EQ(checksWithin(1ms), 1);
    defaults.setString(u"SULastCheckTime"_s, u"0001-01-01T00:00:00.000Z"_s);
    restart();
    EXPECT_EQ(checksWithin(1min), 1);
}

TEST_F(UpdateScheduleTest, aCheckThatTheUserAskedForCountsAsWell)
{
    restart();
    EXPECT_EQ(checksWithin(1min), 1);
    clock.timer.advance(12h);
    schedule->beginCheck();
    schedule->noteSuccess();
    EXPECT_EQ(checksWithin(1000h), 0) << "one check at a time";
    schedule->endCheck();
    EXPECT_EQ(checksWithin(1min), 1) << "it took longer than a day";
    EXPECT_EQ(checksWithin(24h - 1ms), 0);
}

} // namespace
} // namespace roamlet::testing
