// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/NamedTime.h"

#include "LocalTime.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// Lets the process live in another time zone, given as a rule, so that no time zone files are needed.
class NamedTimeTest : public ::testing::Test
{
protected:
    static void liveIn(const char *rule)
    {
        qputenv("TZ", rule);
        tzset();
    }

    /// What the words stand for, in UTC.
    static std::string span(const QString &words, PointInTime now = pointInTime(BrowserHome::newest))
    {
        const auto time = NamedTime::of(words);
        if (!time)
            return "nothing";
        const auto utc = [](PointInTime moment) {
            return QDateTime::fromMSecsSinceEpoch(millisecondsSince1970(moment), Qt::UTC)
                .toString(u"yyyy-MM-dd HH:mm:ss.zzz"_s)
                .toStdString();
        };
        return utc(time->begin(now)) + " - " + utc(time->end(now));
    }

    static PointInTime utc(const char *text)
    {
        return pointInTime(static_cast<double>(
            QDateTime::fromString(QString::fromLatin1(text) + u'Z', Qt::ISODate).toSecsSinceEpoch()));
    }

    LocalTime localTime;
};

constexpr const char *berlin = "CET-1CEST,M3.5.0,M10.5.0/3";

} // namespace

TEST_F(NamedTimeTest, aDayIsAllOfItInTheUsersZone)
{
    // Five and a half hours ahead of UTC, it is 11:43 on the ninth of May.
    EXPECT_EQ(span(u"2025-11-05"_s), "2025-11-04 18:30:00.000 - 2025-11-05 18:30:00.000");
    EXPECT_EQ(span(u"today"_s), "2026-05-08 18:30:00.000 - 2026-05-09 18:30:00.000");
    EXPECT_EQ(span(u"yesterday"_s), "2026-05-07 18:30:00.000 - 2026-05-08 18:30:00.000");
    EXPECT_EQ(span(u"0d"_s), span(u"today"_s));
    EXPECT_EQ(span(u"1d"_s), span(u"yesterday"_s));
    EXPECT_EQ(span(u"7d"_s), "2026-05-01 18:30:00.000 - 2026-05-02 18:30:00.000");
    EXPECT_EQ(span(u"2w"_s), span(u"14d"_s));
}

TEST_F(NamedTimeTest, aTimeIsAsLongAsItWasWritten)
{
    EXPECT_EQ(span(u"2025-11-05 14:30"_s), "2025-11-05 09:00:00.000 - 2025-11-05 09:01:00.000");
    EXPECT_EQ(span(u"2025-11-05T14:30:20"_s), "2025-11-05 09:00:20.000 - 2025-11-05 09:00:21.000");
    EXPECT_EQ(span(u"2025-11-05T14:30:20.250"_s), "2025-11-05 09:00:20.250 - 2025-11-05 09:00:20.251");
    EXPECT_EQ(span(u"2025-11-05T14:30:20.250Z"_s), "2025-11-05 14:30:20.250 - 2025-11-05 14:30:20.251");
    EXPECT_EQ(span(u"2025-11-05 14:30Z"_s), "2025-11-05 14:30:00.000 - 2025-11-05 14:31:00.000");
}

TEST_F(NamedTimeTest, hoursAreCountedFromNow)
{
    EXPECT_EQ(span(u"12h"_s), "2026-05-08 18:13:20.000 - 2026-05-08 18:13:20.000");
    EXPECT_EQ(span(u"0h"_s), "2026-05-09 06:13:20.000 - 2026-05-09 06:13:20.000");
}

TEST_F(NamedTimeTest, daysAreCountedByTheCalendarAlsoWhereTheClocksAreChanged)
{
    liveIn(berlin);
    // On the 29th of March 2026 the clocks are put forward in Berlin, on the 25th of October back.
    const PointInTime monday = utc("2026-03-30T10:00:00");
    EXPECT_EQ(span(u"yesterday"_s, monday), "2026-03-28 23:00:00.000 - 2026-03-29 22:00:00.000");
    EXPECT_EQ(span(u"2d"_s, monday), "2026-03-27 23:00:00.000 - 2026-03-28 23:00:00.000");
    EXPECT_EQ(span(u"24h"_s, monday), "2026-03-29 10:00:00.000 - 2026-03-29 10:00:00.000");
    EXPECT_EQ(span(u"2026-10-25"_s, monday), "2026-10-24 22:00:00.000 - 2026-10-25 23:00:00.000");
    // A minute before midnight there it is not yet the next day.
    EXPECT_EQ(span(u"today"_s, utc("2026-03-29T21:59:00")), span(u"2026-03-29"_s));
    EXPECT_EQ(span(u"today"_s, utc("2026-03-29T22:00:00")), span(u"2026-03-30"_s));
}

TEST_F(NamedTimeTest, aDayThatBeginsAtOneBeginsThere)
{
    // Clocks are put forward at midnight of the 10th of May.
    liveIn("XST3XDT,M5.2.0/0,M10.2.0/0");
    EXPECT_EQ(span(u"2026-05-10"_s), "2026-05-10 03:00:00.000 - 2026-05-11 02:00:00.000");
}

TEST_F(NamedTimeTest, nothingElseIsATime)
{
    for (const char *words : {"",
                              " ",
                              "tomorrow",
                              "Today",
                              "today ",
                              " 7d",
                              "7",
                              "7 d",
                              "7D",
                              "-7d",
                              "+7d",
                              "1.5h",
                              "7m",
                              "100000d",
                              "d",
                              "2025",
                              "2025-11",
                              "2025-1-5",
                              "05.11.2025",
                              "2025-02-29",
                              "2025-13-01",
                              "2025-00-10",
                              "0000-01-01",
                              "2025-11-05T",
                              "2025-11-05 ",
                              "2025-11-05 25:00",
                              "2025-11-05 24:00",
                              "2025-11-05 14",
                              "2025-11-05 14:60",
                              "2025-11-05 14:30:61",
                              "2025-11-05  14:30",
                              "2025-11-05Z",
                              "2025-11-05 14:30+01:00",
                              "2025-11-05\n",
                              "20251105",
                              "--json",
                              "٧d"}) {
        EXPECT_FALSE(NamedTime::of(QString::fromUtf8(words))) << words;
    }
    EXPECT_FALSE(NamedTime::of(QString(1'000'000, u'9')));
}

TEST_F(NamedTimeTest, timesFarAwayAreTimes)
{
    EXPECT_EQ(span(u"9999-12-31"_s).substr(0, 10), "9999-12-30");
    EXPECT_EQ(span(u"0001-01-02"_s).substr(0, 10), "0001-01-01");
    for (const QString &words : {u"99999w"_s, u"99999d"_s, u"99999h"_s}) {
        const auto time = NamedTime::of(words);
        ASSERT_TRUE(time);
        EXPECT_LT(time->begin(pointInTime(BrowserHome::newest)), pointInTime(1'500'000'000));
    }
}

} // namespace roamlet::testing
