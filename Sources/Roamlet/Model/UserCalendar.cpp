// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/UserCalendar.h"

#include <QLocale>

namespace roamlet
{

using namespace Qt::StringLiterals;

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

} // namespace roamlet
