// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/AutostartLoginService.h"

#include "Platform/Linux/AppImage.h"
#include "Platform/Linux/ConfigHome.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <optional>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString desktopFileName = u"org.roamlet.Roamlet.desktop"_s;

/// An argument of an Exec line: quoted, with what the quotes do not cover escaped once for them and once for
/// the file.
QString quotedArgument(const QString &argument)
{
    QString result;
    for (const QChar c : argument) {
        if (c == u'"' || c == u'`' || c == u'$')
            result += u"\\\\";
        else if (c == u'\\')
            result += u"\\\\\\";
        else if (c == u'%')
            result += u'%';
        result += c;
    }
    return u'"' % result % u'"';
}

/// The first argument of an Exec line; the opposite of quotedArgument().
QString programOf(QString line)
{
    line.replace(u"\\\\"_s, u"\\"_s);
    QString result;
    bool isQuoted = false;
    for (qsizetype i = 0; i < line.size() && (isQuoted || line.at(i) != u' '); ++i) {
        if (line.at(i) == u'"') {
            isQuoted = !isQuoted;
            continue;
        }
        const bool isEscape = line.at(i) == u'\\' || line.at(i) == u'%';
        if (isEscape && i + 1 < line.size())
            ++i;
        result += line.at(i);
    }
    return result;
}

/// The value of a key in the entry's main group, or nothing.
std::optional<QString> value(const QString &entry, const QString &key)
{
    bool isMainGroup = false;
    for (const QString &rawLine : entry.split(u'\n')) {
        const QString line = rawLine.trimmed();
        if (line.startsWith(u'[')) {
            isMainGroup = line == u"[Desktop Entry]";
            continue;
        }
        const qsizetype sign = line.indexOf(u'=');
        if (isMainGroup && sign > 0 && line.first(sign).trimmed() == key)
            return line.sliced(sign + 1).trimmed();
    }
    return {};
}

} // namespace

AutostartLoginService::Environment AutostartLoginService::Environment::ofThisProcess()
{
    const QString appImage = ownAppImage();
    return {.configHome = roamlet::configHome(),
            .program = appImage.isEmpty() ? QCoreApplication::applicationFilePath() : appImage,
            .dataFolders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)};
}

AutostartLoginService::AutostartLoginService(Environment environment) : m_environment(std::move(environment))
{
}

QString AutostartLoginService::entryPath() const
{
    return m_environment.configHome % u"/autostart/" % desktopFileName;
}

LoginService::Status AutostartLoginService::status() const
{
    QFile file(entryPath());
    if (!file.open(QIODevice::ReadOnly))
        return Status::NotRegistered;
    constexpr qint64 longestEntry = qint64{64} << 10U;
    const QString entry = QString::fromUtf8(file.read(longestEntry));
    // Desktops switch an entry off in one of these two ways, some by an entry with nothing else in it.
    if (value(entry, u"Hidden"_s) == u"true" || value(entry, u"X-GNOME-Autostart-enabled"_s) == u"false")
        return Status::RequiresApproval;
    // An entry without a command starts nothing, nor does one whose program was moved or removed.
    const QString program = programOf(value(entry, u"Exec"_s).value_or(QString()));
    const bool isThere = !program.isEmpty() && (program == m_environment.program ||
                                                !QStandardPaths::findExecutable(program).isEmpty());
    return isThere ? Status::Enabled : Status::NotRegistered;
}

std::expected<void, QString> AutostartLoginService::registerProgram()
{
    if (status() == Status::RequiresApproval)
        return {};
    // Entries have a line for each key; the rest of a name would be another one.
    if (std::ranges::any_of(m_environment.program,
                            [](QChar c) { return c.category() == QChar::Other_Control; }))
        return std::unexpected(QCoreApplication::translate(
            "roamlet::AutostartLoginService",
            "The name of the program's file or folder contains a control character."));
    const QString folder = QFileInfo(entryPath()).path();
    // A failure shows when the file is opened, with the system's words.
    QDir().mkpath(folder);
    QSaveFile file(entryPath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return std::unexpected(file.errorString());
    // Desktops list what starts at login, and show this there.
    const QString comment = QCoreApplication::translate("roamlet::AutostartLoginService",
                                                        "Browser history and bookmarks in one place");
    file.write(QString(u"[Desktop Entry]\n"
                       "Type=Application\n"
                       "Version=1.0\n"
                       "Name=Roamlet\n"
                       "Comment=" %
                       comment %
                       u"\n"
                       "Icon=org.roamlet.Roamlet\n"
                       "Exec=" %
                       quotedArgument(m_environment.program) % u' ' % QLatin1StringView(launchMarker) %
                       u"\n"
                       "Terminal=false\n"
                       "X-GNOME-Autostart-enabled=true\n")
                   .toUtf8());
    if (!file.commit())
        return std::unexpected(file.errorString());
    return {};
}

std::expected<void, QString> AutostartLoginService::unregisterProgram()
{
    QFile file(entryPath());
    if (!file.exists() || file.remove())
        return {};
    return std::unexpected(file.errorString());
}

bool AutostartLoginService::isInstalledCopy() const
{
    // An installation puts the desktop entry beside the program, where the desktop finds it. A build folder
    // has none, and the desktop knows nothing of one in a package that was merely unpacked.
    const QFileInfo program(QFileInfo(m_environment.program).canonicalFilePath());
    const QDir folder = program.dir();
    const QString entry =
        QFileInfo(folder.path() % u"/../share/applications/" % desktopFileName).canonicalFilePath();
    return folder.dirName() == u"bin" && !entry.isEmpty() &&
           std::ranges::any_of(m_environment.dataFolders, [&entry](const QString &data) {
               return QFileInfo(data % u"/applications/" % desktopFileName).canonicalFilePath() == entry;
           });
}

} // namespace roamlet
