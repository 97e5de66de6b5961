// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Folders.h"

#include <memory>

namespace roamlet
{

class Files;
class UserDefaults;

/// The folders of a Linux desktop. The layout of a Mac's home folder comes first, so that a home folder out
/// of a backup reads as it is; where it does not exist, the places in which browsers keep their data on Linux
/// serve. The settings "dataRoot.safari", "dataRoot.chrome" and "dataRoot.edge" override both.
class LinuxFolders final : public Folders
{
public:
    struct Environment {
        QString home;
        QString configHome; ///< empty: ".config" below home
        QString temporary;

        /// $HOME, $XDG_CONFIG_HOME and $TMPDIR.
        static Environment ofThisProcess();
    };

    LinuxFolders(Environment environment, const Files &files, const UserDefaults &defaults);

    QString home() const override;
    QString temporary() const override;
    QStringList dataRootCandidates(const QString &browser) const override;
    QString dataRoot(const QString &browser) const override;
    QString safariContainer() const override;
    bool hasData(const QString &browser) const override;

private:
    Environment m_environment;
    const Files &m_files;
    const UserDefaults &m_defaults;
};

} // namespace roamlet
