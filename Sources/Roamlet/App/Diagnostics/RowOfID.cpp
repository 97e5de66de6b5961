// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/RowOfID.h"

#include "App/Diagnostics/JsonLines.h"
#include "Model/Browser.h"
#include "Readers/BrowserReader.h"

#include <QStringList>

#include <algorithm>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Whether rows of the source may have such ids. All bookmarks of Safari's lie in one file, whichever profile
/// shows them.
bool canHoldBookmark(const Source &source, const QString &bookmarkID)
{
    const bool isSafari = Browser::of(source.kind).family == Browser::Family::Safari;
    const QString id = isSafari ? Source::safari().id() : source.id();
    return bookmarkID.startsWith(QString(id % u'/'));
}

std::expected<std::optional<QString>, QString> pageAddress(qint64 row, const Source &source,
                                                           const ReadContext &context)
{
    HistoryQuery query;
    query.limit = 1;
    query.rowID = row;
    const auto pages = BrowserReader::history(source, query, context);
    if (!pages)
        return std::unexpected(QString(source.label() % u": " % pages.error().errorDescription()));
    return pages->isEmpty() ? std::nullopt : std::optional(pages->first().url);
}

std::expected<std::optional<QString>, QString> bookmarkAddress(const QString &id, const Source &source,
                                                               const ReadContext &context)
{
    const auto trees = BrowserReader::bookmarks(source, context);
    const QList<Bookmark> bookmarks = trees ? BookmarkNode::flattened(trees->roots) : QList<Bookmark>();
    const auto found = std::ranges::find(bookmarks, id, &Bookmark::id);
    if (found != bookmarks.end())
        return found->url;
    const ReadErrors errors = trees ? trees->problems : trees.error();
    if (errors.isEmpty())
        return std::nullopt;
    return std::unexpected(QString(source.label() % u": " % errors.first().errorDescription()));
}

} // namespace

std::expected<FoundRow, QString> FoundRow::ofID(const QString &rowID, const QList<Source> &profiles,
                                                const QSet<QString> &disabled, const ReadContext &context)
{
    const std::optional<QString> bookmark = JsonLines::bookmarkID(rowID);
    const qsizetype slash = rowID.lastIndexOf(u'/');
    bool isNumber = false;
    const qint64 row = rowID.sliced(slash + 1).toLongLong(&isNumber);
    const QString sourceID = rowID.first(std::max<qsizetype>(slash, 0));
    QStringList problems;
    for (const Source &source : profiles) {
        if (bookmark ? !canHoldBookmark(source, *bookmark) : !isNumber || source.id() != sourceID)
            continue;
        if (disabled.contains(source.id())) {
            problems.append(QString(source.id() % u" is turned off in Settings."));
            continue;
        }
        const auto address =
            bookmark ? bookmarkAddress(*bookmark, source, context) : pageAddress(row, source, context);
        if (!address)
            problems.append(address.error());
        else if (*address)
            return FoundRow{.url = **address, .source = source};
    }
    if (!problems.isEmpty())
        return std::unexpected(problems.first());
    if (std::ranges::find(profiles, rowID, &Source::id) != profiles.end())
        return std::unexpected(QString(rowID % u" is a profile. Only pages and bookmarks can be opened."));
    return std::unexpected(QString(u"There is no row " % rowID % u" (any more)."));
}

} // namespace roamlet
