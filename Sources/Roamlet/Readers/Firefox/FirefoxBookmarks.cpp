// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Firefox/FirefoxBookmarks.h"

#include "Readers/BookmarkTreeBuilder.h"
#include "Readers/Files/SQLiteSnapshot.h"
#include "Readers/Firefox/FirefoxTime.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <array>
#include <deque>
#include <utility>
#include <vector>

namespace roamlet::FirefoxBookmarks
{

using namespace Qt::StringLiterals;

namespace
{

/// A folder that is always there. The titles in the database are names for programs.
struct Root {
    QLatin1StringView guid;
    const char *title;
};

//: The four folders of bookmarks that Firefox calls so.
constexpr std::array roots{
    Root{"toolbar_____"_L1, QT_TRANSLATE_NOOP("roamlet::Firefox", "Bookmarks Toolbar")},
    Root{"menu________"_L1, QT_TRANSLATE_NOOP("roamlet::Firefox", "Bookmarks Menu")},
    Root{"unfiled_____"_L1, QT_TRANSLATE_NOOP("roamlet::Firefox", "Other Bookmarks")},
    Root{"mobile______"_L1, QT_TRANSLATE_NOOP("roamlet::Firefox", "Mobile Bookmarks")}};
constexpr QLatin1StringView bar = roots.front().guid;
/// Holds a folder for each tag, and there a second row for each bookmark that has it.
constexpr QLatin1StringView tags = "tags________"_L1;

/// A row that is a folder, or a bookmark of a page.
struct Entry {
    std::int64_t id = 0;
    QString title;
    /// Only a bookmark has one.
    std::optional<QString> url;
    std::optional<PointInTime> dateAdded;
    QString guid;

    bool isFolder(QLatin1StringView wantedGuid) const { return !url && guid == wantedGuid; }
    /// Whether it has its own place among the roots, or none, whatever its row says.
    bool isSpecial() const
    {
        return isFolder(tags) ||
               std::ranges::any_of(roots, [this](const Root &root) { return isFolder(root.guid); });
    }
};

class Entries
{
public:
    std::expected<void, ReadError> read(const SQLiteSnapshot &places);

    const Entry *folder(QLatin1StringView guid) const
    {
        const auto found =
            std::ranges::find_if(m_entries, [guid](const Entry &entry) { return entry.isFolder(guid); });
        return found == m_entries.end() ? nullptr : &*found;
    }

    /// What lies directly in a folder. Only the first to ask is told: folders that have one number, or that
    /// lie in each other, would unfold without end.
    std::vector<const Entry *> takeChildren(const Entry *folder) { return m_children.take(folder->id); }

private:
    std::deque<Entry> m_entries;
    QHash<std::int64_t, std::vector<const Entry *>> m_children;
};

std::expected<void, ReadError> Entries::read(const SQLiteSnapshot &places)
{
    const QString statement = u"SELECT b.id, b.type, b.parent, b.title, b.dateAdded, b.guid, p.url\n"
                              "FROM moz_bookmarks b LEFT JOIN moz_places p ON p.id = b.fk\n"
                              "ORDER BY b.parent, b.position, b.id"_s;
    return places.query(statement, {}, [this](const SQLiteSnapshot::Row &row) {
        enum Column { Id, Type, Parent, Title, DateAdded, Guid, Url };
        constexpr std::int64_t bookmark = 1;
        constexpr std::int64_t folder = 2;
        const std::int64_t type = row.integer(Type);
        std::optional<QString> url = type == bookmark ? row.text(Url) : std::nullopt;
        // Firefox's own searches look like bookmarks.
        const bool isPage = url && !url->startsWith(u"place:", Qt::CaseInsensitive);
        if (type != folder && !isPage)
            return;
        const std::int64_t id = row.integer(Id);
        QString guid = row.text(Guid).value_or(QString());
        m_entries.push_back({.id = id,
                             .title = row.text(Title).value_or(QString()),
                             .url = std::move(url),
                             .dateAdded = firefoxTime(row.integer(DateAdded)),
                             .guid = guid.isEmpty() ? QString::number(id) : std::move(guid)});
        m_children[row.integer(Parent)].push_back(&m_entries.back());
    });
}

/// The node of an entry, a folder still without its children.
BookmarkNode nodeOf(const Entry &entry, const SharedSource &source)
{
    BookmarkNode node;
    node.id = source.id() % u'/' % entry.guid;
    node.title = entry.title;
    node.source = source;
    if (!entry.url) {
        node.children = QList<BookmarkNode>();
        return node;
    }
    node.url = entry.url;
    if (node.title.isEmpty())
        node.title = *entry.url;
    node.dateAdded = entry.dateAdded;
    return node;
}

} // namespace

std::expected<QList<BookmarkNode>, ReadError> read(const SQLiteSnapshot &places, const SharedSource &source)
{
    Entries entries;
    if (const auto run = entries.read(places); !run)
        return std::unexpected(run.error());
    QList<BookmarkNode> result;
    for (const auto &[guid, title] : roots) {
        const Entry *root = entries.folder(guid);
        if (root == nullptr)
            continue;
        std::optional<BookmarkNode> node = bookmarkTree(
            root,
            [&source](const Entry *entry, bool isRoot) {
                return entry->isSpecial() && !isRoot ? std::nullopt : std::optional(nodeOf(*entry, source));
            },
            [&entries](const Entry *folder) { return entries.takeChildren(folder); });
        if (!node || node->bookmarkCount() == 0)
            continue;
        node->title = QCoreApplication::translate("roamlet::Firefox", title);
        node->isBar = guid == bar;
        result.append(std::move(*node));
    }
    return result;
}

} // namespace roamlet::FirefoxBookmarks
