// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Browser.h"
#include "Platform/Folders.h"

#include <memory>

namespace roamlet
{

class Files;
class UserDefaults;

/// The folders of a Linux desktop. The layout of a Mac's home folder comes first, so that a home folder out
/// of a backup reads as it is, then the places in which browsers keep their data on Linux. The settings
/// "dataRoot.KIND", and "dataRoot.KIND@KEY" for an installation with a key, override both.
class LinuxFolders final : public Folders
{
public:
    struct Environment {
        QString home;
        QString configHome; ///< empty: ".config" below home
        QString temporary;

        /// homeFolder(), configHome() and $TMPDIR.
        static Environment ofThisProcess();
    };

    LinuxFolders(Environment environment, const Files &files, const UserDefaults &defaults);

    QString home() const override;
    QString temporary() const override;
    QStringList dataFolders(Source::Kind browser, const QString &installation) const override;
    QString safariContainer() const override;

private:
    QString folder(Browser::Place::Base base) const;

    Environment m_environment;
    const Files &m_files;
    const UserDefaults &m_defaults;
};

} // namespace roamlet
