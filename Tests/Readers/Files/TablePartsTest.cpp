// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/TableParts.h"

#include "Readers/Files/SQLiteSnapshotTest.h"

#include <array>
#include <thread>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

/// A database that is large enough to be read in parts, by a table that nobody looks at.
class TablePartsTest : public SQLiteSnapshotTest
{
protected:
    void writeLarge(const char *tables) const
    {
        sample::makeFolderOf(source);
        sample::Database database(source);
        database.execute("PRAGMA synchronous = OFF; PRAGMA journal_mode = MEMORY; "
                         "CREATE TABLE bulk(v); INSERT INTO bulk VALUES(zeroblob(17000000))");
        database.execute(tables);
    }

    /// What each part of the table reads.
    std::expected<std::array<QStringList, TableParts::most>, ReadError>
    readParts(const QString &table = u"t"_s)
    {
        const auto snapshot = SQLiteSnapshot::copying(source, context());
        if (!snapshot)
            return std::unexpected(snapshot.error());
        std::array<QStringList, TableParts::most> values;
        const auto run =
            TableParts(*snapshot, table)
                .forEach([&](std::size_t part, const SQLiteSnapshot &reader, const QString &condition) {
                    return reader.query(u"SELECT v FROM "_s % table % u" WHERE 1"_s % condition, {},
                                        [&values, part](const SQLiteSnapshot::Row &row) {
                                            values[part].append(row.text(0).value_or(u"NULL"_s));
                                        });
                });
        if (!run)
            return std::unexpected(run.error());
        return values;
    }

    static constexpr const char *fourRows = "CREATE TABLE t(id INTEGER PRIMARY KEY, v); INSERT INTO t "
                                            "VALUES(1, 'a'), (2, 'b'), (99, 'y'), (100, 'z')";
};

TEST_F(TablePartsTest, theHalvesOfALargeTableAreReadByTwo)
{
    if (std::thread::hardware_concurrency() < TableParts::most)
        GTEST_SKIP() << "one core reads one part";
    writeLarge(fourRows);
    const auto parts = readParts();
    ASSERT_TRUE(parts) << parts.error();
    EXPECT_EQ((*parts)[0], (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ((*parts)[1], (QStringList{u"y"_s, u"z"_s}));
    EXPECT_EQ(foldersLeft(), QStringList()) << "the copy goes with its last reader";
}

TEST_F(TablePartsTest, aSmallTableIsOnePart)
{
    write({u"a"_s, u"b"_s});
    const auto parts = readParts();
    ASSERT_TRUE(parts) << parts.error();
    EXPECT_EQ((*parts)[0], (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ((*parts)[1], QStringList());
}

TEST_F(TablePartsTest, noRowIsLostBetweenTheParts)
{
    for (const char *tables : {
             "CREATE TABLE t(v)",
             "CREATE TABLE t(v); INSERT INTO t VALUES('a')",
             "CREATE TABLE t(id INTEGER PRIMARY KEY, v); INSERT INTO t VALUES(-5, 'a'), (7, 'b')",
             "CREATE TABLE t(id INTEGER PRIMARY KEY, v); "
             "INSERT INTO t VALUES(-9223372036854775808, 'a'), (9223372036854775807, 'b')",
             "CREATE TABLE t(id INTEGER PRIMARY KEY, v); INSERT INTO t VALUES(9223372036854775806, 'a'), "
             "(9223372036854775807, 'b')",
             "CREATE TABLE t(id TEXT PRIMARY KEY, v) WITHOUT ROWID; INSERT INTO t VALUES('1', 'a'), ('2', "
             "'b')",
             "CREATE TABLE t(id TEXT, v); INSERT INTO t VALUES(NULL, 'a'), ('x', 'b')",
             "CREATE TABLE t(id INTEGER PRIMARY KEY, v, _ROWID_); "
             "INSERT INTO t VALUES(1, 'a', NULL), (2, 'b', 1), (3, 'c', 100)",
         }) {
        change([&] {
            QFile::remove(source);
            writeLarge(tables);
        });
        const auto parts = readParts();
        ASSERT_TRUE(parts) << tables << parts.error();
        EXPECT_EQ((*parts)[0] + (*parts)[1], read(u"SELECT v FROM t"_s)) << tables;
    }
}

TEST_F(TablePartsTest, bothPartsReadWhatStandsInTheLog)
{
    const auto fill = [](sample::Database &database, sample::Share share) {
        sample::Statement insert = database.prepare("INSERT INTO t VALUES(?, ?, ?)");
        const auto [first, end] = share.of(100);
        for (qsizetype i = first; i < end; ++i)
            insert.run(qint64(i), qint64(i), std::optional(QByteArray(200'000, 'x')));
    };
    for (const sample::Journal journal : {sample::Journal::UnmergedWal, sample::Journal::WalAlone}) {
        change([&] {
            QFile::remove(source);
            sample::writeDatabase(
                source, {.tables = "CREATE TABLE t(id INTEGER PRIMARY KEY, v, bulk)", .fill = fill}, journal);
        });
        const auto parts = readParts();
        ASSERT_TRUE(parts) << parts.error();
        EXPECT_EQ((*parts)[0].size() + (*parts)[1].size(), 100);
    }
}

TEST_F(TablePartsTest, anErrorOfAnyPartIsTheErrorOfAll)
{
    writeLarge(fourRows);
    const auto snapshot = SQLiteSnapshot::copying(source, context());
    ASSERT_TRUE(snapshot) << snapshot.error();
    for (const std::size_t failing : {0, 1}) {
        const auto error = ReadError::unreadable(u"part"_s, QString::number(failing));
        std::atomic<std::size_t> calls = 0;
        const auto run = TableParts(*snapshot, u"t"_s)
                             .forEach([&](std::size_t part, const SQLiteSnapshot &,
                                          const QString &) -> std::expected<void, ReadError> {
                                 ++calls;
                                 if (part == failing)
                                     return std::unexpected(error);
                                 return {};
                             });
        if (calls == 2 || failing == 0) {
            EXPECT_EQ(run, std::unexpected(error));
        }
    }
    EXPECT_FALSE(readParts(u"nowhere"_s)) << "no such table";
}

} // namespace roamlet::testing
