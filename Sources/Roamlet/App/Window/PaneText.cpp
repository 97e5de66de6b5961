// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/PaneText.h"

#include "App/Tables/CellText.h"
#include "Lists/Refine.h"

#include <algorithm>

namespace roamlet::PaneText
{

using namespace Qt::StringLiterals;

namespace
{

bool isSearch(const ListState &list)
{
    return list.site || isSearchText(list.search);
}

/// Of what the rows are a part, or nothing when they are all there is.
QString limitNote(const Pane &pane, const Library::Snapshot &snapshot, const ListState &list,
                  const QLocale &locale)
{
    const bool isLimited = isSearch(list) ? list.isCapped : holdsLatestOnly(pane, snapshot);
    if (!isLimited)
        return {};
    const QString kind = std::holds_alternative<MostVisitedPane>(pane) ? u"top"_s : u"latest"_s;
    const QString note = u" · " % kind % u' ' % locale.toString(HistoryQuery::defaultLimit);
    return sourceIDOf(pane) ? note : QString(note % u" from each source");
}

} // namespace

QString title(const std::optional<Pane> &pane, const Library &library)
{
    if (!pane)
        return u"Roamlet"_s;
    if (std::holds_alternative<MostVisitedPane>(*pane))
        return u"Most Visited"_s;
    const bool isHistory = std::holds_alternative<HistoryPane>(*pane);
    if (const std::optional<Source> source = library.source(sourceIDOf(*pane)))
        return CellText::oneLine(source->name) % (isHistory ? u" History" : u" Bookmarks");
    return isHistory ? u"Recent History"_s : u"All Bookmarks"_s;
}

QString subtitle(const std::optional<Pane> &pane, const Library &library, const ListState &list,
                 const QLocale &locale)
{
    if (!library.lastLoaded())
        return u"Reading…"_s;
    if (pane) {
        if (const std::optional<QString> id = sourceIDOf(*pane)) {
            const auto problem = library.snapshot().problems.constFind(*id);
            if (problem != library.snapshot().problems.cend())
                return *problem;
        }
    }
    const QString count = locale.toString(list.rowCount) % (list.rowCount == 1 ? u" item" : u" items");
    return pane ? QString(count % limitNote(*pane, library.snapshot(), list, locale)) : count;
}

bool holdsLatestOnly(const Pane &pane, const Library::Snapshot &snapshot)
{
    const std::optional<QString> only = sourceIDOf(pane);
    QHash<QString, qint64> rows;
    for (const HistoryItem &item : snapshot.history) {
        const QString id = item.source.id();
        if ((!only || id == *only) && ++rows[id] >= HistoryQuery::defaultLimit)
            return true;
    }
    return false;
}

bool hasBookmarks(const std::optional<QString> &sourceID, const Library::Snapshot &snapshot)
{
    if (!sourceID)
        return !snapshot.bookmarks.isEmpty();
    return std::ranges::any_of(snapshot.bookmarks, [&sourceID](const Bookmark &bookmark) {
        return bookmark.source.id() == *sourceID;
    });
}

std::optional<QString> exportSourceID(const std::optional<Pane> &pane, const Library::Snapshot &snapshot)
{
    if (!pane || !std::holds_alternative<BookmarksPane>(*pane))
        return {};
    const std::optional<QString> id = sourceIDOf(*pane);
    return id && hasBookmarks(id, snapshot) ? id : std::nullopt;
}

GroupedList groupedList(const Pane &pane)
{
    if (std::holds_alternative<HistoryPane>(pane))
        return GroupedList::History;
    return std::holds_alternative<BookmarksPane>(pane) ? GroupedList::Bookmarks : GroupedList::MostVisited;
}

QString label(Grouping grouping, GroupedList list)
{
    switch (grouping) {
    case Grouping::None:
        return list == GroupedList::Bookmarks ? u"Folders"_s : u"None"_s;
    case Grouping::Day:
        return u"Day"_s;
    case Grouping::Site:
        return u"Site"_s;
    }
    Q_UNREACHABLE();
}

} // namespace roamlet::PaneText
