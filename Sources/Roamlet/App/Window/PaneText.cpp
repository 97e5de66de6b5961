// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/PaneText.h"

#include "App/Look/ForeignText.h"
#include "Lists/Refine.h"

#include <QCoreApplication>

#include <algorithm>

namespace roamlet::PaneText
{

using namespace Qt::StringLiterals;

namespace
{

QString words(const char *english)
{
    return QCoreApplication::translate("PaneText", english);
}

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
    const QString limit = locale.toString(HistoryQuery::defaultLimit);
    const bool isTop = std::holds_alternative<MostVisitedPane>(pane);
    if (sourceIDOf(pane))
        return (isTop ? words(" · top %1") : words(" · latest %1")).arg(limit);
    return (isTop ? words(" · top %1 from each source") : words(" · latest %1 from each source")).arg(limit);
}

} // namespace

QString title(const std::optional<Pane> &pane, const Library &library)
{
    if (!pane)
        return u"Roamlet"_s;
    if (std::holds_alternative<MostVisitedPane>(*pane))
        return words("Most Visited");
    const bool isHistory = std::holds_alternative<HistoryPane>(*pane);
    if (const std::optional<Source> source = library.source(sourceIDOf(*pane)))
        return (isHistory ? words("%1 History") : words("%1 Bookmarks"))
            .arg(ForeignText::oneLine(source->name));
    return isHistory ? words("Recent History") : words("All Bookmarks");
}

std::optional<QString> problem(const std::optional<Pane> &pane, const Library &library)
{
    const std::optional<QString> id = pane && library.lastLoaded() ? sourceIDOf(*pane) : std::nullopt;
    if (!id || !library.snapshot().problems.contains(*id))
        return {};
    return library.snapshot().problems.value(*id);
}

QString subtitle(const std::optional<Pane> &pane, const Library &library, const ListState &list,
                 const QLocale &locale)
{
    if (!library.lastLoaded())
        return words("Reading…");
    if (const std::optional<QString> wrong = problem(pane, library))
        return *wrong;
    const QString count =
        (list.rowCount == 1 ? words("%1 item") : words("%1 items")).arg(locale.toString(list.rowCount));
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
        return list == GroupedList::Bookmarks ? words("Folders") : words("None");
    case Grouping::Day:
        return words("Day");
    case Grouping::Site:
        return words("Site");
    }
    Q_UNREACHABLE();
}

} // namespace roamlet::PaneText
