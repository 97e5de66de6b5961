// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/DayGroups.h"

#include "Lists/ListRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

const UserCalendar berlin{.timeZone = u"Europe/Berlin"_s, .locale = u"en_GB"_s, .firstWeekday = Qt::Monday};

/// A row named after its time.
HistoryItem row(const QString &isoTime)
{
    return visited(isoTime, at(isoTime));
}

std::string grouped(const QList<HistoryItem> &rows, const QString &now, bool newestFirst = true,
                    const UserCalendar &calendar = berlin)
{
    return sections(dayGroups(allRows(rows), newestFirst, at(now), calendar));
}

/// The section of a row that was visited at `time`.
std::string sectionOf(const QString &time, const QString &now, const UserCalendar &calendar = berlin)
{
    const QList<HistoryItem> rows{row(time)};
    return dayGroups(allRows(rows), true, at(now), calendar).first().title.toStdString();
}

} // namespace

TEST(DayGroups, cutHistoryAtTheBeginningOfDaysWeeksAndMonths)
{
    const QList<HistoryItem> rows{
        row(u"2025-03-13T00:00:00+01:00"_s),    row(u"2025-03-12T23:59:59.999+01:00"_s),
        row(u"2025-03-12T00:00:00+01:00"_s),    row(u"2025-03-11T23:59:59.999+01:00"_s),
        row(u"2025-03-10T00:00:00+01:00"_s),    row(u"2025-03-09T23:59:59.999+01:00"_s),
        row(u"2025-03-03T00:00:00+01:00"_s),    row(u"2025-03-02T23:59:59.999+01:00"_s),
        row(u"2025-03-01T00:00:00+01:00"_s),    row(u"2025-02-28T23:59:59.999+01:00"_s),
        row(u"2025-02-01T00:00:00+01:00"_s),    row(u"2025-01-31T23:59:59.999+01:00"_s),
        row(u"2024-03-31T23:59:59.999+02:00"_s)};
    EXPECT_EQ(grouped(rows, u"2025-03-13T12:00:00+01:00"_s),
              "Today: 2025-03-13T00:00:00+01:00; "
              "Yesterday: 2025-03-12T23:59:59.999+01:00 2025-03-12T00:00:00+01:00; "
              "Earlier This Week: 2025-03-11T23:59:59.999+01:00 2025-03-10T00:00:00+01:00; "
              "Last Week: 2025-03-09T23:59:59.999+01:00 2025-03-03T00:00:00+01:00; "
              "Earlier This Month: 2025-03-02T23:59:59.999+01:00 2025-03-01T00:00:00+01:00; "
              "February 2025: 2025-02-28T23:59:59.999+01:00 2025-02-01T00:00:00+01:00; "
              "January 2025: 2025-01-31T23:59:59.999+01:00; "
              "March 2024: 2024-03-31T23:59:59.999+02:00");
}

TEST(DayGroups, anEmptyListHasNoSections)
{
    EXPECT_TRUE(dayGroups({}, true, at(u"2025-03-13T12:00:00+01:00"_s), berlin).isEmpty());
}

TEST(DayGroups, aMicrosecondDecides)
{
    const PointInTime now = at(u"2025-03-13T12:00:00+01:00"_s);
    const PointInTime today = at(u"2025-03-13T00:00:00+01:00"_s);
    const PointInTime february = at(u"2025-02-01T00:00:00+01:00"_s);
    const auto moment = std::chrono::duration<double>(0.000001);
    const QList<HistoryItem> rows{visited(u"a"_s, today - moment), visited(u"b"_s, today),
                                  visited(u"c"_s, february - moment), visited(u"d"_s, february)};
    EXPECT_EQ(sections(dayGroups(allRows(rows), true, now, berlin)),
              "Today: b; Yesterday: a; February 2025: d; January 2025: c");
}

TEST(DayGroups, rowsOfTheFutureAreOfToday)
{
    EXPECT_EQ(sectionOf(u"2025-03-13T12:00:01+01:00"_s, u"2025-03-13T12:00:00+01:00"_s), "Today");
    EXPECT_EQ(sectionOf(u"2026-01-01T00:00:00+01:00"_s, u"2025-03-13T12:00:00+01:00"_s), "Today");
}

TEST(DayGroups, theEveningBeforeTheFirstDayOfTheWeekIsYesterday)
{
    const QString monday = u"2025-03-10T09:00:00+01:00"_s;
    EXPECT_EQ(sectionOf(u"2025-03-09T22:00:00+01:00"_s, monday), "Yesterday");
    EXPECT_EQ(sectionOf(u"2025-03-08T22:00:00+01:00"_s, monday), "Last Week");
}

TEST(DayGroups, theFirstWeekdayIsTheUsers)
{
    UserCalendar american = berlin;
    american.firstWeekday = Qt::Sunday;
    const QString now = u"2025-03-13T12:00:00+01:00"_s;
    EXPECT_EQ(sectionOf(u"2025-03-09T12:00:00+01:00"_s, now), "Last Week");
    EXPECT_EQ(sectionOf(u"2025-03-09T12:00:00+01:00"_s, now, american), "Earlier This Week");
    EXPECT_EQ(sectionOf(u"2025-03-02T12:00:00+01:00"_s, now), "Earlier This Month");
    EXPECT_EQ(sectionOf(u"2025-03-02T12:00:00+01:00"_s, now, american), "Last Week");
}

TEST(DayGroups, lastWeekMayLieInTheMonthBefore)
{
    const QString secondOfMonth = u"2025-10-02T12:00:00+02:00"_s;
    EXPECT_EQ(sectionOf(u"2025-10-01T12:00:00+02:00"_s, secondOfMonth), "Yesterday");
    EXPECT_EQ(sectionOf(u"2025-09-29T12:00:00+02:00"_s, secondOfMonth), "Earlier This Week");
    EXPECT_EQ(sectionOf(u"2025-09-25T12:00:00+02:00"_s, secondOfMonth), "Last Week");
    EXPECT_EQ(sectionOf(u"2025-09-10T12:00:00+02:00"_s, secondOfMonth), "September 2025");
}

TEST(DayGroups, onTheFirstOfAMonthNothingIsEarlierThisMonth)
{
    const QString firstOfMonth = u"2025-09-01T12:00:00+02:00"_s;
    EXPECT_EQ(sectionOf(u"2025-09-01T00:00:00+02:00"_s, firstOfMonth), "Today");
    EXPECT_EQ(sectionOf(u"2025-08-31T00:00:00+02:00"_s, firstOfMonth), "Yesterday");
    EXPECT_EQ(sectionOf(u"2025-08-25T00:00:00+02:00"_s, firstOfMonth), "Last Week");
    EXPECT_EQ(sectionOf(u"2025-08-24T23:00:00+02:00"_s, firstOfMonth), "August 2025");
}

TEST(DayGroups, theOldestFirstTurnsSectionsAroundAndNotTheRowsInThem)
{
    const QList<HistoryItem> rows{row(u"2025-03-13T08:00:00+01:00"_s), row(u"2025-03-13T10:00:00+01:00"_s),
                                  row(u"2025-03-13T09:00:00+01:00"_s), row(u"2025-03-12T09:00:00+01:00"_s),
                                  row(u"2024-12-24T09:00:00+01:00"_s), row(u"2025-01-24T09:00:00+01:00"_s)};
    EXPECT_EQ(grouped(rows, u"2025-03-13T12:00:00+01:00"_s, false),
              "December 2024: 2024-12-24T09:00:00+01:00; January 2025: 2025-01-24T09:00:00+01:00; "
              "Yesterday: 2025-03-12T09:00:00+01:00; "
              "Today: 2025-03-13T08:00:00+01:00 2025-03-13T10:00:00+01:00 2025-03-13T09:00:00+01:00");
}

TEST(DayGroups, takeRowsInAnyOrder)
{
    const QList<HistoryItem> rows{row(u"2024-12-24T09:00:00+01:00"_s), row(u"2025-03-13T08:00:00+01:00"_s),
                                  row(u"2025-01-24T09:00:00+01:00"_s), row(u"2024-12-25T09:00:00+01:00"_s),
                                  row(u"2023-12-25T09:00:00+01:00"_s), row(u"2025-01-01T00:00:00+01:00"_s)};
    EXPECT_EQ(grouped(rows, u"2025-03-13T12:00:00+01:00"_s),
              "Today: 2025-03-13T08:00:00+01:00; "
              "January 2025: 2025-01-24T09:00:00+01:00 2025-01-01T00:00:00+01:00; "
              "December 2024: 2024-12-24T09:00:00+01:00 2024-12-25T09:00:00+01:00; "
              "December 2023: 2023-12-25T09:00:00+01:00");
}

TEST(DayGroups, noTwoSectionsHaveOneTitle)
{
    // An hour's steps through three years, so that every boundary is met by every kind of day.
    QList<HistoryItem> rows;
    const PointInTime end = at(u"2025-03-13T12:00:00+01:00"_s);
    for (int hour = 0; hour < 3 * 365 * 24; ++hour)
        rows.append(visited(u"x"_s, end - std::chrono::hours(hour)));
    for (int day = 0; day < 40; ++day) {
        const QList<RowGroup<HistoryItem>> groups =
            dayGroups(allRows(rows), true, end + std::chrono::hours(24 * day), berlin);
        QSet<QString> ids;
        qsizetype count = 0;
        PointInTime previous = end + std::chrono::hours(1);
        for (const RowGroup<HistoryItem> &group : groups) {
            ids.insert(group.id());
            count += static_cast<qsizetype>(group.rows.size());
            EXPECT_FALSE(group.site);
            EXPECT_LT(group.rows.front()->lastVisit, previous) << qPrintable(group.title);
            previous = group.rows.back()->lastVisit;
        }
        EXPECT_EQ(ids.size(), groups.size());
        EXPECT_EQ(count, rows.size());
    }
}

TEST(DayGroups, todayIsTheSameSectionOnAnyDay)
{
    const auto id = [](const QString &time) {
        const QList<HistoryItem> rows{row(time)};
        return dayGroups(allRows(rows), true, at(time), berlin).first().id();
    };
    EXPECT_EQ(id(u"2025-03-13T12:00:00+01:00"_s), u"Today");
    EXPECT_EQ(id(u"2025-03-14T12:00:00+01:00"_s), u"Today");
}

TEST(DayGroups, daysAreCalendarDaysWhenClocksChange)
{
    const QString afterSpring = u"2025-03-31T12:00:00+02:00"_s;
    EXPECT_EQ(sectionOf(u"2025-03-30T00:00:00+01:00"_s, afterSpring), "Yesterday");
    EXPECT_EQ(sectionOf(u"2025-03-29T23:30:00+01:00"_s, afterSpring), "Last Week");
    const QString afterAutumn = u"2025-10-28T12:00:00+01:00"_s;
    EXPECT_EQ(sectionOf(u"2025-10-27T00:00:00+01:00"_s, afterAutumn), "Yesterday");
    EXPECT_EQ(sectionOf(u"2025-10-26T23:30:00+01:00"_s, afterAutumn), "Last Week");
    EXPECT_EQ(sectionOf(u"2025-10-26T00:00:00+02:00"_s, u"2025-10-27T00:30:00+01:00"_s), "Yesterday");
}

TEST(DayGroups, daysAreCalendarDaysWithoutMidnight)
{
    UserCalendar calendar = berlin;
    calendar.timeZone = u"America/Sao_Paulo"_s;
    const QString now = u"2018-11-04T12:00:00-02:00"_s;
    EXPECT_EQ(sectionOf(u"2018-11-04T01:00:00-02:00"_s, now, calendar), "Today");
    EXPECT_EQ(sectionOf(u"2018-11-03T23:59:59-03:00"_s, now, calendar), "Yesterday");
    EXPECT_EQ(sectionOf(u"2018-11-03T00:00:00-03:00"_s, now, calendar), "Yesterday")
        << "although today began at one o'clock";
    EXPECT_EQ(sectionOf(u"2018-11-02T23:59:59-03:00"_s, now, calendar), "Earlier This Week");

    calendar.timeZone = u"Asia/Beirut"_s;
    EXPECT_EQ(sectionOf(u"2024-03-30T00:00:00+02:00"_s, u"2024-03-31T12:00:00+03:00"_s, calendar),
              "Yesterday");
    calendar.timeZone = u"Africa/Cairo"_s;
    EXPECT_EQ(sectionOf(u"2010-04-29T00:30:00+02:00"_s, u"2010-04-30T12:00:00+03:00"_s, calendar),
              "Yesterday");
}

TEST(DayGroups, monthsHaveTheirNamesInTheUsersLanguage)
{
    const auto title = [](const QString &locale) {
        return sectionOf(u"2024-05-17T12:00:00Z"_s, u"2025-03-13T12:00:00Z"_s,
                         {.timeZone = u"UTC"_s, .locale = locale});
    };
    EXPECT_EQ(title(u"en_US"_s), "May 2024");
    EXPECT_EQ(title(u"de_DE"_s), "Mai 2024");
    EXPECT_EQ(title(u"es_ES"_s), "mayo de 2024");
    EXPECT_EQ(title(u"ja_JP"_s), "2024年5月");
    EXPECT_EQ(title(u"ru_RU"_s), "май 2024\u202fг.");
    EXPECT_EQ(title(u"ar_EG"_s), "مايو ٢٠٢٤");
    EXPECT_EQ(title(u"tr_TR"_s), "Mayıs 2024");
    EXPECT_EQ(title(UserCalendar::localeOf(u"C"_s)), "May 2024");
}

TEST(DayGroups, monthsStandInTheOrderOfTimeInEveryLanguage)
{
    const QList<HistoryItem> rows{row(u"2024-01-10T12:00:00Z"_s), row(u"2024-12-10T12:00:00Z"_s),
                                  row(u"2024-04-10T12:00:00Z"_s)};
    for (const QString &locale : {u"en_US"_s, u"de_DE"_s, u"es_ES"_s, u"ja_JP"_s, u"ru_RU"_s, u"ar_EG"_s,
                                  u"tr_TR"_s, u"th_TH"_s, u"fa_IR"_s}) {
        const QList<RowGroup<HistoryItem>> groups = dayGroups(
            allRows(rows), true, at(u"2025-03-13T12:00:00Z"_s), {.timeZone = u"UTC"_s, .locale = locale});
        ASSERT_EQ(groups.size(), 3) << qPrintable(locale);
        EXPECT_TRUE(std::ranges::is_sorted(groups, std::ranges::greater(), [](const auto &group) {
            return group.rows.front()->lastVisit;
        })) << qPrintable(locale);
    }
}

TEST(DayGroups, putNonsenseIntoTheOldestAndTheNewestSections)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const QList<HistoryItem> rows{visited(u"never"_s, pointInTime(std::numeric_limits<double>::quiet_NaN())),
                                  visited(u"future"_s, pointInTime(infinity)),
                                  visited(u"past"_s, pointInTime(-infinity)),
                                  row(u"2025-03-13T11:00:00+01:00"_s)};
    const QList<RowGroup<HistoryItem>> groups =
        dayGroups(allRows(rows), true, at(u"2025-03-13T12:00:00+01:00"_s), berlin);
    ASSERT_EQ(groups.size(), 2);
    EXPECT_EQ(titles(groups[0].rows), "future 2025-03-13T11:00:00+01:00");
    EXPECT_EQ(titles(groups[1].rows), "never past");
}

} // namespace roamlet::testing
