// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Library/BrowserWatcher.h"
#include "Library/HistorySearch.h"
#include "Library/ProfileChoice.h"
#include "Library/RecentPages.h"
#include "Library/SearchCache.h"
#include "Library/SiteIcons.h"
#include "Library/Snapshot.h"
#include "Model/HistoryQuery.h"
#include "Platform/BackgroundTasks.h"
#include "Platform/Platform.h"
#include "Readers/ReadContext.h"

#include <QImage>
#include <QList>
#include <QObject>
#include <QSet>

#include <memory>
#include <optional>

namespace roamlet
{

/// The one store: finds the profiles, reads the enabled ones in parallel into one immutable snapshot, answers
/// history searches, watches the browsers' files and reads again what changed. On the main thread.
class Library final : public QObject
{
    Q_OBJECT

public:
    using Snapshot = roamlet::Snapshot;

    explicit Library(const Platform &platform, QObject *parent = nullptr);
    ~Library() override;

    /// Sweeps away what dead runs left behind, starts the first full load and watches the browsers' files.
    /// Once.
    void start();
    /// Asks for a reload of the given sources, or of everything. Requests that come while a load runs are
    /// merged into one further pass.
    void load(const std::optional<QSet<QString>> &only);
    /// Switches a profile on or off, for good, and reloads.
    void setEnabled(bool isEnabled, const Source &source);
    /// Moves the profiles at these offsets of the user's order to `destination`, counted before the move.
    void moveProfiles(const QSet<qsizetype> &offsets, qsizetype destination);
    /// A menu opened or closed on screen: the recent list does not change under the pointer.
    void setMenuOpen(bool isOpen);
    /// A question to the source with this id, or to all in the user's order, which is to be answered away
    /// from the main thread.
    HistorySearch queryHistory(const HistoryQuery &query, const std::optional<QString> &sourceID) const;

    /// Somebody may search soon: what it takes to answer at once is read into memory and kept for a minute.
    void expectSearch();
    /// Somebody searches, or does so no longer: it is kept until a minute after that.
    void setSearching(bool isSearching);
    /// Nobody looks any more: it is let go.
    void endSearch() { m_searchCache.clear(); }
    /// What is in memory is old, or not all there is.
    void renewSearch();
    /// Whether histories are in memory, so that the answer to a search may be.
    bool isReadyForSearch() const { return m_searchCache.hasTexts(); }

    const Snapshot &snapshot() const { return m_snapshot; }
    bool isLoading() const { return m_isLoading; }
    /// Whether the system had not enough watches for the browsers' files, so that changes may be seen late.
    bool isWatchLimitReached() const { return m_isWatchLimitReached; }
    /// When the last load finished; nothing before the first one has.
    std::optional<PointInTime> lastLoaded() const { return m_lastLoaded; }
    /// Goes up by one with every snapshot; what is computed from a snapshot is kept under it.
    int generation() const { return m_generation; }
    /// The ten pages visited last, for the menu.
    const QList<HistoryItem> &menuRecent() const { return m_recent.pages(); }
    /// The lastLoaded() that menuRecent() reflects.
    std::optional<PointInTime> menuUpdated() const { return m_recent.updated(); }
    /// The ids of the profiles that are switched off.
    const QSet<QString> &disabledProfiles() const { return m_choice.disabled(); }

    /// The sources in the user's order; the ones that the order does not know follow in the order given.
    QList<Source> ordered(const QList<Source> &sources) const { return m_choice.ordered(sources); }
    /// The enabled source with this id.
    std::optional<Source> source(const std::optional<QString> &id) const;
    /// A source's root nodes, or one folder for each source.
    QList<BookmarkNode> bookmarkTree(const std::optional<QString> &sourceID) const;
    /// The icon of a site, decoded at most once for each snapshot; nothing where there is none or it is
    /// broken.
    std::optional<QImage> favicon(const QString &site) { return m_icons.image(site); }

Q_SIGNALS:
    /// A new snapshot stands, under a new generation.
    void snapshotChanged();
    void isLoadingChanged();
    void watchLimitReached();
    void lastLoadedChanged();
    void menuRecentChanged();
    void disabledProfilesChanged();
    void sourceOrderChanged();

private:
    void readNext();
    void publish(Snapshot snapshot);
    void filesChanged(const QSet<QString> &sourceIDs);
    void noteWatchLimit();
    /// Tells of lists of profiles that could not be read, once.
    void noteUnreadableLists(const QStringList &errors);
    void refreshMenu();

    Platform m_platform;
    /// Of the latest reading: looking for the folders of every browser takes longer than a letter may.
    ReadContext m_context;
    Snapshot m_snapshot;
    bool m_isLoading = false;
    bool m_isWatchLimitReached = false;
    std::optional<PointInTime> m_lastLoaded;
    int m_generation = 0;
    QSet<QString> m_pendingIDs;
    bool m_pendingAll = false;
    bool m_isReloadPending = false;
    QStringList m_unreadableLists;
    RecentPages m_recent;
    SiteIcons m_icons;
    ProfileChoice m_choice;
    SearchCache m_searchCache;
    std::unique_ptr<BrowserWatcher> m_watcher;
    BackgroundTasks m_tasks;
};

} // namespace roamlet
