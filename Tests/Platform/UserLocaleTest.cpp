// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/UserLocale.h"

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

TEST(UserLocale, theCalendarIsWhatTheSessionSays)
{
    const Environment environment(
        {{"TZ", "America/Sao_Paulo"}, {"LANG", "en_US.UTF-8"}, {"LC_TIME", "pt_BR.UTF-8"}});
    EXPECT_EQ(UserLocale::calendar(), (UserCalendar{u"America/Sao_Paulo"_s, u"pt_BR"_s}));
}

TEST(UserLocale, theCalendarFollowsAJourney)
{
    {
        const Environment environment(
            {{"TZ", "Asia/Tokyo"}, {"LC_ALL", "ja_JP.UTF-8"}, {"LC_TIME", "de_DE"}});
        EXPECT_EQ(UserLocale::calendar(), (UserCalendar{u"Asia/Tokyo"_s, u"ja_JP"_s}));
    }
    const Environment environment({{"TZ", ":Europe/Berlin"}, {"LANG", "de_DE"}});
    EXPECT_EQ(UserLocale::calendar(), (UserCalendar{u"Europe/Berlin"_s, u"de_DE"_s}));
}

TEST(UserLocale, theCalendarTakesAZonesFileForTheZone)
{
    for (const char *zone : {"/usr/share/zoneinfo/Asia/Tokyo", ":/usr/share/zoneinfo/Asia/Tokyo"}) {
        const Environment environment({{"TZ", zone}, {"LANG", "ja_JP"}});
        EXPECT_EQ(UserLocale::calendar().timeZone, u"Asia/Tokyo") << zone;
    }
}

TEST(UserLocale, theCalendarOfASystemWithoutALocaleIsEnglish)
{
    const Environment environment({{"TZ", "UTC"}, {"LANG", ""}});
    EXPECT_EQ(UserLocale::calendar(), (UserCalendar{u"UTC"_s, u"en_001"_s}));
}

TEST(UserLocale, numbersAndTimesHaveALanguageAlsoWhereTheSessionHasNone)
{
    EXPECT_NE(UserLocale::formats().language(), QLocale::C);
}

} // namespace roamlet::testing
