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

/// What is said, in the user's language.
struct Words {
    Q_DECLARE_TR_FUNCTIONS(roamlet::PaneText)
};

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
    if (sourceIDOf(pane)) {
        if (isTop)
            //: After the number of rows: "1,000 items · top 1,000". These are the most visited pages.
            return Words::tr(" · top %1").arg(limit);
        //: After the number of rows: "1,000 items · latest 1,000".
        return Words::tr(" · latest %1").arg(limit);
    }
    if (isTop)
        //: After the number of rows: "3,000 items · top 1,000 from each source". A source is a profile.
        return Words::tr(" · top %1 from each source").arg(limit);
    //: After the number of rows: "3,000 items · latest 1,000 from each source". A source is a profile.
    return Words::tr(" · latest %1 from each source").arg(limit);
}

} // namespace

QString title(const std::optional<Pane> &pane, const Library &library)
{
    if (!pane)
        return u"Roamlet"_s;
    if (std::holds_alternative<MostVisitedPane>(*pane))
        return Words::tr("Most Visited");
    const bool isHistory = std::holds_alternative<HistoryPane>(*pane);
    if (const std::optional<Source> source = library.source(sourceIDOf(*pane))) {
        const QString name = ForeignText::oneLine(source->name);
        if (isHistory)
            //: The history of a browser or a profile, which %1 names: "Firefox History", "Work History".
            return Words::tr("%1 History").arg(name);
        //: The bookmarks of a browser or a profile, which %1 names: "Firefox Bookmarks", "Work Bookmarks".
        return Words::tr("%1 Bookmarks").arg(name);
    }
    return isHistory ? Words::tr("Recent History") : Words::tr("All Bookmarks");
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
        return Words::tr("Reading…");
    if (const std::optional<QString> wrong = problem(pane, library))
        return *wrong;
    const QString count =
        //: How many rows a list has. %1 is the number.
        (list.rowCount == 1 ? Words::tr("%1 item")
                            : Words::tr("%1 items", nullptr, static_cast<int>(list.rowCount)))
            .arg(locale.toString(list.rowCount));
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
        //: Beside "Group By".
        if (list == GroupedList::Bookmarks)
            return Words::tr("Folders");
        //: Beside "Group By": the list has no sections.
        return Words::tr("None");
    case Grouping::Day:
        //: Beside "Group By".
        return Words::tr("Day");
    case Grouping::Site:
        //: Beside "Group By": by web site.
        return Words::tr("Site");
    }
    Q_UNREACHABLE();
}

} // namespace roamlet::PaneText
