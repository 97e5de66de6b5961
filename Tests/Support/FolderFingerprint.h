// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>
#include <iosfwd>
#include <map>
#include <optional>
#include <string>

namespace roamlet::testing
{

/// Everything about the files below a folder that a program which only reads must leave as it was.
///
/// Two fingerprints of the same folder compare equal when no file or folder was added, removed, written,
/// touched or given another mode in between. Access times are left out, since reading may change them.
class FolderFingerprint final
{
public:
    struct Entry {
        /// Kind of file and permission bits, as the system reports them.
        std::uint32_t mode = 0;
        std::int64_t size = 0;
        /// Modification time in nanoseconds since 1970.
        std::int64_t modified = 0;
        /// SHA-256 of a file's bytes or of a link's target; empty for everything else and for what cannot be
        /// read.
        std::optional<size_t> hash;

        bool operator==(const Entry &) const = default;
    };

    FolderFingerprint() = default;
    /// Takes the fingerprint now. The folder itself is the entry "."; a folder that is missing has no
    /// entries.
    explicit FolderFingerprint(const QString &folder);

    bool operator==(const FolderFingerprint &) const = default;

    /// By path relative to the folder, in the file system's own bytes.
    const std::map<std::string, Entry> &entries() const { return m_entries; }

    /// One line for each difference to a fingerprint taken later; empty when nothing changed.
    std::string differencesTo(const FolderFingerprint &later) const;

private:
    void add(const std::string &relativePath, const std::string &path);

    std::map<std::string, Entry> m_entries;
};

/// Lets a failed expectation say what was fingerprinted instead of dumping bytes.
std::ostream &operator<<(std::ostream &stream, const FolderFingerprint &fingerprint);

} // namespace roamlet::testing
