// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/UserCalendar.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <ctime>
#include <map>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// Sets variables of the environment for one test.
class Environment
{
public:
    explicit Environment(const std::map<const char *, QByteArray> &values)
    {
        for (const char *name : {"LC_ALL", "LC_TIME", "LANG", "TZ"}) {
            if (qEnvironmentVariableIsSet(name))
                m_saved[name] = qgetenv(name);
            qunsetenv(name);
        }
        for (const auto &[name, value] : values)
            qputenv(name, value);
        tzset();
    }
    ~Environment()
    {
        for (const char *name : {"LC_ALL", "LC_TIME", "LANG", "TZ"}) {
            qunsetenv(name);
            if (const auto saved = m_saved.find(name); saved != m_saved.end())
                qputenv(name, saved->second);
        }
        tzset();
    }
    Environment(const Environment &) = delete;
    Environment &operator=(const Environment &) = delete;

private:
    std::map<const char *, QByteArray> m_saved;
};

} // namespace

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

TEST(UserCalendar, ofTheSystemIsWhatTheSessionSays)
{
    const Environment environment(
        {{"TZ", "America/Sao_Paulo"}, {"LANG", "en_US.UTF-8"}, {"LC_TIME", "pt_BR.UTF-8"}});
    EXPECT_EQ(UserCalendar::ofSystem(), (UserCalendar{u"America/Sao_Paulo"_s, u"pt_BR"_s}));
}

TEST(UserCalendar, ofTheSystemFollowsAJourney)
{
    {
        const Environment environment(
            {{"TZ", "Asia/Tokyo"}, {"LC_ALL", "ja_JP.UTF-8"}, {"LC_TIME", "de_DE"}});
        EXPECT_EQ(UserCalendar::ofSystem(), (UserCalendar{u"Asia/Tokyo"_s, u"ja_JP"_s}));
    }
    const Environment environment({{"TZ", ":Europe/Berlin"}, {"LANG", "de_DE"}});
    EXPECT_EQ(UserCalendar::ofSystem(), (UserCalendar{u"Europe/Berlin"_s, u"de_DE"_s}));
}

TEST(UserCalendar, ofTheSystemTakesAZonesFileForTheZone)
{
    for (const char *zone : {"/usr/share/zoneinfo/Asia/Tokyo", ":/usr/share/zoneinfo/Asia/Tokyo"}) {
        const Environment environment({{"TZ", zone}, {"LANG", "ja_JP"}});
        EXPECT_EQ(UserCalendar::ofSystem().timeZone, u"Asia/Tokyo") << zone;
    }
}

TEST(UserCalendar, ofASystemWithoutALocaleIsEnglish)
{
    const Environment environment({{"TZ", "UTC"}, {"LANG", ""}});
    EXPECT_EQ(UserCalendar::ofSystem(), (UserCalendar{u"UTC"_s, u"en_001"_s}));
}

} // namespace roamlet::testing
