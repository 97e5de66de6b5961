// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"
#include "Platform/FileEvents.h"
#include "Platform/Platform.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

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

    /// Whether the system reports changes of the browsers' files.
    bool isWatching() const { return m_stream != nullptr; }

    /// Also follows profiles that lie elsewhere than right below their browser's data folder. Called whenever
    /// the profiles may have changed, also by `onChange`. Returns the ids of those that were not followed
    /// before: what changed since they were read is not known.
    QSet<QString> setProfiles(const QList<Source> &profiles);

    /// The id of the source that owns the file at `path`, or nothing when it is no file that is read. Every
    /// folder right below a data folder may be a profile's.
    static std::optional<QString> sourceID(const QString &path, const BrowserFolders &folders);

private:
    void handle(const QStringList &paths);
    std::unique_ptr<FileEvents::Stream> open(const QStringList &folders);

    Platform m_platform;
    Handler m_onChange;
    /// The last stamp seen of each file.
    QHash<QString, QString> m_stamps;
    /// The profiles that lie elsewhere, by folder. Two installations may list the same one.
    QMultiHash<QString, Source> m_profilesElsewhere;
    std::unique_ptr<FileEvents::Stream> m_stream;
    /// The folders of profiles that lie elsewhere, and what reports from them: a stream for those that came
    /// together, as what one has gathered would be lost with it.
    QSet<QString> m_foldersElsewhere;
    std::vector<std::unique_ptr<FileEvents::Stream>> m_streamsElsewhere;
};

} // namespace roamlet
