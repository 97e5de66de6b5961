// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <functional>
#include <memory>

namespace roamlet
{

/// Reports changed files. On the main thread.
class FileEvents
{
public:
    /// Lives as long as somebody listens; destroying it ends the reports.
    class Stream
    {
    public:
        Stream() = default;
        Stream(const Stream &) = delete;
        Stream &operator=(const Stream &) = delete;
        virtual ~Stream() = default;

        /// The folders, of those that were asked for, of which not every change is reported at present:
        /// their file system does not tell what other machines change, or the system's limit on such reports
        /// is reached.
        virtual QStringList silentFolders() const { return {}; }
        /// Whether that limit is reached. It stays so.
        virtual bool isLimitReached() const { return false; }
    };
    /// Gets the paths of files that were changed, created, replaced or removed since the last report; none of
    /// them when only the silent folders are others now.
    using Handler = std::function<void(const QStringList &paths)>;

    FileEvents() = default;
    FileEvents(const FileEvents &) = delete;
    FileEvents &operator=(const FileEvents &) = delete;
    virtual ~FileEvents() = default;

    /// Reports the files in `folders` and in their direct subfolders, from now on, gathered over about 2 s.
    /// Folders that do not exist yet are picked up when they appear, and a folder is always the one that now
    /// has its name. Null when the system offers no such reports, or none about any of these folders.
    virtual std::unique_ptr<Stream> open(const QStringList &folders, Handler handler) = 0;
};

} // namespace roamlet
