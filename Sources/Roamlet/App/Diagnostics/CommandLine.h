// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

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
        DesktopSearch, ///< what a desktop's search asks is to be answered
        Help,
        Version,
        Windows, ///< nothing was asked for but the program itself
        Unknown, ///< something was asked for that there is not
    };

    Job job = Job::Windows;
    /// The word that belongs to the job: the format, the words of a search, the site, the seconds, or what is
    /// unknown.
    std::optional<QString> argument;
    /// The id of the source to export; absent for the default one.
    std::optional<QString> sourceID;

    bool operator==(const Command &) const = default;

    /// Finds the job in a run's arguments, the program's own name left out. The switches are tested in a
    /// fixed order, whatever their place; what follows "--search" are words, also when they look like a
    /// switch tested later.
    static Command of(const QStringList &arguments);
    /// The text for "--help".
    static QString help();
};

} // namespace roamlet
