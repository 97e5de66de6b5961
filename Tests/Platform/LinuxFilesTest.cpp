// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/LinuxFilesTest.h"

#include "Platform/WithoutPrivileges.h"
#include "Support/FolderFingerprint.h"

#include <QDir>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <stop_token>
#include <thread>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

void setTimes(const QString &path, timespec accessed, timespec modified)
{
    const std::array times{accessed, modified};
    ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times.data(), 0), 0);
}

/// What may stand in the place of a file and is none, each by its path; made in this folder where it must be.
QStringList thingsThatAreNoFiles(const QDir &folder)
{
    QStringList result{folder.filePath(u"folder"_s), folder.filePath(u"pipe"_s), folder.filePath(u"socket"_s),
                       u"/dev/null"_s, u"/dev/zero"_s};
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

} // namespace

TEST_F(LinuxFilesTest, somethingExistsWhateverItIs)
{
    EXPECT_TRUE(files.exists(file(u"file"_s, {})));
    for (const QString &thing : thingsThatAreNoFiles(path({})))
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

TEST_F(LinuxFilesTest, changesThatFollowEachOtherAtOnceHaveLastingStampsOfTheirOwn)
{
    const QString one = file(u"one"_s, "0");
    QString before = files.lastingStamp(one);
    for (int i = 1; i < 50; ++i) {
        file(u"one"_s, QByteArray::number(i % 10));
        const QString after = files.lastingStamp(one);
        EXPECT_NE(after, before) << "of the same size, and within a tick of the file system's clock";
        before = after;
    }
    const timespec ahead{.tv_sec = std::numeric_limits<std::int32_t>::max(), .tv_nsec = 0};
    const std::array<timespec, 2> times{ahead, ahead};
    ASSERT_EQ(::utimensat(AT_FDCWD, qPrintable(one), times.data(), 0), 0);
    EXPECT_EQ(files.lastingStamp(one), files.fileStamp(one)) << "of a clock that is wrong";
    EXPECT_EQ(files.lastingStamp(path(u"missing"_s)), u""_s);
}

TEST_F(LinuxFilesTest, theLastingStampOfAFileThatIsWrittenToWithoutRestIsNoOthers)
{
    const QString one = file(u"one"_s, "0");
    const auto setTime = [&one](const timespec &time) {
        const std::array<timespec, 2> times{time, time};
        ASSERT_EQ(::utimensat(AT_FDCWD, qPrintable(one), times.data(), 0), 0);
    };
    QStringList pieces;
    {
        const std::jthread writer([&](const std::stop_token &stop) {
            while (!stop.stop_requested()) {
                timespec now = {};
                ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
                // As far ahead as the clock of a file system can be, since a busy machine may give us a rest.
                now.tv_nsec += 18'000'000;
                now.tv_sec += now.tv_nsec / 1'000'000'000;
                now.tv_nsec %= 1'000'000'000;
                setTime(now);
            }
        });
        for (int i = 0; i < 1000 && pieces.size() < 3; ++i)
            pieces = files.lastingStamp(one).split(u' ');
    }
    ASSERT_GT(pieces.size(), 2);
    const QStringList time = pieces[1].split(u'.');
    setTime({.tv_sec = time.value(0).toLong(), .tv_nsec = time.value(1).toLong()});
    EXPECT_EQ(files.fileStamp(one), pieces[0] % u' ' % pieces[1]);
    EXPECT_NE(files.lastingStamp(one), pieces.join(u' '));
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

TEST_F(LinuxFilesTest, wantOfMemoryIsAnErrorOfTheFile)
{
    sample::writeFile(path(u"file"_s), "content");
    const auto beginning = files.readBeginning(path(u"file"_s), std::numeric_limits<qsizetype>::max());
    ASSERT_FALSE(beginning);
    EXPECT_EQ(beginning.error(), std::errc::not_enough_memory);
}

TEST_F(LinuxFilesTest, nothingWaitsForAPipeOrADevice)
{
    const QString target = path(u"target"_s);
    for (const QString &thing : thingsThatAreNoFiles(path({}))) {
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

TEST_F(LinuxFilesTest, filesAndEmptyFoldersAreRemovedWhereNothingMoreCanBeOpened)
{
    file(u"doomed/known"_s, "x");
    file(u"other/unknown"_s, "x");
    rlimit before{};
    ::getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none{0, before.rlim_max};
    ::setrlimit(RLIMIT_NOFILE, &none);
    files.removeFile(path(u"doomed/known"_s));
    files.removeFile(path(u"doomed/missing"_s));
    files.removeFolder(path(u"doomed"_s));
    files.removeFolder(path(u"other"_s));
    ::setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_FALSE(isThere(path(u"doomed"_s)));
    EXPECT_TRUE(isThere(path(u"other/unknown"_s)));
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
    const QString marked = QChar(QChar::ByteOrderMark) + u"with a mark"_s;
    file(u"folder/" % marked, "x");
    QStringList names = files.names(path(u"folder"_s));
    names.sort();
    EXPECT_TRUE(names.removeOne(marked));
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
    for (const QString &thing : thingsThatAreNoFiles(path({})))
        EXPECT_FALSE(files.isPlainFile(thing)) << qPrintable(thing);
    ASSERT_TRUE(QFile::link(path(u"file"_s), path(u"link"_s)));
    EXPECT_FALSE(files.isPlainFile(path(u"link"_s)));
    EXPECT_FALSE(files.isPlainFile(path(u"missing"_s)));
}

} // namespace roamlet::testing
