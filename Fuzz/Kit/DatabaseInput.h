// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Kit/FuzzHome.h"
#include "SampleHome/SqliteFile.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>

#include <functional>

namespace roamlet::fuzz
{

/// A database with what stands beside it, as one row of bytes: the sizes of the database and of the log in
/// four bytes each, the smallest first, and then the three files.
struct DatabaseInput {
    QByteArray database;
    QByteArray log;     ///< "-wal"
    QByteArray journal; ///< "-journal"

    static DatabaseInput of(QByteArrayView bytes);
    QByteArray bytes() const;

    /// Makes the checksums of the log and of the journal, and the salts in the log, what they should be:
    /// SQLite reads nothing behind the first one that is not.
    void repairChecksums();

    /// Has them read as files in this home.
    void attack(const FuzzHome &home, const std::function<void()> &read) const;
};

/// What a small database of one kind holds.
struct SmallDatabase {
    const char *tables;
    /// Two halves of its rows.
    const char *earlier;
    const char *later;
    /// A change of some rows.
    const char *change;
};

/// It in every state in which a browser may leave it.
QList<QByteArray> databaseSeeds(const SmallDatabase &contents);
/// The database that `write` writes to a path, in small pages: more of a small file counts.
QByteArray databaseSeed(const std::function<void(const QString &path)> &write);

} // namespace roamlet::fuzz
