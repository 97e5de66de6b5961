// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/SQLiteSnapshotTest.h"

#include "Platform/FileSizeLimit.h"
#include "Platform/WithoutPrivileges.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stop_token>
#include <thread>
#include <vector>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

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

TEST_F(SQLiteSnapshotTest, aLargeFileThatIsNoDatabaseIsNotCopied)
{
    change([this] {
        sample::writeFile(source, QByteArray(1000, 'x'));
        ASSERT_TRUE(QFile::resize(source, qint64{10} << 30U));
    });
    EXPECT_EQ(errorOfCopying(), ReadError::unreadable(source, u"file is not a database"_s));
    EXPECT_EQ(copies, 0);
    EXPECT_EQ(foldersLeft(), QStringList());
    // What SQLite says of little ones costs nothing.
    change([this] { sample::writeFile(source, QByteArray(1000, 'x')); });
    EXPECT_EQ(read(), QStringList{u"Couldn't read query: file is not a database"_s});
    EXPECT_EQ(copies, 1);
}

TEST_F(SQLiteSnapshotTest, aLargeFileThatAJournalMayMakeWholeIsLeftToSQLite)
{
    change([this] {
        sample::writeFile(source, QByteArray(2 << 20, 'x'));
        sample::writeFile(source % u"-journal", "x");
    });
    EXPECT_EQ(read(), QStringList{u"Couldn't read query: file is not a database"_s});
    EXPECT_EQ(copies, 1);
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

} // namespace roamlet::testing
