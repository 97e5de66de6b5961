// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileInfo>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace roamlet
{

/// A file or folder of Safari's that its permissions keep from the user, as where a Mac's home was copied or
/// mounted. No setting of the system's helps there.
struct RefusedFile {
    QString path;
    QString owner;
    bool isFolder = false;

    using IsReadable = std::function<bool(const QFileInfo &)>;

    /// The first one of Safari's data folders or in them.
    static std::optional<RefusedFile> in(
        const QStringList &dataFolders, const IsReadable &isReadable = [](const QFileInfo &file) {
            return file.isReadable() && (!file.isDir() || file.isExecutable());
        });

    /// The folder in which its permissions can be seen and changed.
    QString folder() const { return QFileInfo(path).path(); }
    /// Whose it is, and what is missing.
    QString words() const;

    bool operator==(const RefusedFile &) const = default;
};

} // namespace roamlet
