// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/Library.h"

#include "Library/FaviconImage.h"
#include "Platform/Clock.h"
#include "Platform/Files.h"
#include "Platform/Folders.h"
#include "Platform/UserDefaults.h"
#include "Readers/Files/SQLiteSnapshot.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString sourceOrderKey = u"sourceOrder"_s;

/// Browsers write in bursts; one reload is enough for each.
constexpr std::chrono::seconds reloadDelay{5};
constexpr qsizetype menuLength = 10;

} // namespace

Library::Library(const Platform &platform, QObject *parent)
    : QObject(parent),
      m_platform(platform),
      m_sourceOrder(platform.defaults.stringList(sourceOrderKey).value_or(QStringList())),
      m_disabledProfiles(storedDisabledProfiles(platform.defaults))
{
    // A file written by hand can name a profile twice: the first place counts.
    m_sourceOrder.removeDuplicates();
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
        m_platform, [this](const QSet<QString> &sourceIDs) { filesChanged(sourceIDs); });
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
        m_lastLoaded = std::chrono::time_point_cast<PointInTime::duration>(m_platform.clock.now());
        m_isLoading = false;
        Q_EMIT lastLoadedChanged();
        Q_EMIT isLoadingChanged();
        refreshMenu();
        return;
    }
    const bool isFull = std::exchange(m_pendingAll, false);
    const QSet<QString> ids = std::exchange(m_pendingIDs, {});
    const ReadRequest request{.disabled = m_disabledProfiles,
                              .only = isFull ? std::nullopt : std::optional(ids),
                              .previous = m_snapshot};
    m_tasks.run(
        this,
        [request, context = readContext(m_platform), clock = &m_platform.clock](const std::stop_token &stop) {
            ReadContext stoppable = context;
            stoppable.stop = stop;
            return readAll(request, stoppable, *clock);
        },
        [this](Snapshot snapshot) {
            publish(std::move(snapshot));
            readNext();
        });
}

void Library::publish(Snapshot snapshot)
{
    m_snapshot = std::move(snapshot);
    m_faviconImages.clear();
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
    if (isEnabled)
        m_disabledProfiles.remove(source.id());
    else
        m_disabledProfiles.insert(source.id());
    QStringList stored = m_disabledProfiles.values();
    stored.sort();
    m_platform.defaults.setStringList(disabledProfilesKey.toString(), stored);
    m_platform.defaults.remove(disabledChromeProfilesKey.toString());
    Q_EMIT disabledProfilesChanged();
    load({});
}

void Library::moveProfiles(const QSet<qsizetype> &offsets, qsizetype destination)
{
    const QList<Source> profiles = ordered(m_snapshot.browserProfiles);
    QStringList before;
    QStringList moved;
    QStringList after;
    for (qsizetype i = 0; i < profiles.size(); ++i) {
        QStringList &stays = i < destination ? before : after;
        (offsets.contains(i) ? moved : stays).append(profiles[i].id());
    }
    m_sourceOrder = before + moved + after;
    m_platform.defaults.setStringList(sourceOrderKey, m_sourceOrder);
    Q_EMIT sourceOrderChanged();
}

void Library::setMenuOpen(bool isOpen)
{
    m_menuIsOpen = isOpen;
    if (!isOpen)
        refreshMenu();
}

void Library::refreshMenu()
{
    if (m_menuIsOpen)
        return;
    // Only the few that the menu holds are put into order; an earlier row goes before one of the same time.
    std::vector<const HistoryItem *> rows;
    rows.reserve(static_cast<size_t>(m_snapshot.history.size()));
    for (const HistoryItem &item : std::as_const(m_snapshot.history))
        rows.push_back(&item);
    const auto end = rows.begin() + std::min(std::ssize(rows), std::ptrdiff_t{menuLength});
    std::ranges::partial_sort(rows, end, [](const HistoryItem *left, const HistoryItem *right) {
        return left->lastVisit != right->lastVisit ? left->lastVisit > right->lastVisit : left < right;
    });
    m_menuRecent.clear();
    std::for_each(rows.begin(), end, [this](const HistoryItem *item) { m_menuRecent.append(*item); });
    m_menuUpdated = m_lastLoaded;
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

std::stop_source Library::queryHistory(const HistoryQuery &query, const std::optional<QString> &sourceID,
                                       QObject *context, std::function<void(HistoryResults)> deliver)
{
    QList<Source> sources = ordered(m_snapshot.sources);
    if (sourceID)
        sources.removeIf([&sourceID](const Source &source) { return source.id() != *sourceID; });
    return m_tasks.run(
        context,
        [query, sources, snapshot = m_snapshot,
         reading = readContext(m_platform)](const std::stop_token &stop) {
            ReadContext stoppable = reading;
            stoppable.stop = stop;
            return query == HistoryQuery::recent() ? latestHistory(sources, snapshot, stoppable)
                                                   : history(query, sources, stoppable);
        },
        std::move(deliver));
}

QList<Source> Library::ordered(const QList<Source> &sources) const
{
    const auto position = [this](const Source &source) {
        const qsizetype index = m_sourceOrder.indexOf(source.id());
        return index < 0 ? std::numeric_limits<qsizetype>::max() : index;
    };
    QList<Source> result = sources;
    std::ranges::stable_sort(result, {}, position);
    return result;
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
        folder.id = u"source/" % source.id();
        folder.title = source.label();
        folder.source = source;
        folder.children = m_snapshot.bookmarkTrees.value(source.id());
        result.append(std::move(folder));
    }
    return result;
}

QList<HistoryItem> Library::recentHistory(const std::optional<QString> &sourceID) const
{
    QList<HistoryItem> result = m_snapshot.history;
    if (sourceID)
        result.removeIf([&sourceID](const HistoryItem &item) { return item.source.id() != *sourceID; });
    return result;
}

std::optional<QImage> Library::favicon(const QString &site)
{
    const auto favicon = m_snapshot.favicons.constFind(site);
    if (favicon == m_snapshot.favicons.cend())
        return {};
    auto image = m_faviconImages.constFind(site);
    if (image == m_faviconImages.cend())
        image = m_faviconImages.insert(site, FaviconImage::decode(*favicon, m_platform.files));
    return image->isNull() ? std::nullopt : std::optional(*image);
}

} // namespace roamlet
