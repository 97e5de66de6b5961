// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Support/FolderFingerprint.h"

#include <QFile>
#include <QHashFunctions>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <ostream>
#include <vector>

namespace roamlet::testing
{

namespace
{

/// Nothing where the file cannot be read. A cryptographic digest would take half the time of the tests that
/// damage files by the thousand.
std::optional<size_t> hashOfFile(const std::string &path)
{
    // The path goes to the system as it is: a file's name need not be text.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    if (descriptor < 0)
        return {};
    size_t hash = 0;
    std::vector<char> part(size_t{256} << 10U);
    ssize_t length = 0;
    while ((length = ::read(descriptor, part.data(), part.size())) > 0)
        hash = qHashBits(part.data(), static_cast<size_t>(length), hash);
    ::close(descriptor);
    return length < 0 ? std::nullopt : std::optional(hash);
}

size_t hashOfLink(const std::string &path)
{
    std::error_code error;
    return std::hash<std::string>()(std::filesystem::read_symlink(path, error).string());
}

} // namespace

FolderFingerprint::FolderFingerprint(const QString &folder)
{
    const std::filesystem::path root = QFile::encodeName(folder).toStdString();
    add(".", root.string());

    std::error_code error;
    constexpr auto options = std::filesystem::directory_options::skip_permission_denied;
    for (std::filesystem::recursive_directory_iterator it(root, options, error), end; !error && it != end;
         it.increment(error)) {
        add(it->path().lexically_relative(root).string(), it->path().string());
    }
}

void FolderFingerprint::add(const std::string &relativePath, const std::string &path)
{
    struct stat status = {};
    if (::lstat(path.c_str(), &status) != 0)
        return;
    Entry entry{
        .mode = status.st_mode,
        .size = status.st_size,
        .modified = status.st_mtim.tv_sec * 1'000'000'000 + status.st_mtim.tv_nsec,
        .hash = {},
    };
    if (S_ISREG(status.st_mode))
        entry.hash = hashOfFile(path);
    else if (S_ISLNK(status.st_mode))
        entry.hash = hashOfLink(path);
    m_entries.emplace(relativePath, std::move(entry));
}

std::string FolderFingerprint::differencesTo(const FolderFingerprint &later) const
{
    std::string text;
    for (const auto &[path, entry] : m_entries) {
        const auto found = later.m_entries.find(path);
        if (found == later.m_entries.end()) {
            text += path + ": is gone\n";
            continue;
        }
        const Entry &other = found->second;
        if (entry.mode != other.mode)
            text += path + ": has another mode\n";
        if (entry.size != other.size || entry.hash != other.hash)
            text += path + ": has other bytes\n";
        if (entry.modified != other.modified)
            text += path + ": has another modification time\n";
    }
    for (const auto &[path, entry] : later.m_entries) {
        if (!m_entries.contains(path))
            text += path + ": is new\n";
    }
    return text;
}

std::ostream &operator<<(std::ostream &stream, const FolderFingerprint &fingerprint)
{
    return stream << "fingerprint of " << fingerprint.entries().size() << " files and folders";
}

} // namespace roamlet::testing
