// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"
#include "Platform/BackgroundTasks.h"
#include "Platform/FileEvents.h"
#include "Platform/Platform.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace roamlet
{

struct BrowserFolders;

/// Tells which sources changed on disk. On the main thread. Folders of which the system does not tell every
/// change are looked at from time to time; where it offers no file events at all, nothing is ever reported.
class BrowserWatcher
{
public:
    using Handler = std::function<void(const QSet<QString> &sourceIDs)>;

    /// How long the files that nobody tells of are left alone between two looks.
    static constexpr std::chrono::minutes lookInterval{1};

    /// Watches from now on; `onChange` gets the ids of the sources whose files really changed. `onLimit` is
    /// called once, perhaps right now, when the system has no more watches to give. `onSilence` is called
    /// with the folders, each of them once, that are only looked at from time to time for another reason.
    BrowserWatcher(const Platform &platform, Handler onChange, std::function<void()> onLimit = {},
                   std::function<void(const QStringList &folders)> onSilence = {});

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
    /// The stamps of files by their paths.
    using Stamps = QHash<QString, QString>;

    void handle(const QStringList &paths);
    std::unique_ptr<FileEvents::Stream> open(const QStringList &folders);
    /// Asks the streams what they do not tell, and looks there from now on.
    void lookWhereNobodyTells();
    void look(const QStringList &folders);
    /// What changed since the last look at these folders.
    void compare(const QStringList &folders, const Stamps &stamps);

    Platform m_platform;
    Handler m_onChange;
    std::function<void()> m_onLimit;
    bool m_isLimitReached = false;
    std::function<void(const QStringList &folders)> m_onSilence;
    /// What was told of.
    QSet<QString> m_silentFolders;
    /// The last stamp seen of each file.
    QHash<QString, QString> m_stamps;
    /// The profiles that lie elsewhere, by folder. Two installations may list the same one.
    QMultiHash<QString, Source> m_profilesElsewhere;
    std::unique_ptr<FileEvents::Stream> m_stream;
    /// The folders of profiles that lie elsewhere, and what reports from them: a stream for those that came
    /// together, as what one has gathered would be lost with it.
    QSet<QString> m_foldersElsewhere;
    std::vector<std::unique_ptr<FileEvents::Stream>> m_streamsElsewhere;
    /// The folders that are looked at, and what stood there at the last look.
    QSet<QString> m_knownFolders;
    Stamps m_knownStamps;
    /// Whether somebody looks, or will.
    bool m_isLooking = false;
    QObject m_context;
    BackgroundTasks m_tasks;
};

} // namespace roamlet
