// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/FileEvents.h"
#include "Platform/Platform.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace roamlet
{

struct BrowserFolders;

/// Tells which sources changed on disk. On the main thread. Where the system offers no file events it never
/// reports.
class BrowserWatcher
{
public:
    using Handler = std::function<void(const QSet<QString> &sourceIDs)>;

    /// Watches from now on; `onChange` gets the ids of the sources whose files really changed.
    BrowserWatcher(const Platform &platform, Handler onChange);

    /// The id of the source that owns the file at `path`, or nothing when it is no file that is read.
    static std::optional<QString> sourceID(const QString &path, const BrowserFolders &folders);

private:
    void handle(const QStringList &paths);

    Platform m_platform;
    Handler m_onChange;
    /// The last stamp seen of each file.
    QHash<QString, QString> m_stamps;
    std::unique_ptr<FileEvents::Stream> m_stream;
};

} // namespace roamlet
