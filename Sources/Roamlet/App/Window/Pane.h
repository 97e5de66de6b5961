// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>
#include <variant>

namespace roamlet
{

/// What the sidebar selects and the detail area shows.
struct HistoryPane {
    /// Absent for all sources.
    std::optional<QString> sourceID;
    bool operator==(const HistoryPane &) const = default;
};
struct BookmarksPane {
    /// Absent for all sources.
    std::optional<QString> sourceID;
    bool operator==(const BookmarksPane &) const = default;
};
struct MostVisitedPane {
    bool operator==(const MostVisitedPane &) const = default;
};
using Pane = std::variant<HistoryPane, BookmarksPane, MostVisitedPane>;

/// The id of the one source that the pane shows; absent for all.
inline std::optional<QString> sourceIDOf(const Pane &pane)
{
    if (const auto *history = std::get_if<HistoryPane>(&pane))
        return history->sourceID;
    if (const auto *bookmarks = std::get_if<BookmarksPane>(&pane))
        return bookmarks->sourceID;
    return {};
}

} // namespace roamlet
