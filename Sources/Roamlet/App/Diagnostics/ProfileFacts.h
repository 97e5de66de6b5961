// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/PointInTime.h"
#include "Model/Source.h"

#include <QList>
#include <QStringList>

#include <optional>

namespace roamlet
{

struct Snapshot;

/// What is told of a profile.
struct ProfileFacts {
    Source source;
    /// Whether it is read; nothing more is known of one that is not.
    bool isEnabled = true;
    qint64 bookmarks = 0;
    qint64 folders = 0;
    qint64 icons = 0;
    /// Of the latest rows of its history.
    qint64 pages = 0;
    // The compiler wants them from whoever names only some of the members.
    // NOLINTBEGIN(readability-redundant-member-init)
    std::optional<PointInTime> latestVisit = {};
    /// Why a part of it could not be read.
    QStringList problems = {};
    // NOLINTEND(readability-redundant-member-init)

    /// The facts of each profile, in the order of the profiles.
    static QList<ProfileFacts> of(const Snapshot &snapshot);
};

} // namespace roamlet
