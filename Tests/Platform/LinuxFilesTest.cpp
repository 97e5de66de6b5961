// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/LinuxFiles.h"

#include "Platform/FileSizeLimit.h"
#include "Platform/WithoutPrivileges.h"
#include "SampleHome/PlainFiles.h"
#include "Support/FolderFingerprint.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <thread>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

constexpr mode_t permissionBits = 07777;

struct stat attributes(const QString &path)
{
    struct stat result = {};
    EXPECT_EQ(::lstat(QFile::encodeName(path).constData(), &result), 0) << qPrintable(path);
    return result;
}

mode_t permissions(const QString &path)
{
    return attributes(path).st_mode & permissionBits;
}

void setPermissions(const QString &path, mode_t mode)
{
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0) << qPrintable(path);
}

void setTimes(const QString &path, timespec accessed, timespec modified)
{
    const std::array times{accessed, modified};
    ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times.data(), 0), 0);
}

bool isThere(const QString &path)
{
    struct stat result = {};
    return ::lstat(QFile::encodeName(path).constData(), &result) == 0;
}

QByteArray content(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

/// Bytes in which a block that is lost, doubled or out of place is noticed.
QByteArray bytes(qsizetype size)
{
    QByteArray result(size, Qt::Uninitialized);
    quint32 state = 1;
    for (char &byte : result) {
        state = state * 1'664'525U + 1'013'904'223U;
        byte = static_cast<char>(state >> 24U);
    }
    return result;
}

/// A mask of permissions that takes nothing away, for as long as it lives.
class OpenMask
{
public:
    OpenMask() = default;
    OpenMask(const OpenMask &) = delete;
    OpenMask &operator=(const OpenMask &) = delete;
    ~OpenMask() { ::umask(m_before); }

private:
    mode_t m_before = ::umask(0);
};

} // namespace

class LinuxFilesTest : public ::testing::Test
{
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QString file(const QString &name, const QByteArray &content) const
    {
        sample::writeFile(path(name), content);
        return path(name);
    }

    std::error_code copy(const QString &source, const QString &target, const std::stop_token &stop = {}) const
    {
        const auto copied = files.copy(source, target, stop);
        return copied ? std::error_code{} : copied.error().code;
    }

    /// The side on which a copy fails; absent when it does not.
    std::optional<CopyError::Side> failingSide(const QString &source, const QString &target) const
    {
        const auto copied = files.copy(source, target, {});
        return copied ? std::nullopt : std::optional(copied.error().side);
    }

    /// What may stand in the place of a file and is none, each by its path.
    QStringList thingsThatAreNoFiles() const
    {
        QStringList result{path(u"folder"_s), path(u"pipe"_s), path(u"socket"_s), u"/dev/null"_s,
                           u"/dev/zero"_s};
        EXPECT_TRUE(QDir().mkpath(result[0]));
        EXPECT_EQ(::mkfifo(QFile::encodeName(result[1]).constData(), 0600), 0);
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        const QByteArray name = QFile::encodeName(result[2]);
        EXPECT_LT(static_cast<size_t>(name.size()), sizeof(address.sun_path));
        std::memcpy(address.sun_path, name.constData(),
                    std::min(static_cast<size_t>(name.size()) + 1, sizeof(address.sun_path)));
        const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        EXPECT_GE(descriptor, 0);
        if (descriptor < 0)
            return result;
        EXPECT_EQ(::bind(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof(address)), 0);
        ::close(descriptor);
        return result;
    }

    const LinuxFiles files;

private:
    QTemporaryDir m_folder;
};

TEST_F(LinuxFilesTest, somethingExistsWhateverItIs)
{
    EXPECT_TRUE(files.exists(file(u"file"_s, {})));
    for (const QString &thing : thingsThatAreNoFiles())
        EXPECT_TRUE(files.exists(thing)) << qPrintable(thing);
    ASSERT_TRUE(QFile::link(path(u"file"_s), path(u"link"_s)));
    EXPECT_TRUE(files.exists(path(u"link"_s)));
}

TEST_F(LinuxFilesTest, nothingExistsWhereNothingIs)
{
    EXPECT_FALSE(files.exists(path(u"missing"_s)));
    EXPECT_FALSE(files.exists(path(u"missing/deeper"_s)));
    EXPECT_FALSE(files.exists(file(u"file"_s, {}) % u"/below")) << "a file has nothing below it";
    EXPECT_FALSE(files.exists({}));
}

TEST_F(LinuxFilesTest, whereNobodyMayLookSomethingMayBe)
{
    file(u"closed/file"_s, "x");
    setPermissions(path({}), 0755);
    setPermissions(path(u"closed"_s), 0);
    const auto exists = [this] {
        const WithoutPrivileges guard;
        return !guard.arePermissionsChecked() || files.exists(path(u"closed/file"_s));
    }();
    setPermissions(path(u"closed"_s), 0700);
    EXPECT_TRUE(exists);
}

TEST_F(LinuxFilesTest, theStampTellsTheSizeAndTheTimeToTheNanosecond)
{
    const QString one = file(u"one"_s, "123");
    const QString other = file(u"other"_s, "456");
    constexpr timespec time{1'700'000'000, 5};
    setTimes(one, time, time);
    setTimes(other, {1, 2}, time);
    const QString stamp = files.fileStamp(one);
    EXPECT_FALSE(stamp.isEmpty());
    EXPECT_EQ(stamp.count(u' '), 1) << "one blank between size and time";
    EXPECT_TRUE(stamp.startsWith(u"3 "));
    EXPECT_EQ(files.fileStamp(one), stamp) << "an unchanged file keeps its stamp";
    EXPECT_EQ(files.fileStamp(other), stamp) << "neither content nor time of access count";

    for (const timespec &changed :
         {timespec{1'700'000'000, 6}, timespec{1'700'000'000, 50}, timespec{1'700'000'001, 5},
          timespec{-1, 5}, timespec{17'000'000'005, 0}}) {
        setTimes(one, time, changed);
        EXPECT_NE(files.fileStamp(one), stamp) << changed.tv_sec << '.' << changed.tv_nsec;
    }
    sample::writeFile(one, "1234");
    setTimes(one, time, time);
    EXPECT_NE(files.fileStamp(one), stamp);
}

TEST_F(LinuxFilesTest, theStampIsEmptyWithoutAttributes)
{
    EXPECT_EQ(files.fileStamp(path(u"missing"_s)), u""_s);
    EXPECT_EQ(files.fileStamp(file(u"file"_s, {}) % u"/below"), u""_s);
    EXPECT_FALSE(files.fileStamp(path(u"file"_s)).isEmpty()) << "an empty file has one";

    file(u"closed/file"_s, "x");
    setPermissions(path({}), 0755);
    setPermissions(path(u"closed"_s), 0);
    const QString stamp = [this] {
        const WithoutPrivileges guard;
        return guard.arePermissionsChecked() ? files.fileStamp(path(u"closed/file"_s)) : QString();
    }();
    setPermissions(path(u"closed"_s), 0700);
    EXPECT_EQ(stamp, u""_s);
}

TEST_F(LinuxFilesTest, theStampNeedsNoPermissionToRead)
{
    const QString secret = file(u"secret"_s, "x");
    const QString stamp = files.fileStamp(secret);
    setPermissions(path({}), 0755);
    setPermissions(secret, 0);
    const WithoutPrivileges guard;
    EXPECT_EQ(files.fileStamp(secret), stamp);
}

TEST_F(LinuxFilesTest, theStampOfALinkIsItsTargets)
{
    const QString target = file(u"target"_s, "1234567");
    ASSERT_TRUE(QFile::link(target, path(u"link"_s)));
    EXPECT_EQ(files.fileStamp(path(u"link"_s)), files.fileStamp(target));
}

TEST_F(LinuxFilesTest, aFileIsReadWhole)
{
    for (const qsizetype size : {0, 1, 4096, 262'143, 262'144, 262'145, 3'000'001}) {
        const QByteArray expected = bytes(size);
        const auto read = files.read(file(u"file"_s, expected));
        ASSERT_TRUE(read.has_value()) << size;
        EXPECT_TRUE(*read == expected) << size;
    }
}

TEST_F(LinuxFilesTest, aFileWhoseSizeIsNotKnownBeforeIsReadWhole)
{
    const auto read = files.read(u"/proc/self/status"_s);
    ASSERT_TRUE(read.has_value());
    EXPECT_TRUE(read->startsWith("Name:"));
}

TEST_F(LinuxFilesTest, aFileThatClaimsToBeHugeIsRefused)
{
    const QString sparse = file(u"sparse"_s, "x");
    ASSERT_EQ(::truncate(QFile::encodeName(sparse).constData(), off_t{1} << 40U), 0);
    const auto read = files.read(sparse);
    ASSERT_FALSE(read.has_value());
    EXPECT_EQ(read.error(), std::errc::file_too_large);
}

TEST_F(LinuxFilesTest, readingTellsWhyItFailed)
{
    EXPECT_EQ(files.read(path(u"missing"_s)).error(), std::errc::no_such_file_or_directory);
    EXPECT_EQ(files.read(file(u"file"_s, {}) % u"/below").error(), std::errc::not_a_directory);
    EXPECT_EQ(files.read(path({})).error(), std::errc::is_a_directory);
    const QString secret = file(u"secret"_s, "x");
    setPermissions(path({}), 0755);
    setPermissions(secret, 0);
    const WithoutPrivileges guard;
    if (guard.arePermissionsChecked()) {
        EXPECT_EQ(files.read(secret).error(), std::errc::permission_denied);
    }
}

TEST_F(LinuxFilesTest, nothingWaitsForAPipeOrADevice)
{
    const QString target = path(u"target"_s);
    for (const QString &thing : thingsThatAreNoFiles()) {
        EXPECT_FALSE(files.read(thing).has_value()) << qPrintable(thing);
        EXPECT_TRUE(copy(thing, target)) << qPrintable(thing);
        EXPECT_FALSE(isThere(target)) << qPrintable(thing);
    }
}

TEST_F(LinuxFilesTest, aPipeThatSomebodyWritesToIsNotDrained)
{
    const QString pipe = path(u"pipe"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const int descriptor = ::open(QFile::encodeName(pipe).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    ASSERT_EQ(::write(descriptor, "abc", 3), 3);
    EXPECT_FALSE(files.read(pipe).has_value());
    EXPECT_TRUE(copy(pipe, path(u"target"_s)));
    std::array<char, 4> buffer{};
    EXPECT_EQ(::read(descriptor, buffer.data(), buffer.size()), 3);
    ::close(descriptor);
}

TEST_F(LinuxFilesTest, aCopyHasTheSameBytes)
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

TEST_F(LinuxFilesTest, aCopyToAnotherFileSystemHasTheSameBytes)
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

TEST_F(LinuxFilesTest, onlyTheUserCanReadACopy)
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

TEST_F(LinuxFilesTest, readingAndCopyingLeaveTheSourceAsItWas)
{
    const QString source = file(u"home/source"_s, bytes(100'000));
    setPermissions(source, 0640);
    // An access older than the modification is what systems update even when they update few.
    setTimes(source, {1'500'000'000, 1}, {1'600'000'000, 2});
    const struct stat before = attributes(source);
    const FolderFingerprint fingerprint(path(u"home"_s));
    setTimes(source, {1'500'000'000, 1}, {1'600'000'000, 2});

    ASSERT_TRUE(files.read(source).has_value());
    ASSERT_FALSE(copy(source, path(u"target"_s)));
    ASSERT_FALSE(files.fileStamp(source).isEmpty());
    const std::stop_source stop;
    stop.request_stop();
    static_cast<void>(copy(source, path(u"stopped"_s), stop.get_token()));

    const struct stat after = attributes(source);
    EXPECT_EQ(after.st_atim.tv_sec, before.st_atim.tv_sec);
    EXPECT_EQ(after.st_atim.tv_nsec, before.st_atim.tv_nsec);
    EXPECT_EQ(after.st_nlink, before.st_nlink);
    EXPECT_EQ(fingerprint.differencesTo(FolderFingerprint(path(u"home"_s))), "");
}

TEST_F(LinuxFilesTest, aCopyTakesTheTargetOfALink)
{
    const QString source = file(u"source"_s, "bytes");
    ASSERT_TRUE(QFile::link(source, path(u"link"_s)));
    ASSERT_FALSE(copy(path(u"link"_s), path(u"target"_s)));
    EXPECT_TRUE(S_ISREG(attributes(path(u"target"_s)).st_mode));
    EXPECT_EQ(content(path(u"target"_s)), "bytes");
}

TEST_F(LinuxFilesTest, aCopyNeverReplacesAnything)
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

TEST_F(LinuxFilesTest, copyingTellsWhyItFailed)
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

TEST_F(LinuxFilesTest, copyingTellsOnWhichSideItFailed)
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

TEST_F(LinuxFilesTest, aCopyThatFindsNoRoomLeavesNothing)
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

TEST_F(LinuxFilesTest, aCopyThatShallNotBeginLeavesNothing)
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

TEST_F(LinuxFilesTest, aCopyThatIsInterruptedLeavesNothing)
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

TEST_F(LinuxFilesTest, onlyTheUserCanEnterAPrivateFolder)
{
    const OpenMask mask;
    ASSERT_FALSE(files.makePrivateFolder(path(u"private"_s)));
    EXPECT_EQ(permissions(path(u"private"_s)), 0700U);
    ASSERT_FALSE(files.makePrivateFolder(path(u"a/b/private"_s))) << "the folders above are made too";
    EXPECT_EQ(permissions(path(u"a/b/private"_s)), 0700U);
    EXPECT_TRUE(S_ISDIR(attributes(path(u"a/b/private"_s)).st_mode));
}

TEST_F(LinuxFilesTest, aPrivateFolderIsNeverOneThatWasThere)
{
    const QString folder = path(u"there"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    setPermissions(folder, 0755);
    EXPECT_EQ(files.makePrivateFolder(folder), std::errc::file_exists);
    EXPECT_EQ(permissions(folder), 0755U);
    EXPECT_EQ(files.makePrivateFolder(file(u"file"_s, {})), std::errc::file_exists);
    ASSERT_TRUE(QFile::link(folder, path(u"link"_s)));
    EXPECT_EQ(files.makePrivateFolder(path(u"link"_s)), std::errc::file_exists);
}

TEST_F(LinuxFilesTest, makingAFolderTellsWhyItFailed)
{
    EXPECT_EQ(files.makePrivateFolder(file(u"file"_s, {}) % u"/below"), std::errc::not_a_directory);
    EXPECT_EQ(files.makePrivateFolder(file(u"file"_s, {}) % u"/a/b"), std::errc::not_a_directory);
    ASSERT_TRUE(QDir().mkpath(path(u"closed"_s)));
    setPermissions(path({}), 0755);
    setPermissions(path(u"closed"_s), 0555);
    const WithoutPrivileges guard;
    if (guard.arePermissionsChecked()) {
        EXPECT_EQ(files.makePrivateFolder(path(u"closed/a"_s)), std::errc::permission_denied);
        EXPECT_EQ(files.makePrivateFolder(path(u"closed/a/b"_s)), std::errc::permission_denied);
    }
}

TEST_F(LinuxFilesTest, aFolderIsRemovedWithEverythingInIt)
{
    file(u"doomed/a/b/c"_s, "x");
    file(u"doomed/.hidden"_s, "x");
    file(u"kept"_s, "x");
    ASSERT_TRUE(QDir().mkpath(path(u"doomed/empty"_s)));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path(u"doomed/pipe"_s)).constData(), 0600), 0);
    setPermissions(path(u"doomed/a/b/c"_s), 0);
    files.removeFolder(path(u"doomed"_s));
    EXPECT_FALSE(isThere(path(u"doomed"_s)));
    EXPECT_TRUE(isThere(path(u"kept"_s)));
}

TEST_F(LinuxFilesTest, removingAFolderFollowsNoLinks)
{
    file(u"outside/file"_s, "x");
    ASSERT_TRUE(QDir().mkpath(path(u"doomed"_s)));
    ASSERT_TRUE(QFile::link(path(u"outside"_s), path(u"doomed/folder"_s)));
    ASSERT_TRUE(QFile::link(path(u"outside/file"_s), path(u"doomed/file"_s)));
    const FolderFingerprint before(path(u"outside"_s));
    files.removeFolder(path(u"doomed"_s));
    EXPECT_FALSE(isThere(path(u"doomed"_s)));
    EXPECT_EQ(before.differencesTo(FolderFingerprint(path(u"outside"_s))), "");

    ASSERT_TRUE(QFile::link(path(u"outside"_s), path(u"link"_s)));
    files.removeFolder(path(u"link"_s));
    EXPECT_EQ(before.differencesTo(FolderFingerprint(path(u"outside"_s))), "");
}

TEST_F(LinuxFilesTest, removingWhatIsNotThereDoesNothing)
{
    const FolderFingerprint before(path({}));
    files.removeFolder(path(u"missing"_s));
    files.removeFolder(path(u"missing/deeper"_s));
    EXPECT_EQ(before.differencesTo(FolderFingerprint(path({}))), "");
}

TEST_F(LinuxFilesTest, theNamesInAFolderAreAllOfThem)
{
    file(u"folder/file"_s, "x");
    file(u"folder/.hidden"_s, "x");
    file(u"folder/sub/deeper"_s, "x");
    file(u"folder/Über 日本"_s, "x");
    ASSERT_TRUE(QFile::link(path(u"nowhere"_s), path(u"folder/link"_s)));
    QStringList names = files.names(path(u"folder"_s));
    names.sort();
    EXPECT_EQ(names, (QStringList{u".hidden"_s, u"file"_s, u"link"_s, u"sub"_s, u"Über 日本"_s}));
}

TEST_F(LinuxFilesTest, aFolderThatCannotBeListedHasNoNames)
{
    EXPECT_TRUE(files.names(path(u"missing"_s)).isEmpty());
    EXPECT_TRUE(files.names(file(u"file"_s, "x")).isEmpty());
    file(u"closed/file"_s, "x");
    EXPECT_EQ(files.names(path(u"closed"_s)), QStringList{u"file"_s});
    setPermissions(path({}), 0755);
    setPermissions(path(u"closed"_s), 0);
    const QStringList names = [this] {
        const WithoutPrivileges guard;
        return guard.arePermissionsChecked() ? files.names(path(u"closed"_s)) : QStringList();
    }();
    setPermissions(path(u"closed"_s), 0700);
    EXPECT_TRUE(names.isEmpty());
}

TEST_F(LinuxFilesTest, aFolderIsTheUsersAloneWhereNobodyElseMayPutAnything)
{
    const QString folder = path(u"folder"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    for (const mode_t mode : {0700U, 0755U, 0711U, 0775U}) {
        setPermissions(folder, mode);
        EXPECT_TRUE(files.isUsersAlone(folder)) << std::oct << mode;
    }
    for (const mode_t mode : {0777U, 0703U, 01777U, 01700U}) {
        setPermissions(folder, mode);
        EXPECT_FALSE(files.isUsersAlone(folder)) << std::oct << mode;
    }
    setPermissions(folder, 0755);
    ASSERT_TRUE(QFile::link(folder, path(u"link"_s)));
    EXPECT_TRUE(files.isUsersAlone(path(u"link"_s))) << "it may be reached through a link";
    EXPECT_FALSE(files.isUsersAlone(path(u"missing"_s)));
    EXPECT_FALSE(files.isUsersAlone(file(u"file"_s, {})));
    setPermissions(path({}), 0755);
    const WithoutPrivileges guard;
    if (::geteuid() != ::getuid()) {
        EXPECT_FALSE(files.isUsersAlone(folder)) << "another user's";
    }
}

TEST_F(LinuxFilesTest, aPrivateFolderIsKnownAgain)
{
    const QString folder = path(u"folder"_s);
    EXPECT_FALSE(files.isPrivateFolder(folder));
    EXPECT_FALSE(files.makePrivateFolder(folder));
    EXPECT_TRUE(files.isPrivateFolder(folder));
    ASSERT_TRUE(QFile::link(folder, path(u"link"_s)));
    EXPECT_FALSE(files.isPrivateFolder(path(u"link"_s)));
    setPermissions(folder, 02700);
    EXPECT_TRUE(files.isPrivateFolder(folder)) << "where folders hand on their group";
    for (const mode_t mode : {0755U, 0710U, 0701U, 0500U}) {
        setPermissions(folder, mode);
        EXPECT_FALSE(files.isPrivateFolder(folder)) << std::oct << mode;
    }
    const QString plain = file(u"file"_s, {});
    setPermissions(plain, 0700);
    EXPECT_FALSE(files.isPrivateFolder(plain));
    setPermissions(folder, 0700);
    setPermissions(path({}), 0755);
    const WithoutPrivileges guard;
    if (::geteuid() != ::getuid()) {
        EXPECT_FALSE(files.isPrivateFolder(folder)) << "another user's";
    }
}

TEST_F(LinuxFilesTest, aPlainFileIsNothingElse)
{
    EXPECT_TRUE(files.isPlainFile(file(u"file"_s, {})));
    for (const QString &thing : thingsThatAreNoFiles())
        EXPECT_FALSE(files.isPlainFile(thing)) << qPrintable(thing);
    ASSERT_TRUE(QFile::link(path(u"file"_s), path(u"link"_s)));
    EXPECT_FALSE(files.isPlainFile(path(u"link"_s)));
    EXPECT_FALSE(files.isPlainFile(path(u"missing"_s)));
}

} // namespace roamlet::testing
