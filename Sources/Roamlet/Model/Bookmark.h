// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/PointInTime.h"
#include "Model/SharedSource.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace roamlet
{

/// One bookmark, flattened out of a tree, with the path of the folders around it.
/// Only ever built by BookmarkNode::flattened.
struct Bookmark {
    QString id;
    QString title;
    QString url;
    /// The titles of the enclosing folders, outermost first, joined by " › ". The middle of long ones is left
    /// out where all those of a source would not fit into the memory.
    QString folder;
    /// The id of the folder that directly encloses it.
    std::optional<QString> folderID;
    std::optional<PointInTime> dateAdded;
    SharedSource source;
    /// Lower-cased title, line feed, URL, line feed, folder.
    QString searchKey;
    /// Site::name of the URL, or empty.
    QString site;

    bool operator==(const Bookmark &) const = default;
};

/// One node of a bookmark tree. A node is a bookmark exactly when it has no children list; a folder's list
/// may be empty. Trees of any depth are safe to hold, to copy and to let go: nothing here recurses but
/// equality and hash.
class BookmarkNode
{
public:
    BookmarkNode() = default;
    BookmarkNode(const BookmarkNode &) = default;
    BookmarkNode(BookmarkNode &&) = default;
    BookmarkNode &operator=(const BookmarkNode &) = default;
    BookmarkNode &operator=(BookmarkNode &&) = default;
    ~BookmarkNode();

    /// Member by member. Defined apart, since a list of nodes compares by it while this class is still
    /// incomplete.
    bool operator==(const BookmarkNode &other) const;

    QString id;
    QString title;
    std::optional<QString> url;
    std::optional<PointInTime> dateAdded;
    SharedSource source;
    std::optional<QList<BookmarkNode>> children;
    /// Whether this is the folder that the browser shows as its bookmarks bar.
    bool isBar = false;

    bool isFolder() const { return children.has_value(); }
    /// The URL, or empty.
    QString urlText() const { return url.value_or(QString()); }
    /// 1 for a bookmark; for a folder the bookmarks anywhere below it.
    qint64 bookmarkCount() const;
    /// The folders among this node and everything below it.
    qint64 folderCount() const;
    /// The bookmarks at and below this node in tree order. `path` and `folderID` describe what encloses it.
    QList<Bookmark> flattened(const QStringList &path = {},
                              const std::optional<QString> &folderID = {}) const;
    /// The id of the folder that stands for all bookmarks of a source beside those of others.
    static QString idOfSource(const Source &source);
    /// The bookmarks of a whole source, tree by tree.
    static QList<Bookmark> flattened(const QList<BookmarkNode> &roots);
};

size_t qHash(const Bookmark &bookmark, size_t seed = 0);
size_t qHash(const BookmarkNode &node, size_t seed = 0);

} // namespace roamlet
