// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Bookmark.h"
#include "Model/Favicon.h"
#include "Model/HistoryItem.h"
#include "Model/Source.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

namespace roamlet
{

/// What was read from the browsers last, as one value.
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

} // namespace roamlet
