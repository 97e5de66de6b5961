// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/InotifyFileEventsTest.h"

#include "Platform/WithoutPrivileges.h"
#include "Support/FolderFingerprint.h"

#include <QCoreApplication>

#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

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
    const QString marked = QChar(QChar::ByteOrderMark) + u"Marked"_s;
    make(u"root/Profil Ü 日本"_s);
    watch({u"root"_s});
    write(u"root/Profil Ü 日本/History"_s);
    EXPECT_EQ(changes(), Paths{"root/Profil Ü 日本/History"});
    make(u"root/" % marked);
    EXPECT_EQ(changes(), Paths());
    write(u"root/" % marked % u'/' % marked);
    EXPECT_EQ(changes(), Paths{(u"root/" % marked % u'/' % marked).toUtf8().toStdString()});
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

TEST_F(InotifyFileEventsTest, whereNoFolderCanBeWatchedThereIsNoStream)
{
    make(u"open"_s);
    make(u"closed"_s);
    ASSERT_EQ(::chmod(QFile::encodeName(path({})).constData(), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(path(u"closed"_s)).constData(), 0), 0);
    {
        const WithoutPrivileges guard;
        if (guard.arePermissionsChecked()) {
            const auto open = [this](const QStringList &roots) {
                return events.open(roots, [](const QStringList &) {}) != nullptr;
            };
            EXPECT_FALSE(open({path(u"closed"_s)}));
            EXPECT_FALSE(open({path(u"closed"_s), path(u"closed/deeper"_s)}));
            EXPECT_TRUE(open({path(u"closed"_s), path(u"open"_s)}));
            EXPECT_TRUE(open({path(u"closed"_s), path(u"open/missing/root"_s)})) << "it may appear";
        }
    }
    ASSERT_EQ(::chmod(QFile::encodeName(path(u"closed"_s)).constData(), 0700), 0);
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
