// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/LocalText.h"

#include "Model/UserCalendar.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// 2026-05-09 06:13:20 UTC, a Saturday.
constexpr PointInTime now = pointInTime(1'778'307'200);
constexpr double hour = 3600;
constexpr double day = 24 * hour;

QString brief(double secondsAgo, const QString &zone = u"UTC"_s)
{
    const LocalText text(UserCalendar{zone, u"en_GB"_s}, now);
    return text.briefDate(pointInTime(secondsSince1970(now) - secondsAgo));
}

} // namespace

TEST(LocalTextTest, datesGetShorterTheCloserTheyAre)
{
    EXPECT_EQ(brief(0), u"06:13");
    EXPECT_EQ(brief(6 * hour), u"00:13");
    EXPECT_EQ(brief(7 * hour), u"Fri 23:13");
    EXPECT_EQ(brief(6 * day), u"Sun 06:13");
    EXPECT_EQ(brief(7 * day), u"2 May, 06:13");
    EXPECT_EQ(brief(364 * day), u"10 May, 06:13");
    EXPECT_EQ(brief(365 * day), u"9 May 2025") << "a day of that name is today";
}

TEST(LocalTextTest, tomorrowIsNotTakenForLastWeek)
{
    EXPECT_EQ(brief(-day), u"10 May 2026");
}

TEST(LocalTextTest, daysAreTheUsersOwn)
{
    EXPECT_EQ(brief(0, u"Asia/Tokyo"_s), u"15:13");
    EXPECT_EQ(brief(14 * hour, u"Asia/Tokyo"_s), u"01:13");
    EXPECT_EQ(brief(16 * hour, u"Asia/Tokyo"_s), u"Fri 23:13");
    EXPECT_EQ(brief(0, u"Nowhere/Else"_s), u"06:13");
}

TEST(LocalTextTest, numbersThatAreNoDatesDoNoHarm)
{
    const LocalText text(UserCalendar{u"UTC"_s, u"en_GB"_s}, now);
    for (const double seconds : {1e300, -1e300, 1e18, -1e18})
        EXPECT_FALSE(text.briefDate(pointInTime(seconds)).isNull()) << seconds;
}

TEST(LocalTextTest, datesAreInTheUsersLanguageAndClock)
{
    const auto inLocale = [](const QString &locale, double secondsAgo) {
        return LocalText(UserCalendar{u"UTC"_s, locale}, now)
            .briefDate(pointInTime(secondsSince1970(now) - secondsAgo));
    };
    EXPECT_EQ(inLocale(u"de_DE"_s, 30 * day), u"9. Apr., 06:13");
    EXPECT_EQ(inLocale(u"de_DE"_s, 400 * day), u"4. Apr. 2025");
    EXPECT_EQ(inLocale(u"ja_JP"_s, 30 * day), u"4月9日 6:13");
    EXPECT_TRUE(inLocale(u"en_US"_s, 30 * day - 12 * hour).startsWith(u"Apr 9, 6:13"_s));
    EXPECT_TRUE(inLocale(u"en_US"_s, 30 * day - 12 * hour).endsWith(u"PM"_s));
    EXPECT_EQ(inLocale(u"en_US"_s, 400 * day), u"Apr 4, 2025");
    EXPECT_TRUE(inLocale(u"ar_EG"_s, 400 * day).contains(u"٢٠٢٥"_s));
}

TEST(LocalTextTest, everyTimeIsWrittenInTheSameWay)
{
    // That of a session without a language, and some whose times are not written alike everywhere.
    for (const QString &locale : {u"en_001"_s, u"en_US"_s, u"en_AU"_s, u"fi_FI"_s, u"es_MX"_s, u"bg_BG"_s}) {
        const LocalText text(UserCalendar{u"UTC"_s, locale}, now);
        const auto ago = [](double seconds) { return pointInTime(secondsSince1970(now) - seconds); };
        // A quarter to eleven in the evening, as it is said of one day after the other.
        const double evening = 7.5 * hour;
        const QString time = text.timeOfDay(ago(evening));
        EXPECT_EQ(text.timeOfDay(ago(evening + 30 * day)), time);
        EXPECT_TRUE(text.briefDate(ago(evening + day)).endsWith(time)) << qPrintable(locale);
        EXPECT_TRUE(text.briefDate(ago(evening + 30 * day)).endsWith(time))
            << qPrintable(text.briefDate(ago(evening + 30 * day))) << " " << qPrintable(time);
        EXPECT_TRUE(text.fullDate(ago(evening)).endsWith(time)) << qPrintable(locale);
    }
    EXPECT_EQ(LocalText(UserCalendar{u"UTC"_s, u"en_001"_s}, now).hour(13), u"1:00 pm to 2:00 pm");
}

TEST(LocalTextTest, hoursAndDaysHaveNames)
{
    const LocalText text(UserCalendar{u"Asia/Tokyo"_s, u"en_GB"_s}, now);
    EXPECT_EQ(text.hour(15), u"15:00 to 16:00");
    EXPECT_EQ(text.hour(23), u"23:00 to 00:00");
    EXPECT_EQ(text.day(now), u"Saturday, 9 May 2026");
    EXPECT_EQ(text.timeOfDay(now), u"15:13");
}

TEST(LocalTextTest, samplesHaveEveryForm)
{
    const QStringList samples = LocalText(UserCalendar{u"UTC"_s, u"en_GB"_s}, now).sampleDates();
    for (const QString &form : {u"22:58"_s, u"Wed 22:58"_s, u"28 Sept, 22:58"_s, u"28 Sept 2023"_s})
        EXPECT_TRUE(samples.contains(form)) << qPrintable(form);
}

TEST(LocalTextTest, numbersHaveTheirDigitsInGroups)
{
    EXPECT_EQ(LocalText(UserCalendar{u"UTC"_s, u"en_US"_s}, now).number(1'234'567), u"1,234,567");
    EXPECT_EQ(LocalText(UserCalendar{u"UTC"_s, u"de_DE"_s}, now).number(1'234'567), u"1.234.567");
}

} // namespace roamlet::testing
