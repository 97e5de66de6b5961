// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Export/BookmarkExport.h"

#include "Export/Renderers.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QSaveFile>

#include <vector>

namespace roamlet::BookmarkExport
{

using namespace Qt::StringLiterals;

QString rawValue(Format format)
{
    switch (format) {
    case Format::Html:
        return u"html"_s;
    case Format::Markdown:
        return u"markdown"_s;
    case Format::Csv:
        return u"csv"_s;
    }
    Q_UNREACHABLE();
}

std::optional<Format> format(QStringView rawValueText)
{
    for (const Format candidate : formats) {
        if (rawValue(candidate) == rawValueText)
            return candidate;
    }
    return {};
}

QString type(Format format)
{
    switch (format) {
    case Format::Html:
        return u"text/html"_s;
    case Format::Markdown: {
        const QMimeType type =
            QMimeDatabase().mimeTypeForFile(u"bookmarks.md"_s, QMimeDatabase::MatchExtension);
        return type.isValid() && !type.isDefault() ? type.name() : u"text/plain"_s;
    }
    case Format::Csv:
        return u"text/csv"_s;
    }
    Q_UNREACHABLE();
}

QString fileNameExtension(Format format)
{
    return format == Format::Markdown ? u"md"_s : rawValue(format);
}

bool isTooDeep(Format format, const QList<BookmarkNode> &tree)
{
    if (format == Format::Csv)
        return false;
    constexpr qint64 mostBlanks = 256LL * 1024 * 1024;
    struct Level {
        const QList<BookmarkNode> *nodes;
        qsizetype next = 0;
    };
    qint64 blanks = 0;
    std::vector<Level> open{{&tree}};
    while (!open.empty()) {
        Level &level = open.back();
        if (level.next == level.nodes->size()) {
            open.pop_back();
            continue;
        }
        // A folder takes three lines and the deepest format four blanks for each level.
        blanks += qint64{3} * 4 * static_cast<qint64>(open.size());
        if (blanks > mostBlanks)
            return true;
        const BookmarkNode &node = level.nodes->at(level.next++);
        if (node.isFolder())
            open.push_back({&*node.children});
    }
    return false;
}

QString render(Format format, const QList<BookmarkNode> &tree, const QList<Bookmark> &flat)
{
    switch (format) {
    case Format::Html:
        return renderHtml(tree);
    case Format::Markdown:
        return renderMarkdown(tree);
    case Format::Csv:
        return renderCsv(flat);
    }
    Q_UNREACHABLE();
}

QString fileName(const std::optional<Source> &source)
{
    if (!source)
        //: The name of a file, without its ending.
        return QCoreApplication::translate("roamlet::BookmarkExport", "Bookmarks");
    const QString browser = Source::displayName(source->kind);
    const QString base = source->name == browser ? browser : QString(browser % u' ' % source->name);
    //: The name of a file, without its ending. %1 is a browser, with or without a profile.
    return QCoreApplication::translate("roamlet::BookmarkExport", "%1 Bookmarks").arg(base);
}

std::expected<void, QString> write(const QString &text, const QString &path)
{
    // Saving puts a new file in the place of what is there: a pipe, a device or a link in a circle would be
    // gone.
    const QFileInfo present(path);
    if ((present.exists() || present.isSymLink()) && !present.isFile() && !present.isDir())
        return std::unexpected(QCoreApplication::translate(
            "roamlet::BookmarkExport", "There is something else than a file at this place."));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return std::unexpected(file.errorString());
    const QByteArray bytes = text.toUtf8();
    // A disk that gets full takes a part without a word; only the rest brings out the reason.
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 size = file.write(bytes.constData() + written, bytes.size() - written);
        if (size <= 0) {
            const QString reason = file.errorString();
            file.cancelWriting();
            return std::unexpected(reason);
        }
        written += size;
    }
    if (!file.commit())
        return std::unexpected(file.errorString());
    return {};
}

} // namespace roamlet::BookmarkExport
