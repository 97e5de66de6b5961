// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// Preloaded into the program, this lets one of its system calls fail. What it is to do stands in the
// environment:
//
//   ROAMLET_FAULT=CALL:ERROR:FIRST:LAST  the calls from the FIRST to the LAST fail with this number of an
//   error ROAMLET_FAULT_BELOW=FOLDER           only calls for what lies in here, or for what has no path at
//   all ROAMLET_FAULT_COUNTS=FILE            how often each call was made and failed, and for which path at
//   last
//
// Nothing counts before the program's own main function.

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <poll.h>
#include <pthread.h>
#include <string_view>

namespace
{

/// The calls by the names that the environment and the counts use; several functions can be one call.
constexpr std::array callNames{
    "open",    "create", "read",    "read-event", "pread",  "write",   "pwrite", "close",     "copy", "mmap",
    "memory",  "stat",   "fstat",   "fsync",      "rename", "unlink",  "mkdir",  "ftruncate", "init", "watch",
    "eventfd", "thread", "opendir", "readdir",    "poll",   "statvfs", "lock",   "chmod",     "seek"};

constexpr std::size_t indexOf(std::string_view name)
{
    std::size_t i = 0;
    while (callNames[i] != name)
        ++i;
    return i;
}

/// The file of counts.
struct Counts {
    std::array<std::atomic<std::uint64_t>, callNames.size()> made;
    std::atomic<std::uint64_t> failed;
    std::array<char, PATH_MAX> path;
};

struct Fault {
    std::size_t call = callNames.size();
    int error = 0;
    std::uint64_t first = 0;
    std::uint64_t last = 0;
};

Counts *counts = nullptr;
Fault fault;
std::array<char, PATH_MAX> below{};
std::atomic<bool> hasBegun = false;
/// The calls that this library itself makes do not count.
thread_local bool isInside __attribute__((tls_model("initial-exec"))) = false;

void *next(const char *name)
{
    return dlsym(RTLD_NEXT, name);
}

bool isBelow(const char *path)
{
    const std::size_t length = std::strlen(below.data());
    return std::strncmp(path, below.data(), length) == 0;
}

bool fails(std::size_t call, const char *path)
{
    if (call >= callNames.size())
        return false;
    const std::uint64_t number = ++counts->made[call];
    if (call != fault.call || number < fault.first || number > fault.last)
        return false;
    ++counts->failed;
    std::snprintf(counts->path.data(), counts->path.size(), "%s", path);
    errno = fault.error;
    return true;
}

bool isAsked()
{
    return hasBegun && counts != nullptr && !isInside;
}

/// A call without a file.
bool callFails(std::size_t call)
{
    return isAsked() && fails(call, "");
}

/// A call for a file, named from a folder on.
bool pathFails(std::size_t call, const char *path, int folder = AT_FDCWD)
{
    if (!isAsked() || path == nullptr)
        return false;
    if (path[0] == '/')
        return isBelow(path) && fails(call, path);
    std::array<char, 64> link{};
    std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", folder);
    std::array<char, PATH_MAX> absolute{};
    isInside = true;
    const ssize_t length =
        folder == AT_FDCWD ? 0 : readlink(link.data(), absolute.data(), absolute.size() - 1);
    isInside = false;
    return length > 0 && isBelow(absolute.data()) && fails(call, path);
}

/// A call for an open file; for what has no path, another call may be meant.
bool fileFails(std::size_t call, int descriptor, std::size_t withoutPath = callNames.size())
{
    // The user must be told somewhere.
    if (!isAsked() || descriptor == STDERR_FILENO)
        return false;
    const int before = errno;
    std::array<char, 64> link{};
    std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", descriptor);
    std::array<char, PATH_MAX> path{};
    isInside = true;
    const ssize_t length = readlink(link.data(), path.data(), path.size() - 1);
    isInside = false;
    errno = before;
    if (length <= 0)
        return false;
    if (path[0] != '/')
        return fails(withoutPath, path.data());
    return isBelow(path.data()) && fails(call, path.data());
}

void prepare()
{
    const char *file = std::getenv("ROAMLET_FAULT_COUNTS");
    const char *folder = std::getenv("ROAMLET_FAULT_BELOW");
    if (file == nullptr || folder == nullptr)
        return;
    std::snprintf(below.data(), below.size(), "%s", folder);
    const int descriptor = open(file, O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0 || ftruncate(descriptor, sizeof(Counts)) != 0)
        std::abort();
    // Shared with the file, so that it is right however the program ends.
    void *memory = mmap(nullptr, sizeof(Counts), PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    if (memory == MAP_FAILED)
        std::abort();
    close(descriptor);
    if (const char *wanted = std::getenv("ROAMLET_FAULT")) {
        std::array<char, 32> name{};
        unsigned long first = 0;
        unsigned long last = 0;
        if (std::sscanf(wanted, "%31[a-z-]:%d:%lu:%lu", name.data(), &fault.error, &first, &last) != 4)
            std::abort();
        fault.first = first;
        fault.last = last;
        fault.call = 0;
        while (fault.call < callNames.size() && std::strcmp(callNames[fault.call], name.data()) != 0)
            ++fault.call;
        if (fault.call == callNames.size())
            std::abort();
    }
    counts = static_cast<Counts *>(memory);
    // What the program starts is another program.
    unsetenv("LD_PRELOAD");
}

using Main = int (*)(int, char **, char **);
Main programMain = nullptr;

int mainWithFaults(int count, char **arguments, char **environment)
{
    prepare();
    hasBegun = true;
    const int status = programMain(count, arguments, environment);
    hasBegun = false;
    return status;
}

/// From here on malloc asks the system, and may be refused.
constexpr std::size_t largeMemory = std::size_t{128} << 10U;

} // namespace

// A name of our own and the symbol of the library's function: so no declaration of a header is repeated.
#define REPLACED(name, symbol, result, parameters)                                                           \
    extern "C" __attribute__((visibility("default"))) result replaced_##name parameters asm(symbol);         \
    result replaced_##name parameters

#define FAILING(name, result, failed, parameters, arguments, fault)                                          \
    REPLACED(name, #name, result, parameters)                                                                \
    {                                                                                                        \
        static const auto original = reinterpret_cast<result(*) parameters>(next(#name));                    \
        if (fault)                                                                                           \
            return failed;                                                                                   \
        return original arguments;                                                                           \
    }

REPLACED(start, "__libc_start_main", int,
         (Main main, int count, char **arguments, void (*begin)(), void (*end)(), void (*atEnd)(),
          void *stack))
{
    using Start = int (*)(Main, int, char **, void (*)(), void (*)(), void (*)(), void *);
    programMain = main;
    return reinterpret_cast<Start>(next("__libc_start_main"))(mainWithFaults, count, arguments, begin, end,
                                                              atEnd, stack);
}

// The mode is only looked at where there is one; passing on what stands in its place does no harm.
#define OPENING(name)                                                                                        \
    FAILING(name, int, -1, (const char *path, int flags, mode_t mode), (path, flags, mode),                  \
            pathFails((flags & O_CREAT) != 0 ? indexOf("create") : indexOf("open"), path))
#define OPENING_AT(name)                                                                                     \
    FAILING(name, int, -1, (int folder, const char *path, int flags, mode_t mode),                           \
            (folder, path, flags, mode),                                                                     \
            pathFails((flags & O_CREAT) != 0 ? indexOf("create") : indexOf("open"), path, folder))
OPENING(open)
OPENING(open64)
OPENING_AT(openat)
OPENING_AT(openat64)

FAILING(read, ssize_t, -1, (int file, void *bytes, size_t size), (file, bytes, size),
        fileFails(indexOf("read"), file, indexOf("read-event")))
FAILING(pread, ssize_t, -1, (int file, void *bytes, size_t size, off_t place), (file, bytes, size, place),
        fileFails(indexOf("pread"), file))
FAILING(pread64, ssize_t, -1, (int file, void *bytes, size_t size, off_t place), (file, bytes, size, place),
        fileFails(indexOf("pread"), file))
FAILING(write, ssize_t, -1, (int file, const void *bytes, size_t size), (file, bytes, size),
        fileFails(indexOf("write"), file))
FAILING(pwrite, ssize_t, -1, (int file, const void *bytes, size_t size, off_t place),
        (file, bytes, size, place), fileFails(indexOf("pwrite"), file))
FAILING(pwrite64, ssize_t, -1, (int file, const void *bytes, size_t size, off_t place),
        (file, bytes, size, place), fileFails(indexOf("pwrite"), file))
FAILING(copy_file_range, ssize_t, -1,
        (int from, off_t *fromPlace, int to, off_t *toPlace, size_t size, unsigned flags),
        (from, fromPlace, to, toPlace, size, flags), fileFails(indexOf("copy"), from))
FAILING(sendfile, ssize_t, -1, (int to, int from, off_t *place, size_t size), (to, from, place, size),
        fileFails(indexOf("copy"), from))
FAILING(lseek, off_t, -1, (int file, off_t place, int from), (file, place, from),
        fileFails(indexOf("seek"), file))
FAILING(lseek64, off_t, -1, (int file, off_t place, int from), (file, place, from),
        fileFails(indexOf("seek"), file))

#define STATUS(name)                                                                                         \
    FAILING(name, int, -1, (const char *path, void *attributes), (path, attributes),                         \
            pathFails(indexOf("stat"), path))
#define STATUS_OF_FILE(name)                                                                                 \
    FAILING(name, int, -1, (int file, void *attributes), (file, attributes),                                 \
            fileFails(indexOf("fstat"), file))
STATUS(stat)
STATUS(stat64)
STATUS(lstat)
STATUS(lstat64)
STATUS_OF_FILE(fstat)
STATUS_OF_FILE(fstat64)
FAILING(statx, int, -1, (int folder, const char *path, int flags, unsigned mask, void *attributes),
        (folder, path, flags, mask, attributes),
        path != nullptr && path[0] == '\0' ? fileFails(indexOf("fstat"), folder)
                                           : pathFails(indexOf("stat"), path, folder))
FAILING(statvfs, int, -1, (const char *path, void *attributes), (path, attributes),
        pathFails(indexOf("statvfs"), path))
FAILING(statvfs64, int, -1, (const char *path, void *attributes), (path, attributes),
        pathFails(indexOf("statvfs"), path))
FAILING(statfs, int, -1, (const char *path, void *attributes), (path, attributes),
        pathFails(indexOf("statvfs"), path))
FAILING(fstatvfs, int, -1, (int file, void *attributes), (file, attributes),
        fileFails(indexOf("statvfs"), file))

FAILING(fsync, int, -1, (int file), (file), fileFails(indexOf("fsync"), file))
FAILING(fdatasync, int, -1, (int file), (file), fileFails(indexOf("fsync"), file))
FAILING(ftruncate, int, -1, (int file, off_t size), (file, size), fileFails(indexOf("ftruncate"), file))
FAILING(ftruncate64, int, -1, (int file, off_t size), (file, size), fileFails(indexOf("ftruncate"), file))
FAILING(fchmod, int, -1, (int file, mode_t mode), (file, mode), fileFails(indexOf("chmod"), file))
FAILING(chmod, int, -1, (const char *path, mode_t mode), (path, mode), pathFails(indexOf("chmod"), path))
FAILING(rename, int, -1, (const char *from, const char *to), (from, to), pathFails(indexOf("rename"), from))
FAILING(renameat2, int, -1, (int fromFolder, const char *from, int toFolder, const char *to, unsigned flags),
        (fromFolder, from, toFolder, to, flags), pathFails(indexOf("rename"), from, fromFolder))
FAILING(link, int, -1, (const char *from, const char *to), (from, to), pathFails(indexOf("rename"), to))
FAILING(linkat, int, -1, (int fromFolder, const char *from, int toFolder, const char *to, int flags),
        (fromFolder, from, toFolder, to, flags), pathFails(indexOf("rename"), to, toFolder))
FAILING(unlink, int, -1, (const char *path), (path), pathFails(indexOf("unlink"), path))
FAILING(rmdir, int, -1, (const char *path), (path), pathFails(indexOf("unlink"), path))
FAILING(remove, int, -1, (const char *path), (path), pathFails(indexOf("unlink"), path))
FAILING(unlinkat, int, -1, (int folder, const char *path, int flags), (folder, path, flags),
        pathFails(indexOf("unlink"), path, folder))
FAILING(mkdir, int, -1, (const char *path, mode_t mode), (path, mode), pathFails(indexOf("mkdir"), path))
FAILING(mkdtemp, char *, nullptr, (char *pattern), (pattern), pathFails(indexOf("mkdir"), pattern))

FAILING(opendir, DIR *, nullptr, (const char *path), (path), pathFails(indexOf("opendir"), path))
FAILING(fdopendir, DIR *, nullptr, (int file), (file), fileFails(indexOf("opendir"), file))
FAILING(readdir, dirent *, nullptr, (DIR * folder), (folder), fileFails(indexOf("readdir"), dirfd(folder)))
FAILING(readdir64, dirent64 *, nullptr, (DIR * folder), (folder),
        fileFails(indexOf("readdir"), dirfd(folder)))

FAILING(inotify_init1, int, -1, (int flags), (flags), callFails(indexOf("init")))
FAILING(inotify_add_watch, int, -1, (int file, const char *path, std::uint32_t mask), (file, path, mask),
        pathFails(indexOf("watch"), path))
FAILING(eventfd, int, -1, (unsigned value, int flags), (value, flags), callFails(indexOf("eventfd")))
FAILING(signalfd, int, -1, (int file, const void *signals, int flags), (file, signals, flags),
        callFails(indexOf("eventfd")))
FAILING(poll, int, -1, (pollfd * files, nfds_t size, int timeout), (files, size, timeout),
        callFails(indexOf("poll")))
FAILING(ppoll, int, -1, (pollfd * files, nfds_t size, const timespec *timeout, const void *signals),
        (files, size, timeout, signals), callFails(indexOf("poll")))
FAILING(flock, int, -1, (int file, int operation), (file, operation), fileFails(indexOf("lock"), file))

#define CONTROL(name)                                                                                        \
    FAILING(name, int, -1, (int file, int operation, void *argument), (file, operation, argument),           \
            (operation == F_SETLK || operation == F_SETLKW || operation == F_GETLK ||                        \
             operation == F_OFD_SETLK || operation == F_OFD_SETLKW) &&                                       \
                fileFails(indexOf("lock"), file))
CONTROL(fcntl)
CONTROL(fcntl64)

/// Here the error is the result.
FAILING(pthread_create, int, fault.error,
        (pthread_t * thread, const pthread_attr_t *attributes, void *(*work)(void *), void *argument),
        (thread, attributes, work, argument), callFails(indexOf("thread")))

// A descriptor is gone also where closing it failed.
REPLACED(close, "close", int, (int file))
{
    static const auto original = reinterpret_cast<int (*)(int)>(next("close"));
    const bool isFailing = fileFails(indexOf("close"), file);
    const int result = original(file);
    if (!isFailing)
        return result;
    errno = fault.error;
    return -1;
}

#define MAPPING(name)                                                                                        \
    FAILING(name, void *, MAP_FAILED,                                                                        \
            (void *address, size_t size, int protection, int flags, int file, off_t place),                  \
            (address, size, protection, flags, file, place),                                                 \
            (flags & MAP_ANONYMOUS) != 0 ? size >= largeMemory && callFails(indexOf("memory"))               \
                                         : fileFails(indexOf("mmap"), file))
MAPPING(mmap)
MAPPING(mmap64)

// Looking for the next malloc would call malloc.
extern "C" void *__libc_malloc(size_t size);
extern "C" void *__libc_realloc(void *memory, size_t size);
REPLACED(malloc, "malloc", void *, (size_t size))
{
    return size >= largeMemory && callFails(indexOf("memory")) ? nullptr : __libc_malloc(size);
}
REPLACED(realloc, "realloc", void *, (void *memory, size_t size))
{
    return size >= largeMemory && callFails(indexOf("memory")) ? nullptr : __libc_realloc(memory, size);
}
