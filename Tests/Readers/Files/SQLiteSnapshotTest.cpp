// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/SQLiteSnapshot.h"

#include "Platform/FileSizeLimit.h"
#include "Platform/WithoutPrivileges.h"
#include "Readers/ReaderTest.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/SqliteFile.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <numeric>
#include <stop_token>
#include <thread>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

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
            values.append(row.text(0).value_or(u"NULL"_s));
        });
        if (!run)
            values = {run.error().errorDescription()};
        return values;
    }

    /// The first column of a query on a fresh copy, or the error.
    QStringList read(const QString &sql = u"SELECT v FROM t"_s)
    {
        const auto snapshot = SQLiteSnapshot::copying(source, context());
        return snapshot ? query(*snapshot, sql) : QStringList{snapshot.error().errorDescription()};
    }

    ReadError errorOfCopying()
    {
        const auto snapshot = SQLiteSnapshot::copying(source, context());
        return snapshot ? ReadError::unreadable(u"there"_s, u"is no error"_s) : snapshot.error();
    }

    QStringList foldersLeft() const
    {
        return QDir(home.temporary()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    const QString source = home.path(u"data/History"_s);
    /// Some tests read on several threads.
    std::atomic<int> copies = 0;
};

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

const QString sumAndCount = u"SELECT count(*) || ' ' || sum(v) FROM t"_s;

} // namespace

TEST_F(SQLiteSnapshotTest, copiesOnceWhatDoesNotChange)
{
    write({u"one"_s, u"two"_s});
    EXPECT_EQ(read(), (QStringList{u"one"_s, u"two"_s}));
    EXPECT_EQ(copies, 1);
}

TEST_F(SQLiteSnapshotTest, copiesIntoAFolderNamedByTheProcessAndARandomIdentifier)
{
    write({});
    const auto snapshot = SQLiteSnapshot::copying(source, context());
    ASSERT_TRUE(snapshot.has_value());
    const QFileInfo folder(snapshot->folder());
    EXPECT_EQ(folder.path(), home.temporary());
    const QRegularExpression form(u"^Roamlet-%1-[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$"_s.arg(getpid()));
    EXPECT_TRUE(form.match(folder.fileName()).hasMatch()) << folder.fileName().toStdString();
    EXPECT_TRUE(QFile::exists(snapshot->folder() % u"/History"));
}

TEST_F(SQLiteSnapshotTest, keepsTheCopyFromOtherUsers)
{
    write({u"secret"_s});
    for (const QString &suffix : {u"-wal"_s, u"-shm"_s, u"-journal"_s})
        sample::writeFile(source + suffix, "not a log");
    for (const QString &file : {u""_s, u"-wal"_s, u"-shm"_s, u"-journal"_s})
        ::chmod(QFile::encodeName(source + file).constData(), 0666);
    QStringList seen;
    home.files.afterCopy = [&](const QString &copied) {
        const QString folder = home.temporary() % u'/' % home.leftovers().value(0);
        struct stat status = {};
        ASSERT_EQ(::stat(QFile::encodeName(folder).constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, 0700U);
        const QString copy = folder % u'/' % QFileInfo(copied).fileName();
        ASSERT_EQ(::stat(QFile::encodeName(copy).constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, 0600U);
        seen.append(QFileInfo(copied).fileName());
    };
    const mode_t oldMask = ::umask(0);
    EXPECT_EQ(read(), QStringList{u"secret"_s});
    ::umask(oldMask);
    EXPECT_EQ(seen, (QStringList{u"History"_s, u"History-wal"_s, u"History-shm"_s, u"History-journal"_s}));
}

TEST_F(SQLiteSnapshotTest, readsWhatStandsOnlyInTheWriteAheadLog)
{
    writeThousand(sample::Journal::UnmergedWal);
    ASSERT_GT(QFileInfo(source % u"-wal").size(), 0);
    EXPECT_EQ(read(sumAndCount), QStringList{u"1000 499500"_s});
    // The log made the difference.
    refuse(source % u"-wal", std::errc::no_such_file_or_directory);
    EXPECT_EQ(read(sumAndCount), QStringList{u"500 124750"_s});
}

TEST_F(SQLiteSnapshotTest, rollsAnUnfinishedChangeBackInTheCopy)
{
    writeThousand(sample::Journal::HotJournal);
    EXPECT_EQ(read(sumAndCount), QStringList{u"1000 499500"_s});
    refuse(source % u"-journal", std::errc::no_such_file_or_directory);
    EXPECT_NE(read(sumAndCount), QStringList{u"1000 499500"_s});
}

TEST_F(SQLiteSnapshotTest, copiesAgainWhenTheDatabaseChangedMeanwhile)
{
    write({u"old"_s});
    home.files.afterCopy = [this](const QString &copied) {
        if (copied == source && ++copies == 1)
            change([this] { write({u"new"_s, u"newer"_s}); });
    };
    EXPECT_EQ(read(), (QStringList{u"new"_s, u"newer"_s}));
    EXPECT_EQ(copies, 2);
}

TEST_F(SQLiteSnapshotTest, aNewTimeAloneIsAChange)
{
    write({u"value"_s});
    home.files.afterCopy = [this](const QString &copied) {
        if (copied != source || ++copies > 1)
            return;
        change([this] {
            // One nanosecond later.
            struct stat status = {};
            ::stat(QFile::encodeName(source).constData(), &status);
            std::array<timespec, 2> times{status.st_atim, status.st_mtim};
            times[1].tv_nsec = (times[1].tv_nsec + 1) % 1'000'000'000;
            ::utimensat(AT_FDCWD, QFile::encodeName(source).constData(), times.data(), 0);
        });
    };
    EXPECT_EQ(read(), QStringList{u"value"_s});
    EXPECT_EQ(copies, 2);
}

TEST_F(SQLiteSnapshotTest, aLogThatAppearsOrGrowsIsAChange)
{
    for (const QString &suffix : {u"-wal"_s, u"-journal"_s}) {
        change([this] { write({u"value"_s}); });
        copies = 0;
        home.files.afterCopy = [this, suffix](const QString &copied) {
            if (copied == source && ++copies < 3)
                change([this, suffix] { sample::writeFile(source + suffix, QByteArray(copies, 'x')); });
        };
        EXPECT_EQ(read(), QStringList{u"value"_s});
        EXPECT_EQ(copies, 3) << suffix.toStdString();
        change([this, suffix] { QFile::remove(source + suffix); });
    }
}

TEST_F(SQLiteSnapshotTest, theSharedMemoryFileIsNoPartOfTheStamp)
{
    write({u"value"_s});
    home.files.afterCopy = [this](const QString &copied) {
        if (copied == source && ++copies == 1)
            change([this] { sample::writeFile(source % u"-shm", "index"); });
    };
    EXPECT_EQ(read(), QStringList{u"value"_s});
    EXPECT_EQ(copies, 1);
}

TEST_F(SQLiteSnapshotTest, usesTheThirdCopyOfADatabaseThatNeverRests)
{
    write({u"version 1"_s});
    home.files.afterCopy = [this](const QString &copied) {
        if (copied == source) {
            ++copies;
            change([this] { write({u"version %1"_s.arg(copies + 1), u"padding"_s.repeated(copies)}); });
        }
    };
    EXPECT_EQ(read(u"SELECT v FROM t LIMIT 1"_s), QStringList{u"version 3"_s});
    EXPECT_EQ(copies, 3);
}

TEST_F(SQLiteSnapshotTest, everyCopyStartsInAnEmptyFolder)
{
    write({u"value"_s});
    sample::writeFile(source % u"-journal", "soon gone");
    QStringList filesOfSecondCopy;
    home.files.afterCopy = [&](const QString &copied) {
        if (copied == source % u"-journal")
            change([this] { QFile::remove(source % u"-journal"); });
        if (copied == source && ++copies == 2) {
            const QDir folder(home.temporary() % u'/' % home.leftovers().value(0));
            filesOfSecondCopy = folder.entryList(QDir::Files | QDir::Hidden);
        }
    };
    EXPECT_EQ(read(), QStringList{u"value"_s});
    EXPECT_EQ(copies, 2);
    EXPECT_EQ(filesOfSecondCopy, QStringList{u"History"_s});
}

TEST_F(SQLiteSnapshotTest, whatIsNoDatabaseFailsAtTheFirstQuery)
{
    sample::writeFile(source,
                      QByteArray("this is no database, but long enough for its header ").repeated(20));
    const auto snapshot = SQLiteSnapshot::copying(source, context());
    ASSERT_TRUE(snapshot.has_value());
    const auto run = snapshot->query(u"SELECT v FROM t"_s, {}, [](const auto &) {});
    ASSERT_FALSE(run.has_value());
    EXPECT_EQ(run.error(), ReadError::unreadable(u"query"_s, u"file is not a database"_s));
}

TEST_F(SQLiteSnapshotTest, anEmptyFileIsADatabaseWithoutTables)
{
    sample::writeFile(source, {});
    EXPECT_EQ(read(), QStringList{u"Couldn't read query: no such table: t"_s});
}

TEST_F(SQLiteSnapshotTest, aMissingSourceIsTheCopysError)
{
    EXPECT_EQ(errorOfCopying(), ReadError::unreadable(source, u"No such file or directory"_s));
}

TEST_F(SQLiteSnapshotTest, aRefusalIsNoAccessAndEverythingElseUnreadable)
{
    write({});
    for (const std::errc refusal : {std::errc::permission_denied, std::errc::operation_not_permitted}) {
        refuse(source, refusal);
        EXPECT_EQ(errorOfCopying(), ReadError::noAccess(source));
    }
    refuse(source, std::errc::no_space_on_device);
    EXPECT_EQ(errorOfCopying(), ReadError::unreadable(source, u"No space left on device"_s));
    refuse(source, std::errc::io_error);
    EXPECT_EQ(errorOfCopying(), ReadError::unreadable(source, u"Input/output error"_s));
    EXPECT_EQ(foldersLeft(), QStringList());
}

TEST_F(SQLiteSnapshotTest, makesAMissingTemporaryFolder)
{
    write({u"value"_s});
    ReadContext reading = context();
    reading.folders.temporary = home.temporary() % u"/not/yet/there";
    const auto snapshot = SQLiteSnapshot::copying(source, reading);
    ASSERT_TRUE(snapshot.has_value());
    EXPECT_EQ(query(*snapshot, u"SELECT v FROM t"_s), QStringList{u"value"_s});
}

TEST_F(SQLiteSnapshotTest, aTemporaryFolderThatCannotBeMadeIsUnreadableAndNamed)
{
    write({});
    const QString file = home.temporary() % u"/file";
    sample::writeFile(file, "in the way");
    ReadContext reading = context();
    for (const QString &temporary : {file, QString(file % u"/below")}) {
        reading.folders.temporary = temporary;
        const auto snapshot = SQLiteSnapshot::copying(source, reading);
        ASSERT_FALSE(snapshot.has_value());
        EXPECT_EQ(snapshot.error(), ReadError::unreadable(source, u"cannot make a copy in "_s % temporary %
                                                                      u": Not a directory"));
    }
}

TEST_F(SQLiteSnapshotTest, aTemporaryFolderThatRefusesIsNoRefusalOfTheBrowsersFile)
{
    write({});
    const auto setMode = [](const QString &path, mode_t mode) {
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
    };
    for (const QString &path : {QFileInfo(home.path()).path(), home.path(), QFileInfo(source).path()})
        setMode(path, 0755);
    setMode(source, 0644);
    setMode(home.temporary(), 0555);
    {
        const WithoutPrivileges guard;
        if (guard.arePermissionsChecked()) {
            EXPECT_EQ(errorOfCopying(),
                      ReadError::unreadable(source, u"cannot make a copy in "_s % home.temporary() %
                                                        u": Permission denied"));
        }
    }
    setMode(home.temporary(), 0755);
}

TEST_F(SQLiteSnapshotTest, aCopyThatFindsNoRoomIsUnreadableAndNamesTheTemporaryFolder)
{
    const ReadError noRoom =
        ReadError::unreadable(source, u"cannot make a copy in "_s % home.temporary() % u": File too large");
    sample::writeFile(source, QByteArray(300'000, 'x'));
    {
        const FileSizeLimit limit(100'000);
        EXPECT_EQ(errorOfCopying(), noRoom);
    }
    EXPECT_EQ(foldersLeft(), QStringList());

    for (const QString &suffix : {u"-wal"_s, u"-shm"_s, u"-journal"_s}) {
        change([&] {
            write({u"an older value"_s});
            sample::writeFile(source % suffix, QByteArray(300'000, 'x'));
        });
        const FileSizeLimit limit(100'000);
        EXPECT_EQ(errorOfCopying(), noRoom)
            << "without its log it would be older than the database: " << suffix.toStdString();
        change([&] { QFile::remove(source % suffix); });
    }
    EXPECT_EQ(foldersLeft(), QStringList());
}

TEST_F(SQLiteSnapshotTest, bindsParametersAsTextInTheirOrder)
{
    write({});
    const auto snapshot = SQLiteSnapshot::copying(source, context());
    ASSERT_TRUE(snapshot.has_value());
    EXPECT_EQ(query(*snapshot, u"SELECT ? || ',' || ? || typeof(?)"_s, {u"1"_s, u"Zoë"_s, u"3"_s}),
              QStringList{u"1,Zoëtext"_s});
}

TEST_F(SQLiteSnapshotTest, rowsGiveEveryKindOfValue)
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

TEST_F(SQLiteSnapshotTest, staysUsableAfterAQueryThatFailed)
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

TEST_F(SQLiteSnapshotTest, isGoneWhenItIsReleased)
{
    write({});
    QString folder;
    {
        auto snapshot = SQLiteSnapshot::copying(source, context());
        ASSERT_TRUE(snapshot.has_value());
        folder = snapshot->folder();
        const SQLiteSnapshot moved = std::move(*snapshot);
        EXPECT_TRUE(QFile::exists(folder));
        EXPECT_EQ(query(moved, u"SELECT count(*) FROM t"_s), QStringList{u"0"_s});
    }
    EXPECT_FALSE(QFile::exists(folder));
    EXPECT_EQ(foldersLeft(), QStringList());
}

TEST_F(SQLiteSnapshotTest, aFolderCanHaveAnyName)
{
    const QString odd = home.path(u"data/Profile %20 ?mode=ro#'\"&ü/History"_s);
    sample::makeFolderOf(odd);
    sample::Database(odd).execute("CREATE TABLE t(v); INSERT INTO t VALUES('value')");
    ReadContext reading = context();
    reading.folders.temporary = home.temporary() % u"/%2F?a#b ü";
    const auto snapshot = SQLiteSnapshot::copying(odd, reading);
    ASSERT_TRUE(snapshot.has_value()) << snapshot.error();
    EXPECT_EQ(query(*snapshot, u"SELECT v FROM t"_s), QStringList{u"value"_s});
}

TEST_F(SQLiteSnapshotTest, readsWhileAnotherProcessHoldsTheDatabaseLocked)
{
    write({u"value"_s});
    std::array<int, 2> locked{};
    std::array<int, 2> finished{};
    ASSERT_EQ(::pipe(locked.data()), 0);
    ASSERT_EQ(::pipe(finished.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        ::close(finished[1]);
        sample::Database database(source);
        database.execute("PRAGMA journal_mode = DELETE; PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE");
        char byte = 'x';
        bool isFine = ::write(locked[1], &byte, 1) == 1;
        isFine = ::read(finished[0], &byte, 1) == 0 && isFine;
        database.execute("ROLLBACK");
        _exit(isFine ? 0 : 1);
    }
    ::close(finished[0]);
    char byte = 0;
    ASSERT_EQ(::read(locked[0], &byte, 1), 1);
    // The lock is real: whoever opens the file itself has to wait.
    EXPECT_THROW(sample::Database(source).execute("SELECT v FROM t"), sample::Failure);
    EXPECT_EQ(read(), QStringList{u"value"_s});
    ::close(finished[1]);
    ::close(locked[0]);
    ::close(locked[1]);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

TEST_F(SQLiteSnapshotTest, twoReadsOfOneDatabaseDoNotMeet)
{
    writeThousand(sample::Journal::UnmergedWal);
    const ReadContext reading = context();
    std::array<QStringList, 4> results;
    std::array<QString, 4> folders;
    {
        std::vector<std::jthread> threads;
        threads.reserve(results.size());
        for (size_t i = 0; i < results.size(); ++i) {
            threads.emplace_back([&, i] {
                const auto snapshot = SQLiteSnapshot::copying(source, reading);
                if (!snapshot)
                    return;
                folders[i] = snapshot->folder();
                results[i] = query(*snapshot, sumAndCount);
            });
        }
    }
    for (const QStringList &result : results)
        EXPECT_EQ(result, QStringList{u"1000 499500"_s});
    EXPECT_EQ(QSet<QString>(folders.begin(), folders.end()).size(), 4);
}

TEST_F(SQLiteSnapshotTest, runsNothingThatTheDatabaseBringsAlong)
{
    write({u"value"_s});
    sample::Database(source).execute("CREATE VIEW w AS SELECT v FROM t");
    EXPECT_EQ(read(u"SELECT v FROM w"_s),
              QStringList{u"Couldn't read query: access to view \"w\" prohibited"_s});
}

TEST_F(SQLiteSnapshotTest, aJournalCannotHaveAFileOfTheUsersDeleted)
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

TEST_F(SQLiteSnapshotTest, aJournalThatNamesSomethingThatNeverEndsIsNoHang)
{
    write({u"value"_s});
    const QString pipe = home.path(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    sample::writeFile(source % u"-journal", journalThatNames(pipe, source));
    EXPECT_EQ(read(), QStringList{u"value"_s});
    EXPECT_TRUE(QFileInfo::exists(pipe));
}

TEST_F(SQLiteSnapshotTest, aLongLogIsNotMergedIntoACopyThatIsThrownAway)
{
    writeThousand(sample::Journal::UnmergedWal);
    auto snapshot = SQLiteSnapshot::copying(source, context());
    ASSERT_TRUE(snapshot.has_value());
    EXPECT_EQ(query(*snapshot, sumAndCount), QStringList{u"1000 499500"_s});
    // Through a descriptor the copy can be seen when its folder is gone.
    const QString copy = snapshot->folder() % u"/History";
    const int descriptor = ::open(QFile::encodeName(copy).constData(), O_RDONLY | O_CLOEXEC);
    struct stat before = {};
    ASSERT_EQ(::fstat(descriptor, &before), 0);
    {
        const auto released = std::move(*snapshot);
    }
    struct stat after = {};
    ASSERT_EQ(::fstat(descriptor, &after), 0);
    EXPECT_EQ(after.st_mtim.tv_sec, before.st_mtim.tv_sec);
    EXPECT_EQ(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
    ::close(descriptor);
}

TEST_F(SQLiteSnapshotTest, aRequestToStopBeforeTheCopyEndsTheRead)
{
    write({});
    std::stop_source stop;
    stop.request_stop();
    ReadContext reading = context();
    reading.stop = stop.get_token();
    EXPECT_FALSE(SQLiteSnapshot::copying(source, reading).has_value());
    EXPECT_EQ(foldersLeft(), QStringList());
}

TEST_F(SQLiteSnapshotTest, aRequestToStopBetweenTheFilesNeverYieldsADatabaseWithoutItsLog)
{
    writeThousand(sample::Journal::UnmergedWal);
    std::stop_source stop;
    home.files.afterCopy = [&](const QString &copied) {
        if (copied == source)
            stop.request_stop();
    };
    ReadContext reading = context();
    reading.stop = stop.get_token();
    const auto snapshot = SQLiteSnapshot::copying(source, reading);
    const QStringList rows = snapshot ? query(*snapshot, sumAndCount) : QStringList{};
    EXPECT_NE(rows, QStringList{u"500 124750"_s});
    EXPECT_FALSE(snapshot.has_value());
}

TEST_F(SQLiteSnapshotTest, aRequestToStopEndsAStatementThatRuns)
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

TEST_F(SQLiteSnapshotTest, aStatementThatWouldNeverEndIsEnded)
{
    write({});
    EXPECT_EQ(
        read(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT count(*) FROM n"_s),
        QStringList{u"Couldn't read query: interrupted"_s});
}

} // namespace roamlet::testing
