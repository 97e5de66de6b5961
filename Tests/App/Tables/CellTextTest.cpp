// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/CellText.h"

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

TEST(CellTextTest, lineEndsAndControlCharactersBecomeBlanks)
{
    EXPECT_EQ(CellText::oneLine(u"a\nb\tc\rd\u2028e\u2029f\x01g\u0085h"), u"a b c d e f g h");
    EXPECT_EQ(CellText::oneLine(u"a  b"), u"a  b");
    EXPECT_EQ(CellText::oneLine(u""), u"");
}

TEST(CellTextTest, aMillionCharactersAreCut)
{
    const QString shown = CellText::oneLine(QString(1'000'000, u'x'));
    EXPECT_EQ(shown, QString(CellText::longestText, u'x') + u'…');
    EXPECT_EQ(CellText::oneLine(QString(CellText::longestText, u'x')).size(), CellText::longestText);
}

TEST(CellTextTest, noCharacterIsCutInHalf)
{
    EXPECT_EQ(CellText::oneLine(u"ab\U0001F600c", 3), u"ab…");
    EXPECT_EQ(CellText::oneLine(u"ab\U0001F600c", 4), u"ab\U0001F600…");
}

TEST(CellTextTest, aMenuShowsEveryAmpersand)
{
    EXPECT_EQ(CellText::inMenu(u"a&b && c"), u"a&&b &&&& c");
    EXPECT_EQ(CellText::inMenu(QString(1'000'000, u'&')).size(), 2 * CellText::longestMenuText + 1);
}

TEST(CellTextTest, aToolTipShowsMarkUpAsItIs)
{
    EXPECT_EQ(CellText::toolTip({u"<b>x</b>"_s, u"y & z"_s}),
              u"<p style='white-space:pre'>&lt;b&gt;x&lt;/b&gt;<br>y &amp; z</p>");
}

TEST(CellTextTest, aToolTipBreaksLongAddresses)
{
    const QString tip = CellText::toolTip({QString(250, u'x')});
    EXPECT_EQ(tip.count(u"<br>"_s), 2);
    EXPECT_LT(CellText::toolTip({QString(1'000'000, u'x')}).size(), 1200);
}

TEST(CellTextTest, datesGetShorterTheCloserTheyAre)
{
    EXPECT_EQ(brief(0), u"06:13");
    EXPECT_EQ(brief(6 * hour), u"00:13");
    EXPECT_EQ(brief(7 * hour), u"Fri 23:13");
    EXPECT_EQ(brief(6 * day), u"Sun 06:13");
    EXPECT_EQ(brief(7 * day), u"02/05/2026");
}

TEST(CellTextTest, tomorrowIsNotTakenForLastWeek)
{
    EXPECT_EQ(brief(-day), u"10/05/2026");
}

TEST(CellTextTest, daysAreTheUsersOwn)
{
    EXPECT_EQ(brief(0, u"Asia/Tokyo"_s), u"15:13");
    EXPECT_EQ(brief(14 * hour, u"Asia/Tokyo"_s), u"01:13");
    EXPECT_EQ(brief(16 * hour, u"Asia/Tokyo"_s), u"Fri 23:13");
    EXPECT_EQ(brief(0, u"Nowhere/Else"_s), u"06:13");
}

TEST(CellTextTest, numbersThatAreNoDatesDoNoHarm)
{
    const LocalText text(UserCalendar{u"UTC"_s, u"en_GB"_s}, now);
    for (const double seconds : {1e300, -1e300, 1e18, -1e18})
        EXPECT_FALSE(text.briefDate(pointInTime(seconds)).isNull()) << seconds;
}

TEST(CellTextTest, numbersHaveTheirDigitsInGroups)
{
    EXPECT_EQ(LocalText(UserCalendar{u"UTC"_s, u"en_US"_s}, now).number(1'234'567), u"1,234,567");
    EXPECT_EQ(LocalText(UserCalendar{u"UTC"_s, u"de_DE"_s}, now).number(1'234'567), u"1.234.567");
}

} // namespace roamlet::testing
