// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Confinement.h"

#include <QByteArray>
#include <QFile>

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace roamlet::Confinement
{

namespace
{

/// A name of the kernel's that the headers may be too old for.
constexpr std::uint64_t truncateFile = std::uint64_t{1} << 14U;

/// Every way to change something that this version of the kernel's interface knows.
std::uint64_t changes(long version)
{
    std::uint64_t result = LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR |
                           LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR |
                           LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
                           LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO |
                           LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;
    if (version >= 2)
        result |= LANDLOCK_ACCESS_FS_REFER;
    if (version >= 3)
        result |= truncateFile;
    return result;
}

bool allow(int rules, const QByteArray &place, std::uint64_t access)
{
    const int descriptor = ::open(place.constData(), O_PATH | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const landlock_path_beneath_attr rule{.allowed_access = access, .parent_fd = descriptor};
    const bool isAllowed = ::syscall(SYS_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &rule, 0) == 0;
    ::close(descriptor);
    return isAllowed;
}

/// Where SQLite puts what it has to set aside while it sorts: in the first of the folders that it knows.
QString folderOfSQLite()
{
    const std::array<QByteArray, 5> places{qgetenv("SQLITE_TMPDIR"), qgetenv("TMPDIR"), "/var/tmp",
                                           "/usr/tmp", "/tmp"};
    const auto found = std::ranges::find_if(places, [](const QByteArray &place) {
        struct stat attributes = {};
        return !place.isEmpty() && ::stat(place.constData(), &attributes) == 0 &&
               S_ISDIR(attributes.st_mode) && ::access(place.constData(), W_OK | X_OK) == 0;
    });
    return found == places.end() ? QString() : QFile::decodeName(*found);
}

} // namespace

bool writeOnlyBelow(const QStringList &folders)
{
    const long version = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return false;
    const std::uint64_t all = changes(version);
    const landlock_ruleset_attr attributes{.handled_access_fs = all};
    const int rules =
        static_cast<int>(::syscall(SYS_landlock_create_ruleset, &attributes, sizeof(attributes), 0));
    if (rules < 0)
        return false;
    const bool isDone =
        std::ranges::all_of(
            folders, [&](const QString &folder) { return allow(rules, QFile::encodeName(folder), all); }) &&
        // SQLite opens it in the place of what it shall not see.
        allow(rules, "/dev/null", all & (LANDLOCK_ACCESS_FS_WRITE_FILE | truncateFile)) &&
        ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && ::syscall(SYS_landlock_restrict_self, rules, 0) == 0;
    ::close(rules);
    return isDone;
}

bool ofReadingThread(const QString &temporaryFolder)
{
    // Each time adds to what the kernel looks at, and nothing to what it refuses.
    static thread_local bool isConfined = false;
    if (!isConfined && ::gettid() != ::getpid())
        isConfined = ofReadingProcess(temporaryFolder);
    return isConfined;
}

bool ofReadingProcess(const QString &temporaryFolder)
{
    QStringList folders{temporaryFolder};
    if (const QString sorting = folderOfSQLite(); !sorting.isEmpty() && sorting != temporaryFolder)
        folders.append(sorting);
    return writeOnlyBelow(folders);
}

} // namespace roamlet::Confinement
