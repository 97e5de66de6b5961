// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/Library.h"

#include "Library/LibraryReading.h"
#include "Platform/Clock.h"
#include "Platform/Confinement.h"
#include "Platform/Folders.h"
#include "Readers/Files/SQLiteSnapshot.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Browsers write in bursts; one reload is enough for each.
constexpr std::chrono::seconds reloadDelay{5};

/// What a pass of reading ends in.
struct Pass {
    Snapshot snapshot;
    QStringList unreadableLists;
};

} // namespace

Library::Library(const Platform &platform, QObject *parent)
    : QObject(parent),
      m_platform(platform),
      m_icons(platform.files),
      m_choice(platform.defaults),
      m_searchCache(platform)
{
}

Library::~Library() = default;

void Library::start()
{
    m_tasks.run(
        this,
        [files = &m_platform.files, temporary = m_platform.folders.temporary()](const std::stop_token &) {
            SQLiteSnapshot::removeLeftovers(*files, temporary);
            return true;
        },
        [](bool) {});
    load({});
    m_watcher = std::make_unique<BrowserWatcher>(
        m_platform, [this](const QSet<QString> &sourceIDs) { filesChanged(sourceIDs); },
        [this] { noteWatchLimit(); });
}

void Library::load(const std::optional<QSet<QString>> &only)
{
    if (only)
        m_pendingIDs.unite(*only);
    else
        m_pendingAll = true;
    // The running load sees the new request when its pass ends.
    if (m_isLoading)
        return;
    m_isLoading = true;
    Q_EMIT isLoadingChanged();
    readNext();
}

void Library::readNext()
{
    if (!m_pendingAll && m_pendingIDs.isEmpty()) {
        m_lastLoaded = m_platform.clock.now();
        m_isLoading = false;
        Q_EMIT lastLoadedChanged();
        Q_EMIT isLoadingChanged();
        refreshMenu();
        return;
    }
    const bool isFull = std::exchange(m_pendingAll, false);
    const QSet<QString> ids = std::exchange(m_pendingIDs, {});
    const LibraryReading::Request request{.disabled = m_choice.disabled(),
                                          .only = isFull ? std::nullopt : std::optional(ids),
                                          .previous = m_snapshot};
    m_context = LibraryReading::readContext(m_platform);
    m_tasks.run(
        this,
        [request, context = m_context, clock = &m_platform.clock](const std::stop_token &stop) {
            Confinement::ofReadingThread(context.folders.temporary);
            ReadContext stoppable = context;
            stoppable.stop = stop;
            Pass pass;
            stoppable.onUnreadableList = [&pass](const ReadError &error) {
                pass.unreadableLists.append(error.errorDescription());
            };
            pass.snapshot = LibraryReading::readAll(request, stoppable, *clock);
            return pass;
        },
        [this](Pass pass) {
            noteUnreadableLists(pass.unreadableLists);
            publish(std::move(pass.snapshot));
            readNext();
        });
}

void Library::noteUnreadableLists(const QStringList &errors)
{
    // Each pass finds the same.
    const QStringList known = std::exchange(m_unreadableLists, errors);
    for (const QString &error : errors) {
        if (!known.contains(error))
            qWarning("roamlet: %s", qPrintable(error));
    }
}

void Library::publish(Snapshot snapshot)
{
    m_snapshot = std::move(snapshot);
    m_icons.setFavicons(m_snapshot.favicons);
    ++m_generation;
    Q_EMIT snapshotChanged();
    if (!m_watcher)
        return;
    // Nobody has told what happened between their reading and now.
    if (const QSet<QString> ids = m_watcher->setProfiles(m_snapshot.browserProfiles); !ids.isEmpty())
        filesChanged(ids);
}

void Library::setEnabled(bool isEnabled, const Source &source)
{
    m_choice.setEnabled(isEnabled, source);
    Q_EMIT disabledProfilesChanged();
    load({});
}

void Library::moveProfiles(const QSet<qsizetype> &offsets, qsizetype destination)
{
    m_choice.move(m_snapshot.browserProfiles, offsets, destination);
    Q_EMIT sourceOrderChanged();
}

void Library::setMenuOpen(bool isOpen)
{
    m_recent.setMenuOpen(isOpen);
    if (!isOpen)
        refreshMenu();
}

void Library::refreshMenu()
{
    if (m_recent.update(m_snapshot.history, m_lastLoaded))
        Q_EMIT menuRecentChanged();
}

void Library::filesChanged(const QSet<QString> &sourceIDs)
{
    m_pendingIDs.unite(sourceIDs);
    // The delay is not started again, or a browser that never rests would never be read.
    if (m_isReloadPending)
        return;
    m_isReloadPending = true;
    m_platform.clock.after(reloadDelay, this, [this] {
        m_isReloadPending = false;
        load(QSet<QString>());
    });
}

void Library::noteWatchLimit()
{
    qWarning("roamlet: the system has no more watches for the browsers' files (fs.inotify.max_user_watches, "
             "fs.inotify.max_user_instances); they are looked at once a minute");
    m_isWatchLimitReached = true;
    Q_EMIT watchLimitReached();
}

HistorySearch Library::queryHistory(const HistoryQuery &query, const std::optional<QString> &sourceID) const
{
    QList<Source> sources = ordered(m_snapshot.sources);
    if (sourceID)
        sources.removeIf([&sourceID](const Source &source) { return source.id() != *sourceID; });
    return {query, sources, m_snapshot, m_searchCache.texts(), m_context};
}

void Library::expectSearch()
{
    m_searchCache.expectSearch(ordered(m_snapshot.sources));
}

void Library::setSearching(bool isSearching)
{
    m_searchCache.setSearching(isSearching, ordered(m_snapshot.sources));
}

void Library::renewSearch()
{
    m_searchCache.renew(ordered(m_snapshot.sources));
}

std::optional<Source> Library::source(const std::optional<QString> &id) const
{
    if (!id)
        return {};
    const QList<Source> sources = ordered(m_snapshot.sources);
    const auto found = std::ranges::find(sources, *id, &Source::id);
    return found == sources.end() ? std::nullopt : std::optional(*found);
}

QList<BookmarkNode> Library::bookmarkTree(const std::optional<QString> &sourceID) const
{
    if (sourceID)
        return m_snapshot.bookmarkTrees.value(*sourceID);
    QList<BookmarkNode> result;
    for (const Source &source : ordered(m_snapshot.sources)) {
        BookmarkNode folder;
        folder.id = BookmarkNode::idOfSource(source);
        folder.title = source.label();
        folder.source = source;
        folder.children = m_snapshot.bookmarkTrees.value(source.id());
        result.append(std::move(folder));
    }
    return result;
}

} // namespace roamlet
