// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/UserCalendar.h"

#include <QLocale>
#include <QTimeZone>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// $TZ may also be the path of a zone's file, as the C library takes it.
QString systemTimeZone()
{
    return QString::fromLatin1(QTimeZone::systemTimeZoneId()).section(u"/zoneinfo/"_s, -1);
}

} // namespace

QString UserCalendar::localeOf(const QString &posixName)
{
    const QString modifier = posixName.section(u'@', 1);
    const QString name = posixName.section(u'@', 0, 0).section(u'.', 0, 0);
    if (name.isEmpty() || name == u"C" || name == u"POSIX")
        return u"en_001"_s;
    QString script;
    if (modifier == u"latin")
        script = u"_Latn"_s;
    else if (modifier == u"cyrillic")
        script = u"_Cyrl"_s;
    QString region;
    for (const QString &part : name.split(u'_').sliced(1)) {
        const QLocale::Script knownScript = QLocale::codeToScript(part);
        const QLocale::Territory knownTerritory = QLocale::codeToTerritory(part);
        if (knownScript != QLocale::AnyScript)
            script = u'_' % QLocale::scriptToCode(knownScript);
        else if (knownTerritory != QLocale::AnyTerritory)
            region = u'_' % QLocale::territoryToCode(knownTerritory);
    }
    const QLocale::Language language = QLocale(name.section(u'_', 0, 0)).language();
    if (language == QLocale::C)
        return region.isEmpty() ? u"en_001"_s : QString(u"en" % region);
    return QLocale::languageToCode(language) % script % region;
}

UserCalendar UserCalendar::ofSystem()
{
    const QString timeZone = systemTimeZone();
    for (const char *variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return {.timeZone = timeZone, .locale = localeOf(name)};
    }
    return {.timeZone = timeZone, .locale = localeOf({})};
}

} // namespace roamlet
