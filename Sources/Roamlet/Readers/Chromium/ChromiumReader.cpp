// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Chromium/ChromiumReader.h"

#include "Model/Browser.h"
#include "Model/Collation.h"
#include "Platform/Files.h"
#include "Readers/BookmarkTreeBuilder.h"
#include "Readers/Files/Json.h"
#include "Readers/Files/SQLiteSnapshot.h"
#include "Readers/HistoryRows.h"

#include <QCoreApplication>
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

/// In them a browser that encrypts its bookmarks keeps them, those of this computer and those of the account.
constexpr std::array encryptedBookmarkFiles{"EncryptedBookmarks"_L1, "EncryptedBookmarks2"_L1,
                                            "EncryptedAccountBookmarks"_L1, "EncryptedAccountBookmarks2"_L1};

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

std::optional<PointInTime> lastVisit(const SQLiteSnapshot::Row &row, int column)
{
    return pointInTimeOf(row.integer(column));
}

std::optional<QString> displayName(const Json::Value &info, const Browser &browser)
{
    constexpr std::int64_t personalAccount = 1;
    if (browser.namesPersonalProfiles && Json::isTrue(Json::member(info, "is_using_default_name")) &&
        Json::isInteger(Json::member(info, "edge_account_type"), personalAccount))
        //: The profile that Microsoft Edge itself calls so.
        return QCoreApplication::translate("roamlet::Chromium", "Personal");
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
std::optional<BookmarkNode> nodeWithoutChildren(const Json::Value &entry, const SharedSource &source,
                                                const QString &idPrefix)
{
    const std::optional<QString> type = Json::text(Json::member(entry, "type"));
    const bool isFolder = type == u"folder";
    if (!isFolder && type != u"url")
        return {};
    const std::optional<QString> id = Json::text(Json::member(entry, "id"));
    BookmarkNode node;
    node.id = idPrefix % (id ? *id : QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper());
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

/// Every row that is shown.
const QString rowsStatement =
    u"SELECT id, url, title, last_visit_time, visit_count FROM urls\nWHERE hidden = 0"_s;

QString storedTime(PointInTime time)
{
    return QString::number(wholeMicroseconds(time, secondsBefore1970));
}

HistoryStatement historyStatement(const HistoryQuery &query)
{
    return {.rows = rowsStatement % rowCondition(query, u"id"_s) %
                    timeCondition(query.visited, u"last_visit_time"_s, storedTime) %
                    query.conditions(u"(url || ' ' || title)"_s, u"url"_s),
            .order = u"\nORDER BY " %
                     (query.order == HistoryQuery::Order::MostVisited ? u"visit_count DESC, "_s : QString()) %
                     u"last_visit_time DESC\nLIMIT " % QString::number(query.limit),
            .table = u"urls"_s};
}

const QString defaultFolder = u"Default"_s;
const QString operaSideFolder = Browser::sideProfilesFolder.toString();

/// Whether a profile can have this key: it is the name of a folder, and any other one would lead to what is
/// no profile's, or to the same folder under two names.
bool isFolderName(const QString &key)
{
    return !key.isEmpty() && key != u"." && key != u".." && !key.contains(u'/') && !key.contains(QChar());
}

/// Profiles of guests, and those that go when they are closed.
bool isEphemeral(const QString &folderName, const Json::Value &info)
{
    return folderName == u"Guest Profile" || folderName == u"System Profile" ||
           Json::isTrue(Json::member(info, "is_ephemeral"));
}

Source profileSource(const BrowserFolders::Installation &installation, const QString &folderName,
                     const QString &name)
{
    return {.kind = installation.browser,
            .profile = folderName,
            .name = name,
            .safariBookmarks = Source::AllExcept{},
            .installation = installation.key,
            .namesInstallation = installation.isNamed};
}

/// The profiles that "Local State" lists and that are there.
QList<Source> listedProfiles(const BrowserFolders::Installation &installation, const QString &root,
                             const ReadContext &context)
{
    const auto bytes = context.files->read(root % u"/Local State");
    const auto json = bytes ? Json::parse(*bytes) : std::unexpected(QString());
    const Json::Value *profile = json ? Json::objectMember(*json, "profile") : nullptr;
    const Json::Value *cache = profile != nullptr ? Json::objectMember(*profile, "info_cache") : nullptr;
    if (cache == nullptr)
        return {};
    const Browser &browser = Browser::of(installation.browser);
    QList<Source> result;
    for (const auto &[key, info] : cache->items()) {
        const QString folderName = Json::text(key);
        // The data folder itself and the folders beside the first profile of an Opera are looked at apart.
        if (!isFolderName(folderName))
            continue;
        if (browser.hasOperaLayout && folderName.startsWith(operaSideFolder))
            continue;
        if (!context.files->exists(root % u'/' % folderName))
            continue;
        if (!browser.listsEphemeralProfiles && isEphemeral(folderName, info))
            continue;
        result.append(
            profileSource(installation, folderName, displayName(info, browser).value_or(folderName)));
    }
    return result;
}

bool hasProfileFiles(const QString &folder, const Files &files)
{
    return files.exists(folder % u"/History") || files.exists(folder % u"/Bookmarks");
}

/// The profiles that an Opera keeps without listing them: an old one its first in the data folder itself, and
/// every one its further ones in a folder of their own.
QList<Source> operaProfiles(const BrowserFolders::Installation &installation, const QString &root,
                            const ReadContext &context)
{
    const Files &files = *context.files;
    QList<Source> result;
    const bool isOld = !files.exists(root % u'/' % defaultFolder);
    if (isOld && hasProfileFiles(root, files))
        result.append(profileSource(installation, u""_s, Source::displayName(installation.browser)));
    for (const QString &name : files.names(root % u'/' % operaSideFolder)) {
        const QString outer = operaSideFolder % u'/' % name;
        const QString inner = outer % u'/' % defaultFolder;
        const QString folder = files.exists(root % u'/' % inner) ? inner : outer;
        if (hasProfileFiles(root % u'/' % folder, files))
            result.append(profileSource(installation, folder, name));
    }
    return result;
}

/// A root folder of the bookmarks under the key that it has in the file.
struct Root {
    QString key;
    BookmarkNode node;
};

class RootReader
{
public:
    RootReader(const SharedSource &source, QString idPrefix)
        : m_source(source), m_idPrefix(std::move(idPrefix))
    {
    }

    /// The roots in one file that hold a bookmark; none where there is no file.
    std::expected<QList<Root>, ReadError> read(const QString &file, const Files &files) const
    {
        if (!files.exists(file))
            return QList<Root>();
        const auto bytes = files.read(file);
        if (!bytes)
            return std::unexpected(ReadError::wrap(bytes.error(), file));
        const auto json = Json::parse(*bytes);
        if (!json)
            return std::unexpected(ReadError::unreadable(file, json.error()));
        QList<Root> result;
        const Json::Value *roots = Json::objectMember(*json, "roots");
        if (roots == nullptr)
            return result;
        for (const char *key : {"bookmark_bar", "other", "synced"})
            append(QString::fromLatin1(key), Json::objectMember(*roots, key), result);
        if (Browser::of(m_source->kind).hasOperaLayout)
            appendCustomRoots(Json::objectMember(*roots, "custom_root"), result);
        return result;
    }

private:
    void append(const QString &key, const Json::Value *root, QList<Root> &result) const
    {
        if (root == nullptr)
            return;
        std::optional<BookmarkNode> node = bookmarkTree(
            root,
            [this](const Json::Value *entry, bool) {
                return nodeWithoutChildren(*entry, m_source, m_idPrefix);
            },
            childEntries);
        if (!node || node->bookmarkCount() == 0)
            return;
        node->isBar = key == u"bookmark_bar";
        result.append({key, std::move(*node)});
    }

    void appendCustomRoots(const Json::Value *custom, QList<Root> &result) const
    {
        if (custom == nullptr)
            return;
        constexpr std::array known{"unsorted", "speedDial", "pinboard", "userRoot"};
        for (const char *key : known)
            append(QString::fromLatin1(key), Json::objectMember(*custom, key), result);
        for (const auto &[key, value] : custom->items()) {
            const bool isKnown = std::ranges::find(known, std::string_view(key)) != known.end();
            if (!isKnown && key != "trash" && value.is_object())
                append(Json::text(key), &value, result);
        }
    }

    SharedSource m_source;
    QString m_idPrefix;
};

/// Whether the profile's bookmarks are there, but not to be read by anybody else.
bool hasEncryptedBookmarks(const QString &folder, const Files &files)
{
    return std::ranges::any_of(encryptedBookmarkFiles, [&](QLatin1StringView name) {
        const auto bytes = files.read(folder % u'/' % name);
        return bytes && (bytes->startsWith("v10") || bytes->startsWith("v11"));
    });
}

} // namespace

QList<Source> profiles(const BrowserFolders::Installation &installation, const ReadContext &context)
{
    const QString root = installation.roots.value(0);
    QList<Source> result = listedProfiles(installation, root, context);
    const bool isOpera = Browser::of(installation.browser).hasOperaLayout;
    if (isOpera)
        result += operaProfiles(installation, root, context);
    if (result.size() < 2)
        return result;
    const Collation collation(context.locale);
    const auto isFirst = [isOpera](const Source &source) {
        return source.profile == defaultFolder || (isOpera && source.profile == u"");
    };
    std::ranges::stable_sort(result, [&](const Source &left, const Source &right) {
        if (isFirst(left) || isFirst(right))
            return isFirst(left) && !isFirst(right);
        return collation.compare(*left.profile, *right.profile) < 0;
    });
    return result;
}

QString folder(const Source &source, const ReadContext &context)
{
    return context.folders.profile(source, *context.files);
}

QString historyFile(const Source &source, const ReadContext &context)
{
    return folder(source, context) % u'/' % Browser::historyFile(Browser::Family::Chromium);
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
    // What joins an address with a NULL is NULL, and no word is in that.
    static constexpr HistoryRules rules{.lastVisit = lastVisit, .findsUntitled = false};
    const QString file = historyFile(source, context);
    if (!context.files->exists(file))
        return HistoryText::empty(source);
    const auto snapshot = SQLiteSnapshot::copying(file, context);
    if (!snapshot)
        return std::unexpected(snapshot.error());
    return roamlet::historyText(*snapshot,
                                {.rows = rowsStatement, .order = u"\nORDER BY id"_s, .table = u"urls"_s},
                                source, rules, mostBytes, context.stop);
}

std::expected<BookmarkTrees, ReadErrors> bookmarks(const Source &source, const ReadContext &context)
{
    const Files &files = *context.files;
    const QString place = folder(source, context);
    const QString localFile = place % u"/Bookmarks";
    const QString accountFile = place % u"/AccountBookmarks";
    const auto local = RootReader(source, source.id() % u'/').read(localFile, files);
    const auto account = RootReader(source, source.id() % u"/account/").read(accountFile, files);

    BookmarkTrees trees;
    if (!local)
        trees.problems.append(local.error());
    // Where the folder may not be looked into, everything seems to exist, and nobody knows whether there is
    // an account's file.
    const bool isFolderRefused = !local && !account && files.exists(place % u"/no-such-file");
    if (!account && !isFolderRefused)
        trees.problems.append(account.error());
    const bool hasLocal = local && files.exists(localFile);
    const bool hasAccount = account && files.exists(accountFile);
    if (!trees.problems.isEmpty() && !hasLocal && !hasAccount)
        return std::unexpected(trees.problems);

    const QList<Root> localRoots = local.value_or(QList<Root>());
    for (const Root &root : localRoots)
        trees.roots.append(root.node);
    for (Root root : account.value_or(QList<Root>())) {
        if (std::ranges::find(localRoots, root.key, &Root::key) != localRoots.end())
            //: %1 is a folder of bookmarks; this one is stored in the user's account.
            root.node.title =
                QCoreApplication::translate("roamlet::Chromium", "%1 (Account)").arg(root.node.title);
        trees.roots.append(std::move(root.node));
    }
    trees.areEncrypted =
        trees.problems.isEmpty() && !hasLocal && !hasAccount && hasEncryptedBookmarks(place, files);
    return trees;
}

QStringList readFiles()
{
    QStringList names{u"Bookmarks"_s, u"AccountBookmarks"_s, u"History"_s, u"History-wal"_s};
    for (const QLatin1StringView name : encryptedBookmarkFiles)
        names.append(name);
    return names;
}

} // namespace roamlet::ChromiumReader
