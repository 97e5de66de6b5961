// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace roamlet
{

class Files;

/// What tells two moments of a database apart by a look at its files. Each of them alone can miss a change:
/// a file's time does when it was written to an instant before, the count of commits in the header does where
/// a browser keeps the file locked for itself. A log that is begun anew has another header, and a change that
/// is under way has a journal of its own.
class DatabaseMoment
{
public:
    DatabaseMoment() = default;

    /// For before and after the copying. What is looked at first differs, so that no change can end behind
    /// the one look and begin before the other.
    static DatabaseMoment before(const Files &files, const QString &database);
    static DatabaseMoment after(const Files &files, const QString &database);

    /// Whether nothing was written to the database itself in between.
    bool hasContentOf(const DatabaseMoment &other) const;
    /// Whether the header tells every commit, as the one between these two looks: not where one program keeps
    /// the file locked for itself.
    bool tellsCommitsSince(const DatabaseMoment &earlier) const
    {
        return !m_log.isEmpty() || m_counter != earlier.m_counter;
    }
    /// The database's own file stamp.
    const QString &stamp() const { return m_stamp; }
    /// Whether there is a journal that has to be rolled back.
    bool isWithinChange() const { return !m_journal.isEmpty(); }

    bool operator==(const DatabaseMoment &) const = default;

private:
    void lookAtDatabase(const Files &files, const QString &database);
    void lookAtJournal(const Files &files, const QString &database);

    QString m_stamp;
    QByteArray m_counter;
    QByteArray m_log;
    /// Empty where there is none to be rolled back.
    QByteArray m_journal;
};

} // namespace roamlet
