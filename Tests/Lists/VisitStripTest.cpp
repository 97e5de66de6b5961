// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/VisitStrip.h"

#include "Lists/DayGroups.h"
#include "Lists/ListRows.h"
#include "Lists/RowTree.h"

#include <gtest/gtest.h>

#include <limits>
#include <numeric>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

const UserCalendar berlin{.timeZone = u"Europe/Berlin"_s, .locale = u"en_GB"_s, .firstWeekday = Qt::Monday};

QList<HistoryItem> visitedAt(const QStringList &times)
{
    QList<HistoryItem> rows;
    for (const QString &time : times)
        rows.append(visited(time, at(time)));
    return rows;
}

/// The strip of the only section that these visits make.
VisitStrip stripOf(const QStringList &times, const QString &now, const UserCalendar &calendar = berlin)
{
    const QList<HistoryItem> rows = visitedAt(times);
    const auto groups = dayGroups(allRows(rows), true, at(now), calendar);
    EXPECT_EQ(groups.size(), 1);
    return groups.value(0).visits;
}

/// "9:2 10:1": the ticks with visits.
std::string counts(const VisitStrip &strip)
{
    QStringList result;
    for (std::size_t i = 0; i < strip.ticks.size(); ++i) {
        if (strip.ticks[i].count > 0)
            result.append(u"%1:%2"_s.arg(i).arg(strip.ticks[i].count));
    }
    return result.join(u' ').toStdString();
}

} // namespace

TEST(VisitStrip, aDayIsCutIntoItsHours)
{
    const VisitStrip strip = stripOf({u"2025-03-13T10:00:00+01:00"_s, u"2025-03-13T09:59:59+01:00"_s,
                                      u"2025-03-13T09:00:00+01:00"_s, u"2025-03-13T00:00:00+01:00"_s},
                                     u"2025-03-13T12:00:00+01:00"_s);
    EXPECT_EQ(strip.unit, VisitStrip::Unit::Hour);
    EXPECT_EQ(strip.ticks.size(), 24);
    EXPECT_EQ(counts(strip), "0:1 9:2 10:1");
    EXPECT_EQ(strip.most(), 2);
    EXPECT_EQ(strip.ticks[9].firstRow, 1);
    EXPECT_EQ(utcText(strip.ticks[9].begin), "2025-03-13T08:00:00Z");
    EXPECT_EQ(utcText(strip.ticks[9].end), "2025-03-13T09:00:00Z");
}

TEST(VisitStrip, yesterdayHasHoursToo)
{
    const VisitStrip strip = stripOf({u"2025-03-12T23:30:00+01:00"_s}, u"2025-03-13T12:00:00+01:00"_s);
    EXPECT_EQ(strip.ticks.size(), 24);
    EXPECT_EQ(counts(strip), "23:1");
}

TEST(VisitStrip, aWeekAndAMonthAreCutIntoTheirDays)
{
    const QString now = u"2025-03-13T12:00:00+01:00"_s;
    const VisitStrip thisWeek =
        stripOf({u"2025-03-11T23:59:59+01:00"_s, u"2025-03-10T00:00:00+01:00"_s}, now);
    EXPECT_EQ(thisWeek.unit, VisitStrip::Unit::Day);
    EXPECT_EQ(thisWeek.ticks.size(), 7);
    EXPECT_EQ(counts(thisWeek), "0:1 1:1");
    EXPECT_EQ(counts(stripOf({u"2025-03-09T12:00:00+01:00"_s}, now)), "6:1");
    const VisitStrip february =
        stripOf({u"2025-02-28T12:00:00+01:00"_s, u"2025-02-01T00:00:00+01:00"_s}, now);
    EXPECT_EQ(february.ticks.size(), 28);
    EXPECT_EQ(counts(february), "0:1 27:1");
}

TEST(VisitStrip, theHourThatClocksLeaveOutHasNoLength)
{
    const VisitStrip strip = stripOf({u"2025-03-30T03:30:00+02:00"_s, u"2025-03-30T01:30:00+01:00"_s},
                                     u"2025-03-30T12:00:00+02:00"_s);
    EXPECT_EQ(strip.ticks.size(), 24);
    EXPECT_EQ(counts(strip), "1:1 3:1");
    EXPECT_EQ(strip.ticks[2].begin, strip.ticks[2].end);
}

TEST(VisitStrip, theHourThatComesTwiceIsTwiceAsLong)
{
    const VisitStrip strip = stripOf({u"2025-10-26T03:00:00+01:00"_s, u"2025-10-26T02:30:00+01:00"_s,
                                      u"2025-10-26T02:30:00+02:00"_s, u"2025-10-26T01:59:59+02:00"_s},
                                     u"2025-10-26T12:00:00+01:00"_s);
    EXPECT_EQ(counts(strip), "1:1 2:2 3:1");
    EXPECT_EQ(strip.ticks[2].end - strip.ticks[2].begin, std::chrono::hours(2));
}

TEST(VisitStrip, aMonthWithAChangeOfClocksHasItsDays)
{
    const VisitStrip march = stripOf(
        {u"2025-03-31T00:00:00+02:00"_s, u"2025-03-30T23:59:59+02:00"_s, u"2025-03-30T00:00:00+01:00"_s},
        u"2025-06-13T12:00:00+02:00"_s);
    EXPECT_EQ(march.ticks.size(), 31);
    EXPECT_EQ(counts(march), "29:2 30:1");
}

TEST(VisitStrip, aDayWithoutMidnightBeginsWithAnHourWithoutLength)
{
    const UserCalendar saoPaulo{.timeZone = u"America/Sao_Paulo"_s, .locale = u"pt_BR"_s};
    const VisitStrip strip = stripOf({u"2018-11-04T23:30:00-02:00"_s, u"2018-11-04T01:00:00-02:00"_s},
                                     u"2018-11-04T23:45:00-02:00"_s, saoPaulo);
    EXPECT_EQ(strip.ticks.size(), 24);
    EXPECT_EQ(counts(strip), "1:1 23:1");
}

TEST(VisitStrip, whatIsNoDateOrLiesInTheFutureIsNotCounted)
{
    const QList<HistoryItem> rows{visited(u"future"_s, pointInTime(std::numeric_limits<double>::infinity())),
                                  visited(u"now"_s, at(u"2025-03-13T11:00:00+01:00"_s)),
                                  visited(u"never"_s, pointInTime(std::numeric_limits<double>::quiet_NaN()))};
    const auto groups = dayGroups(allRows(rows), true, at(u"2025-03-13T12:00:00+01:00"_s), berlin);
    ASSERT_EQ(groups.size(), 2);
    EXPECT_EQ(groups[0].title, u"Today");
    EXPECT_EQ(counts(groups[0].visits), "11:1");
    EXPECT_EQ(counts(groups[1].visits), "");
}

TEST(VisitStrip, countsEveryRowOfEverySectionOnce)
{
    // An hour's steps through a year and a half, with both changes of clocks.
    QList<HistoryItem> rows;
    const PointInTime end = at(u"2025-11-13T12:00:00+01:00"_s);
    for (int hour = 0; hour < 540 * 24; ++hour)
        rows.append(visited(u"x"_s, end - std::chrono::hours(hour)));
    for (const QString &zone : {u"Europe/Berlin"_s, u"Africa/Casablanca"_s, u"Asia/Kolkata"_s, u"UTC"_s}) {
        UserCalendar calendar = berlin;
        calendar.timeZone = zone;
        for (const auto &group : dayGroups(allRows(rows), true, end, calendar)) {
            const int sum =
                std::accumulate(group.visits.ticks.begin(), group.visits.ticks.end(), 0,
                                [](int before, const VisitStrip::Tick &tick) { return before + tick.count; });
            EXPECT_EQ(sum, static_cast<int>(group.rows.size()))
                << qPrintable(zone) << ' ' << qPrintable(group.title);
        }
    }
}

TEST(VisitStrip, aWeekEndsWhereYesterdayBegins)
{
    const QString now = u"2025-03-13T12:00:00+01:00"_s;
    const QList<HistoryItem> rows =
        visitedAt({u"2025-03-12T09:00:00+01:00"_s, u"2025-03-11T09:00:00+01:00"_s,
                   u"2025-03-04T09:00:00+01:00"_s, u"2025-02-04T09:00:00+01:00"_s});
    const auto groups = dayGroups(allRows(rows), true, at(now), berlin);
    ASSERT_EQ(groups.size(), 4);
    EXPECT_EQ(utcText(groups[1].visits.end), "2025-03-11T23:00:00Z");
    EXPECT_EQ(utcText(groups[2].visits.end), "2025-03-09T23:00:00Z") << "this week's Monday";
    EXPECT_EQ(utcText(groups[3].visits.end), "2025-02-28T23:00:00Z");
}

TEST(VisitStrip, aTreeKnowsItsSectionsStrips)
{
    const QList<HistoryItem> rows =
        visitedAt({u"2025-03-13T10:00:00+01:00"_s, u"2025-03-12T09:00:00+01:00"_s});
    const RowTree tree =
        RowTree::ofGroups(dayGroups(allRows(rows), true, at(u"2025-03-13T12:00:00+01:00"_s), berlin));
    EXPECT_EQ(counts(tree.visits(1)), "10:1");
    EXPECT_EQ(counts(tree.visits(2)), "9:1");
    EXPECT_TRUE(tree.visits(RowTree::root).ticks.empty());
    EXPECT_TRUE(tree.visits(3).ticks.empty()) << "a row";
    EXPECT_TRUE(RowTree::ofRows(allRows(rows)).visits(1).ticks.empty());
}

TEST(VisitStrip, aMomentIsInOneTick)
{
    const VisitStrip strip =
        VisitStrip::between(VisitStrip::Unit::Day, {pointInTime(10), pointInTime(20), pointInTime(30)});
    EXPECT_FALSE(strip.tickAt(pointInTime(9.999)));
    EXPECT_EQ(strip.tickAt(pointInTime(10)), 0);
    EXPECT_EQ(strip.tickAt(pointInTime(20)), 1);
    EXPECT_FALSE(strip.tickAt(pointInTime(30)));
    EXPECT_EQ(VisitStrip().most(), 0);
}

} // namespace roamlet::testing
