// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/Grouping.h"
#include "Lists/SortComparator.h"

#include <QList>
#include <QString>

#include <optional>

namespace roamlet
{

/// What makes one search of the browsers' databases: as long as it stays the same, so does the result.
struct SearchKey {
    /// Absent for all sources.
    std::optional<QString> sourceID;
    /// As typed.
    QString search;
    /// Absent for all sites.
    std::optional<QString> site;
    /// The library's generation: a reload makes every result stale.
    int generation = 0;

    bool operator==(const SearchKey &) const = default;
};

/// What makes one shown list: as long as it stays the same, nothing has to be refined again.
struct RefineKey {
    std::optional<QString> sourceID;
    QString search;
    std::optional<QString> site;
    Grouping grouping = Grouping::None;
    QList<SortComparator> order;
    int generation = 0;

    bool operator==(const RefineKey &) const = default;
};

size_t qHash(const SearchKey &key, size_t seed = 0);
size_t qHash(const RefineKey &key, size_t seed = 0);

/// All that a list is asked to be. The two keys are what of it decides whether rows have to be read, and
/// whether a list has to be made.
struct ListWish {
    enum class Mode {
        Recent,      ///< the pages visited last
        MostVisited, ///< the pages visited most
        Bookmarks,   ///< bookmarks below each other
        BookmarkTree ///< bookmarks in their folders; of what is asked for only the source counts
    };

    Mode mode = Mode::Recent;
    // The compiler wants them from whoever names only some of the members.
    // NOLINTBEGIN(readability-redundant-member-init)
    std::optional<QString> sourceID = {};
    QString search = {};
    std::optional<QString> site = {};
    // NOLINTEND(readability-redundant-member-init)
    Grouping grouping = Grouping::None;
    /// The comparator that decides first comes first.
    // NOLINTNEXTLINE(readability-redundant-member-init)
    QList<SortComparator> order = {};
    int generation = 0;

    bool operator==(const ListWish &) const = default;

    bool isOfHistory() const { return mode == Mode::Recent || mode == Mode::MostVisited; }
    SearchKey searchKey() const;
    RefineKey refineKey() const;
};

} // namespace roamlet
