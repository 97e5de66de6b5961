// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Export/ExportDate.h"
#include "Export/Renderers.h"

#include <vector>

namespace roamlet::BookmarkExport
{

using namespace Qt::StringLiterals;

namespace
{

/// The file has no place for line breaks inside an item.
QString escaped(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        switch (c.unicode()) {
        case u'&':
            result += u"&amp;";
            break;
        case u'<':
            result += u"&lt;";
            break;
        case u'>':
            result += u"&gt;";
            break;
        case u'"':
            result += u"&quot;";
            break;
        case u'\r':
        case u'\n':
            result += u' ';
            break;
        default:
            result += c;
        }
    }
    return result;
}

QString dateAttribute(const std::optional<PointInTime> &date)
{
    if (!date)
        return {};
    return u" ADD_DATE=\"" % QString::number(wholeSeconds(secondsSince1970(*date))) % u'"';
}

QString indent(size_t depth)
{
    constexpr qsizetype width = 4;
    return QString(static_cast<qsizetype>(depth) * width, u' ');
}

} // namespace

QString renderHtml(const QList<BookmarkNode> &tree)
{
    struct Level {
        const QList<BookmarkNode> *nodes;
        qsizetype next = 0;
    };
    QString text = u"<!DOCTYPE NETSCAPE-Bookmark-file-1>\n"
                   "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">\n"
                   "<TITLE>Bookmarks</TITLE>\n"
                   "<H1>Bookmarks</H1>\n"
                   "<DL><p>\n"_s;
    // Without recursion: the browser's file decided how deep the tree goes.
    std::vector<Level> open{{&tree}};
    for (;;) {
        const size_t depth = open.size();
        Level &level = open.back();
        if (level.next == level.nodes->size()) {
            open.pop_back();
            text += indent(open.size()) % u"</DL><p>\n";
            if (open.empty())
                return text;
            continue;
        }
        const BookmarkNode &node = level.nodes->at(level.next++);
        if (node.isFolder()) {
            const QStringView bar = depth == 1 && node.isBar ? u" PERSONAL_TOOLBAR_FOLDER=\"true\"" : u"";
            text += indent(depth) % u"<DT><H3" % bar % u'>' % escaped(node.title) % u"</H3>\n" %
                    indent(depth) % u"<DL><p>\n";
            open.push_back({&*node.children});
        } else {
            text += indent(depth) % u"<DT><A HREF=\"" % escaped(node.urlText()) % u'"' %
                    dateAttribute(node.dateAdded) % u'>' % escaped(node.title) % u"</A>\n";
        }
    }
}

} // namespace roamlet::BookmarkExport
