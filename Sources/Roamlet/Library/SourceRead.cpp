// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/SourceRead.h"

#include "Library/Parallel.h"
#include "Model/Browser.h"
#include "Platform/Clock.h"
#include "Readers/BrowserReader.h"
#include "Readers/Files/SQLiteSnapshot.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

constexpr std::chrono::seconds retryDelay{1};

ReadErrors asList(const ReadError &error)
{
    return {error};
}

ReadErrors asList(const ReadErrors &errors)
{
    return errors;
}

/// Tells of errors, of which several parts may have the same. Returns whether one is a refusal.
bool addProblems(SourceRead &read, const ReadErrors &errors)
{
    const bool isRefused =
        std::ranges::find(errors, ReadError::Kind::NoAccess, &ReadError::kind) != errors.end();
    for (const ReadError &error : errors) {
        const QString text = error.errorDescription();
        if (!read.problems.contains(text))
            read.problems.append(text);
    }
    read.isBlocked = read.isBlocked || isRefused;
    return isRefused;
}

/// Takes over one part. A refusal empties it; any other failure leaves what was known before.
template<typename Part, typename Errors>
void takePart(SourceRead &read, const SourceRead &kept, Part SourceRead::*part,
              std::expected<Part, Errors> result)
{
    if (result)
        read.*part = std::move(*result);
    else if (!addProblems(read, asList(result.error())))
        read.*part = kept.*part;
}

SourceRead readOnce(const Source &source, const SourceRead &kept, const ReadContext &context)
{
    SourceRead read;
    // What is written while it is being read makes it another state.
    const QString state = SourceRead::stateOfHistory(source, context);
    BrowserReader::Content content = BrowserReader::content(source, context);
    const bool isHistoryFirst = content.isHistoryFirst;
    const auto takeHistory = [&] {
        if (content.history)
            read.historyState = state;
        takePart(read, kept, &SourceRead::history, std::move(content.history));
    };
    if (isHistoryFirst)
        takeHistory();
    takePart(read, kept, &SourceRead::bookmarks, std::move(content.bookmarks));
    addProblems(read, read.bookmarks.problems);
    if (!isHistoryFirst)
        takeHistory();
    // Icons are an ornament: nobody is told when they cannot be read, and nothing is tried again for them.
    read.favicons = content.favicons.value_or(kept.favicons);
    return read;
}

} // namespace

SourceRead SourceRead::reused(const Source &source, const Snapshot &previous)
{
    const QString id = source.id();
    SourceRead read;
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

SourceRead SourceRead::of(const Source &source, const SourceRead &kept, const ReadContext &context,
                          const Clock &clock, CoreTurns &turns)
{
    SourceRead read;
    {
        const CoreTurns::Turn turn(turns);
        read = readOnce(source, kept, context);
    }
    if (read.problems.isEmpty() || read.isBlocked)
        return read;
    // A browser that is just replacing its files has done so by then.
    clock.sleep(retryDelay, context.stop);
    const CoreTurns::Turn turn(turns);
    return readOnce(source, kept, context);
}

QString SourceRead::stateOfHistory(const Source &source, const ReadContext &context)
{
    const QString file = BrowserReader::historyFile(source, context);
    // A row also holds its profile's name.
    return file % u'|' % SQLiteSnapshot::stamp(*context.files, file) % u'|' % source.label();
}

bool SourceRead::isGuarded(const Source &source)
{
    return Browser::of(source.kind).family == Browser::Family::Safari;
}

} // namespace roamlet
