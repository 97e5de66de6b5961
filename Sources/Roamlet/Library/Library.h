// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Library/BackgroundTasks.h"
#include "Library/BrowserWatcher.h"
#include "Model/Bookmark.h"
#include "Model/Favicon.h"
#include "Model/HistoryQuery.h"
#include "Model/ReadError.h"
#include "Platform/Platform.h"
#include "Readers/ReadContext.h"

#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

namespace roamlet
{

/// The one store: finds the profiles, reads the enabled ones in parallel into one immutable snapshot, answers
/// history searches, watches the browsers' files and reads again what changed. On the main thread; the static
/// operations run on any thread.
class Library final : public QObject
{
    Q_OBJECT

public:
    /// What was read last, as one value.
    struct Snapshot {
        /// The enabled sources, in the order of the browsers and, in each, of its profiles.
        QList<Source> sources;
        /// Every profile that was found, enabled or not, in the same order.
        QList<Source> browserProfiles;
        /// Each source's root nodes, by source id.
        QHash<QString, QList<BookmarkNode>> bookmarkTrees;
        /// The ids of the sources whose bookmarks their browser keeps in encrypted form only.
        QSet<QString> encryptedBookmarks;
        /// Every source's bookmarks, in the order of `sources`.
        QList<Bookmark> bookmarks;
        /// Each source's latest rows, newest first, in the order of `sources`.
        QList<HistoryItem> history;
        /// By source id, what its rows in `history` were read from and in what state that was; nothing where
        /// it could not be read.
        QHash<QString, QString> historyStates;
        /// What went wrong, a line for each failed part, by source id.
        QHash<QString, QString> problems;
        /// Whether the system refused access to files of Safari's.
        bool safariBlocked = false;
        /// Each source's icons, by source id.
        QHash<QString, Favicons> sourceFavicons;
        /// All icons; for a site that several sources know, the first source's.
        Favicons favicons;

        bool operator==(const Snapshot &) const = default;
    };

    /// What a reading pass is to do.
    struct ReadRequest {
        /// The ids of the sources that are switched off.
        QSet<QString> disabled;
        /// The ids of the sources to read anew; absent for all.
        std::optional<QSet<QString>> only;
        /// What the others are taken from, and what a source keeps where it cannot be read.
        Snapshot previous;
    };

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
    /// Runs a query against the source with this id, or against all, away from the main thread, and hands the
    /// results to `deliver` on the main thread, unless `context` is gone by then. Requesting a stop drops the
    /// search. The latest rows come from the snapshot where its files have not changed since.
    std::stop_source queryHistory(const HistoryQuery &query, const std::optional<QString> &sourceID,
                                  QObject *context, std::function<void(HistoryResults)> deliver);

    const Snapshot &snapshot() const { return m_snapshot; }
    bool isLoading() const { return m_isLoading; }
    /// When the last load finished; nothing before the first one has.
    std::optional<PointInTime> lastLoaded() const { return m_lastLoaded; }
    /// Goes up by one with every snapshot; what is computed from a snapshot is kept under it.
    int generation() const { return m_generation; }
    /// The ten pages visited last, for the menu.
    const QList<HistoryItem> &menuRecent() const { return m_menuRecent; }
    /// The lastLoaded() that menuRecent() reflects.
    std::optional<PointInTime> menuUpdated() const { return m_menuUpdated; }
    /// The ids of the profiles that are switched off.
    const QSet<QString> &disabledProfiles() const { return m_disabledProfiles; }

    /// The sources in the user's order; the ones that the order does not know follow in the order given.
    QList<Source> ordered(const QList<Source> &sources) const;
    /// The enabled source with this id.
    std::optional<Source> source(const std::optional<QString> &id) const;
    /// A source's root nodes, or one folder for each source.
    QList<BookmarkNode> bookmarkTree(const std::optional<QString> &sourceID) const;
    /// The icon of a site, decoded at most once for each snapshot; nothing where there is none or it is
    /// broken.
    std::optional<QImage> favicon(const QString &site);

    /// The latest pages of the source with this id, or of all, as the snapshot holds them.
    QList<HistoryItem> recentHistory(const std::optional<QString> &sourceID) const;

    /// Every profile of every browser, in the order of the browsers: Safari's (the known ones where given),
    /// then Chrome's, Edge's and so on. A machine without any Safari data has no Safari profile. Of a list
    /// that cannot be read now, the profiles among `known` stay.
    static QList<Source> allProfiles(const std::optional<QList<Source>> &knownSafari,
                                     const ReadContext &context, const QList<Source> &known = {});
    /// Reads the enabled profiles in parallel, as many at a time as there are cores. Never fails: what cannot
    /// be read becomes a problem text.
    static Snapshot readAll(const ReadRequest &request, const ReadContext &context, const Clock &clock);
    /// Gets a source that could not be read, and why.
    using ProblemHandler = std::function<void(const Source &source, const ReadError &error)>;
    /// Runs a query on these sources in parallel. The rows come unsorted, source by source as they finish; a
    /// source that cannot be read has none. In the end `report` gets these, on the caller's thread and in the
    /// order of `sources`.
    static HistoryResults history(const HistoryQuery &query, const QList<Source> &sources,
                                  const ReadContext &context, const ProblemHandler &report = {});
    /// The latest rows of these sources: those of `snapshot` where its files have not changed since, and what
    /// the databases hold for all others.
    static HistoryResults latestHistory(const QList<Source> &sources, const Snapshot &snapshot,
                                        const ReadContext &context);
    /// The profiles that the user has switched off, by id.
    static QSet<QString> storedDisabledProfiles(const UserDefaults &defaults);
    /// What the readers need to know about this platform, with no stop requested.
    static ReadContext readContext(const Platform &platform);

Q_SIGNALS:
    /// A new snapshot stands, under a new generation.
    void snapshotChanged();
    void isLoadingChanged();
    void lastLoadedChanged();
    void menuRecentChanged();
    void disabledProfilesChanged();
    void sourceOrderChanged();

private:
    /// The ids of the profiles that are switched off,
    static constexpr QStringView disabledProfilesKey = u"disabledProfiles";
    /// and the older form, which knew Chrome's profiles only, by folder name.
    static constexpr QStringView disabledChromeProfilesKey = u"disabledChromeProfiles";

    void readNext();
    void publish(Snapshot snapshot);
    void filesChanged(const QSet<QString> &sourceIDs);
    void refreshMenu();

    Platform m_platform;
    Snapshot m_snapshot;
    bool m_isLoading = false;
    std::optional<PointInTime> m_lastLoaded;
    int m_generation = 0;
    QSet<QString> m_pendingIDs;
    bool m_pendingAll = false;
    bool m_isReloadPending = false;
    QList<HistoryItem> m_menuRecent;
    std::optional<PointInTime> m_menuUpdated;
    bool m_menuIsOpen = false;
    /// Null images are icons that could not be decoded.
    QHash<QString, QImage> m_faviconImages;
    QStringList m_sourceOrder;
    QSet<QString> m_disabledProfiles;
    std::unique_ptr<BrowserWatcher> m_watcher;
    BackgroundTasks m_tasks;
};

} // namespace roamlet
