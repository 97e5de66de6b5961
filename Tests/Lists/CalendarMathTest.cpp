// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/CalendarMath.h"

#include "Lists/ListRows.h"

#include <gtest/gtest.h>
#include <unicode/locid.h>

#include <limits>
#include <map>
#include <string>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

UserCalendar calendarOf(const QString &timeZone, Qt::DayOfWeek firstWeekday = Qt::Monday)
{
    return {.timeZone = timeZone, .locale = u"en_US"_s, .firstWeekday = firstWeekday};
}

struct Days {
    std::string today;
    std::string yesterday;
};

std::ostream &operator<<(std::ostream &stream, const Days &days)
{
    return stream << days.today << " after " << days.yesterday;
}

bool operator==(const Days &left, const Days &right)
{
    return left.today == right.today && left.yesterday == right.yesterday;
}

Days daysAt(const QString &timeZone, const QString &now)
{
    CalendarMath math(calendarOf(timeZone));
    const PointInTime today = math.startOfDay(at(now));
    return {utcText(today), utcText(math.startOfPreviousDay(today))};
}

std::string monthTitle(const QString &locale, const QString &time = u"2025-03-13T12:00:00Z"_s)
{
    CalendarMath math({.timeZone = u"UTC"_s, .locale = locale});
    return math.monthTitle(at(time)).toStdString();
}

} // namespace

TEST(CalendarMath, daysBeginAtMidnightWhereTheUserIs)
{
    EXPECT_EQ(daysAt(u"UTC"_s, u"2025-03-13T12:00:00Z"_s),
              (Days{"2025-03-13T00:00:00Z", "2025-03-12T00:00:00Z"}));
    EXPECT_EQ(daysAt(u"Asia/Tokyo"_s, u"2025-03-13T23:59:59Z"_s),
              (Days{"2025-03-13T15:00:00Z", "2025-03-12T15:00:00Z"}));
    EXPECT_EQ(daysAt(u"America/Los_Angeles"_s, u"2025-01-01T07:59:59Z"_s),
              (Days{"2024-12-31T08:00:00Z", "2024-12-30T08:00:00Z"}));
    EXPECT_EQ(daysAt(u"Asia/Kathmandu"_s, u"2025-03-13T12:00:00Z"_s),
              (Days{"2025-03-12T18:15:00Z", "2025-03-11T18:15:00Z"}));
}

TEST(CalendarMath, theFirstMomentOfADayBelongsToIt)
{
    CalendarMath math(calendarOf(u"Europe/Berlin"_s));
    const PointInTime midnight = at(u"2025-03-13T00:00:00+01:00"_s);
    const auto moment = std::chrono::duration<double>(0.000001);
    EXPECT_EQ(math.startOfDay(midnight), midnight);
    EXPECT_EQ(math.startOfDay(midnight + moment), midnight);
    EXPECT_EQ(utcText(math.startOfDay(midnight - moment)), "2025-03-11T23:00:00Z");
}

TEST(CalendarMath, daysWithAnHourLessOrMoreAreDays)
{
    EXPECT_EQ(daysAt(u"Europe/Berlin"_s, u"2025-03-30T12:00:00+02:00"_s),
              (Days{"2025-03-29T23:00:00Z", "2025-03-28T23:00:00Z"}));
    EXPECT_EQ(daysAt(u"Europe/Berlin"_s, u"2025-03-31T12:00:00+02:00"_s),
              (Days{"2025-03-30T22:00:00Z", "2025-03-29T23:00:00Z"}));
    EXPECT_EQ(daysAt(u"Europe/Berlin"_s, u"2025-10-26T12:00:00+01:00"_s),
              (Days{"2025-10-25T22:00:00Z", "2025-10-24T22:00:00Z"}));
    EXPECT_EQ(daysAt(u"Europe/Berlin"_s, u"2025-10-27T12:00:00+01:00"_s),
              (Days{"2025-10-26T23:00:00Z", "2025-10-25T22:00:00Z"}));
}

TEST(CalendarMath, aDayWithoutMidnightBeginsWhenClocksArePutForward)
{
    EXPECT_EQ(daysAt(u"America/Sao_Paulo"_s, u"2018-11-04T12:00:00-02:00"_s),
              (Days{"2018-11-04T03:00:00Z", "2018-11-03T03:00:00Z"}));
    EXPECT_EQ(daysAt(u"America/Sao_Paulo"_s, u"2018-11-05T12:00:00-02:00"_s),
              (Days{"2018-11-05T02:00:00Z", "2018-11-04T03:00:00Z"}));
    EXPECT_EQ(daysAt(u"Asia/Beirut"_s, u"2024-03-31T12:00:00+03:00"_s),
              (Days{"2024-03-30T22:00:00Z", "2024-03-29T22:00:00Z"}));
    EXPECT_EQ(daysAt(u"Africa/Cairo"_s, u"2010-04-30T12:00:00+03:00"_s),
              (Days{"2010-04-29T22:00:00Z", "2010-04-28T22:00:00Z"}));
}

TEST(CalendarMath, aDayWithTwoMidnightsBeginsAtTheFirst)
{
    EXPECT_EQ(daysAt(u"America/Havana"_s, u"2024-11-03T12:00:00-05:00"_s),
              (Days{"2024-11-03T04:00:00Z", "2024-11-02T04:00:00Z"}));
    EXPECT_EQ(daysAt(u"America/Havana"_s, u"2024-11-04T12:00:00-05:00"_s),
              (Days{"2024-11-04T05:00:00Z", "2024-11-03T04:00:00Z"}));
}

TEST(CalendarMath, whereMidnightBringsTheLastHourBackTheDayBeginsAfterwards)
{
    EXPECT_EQ(daysAt(u"America/Sao_Paulo"_s, u"2018-02-18T12:00:00-03:00"_s),
              (Days{"2018-02-18T03:00:00Z", "2018-02-17T02:00:00Z"}));
}

TEST(CalendarMath, followsTheSystemsRulesAndNotOlderOnes)
{
    // Egypt put its clocks forward again from 2023 on.
    EXPECT_EQ(daysAt(u"Africa/Cairo"_s, u"2024-07-10T12:00:00+03:00"_s),
              (Days{"2024-07-09T21:00:00Z", "2024-07-08T21:00:00Z"}));
}

TEST(CalendarMath, aDayThatACountrySkippedIsNotMissed)
{
    CalendarMath math(calendarOf(u"Pacific/Apia"_s));
    const PointInTime today = math.startOfDay(at(u"2011-12-31T12:00:00+14:00"_s));
    EXPECT_EQ(utcText(today), "2011-12-30T10:00:00Z");
    EXPECT_LE(math.startOfPreviousDay(today), today);
    EXPECT_EQ(utcText(math.startOfWeek(today)), "2011-12-26T10:00:00Z");
}

TEST(CalendarMath, anUnknownTimeZoneIsUtc)
{
    for (const QString &zone :
         {u"Mars/Phobos"_s, u""_s, u"../../etc/passwd"_s, u"Europe/Berlin\n"_s, u"ü"_s}) {
        EXPECT_EQ(daysAt(zone, u"2025-03-13T12:00:00Z"_s),
                  (Days{"2025-03-13T00:00:00Z", "2025-03-12T00:00:00Z"}))
            << qPrintable(zone);
    }
}

TEST(CalendarMath, weeksBeginOnTheUsersFirstWeekday)
{
    const PointInTime thursday = at(u"2025-03-13T12:00:00Z"_s);
    const std::map<Qt::DayOfWeek, std::string> expected{
        {Qt::Monday, "2025-03-10T00:00:00Z"},    {Qt::Tuesday, "2025-03-11T00:00:00Z"},
        {Qt::Wednesday, "2025-03-12T00:00:00Z"}, {Qt::Thursday, "2025-03-13T00:00:00Z"},
        {Qt::Friday, "2025-03-07T00:00:00Z"},    {Qt::Saturday, "2025-03-08T00:00:00Z"},
        {Qt::Sunday, "2025-03-09T00:00:00Z"}};
    for (const auto &[weekday, start] : expected) {
        CalendarMath math(calendarOf(u"UTC"_s, weekday));
        EXPECT_EQ(utcText(math.startOfWeek(thursday)), start) << weekday;
    }
}

TEST(CalendarMath, weeksBeginAsIsUsualInTheCountryWhereTheUserDoesNotSay)
{
    // A Thursday.
    const PointInTime time = at(u"2025-03-13T12:00:00Z"_s);
    const std::map<QString, std::string> expected{
        {u"en_US"_s, "2025-03-09T00:00:00Z"},  {u"en_GB"_s, "2025-03-10T00:00:00Z"},
        {u"en_FR"_s, "2025-03-10T00:00:00Z"},  {u"de_DE"_s, "2025-03-10T00:00:00Z"},
        {u"es_ES"_s, "2025-03-10T00:00:00Z"},  {u"ja_JP"_s, "2025-03-09T00:00:00Z"},
        {u"zh_CN"_s, "2025-03-10T00:00:00Z"},  {u"ar_EG"_s, "2025-03-08T00:00:00Z"},
        {u"tr_TR"_s, "2025-03-10T00:00:00Z"},  {u"ru_RU"_s, "2025-03-10T00:00:00Z"},
        {u"en_001"_s, "2025-03-10T00:00:00Z"},
    };
    for (const auto &[locale, week] : expected) {
        CalendarMath math({.timeZone = u"UTC"_s, .locale = locale});
        EXPECT_EQ(utcText(math.startOfWeek(time)), week) << qPrintable(locale);
    }
}

TEST(CalendarMath, theWeekBeforeIsSevenDaysAgoAndNotAHundredAndSixtyEightHours)
{
    CalendarMath math(calendarOf(u"Europe/Berlin"_s));
    const PointInTime week = math.startOfWeek(at(u"2025-04-02T12:00:00+02:00"_s));
    EXPECT_EQ(utcText(week), "2025-03-30T22:00:00Z");
    EXPECT_EQ(utcText(math.startOfPreviousWeek(week)), "2025-03-23T23:00:00Z");
    const PointInTime autumn = math.startOfWeek(at(u"2025-10-29T12:00:00+01:00"_s));
    EXPECT_EQ(utcText(autumn), "2025-10-26T23:00:00Z");
    EXPECT_EQ(utcText(math.startOfPreviousWeek(autumn)), "2025-10-19T22:00:00Z");
}

TEST(CalendarMath, monthsBeginWithTheFirstMomentOfTheirFirstDay)
{
    CalendarMath math(calendarOf(u"America/Asuncion"_s));
    const PointInTime october = math.startOfMonth(at(u"2017-10-20T12:00:00-03:00"_s));
    EXPECT_EQ(utcText(october), "2017-10-01T04:00:00Z") << "clocks were put forward at midnight";
    EXPECT_EQ(utcText(math.startOfNextMonth(october)), "2017-11-01T03:00:00Z");
    EXPECT_EQ(utcText(math.startOfNextMonth(at(u"2024-12-01T00:00:00-03:00"_s))), "2025-01-01T03:00:00Z");
    EXPECT_EQ(utcText(math.startOfMonth(at(u"2025-01-31T23:00:00-03:00"_s))), "2025-01-01T03:00:00Z");
}

TEST(CalendarMath, monthsHaveTheirNamesInEachLanguage)
{
    EXPECT_EQ(monthTitle(u"en_US"_s), "March 2025");
    EXPECT_EQ(monthTitle(u"de_DE"_s), "März 2025");
    EXPECT_EQ(monthTitle(u"es_ES"_s), "marzo de 2025");
    EXPECT_EQ(monthTitle(u"ja_JP"_s), "2025年3月");
    EXPECT_EQ(monthTitle(u"ru_RU"_s), "март 2025\u202fг.");
    EXPECT_EQ(monthTitle(u"ar_EG"_s), "مارس ٢٠٢٥");
    EXPECT_EQ(monthTitle(u"tr_TR"_s), "Mart 2025");
    EXPECT_EQ(monthTitle(u"en_001"_s), "March 2025");
}

TEST(CalendarMath, monthsAreEnglishInALanguageWithoutNamesForThem)
{
    // As where the whole session speaks it.
    const icu::Locale before;
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale("nds_DE"), status);
    EXPECT_EQ(monthTitle(u"nds_DE"_s), "March 2025") << "and not a number";
    icu::Locale::setDefault(before, status);
}

TEST(CalendarMath, yearsAreThoseOfTheUsersCalendar)
{
    EXPECT_EQ(monthTitle(u"th_TH"_s), "มีนาคม 2568");
    CalendarMath persian({.timeZone = u"Asia/Tehran"_s, .locale = u"fa_IR"_s});
    EXPECT_EQ(utcText(persian.startOfMonth(at(u"2025-03-25T12:00:00Z"_s))), "2025-03-20T20:30:00Z")
        << "the Persian year 1404 began on 21 March";
}

TEST(CalendarMath, theMonthOfATitleIsTheOneOnTheUsersWall)
{
    CalendarMath tokyo({.timeZone = u"Asia/Tokyo"_s, .locale = u"en_US"_s});
    EXPECT_EQ(tokyo.monthTitle(at(u"2025-02-28T15:00:00Z"_s)), u"March 2025");
    EXPECT_EQ(tokyo.monthTitle(at(u"2025-02-28T14:59:59.999Z"_s)), u"February 2025");
}

TEST(CalendarMath, momentsThatNoCalendarKnowsAreTakenToTheNearestThatItDoes)
{
    CalendarMath math(calendarOf(u"Europe/Berlin"_s));
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const PointInTime earliest = countable(pointInTime(-infinity));
    EXPECT_EQ(countable(pointInTime(std::numeric_limits<double>::quiet_NaN())), earliest);
    EXPECT_EQ(countable(pointInTime(-1e300)), earliest);
    EXPECT_GT(countable(pointInTime(1e300)), at(u"9999-12-31T23:59:59Z"_s));
    EXPECT_EQ(countable(pointInTime(1.5)), pointInTime(1.5));
    for (const double seconds : {-infinity, infinity, -1e300, 1e300, -1e13, 1e13}) {
        const PointInTime time = pointInTime(seconds);
        EXPECT_LE(math.startOfMonth(time), countable(time)) << seconds;
        EXPECT_GT(math.startOfNextMonth(math.startOfMonth(time)), countable(time)) << seconds;
        EXPECT_FALSE(math.monthTitle(time).isEmpty()) << seconds;
    }
}

} // namespace roamlet::testing
