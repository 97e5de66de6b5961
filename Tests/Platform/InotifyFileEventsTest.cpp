// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/InotifyFileEvents.h"

#include "Platform/WithoutPrivileges.h"
#include "SampleHome/PlainFiles.h"
#include "Support/FakeClock.h"
#include "Support/FolderFingerprint.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <gmock/gmock.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The kernel's own events with a clock that a test moves. A test never waits for a time: it changes a file
/// of its own, and once that is reported, so is everything that happened before.
class InotifyFileEventsTest : public ::testing::Test
{
protected:
    using Paths = std::vector<std::string>;

    InotifyFileEventsTest() { sample::makeFolder(path(u"mark"_s)); }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    void write(const QString &name, const QByteArray &content = "x") const
    {
        sample::writeFile(path(name), content);
    }
    void make(const QString &name) const { sample::makeFolder(path(name)); }
    void removeFile(const QString &name) const { ASSERT_TRUE(QFile::remove(path(name))) << qPrintable(name); }
    void removeFolder(const QString &name) const
    {
        ASSERT_TRUE(QDir(path(name)).removeRecursively()) << qPrintable(name);
    }
    void rename(const QString &from, const QString &to) const
    {
        ASSERT_EQ(
            ::rename(QFile::encodeName(path(from)).constData(), QFile::encodeName(path(to)).constData()), 0)
            << qPrintable(from);
    }
    void link(const QString &target, const QString &name) const
    {
        ASSERT_TRUE(QFile::link(path(target), path(name))) << qPrintable(name);
    }

    /// Watches these folders, named below the test's own.
    void watch(const QStringList &roots)
    {
        QStringList folders;
        for (const QString &root : roots)
            folders.append(path(root));
        folders.append(path(u"mark"_s));
        stream = events.open(folders, [this](const QStringList &paths) { reports.append(paths); });
        ASSERT_NE(stream, nullptr);
    }

    /// What was reported for everything that happened so far, named below the test's own folder, sorted.
    Paths changes()
    {
        const QString mark = u"mark/%1"_s.arg(++m_marks);
        write(mark, {});
        const auto isReported = [&] {
            clock.advance(InotifyFileEvents::latency);
            for (const QStringList &report : std::as_const(reports)) {
                if (report.contains(path(mark)))
                    return true;
            }
            return false;
        };
        EXPECT_TRUE(QTest::qWaitFor(isReported, patience)) << "events do not arrive";
        Paths result;
        for (const QStringList &report : std::as_const(reports)) {
            for (const QString &changed : report) {
                if (changed != path(mark))
                    result.push_back(QDir(m_folder.path()).relativeFilePath(changed).toStdString());
            }
        }
        reports.clear();
        std::ranges::sort(result);
        result.erase(std::ranges::unique(result).begin(), result.end());
        return result;
    }

    static constexpr int patience = 20'000;

    FakeClock clock;
    InotifyFileEvents events{clock};
    QList<QStringList> reports;
    std::unique_ptr<FileEvents::Stream> stream;

private:
    QTemporaryDir m_folder;
    int m_marks = 0;
};

TEST_F(InotifyFileEventsTest, whatWasThereBeforeIsNotReported)
{
    write(u"root/Local State"_s);
    write(u"root/Default/History"_s);
    watch({u"root"_s});
    EXPECT_EQ(changes(), Paths());
}

TEST_F(InotifyFileEventsTest, aChangedFileIsReported)
{
    write(u"root/Default/History"_s, "x");
    watch({u"root"_s});
    write(u"root/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
}

TEST_F(InotifyFileEventsTest, aFileThatStaysOpenIsReportedWhenItIsWrittenTo)
{
    write(u"root/Default/History-wal"_s);
    watch({u"root"_s});
    QFile file(path(u"root/Default/History-wal"_s));
    ASSERT_TRUE(file.open(QIODevice::Append | QIODevice::Unbuffered));
    EXPECT_EQ(changes(), Paths()) << "opening changes nothing";
    ASSERT_EQ(file.write("more"), 4);
    EXPECT_EQ(changes(), Paths{"root/Default/History-wal"}) << "browsers hold their logs open for days";
}

TEST_F(InotifyFileEventsTest, readingIsNoChange)
{
    write(u"root/Default/History"_s);
    watch({u"root"_s});
    QFile file(path(u"root/Default/History"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "x");
    file.close();
    EXPECT_EQ(changes(), Paths());
}

TEST_F(InotifyFileEventsTest, aNewFileIsReported)
{
    make(u"root/Default"_s);
    watch({u"root"_s});
    write(u"root/Default/Bookmarks"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/Bookmarks"});
}

TEST_F(InotifyFileEventsTest, aFileReplacedByRenamingIsReported)
{
    write(u"root/Default/Bookmarks"_s, "old");
    write(u"elsewhere/new"_s, "new");
    watch({u"root"_s});
    rename(u"elsewhere/new"_s, u"root/Default/Bookmarks"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/Bookmarks"}) << "only a moved-to event comes";
    write(u"root/Default/Bookmarks.tmp"_s, "newer");
    rename(u"root/Default/Bookmarks.tmp"_s, u"root/Default/Bookmarks"_s);
    EXPECT_THAT(changes(), ::testing::Contains("root/Default/Bookmarks"));
}

TEST_F(InotifyFileEventsTest, aRemovedFileIsReported)
{
    write(u"root/Default/Bookmarks"_s);
    write(u"root/Default/History"_s);
    make(u"elsewhere"_s);
    watch({u"root"_s});
    removeFile(u"root/Default/Bookmarks"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/Bookmarks"});
    rename(u"root/Default/History"_s, u"elsewhere/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
}

TEST_F(InotifyFileEventsTest, filesInTheFolderItselfAreReported)
{
    make(u"root"_s);
    watch({u"root"_s});
    write(u"root/History.db"_s);
    write(u"root/.hidden"_s);
    EXPECT_EQ(changes(), (Paths{"root/.hidden", "root/History.db"}));
}

TEST_F(InotifyFileEventsTest, namesAreReportedAsTheyAre)
{
    make(u"root/Profil Ü 日本"_s);
    watch({u"root"_s});
    write(u"root/Profil Ü 日本/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Profil Ü 日本/History"});
}

TEST_F(InotifyFileEventsTest, nothingIsReportedFromDeeperFolders)
{
    write(u"root/Default/Cache/data_0"_s);
    watch({u"root"_s});
    write(u"root/Default/Cache/data_0"_s, "y");
    write(u"root/Default/Cache/deeper/data_1"_s);
    write(u"root/Default/New Folder/History"_s);
    EXPECT_EQ(changes(), Paths());
    write(u"root/Default/Cache/data_0"_s, "z");
    EXPECT_EQ(changes(), Paths()) << "a new folder beside it does not bring it in";
}

TEST_F(InotifyFileEventsTest, nothingIsReportedFromBesideAndAbove)
{
    make(u"root/Default"_s);
    make(u"rooted"_s);
    watch({u"root"_s, u"missing/far/root"_s});
    write(u"file"_s);
    write(u"rooted/file"_s);
    write(u"missing/file"_s);
    write(u"missing/near/file"_s);
    write(u"missing/far/file"_s);
    EXPECT_EQ(changes(), Paths());
    write(u"missing/far/file"_s, "y");
    EXPECT_EQ(changes(), Paths());
}

TEST_F(InotifyFileEventsTest, severalRootsAreWatched)
{
    make(u"one/Default"_s);
    make(u"two/Default"_s);
    watch({u"one"_s, u"two"_s});
    write(u"one/Default/History"_s);
    write(u"two/Default/History"_s);
    EXPECT_EQ(changes(), (Paths{"one/Default/History", "two/Default/History"}));
}

TEST_F(InotifyFileEventsTest, aRootInsideAnotherReachesAsFarAsItself)
{
    write(u"root/Profiles/A/History.db"_s);
    watch({u"root"_s, u"root/Profiles"_s});
    write(u"root/History.db"_s);
    write(u"root/Profiles/file"_s);
    write(u"root/Profiles/A/History.db"_s, "y");
    write(u"root/Profiles/B/History.db"_s);
    write(u"root/Other/deeper/file"_s);
    EXPECT_EQ(changes(), (Paths{"root/History.db", "root/Profiles/A/History.db", "root/Profiles/B/History.db",
                                "root/Profiles/file"}));
}

TEST_F(InotifyFileEventsTest, aRootInsideAnotherMayAppearLater)
{
    make(u"root"_s);
    watch({u"root"_s, u"root/Profiles"_s});
    write(u"root/Profiles/A/History.db"_s);
    EXPECT_EQ(changes(), Paths{"root/Profiles/A/History.db"});
    write(u"root/Profiles/A/History.db"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Profiles/A/History.db"});
}

TEST_F(InotifyFileEventsTest, aRootThatAppearsLaterStepByStepIsPickedUp)
{
    watch({u"a/b/c/root"_s});
    for (const QString &folder : {u"a"_s, u"a/b"_s, u"a/b/c"_s, u"a/b/c/root"_s, u"a/b/c/root/Default"_s}) {
        make(folder);
        EXPECT_EQ(changes(), Paths()) << qPrintable(folder);
    }
    write(u"a/b/c/root/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"a/b/c/root/Default/History"});
    write(u"a/b/c/root/Local State"_s);
    EXPECT_EQ(changes(), Paths{"a/b/c/root/Local State"});
}

TEST_F(InotifyFileEventsTest, aRootThatAppearsAtOnceIsPickedUpWithItsFiles)
{
    watch({u"a/b/c/root"_s});
    write(u"a/b/c/root/Default/History"_s);
    write(u"a/b/c/root/Local State"_s);
    write(u"a/b/c/root/Default/Cache/data_0"_s);
    EXPECT_EQ(changes(), (Paths{"a/b/c/root/Default/History", "a/b/c/root/Local State"}));
    write(u"a/b/c/root/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"a/b/c/root/Default/History"});
}

TEST_F(InotifyFileEventsTest, aRootThatIsMovedIntoPlaceIsPickedUpWithItsFiles)
{
    write(u"backup/b/root/Default/History"_s);
    watch({u"a/b/root"_s});
    rename(u"backup"_s, u"a"_s);
    EXPECT_EQ(changes(), Paths{"a/b/root/Default/History"});
    write(u"a/b/root/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"a/b/root/Default/History"});
}

TEST_F(InotifyFileEventsTest, foldersOnTheWayMayComeAndGo)
{
    watch({u"a/b/root"_s});
    make(u"a/b"_s);
    EXPECT_EQ(changes(), Paths());
    removeFolder(u"a"_s);
    EXPECT_EQ(changes(), Paths());
    make(u"a"_s);
    EXPECT_EQ(changes(), Paths());
    rename(u"a"_s, u"away"_s);
    EXPECT_EQ(changes(), Paths());
    write(u"away/b/root/Default/History"_s);
    EXPECT_EQ(changes(), Paths()) << "the root does not lie there";
    write(u"a/b/root/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"a/b/root/Default/History"});
}

TEST_F(InotifyFileEventsTest, aRootInTheSameMissingPlaceAsAnotherIsPickedUpToo)
{
    watch({u"config/google-chrome"_s, u"config/microsoft-edge"_s, u"config/google-chrome/deeper/root"_s});
    write(u"config/microsoft-edge/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"config/microsoft-edge/Default/History"});
    write(u"config/google-chrome/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"config/google-chrome/Default/History"});
    write(u"config/google-chrome/deeper/root/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"config/google-chrome/deeper/root/Default/History"});
}

TEST_F(InotifyFileEventsTest, aProfileThatAppearsLaterIsPickedUpWithItsFiles)
{
    make(u"root"_s);
    watch({u"root"_s});
    make(u"root/Profile 1"_s);
    write(u"root/Profile 1/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Profile 1/History"});
    write(u"root/Profile 1/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Profile 1/History"});
}

TEST_F(InotifyFileEventsTest, aProfileThatIsMovedInIsPickedUpWithItsFiles)
{
    write(u"backup/History"_s);
    write(u"backup/.hidden"_s);
    make(u"root"_s);
    watch({u"root"_s});
    rename(u"backup"_s, u"root/Profile 1"_s);
    EXPECT_EQ(changes(), (Paths{"root/Profile 1/.hidden", "root/Profile 1/History"}));
    write(u"root/Profile 1/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Profile 1/History"});
}

TEST_F(InotifyFileEventsTest, aRenamedProfileIsReportedUnderItsNewName)
{
    write(u"root/Old/History"_s);
    watch({u"root"_s});
    rename(u"root/Old"_s, u"root/New"_s);
    EXPECT_THAT(changes(), ::testing::Contains("root/New/History"));
    write(u"root/New/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/New/History"});
    write(u"root/Old/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Old/History"}) << "a new one may take the old name";
    write(u"root/New/History"_s, "z");
    EXPECT_EQ(changes(), Paths{"root/New/History"});
}

TEST_F(InotifyFileEventsTest, twoProfilesMaySwapTheirNames)
{
    write(u"root/A/only in A"_s);
    write(u"root/B/only in B"_s);
    watch({u"root"_s});
    rename(u"root/A"_s, u"root/C"_s);
    rename(u"root/B"_s, u"root/A"_s);
    rename(u"root/C"_s, u"root/B"_s);
    changes();
    write(u"root/A/only in B"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/A/only in B"});
    write(u"root/B/only in A"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/B/only in A"});
}

TEST_F(InotifyFileEventsTest, aProfileThatWasMovedAwayIsNoLongerReported)
{
    write(u"root/Profile 1/History"_s);
    watch({u"root"_s});
    rename(u"root/Profile 1"_s, u"away"_s);
    changes();
    write(u"away/History"_s, "y");
    EXPECT_EQ(changes(), Paths());
}

TEST_F(InotifyFileEventsTest, aProfileThatWasRemovedMayComeBack)
{
    write(u"root/Profile 1/History"_s);
    watch({u"root"_s});
    removeFolder(u"root/Profile 1"_s);
    EXPECT_EQ(changes(), Paths{"root/Profile 1/History"});
    write(u"root/Profile 1/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Profile 1/History"});
    write(u"root/Profile 1/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Profile 1/History"});

    removeFolder(u"root/Profile 1"_s);
    write(u"root/Profile 1/Bookmarks"_s);
    EXPECT_EQ(changes(), (Paths{"root/Profile 1/Bookmarks", "root/Profile 1/History"}))
        << "also before anybody noticed";
    write(u"root/Profile 1/Bookmarks"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Profile 1/Bookmarks"});
}

TEST_F(InotifyFileEventsTest, aRootThatWasRemovedMayComeBack)
{
    write(u"a/root/Default/History"_s);
    watch({u"a/root"_s});
    removeFolder(u"a"_s);
    EXPECT_EQ(changes(), Paths{"a/root/Default/History"});
    write(u"a/root/Default/Bookmarks"_s);
    EXPECT_EQ(changes(), Paths{"a/root/Default/Bookmarks"});
    write(u"a/root/Default/Bookmarks"_s, "y");
    write(u"a/root/Profile 1/History"_s);
    EXPECT_EQ(changes(), (Paths{"a/root/Default/Bookmarks", "a/root/Profile 1/History"}));
}

TEST_F(InotifyFileEventsTest, aRootThatComesBackBeforeAnybodyNoticedIsPickedUpWithItsFiles)
{
    write(u"root/Default/History"_s);
    watch({u"root"_s});
    removeFolder(u"root"_s);
    write(u"root/Default/Bookmarks"_s);
    write(u"root/Profile 1/History"_s);
    write(u"root/Local State"_s);
    EXPECT_EQ(changes(), (Paths{"root/Default/Bookmarks", "root/Default/History", "root/Local State",
                                "root/Profile 1/History"}));
    write(u"root/Default/Bookmarks"_s, "y");
    write(u"root/Profile 1/History"_s, "y");
    write(u"root/Profile 2/History"_s);
    EXPECT_EQ(changes(),
              (Paths{"root/Default/Bookmarks", "root/Profile 1/History", "root/Profile 2/History"}));
}

TEST_F(InotifyFileEventsTest, aRootThatIsReplacedByRenamingIsPickedUpWithItsFiles)
{
    write(u"root/Default/History"_s);
    write(u"backup/Default/Bookmarks"_s);
    write(u"backup/Profile 1/History"_s);
    watch({u"root"_s});
    rename(u"root"_s, u"away"_s);
    rename(u"backup"_s, u"root"_s);
    EXPECT_EQ(changes(), (Paths{"root/Default/Bookmarks", "root/Profile 1/History"}));
    write(u"root/Default/Bookmarks"_s, "y");
    write(u"root/Profile 1/History"_s, "y");
    EXPECT_EQ(changes(), (Paths{"root/Default/Bookmarks", "root/Profile 1/History"}));
}

TEST_F(InotifyFileEventsTest, aRootThatWasMovedAwayMayComeBack)
{
    write(u"root/Default/History"_s);
    watch({u"root"_s});
    rename(u"root"_s, u"away"_s);
    changes();
    rename(u"away"_s, u"root"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
    write(u"root/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
}

TEST_F(InotifyFileEventsTest, linksToFoldersAreFollowed)
{
    write(u"data/Default/History"_s);
    write(u"profile/History"_s);
    link(u"data"_s, u"root"_s);
    link(u"profile"_s, u"data/Linked"_s);
    watch({u"root"_s});
    write(u"root/Default/History"_s, "y");
    write(u"root/Linked/History"_s, "y");
    EXPECT_EQ(changes(), (Paths{"root/Default/History", "root/Linked/History"}))
        << "under the names that were asked for";
}

TEST_F(InotifyFileEventsTest, linksToFoldersThatAppearLaterArePickedUp)
{
    write(u"data/Default/History"_s);
    write(u"profile/History"_s);
    watch({u"root"_s});
    link(u"data"_s, u"root"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
    link(u"profile"_s, u"root/Linked"_s);
    EXPECT_EQ(changes(), Paths{"root/Linked/History"});
    write(u"root/Linked/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Linked/History"});
}

TEST_F(InotifyFileEventsTest, aFolderWithTwoNamesIsReportedUnderBoth)
{
    write(u"one/Default/History"_s);
    link(u"one"_s, u"two"_s);
    watch({u"one"_s, u"two"_s});
    write(u"one/Default/History"_s, "y");
    EXPECT_EQ(changes(), (Paths{"one/Default/History", "two/Default/History"}));
}

TEST_F(InotifyFileEventsTest, aFolderOnOneWayMayBeARootUnderAnotherName)
{
    // "way" leads to the same folder as "root", of which every file counts.
    make(u"root/Default"_s);
    link(u"root"_s, u"way"_s);
    watch({u"root"_s, u"way/Default/deeper/missing"_s, u"way/gone/missing"_s});
    write(u"root/Local State"_s);
    write(u"root/Default/History"_s);
    removeFile(u"root/Local State"_s);
    EXPECT_EQ(changes(), (Paths{"root/Default/History", "root/Local State"}));
    removeFile(u"root/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
}

TEST_F(InotifyFileEventsTest, aFileInThePlaceOfARootIsNoRoot)
{
    write(u"root"_s);
    watch({u"root"_s});
    write(u"root"_s, "y");
    EXPECT_EQ(changes(), Paths());
    removeFile(u"root"_s);
    write(u"root/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
}

TEST_F(InotifyFileEventsTest, whatMayNotBeReadDisturbsNothingElse)
{
    write(u"open/Default/History"_s);
    write(u"open/Closed/History"_s);
    write(u"closed/Default/History"_s);
    const QByteArray all = QFile::encodeName(path({}));
    ASSERT_EQ(::chmod(all.constData(), 0755), 0);
    for (const QString &name : {u"open/Closed"_s, u"closed"_s})
        ASSERT_EQ(::chmod(QFile::encodeName(path(name)).constData(), 0), 0);
    {
        const WithoutPrivileges guard;
        watch({u"closed"_s, u"closed/deeper/root"_s, u"open"_s});
    }
    write(u"open/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"open/Default/History"});
    for (const QString &name : {u"open/Closed"_s, u"closed"_s})
        ASSERT_EQ(::chmod(QFile::encodeName(path(name)).constData(), 0700), 0);
}

TEST_F(InotifyFileEventsTest, manyChangesComeInOneReport)
{
    make(u"root/Default"_s);
    watch({u"root"_s});
    QStringList expected;
    for (int i = 0; i < 100; ++i) {
        const QString name = u"root/Default/%1"_s.arg(i);
        for (int round = 0; round < 3; ++round)
            write(name, QByteArray::number(round));
        expected.append(path(name));
    }
    expected.sort();
    ASSERT_TRUE(QTest::qWaitFor([this] { return clock.waiting() > 0; }, patience));
    EXPECT_EQ(clock.waiting(), 1U);
    clock.advance(InotifyFileEvents::latency - 1ms);
    EXPECT_TRUE(reports.isEmpty()) << "the time is not over";
    clock.advance(1ms);
    EXPECT_EQ(reports, QList<QStringList>{expected}) << "each file once, in order";
    EXPECT_EQ(clock.waiting(), 0U);
    clock.advance(1h);
    EXPECT_EQ(reports.size(), 1);
}

TEST_F(InotifyFileEventsTest, aSteadyStreamOfChangesDelaysNoReport)
{
    make(u"root/Default"_s);
    watch({u"root"_s});
    write(u"root/Default/1"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return clock.waiting() > 0; }, patience));
    clock.advance(InotifyFileEvents::latency / 2);
    write(u"root/Default/2"_s);
    QCoreApplication::processEvents();
    clock.advance(InotifyFileEvents::latency / 2);
    ASSERT_EQ(reports.size(), 1) << "two seconds after the first change, not after the last";
    EXPECT_EQ(changes(), (Paths{"root/Default/1", "root/Default/2"}));
}

TEST_F(InotifyFileEventsTest, laterChangesComeInALaterReport)
{
    make(u"root/Default"_s);
    watch({u"root"_s});
    write(u"root/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
    EXPECT_EQ(changes(), Paths()) << "a change is reported once";
    write(u"root/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
}

TEST_F(InotifyFileEventsTest, gatheringTakesTwoSeconds)
{
    EXPECT_EQ(InotifyFileEvents::latency, 2s);
}

TEST_F(InotifyFileEventsTest, whereEventsWereLostEverythingIsReportedOnce)
{
    write(u"root/Default/untouched"_s);
    write(u"root/untouched"_s);
    write(u"root/Default/Cache/untouched"_s);
    QFile limit(u"/proc/sys/fs/inotify/max_queued_events"_s);
    ASSERT_TRUE(limit.open(QIODevice::ReadOnly));
    const int queue = limit.readAll().trimmed().toInt();
    if (queue <= 0 || queue > 100'000)
        GTEST_SKIP() << "the system's queue is too long to overflow";
    watch({u"root"_s});
    // The kernel merges an event with an equal one right before it: take turns.
    QFile odd(path(u"root/Default/odd"_s));
    QFile even(path(u"root/Default/even"_s));
    for (QFile *file : {&odd, &even})
        ASSERT_TRUE(file->open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    for (int i = 0; i < queue; ++i)
        ASSERT_EQ((i % 2 == 0 ? even : odd).write("x"), 1);
    write(u"root/Profile 1/History"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return clock.waiting() > 0; }, patience));
    EXPECT_EQ(changes(), (Paths{"root/Default/even", "root/Default/odd", "root/Default/untouched",
                                "root/Profile 1/History", "root/untouched"}));
    write(u"root/Profile 1/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Profile 1/History"}) << "watching goes on";
}

TEST_F(InotifyFileEventsTest, aRootThatCameBackWhileEventsWereLostIsWatchedAgain)
{
    write(u"root/Default/History"_s);
    QFile limit(u"/proc/sys/fs/inotify/max_queued_events"_s);
    ASSERT_TRUE(limit.open(QIODevice::ReadOnly));
    const int queue = limit.readAll().trimmed().toInt();
    if (queue <= 0 || queue > 100'000)
        GTEST_SKIP() << "the system's queue is too long to overflow";
    watch({u"root"_s});
    QFile odd(path(u"root/Default/odd"_s));
    QFile even(path(u"root/Default/even"_s));
    for (QFile *file : {&odd, &even})
        ASSERT_TRUE(file->open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    for (int i = 0; i < queue + 10; ++i)
        ASSERT_EQ((i % 2 == 0 ? even : odd).write("x"), 1);
    removeFolder(u"root"_s);
    write(u"root/Default/Bookmarks"_s);
    write(u"root/Profile 1/History"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return clock.waiting() > 0; }, patience));
    const Paths reported = changes();
    EXPECT_THAT(reported, ::testing::Contains("root/Default/Bookmarks"));
    EXPECT_THAT(reported, ::testing::Contains("root/Profile 1/History"));
    write(u"root/Local State"_s);
    write(u"root/Default/Bookmarks"_s, "y");
    write(u"root/Profile 2/History"_s);
    EXPECT_EQ(changes(), (Paths{"root/Default/Bookmarks", "root/Local State", "root/Profile 2/History"}));
}

TEST_F(InotifyFileEventsTest, nothingIsReportedAfterTheStreamIsGone)
{
    make(u"root/Default"_s);
    watch({u"root"_s});
    write(u"root/Default/History"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return clock.waiting() > 0; }, patience));
    stream.reset();
    write(u"root/Default/History"_s, "y");
    QCoreApplication::processEvents();
    clock.advance(1h);
    EXPECT_TRUE(reports.isEmpty());
}

TEST_F(InotifyFileEventsTest, aStreamMayBeDroppedWhileItReports)
{
    make(u"root/Default"_s);
    int calls = 0;
    stream = events.open({path(u"root"_s)}, [this, &calls](const QStringList &) {
        ++calls;
        stream.reset();
    });
    write(u"root/Default/History"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return clock.waiting() > 0; }, patience));
    clock.advance(InotifyFileEvents::latency);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(stream, nullptr);
}

TEST_F(InotifyFileEventsTest, aDroppedStreamLeavesNoOpenFile)
{
    make(u"root/Default"_s);
    const auto openFiles = [] {
        return QDir(u"/proc/self/fd"_s).entryList(QDir::Files | QDir::System).size();
    };
    watch({u"root"_s});
    stream.reset();
    const qsizetype before = openFiles();
    for (int i = 0; i < 20; ++i) {
        watch({u"root"_s});
        stream.reset();
    }
    EXPECT_EQ(openFiles(), before);
}

TEST_F(InotifyFileEventsTest, streamsDoNotDisturbEachOther)
{
    make(u"root/Default"_s);
    watch({u"root"_s});
    int calls = 0;
    auto other = events.open({path(u"root"_s)}, [&calls](const QStringList &) { ++calls; });
    write(u"root/Default/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return clock.advance(InotifyFileEvents::latency), calls > 0; }, patience));
    other.reset();
    write(u"root/Default/History"_s, "y");
    EXPECT_EQ(changes(), Paths{"root/Default/History"});
}

TEST_F(InotifyFileEventsTest, watchingTouchesNothing)
{
    write(u"home/root/Default/History"_s);
    write(u"home/root/Local State"_s);
    const FolderFingerprint before(path(u"home"_s));
    watch({u"home/root"_s, u"home/missing/root"_s});
    EXPECT_EQ(changes(), Paths());
    stream.reset();
    EXPECT_EQ(before.differencesTo(FolderFingerprint(path(u"home"_s))), "");
}

TEST_F(InotifyFileEventsTest, watchingNothingReportsNothing)
{
    stream = events.open({}, [this](const QStringList &paths) { reports.append(paths); });
    EXPECT_NE(stream, nullptr);
    write(u"file"_s);
    QCoreApplication::processEvents();
    clock.advance(1h);
    EXPECT_TRUE(reports.isEmpty());
}

} // namespace roamlet::testing
