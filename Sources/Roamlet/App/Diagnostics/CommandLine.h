// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Diagnostics/NamedTime.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace roamlet
{

/// What a run was started for, as its arguments say.
struct Command {
    enum class Job {
        Summary,
        Export,
        Top,
        Search,
        Site,
        Watch,
        Bookmarks,
        Open,
        DesktopSearch, ///< what a desktop's search asks is to be answered
        Help,
        Version,
        Windows, ///< nothing was asked for but the program itself
        Unknown, ///< something was asked for that there is not
        Misuse,  ///< switches that do not go together, or a value that means nothing
    };

    Job job = Job::Windows;
    /// The word that belongs to the job: the format, the words of a search, the site, the seconds, the id of
    /// the row to open, what is unknown, or what is wrong.
    std::optional<QString> argument;
    /// The id of the source to export; absent for the default one.
    std::optional<QString> sourceID;
    /// Whether the rows are for other programs.
    bool isJson = false;
    // The compiler wants them from whoever names only some of the members.
    // NOLINTBEGIN(readability-redundant-member-init)
    /// The largest number of rows to print; at least 1.
    std::optional<qint64> limit = {};
    /// What the visits of the pages are limited to.
    std::optional<NamedTime> since = {};
    std::optional<NamedTime> until = {};
    // NOLINTEND(readability-redundant-member-init)

    bool operator==(const Command &) const = default;

    /// Finds the job in a run's arguments, the program's own name left out. The six jobs up to "--watch" are
    /// tested in a fixed order, whatever their place; what follows "--search" or "--bookmarks" are words,
    /// also when they look like a switch tested later, so that the switches of rows stand before them.
    static Command of(const QStringList &arguments);
    /// The text for "--help".
    static QString help();
};

} // namespace roamlet
