// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/Bookmark.h"

#include "Model/LowerCase.h"
#include "Model/Site.h"

#include <utility>
#include <vector>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Visits a node and everything below it in pre-order, without recursion: trees come from foreign files.
template<typename Visit>
void forEachNode(const BookmarkNode &root, Visit visit)
{
    std::vector<const BookmarkNode *> open{&root};
    while (!open.empty()) {
        const BookmarkNode *node = open.back();
        open.pop_back();
        visit(*node);
        if (node->children) {
            for (auto child = node->children->crbegin(); child != node->children->crend(); ++child)
                open.push_back(&*child);
        }
    }
}

/// The paths of bookmarks, which repeat themselves level by level. Those of any tree that a person made stand
/// in full; of a file that nests bookmarks by the thousand they would fill the memory.
class Paths
{
public:
    QString operator()(const QString &path)
    {
        constexpr qsizetype mostCharacters = 32LL * 1024 * 1024;
        constexpr qsizetype keptAtEachEnd = 100;
        m_characters += path.size();
        if (m_characters < mostCharacters || path.size() <= 3 * keptAtEachEnd)
            return path;
        QStringView begin = QStringView(path).first(keptAtEachEnd);
        QStringView end = QStringView(path).last(keptAtEachEnd);
        if (begin.back().isHighSurrogate())
            begin.chop(1);
        if (end.front().isLowSurrogate())
            end = end.sliced(1);
        return begin % u" … " % end;
    }

private:
    qsizetype m_characters = 0;
};

Bookmark bookmark(const BookmarkNode &leaf, const QString &folder, const std::optional<QString> &folderID)
{
    const QString url = leaf.urlText();
    return {.id = leaf.id,
            .title = leaf.title,
            .url = url,
            .folder = folder,
            .folderID = folderID,
            .dateAdded = leaf.dateAdded,
            .source = leaf.source,
            .searchKey = lowerCased(leaf.title % u'\n' % url % u'\n' % folder),
            .site = Site::name(url).value_or(QString())};
}

/// Appends the bookmarks at and below a node, which lies in the folder of this path and id.
void flatten(const BookmarkNode &root, const QStringList &path, const std::optional<QString> &folderID,
             Paths &paths, QList<Bookmark> &result)
{
    struct Level {
        const BookmarkNode *folder;
        qsizetype next;
        qsizetype outerPathLength;
    };
    const QString separator = u" › "_s;
    // The joined path grows and shrinks with the walk; joining the titles anew for each bookmark would not
    // scale.
    QString joined = path.join(separator);
    bool hasOuterTitle = !path.isEmpty();
    if (!root.isFolder()) {
        result.append(bookmark(root, joined, folderID));
        return;
    }
    std::vector<Level> open;
    const auto enter = [&](const BookmarkNode &folder) {
        open.push_back({&folder, 0, joined.size()});
        if (hasOuterTitle)
            joined += separator;
        joined += folder.title;
        hasOuterTitle = true;
    };
    enter(root);
    while (!open.empty()) {
        Level &level = open.back();
        if (level.next == level.folder->children->size()) {
            joined.truncate(level.outerPathLength);
            open.pop_back();
            continue;
        }
        const BookmarkNode &child = level.folder->children->at(level.next++);
        if (child.isFolder())
            enter(child);
        else
            result.append(bookmark(child, paths(joined), level.folder->id));
    }
}

} // namespace

BookmarkNode::~BookmarkNode()
{
    // The generated destructor would recurse once for each level, and files nest as deep as they like: lift
    // the grandchildren out until nothing is nested any more. Lists that somebody else holds too are only let
    // go.
    if (!children || !children->isDetached())
        return;
    std::vector<QList<BookmarkNode>> doomed;
    doomed.push_back(std::move(*children));
    while (!doomed.empty()) {
        QList<BookmarkNode> nodes = std::move(doomed.back());
        doomed.pop_back();
        if (!nodes.isDetached())
            continue;
        for (BookmarkNode &node : nodes) {
            if (node.children && !node.children->isEmpty())
                doomed.push_back(std::move(*node.children));
            node.children.reset();
        }
    }
}

bool BookmarkNode::operator==(const BookmarkNode &other) const = default;

qint64 BookmarkNode::bookmarkCount() const
{
    qint64 count = 0;
    forEachNode(*this, [&count](const BookmarkNode &node) { count += node.isFolder() ? 0 : 1; });
    return count;
}

qint64 BookmarkNode::folderCount() const
{
    qint64 count = 0;
    forEachNode(*this, [&count](const BookmarkNode &node) { count += node.isFolder() ? 1 : 0; });
    return count;
}

QList<Bookmark> BookmarkNode::flattened(const QStringList &path, const std::optional<QString> &folderID) const
{
    Paths paths;
    QList<Bookmark> result;
    flatten(*this, path, folderID, paths, result);
    return result;
}

QList<Bookmark> BookmarkNode::flattened(const QList<BookmarkNode> &roots)
{
    Paths paths;
    QList<Bookmark> result;
    for (const BookmarkNode &root : roots)
        flatten(root, {}, {}, paths, result);
    return result;
}

QString BookmarkNode::idOfSource(const Source &source)
{
    return u"source/" % source.id();
}

size_t qHash(const Bookmark &bookmark, size_t seed)
{
    const double added = bookmark.dateAdded ? secondsSince1970(*bookmark.dateAdded) : 0.0;
    return qHashMulti(seed, bookmark.id, bookmark.title, bookmark.url, bookmark.folder,
                      bookmark.folderID.value_or(QString()), bookmark.dateAdded.has_value(), added,
                      bookmark.source, bookmark.searchKey, bookmark.site);
}

size_t qHash(const BookmarkNode &node, size_t seed)
{
    const double added = node.dateAdded ? secondsSince1970(*node.dateAdded) : 0.0;
    return qHashMulti(seed, node.id, node.title, node.url.has_value(), node.urlText(),
                      node.dateAdded.has_value(), added, node.source, node.isFolder(),
                      node.children.value_or(QList<BookmarkNode>()), node.isBar);
}

} // namespace roamlet
