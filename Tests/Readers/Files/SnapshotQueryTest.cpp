// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/SQLiteSnapshotTest.h"

#include <QDataStream>
#include <QFileInfo>

#include <sys/stat.h>

#include <numeric>
#include <stop_token>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// The journal of a change that has changed nothing yet, and that shares its fate with the changes of other
/// databases: `shared` is the file that says whose.
QByteArray journalThatNames(const QString &shared, const QString &database)
{
    constexpr quint32 pageSize = 4096;
    constexpr qsizetype sectorSize = 512;
    constexpr quint32 lockByte = 0x40000000;
    const QByteArray magic = QByteArray::fromHex("d9d505f920a163d7");
    QByteArray journal;
    QDataStream stream(&journal, QIODevice::WriteOnly);
    const auto pages = static_cast<quint32>(QFileInfo(database).size() / pageSize);
    stream.writeRawData(magic.constData(), static_cast<int>(magic.size()));
    stream << quint32(0) << quint32(12345) << pages << quint32(sectorSize) << pageSize;
    const QByteArray padding(sectorSize - journal.size(), '\0');
    stream.writeRawData(padding.constData(), static_cast<int>(padding.size()));
    const QByteArray name = QFile::encodeName(shared);
    stream << quint32(lockByte / pageSize + 1);
    stream.writeRawData(name.constData(), static_cast<int>(name.size()));
    stream << quint32(name.size()) << quint32(std::accumulate(name.begin(), name.end(), 0));
    stream.writeRawData(magic.constData(), static_cast<int>(magic.size()));
    return journal;
}

} // namespace

/// What the copy of a database, its log and its journal answers.
class SnapshotQueryTest : public SQLiteSnapshotTest
{
};

TEST_F(SnapshotQueryTest, readsWhatStandsOnlyInTheWriteAheadLog)
{
    writeThousand(sample::Journal::UnmergedWal);
    ASSERT_GT(QFileInfo(source % u"-wal").size(), 0);
    EXPECT_EQ(read(sumAndCount), QStringList{u"1000 499500"_s});
    // The log made the difference.
    refuse(source % u"-wal", std::errc::no_such_file_or_directory);
    EXPECT_EQ(read(sumAndCount), QStringList{u"500 124750"_s});
}

TEST_F(SnapshotQueryTest, rollsAnUnfinishedChangeBackInTheCopy)
{
    writeThousand(sample::Journal::HotJournal);
    EXPECT_EQ(read(sumAndCount), QStringList{u"1000 499500"_s});
    refuse(source % u"-journal", std::errc::no_such_file_or_directory);
    EXPECT_NE(read(sumAndCount), QStringList{u"1000 499500"_s});
}

TEST_F(SnapshotQueryTest, whatIsNoDatabaseFailsAtTheFirstQuery)
{
    sample::writeFile(source,
                      QByteArray("this is no database, but long enough for its header ").repeated(20));
    const auto snapshot = SQLiteSnapshot::copying(source, context());
    ASSERT_TRUE(snapshot.has_value());
    const auto run = snapshot->query(u"SELECT v FROM t"_s, {}, [](const auto &) {});
    ASSERT_FALSE(run.has_value());
    EXPECT_EQ(run.error(), ReadError::unreadable(u"query"_s, u"file is not a database"_s));
}

TEST_F(SnapshotQueryTest, anEmptyFileIsADatabaseWithoutTables)
{
    sample::writeFile(source, {});
    EXPECT_EQ(read(), QStringList{u"Couldn't read query: no such table: t"_s});
}

TEST_F(SnapshotQueryTest, bindsParametersAsTextInTheirOrder)
{
    write({});
    const auto snapshot = SQLiteSnapshot::copying(source, context());
    ASSERT_TRUE(snapshot.has_value());
    EXPECT_EQ(query(*snapshot, u"SELECT ? || ',' || ? || typeof(?)"_s, {u"1"_s, u"Zoë"_s, u"3"_s}),
              QStringList{u"1,Zoëtext"_s});
}

TEST_F(SnapshotQueryTest, rowsGiveEveryKindOfValue)
{
    write({});
    const auto snapshot = SQLiteSnapshot::copying(source, context());
    ASSERT_TRUE(snapshot.has_value());
    int rows = 0;
    const auto run = snapshot->query(
        u"SELECT 9223372036854775807, 0.5, 'text', NULL, x'00ff00', x'', CAST(x'61006263' AS TEXT),"
        " CAST(x'61c362ff' AS TEXT), '', CAST(x'efbbbf6d61726b6564efbbbf' AS TEXT)"_s,
        {}, [&rows](const SQLiteSnapshot::Row &row) {
            ++rows;
            EXPECT_EQ(row.integer(0), 9223372036854775807);
            EXPECT_EQ(row.real(1), 0.5);
            EXPECT_EQ(row.text(2), u"text"_s);
            EXPECT_EQ(row.text(3), std::nullopt);
            EXPECT_EQ(row.integer(3), 0);
            EXPECT_TRUE(row.blob(3).isNull());
            EXPECT_EQ(row.blob(4).toByteArray(), QByteArray("\0\xff\0", 3));
            EXPECT_EQ(row.blob(5).size(), 0);
            // A text ends at a NUL; broken sequences are replaced.
            EXPECT_EQ(row.text(6), u"a"_s);
            EXPECT_EQ(row.text(7), u"a\uFFFDb\uFFFD"_s);
            EXPECT_EQ(row.text(8), u""_s);
            EXPECT_EQ(row.text(9), u"\uFEFFmarked\uFEFF"_s);
        });
    EXPECT_TRUE(run.has_value());
    EXPECT_EQ(rows, 1);
}

TEST_F(SnapshotQueryTest, staysUsableAfterAQueryThatFailed)
{
    write({u"value"_s});
    const auto snapshot = SQLiteSnapshot::copying(source, context());
    ASSERT_TRUE(snapshot.has_value());
    EXPECT_EQ(query(*snapshot, u"SELECT missing FROM t"_s),
              QStringList{u"Couldn't read query: no such column: missing"_s});
    EXPECT_EQ(query(*snapshot, u"SELECT abs(-9223372036854775808) FROM t"_s),
              QStringList{u"Couldn't read query: integer overflow"_s});
    EXPECT_EQ(query(*snapshot, u""_s).value(0).left(20), u"Couldn't read query:"_s);
    EXPECT_EQ(query(*snapshot, u"SELECT v FROM t"_s), QStringList{u"value"_s});
}

TEST_F(SnapshotQueryTest, runsNothingThatTheDatabaseBringsAlong)
{
    write({u"value"_s});
    sample::Database(source).execute("CREATE VIEW w AS SELECT v FROM t");
    EXPECT_EQ(read(u"SELECT v FROM w"_s),
              QStringList{u"Couldn't read query: access to view \"w\" prohibited"_s});
}

TEST_F(SnapshotQueryTest, aJournalCannotHaveAFileOfTheUsersDeleted)
{
    write({u"value"_s});
    const QString precious = home.path(u"precious.txt"_s);
    const QString otherJournal = home.path(u"other-journal"_s);
    sample::writeFile(otherJournal, "of another database");
    const QByteArray nobody = otherJournal.toUtf8() + '\0';
    const QByteArray thisOne = source.toUtf8() + "-journal" + '\0';
    for (const QByteArray &content : {QByteArray("my thesis\n"), QByteArray(), nobody, thisOne}) {
        change([&] {
            sample::writeFile(precious, content);
            sample::writeFile(source % u"-journal", journalThatNames(precious, source));
        });
        EXPECT_EQ(read(), QStringList{u"value"_s});
        expectNothingTouched();
    }
}

TEST_F(SnapshotQueryTest, aJournalThatNamesSomethingThatNeverEndsIsNoHang)
{
    write({u"value"_s});
    const QString pipe = home.path(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    sample::writeFile(source % u"-journal", journalThatNames(pipe, source));
    EXPECT_EQ(read(), QStringList{u"value"_s});
    EXPECT_TRUE(QFileInfo::exists(pipe));
}

TEST_F(SnapshotQueryTest, aRequestToStopEndsAStatementThatRuns)
{
    write({});
    std::stop_source stop;
    ReadContext reading = context();
    reading.stop = stop.get_token();
    const auto snapshot = SQLiteSnapshot::copying(source, reading);
    ASSERT_TRUE(snapshot.has_value());
    int rows = 0;
    const auto run = snapshot->query(
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000000) SELECT i FROM n"_s,
        {}, [&](const SQLiteSnapshot::Row &) {
            ++rows;
            stop.request_stop();
        });
    ASSERT_FALSE(run.has_value());
    EXPECT_EQ(run.error(), ReadError::unreadable(u"query"_s, u"interrupted"_s));
    EXPECT_LT(rows, 10'000);
}

TEST_F(SnapshotQueryTest, aStatementThatWouldNeverEndIsEnded)
{
    write({});
    EXPECT_EQ(
        read(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT count(*) FROM n"_s),
        QStringList{u"Couldn't read query: interrupted"_s});
}

} // namespace roamlet::testing
