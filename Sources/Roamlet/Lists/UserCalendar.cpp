// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/UserCalendar.h"

#include <QTimeZone>

#include <unicode/calendar.h>
#include <unicode/dtfmtsym.h>
#include <unicode/locid.h>

#include <memory>
#include <string_view>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// The weekdays in the library's order, which begins with Sunday at 1.
Qt::DayOfWeek weekday(UCalendarDaysOfWeek day)
{
    return day == UCAL_SUNDAY ? Qt::Sunday : static_cast<Qt::DayOfWeek>(day - 1);
}

Qt::DayOfWeek usualFirstWeekday(const QString &locale)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(icu::Locale(locale.toLatin1().constData()), status));
    if (U_FAILURE(status) != 0)
        return Qt::Monday;
    const UCalendarDaysOfWeek day = calendar->getFirstDayOfWeek(status);
    return U_SUCCESS(status) != 0 ? weekday(day) : Qt::Monday;
}

/// Whether the library knows the language: for others it takes the process's own locale or mere numbers.
bool hasMonthNames(icu::Locale locale)
{
    UErrorCode status = U_ZERO_ERROR;
    locale.canonicalize(status);
    const icu::DateFormatSymbols symbols(locale, status);
    const icu::Locale found = symbols.getLocale(ULOC_VALID_LOCALE, status);
    return U_SUCCESS(status) != 0 && std::string_view(found.getLanguage()) == locale.getLanguage();
}

/// $TZ may also be the path of a zone's file, as the C library takes it.
QString systemTimeZone()
{
    return QString::fromLatin1(QTimeZone::systemTimeZoneId()).section(u"/zoneinfo/"_s, -1);
}

} // namespace

QString UserCalendar::localeOf(const QString &posixName)
{
    const QString modifier = posixName.section(u'@', 1);
    QString name = posixName.section(u'@', 0, 0).section(u'.', 0, 0);
    if (name.isEmpty() || name == u"C" || name == u"POSIX")
        return u"en_001"_s;
    QString script;
    if (modifier == u"latin")
        script = u"_Latn"_s;
    else if (modifier == u"cyrillic")
        script = u"_Cyrl"_s;
    const QString region = name.section(u'_', 1);
    name = name.section(u'_', 0, 0) % script % (region.isEmpty() ? QString() : QString(u'_' % region));
    const icu::Locale locale(name.toLatin1().constData());
    if (locale.isBogus() == 0 && hasMonthNames(locale))
        return QString::fromLatin1(locale.getName());
    const QString country = locale.isBogus() != 0 ? QString() : QString::fromLatin1(locale.getCountry());
    return country.isEmpty() ? u"en_001"_s : QString(u"en_" % country);
}

UserCalendar UserCalendar::of(const QString &timeZone, const QString &locale)
{
    return {.timeZone = timeZone, .locale = locale, .firstWeekday = usualFirstWeekday(locale)};
}

UserCalendar UserCalendar::ofSystem()
{
    const QString timeZone = systemTimeZone();
    for (const char *variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return of(timeZone, localeOf(name));
    }
    return of(timeZone, localeOf({}));
}

} // namespace roamlet
