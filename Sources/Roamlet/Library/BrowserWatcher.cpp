// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/BrowserWatcher.h"

#include "Model/Source.h"
#include "Platform/Files.h"
#include "Platform/Folders.h"
#include "Readers/ReadContext.h"

#include <algorithm>
#include <array>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

constexpr std::array safariFiles{"Bookmarks.plist"_L1, "History.db"_L1, "History.db-wal"_L1};
constexpr std::array chromiumFiles{"Bookmarks"_L1, "History"_L1, "History-wal"_L1};

bool contains(const auto &names, QStringView name)
{
    return std::ranges::any_of(names, [name](QLatin1StringView candidate) { return name == candidate; });
}

struct SplitPath {
    QStringView folder;
    QStringView name;
};

/// A path's last component and what stands before it.
SplitPath split(QStringView path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash < 0 ? SplitPath{{}, path} : SplitPath{path.first(slash), path.sliced(slash + 1)};
}

/// Every place where data may lie now or later: a browser can be installed while we run.
QStringList watchedFolders(const Folders &folders)
{
    QStringList result = folders.dataRootCandidates(Source::rawValue(Source::Kind::Safari));
    result += BrowserFolders::of(folders).safariProfiles();
    for (const Source::Kind kind : Source::chromium)
        result += folders.dataRootCandidates(Source::rawValue(kind));
    return result;
}

} // namespace

BrowserWatcher::BrowserWatcher(const Platform &platform, Handler onChange)
    : m_platform(platform),
      m_onChange(std::move(onChange)),
      m_stream(platform.fileEvents.open(watchedFolders(platform.folders),
                                        [this](const QStringList &paths) { handle(paths); }))
{
}

void BrowserWatcher::handle(const QStringList &paths)
{
    const BrowserFolders folders = BrowserFolders::of(m_platform.folders);
    QSet<QString> changed;
    for (const QString &path : paths) {
        const std::optional<QString> id = sourceID(path, folders);
        if (!id)
            continue;
        const QString stamp = m_platform.files.fileStamp(path);
        const auto previous = m_stamps.constFind(path);
        if (previous == m_stamps.cend() || *previous != stamp)
            changed.insert(*id);
        m_stamps.insert(path, stamp);
    }
    if (!changed.isEmpty())
        m_onChange(changed);
}

std::optional<QString> BrowserWatcher::sourceID(const QString &path, const BrowserFolders &folders)
{
    const auto [folder, name] = split(path);
    const auto [parent, profile] = split(folder);
    const auto profileID = [profile = profile](Source::Kind kind) -> QString {
        return Source{.kind = kind, .profile = profile.toString(), .name = {}, .safariBookmarks = {}}.id();
    };
    if (contains(safariFiles, name)) {
        if (folder == folders.safari)
            return Source::safari().id();
        if (parent == folders.safariProfiles())
            return profileID(Source::Kind::Safari);
    }
    if (contains(chromiumFiles, name)) {
        for (const Source::Kind kind : Source::chromium) {
            if (parent == folders.chromium(kind))
                return profileID(kind);
        }
    }
    return {};
}

} // namespace roamlet
