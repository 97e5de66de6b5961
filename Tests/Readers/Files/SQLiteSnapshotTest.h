// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Readers/Files/SQLiteSnapshot.h"
#include "Readers/ReaderTest.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/SqliteFile.h"

#include <QDir>
#include <QFile>

#include <atomic>

namespace roamlet::testing
{

/// A database of a browser's that a test writes, and private copies of it.
class SQLiteSnapshotTest : public ReaderTest
{
protected:
    SQLiteSnapshotTest()
    {
        home.files.afterCopy = [this](const QString &copied) {
            if (copied == source)
                ++copies;
        };
    }

    /// A small database with one table of these values, no log and no journal.
    void write(const QStringList &values) const
    {
        sample::makeFolderOf(source);
        QFile::remove(source);
        sample::Database database(source);
        database.execute("PRAGMA synchronous = OFF; PRAGMA journal_mode = MEMORY; CREATE TABLE t(v)");
        sample::Statement insert = database.prepare("INSERT INTO t VALUES(?)");
        for (const QString &value : values)
            insert.run(sample::Text(value));
    }

    /// Writes 1,000 numbers and leaves the later ones in the log, or a half-done change with its journal.
    void writeThousand(sample::Journal journal) const
    {
        const auto fill = [](sample::Database &database, sample::Share share) {
            sample::Statement insert = database.prepare("INSERT INTO t VALUES(?)");
            const auto [first, end] = share.of(1000);
            for (qsizetype i = first; i < end; ++i)
                insert.run(qint64(i));
        };
        sample::writeDatabase(source,
                              {.tables = "CREATE TABLE t(v); CREATE TABLE bulk(v)",
                               .fill = fill,
                               .unfinishedChange = "UPDATE t SET v = -v",
                               .unfinishedBulk = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
                                                 "FROM n WHERE i < 2000) INSERT INTO bulk SELECT "
                                                 "zeroblob(600) FROM n"},
                              journal);
    }

    static QStringList query(const SQLiteSnapshot &snapshot, const QString &sql,
                             const QStringList &parameters = {})
    {
        QStringList values;
        const auto run = snapshot.query(sql, parameters, [&values](const SQLiteSnapshot::Row &row) {
            values.append(row.text(0).value_or(QStringLiteral("NULL")));
        });
        if (!run)
            values = {run.error().errorDescription()};
        return values;
    }

    /// The first column of a query on a fresh copy, or the error.
    QStringList read(const QString &sql = QStringLiteral("SELECT v FROM t"))
    {
        const auto snapshot = SQLiteSnapshot::copying(source, context());
        return snapshot ? query(*snapshot, sql) : QStringList{snapshot.error().errorDescription()};
    }

    ReadError errorOfCopying()
    {
        const auto snapshot = SQLiteSnapshot::copying(source, context());
        return snapshot ? ReadError::unreadable(QStringLiteral("there"), QStringLiteral("is no error"))
                        : snapshot.error();
    }

    QStringList foldersLeft() const
    {
        return QDir(home.temporary()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    const QString sumAndCount = QStringLiteral("SELECT count(*) || ' ' || sum(v) FROM t");
    const QString source = home.path(QStringLiteral("data/History"));
    /// Some tests read on several threads.
    std::atomic<int> copies = 0;
};

} // namespace roamlet::testing
