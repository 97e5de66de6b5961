// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Export/BookmarkExport.h"
#include "Kit/Portions.h"
#include "Kit/Sources.h"
#include "Kit/Targets.h"
#include "Model/Bookmark.h"

#include <algorithm>
#include <vector>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;
using BookmarkExport::Format;

namespace
{

/// What the bytes say, one after the other: the end of a folder, a folder, or a bookmark.
QList<BookmarkNode> treeOf(Portions portions)
{
    BookmarkNode root;
    root.children.emplace();
    std::vector<BookmarkNode> open{root};
    const auto close = [&open] {
        BookmarkNode finished = std::move(open.back());
        open.pop_back();
        open.back().children->append(std::move(finished));
    };
    while (!portions.atEnd()) {
        const int kind = portions.number() % 4;
        if (kind == 0 && open.size() > 1) {
            close();
            continue;
        }
        BookmarkNode node;
        node.source = chrome();
        node.title = portions.text();
        if (kind == 1) {
            node.children.emplace();
            node.isBar = open.size() == 1;
            open.push_back(std::move(node));
            continue;
        }
        node.url = portions.text();
        if (kind == 2)
            node.dateAdded = pointInTime(static_cast<double>(portions.number()) * 12'345'678.9 - 1e9);
        open.back().children->append(std::move(node));
    }
    while (open.size() > 1)
        close();
    return *open.front().children;
}

/// A line for each folder, each bookmark and each end of a folder, as they stand in the tree.
QStringList outlineOf(const QList<BookmarkNode> &tree)
{
    const auto onOneLine = [](QString text) { return text.replace(u'\n', u' ').replace(u'\r', u' '); };
    struct Level {
        const QList<BookmarkNode> *nodes;
        qsizetype next = 0;
    };
    QStringList lines;
    std::vector<Level> open{{&tree}};
    while (!open.empty()) {
        Level &level = open.back();
        if (level.next == level.nodes->size()) {
            open.pop_back();
            lines.append(u"end"_s);
            continue;
        }
        const BookmarkNode &node = level.nodes->at(level.next++);
        if (node.isFolder()) {
            lines.append(u"folder " % onOneLine(node.title));
            open.push_back({&*node.children});
        } else {
            const QString date = node.dateAdded
                                     ? QString::number(static_cast<qint64>(secondsSince1970(*node.dateAdded)))
                                     : QString();
            lines.append(u"link " % onOneLine(*node.url) % u' ' % date % u' ' % onOneLine(node.title));
        }
    }
    return lines;
}

/// The text between two others, with its escapes undone; the line is cut behind it.
QString taken(QStringView &line, QStringView before, QStringView after)
{
    require(line.startsWith(before), "an item is written as importers read it");
    const qsizetype end = line.indexOf(after, before.size());
    require(end >= 0, "an item ends on its line");
    QString text = line.sliced(before.size(), end - before.size()).toString();
    require(!text.contains(u'<') && !text.contains(u'>') && !text.contains(u'"'),
            "foreign text is no markup");
    text.replace(u"&lt;"_s, u"<"_s)
        .replace(u"&gt;"_s, u">"_s)
        .replace(u"&quot;"_s, u"\""_s)
        .replace(u"&amp;"_s, u"&"_s);
    line = line.sliced(end);
    return text;
}

/// The same lines, as an importer finds them in the file.
QStringList outlineOfHtml(const QString &text)
{
    QStringList lines;
    const QStringList written = text.split(u'\n');
    require(written.size() > 5 && written.first() == u"<!DOCTYPE NETSCAPE-Bookmark-file-1>",
            "the file says what it is");
    require(written.last().isEmpty(), "the last line ends");
    bool isAfterFolder = true;
    for (const QString &whole : written.sliced(4, written.size() - 5)) {
        const auto *const begin = std::ranges::find_if(whole, [](QChar c) { return c != u' '; });
        QStringView line = QStringView(whole).sliced(begin - whole.begin());
        if (isAfterFolder) {
            require(line == u"<DL><p>", "a folder is followed by its content");
            isAfterFolder = false;
        } else if (line == u"</DL><p>") {
            lines.append(u"end"_s);
        } else if (line.startsWith(u"<DT><H3")) {
            line = line.sliced(line.indexOf(u'>', 5));
            lines.append(u"folder " % taken(line, u">", u"</H3>"));
            require(line == u"</H3>", "an item has a line");
            isAfterFolder = true;
        } else {
            const QString url = taken(line, u"<DT><A HREF=\"", u"\"");
            const QString date =
                line.startsWith(u"\" ADD") ? taken(line, u"\" ADD_DATE=\"", u"\"") : QString();
            lines.append(u"link " % url % u' ' % date % u' ' % taken(line, u"\">", u"</A>"));
            require(line == u"</A>", "an item has a line");
        }
    }
    return lines;
}

/// The fields of all rows but the first, as every spreadsheet reads them.
QList<QStringList> rowsOfCsv(const QString &text)
{
    QList<QStringList> rows(1);
    QString field;
    bool isQuoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (isQuoted) {
            if (c != u'"') {
                field += c;
            } else if (i + 1 < text.size() && text[i + 1] == u'"') {
                field += c;
                ++i;
            } else {
                isQuoted = false;
            }
        } else if (c == u'"') {
            require(field.isEmpty(), "quotes begin a field");
            isQuoted = true;
        } else if (c == u',') {
            rows.last().append(std::exchange(field, {}));
        } else if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') {
            rows.last().append(std::exchange(field, {}));
            rows.append(QStringList());
            ++i;
        } else {
            require(c != u'\n' && c != u'\r', "a line is ended in one way");
            field += c;
        }
    }
    require(!isQuoted && field.isEmpty() && rows.last().isEmpty(), "the last row ends");
    require(rows.size() >= 2, "the first row names the columns");
    return rows.sliced(1, rows.size() - 2);
}

/// Whether every character is a whole one: those that a reader sees as one are never split by a spreadsheet's
/// marks.
bool isOfSingleCharacters(const Bookmark &bookmark)
{
    return std::ranges::all_of(
        QStringList{bookmark.folder, bookmark.title, bookmark.url}, [](const QString &text) {
            return !text.contains(u"\r\n") &&
                   std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x300; });
        });
}

void attackExportedBookmarks(QByteArrayView bytes)
{
    const QList<BookmarkNode> tree = treeOf(Portions(bytes));
    const QList<Bookmark> flat = BookmarkNode::flattened(tree);
    qsizetype count = 0;
    for (const BookmarkNode &node : tree)
        count += node.bookmarkCount();
    require(flat.size() == count, "as many bookmarks are listed as are counted");
    for (const Format format : BookmarkExport::formats) {
        if (BookmarkExport::isTooDeep(format, tree))
            return;
    }
    require(outlineOfHtml(BookmarkExport::render(Format::Html, tree, flat)) == outlineOf(tree),
            "a bookmarks file holds the tree");
    require(BookmarkExport::render(Format::Markdown, tree, flat).count(u"](<") >= count,
            "an outline has every link");
    const QString csv = BookmarkExport::render(Format::Csv, tree, flat);
    if (!std::ranges::all_of(flat, isOfSingleCharacters))
        return;
    const QList<QStringList> rows = rowsOfCsv(csv);
    require(rows.size() == flat.size(), "a table has a row for each bookmark");
    for (qsizetype i = 0; i < rows.size(); ++i) {
        require(rows[i].size() == 6, "a row has all columns");
        require(rows[i].sliced(2, 3) == QStringList{flat[i].folder, flat[i].title, flat[i].url},
                "a row has the texts");
    }
}

QList<QByteArray> exportedBookmarkSeeds()
{
    return {PortionWriter()
                .number(1)
                .text("Folder <b> & \"quotes\"")
                .number(2)
                .text("Title, with \"quotes\"")
                .text("https://a.example/?a=1&b=<2>")
                .number(100)
                .number(1)
                .text("inner\r\nfolder")
                .number(3)
                .text("[x](y)\n")
                .text("javascript:alert('>')")
                .number(0)
                .number(0)
                .number(3)
                .text("ö")
                .text("https://b.example/")
                .bytes(),
            PortionWriter().number(1).text("a").number(1).text("b").number(1).text("c").bytes()};
}

} // namespace

Target exportedBookmarks()
{
    return {.name = "ExportedBookmarks",
            .attack = attackExportedBookmarks,
            .seeds = exportedBookmarkSeeds,
            .longest = 1024};
}

} // namespace roamlet::fuzz
