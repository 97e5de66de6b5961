// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Export/ExportDate.h"
#include "Export/Renderers.h"

#include <QDateTime>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>

namespace roamlet::BookmarkExport
{

using namespace Qt::StringLiterals;

namespace
{

bool isSpecial(QChar c)
{
    return c == u',' || c == u'"' || c == u'\n' || c == u'\r';
}

/// Whether one of the special characters stands alone as a character that a person would see. One that is
/// part of a larger one, such as the two halves of CR LF, does not count.
bool needsQuotes(const QString &value)
{
    if (std::ranges::none_of(value, isSpecial))
        return false;
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, value);
    qsizetype start = 0;
    for (qsizetype end = characters.toNextBoundary(); end >= 0; end = characters.toNextBoundary()) {
        if (end - start == 1 && isSpecial(value[start]))
            return true;
        start = end;
    }
    return false;
}

QString field(const QString &value)
{
    if (!needsQuotes(value))
        return value;
    return u'"' % QString(value).replace(u'"', u"\"\""_s) % u'"';
}

/// ISO 8601 in UTC, of the second that the date lies in. Written by hand: the library's own form has no years
/// beyond 9999, and damaged files do.
QString isoDate(const std::optional<PointInTime> &date)
{
    if (!date)
        return {};
    const auto seconds = wholeSeconds(std::floor(secondsSince1970(*date)));
    const QDateTime utc = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    const auto digits = [](int number, int width) { return u"%1"_s.arg(number, width, 10, QChar(u'0')); };
    return digits(utc.date().year(), 4) % u'-' % digits(utc.date().month(), 2) % u'-' %
           digits(utc.date().day(), 2) % u'T' % digits(utc.time().hour(), 2) % u':' %
           digits(utc.time().minute(), 2) % u':' % digits(utc.time().second(), 2) % u'Z';
}

} // namespace

QString renderCsv(const QList<Bookmark> &flat)
{
    QString text = u"Browser,Profile,Folder,Title,URL,Added\r\n"_s;
    for (const Bookmark &bookmark : flat) {
        const QString browser = Source::displayName(bookmark.source.kind);
        const QString profile = bookmark.source.name == browser ? QString() : bookmark.source.name;
        text += field(browser) % u',' % field(profile) % u',' % field(bookmark.folder) % u',' %
                field(bookmark.title) % u',' % field(bookmark.url) % u',' %
                field(isoDate(bookmark.dateAdded)) % u"\r\n";
    }
    return text;
}

} // namespace roamlet::BookmarkExport
