// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>

/// The resources of a static library are there only once somebody asks for them, from outside of any
/// namespace.
// NOLINTNEXTLINE(misc-use-anonymous-namespace)
static void initializeTranslations()
{
    Q_INIT_RESOURCE(Translations);
}

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString folder = u":/Translations/"_s;
const QString prefix = u"roamlet_"_s;

/// Qt asks for this text to learn whether a language is read from right to left. Its own translations answer
/// it, too, but they come in a package that may be missing.
//: Translate this as "LTR", or as "RTL" for a language that is read from right to left.
[[maybe_unused]] constexpr const char *direction =
    QT_TRANSLATE_NOOP("QGuiApplication", "QT_LAYOUT_DIRECTION");

} // namespace

Translations::Translations(const QStringList &userLanguages)
{
    const QString language = chosen(userLanguages, available());
    if (language.isEmpty())
        return;
    if (m_toolkit.load(u"qtbase_"_s % language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_toolkit);
    if (m_own.load(prefix % language, folder))
        QCoreApplication::installTranslator(&m_own);
}

Translations::~Translations()
{
    for (QTranslator *translator : {&m_own, &m_toolkit})
        QCoreApplication::removeTranslator(translator);
}

QStringList Translations::available()
{
    initializeTranslations();
    QStringList languages;
    // A pattern would cost every start the library of regular expressions, half a megabyte.
    for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files, QDir::Name))
        languages.append(file.completeBaseName().sliced(prefix.size()));
    return languages;
}

QString Translations::chosen(const QStringList &userLanguages, const QStringList &available)
{
    // Qt's own search would take a later language that it knows by its full name before an earlier one of
    // which it only knows the language: English for someone from Austria who also reads that.
    for (const QString &name : userLanguages) {
        const QLocale wanted(name);
        if (wanted.language() == QLocale::English || wanted.language() == QLocale::C)
            return {};
        for (const QString &language : available) {
            const QLocale known(language);
            // A language that names no country serves all of them. Chinese of one script is read everywhere
            // where that is written, Portuguese differs from country to country.
            const bool isForAll = !language.contains(u'_') || known.language() == QLocale::Chinese;
            if (wanted.language() == known.language() && wanted.script() == known.script() &&
                (isForAll || wanted.territory() == known.territory()))
                return language;
        }
    }
    return {};
}

} // namespace roamlet
