// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/FileSizeLimit.h"
#include "Platform/LinuxFilesTest.h"
#include "Platform/WithoutPrivileges.h"

#include <QDir>

#include <unistd.h>

#include <optional>
#include <thread>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

/// Private copies of files that belong to somebody else.
class FileCopyTest : public LinuxFilesTest
{
protected:
    static QByteArray content(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
        return file.readAll();
    }

    /// The side on which a copy fails; absent when it does not.
    std::optional<CopyError::Side> failingSide(const QString &source, const QString &target) const
    {
        const auto copied = files.copy(source, target, {}, {}, {});
        return copied ? std::nullopt : std::optional(copied.error().side);
    }
};

TEST_F(FileCopyTest, aCopyHasTheSameBytes)
{
    const QString target = path(u"target"_s);
    for (const qsizetype size : {0, 1, 4096, 8 << 20, (16 << 20) + 1}) {
        const QByteArray expected = bytes(size);
        const QString source = file(u"source"_s, expected);
        EXPECT_FALSE(copy(source, target)) << size;
        EXPECT_TRUE(content(target) == expected) << size;
        ASSERT_TRUE(QFile::remove(target));
    }
}

TEST_F(FileCopyTest, aCopyToAnotherFileSystemHasTheSameBytes)
{
    const QTemporaryDir other(u"/dev/shm/roamlet-test-XXXXXX"_s);
    if (!other.isValid() || attributes(other.path()).st_dev == attributes(path({})).st_dev)
        GTEST_SKIP() << "there is no second file system";
    const QByteArray expected = bytes((1 << 20) + 7);
    const QString source = file(u"source"_s, expected);
    const QString there = other.filePath(u"there"_s);
    ASSERT_FALSE(copy(source, there));
    EXPECT_TRUE(content(there) == expected);
    EXPECT_EQ(permissions(there), 0600U);
    ASSERT_FALSE(copy(there, path(u"back"_s)));
    EXPECT_TRUE(content(path(u"back"_s)) == expected);

    const std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(copy(source, other.filePath(u"stopped"_s), stop.get_token()), std::errc::operation_canceled);
    EXPECT_FALSE(isThere(other.filePath(u"stopped"_s)));
}

TEST_F(FileCopyTest, aCopyIsAsSparseAsItsSource)
{
    const QString source = file(u"source"_s, bytes(5000));
    constexpr qint64 far = qint64{3} << 30U;
    QFile sparse(source);
    ASSERT_TRUE(sparse.open(QIODevice::ReadWrite));
    ASSERT_TRUE(sparse.seek(far) && sparse.write("island") == 6 && sparse.resize(2 * far));
    sparse.close();
    const QString target = path(u"target"_s);
    ASSERT_FALSE(copy(source, target));
    EXPECT_EQ(attributes(target).st_size, 2 * far);
    EXPECT_LE(attributes(target).st_blocks, attributes(source).st_blocks + 64);
    QFile copied(target);
    ASSERT_TRUE(copied.open(QIODevice::ReadOnly));
    EXPECT_TRUE(copied.read(5000) == bytes(5000));
    ASSERT_TRUE(copied.seek(far - 1));
    EXPECT_EQ(copied.read(8), QByteArray("\0island\0", 8));
}

TEST_F(FileCopyTest, aCopyForWhichThereIsNoRoomIsNotBegun)
{
    class Small final : public LinuxFiles
    {
    public:
        mutable std::optional<std::uint64_t> left = 0;
        mutable int asked = 0;

    protected:
        std::optional<std::uint64_t> room(int descriptor) const override
        {
            ++asked;
            EXPECT_EQ(::lseek(descriptor, 0, SEEK_END), 0) << "nothing is written yet";
            return left;
        }
    };
    const QTemporaryDir other(u"/dev/shm/roamlet-test-XXXXXX"_s);
    if (!other.isValid() || attributes(other.path()).st_dev == attributes(path({})).st_dev)
        GTEST_SKIP() << "there is no second file system";
    const Small small;
    const QString source = file(u"source"_s, bytes(1 << 20));
    const QString target = other.filePath(u"target"_s);
    const auto taken = static_cast<std::uint64_t>(attributes(source).st_blocks) * 512;
    small.left = taken - 1;
    const auto refused = small.copy(source, target, {}, {}, {});
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().side, CopyError::Side::Target);
    EXPECT_EQ(refused.error().code, std::errc::no_space_on_device);
    EXPECT_FALSE(isThere(target));
    EXPECT_EQ(small.asked, 1);
    for (const std::optional<std::uint64_t> enough : {std::optional(taken), std::optional<std::uint64_t>()}) {
        small.left = enough;
        ASSERT_TRUE(small.copy(source, target, {}, {}, {}));
        EXPECT_TRUE(content(target) == bytes(1 << 20));
        ASSERT_TRUE(QFile::remove(target));
    }
    // Holes take no room.
    ASSERT_TRUE(QFile::resize(source, qint64{10} << 30U));
    small.left = taken;
    EXPECT_TRUE(small.copy(source, target, {}, {}, {}));
}

TEST_F(FileCopyTest, aCopyIsMadeAgainUntilItIsGood)
{
    const QString source = file(u"source"_s, bytes(10'000));
    const QString target = path(u"target"_s);
    int looks = 0;
    const auto isGood = [&] {
        if (++looks < 3)
            file(u"source"_s, bytes(10'000 / (looks + 1)));
        return looks == 3;
    };
    ASSERT_TRUE(files.copy(source, target, {}, {}, isGood));
    EXPECT_EQ(looks, 3);
    EXPECT_TRUE(content(target) == bytes(10'000 / 3));
}

TEST_F(FileCopyTest, whatStandsBesideAFileIsCopiedAfterItWhereItCanBe)
{
    const QString source = file(u"source"_s, "main");
    file(u"source-log"_s, "log");
    ASSERT_TRUE(QDir().mkpath(path(u"source-folder"_s)));
    const QString target = path(u"target"_s);
    ASSERT_TRUE(files.copy(source, target, {u"-folder"_s, u"-missing"_s, u"-log"_s}, {}, {}));
    EXPECT_EQ(content(target), "main");
    EXPECT_EQ(content(target % u"-log"), "log");
    EXPECT_FALSE(isThere(target % u"-missing"));
    // What is in the way there is no fault of the source.
    const QString other = path(u"other"_s);
    file(u"other-log"_s, "x");
    const auto failed = files.copy(source, other, {u"-log"_s}, {}, {});
    ASSERT_FALSE(failed);
    EXPECT_EQ(failed.error().side, CopyError::Side::Target);
    EXPECT_FALSE(isThere(other));
}

TEST_F(FileCopyTest, aCopyThatNeverIsGoodIsLeftAsItIs)
{
    const QString source = file(u"source"_s, bytes(100));
    const QString target = path(u"target"_s);
    int looks = 0;
    const auto isGood = [&looks] {
        ++looks;
        return false;
    };
    ASSERT_TRUE(files.copy(source, target, {}, {}, isGood));
    EXPECT_EQ(looks + 1, Files::mostCopies) << "after the last copy nothing is decided any more";
    EXPECT_TRUE(content(target) == bytes(100));
}

TEST_F(FileCopyTest, filesHaveTheSameBytesUpToTheLastOne)
{
    // Less and more than what is read at once, and exactly that.
    for (const qsizetype size : {0, 1, 1 << 18, (1 << 19) + 5}) {
        const QByteArray content = bytes(size);
        const QString one = file(u"one"_s, content);
        EXPECT_TRUE(files.haveSameBytes(one, file(u"other"_s, content))) << size;
        EXPECT_FALSE(files.haveSameBytes(one, file(u"other"_s, content + 'x'))) << size;
        EXPECT_FALSE(files.haveSameBytes(file(u"other"_s, content + 'x'), one)) << size;
        if (size == 0)
            continue;
        QByteArray changed = content;
        changed.back() = static_cast<char>(changed.back() + 1);
        EXPECT_FALSE(files.haveSameBytes(one, file(u"other"_s, changed))) << size;
    }
}

TEST_F(FileCopyTest, whatIsNotThereHasTheBytesOfWhatIsNotThereEither)
{
    const QString one = file(u"one"_s, {});
    EXPECT_TRUE(files.haveSameBytes(path(u"missing"_s), path(u"absent"_s)));
    EXPECT_FALSE(files.haveSameBytes(one, path(u"missing"_s)));
    EXPECT_FALSE(files.haveSameBytes(path(u"missing"_s), one));
}

TEST_F(FileCopyTest, theBeginningOfAFileIsReadAsFarAsItGoes)
{
    const QString source = file(u"source"_s, "beginning");
    EXPECT_EQ(files.readBeginning(source, 5), QByteArray("begin"));
    EXPECT_EQ(files.readBeginning(source, 100), QByteArray("beginning"));
    EXPECT_EQ(files.readBeginning(path(u"missing"_s), 5).error(), std::errc::no_such_file_or_directory);
    EXPECT_EQ(files.readBeginning(path({}), 5).error(), std::errc::is_a_directory);
}

TEST_F(FileCopyTest, onlyTheUserCanReadACopy)
{
    const OpenMask mask;
    const QString target = path(u"target"_s);
    for (const mode_t mode : {0400U, 0444U, 0600U, 0644U, 0777U, 04755U}) {
        const QString source = file(u"source"_s, "x");
        setPermissions(source, mode);
        EXPECT_FALSE(copy(source, target)) << mode;
        EXPECT_EQ(permissions(target), 0600U) << mode;
        EXPECT_EQ(permissions(source), mode);
        ASSERT_TRUE(QFile::remove(source));
        ASSERT_TRUE(QFile::remove(target));
    }
}

TEST_F(FileCopyTest, aCopyTakesTheTargetOfALink)
{
    const QString source = file(u"source"_s, "bytes");
    ASSERT_TRUE(QFile::link(source, path(u"link"_s)));
    ASSERT_FALSE(copy(path(u"link"_s), path(u"target"_s)));
    EXPECT_TRUE(S_ISREG(attributes(path(u"target"_s)).st_mode));
    EXPECT_EQ(content(path(u"target"_s)), "bytes");
}

TEST_F(FileCopyTest, aCopyNeverReplacesAnything)
{
    const QString source = file(u"source"_s, "new");
    const QString target = file(u"target"_s, "old");
    EXPECT_EQ(copy(source, target), std::errc::file_exists);
    EXPECT_EQ(content(target), "old");
    EXPECT_EQ(copy(source, source), std::errc::file_exists);
    EXPECT_EQ(content(source), "new");

    ASSERT_TRUE(QFile::link(path(u"nowhere"_s), path(u"link"_s)));
    EXPECT_EQ(copy(source, path(u"link"_s)), std::errc::file_exists);
    EXPECT_FALSE(isThere(path(u"nowhere"_s))) << "a link that somebody laid out is not followed";
}

TEST_F(FileCopyTest, copyingTellsWhyItFailed)
{
    const QString source = file(u"source"_s, "x");
    const QString target = path(u"target"_s);
    EXPECT_EQ(copy(path(u"missing"_s), target), std::errc::no_such_file_or_directory);
    EXPECT_EQ(copy(path({}), target), std::errc::is_a_directory);
    EXPECT_EQ(copy(source, path(u"missing/target"_s)), std::errc::no_such_file_or_directory);
    EXPECT_EQ(copy(source, source % u"/target"), std::errc::not_a_directory);
    EXPECT_FALSE(isThere(target));

    setPermissions(path({}), 0777);
    setPermissions(source, 0);
    const WithoutPrivileges guard;
    if (guard.arePermissionsChecked()) {
        EXPECT_EQ(copy(source, target), std::errc::permission_denied);
        EXPECT_FALSE(isThere(target));
    }
}

TEST_F(FileCopyTest, copyingTellsOnWhichSideItFailed)
{
    using Side = CopyError::Side;
    const QString source = file(u"source"_s, bytes(4 << 20));
    const QString target = path(u"target"_s);
    EXPECT_EQ(failingSide(path(u"missing"_s), target), Side::Source);
    EXPECT_EQ(failingSide(path({}), target), Side::Source);
    EXPECT_EQ(failingSide(source, path(u"missing/target"_s)), Side::Target);
    EXPECT_EQ(failingSide(source, source), Side::Target);
    {
        const FileSizeLimit limit(1 << 20);
        EXPECT_EQ(failingSide(source, target), Side::Target);
    }
    EXPECT_EQ(failingSide(source, target), std::nullopt);

    ASSERT_TRUE(QDir().mkpath(path(u"closed"_s)));
    setPermissions(path({}), 0755);
    setPermissions(path(u"closed"_s), 0555);
    const std::optional<Side> closed = [&] {
        const WithoutPrivileges guard;
        return guard.arePermissionsChecked() ? failingSide(source, path(u"closed/target"_s)) : Side::Target;
    }();
    setPermissions(path(u"closed"_s), 0755);
    EXPECT_EQ(closed, Side::Target);
}

TEST_F(FileCopyTest, aCopyThatFindsNoRoomLeavesNothing)
{
    const QString source = file(u"source"_s, bytes(4 << 20));
    const std::error_code error = [&] {
        const FileSizeLimit limit(1 << 20);
        return copy(source, path(u"target"_s));
    }();
    EXPECT_EQ(error, std::errc::file_too_large);
    EXPECT_FALSE(isThere(path(u"target"_s)));
    EXPECT_EQ(content(source).size(), 4 << 20);
}

TEST_F(FileCopyTest, aCopyThatShallNotBeginLeavesNothing)
{
    const QString source = file(u"source"_s, "x");
    const std::stop_source stop;
    stop.request_stop();
    const std::error_code error = copy(source, path(u"target"_s), stop.get_token());
    if (!error)
        GTEST_SKIP() << "this file system copies in one step";
    EXPECT_EQ(error, std::errc::operation_canceled);
    EXPECT_FALSE(isThere(path(u"target"_s)));
}

TEST_F(FileCopyTest, aCopyThatIsInterruptedLeavesNothing)
{
    // Large enough that it cannot be finished before the other thread has seen that it began.
    const QString source = file(u"source"_s, "x");
    ASSERT_EQ(::truncate(QFile::encodeName(source).constData(), off_t{8} << 30U), 0);
    const QString target = path(u"target"_s);
    const std::stop_source stop;
    const std::jthread other([&](const std::stop_token &end) {
        struct stat now = {};
        while (!end.stop_requested() &&
               (::stat(QFile::encodeName(target).constData(), &now) != 0 || now.st_size == 0))
            std::this_thread::yield();
        stop.request_stop();
    });
    const std::error_code error = copy(source, target, stop.get_token());
    if (!error)
        GTEST_SKIP() << "this file system copies in one step";
    EXPECT_EQ(error, std::errc::operation_canceled);
    EXPECT_FALSE(isThere(target));
}

} // namespace roamlet::testing
