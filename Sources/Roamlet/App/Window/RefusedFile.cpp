// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/RefusedFile.h"

#include <QCoreApplication>
#include <QDir>

namespace roamlet
{

using namespace Qt::StringLiterals;

std::optional<RefusedFile> RefusedFile::in(const QStringList &dataFolders, const IsReadable &isReadable)
{
    for (const QString &folder : dataFolders) {
        // The folder first: what lies in one that cannot be opened is not seen at all.
        for (const QString &name : {QString(), u"History.db"_s, u"Bookmarks.plist"_s}) {
            const QFileInfo file(QDir::cleanPath(folder % u'/' % name));
            if (file.exists() && !isReadable(file))
                return RefusedFile{.path = file.filePath(), .owner = file.owner(), .isFolder = file.isDir()};
        }
    }
    return {};
}

QString RefusedFile::words() const
{
    const QString name = path.section(u'/', -1);
    if (owner.isEmpty())
        return (isFolder ? QCoreApplication::translate("RefusedFile",
                                                       "Your permission to open the folder %1 is missing.")
                         : QCoreApplication::translate("RefusedFile",
                                                       "Your permission to read the file %1 is missing."))
            .arg(name);
    return (isFolder
                ? QCoreApplication::translate(
                      "RefusedFile", "The folder %1 belongs to %2; your permission to open it is missing.")
                : QCoreApplication::translate(
                      "RefusedFile", "The file %1 belongs to %2; your permission to read it is missing."))
        .arg(name, owner);
}

} // namespace roamlet
