// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/DesktopEntry.h"

#include "Platform/Linux/Workspace/DetachedProcess.h"
#include "Platform/Linux/Workspace/GLibPointer.h"

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

QStringList commandOf(GDesktopAppInfo *info)
{
    const char *line = g_app_info_get_commandline(G_APP_INFO(info));
    gchar **parsed = nullptr;
    if (line == nullptr || g_shell_parse_argv(line, nullptr, &parsed, nullptr) == FALSE)
        return {};
    const GLibPointer<gchar *> owner(parsed);
    QStringList command;
    for (gchar **text = parsed; *text != nullptr; ++text) {
        const QString argument = QFile::decodeName(*text);
        // Flatpak marks with these where the files are that it is to let the application see.
        if (argument.startsWith(u"@@"))
            continue;
        if (const std::optional<QString> kept = withoutFieldCodes(argument))
            command.append(*kept);
    }
    return command;
}

QString value(GDesktopAppInfo *info, const char *key)
{
    const GLibPointer<gchar> text(g_desktop_app_info_get_string(info, key));
    return QString::fromUtf8(text.get());
}

void launchWith(GDesktopAppInfo *info, const QStringList &urls)
{
    QList<QByteArray> texts;
    for (const QString &url : urls)
        texts.append(url.toUtf8());
    GList *list = nullptr;
    for (QByteArray &text : texts)
        list = g_list_append(list, text.data());
    const GLibPointer<GList> owner(list);
    g_desktop_app_info_launch_uris_as_manager(info, list, nullptr, spawnFlags, DetachedProcess::prepareChild,
                                              nullptr, nullptr, nullptr, nullptr);
}

GLibPointer<GDesktopAppInfo> load(const QString &path)
{
    return GLibPointer<GDesktopAppInfo>(
        g_desktop_app_info_new_from_filename(QFile::encodeName(path).constData()));
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

void DesktopEntry::launch(const QStringList &urls) const
{
    if (const GLibPointer<GDesktopAppInfo> info = load(path))
        launchWith(info.get(), urls);
}

QList<DesktopEntry> DesktopEntry::named(const QString &name, const QStringList &dataFolders)
{
    QList<DesktopEntry> entries;
    for (const QString &folder : dataFolders) {
        const QString path = folder % u"/applications/" % name;
        // Most names are nowhere, which the library takes longer to find out.
        if (!QFileInfo::exists(path))
            continue;
        const GLibPointer<GDesktopAppInfo> info = load(path);
        if (!info)
            continue;
        if (g_desktop_app_info_get_is_hidden(info.get()) != FALSE)
            break;
        const QStringList command = commandOf(info.get());
        if (command.isEmpty())
            continue;
        entries.append({.path = path,
                        .command = command,
                        .icon = value(info.get(), G_KEY_FILE_DESKTOP_KEY_ICON),
                        .windowClass = value(info.get(), G_KEY_FILE_DESKTOP_KEY_STARTUP_WM_CLASS)});
    }
    return entries;
}

void DesktopEntry::launchPreferred(const QString &scheme, const QStringList &urls)
{
    if (scheme.isEmpty())
        return;
    // File managers register for folders, not for addresses of files.
    const GLibPointer<GAppInfo> info(
        scheme == u"file" ? g_app_info_get_default_for_type("inode/directory", FALSE)
                          : g_app_info_get_default_for_uri_scheme(scheme.toUtf8().constData()));
    if (info && G_IS_DESKTOP_APP_INFO(info.get()) != FALSE)
        launchWith(G_DESKTOP_APP_INFO(info.get()), urls);
}

} // namespace roamlet
