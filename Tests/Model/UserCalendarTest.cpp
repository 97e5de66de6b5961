// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/UserCalendar.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

TEST(UserCalendar, isAValue)
{
    const UserCalendar calendar{u"Europe/Berlin"_s, u"de_DE"_s};
    EXPECT_EQ(calendar, (UserCalendar{u"Europe/Berlin"_s, u"de_DE"_s}));
    EXPECT_NE(calendar, (UserCalendar{u"Europe/Berlin"_s, u"de_DE"_s, Qt::Sunday}));
    EXPECT_NE(calendar, (UserCalendar{u"Europe/Vienna"_s, u"de_DE"_s}));
}

TEST(UserCalendar, takesTheLanguageOutOfTheNamesThatSystemsUse)
{
    EXPECT_EQ(UserCalendar::localeOf(u"de_DE.UTF-8"_s), u"de_DE");
    EXPECT_EQ(UserCalendar::localeOf(u"de_DE@euro"_s), u"de_DE");
    EXPECT_EQ(UserCalendar::localeOf(u"fr"_s), u"fr");
    EXPECT_EQ(UserCalendar::localeOf(u"sr_RS@latin"_s), u"sr_Latn_RS");
    EXPECT_EQ(UserCalendar::localeOf(u"uz_UZ.UTF-8@cyrillic"_s), u"uz_Cyrl_UZ");
    EXPECT_EQ(UserCalendar::localeOf(u"zh_TW.UTF-8"_s), u"zh_TW");
    EXPECT_EQ(UserCalendar::localeOf(u"zh_Hant_TW"_s), u"zh_Hant_TW");
    EXPECT_EQ(UserCalendar::localeOf(u"iw_IL"_s), u"he_IL") << "by its present name";
}

TEST(UserCalendar, speaksEnglishOutsideOfAnyCountryWithoutALocale)
{
    for (const QString &name : {u""_s, u"C"_s, u"C.UTF-8"_s, u"POSIX"_s, u".UTF-8"_s, u"@latin"_s})
        EXPECT_EQ(UserCalendar::localeOf(name), u"en_001") << qPrintable(name);
}

TEST(UserCalendar, speaksEnglishWhereALanguageHasNoNamesOfMonths)
{
    EXPECT_EQ(UserCalendar::localeOf(u"xx_DE.UTF-8"_s), u"en_DE");
    EXPECT_EQ(UserCalendar::localeOf(u"xx"_s), u"en_001");
    for (const QString &name : {u"no locale at all"_s, u"../../etc"_s, u"ü_Ü"_s, QString(5000, u'a')})
        EXPECT_TRUE(UserCalendar::localeOf(name).startsWith(u"en_")) << qPrintable(name);
}

} // namespace roamlet::testing
