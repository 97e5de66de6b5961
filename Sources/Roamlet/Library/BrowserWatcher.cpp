// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/BrowserWatcher.h"

#include "Model/Browser.h"
#include "Platform/BrowserFolders.h"
#include "Platform/Files.h"
#include "Platform/Folders.h"
#include "Readers/BrowserReader.h"

#include <algorithm>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

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
QStringList watchedFolders(const Platform &platform)
{
    QStringList result = platform.folders.dataFolders(Source::Kind::Safari, {});
    result += BrowserFolders::of(platform.folders, platform.files).safariProfiles();
    for (const Browser &browser : Browser::all()) {
        if (browser.family == Browser::Family::Safari)
            continue;
        for (const Browser::Installation &installation : browser.installations)
            result += platform.folders.dataFolders(browser.kind, installation.key);
    }
    return result;
}

/// A source as far as its id needs it.
QString idOf(Source::Kind kind, QStringView profile, const QString &installation = {})
{
    return Source{.kind = kind,
                  .profile = profile.toString(),
                  .name = {},
                  .safariBookmarks = {},
                  .installation = installation}
        .id();
}

} // namespace

BrowserWatcher::BrowserWatcher(const Platform &platform, Handler onChange)
    : m_platform(platform), m_onChange(std::move(onChange)), m_stream(open(watchedFolders(platform)))
{
}

std::unique_ptr<FileEvents::Stream> BrowserWatcher::open(const QStringList &folders)
{
    return m_platform.fileEvents.open(folders, [this](const QStringList &paths) { handle(paths); });
}

void BrowserWatcher::setProfiles(const QList<Source> &profiles)
{
    const BrowserFolders folders = BrowserFolders::of(m_platform.folders, m_platform.files);
    QHash<QString, Source> far;
    for (const Source &source : profiles) {
        const QStringList roots = folders.roots(source);
        const QString folder = folders.profile(source, m_platform.files);
        const auto [parent, name] = split(folder);
        const bool isKnownByPlace = roots.contains(parent) && source.profile == name;
        if (!roots.isEmpty() && !isKnownByPlace)
            far.insert(folder, source);
    }
    if (far == m_farProfiles)
        return;
    m_farProfiles = far;
    m_farStream = far.isEmpty() ? nullptr : open(far.keys());
}

void BrowserWatcher::handle(const QStringList &paths)
{
    const BrowserFolders folders = BrowserFolders::of(m_platform.folders, m_platform.files);
    QSet<QString> changed;
    for (const QString &path : paths) {
        std::optional<QString> id = sourceID(path, folders);
        const auto [folder, name] = split(path);
        const auto far = m_farProfiles.constFind(folder.toString());
        if (far != m_farProfiles.cend() && BrowserReader::isRead(name, far->kind))
            id = far->id();
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
    if (BrowserReader::isRead(name, Source::Kind::Safari)) {
        if (folder == folders.safari)
            return Source::safari().id();
        if (parent == folders.safariProfiles())
            return idOf(Source::Kind::Safari, profile);
    }
    for (const BrowserFolders::Installation &installation : folders.installations) {
        const bool isHere = std::ranges::any_of(
            installation.roots, [parent = parent](const QString &root) { return parent == root; });
        if (isHere && BrowserReader::isRead(name, installation.browser))
            return idOf(installation.browser, profile, installation.key);
    }
    return {};
}

} // namespace roamlet
