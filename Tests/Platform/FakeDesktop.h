// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace roamlet::testing
{

/// Applications of a test's own: desktop entries, and programs that write down how they were started and end.
class FakeDesktop final
{
public:
    /// One start of a program.
    struct Start {
        QString program; ///< the file's name
        QStringList arguments;
        /// Hexadecimal masks of the signals that the program found blocked and ignored.
        QString blockedSignals;
        QString ignoredSignals;
        QString activationToken;
    };

    FakeDesktop();
    FakeDesktop(const FakeDesktop &) = delete;
    FakeDesktop &operator=(const FakeDesktop &) = delete;
    ~FakeDesktop();

    /// Where entries are looked for, in this order.
    QStringList dataFolders() const;
    /// Where new programs stand.
    QString programFolder() const;
    /// A new program of this name, which may begin with folders; its path.
    QString addProgram(const QString &name) const;
    /// Writes an entry to the first folder of entries, or to the one with this number.
    void addEntry(const QString &name, const QString &command, const QString &furtherLines = {},
                  int folder = 0) const;
    /// Writes an entry that starts a program of this name with one place for URLs, and adds the program.
    void addApplication(const QString &entry, const QString &program) const;

    /// Waits until every program that was started has ended, and tells them all, in order of their files'
    /// names and arguments.
    QList<Start> starts() const;
    /// The one start there was; an empty one when there were others or none.
    Start onlyStart() const;

    /// Makes the process look for the user's preferences in a folder of the tests' own, in which
    /// "preferred-browser" is the preferred browser and "system-handler" opens "settings:" URLs and folders.
    /// Once for each process: the system's library looks only once.
    static void prepareProcess();

private:
    QTemporaryDir m_folder;
};

} // namespace roamlet::testing
