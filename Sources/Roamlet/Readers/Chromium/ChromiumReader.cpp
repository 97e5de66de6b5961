// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Chromium/ChromiumReader.h"

#include "Model/Collation.h"
#include "Platform/Files.h"
#include "Readers/BookmarkTree.h"
#include "Readers/Files/Json.h"
#include "Readers/Files/SQLiteSnapshot.h"

#include <QUuid>

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>
#include <vector>

namespace roamlet::ChromiumReader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr double microsecondsPerSecond = 1'000'000;
/// From 1601-01-01, where Chromium's times begin, to 1970-01-01.
constexpr double secondsBefore1970 = 11'644'473'600;

/// The point in time of a count of microseconds since 1601, or nothing for "never".
std::optional<PointInTime> pointInTimeOf(std::int64_t microseconds)
{
    if (microseconds < 1)
        return {};
    return pointInTime((static_cast<double>(microseconds) / microsecondsPerSecond) - secondsBefore1970);
}

std::optional<QString> displayName(const Json::Value &info, Source::Kind kind)
{
    constexpr std::int64_t personalAccount = 1;
    if (kind == Source::Kind::Edge && Json::isTrue(Json::member(info, "is_using_default_name")) &&
        Json::isInteger(Json::member(info, "edge_account_type"), personalAccount))
        return u"Personal"_s;
    return Json::text(Json::member(info, "name"));
}

/// Chromium writes dates as texts of digits.
std::optional<PointInTime> dateAdded(const Json::Value *value)
{
    if (value == nullptr || !value->is_string())
        return {};
    const auto &text = value->get_ref<const std::string &>();
    const char *begin = text.data();
    const char *end = begin + text.size();
    if (text.starts_with('+') && !text.starts_with("+-"))
        ++begin;
    std::int64_t microseconds = 0;
    const auto [parsed, error] = std::from_chars(begin, end, microseconds);
    if (error != std::errc() || parsed != end)
        return {};
    return pointInTimeOf(microseconds);
}

/// The children of a folder entry: none unless the list holds objects only.
std::vector<const Json::Value *> childEntries(const Json::Value *folder)
{
    const Json::Value *children = Json::member(*folder, "children");
    if (children == nullptr || !children->is_array())
        return {};
    std::vector<const Json::Value *> entries;
    entries.reserve(children->size());
    for (const Json::Value &entry : *children) {
        if (!entry.is_object())
            return {};
        entries.push_back(&entry);
    }
    return entries;
}

/// The node of one entry, a folder still without its children; nothing for what is neither folder nor
/// bookmark.
std::optional<BookmarkNode> nodeWithoutChildren(const Json::Value &entry, const Source &source)
{
    const std::optional<QString> type = Json::text(Json::member(entry, "type"));
    const bool isFolder = type == u"folder";
    if (!isFolder && type != u"url")
        return {};
    const std::optional<QString> id = Json::text(Json::member(entry, "id"));
    BookmarkNode node;
    node.id = source.id() % u'/' % (id ? *id : QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper());
    node.title = Json::text(Json::member(entry, "name")).value_or(QString());
    node.source = source;
    if (isFolder) {
        node.children = QList<BookmarkNode>();
        return node;
    }
    node.url = Json::text(Json::member(entry, "url")).value_or(QString());
    if (node.title.isEmpty())
        node.title = *node.url;
    node.dateAdded = dateAdded(Json::member(entry, "date_added"));
    return node;
}

QString historyStatement(const HistoryQuery &query)
{
    return u"SELECT id, url, title, last_visit_time, visit_count FROM urls\nWHERE hidden = 0" %
           query.conditions(u"(url || ' ' || title)"_s, u"url"_s) % u"\nORDER BY " %
           (query.order == HistoryQuery::Order::MostVisited ? u"visit_count DESC, "_s : QString()) %
           u"last_visit_time DESC\nLIMIT " % QString::number(query.limit);
}

} // namespace

QList<Source> profiles(Source::Kind kind, const ReadContext &context)
{
    const QString root = context.folders.chromium(kind);
    if (root.isEmpty())
        return {};
    const auto bytes = context.files->read(root % u"/Local State");
    const auto json = bytes ? Json::parse(*bytes) : std::unexpected(QString());
    const Json::Value *profile = json ? Json::objectMember(*json, "profile") : nullptr;
    const Json::Value *cache = profile != nullptr ? Json::objectMember(*profile, "info_cache") : nullptr;
    if (cache == nullptr)
        return {};

    QList<Source> result;
    for (const auto &[key, info] : cache->items()) {
        const QString folderName = Json::text(key);
        // What stands behind a NUL is no part of a file's name: two keys could mean the same folder.
        if (key.find('\0') != std::string::npos)
            continue;
        if (!context.files->exists(root % u'/' % folderName))
            continue;
        result.append({.kind = kind,
                       .profile = folderName,
                       .name = displayName(info, kind).value_or(folderName),
                       .safariBookmarks = Source::AllExcept{}});
    }
    if (result.size() > 1) {
        const Collation collation(context.locale);
        std::ranges::stable_sort(result, [&collation](const Source &left, const Source &right) {
            const bool leftIsDefault = left.profile == u"Default";
            const bool rightIsDefault = right.profile == u"Default";
            if (leftIsDefault || rightIsDefault)
                return leftIsDefault && !rightIsDefault;
            return collation.compare(*left.profile, *right.profile) < 0;
        });
    }
    return result;
}

QString folder(const Source &source, const ReadContext &context)
{
    return context.folders.chromium(source.kind) % u'/' % source.profile.value_or(QString());
}

QString historyFile(const Source &source, const ReadContext &context)
{
    return folder(source, context) % u"/History";
}

std::expected<QList<HistoryItem>, ReadError> history(const Source &source, const HistoryQuery &query,
                                                     const ReadContext &context)
{
    const QString file = historyFile(source, context);
    if (!context.files->exists(file))
        return QList<HistoryItem>();
    const auto snapshot = SQLiteSnapshot::copying(file, context);
    if (!snapshot)
        return std::unexpected(snapshot.error());
    QList<HistoryItem> items;
    items.reserve(std::min(query.limit, HistoryQuery::defaultLimit));
    const auto run =
        snapshot->query(historyStatement(query), query.patterns(), [&](const SQLiteSnapshot::Row &row) {
            enum Column { Id, Url, Title, LastVisitTime, VisitCount };
            const std::optional<PointInTime> lastVisit = pointInTimeOf(row.integer(LastVisitTime));
            if (lastVisit) {
                items.append(HistoryItem::ofRow(row.integer(Id), row.text(Title).value_or(QString()),
                                                row.text(Url).value_or(QString()), *lastVisit,
                                                row.integer(VisitCount), source));
            }
        });
    if (!run)
        return std::unexpected(run.error());
    return items;
}

std::expected<QList<BookmarkNode>, ReadError> bookmarks(const Source &source, const ReadContext &context)
{
    const QString file = folder(source, context) % u"/Bookmarks";
    if (!context.files->exists(file))
        return QList<BookmarkNode>();
    const auto bytes = context.files->read(file);
    if (!bytes)
        return std::unexpected(ReadError::wrap(bytes.error(), file));
    const auto json = Json::parse(*bytes);
    if (!json)
        return std::unexpected(ReadError::unreadable(file, json.error()));

    QList<BookmarkNode> result;
    const Json::Value *roots = Json::objectMember(*json, "roots");
    for (const char *key : {"bookmark_bar", "other", "synced"}) {
        const Json::Value *root = roots != nullptr ? Json::objectMember(*roots, key) : nullptr;
        if (root == nullptr)
            continue;
        std::optional<BookmarkNode> node = bookmarkTree(
            root, [&source](const Json::Value *entry, bool) { return nodeWithoutChildren(*entry, source); },
            childEntries);
        if (!node || node->bookmarkCount() == 0)
            continue;
        node->isBar = std::string_view(key) == "bookmark_bar";
        result.append(std::move(*node));
    }
    return result;
}

} // namespace roamlet::ChromiumReader
