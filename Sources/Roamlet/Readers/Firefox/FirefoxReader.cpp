// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Firefox/FirefoxReader.h"

#include "Model/Browser.h"
#include "Platform/Files.h"
#include "Readers/Files/SQLiteSnapshot.h"
#include "Readers/Firefox/FirefoxBookmarks.h"
#include "Readers/Firefox/FirefoxTime.h"
#include "Readers/HistoryRows.h"

#include <utility>

namespace roamlet::FirefoxReader
{

using namespace Qt::StringLiterals;

namespace
{

/// The database of history and bookmarks.
QString placesFile()
{
    return Browser::historyFile(Browser::Family::Firefox);
}

/// Every row that is shown.
const QString rowsStatement = u"SELECT id, url, title, last_visit_date, visit_count FROM moz_places\n"
                              "WHERE hidden = 0 AND last_visit_date IS NOT NULL"_s;

QString storedTime(PointInTime time)
{
    return QString::number(wholeMicroseconds(time));
}

HistoryStatement historyStatement(const HistoryQuery &query)
{
    return {.rows = rowsStatement % rowCondition(query, u"id"_s) %
                    timeCondition(query.visited, u"last_visit_date"_s, storedTime) %
                    query.conditions(u"(url || ' ' || coalesce(title, ''))"_s, u"url"_s),
            .order = u"\nORDER BY " %
                     (query.order == HistoryQuery::Order::MostVisited ? u"visit_count DESC, "_s : QString()) %
                     u"last_visit_date DESC\nLIMIT " % QString::number(query.limit)};
}

std::optional<PointInTime> lastVisit(const SQLiteSnapshot::Row &row, int column)
{
    return firefoxTime(row.integer(column));
}

std::expected<BookmarkTrees, ReadErrors> treesOf(std::expected<QList<BookmarkNode>, ReadError> roots)
{
    if (!roots)
        return std::unexpected(ReadErrors{roots.error()});
    return BookmarkTrees{.roots = std::move(*roots)};
}

/// What `read` makes of a private copy of the profile's database, or an empty part where there is none.
template<typename Part, typename Read>
std::expected<Part, ReadError> fromPlaces(const Source &source, const ReadContext &context, Read read)
{
    const QString file = historyFile(source, context);
    if (!context.files->exists(file))
        return Part();
    const auto places = SQLiteSnapshot::copying(file, context);
    if (!places)
        return std::unexpected(places.error());
    return read(*places);
}

} // namespace

QString historyFile(const Source &source, const ReadContext &context)
{
    return context.folders.profile(source, *context.files) % u'/' % placesFile();
}

std::expected<QList<HistoryItem>, ReadError> history(const Source &source, const HistoryQuery &query,
                                                     const ReadContext &context)
{
    return fromPlaces<QList<HistoryItem>>(
        source, context, [&](const SQLiteSnapshot &places) { return historyIn(places, source, query); });
}

std::expected<QList<HistoryItem>, ReadError> historyIn(const SQLiteSnapshot &copy, const Source &source,
                                                       const HistoryQuery &query)
{
    return historyRows(copy, historyStatement(query), query, source, lastVisit);
}

std::expected<std::shared_ptr<const HistoryText>, ReadError>
historyText(const Source &source, const ReadContext &context, size_t mostBytes)
{
    // Its indexes are gone through from their ends.
    static constexpr HistoryRules rules{.lastVisit = lastVisit, .ties = HistoryText::Builder::Ties::LastRead};
    if (!context.files->exists(historyFile(source, context)))
        return HistoryText::empty(source);
    return fromPlaces<std::shared_ptr<const HistoryText>>(source, context, [&](const SQLiteSnapshot &places) {
        return roamlet::historyText(
            places, {.rows = rowsStatement, .order = u"\nORDER BY id"_s, .table = u"moz_places"_s}, source,
            rules, mostBytes, context.stop);
    });
}

std::expected<BookmarkTrees, ReadErrors> bookmarks(const Source &source, const ReadContext &context)
{
    return treesOf(fromPlaces<QList<BookmarkNode>>(source, context, [&](const SQLiteSnapshot &places) {
        return FirefoxBookmarks::read(places, source);
    }));
}

Content content(const Source &source, const HistoryQuery &query, const ReadContext &context)
{
    auto result = fromPlaces<Content>(source, context, [&](const SQLiteSnapshot &places) {
        return Content{.bookmarks = treesOf(FirefoxBookmarks::read(places, source)),
                       .history = historyIn(places, source, query)};
    });
    if (result)
        return std::move(*result);
    return {.bookmarks = std::unexpected(ReadErrors{result.error()}),
            .history = std::unexpected(result.error())};
}

QStringList readFiles()
{
    return {placesFile(), placesFile() % u"-wal"};
}

} // namespace roamlet::FirefoxReader
