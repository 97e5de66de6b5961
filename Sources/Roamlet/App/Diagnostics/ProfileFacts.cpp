// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/ProfileFacts.h"

#include "Library/Snapshot.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

QList<ProfileFacts> ProfileFacts::of(const Snapshot &snapshot)
{
    QHash<QString, qint64> rows;
    QHash<QString, PointInTime> latest;
    for (const HistoryItem &item : snapshot.history) {
        const QString id = item.source.id();
        ++rows[id];
        const auto known = latest.constFind(id);
        if (known == latest.cend() || *known < item.lastVisit)
            latest.insert(id, item.lastVisit);
    }
    QSet<QString> enabled;
    for (const Source &source : snapshot.sources)
        enabled.insert(source.id());

    QList<ProfileFacts> result;
    for (const Source &source : snapshot.browserProfiles) {
        const QString id = source.id();
        ProfileFacts facts{.source = source,
                           .isEnabled = enabled.contains(id),
                           .icons = snapshot.sourceFavicons.value(id).size(),
                           .pages = rows.value(id),
                           .problems = snapshot.problems.value(id).split(u'\n', Qt::SkipEmptyParts)};
        for (const BookmarkNode &root : snapshot.bookmarkTrees.value(id)) {
            facts.bookmarks += root.bookmarkCount();
            facts.folders += root.folderCount();
        }
        if (const auto visit = latest.constFind(id); visit != latest.cend())
            facts.latestVisit = *visit;
        result.append(facts);
    }
    return result;
}

} // namespace roamlet
