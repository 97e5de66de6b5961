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
/// a browser keeps the file locked for itself. A log that is begun anew has another header.
class DatabaseMoment
{
public:
    DatabaseMoment() = default;
    DatabaseMoment(const Files &files, const QString &database);

    /// Whether there is a log that commits are appended to. Each piece of it is proven by a checksum of all
    /// its bytes, so a copy of it that ends anywhere is of one moment. A journal's pieces are not: one that
    /// is overwritten in place can be copied half new and half old without any sign of it.
    bool hasLog() const { return !m_log.isEmpty(); }

    bool operator==(const DatabaseMoment &) const = default;

private:
    QString m_stamp;
    QByteArray m_counter;
    QByteArray m_log;
};

} // namespace roamlet
