// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/SQLiteSnapshotTest.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include <array>
#include <functional>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

/// A database whose rows all have the same number at every moment, and that is written to between the copies
/// of its files.
class RestlessDatabaseTest : public SQLiteSnapshotTest
{
protected:
    ~RestlessDatabaseTest() override { sqlite3_close(database); }

    /// Writes the database and keeps it open. A page for each row.
    void open(const QByteArray &pragmas)
    {
        sample::makeFolderOf(source);
        EXPECT_EQ(sqlite3_open(QFile::encodeName(source).constData(), &database), SQLITE_OK);
        execute("PRAGMA page_size = 4096; PRAGMA synchronous = OFF;" + pragmas +
                "CREATE TABLE t(n, padding);"
                "WITH RECURSIVE c(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM c WHERE i < 60) "
                "INSERT INTO t SELECT 1, zeroblob(3100) FROM c");
    }

    void execute(const QByteArray &sql) const
    {
        EXPECT_EQ(sqlite3_exec(database, sql.constData(), nullptr, nullptr, nullptr), SQLITE_OK)
            << sql.toStdString() << ": " << sqlite3_errmsg(database);
    }

    QByteArray journal() const { return home.files.read(source % u"-journal").value_or(QByteArray()); }

    void commit() const { execute("UPDATE t SET n = n + 1"); }

    /// Writes to the database without leaving a trace in the time of its file, as whoever writes twice within
    /// a tick of the file system's clock.
    void withinATick(const std::function<void()> &write) const
    {
        struct stat status = {};
        ASSERT_EQ(::stat(QFile::encodeName(source).constData(), &status), 0);
        write();
        const std::array<timespec, 2> times{status.st_atim, status.st_mtim};
        ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(source).constData(), times.data(), 0), 0);
    }

    /// Lets somebody commit in the first two copies, and calls `write` when a file of the third one, or of
    /// one after it, was copied.
    void
    inTheLastCopies(const std::function<void(int copy, const QString &copied, const QString &target)> &write)
    {
        home.files.betweenFiles = [this, write](const QString &copied, const QString &target) {
            if (copied == source)
                ++begun;
            if (begun >= 3)
                change([&] { write(begun - 2, copied, target); });
            else if (copied == source)
                change([this] { commit(); });
        };
    }

    const QString numbers = u"SELECT count(*) || ' from ' || min(n) || ' to ' || max(n) FROM t"_s;
    sqlite3 *database = nullptr;
    int begun = 0;
};

TEST_F(RestlessDatabaseTest, aFileOfOneMomentIsNotRolledBackToAnother)
{
    change([this] { open("PRAGMA locking_mode = EXCLUSIVE; PRAGMA cache_size = 1;"); });
    inTheLastCopies([this](int copy, const QString &copied, const QString &) {
        // Who keeps the file locked does not count commits; what is within a change does not fit into memory.
        if (copy == 1 && copied == source)
            withinATick([this] {
                commit();
                execute("BEGIN; UPDATE t SET n = n + 1 WHERE rowid <= 30");
            });
    });
    EXPECT_EQ(read(numbers), QStringList{u"60 from 4 to 4"_s});
    EXPECT_EQ(begun, 4) << "the third one is made again";
}

TEST_F(RestlessDatabaseTest, aJournalThatIsOverwrittenWhileItIsCopiedIsCopiedAgain)
{
    change([this] { open("PRAGMA journal_mode = PERSIST;"); });
    QByteArray earlier;
    inTheLastCopies([&](int copy, const QString &copied, const QString &target) {
        if (copy != 1)
            return;
        if (copied == source) {
            earlier = journal();
            execute("BEGIN; UPDATE t SET n = n + 1");
            return;
        }
        if (copied != source % u"-journal")
            return;
        // The beginning was read before the change began to write there, and the end of each page after
        // that. A checksum that knows every 200th byte does not tell.
        constexpr qsizetype sector = 512;
        constexpr qsizetype page = 4096;
        constexpr qsizetype number = 4;
        QByteArray torn = journal();
        for (qsizetype i = 0; i < 30; ++i) {
            const qsizetype place = sector + i * (number + page + number) + number;
            ASSERT_EQ(torn.sliced(place - number, number), earlier.sliced(place - number, number));
            torn.replace(place, page, earlier.sliced(place, page));
        }
        sample::writeFile(target, torn);
    });
    EXPECT_EQ(read(numbers), QStringList{u"60 from 3 to 3"_s});
    EXPECT_EQ(begun, 4) << "the third one is made again";
}

TEST_F(RestlessDatabaseTest, aChangeThatStandsStillIsCopiedWithItsJournal)
{
    change([this] { open("PRAGMA journal_mode = PERSIST; PRAGMA cache_size = 1;"); });
    home.files.betweenFiles = [this](const QString &copied, const QString &) {
        if (copied != source || ++begun > 2)
            return;
        change([this] {
            if (begun == 2)
                execute("BEGIN");
            commit();
        });
    };
    EXPECT_EQ(read(numbers), QStringList{u"60 from 2 to 2"_s});
    EXPECT_EQ(begun, 3);
}

TEST_F(RestlessDatabaseTest, whatNeverRestsIsUsedAsItIsInTheEnd)
{
    change([this] { open("PRAGMA journal_mode = TRUNCATE; PRAGMA locking_mode = EXCLUSIVE;"); });
    inTheLastCopies([this](int, const QString &copied, const QString &) {
        if (copied == source)
            commit();
    });
    const QStringList numbersInTheEnd = read(numbers);
    EXPECT_EQ(numbersInTheEnd, QStringList{u"60 from %1 to %1"_s.arg(begun)});
    EXPECT_GE(begun, 7) << "several were made";
}

} // namespace roamlet::testing
