// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/UserLocale.h"

#include <QTimeZone>

namespace roamlet::UserLocale
{

using namespace Qt::StringLiterals;

QString collation()
{
    return QLocale::system().collation().name();
}

UserCalendar calendar()
{
    // $TZ may also be the path of a zone's file, as the C library takes it.
    const QString timeZone = QString::fromLatin1(QTimeZone::systemTimeZoneId()).section(u"/zoneinfo/"_s, -1);
    for (const char *variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return {.timeZone = timeZone, .locale = UserCalendar::localeOf(name)};
    }
    return {.timeZone = timeZone, .locale = UserCalendar::localeOf({})};
}

QLocale formats()
{
    // Without a language, numbers have no groups and times no short form; the texts are English anyway.
    const QLocale system = QLocale::system();
    return system.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : system;
}

} // namespace roamlet::UserLocale
