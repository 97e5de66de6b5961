// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/ConfigHome.h"

#include <QDir>
#include <QFile>

#include <pwd.h>
#include <vector>

namespace roamlet
{

namespace
{

/// A user's home folder; empty for one whom the database does not know.
QByteArray homeInUserDatabase(uid_t user)
{
    constexpr size_t longestEntry = size_t{64} << 10U;
    std::vector<char> buffer(longestEntry);
    passwd entry = {};
    passwd *found = nullptr;
    if (getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr)
        return {};
    return entry.pw_dir;
}

} // namespace

QString homeFolder(uid_t user)
{
    const QByteArray variable = qgetenv("HOME");
    const QByteArray path = variable.isEmpty() ? homeInUserDatabase(user) : variable;
    return QDir::cleanPath(QFile::decodeName(path));
}

QString configHome()
{
    // A relative path in this variable is invalid and to be ignored.
    const QString path = qEnvironmentVariable("XDG_CONFIG_HOME");
    return QDir::isAbsolutePath(path) ? QDir::cleanPath(path) : QString(homeFolder() % u"/.config");
}

} // namespace roamlet
