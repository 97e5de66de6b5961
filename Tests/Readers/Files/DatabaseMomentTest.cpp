// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/DatabaseMoment.h"

#include "Readers/Files/SQLiteSnapshotTest.h"

#include <sqlite3.h>

#include <string>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

void execute(sqlite3 *database, const QByteArray &sql)
{
    EXPECT_EQ(sqlite3_exec(database, sql.constData(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sql.toStdString() << ": " << sqlite3_errmsg(database);
}

} // namespace

/// A database that is written to in one of the ways that SQLite has.
class DatabaseMomentTest : public SQLiteSnapshotTest, public ::testing::WithParamInterface<const char *>
{
protected:
    sqlite3 *open() const
    {
        sqlite3 *database = nullptr;
        EXPECT_EQ(sqlite3_open(QFile::encodeName(source).constData(), &database), SQLITE_OK);
        execute(database, QByteArray("PRAGMA synchronous = OFF; PRAGMA journal_mode = ") + GetParam());
        return database;
    }
};

TEST_P(DatabaseMomentTest, whatACommitChangesTellsTwoMomentsApart)
{
    sample::makeFolderOf(source);
    change([this] {
        sqlite3 *database = open();
        execute(database, "CREATE TABLE t(v); INSERT INTO t VALUES(1)");
        const DatabaseMoment first(home.files, source);
        EXPECT_EQ(first, DatabaseMoment(home.files, source));
        const bool hasLog = GetParam() == QByteArrayView("WAL");
        EXPECT_EQ(first.hasLog(), hasLog);
        // A log holds a change by itself; it is another one once it was begun anew.
        execute(database, "UPDATE t SET v = 2");
        if (hasLog)
            execute(database, "PRAGMA wal_checkpoint(RESTART); UPDATE t SET v = 3");
        EXPECT_NE(first, DatabaseMoment(home.files, source));
        sqlite3_close(database);
    });
}

INSTANTIATE_TEST_SUITE_P(Journals, DatabaseMomentTest,
                         ::testing::Values("DELETE", "TRUNCATE", "PERSIST", "WAL"),
                         [](const auto &test) { return std::string(test.param); });

} // namespace roamlet::testing
