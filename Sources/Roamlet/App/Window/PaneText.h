// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Window/Pane.h"
#include "Library/Library.h"
#include "Lists/Grouping.h"

#include <QLocale>
#include <QString>

#include <optional>

/// What the main window says about what it shows. Pure functions.
namespace roamlet::PaneText
{

/// What the shown list reports, and what it was asked for.
struct ListState {
    qsizetype rowCount = 0;
    /// Whether the search stopped at its limit.
    bool isCapped = false;
    QString search;
    std::optional<QString> site;
};

QString title(const std::optional<Pane> &pane, const Library &library);
/// What went wrong with the source that the pane shows, a line for each failed part.
std::optional<QString> problem(const std::optional<Pane> &pane, const Library &library);
/// Under the title: that nothing was read yet, what went wrong with the shown source, or how many rows there
/// are and of what they are a part.
QString subtitle(const std::optional<Pane> &pane, const Library &library, const ListState &list,
                 const QLocale &locale);
/// Whether the snapshot keeps only the latest part of the history of a source that the pane shows.
bool holdsLatestOnly(const Pane &pane, const Library::Snapshot &snapshot);
/// Whether there is any bookmark in the source, or in any source.
bool hasBookmarks(const std::optional<QString> &sourceID, const Library::Snapshot &snapshot);
/// The source whose bookmarks the window's export begins with; absent for all.
std::optional<QString> exportSourceID(const std::optional<Pane> &pane, const Library::Snapshot &snapshot);
/// The list that the pane shows, as far as grouping goes.
GroupedList groupedList(const Pane &pane);
/// What a grouping is called for a list.
QString label(Grouping grouping, GroupedList list);

} // namespace roamlet::PaneText
