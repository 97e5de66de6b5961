// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/DesktopEntry.h"

#include "Platform/Linux/Workspace/GLibPointer.h"
#include "Platform/Linux/Workspace/ProgramsModule.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <optional>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// An argument of an Exec line with its field codes replaced; nothing when it stands for files or URLs only.
std::optional<QString> withoutFieldCodes(const QString &argument)
{
    QString result;
    bool isPlace = false;
    for (qsizetype i = 0; i < argument.size(); ++i) {
        if (argument.at(i) != u'%') {
            result += argument.at(i);
            continue;
        }
        ++i;
        if (i < argument.size() && argument.at(i) == u'%')
            result += u'%';
        else
            isPlace = true;
    }
    if (isPlace && result.isEmpty())
        return {};
    return result;
}

/// The group of a desktop entry that tells of the application.
constexpr const char *mainGroup = "Desktop Entry";

QString value(GKeyFile *entry, const char *key)
{
    const GLibPointer<gchar> text(g_key_file_get_string(entry, mainGroup, key, nullptr));
    return QString::fromUtf8(text.get());
}

bool isSet(GKeyFile *entry, const char *key)
{
    return g_key_file_get_boolean(entry, mainGroup, key, nullptr) != FALSE;
}

bool isFound(const QString &program)
{
    const GLibPointer<gchar> path(g_find_program_in_path(QFile::encodeName(program).constData()));
    return path != nullptr;
}

/// The program and its arguments as they stand in an Exec line; nothing when it is no such line.
QStringList arguments(const QString &execLine)
{
    gchar **parsed = nullptr;
    if (g_shell_parse_argv(QFile::encodeName(execLine).constData(), nullptr, &parsed, nullptr) == FALSE)
        return {};
    const GLibPointer<gchar *> owner(parsed);
    QStringList arguments;
    for (gchar **text = parsed; *text != nullptr; ++text)
        arguments.append(QFile::decodeName(*text));
    return arguments;
}

QStringList commandOf(const QStringList &arguments)
{
    QStringList command;
    for (const QString &argument : arguments) {
        // Flatpak marks with these where the files are that it is to let the application see.
        if (argument.startsWith(u"@@"))
            continue;
        if (const std::optional<QString> kept = withoutFieldCodes(argument))
            command.append(*kept);
    }
    return command;
}

/// The desktop entry of an application whose program is there; null otherwise. One that only hides the
/// application names no program.
GLibPointer<GKeyFile> load(const QString &path)
{
    GLibPointer<GKeyFile> entry(g_key_file_new());
    if (g_key_file_load_from_file(entry.get(), QFile::encodeName(path).constData(), G_KEY_FILE_NONE,
                                  nullptr) == FALSE)
        return {};
    const QString tried = value(entry.get(), "TryExec");
    const QString line = value(entry.get(), "Exec");
    const bool isApplication = value(entry.get(), "Type") == u"Application";
    if (!isApplication || (!tried.isEmpty() && !isFound(tried)) ||
        (!line.isEmpty() && !isFound(arguments(line).value(0))))
        return {};
    return entry;
}

} // namespace

DesktopEntry::Packaging DesktopEntry::packaging() const
{
    // The program need not come first: "env NAME=value" may stand before it.
    for (const QString &argument : command) {
        if (argument.contains(u"/snap/bin/"))
            return Packaging::Snap;
        if (argument == u"flatpak" || argument.endsWith(u"/flatpak"))
            return Packaging::Flatpak;
    }
    return Packaging::Native;
}

bool DesktopEntry::startsFrom(const QString &folder) const
{
    const QString place = QFileInfo(folder).canonicalFilePath();
    return !place.isEmpty() && std::ranges::any_of(command, [&place](const QString &argument) {
        const QString program = QStandardPaths::findExecutable(argument);
        return QFileInfo(program).canonicalFilePath().startsWith(QString(place % u'/'));
    });
}

bool DesktopEntry::launch(const QStringList &urls, const QString &activationToken) const
{
    return ProgramsModule::launchEntry(path, urls, activationToken);
}

QList<DesktopEntry> DesktopEntry::named(const QString &name, const QStringList &dataFolders)
{
    QList<DesktopEntry> entries;
    for (const QString &folder : dataFolders) {
        const QString path = folder % u"/applications/" % name;
        const GLibPointer<GKeyFile> entry = load(path);
        if (!entry)
            continue;
        if (isSet(entry.get(), "Hidden"))
            break;
        const QStringList command = commandOf(arguments(value(entry.get(), "Exec")));
        if (command.isEmpty())
            continue;
        entries.append({.path = path,
                        .command = command,
                        .icon = value(entry.get(), "Icon"),
                        .windowClass = value(entry.get(), "StartupWMClass")});
    }
    return entries;
}

bool DesktopEntry::launchPreferred(const QString &scheme, const QStringList &urls,
                                   const QString &activationToken)
{
    if (scheme.isEmpty())
        return false;
    // File managers register for folders, not for addresses of files.
    return ProgramsModule::launchPreferred(scheme == u"file" ? u"inode/directory"_s
                                                             : QString(u"x-scheme-handler/" % scheme),
                                           urls, activationToken);
}

} // namespace roamlet
