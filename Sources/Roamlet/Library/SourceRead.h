// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Library/Snapshot.h"
#include "Readers/BookmarkTrees.h"
#include "Readers/ReadContext.h"

#include <QStringList>

#include <optional>

namespace roamlet
{

class Clock;
class CoreTurns;

/// What a reading pass has of one source. Any thread.
struct SourceRead {
    BookmarkTrees bookmarks;
    QList<HistoryItem> history;
    /// What `history` was read from and in what state that was; absent where it could not be read.
    std::optional<QString> historyState;
    Favicons favicons;
    /// What went wrong, each reason once.
    QStringList problems;
    /// Whether the system refused access to a part.
    bool isBlocked = false;

    /// What the previous snapshot knows about the source.
    static SourceRead reused(const Source &source, const Snapshot &previous);
    /// Reads the source; where that fails for another reason than a refusal, once more a moment later. A part
    /// that cannot be read stays as it is in `kept`.
    static SourceRead of(const Source &source, const SourceRead &kept, const ReadContext &context,
                         const Clock &clock, CoreTurns &turns);
    /// What a source's history is read from, and in what state that is now.
    static QString stateOfHistory(const Source &source, const ReadContext &context);
    /// Whether the files are Safari's: a Mac guards them by a grant of their own, and a database has to be
    /// read to find the profiles.
    static bool isGuarded(const Source &source);
};

} // namespace roamlet
