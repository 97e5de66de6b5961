// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/LinuxFiles.h"

#include "Model/Utf8.h"
#include "Platform/Linux/LinuxIO.h"

#include <QFile>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <limits>
#include <new>
#include <thread>
#include <vector>

namespace roamlet
{

namespace
{

constexpr mode_t onlyTheUserEnters = 0700;
constexpr mode_t onlyTheUserReads = 0600;
/// Small enough that a request to stop is met at once, large enough that the calls do not count.
constexpr size_t bytesPerCopy = size_t{8} << 20U;
/// Far beyond every file that is read whole; a damaged or sparse one can claim any size.
constexpr size_t largestInMemory = size_t{1} << 30U;
constexpr size_t bytesPerRead = size_t{256} << 10U;

class FileDescriptor
{
public:
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor(FileDescriptor &&other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    FileDescriptor &operator=(FileDescriptor &&) = delete;
    ~FileDescriptor()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    bool isOpen() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }
    /// Closes and tells whether what was written has arrived.
    std::error_code close()
    {
        return ::close(std::exchange(m_descriptor, -1)) == 0 ? std::error_code{} : lastError();
    }

private:
    int m_descriptor;
};

struct OpenFile {
    FileDescriptor descriptor;
    size_t size;
};

/// Opens a regular file for reading. Access times are left alone where the system lets us; a pipe or a device
/// in the place of the file is refused instead of waited for.
std::expected<OpenFile, std::error_code> openForReading(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    constexpr int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    int descriptor = ::open(name.constData(), flags | O_NOATIME);
    if (descriptor < 0 && errno == EPERM)
        descriptor = ::open(name.constData(), flags);
    if (descriptor < 0)
        return std::unexpected(lastError());
    FileDescriptor file(descriptor);
    struct stat attributes = {};
    if (fstat(file.get(), &attributes) != 0)
        return std::unexpected(lastError());
    if (S_ISDIR(attributes.st_mode))
        return std::unexpected(std::make_error_code(std::errc::is_a_directory));
    if (!S_ISREG(attributes.st_mode))
        return std::unexpected(std::make_error_code(std::errc::invalid_argument));
    return OpenFile{std::move(file), static_cast<size_t>(attributes.st_size)};
}

/// Fills the buffer from this place on, as far as the file goes; nothing when it cannot be read.
std::optional<size_t> readFully(int descriptor, std::vector<char> &buffer, off_t place)
{
    size_t size = 0;
    while (size < buffer.size()) {
        const ssize_t count =
            ::pread(descriptor, buffer.data() + size, buffer.size() - size, place + static_cast<off_t>(size));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return {};
        if (count == 0)
            break;
        size += static_cast<size_t>(count);
    }
    return size;
}

using Copied = std::expected<void, CopyError>;

Copied failed(CopyError::Side side, std::error_code code)
{
    return std::unexpected(CopyError{.side = side, .code = code});
}

Copied interrupted()
{
    return failed(CopyError::Side::Source, std::make_error_code(std::errc::operation_canceled));
}

/// Copies the bytes from one place up to another, or up to where the source ends. It also tells which of the
/// two files is to blame.
Copied copyThroughMemory(int source, int target, off_t begin, off_t end, const std::stop_token &stop)
{
    std::vector<char> buffer(bytesPerRead);
    while (begin < end && !stop.stop_requested()) {
        const auto most = std::min(buffer.size(), static_cast<size_t>(end - begin));
        const ssize_t count = ::pread(source, buffer.data(), most, begin);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return failed(CopyError::Side::Source, lastError());
        if (count == 0)
            return {};
        if (::lseek(target, begin, SEEK_SET) < 0)
            return failed(CopyError::Side::Target, lastError());
        if (const std::error_code error = writeAll(target, QByteArrayView(buffer.data(), count)))
            return failed(CopyError::Side::Target, error);
        begin += count;
    }
    return stop.stop_requested() ? interrupted() : Copied();
}

Copied copyBytes(int source, int target, off_t begin, off_t end, const std::stop_token &stop)
{
    while (begin < end && !stop.stop_requested()) {
        off_t to = begin;
        const auto most = std::min(bytesPerCopy, static_cast<size_t>(end - begin));
        const ssize_t count = copy_file_range(source, &begin, target, &to, most, 0);
        if (count == 0)
            return {};
        if (count < 0 && errno == EINTR)
            continue;
        // File systems refuse this for reasons of their own; a real fault shows itself there, too.
        if (count < 0)
            return copyThroughMemory(source, target, begin, end, stop);
    }
    return stop.stop_requested() ? interrupted() : Copied();
}

using RoomOf = std::function<std::optional<std::uint64_t>(int descriptor)>;

/// Whether the target's file system has room for what the source takes up.
std::error_code checkRoom(int source, int target, const RoomOf &roomOf)
{
    struct stat attributes = {};
    constexpr std::uint64_t bytesPerBlock = 512;
    const std::optional<std::uint64_t> room = roomOf(target);
    if (!room || fstat(source, &attributes) != 0)
        return {};
    const auto wanted = static_cast<std::uint64_t>(attributes.st_blocks) * bytesPerBlock;
    return wanted > *room ? std::make_error_code(std::errc::no_space_on_device) : std::error_code{};
}

Copied copyContent(int source, int target, const RoomOf &roomOf, const std::stop_token &stop)
{
    if (ioctl(target, FICLONE, source) == 0)
        return {};
    // Before a large file has filled what others need, too.
    if (const std::error_code error = checkRoom(source, target, roomOf))
        return failed(CopyError::Side::Target, error);
    off_t place = 0;
    for (;;) {
        // Before looking for more: what is appended later is not copied, or else it is found.
        struct stat attributes = {};
        if (fstat(source, &attributes) != 0)
            return failed(CopyError::Side::Source, lastError());
        const off_t begin = ::lseek(source, place, SEEK_DATA);
        const bool hasHoles = begin >= 0 || errno == ENXIO;
        if (!hasHoles)
            return copyBytes(source, target, place, std::numeric_limits<off_t>::max(), stop);
        // Nothing but a hole is left, also where the file has just become shorter.
        const off_t end = begin < 0 ? begin : ::lseek(source, begin, SEEK_HOLE);
        if (end < 0)
            return ::ftruncate(target, attributes.st_size) == 0
                       ? Copied()
                       : failed(CopyError::Side::Target, lastError());
        if (Copied copied = copyBytes(source, target, begin, end, stop); !copied)
            return copied;
        place = end;
    }
}

/// What the reading returns, also where there is no memory for it.
template<typename Read>
std::expected<QByteArray, std::error_code> asFarAsMemoryGoes(Read read)
{
    try {
        return read();
    } catch (const std::bad_alloc &) {
        return std::unexpected(std::make_error_code(std::errc::not_enough_memory));
    }
}

QString stampOf(const struct stat &attributes)
{
    return QString::number(attributes.st_size) % u' ' % QString::number(attributes.st_mtim.tv_sec) % u'.' %
           QString::number(attributes.st_mtim.tv_nsec).rightJustified(9, u'0');
}

/// Whether a file that was written to at this time would bear the same time if it were written to now: the
/// clock of the file systems moves on every few milliseconds only. A time that lies far ahead is no such
/// case.
bool isOfThisTick(const timespec &modified)
{
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
    // Any number may stand there.
    if (modified.tv_sec < now.tv_sec || modified.tv_sec > now.tv_sec + 1)
        return false;
    const auto ahead = std::chrono::seconds(modified.tv_sec - now.tv_sec) +
                       std::chrono::nanoseconds(modified.tv_nsec - now.tv_nsec);
    return ahead >= std::chrono::nanoseconds(0) && ahead < std::chrono::milliseconds(20);
}

} // namespace

bool LinuxFiles::exists(const QString &path) const
{
    struct stat attributes = {};
    // Only these say that nothing is there; a refusal says that something may be.
    return ::stat(QFile::encodeName(path).constData(), &attributes) == 0 ||
           (errno != ENOENT && errno != ENOTDIR && errno != ENAMETOOLONG);
}

QString LinuxFiles::fileStamp(const QString &path) const
{
    struct stat attributes = {};
    return ::stat(QFile::encodeName(path).constData(), &attributes) == 0 ? stampOf(attributes) : QString();
}

QString LinuxFiles::lastingStamp(const QString &path) const
{
    const QByteArray name = QFile::encodeName(path);
    struct stat attributes = {};
    for (int looks = 0; looks < 20; ++looks) {
        if (::stat(name.constData(), &attributes) != 0)
            return {};
        if (!isOfThisTick(attributes.st_mtim))
            return stampOf(attributes);
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    // Written to all the time: what comes next may bear the same time.
    static std::atomic<std::uint64_t> restless = 0;
    return stampOf(attributes) % u" restless " % QString::number(++restless);
}

std::expected<QByteArray, std::error_code> LinuxFiles::read(const QString &path) const
{
    const auto file = openForReading(path);
    if (!file)
        return std::unexpected(file.error());
    if (file->size > largestInMemory)
        return std::unexpected(std::make_error_code(std::errc::file_too_large));
    return asFarAsMemoryGoes([&file]() -> std::expected<QByteArray, std::error_code> {
        // The size is only a hint: the file can grow or shrink while it is read.
        QByteArray content;
        content.reserve(static_cast<qsizetype>(file->size) + 1);
        for (;;) {
            const qsizetype before = content.size();
            const qsizetype left = content.capacity() - before;
            const qsizetype room = left > 0 ? left : static_cast<qsizetype>(bytesPerRead);
            content.resize(before + room);
            const ssize_t count =
                ::read(file->descriptor.get(), content.data() + before, static_cast<size_t>(room));
            content.resize(before + std::max<ssize_t>(count, 0));
            if (count < 0 && errno != EINTR)
                return std::unexpected(lastError());
            if (count == 0)
                return content;
        }
    });
}

std::expected<QByteArray, std::error_code> LinuxFiles::readBeginning(const QString &path,
                                                                     qsizetype size) const
{
    const auto file = openForReading(path);
    if (!file)
        return std::unexpected(file.error());
    return asFarAsMemoryGoes([&]() -> std::expected<QByteArray, std::error_code> {
        QByteArray content(size, Qt::Uninitialized);
        const ssize_t count = ::pread(file->descriptor.get(), content.data(), static_cast<size_t>(size), 0);
        if (count < 0)
            return std::unexpected(lastError());
        content.resize(count);
        return content;
    });
}

std::expected<void, CopyError> LinuxFiles::copyFile(const QString &source, const QString &target,
                                                    const std::stop_token &stop) const
{
    const RoomOf roomOf = [this](int descriptor) { return room(descriptor); };
    const auto original = openForReading(source);
    if (!original)
        return failed(CopyError::Side::Source, original.error());
    const QByteArray name = QFile::encodeName(target);
    FileDescriptor duplicate(
        ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, onlyTheUserReads));
    if (!duplicate.isOpen())
        return failed(CopyError::Side::Target, lastError());
    Copied copied = copyContent(original->descriptor.get(), duplicate.get(), roomOf, stop);
    const std::error_code closeError = duplicate.close();
    if (copied && closeError)
        copied = failed(CopyError::Side::Target, closeError);
    if (!copied)
        ::unlink(name.constData());
    return copied;
}

std::expected<void, CopyError> LinuxFiles::copy(const QString &source, const QString &target,
                                                const QStringList &suffixes, const std::stop_token &stop,
                                                const std::function<bool()> &isGood) const
{
    for (int count = 1;; ++count) {
        QStringList made;
        Copied copied = copyFile(source, target, stop);
        if (copied)
            made.append(target);
        for (qsizetype i = 0; copied && i < suffixes.size(); ++i) {
            const Copied besides = copyFile(source + suffixes[i], target + suffixes[i], stop);
            if (besides)
                made.append(target + suffixes[i]);
            else if (besides.error().side == CopyError::Side::Target || stop.stop_requested())
                copied = besides;
        }
        const bool isOver = !copied || !isGood || count == mostCopies || isGood();
        if (copied && isOver)
            return copied;
        for (const QString &file : made)
            removeFile(file);
        if (isOver)
            return copied;
    }
}

bool LinuxFiles::haveSameBytes(const QString &one, const QString &other) const
{
    const auto first = openForReading(one);
    const auto second = openForReading(other);
    if (!first || !second)
        return !first && !second;
    if (first->size != second->size)
        return false;
    std::vector<char> firstBytes(bytesPerRead);
    std::vector<char> secondBytes(bytesPerRead);
    for (off_t place = 0;;) {
        const std::optional<size_t> count = readFully(first->descriptor.get(), firstBytes, place);
        if (!count || readFully(second->descriptor.get(), secondBytes, place) != count ||
            std::memcmp(firstBytes.data(), secondBytes.data(), *count) != 0)
            return false;
        if (*count < firstBytes.size())
            return true;
        place += static_cast<off_t>(*count);
    }
}

std::error_code LinuxFiles::makePrivateFolder(const QString &path) const
{
    const std::filesystem::path folder(QFile::encodeName(path).toStdString());
    std::error_code error;
    std::filesystem::create_directories(folder.parent_path(), error);
    if (error)
        return error;
    return ::mkdir(folder.c_str(), onlyTheUserEnters) == 0 ? std::error_code{} : lastError();
}

void LinuxFiles::removeFile(const QString &path) const
{
    ::unlink(QFile::encodeName(path).constData());
}

void LinuxFiles::removeFolder(const QString &path) const
{
    if (::rmdir(QFile::encodeName(path).constData()) == 0)
        return;
    std::error_code ignored;
    std::filesystem::remove_all(QFile::encodeName(path).toStdString(), ignored);
}

QStringList LinuxFiles::names(const QString &folder) const
{
    QStringList result;
    std::error_code error;
    std::filesystem::directory_iterator entry(QFile::encodeName(folder).toStdString(), error);
    while (!error && entry != std::filesystem::directory_iterator()) {
        result.append(utf8Text(entry->path().filename().string()));
        entry.increment(error);
    }
    return result;
}

bool LinuxFiles::isUsersAlone(const QString &folder) const
{
    struct stat attributes = {};
    // The sticky bit has no other use than to keep users apart who share a folder.
    return ::stat(QFile::encodeName(folder).constData(), &attributes) == 0 && S_ISDIR(attributes.st_mode) &&
           attributes.st_uid == geteuid() && (attributes.st_mode & (S_ISVTX | S_IWOTH)) == 0;
}

bool LinuxFiles::isPrivateFolder(const QString &path) const
{
    struct stat attributes = {};
    // A folder can inherit the bit that hands its group on.
    return ::lstat(QFile::encodeName(path).constData(), &attributes) == 0 && S_ISDIR(attributes.st_mode) &&
           attributes.st_uid == geteuid() && (attributes.st_mode & ACCESSPERMS) == onlyTheUserEnters;
}

bool LinuxFiles::isPlainFile(const QString &path) const
{
    struct stat attributes = {};
    return ::lstat(QFile::encodeName(path).constData(), &attributes) == 0 && S_ISREG(attributes.st_mode);
}

std::optional<std::uint64_t> LinuxFiles::room(int descriptor) const
{
    struct statvfs attributes = {};
    // Some file systems do not say what they have.
    if (fstatvfs(descriptor, &attributes) != 0 || attributes.f_blocks == 0 || attributes.f_frsize == 0)
        return {};
    return std::uint64_t{attributes.f_bavail} * attributes.f_frsize;
}

} // namespace roamlet
