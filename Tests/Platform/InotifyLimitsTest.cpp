// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/InotifyFileEventsTest.h"

#include <linux/magic.h>
#include <sys/resource.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// The kernel, of which a test takes away some of its watches.
class InotifyLimitsTest : public InotifyFileEventsTest
{
protected:
    std::unique_ptr<FileEvents::Stream> open(const QStringList &roots)
    {
        QStringList folders;
        for (const QString &root : roots)
            folders.append(path(root));
        return limited.open(folders, [this](const QStringList &paths) { reports.append(paths); });
    }

    InotifyFileEvents::Calls calls() const
    {
        InotifyFileEvents::Calls result = InotifyFileEvents::Calls::ofKernel();
        result.init = [this, init = result.init](int flags) {
            errno = initError;
            return initError != 0 ? -1 : init(flags);
        };
        result.addWatch = [this, add = result.addWatch](int descriptor, const char *folder,
                                                        std::uint32_t mask) {
            asked.append(QString::fromUtf8(folder));
            errno = watchError;
            return watchError != 0 && QString::fromUtf8(folder).startsWith(path(failing))
                       ? -1
                       : add(descriptor, folder, mask);
        };
        result.fileSystem = [this, kind = result.fileSystem](const char *folder) {
            return QString::fromUtf8(folder) == path(elsewhere) ? fileSystem : kind(folder);
        };
        return result;
    }

    /// The folders that were to be watched, as often as they were.
    mutable QStringList asked;
    int initError = 0;
    int watchError = 0;
    /// Below which no folder can be watched.
    QString failing;
    /// Which lies on a file system of this kind.
    QString elsewhere = u"nowhere"_s;
    std::uint32_t fileSystem = 0;
    InotifyFileEvents limited{clock, calls()};
};

} // namespace

TEST_F(InotifyLimitsTest, enoughWatchesOnALocalDiskLeaveNothingUntold)
{
    write(u"root/Default/History"_s);
    const auto whole = open({u"root"_s, u"missing"_s});
    ASSERT_NE(whole, nullptr);
    EXPECT_FALSE(whole->isLimitReached());
    EXPECT_EQ(whole->silentFolders(), QStringList());
}

TEST_F(InotifyLimitsTest, whatLiesOnTheWayToManyFoldersIsAskedForOnce)
{
    write(u"home/one/Default/History"_s);
    write(u"home/two/Default/History"_s);
    const auto every = open({u"home/one"_s, u"home/two"_s, u"home/none/of/these"_s, u"home/none/either"_s});
    ASSERT_NE(every, nullptr);
    EXPECT_THAT(asked, ::testing::IsSupersetOf({path(u"home"_s), path(u"home/one/Default"_s)}));
    EXPECT_EQ(asked.removeDuplicates(), 0) << "what is not there holds nothing either";
    EXPECT_THAT(asked, ::testing::Not(::testing::Contains(path(u"home/none/of"_s))));
}

TEST_F(InotifyLimitsTest, aSystemWithoutAnotherStreamSaysSo)
{
    for (const int error : {EMFILE, ENFILE, ENOMEM}) {
        initError = error;
        const auto silent = open({u"root"_s, u"other"_s});
        ASSERT_NE(silent, nullptr) << error;
        EXPECT_TRUE(silent->isLimitReached());
        EXPECT_EQ(silent->silentFolders(), (QStringList{path(u"root"_s), path(u"other"_s)}));
    }
    initError = ENOSYS;
    EXPECT_EQ(open({u"root"_s}), nullptr) << "this system has no such streams at all";
}

TEST_F(InotifyLimitsTest, aSystemWithoutAnyWatchLeftSaysSo)
{
    make(u"root"_s);
    failing = u""_s;
    watchError = ENOSPC;
    const auto silent = open({u"root"_s});
    ASSERT_NE(silent, nullptr);
    EXPECT_TRUE(silent->isLimitReached());
    EXPECT_EQ(silent->silentFolders(), QStringList{path(u"root"_s)});
}

TEST_F(InotifyLimitsTest, watchesThatRunOutOnTheWayLeaveEveryFolderToBeLookedAt)
{
    make(u"root/Default"_s);
    make(u"other/Default"_s);
    failing = u"other/Default"_s;
    watchError = ENOMEM;
    const auto part = open({u"root"_s, u"other"_s});
    ASSERT_NE(part, nullptr);
    EXPECT_TRUE(part->isLimitReached());
    EXPECT_EQ(part->silentFolders(), (QStringList{path(u"root"_s), path(u"other"_s)}));
}

TEST_F(InotifyLimitsTest, whatIsRefusedForAnotherReasonIsNoLimit)
{
    make(u"root/Default"_s);
    failing = u"root/Default"_s;
    watchError = EACCES;
    const auto part = open({u"root"_s});
    ASSERT_NE(part, nullptr);
    EXPECT_FALSE(part->isLimitReached());
    EXPECT_EQ(part->silentFolders(), QStringList());
}

TEST_F(InotifyLimitsTest, watchesThatRunOutLaterAreToldOfOnce)
{
    make(u"root"_s);
    const auto part = open({u"root"_s});
    ASSERT_FALSE(part->isLimitReached());
    failing = u"root/Profile"_s;
    watchError = ENOSPC;
    make(u"root/Profile 1"_s);
    make(u"root/Profile 2"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return clock.waiting() == 1; }, patience));
    EXPECT_TRUE(part->isLimitReached());
    clock.advance(InotifyFileEvents::latency);
    EXPECT_EQ(reports, QList<QStringList>{QStringList()}) << "no file changed that is known of";
    EXPECT_EQ(part->silentFolders(), QStringList{path(u"root"_s)});
}

TEST_F(InotifyLimitsTest, fileSystemsOfOtherMachinesAreSilent)
{
    make(u"root/Default"_s);
    make(u"other"_s);
    for (const std::uint32_t kind : std::to_array<std::uint32_t>(
             {NFS_SUPER_MAGIC, CIFS_SUPER_MAGIC, SMB2_SUPER_MAGIC, FUSE_SUPER_MAGIC, V9FS_MAGIC})) {
        fileSystem = kind;
        elsewhere = u"root"_s;
        const auto network = open({u"root"_s, u"other"_s});
        EXPECT_EQ(network->silentFolders(), QStringList{path(u"root"_s)}) << kind;
        EXPECT_FALSE(network->isLimitReached());
        elsewhere = u"root/Default"_s;
        EXPECT_EQ(open({u"root"_s, u"other"_s})->silentFolders(), QStringList{path(u"root"_s)})
            << "a profile may be a mount of its own";
    }
    fileSystem = EXT4_SUPER_MAGIC;
    EXPECT_EQ(open({u"root"_s, u"other"_s})->silentFolders(), QStringList());
}

TEST_F(InotifyLimitsTest, whatChangesOnASilentFileSystemHereIsStillReported)
{
    fileSystem = NFS_SUPER_MAGIC;
    elsewhere = u"root"_s;
    make(u"root"_s);
    const auto network = open({u"root"_s});
    write(u"root/History"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return clock.waiting() == 1; }, patience));
    clock.advance(InotifyFileEvents::latency);
    EXPECT_EQ(reports, QList<QStringList>{{path(u"root/History"_s)}});
}

TEST_F(InotifyLimitsTest, aRootThatCannotBeListedIsSilent)
{
    write(u"root/Default/History"_s);
    rlimit before{};
    ::getrlimit(RLIMIT_NOFILE, &before);
    InotifyFileEvents::Calls withoutFiles = calls();
    // Asked when the root itself is watched, and before anybody looks what is in it.
    withoutFiles.fileSystem = [&before, kind = withoutFiles.fileSystem](const char *folder) {
        const rlimit none{0, before.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &none);
        return kind(folder);
    };
    InotifyFileEvents unlisted(clock, withoutFiles);
    const auto watching = unlisted.open({path(u"root"_s)}, [](const QStringList &) {});
    ::setrlimit(RLIMIT_NOFILE, &before);
    ASSERT_NE(watching, nullptr);
    EXPECT_EQ(watching->silentFolders(), QStringList{path(u"root"_s)});
}

} // namespace roamlet::testing
