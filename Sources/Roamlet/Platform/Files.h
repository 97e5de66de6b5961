// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <system_error>

#include <expected>
#include <functional>
#include <stop_token>

namespace roamlet
{

/// Why a copy could not be made.
struct CopyError {
    /// What could not be read or written. A copy that was interrupted failed on neither side; it counts as
    /// the source's.
    enum class Side { Source, Target };

    Side side = Side::Source;
    std::error_code code;
};

/// What is needed of the file system. All operations may be called from any thread. Nothing here ever opens
/// one of the given sources for writing, and nothing blocks on a pipe or a device that stands where a file is
/// expected.
class Files
{
public:
    static constexpr int mostCopies = 200;

    Files() = default;
    Files(const Files &) = delete;
    Files &operator=(const Files &) = delete;
    virtual ~Files() = default;

    /// Whether anything stands at `path`, also when it may not be looked into.
    virtual bool exists(const QString &path) const = 0;
    /// The file's size and its modification time to the nanosecond, or an empty text when its attributes
    /// cannot be read. Of a file that is written to twice within a few milliseconds both may be the same.
    virtual QString fileStamp(const QString &path) const = 0;
    /// The same, of which two equal ones mean an unchanged file. Where the file was written to just now, it
    /// takes a few milliseconds until that can be said; not on the main thread. Of one that is written to
    /// without rest, no two are equal.
    virtual QString lastingStamp(const QString &path) const = 0;
    /// The whole file.
    virtual std::expected<QByteArray, std::error_code> read(const QString &path) const = 0;
    /// As many of its first bytes as it has, and no more than `size`.
    virtual std::expected<QByteArray, std::error_code> readBeginning(const QString &path,
                                                                     qsizetype size) const = 0;
    /// Copies the bytes of `source` into a new file that only the user can read, as sparse as they are, and
    /// then in the same way what stands beside it with one of the `suffixes`, where there is something that
    /// can be read. A copy that fails, or that `stop` interrupts (std::errc::operation_canceled), leaves no
    /// file of the name `target`. Whoever names `isGood` is asked when all is copied, and where it says no
    /// all is copied again, `mostCopies` times in all.
    virtual std::expected<void, CopyError> copy(const QString &source, const QString &target,
                                                const QStringList &suffixes, const std::stop_token &stop,
                                                const std::function<bool()> &isGood) const = 0;
    /// Whether both files can be read and hold the same bytes, or neither can be.
    virtual bool haveSameBytes(const QString &one, const QString &other) const = 0;
    /// Makes a folder that only the user can enter, and the folders above it.
    virtual std::error_code makePrivateFolder(const QString &path) const = 0;
    /// Removes a file, or the link that stands in its place. A failure is ignored.
    virtual void removeFile(const QString &path) const = 0;
    /// Removes a folder with everything in it, without following links. A failure is ignored. An empty one is
    /// removed also where the process may not open anything more.
    virtual void removeFolder(const QString &path) const = 0;
    /// The names in a folder; none when it cannot be listed.
    virtual QStringList names(const QString &folder) const = 0;
    /// Whether this folder is the user's alone. In one of another user's, and in one that several users
    /// share, things lie that are none of ours.
    virtual bool isUsersAlone(const QString &folder) const = 0;
    /// Whether a folder stands at `path`, and no link to one, as makePrivateFolder() has left it.
    virtual bool isPrivateFolder(const QString &path) const = 0;
    /// Whether a plain file stands at `path`, and no link to one.
    virtual bool isPlainFile(const QString &path) const = 0;
};

} // namespace roamlet
