// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Safari/SafariReader.h"

#include "Model/Browser.h"
#include "Platform/Files.h"
#include "Readers/BookmarkTreeBuilder.h"
#include "Readers/Files/PropertyList.h"
#include "Readers/Files/SQLiteSnapshot.h"
#include "Readers/HistoryRows.h"

#include <QCoreApplication>
#include <QUuid>

#include <algorithm>
#include <utility>
#include <vector>

namespace roamlet::SafariReader
{

using namespace Qt::StringLiterals;

namespace
{

const QString readingListTitle = u"com.apple.ReadingList"_s;
const QString barTitle = u"BookmarksBar"_s;

/// What a folder at the root is called on screen.
QString rootName(const QString &rawTitle)
{
    if (rawTitle == barTitle)
        //: The folder of bookmarks that Safari calls so.
        return QCoreApplication::translate("roamlet::Safari", "Favorites");
    if (rawTitle == u"BookmarksMenu")
        //: The folder of bookmarks that Safari calls so.
        return QCoreApplication::translate("roamlet::Safari", "Bookmarks Menu");
    return rawTitle;
}

/// Which bookmarks a named profile shows: its own favourites folder, unless it shares the favourites bar.
Source::SafariBookmarks bookmarkSelection(QByteArrayView extraAttributes)
{
    if (extraAttributes.isNull())
        return Source::None{};
    const auto attributes = PropertyList::parse(extraAttributes);
    const std::optional<QString> folder =
        attributes ? attributes->root().member("CustomFavoritesFolderServerID").string() : std::nullopt;
    if (!folder || *folder == u"Favorites Bar")
        return Source::None{};
    return Source::Folder{*folder};
}

std::optional<PointInTime> lastVisit(const SQLiteSnapshot::Row &row, int column)
{
    return pointInTime(row.real(column) + secondsUntil2001);
}

QString storedTime(PointInTime time)
{
    constexpr int exactly = 17;
    return QString::number(secondsSince1970(countable(time)) - secondsUntil2001, 'g', exactly);
}

HistoryStatement historyStatement(const HistoryQuery &query)
{
    // A page's last visit is known when all of them were looked at; a visit before the span decides nothing.
    const TimeSpan &span = query.visited;
    const QString isBefore = timeCondition({.end = span.end}, u"max(v.visit_time)"_s, storedTime);
    return {.rows = u"SELECT i.id, i.url, v.title, max(v.visit_time), i.visit_count\n"
                    "FROM history_items i JOIN history_visits v ON v.history_item = i.id\nWHERE 1" %
                    rowCondition(query, u"i.id"_s) %
                    timeCondition({.begin = span.begin}, u"v.visit_time"_s, storedTime) %
                    query.conditions(u"(i.url || ' ' || ifnull(v.title, ''))"_s, u"i.url"_s),
            .order = u"\nGROUP BY i.id" %
                     (isBefore.isEmpty() ? QString() : QString(u"\nHAVING 1" % isBefore)) % u"\nORDER BY " %
                     (query.order == HistoryQuery::Order::MostVisited ? u"5 DESC, "_s : QString()) %
                     u"4 DESC\nLIMIT " % QString::number(query.limit)};
}

std::optional<QString> serverID(PropertyListValue entry)
{
    return entry.member("Sync").member("ServerID").string();
}

/// The first entry with this server ID, depth first.
PropertyListValue find(PropertyListValue root, const QString &id)
{
    std::vector<PropertyListValue> open{root};
    while (!open.empty()) {
        const PropertyListValue entry = open.back();
        open.pop_back();
        if (serverID(entry) == id)
            return entry;
        std::vector<PropertyListValue> children = entry.member("Children").dictionaries();
        open.insert(open.end(), children.rbegin(), children.rend());
    }
    return {};
}

/// Turns entries into nodes for one source, leaving out what belongs to other profiles.
class TreeBuilder
{
public:
    TreeBuilder(SharedSource source, QSet<QString> excludedIDs)
        : m_source(std::move(source)), m_excludedIDs(std::move(excludedIDs))
    {
    }

    /// The tree at and below an entry that is shown at the top.
    std::optional<BookmarkNode> node(PropertyListValue rootEntry) const
    {
        return bookmarkTree(
            rootEntry,
            [this](PropertyListValue entry, bool isRoot) { return nodeWithoutChildren(entry, isRoot); },
            [](PropertyListValue entry) { return entry.member("Children").dictionaries(); });
    }

private:
    std::optional<BookmarkNode> nodeWithoutChildren(PropertyListValue entry, bool isRoot) const
    {
        const std::optional<QString> id = serverID(entry);
        if (id && m_excludedIDs.contains(*id))
            return {};
        const std::optional<QString> type = entry.member("WebBookmarkType").string();
        const std::optional<QString> identity = entry.member("WebBookmarkUUID").string();
        BookmarkNode node;
        node.id = u"safari/" %
                  (identity ? *identity : QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper());
        node.source = m_source;
        if (type == u"WebBookmarkTypeLeaf") {
            node.url = entry.member("URLString").string();
            if (!node.url)
                return {};
            node.title = entry.member("URIDictionary").member("title").string().value_or(*node.url);
            node.dateAdded = entry.member("dateAdded").date();
            return node;
        }
        if (type == u"WebBookmarkTypeList") {
            const QString rawTitle = entry.member("Title").string().value_or(QString());
            node.title = isRoot ? rootName(rawTitle) : rawTitle;
            node.children = QList<BookmarkNode>();
            node.isBar = isRoot && rawTitle == barTitle;
            return node;
        }
        return {};
    }

    SharedSource m_source;
    QSet<QString> m_excludedIDs;
};

/// The one folder that is a named profile's favourites; it plays the part of the bookmarks bar.
QList<BookmarkNode> favourites(PropertyListValue root, const QString &folderID, const SharedSource &source)
{
    const PropertyListValue entry = find(root, folderID);
    std::optional<BookmarkNode> node = TreeBuilder(source, {}).node(entry);
    if (!node || node->bookmarkCount() == 0)
        return {};
    node->isBar = true;
    return {*node};
}

QList<BookmarkNode> allBookmarks(PropertyListValue root, const QSet<QString> &excludedIDs,
                                 const SharedSource &source)
{
    const TreeBuilder builder(source, excludedIDs);
    QList<BookmarkNode> result;
    for (const PropertyListValue entry : root.member("Children").dictionaries()) {
        if (entry.member("Title").string() == readingListTitle)
            continue;
        std::optional<BookmarkNode> node = builder.node(entry);
        if (node && node->bookmarkCount() > 0)
            result.append(std::move(*node));
    }
    return result;
}

} // namespace

QList<Source> profiles(const ReadContext &context)
{
    const auto snapshot =
        SQLiteSnapshot::copying(context.folders.safariContainer % u"/SafariTabs.db", context);
    if (!snapshot)
        return {Source::safari()};
    QList<Source> named;
    QSet<QString> claimedIDs;
    // An error ends the reading; the profiles that were read before it count.
    static_cast<void>(snapshot->query(
        u"SELECT title, server_id, extra_attributes FROM bookmarks\n"
        "WHERE subtype = 2 AND deleted = 0 AND server_id != 'DefaultProfile'\nORDER BY order_index"_s,
        {}, [&](const SQLiteSnapshot::Row &row) {
            enum Column { Title, ServerID, ExtraAttributes };
            const std::optional<QString> id = row.text(ServerID);
            const std::optional<QString> title = row.text(Title);
            if (!id || !title || title->isEmpty())
                return;
            const Source::SafariBookmarks selection = bookmarkSelection(row.blob(ExtraAttributes));
            if (const auto *folder = std::get_if<Source::Folder>(&selection))
                claimedIDs.insert(folder->serverID);
            named.append(
                {.kind = Source::Kind::Safari, .profile = id, .name = *title, .safariBookmarks = selection});
        }));
    if (named.isEmpty())
        return {Source::safari()};
    named.prepend({.kind = Source::Kind::Safari,
                   .profile = {},
                   //: The profile that Safari itself calls so.
                   .name = QCoreApplication::translate("roamlet::Safari", "Personal"),
                   .safariBookmarks = Source::AllExcept{claimedIDs}});
    return named;
}

QString historyFile(const Source &source, const ReadContext &context)
{
    const QString folder = source.profile ? QString(context.folders.safariProfiles() % u'/' % *source.profile)
                                          : context.folders.safari;
    return folder % u'/' % Browser::historyFile(Browser::Family::Safari);
}

std::expected<QList<HistoryItem>, ReadError> history(const Source &source, const HistoryQuery &query,
                                                     const ReadContext &context)
{
    const QString file = historyFile(source, context);
    // A profile that has never stored anything has no file; the default profile always has one.
    if (source.profile && !context.files->exists(file))
        return QList<HistoryItem>();
    const auto snapshot = SQLiteSnapshot::copying(file, context);
    if (!snapshot)
        return std::unexpected(snapshot.error());
    return historyIn(*snapshot, source, query);
}

std::expected<QList<HistoryItem>, ReadError> historyIn(const SQLiteSnapshot &copy, const Source &source,
                                                       const HistoryQuery &query)
{
    return historyRows(copy, historyStatement(query), query, source, lastVisit);
}

std::expected<std::shared_ptr<const HistoryText>, ReadError>
historyText(const Source &source, const ReadContext &context, size_t mostBytes)
{
    // Words are looked for in every visit. The join is crossed so that the visits of a page come together.
    static constexpr HistoryRules rules{.lastVisit = lastVisit,
                                        .pages = HistoryText::Builder::Pages::SeveralRows};
    const HistoryStatement statement{
        .rows = u"SELECT i.id, i.url, v.title, v.visit_time, i.visit_count\n"
                "FROM history_items i CROSS JOIN history_visits v ON v.history_item = i.id"_s,
        .order = u"\nORDER BY i.id"_s};
    const QString file = historyFile(source, context);
    if (source.profile && !context.files->exists(file))
        return HistoryText::empty(source);
    const auto snapshot = SQLiteSnapshot::copying(file, context);
    if (!snapshot)
        return std::unexpected(snapshot.error());
    return roamlet::historyText(*snapshot, statement, source, rules, mostBytes, context.stop);
}

std::expected<BookmarkTrees, ReadErrors> bookmarks(const Source &source, const ReadContext &context)
{
    if (std::holds_alternative<Source::None>(source.safariBookmarks))
        return BookmarkTrees();
    const QString file = context.folders.safari % u"/Bookmarks.plist";
    const auto bytes = context.files->read(file);
    if (!bytes)
        return std::unexpected(ReadErrors{ReadError::wrap(bytes.error(), file)});
    const auto list = PropertyList::parse(*bytes);
    if (!list)
        return std::unexpected(ReadErrors{ReadError::unreadable(file, list.error())});
    if (!list->root().isDictionary())
        return std::unexpected(ReadErrors{ReadError::unreadable(
            file, QCoreApplication::translate("roamlet::ReadError", "not a dictionary"))});
    if (const auto *folder = std::get_if<Source::Folder>(&source.safariBookmarks))
        return BookmarkTrees{.roots = favourites(list->root(), folder->serverID, source)};
    return BookmarkTrees{.roots = allBookmarks(list->root(),
                                               std::get<Source::AllExcept>(source.safariBookmarks).serverIDs,
                                               source)};
}

QStringList readFiles()
{
    return {u"Bookmarks.plist"_s, u"History.db"_s, u"History.db-wal"_s};
}

} // namespace roamlet::SafariReader
