// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// The operations of the Library that hold no state: they run on any thread, with a window or without one.

#include "Library/Library.h"
#include "Library/Parallel.h"
#include "Model/Browser.h"
#include "Platform/Clock.h"
#include "Platform/UserDefaults.h"
#include "Readers/BrowserReader.h"
#include "Readers/Files/SQLiteSnapshot.h"

#include <QLocale>

#include <algorithm>
#include <atomic>
#include <utility>
#include <vector>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

constexpr std::chrono::seconds retryDelay{1};

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

/// What a source's history is read from, and in what state that is. A row also holds its profile's name.
QString stateOfHistory(const Source &source, const ReadContext &context)
{
    const QString file = BrowserReader::historyFile(source, context);
    return file % u'|' % SQLiteSnapshot::stamp(*context.files, file) % u'|' % source.label();
}

/// Whether the files are Safari's: a Mac guards them by a grant of their own, and a database has to be read
/// to find the profiles.
bool isGuarded(const Source &source)
{
    return Browser::of(source.kind).family == Browser::Family::Safari;
}

/// One source's result.
struct Read {
    BookmarkTrees bookmarks;
    QList<HistoryItem> history;
    std::optional<QString> historyState;
    Favicons favicons;
    QStringList problems;
    bool isBlocked = false;

    /// What the previous snapshot knows about the source.
    static Read reused(const Source &source, const Library::Snapshot &previous);
    /// Reads the source; where that fails for another reason than a refusal, once more a moment later.
    static Read of(const Source &source, const Read &kept, const ReadContext &context, const Clock &clock,
                   CoreTurns &turns);

private:
    static Read once(const Source &source, const Read &kept, const ReadContext &context);

    /// Takes over one part. A refusal empties it; any other failure leaves what was known before.
    template<typename Part, typename Errors>
    void take(Part &part, const Part &keptPart, std::expected<Part, Errors> result)
    {
        if (result) {
            part = std::move(*result);
            return;
        }
        if (!addProblems(asList(result.error())))
            part = keptPart;
    }

    /// Tells of errors, of which several parts may have the same. Returns whether one is a refusal.
    bool addProblems(const ReadErrors &errors)
    {
        const bool isRefused =
            std::ranges::find(errors, ReadError::Kind::NoAccess, &ReadError::kind) != errors.end();
        for (const ReadError &error : errors) {
            const QString text = error.errorDescription();
            if (!problems.contains(text))
                problems.append(text);
        }
        isBlocked = isBlocked || isRefused;
        return isRefused;
    }

    static ReadErrors asList(const ReadError &error) { return {error}; }
    static ReadErrors asList(const ReadErrors &errors) { return errors; }
};

Read Read::reused(const Source &source, const Library::Snapshot &previous)
{
    const QString id = source.id();
    Read read;
    read.bookmarks.roots = previous.bookmarkTrees.value(id);
    read.bookmarks.areEncrypted = previous.encryptedBookmarks.contains(id);
    for (const HistoryItem &item : previous.history) {
        if (item.source.id() == id)
            read.history.append(item);
    }
    if (const auto state = previous.historyStates.constFind(id); state != previous.historyStates.cend())
        read.historyState = *state;
    read.favicons = previous.sourceFavicons.value(id);
    if (previous.problems.contains(id))
        read.problems = {previous.problems.value(id)};
    read.isBlocked = isGuarded(source) && previous.safariBlocked;
    return read;
}

Read Read::of(const Source &source, const Read &kept, const ReadContext &context, const Clock &clock,
              CoreTurns &turns)
{
    Read read;
    {
        const CoreTurns::Turn turn(turns);
        read = once(source, kept, context);
    }
    if (read.problems.isEmpty() || read.isBlocked)
        return read;
    // A browser that is just replacing its files has done so by then.
    clock.sleep(retryDelay, context.stop);
    const CoreTurns::Turn turn(turns);
    return once(source, kept, context);
}

Read Read::once(const Source &source, const Read &kept, const ReadContext &context)
{
    Read read;
    // What is written while it is being read makes it another state.
    const QString state = stateOfHistory(source, context);
    BrowserReader::Content content = BrowserReader::content(source, context);
    const auto takeHistory = [&] {
        if (content.history)
            read.historyState = state;
        read.take(read.history, kept.history, std::move(content.history));
    };
    if (content.isHistoryFirst)
        takeHistory();
    read.take(read.bookmarks, kept.bookmarks, std::move(content.bookmarks));
    read.addProblems(read.bookmarks.problems);
    if (!content.isHistoryFirst)
        takeHistory();
    // Icons are an ornament: nobody is told when they cannot be read, and nothing is tried again for them.
    read.favicons = content.favicons.value_or(kept.favicons);
    return read;
}

/// The Safari profiles of the last snapshot, where a partial load need not look for them again.
std::optional<QList<Source>> knownSafariProfiles(const Library::ReadRequest &request)
{
    if (!request.only)
        return {};
    QList<Source> known = request.previous.browserProfiles;
    known.removeIf([](const Source &source) { return !isGuarded(source); });
    if (known.isEmpty())
        return {};
    for (const QString &id : *request.only) {
        const bool isSafari = id.startsWith(u"safari");
        if (isSafari && !hasSource(known, id))
            return {};
    }
    return known;
}

Library::Snapshot assemble(const QList<Source> &profiles, const QList<Source> &enabled,
                           std::vector<Read> reads)
{
    Library::Snapshot snapshot;
    snapshot.sources = enabled;
    snapshot.browserProfiles = profiles;
    for (size_t i = 0; i < reads.size(); ++i) {
        const Source &source = enabled[static_cast<qsizetype>(i)];
        const QString id = source.id();
        Read &read = reads[i];
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
        if (isGuarded(source) && read.isBlocked)
            snapshot.safariBlocked = true;
    }
    return snapshot;
}

} // namespace

QList<Source> Library::allProfiles(const std::optional<QList<Source>> &knownSafari,
                                   const ReadContext &context, const QList<Source> &known)
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

Library::Snapshot Library::readAll(const ReadRequest &request, const ReadContext &context, const Clock &clock)
{
    const QList<Source> profiles =
        allProfiles(knownSafariProfiles(request), context, request.previous.browserProfiles);
    QList<Source> enabled = profiles;
    enabled.removeIf([&request](const Source &source) { return request.disabled.contains(source.id()); });

    std::vector<Read> reads(static_cast<size_t>(enabled.size()));
    forEachInParallel(reads.size(), [&](size_t index, CoreTurns &turns) {
        const Source &source = enabled.at(static_cast<qsizetype>(index));
        const bool isRequested = !request.only || request.only->contains(source.id());
        const bool isKnown = isUnchanged(source, request.previous.sources);
        const Read kept = Read::reused(source, request.previous);
        reads[index] = isKnown && !isRequested ? kept : Read::of(source, kept, context, clock, turns);
    });
    return assemble(profiles, enabled, std::move(reads));
}

HistoryResults Library::history(const HistoryQuery &query, const QList<Source> &sources,
                                const ReadContext &context, const ProblemHandler &report)
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

    HistoryResults merged;
    for (QList<HistoryItem> &rows : results) {
        merged.isCapped = merged.isCapped || (query.isSearch() && rows.size() >= query.limit);
        merged.items += std::move(rows);
    }
    for (size_t i = 0; report && i < problems.size(); ++i) {
        if (problems[i])
            report(sources.at(static_cast<qsizetype>(i)), *problems[i]);
    }
    // The SQL also matched the site's text further on in the URL.
    if (query.site)
        merged.items.removeIf([&query](const HistoryItem &item) { return item.site != *query.site; });
    return merged;
}

HistoryResults Library::latestHistory(const QList<Source> &sources, const Snapshot &snapshot,
                                      const ReadContext &context)
{
    QSet<QString> unchanged;
    QList<Source> changed;
    for (const Source &source : sources) {
        const QString id = source.id();
        const auto state = snapshot.historyStates.constFind(id);
        if (state != snapshot.historyStates.cend() && *state == stateOfHistory(source, context))
            unchanged.insert(id);
        else
            changed.append(source);
    }
    HistoryResults results = history(HistoryQuery::recent(), changed, context);
    QList<HistoryItem> known = snapshot.history;
    known.removeIf([&unchanged](const HistoryItem &item) { return !unchanged.contains(item.source.id()); });
    results.items = known + results.items;
    return results;
}

QSet<QString> Library::storedDisabledProfiles(const UserDefaults &defaults)
{
    const QStringList stored = defaults.stringList(disabledProfilesKey.toString()).value_or(QStringList());
    QSet<QString> result(stored.cbegin(), stored.cend());
    const std::optional<QStringList> ofChrome = defaults.stringList(disabledChromeProfilesKey.toString());
    for (const QString &profile : ofChrome.value_or(QStringList()))
        result.insert(u"chrome/" % profile);
    return result;
}

ReadContext Library::readContext(const Platform &platform)
{
    return {.folders = BrowserFolders::of(platform.folders, platform.files),
            .files = &platform.files,
            .locale = QLocale::system().collation().name(),
            .stop = {}};
}

} // namespace roamlet
