// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace roamlet
{

class Files;

/// What tells two moments of a database apart by a look at its files: a commit counts up in the database's
/// header, before it exchanges any other page; a log that is begun anew has another header; a change that is
/// under way has a journal of its own.
class DatabaseMoment
{
public:
    DatabaseMoment() = default;

    /// For before and after the copying. What is looked at first differs, so that no change can end behind
    /// the one look and begin before the other.
    static DatabaseMoment before(const Files &files, const QString &database);
    static DatabaseMoment after(const Files &files, const QString &database);

    /// Whether nothing was committed to the database itself in between. What a change has put into it early,
    /// because it is too large for its writer's memory, is in its journal.
    bool hasContentOf(const DatabaseMoment &other) const
    {
        return m_counter == other.m_counter && m_log == other.m_log;
    }
    /// Whether there is a journal that has to be rolled back.
    bool isWithinChange() const { return !m_journal.isEmpty(); }

    bool operator==(const DatabaseMoment &) const = default;

private:
    void lookAtDatabase(const Files &files, const QString &database);
    void lookAtJournal(const Files &files, const QString &database);

    QByteArray m_counter;
    QByteArray m_log;
    /// Empty where there is none to be rolled back.
    QByteArray m_journal;
};

} // namespace roamlet
