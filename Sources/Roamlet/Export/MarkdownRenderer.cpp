// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Export/Renderers.h"

#include <utility>
#include <vector>

namespace roamlet::BookmarkExport
{

using namespace Qt::StringLiterals;

namespace
{

/// The URL stands in angle brackets, so that only its own closing ones need care.
QString link(const BookmarkNode &bookmark)
{
    QString title = bookmark.title;
    QString url = bookmark.urlText();
    title.replace(u'[', u"\\["_s).replace(u']', u"\\]"_s);
    url.replace(u'>', u"%3E"_s);
    return u'[' % title % u"](<" % url % u">)";
}

/// Folders become headings on two levels and list items below them.
class MarkdownWriter
{
public:
    QString write(const QList<BookmarkNode> &tree)
    {
        add(u"# Bookmarks"_s);
        for (const BookmarkNode &node : tree) {
            if (node.isFolder())
                addTopFolder(node);
            else
                addBookmark(node);
        }
        return std::exchange(m_text, {});
    }

private:
    void add(const QString &line)
    {
        m_text += line % u'\n';
        m_isAfterEmptyLine = line.isEmpty();
    }

    void addHeading(const QString &marks, const QString &title)
    {
        if (!m_isAfterEmptyLine)
            add({});
        add(marks % u' ' % title);
        add({});
    }

    void addBookmark(const BookmarkNode &bookmark) { add(u"- " % link(bookmark)); }

    /// Bookmarks before folders, or they would seem to belong to the folder above them.
    void addTopFolder(const BookmarkNode &folder)
    {
        addHeading(u"##"_s, folder.title);
        for (const BookmarkNode &child : *folder.children) {
            if (!child.isFolder())
                addBookmark(child);
        }
        for (const BookmarkNode &child : *folder.children) {
            if (child.isFolder()) {
                addHeading(u"###"_s, child.title);
                addNestedList(*child.children);
            }
        }
    }

    /// Without recursion: the browser's file decided how deep the tree goes.
    void addNestedList(const QList<BookmarkNode> &nodes)
    {
        struct Level {
            const QList<BookmarkNode> *nodes;
            qsizetype next = 0;
        };
        constexpr qsizetype indentWidth = 2;
        std::vector<Level> open{{&nodes}};
        while (!open.empty()) {
            Level &level = open.back();
            if (level.next == level.nodes->size()) {
                open.pop_back();
                continue;
            }
            const QString indent(static_cast<qsizetype>(open.size() - 1) * indentWidth, u' ');
            const BookmarkNode &node = level.nodes->at(level.next++);
            if (node.isFolder()) {
                add(indent % u"- **" % node.title % u"**");
                open.push_back({&*node.children});
            } else {
                add(indent % u"- " % link(node));
            }
        }
    }

    QString m_text;
    bool m_isAfterEmptyLine = true;
};

} // namespace

QString renderMarkdown(const QList<BookmarkNode> &tree)
{
    return MarkdownWriter().write(tree);
}

} // namespace roamlet::BookmarkExport
