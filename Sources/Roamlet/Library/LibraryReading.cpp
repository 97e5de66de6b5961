// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/LibraryReading.h"

#include "Library/Parallel.h"
#include "Library/SourceRead.h"
#include "Model/Browser.h"
#include "Platform/UserLocale.h"
#include "Readers/BrowserReader.h"

#include <algorithm>
#include <atomic>
#include <new>
#include <utility>
#include <vector>

namespace roamlet::LibraryReading
{

using namespace Qt::StringLiterals;

namespace
{

bool hasSource(const QList<Source> &sources, const QString &id)
{
    return std::ranges::find(sources, id, &Source::id) != sources.end();
}

/// Whether the source is there under the same label, which every row of it carries: the user may rename a
/// profile, and another installation of its browser may come or go.
bool isUnchanged(const Source &source, const QList<Source> &sources)
{
    return std::ranges::any_of(sources, [&source](const Source &each) {
        return each.id() == source.id() && each.label() == source.label();
    });
}

/// The Safari profiles of the last snapshot, where a partial load need not look for them again.
std::optional<QList<Source>> knownSafariProfiles(const Request &request)
{
    if (!request.only)
        return {};
    QList<Source> known = request.previous.browserProfiles;
    known.removeIf([](const Source &source) { return !SourceRead::isGuarded(source); });
    if (known.isEmpty())
        return {};
    for (const QString &id : *request.only) {
        const bool isSafari = id.startsWith(u"safari");
        if (isSafari && !hasSource(known, id))
            return {};
    }
    return known;
}

Snapshot assemble(const QList<Source> &profiles, const QList<Source> &enabled, std::vector<SourceRead> reads)
{
    Snapshot snapshot;
    snapshot.sources = enabled;
    snapshot.browserProfiles = profiles;
    qsizetype rows = 0;
    for (const SourceRead &read : reads)
        rows += read.history.size();
    snapshot.history.reserve(rows);
    for (size_t i = 0; i < reads.size(); ++i) {
        const Source &source = enabled[static_cast<qsizetype>(i)];
        const QString id = source.id();
        SourceRead &read = reads[i];
        snapshot.bookmarks += BookmarkNode::flattened(read.bookmarks.roots);
        snapshot.bookmarkTrees.insert(id, read.bookmarks.roots);
        if (read.bookmarks.areEncrypted)
            snapshot.encryptedBookmarks.insert(id);
        snapshot.history += std::move(read.history);
        if (read.historyState)
            snapshot.historyStates.insert(id, *read.historyState);
        for (auto favicon = read.favicons.cbegin(); favicon != read.favicons.cend(); ++favicon) {
            if (!snapshot.favicons.contains(favicon.key()))
                snapshot.favicons.insert(favicon.key(), favicon.value());
        }
        snapshot.sourceFavicons.insert(id, read.favicons);
        if (!read.problems.isEmpty())
            snapshot.problems.insert(id, read.problems.join(u'\n'));
        if (SourceRead::isGuarded(source) && read.isBlocked)
            snapshot.safariBlocked = true;
    }
    return snapshot;
}

/// Reads these sources, as far as the request says, and puts together what they hold.
Snapshot readEnabled(const Request &request, const QList<Source> &profiles, const QList<Source> &enabled,
                     const ReadContext &context, const Clock &clock)
{
    std::vector<SourceRead> reads(static_cast<size_t>(enabled.size()));
    forEachInParallel(reads.size(), [&](size_t index, CoreTurns &turns) {
        const Source &source = enabled.at(static_cast<qsizetype>(index));
        const bool isRequested = !request.only || request.only->contains(source.id());
        const bool isKnown = isUnchanged(source, request.previous.sources);
        const SourceRead kept = SourceRead::reused(source, request.previous);
        reads[index] = isKnown && !isRequested ? kept : SourceRead::of(source, kept, context, clock, turns);
    });
    return assemble(profiles, enabled, std::move(reads));
}

/// What is left to show where there is not enough memory for what was read: why, and the rows from before,
/// unless they are of other sources.
Snapshot unread(const Snapshot &previous, const QList<Source> &profiles, const QList<Source> &enabled,
                const ReadContext &context)
{
    Snapshot snapshot = enabled == previous.sources ? previous : Snapshot();
    snapshot.sources = enabled;
    snapshot.browserProfiles = profiles;
    // Of what the files hold now, nothing is known.
    snapshot.historyStates.clear();
    for (const Source &source : enabled) {
        const ReadError error = BrowserReader::noMemory(source, context);
        snapshot.problems.insert(source.id(), error.errorDescription());
    }
    return snapshot;
}

} // namespace

ReadContext readContext(const Platform &platform)
{
    return {.folders = BrowserFolders::of(platform.folders, platform.files),
            .files = &platform.files,
            .locale = UserLocale::collation(),
            .stop = {},
            .onUnreadableList = {}};
}

QList<Source> allProfiles(const std::optional<QList<Source>> &knownSafari, const ReadContext &context,
                          const QList<Source> &known)
{
    QList<Source> result;
    for (const Browser &browser : Browser::all()) {
        if (knownSafari && browser.family == Browser::Family::Safari)
            result += *knownSafari;
        else
            result += BrowserReader::profiles(browser.kind, context, known);
    }
    return result;
}

Snapshot readAll(const Request &request, const ReadContext &context, const Clock &clock)
{
    const QList<Source> profiles =
        allProfiles(knownSafariProfiles(request), context, request.previous.browserProfiles);
    QList<Source> enabled = profiles;
    enabled.removeIf([&request](const Source &source) { return request.disabled.contains(source.id()); });

    try {
        return readEnabled(request, profiles, enabled, context, clock);
    } catch (const std::bad_alloc &) {
        return unread(request.previous, profiles, enabled, context);
    }
}

HistoryResults history(const HistoryQuery &query, const QList<Source> &sources, const ReadContext &context,
                       const ProblemHandler &report)
{
    // Each task writes into the slot of the place in which it finished.
    std::vector<QList<HistoryItem>> results(static_cast<size_t>(sources.size()));
    std::vector<std::optional<ReadError>> problems(results.size());
    std::atomic<size_t> finished = 0;
    forEachInParallel(results.size(), [&](size_t index, CoreTurns &turns) {
        const CoreTurns::Turn turn(turns);
        const Source &source = sources.at(static_cast<qsizetype>(index));
        auto rows = BrowserReader::history(source, query, context);
        if (!rows)
            problems[index] = rows.error();
        results[finished.fetch_add(1)] = std::move(rows).value_or(QList<HistoryItem>());
    });

    for (size_t i = 0; report && i < problems.size(); ++i) {
        if (problems[i])
            report(sources.at(static_cast<qsizetype>(i)), *problems[i]);
    }
    return merged(query, std::move(results));
}

HistoryResults merged(const HistoryQuery &query, std::vector<QList<HistoryItem>> parts)
{
    HistoryResults results;
    for (QList<HistoryItem> &rows : parts) {
        results.isCapped =
            results.isCapped || (query.isSearch() && query.limit >= 0 && rows.size() >= query.limit);
        results.items += std::move(rows);
    }
    // The site's text was also found further on in the URL.
    if (query.site)
        results.items.removeIf([&query](const HistoryItem &item) { return item.site != *query.site; });
    return results;
}

} // namespace roamlet::LibraryReading
