// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/LinuxFiles.h"
#include "Platform/Linux/LinuxFolders.h"
#include "Readers/ReadContext.h"
#include "Support/MemoryUserDefaults.h"

#include <QByteArrayView>
#include <QString>
#include <QTemporaryDir>

#include <functional>

namespace roamlet::fuzz
{

/// A home folder with one file in it that changes with each input, and a temporary folder beside it.
class FuzzHome
{
public:
    /// `file` is the file's path below the home.
    explicit FuzzHome(const QString &file);

    QString path() const { return m_home; }
    /// The file.
    QString file() const { return m_file; }
    /// What stands below the home, on the file's way; computed once, when the file is there.
    ReadContext context() const;

    /// Writes the file with what stands beside it, lets `read` read it and requires that nothing in the home
    /// was touched and nothing was left behind.
    void reading(QByteArrayView bytes, const std::function<void()> &read) const;
    void reading(const QList<std::pair<QString, QByteArrayView>> &filesBySuffix,
                 const std::function<void()> &read) const;

    LinuxFiles files;

private:
    QStringList stamps() const;

    QTemporaryDir m_folder;
    QString m_home;
    QString m_temporary;
    QString m_file;
    testing::MemoryUserDefaults m_defaults;
    LinuxFolders m_folders;
};

} // namespace roamlet::fuzz
