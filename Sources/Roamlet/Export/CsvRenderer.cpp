// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Export/ExportDate.h"
#include "Export/Renderers.h"

#include <QDateTime>
#include <QStringList>

#include <unicode/ubrk.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>

namespace roamlet::BookmarkExport
{

using namespace Qt::StringLiterals;

namespace
{

bool isSpecial(QChar c)
{
    return c == u',' || c == u'"' || c == u'\n' || c == u'\r';
}

/// Finds the characters that a person would see. Qt's own finder does not know all that the standard joins.
class Characters
{
public:
    Characters()
    {
        UErrorCode status = U_ZERO_ERROR;
        m_iterator.reset(ubrk_open(UBRK_CHARACTER, "root", nullptr, 0, &status));
    }

    /// Whether one of the special characters stands alone. One that is part of a larger one, such as the two
    /// halves of CR LF, does not count.
    bool hasSpecialOne(const QString &text) const
    {
        if (std::ranges::none_of(text, isSpecial))
            return false;
        UErrorCode status = U_ZERO_ERROR;
        ubrk_setText(m_iterator.get(), reinterpret_cast<const UChar *>(text.utf16()),
                     static_cast<std::int32_t>(text.size()), &status);
        if (U_FAILURE(status) != 0)
            return true;
        std::int32_t start = ubrk_first(m_iterator.get());
        for (std::int32_t end = ubrk_next(m_iterator.get()); end != UBRK_DONE;
             end = ubrk_next(m_iterator.get())) {
            if (end - start == 1 && isSpecial(text[start]))
                return true;
            start = end;
        }
        return false;
    }

private:
    struct Close {
        void operator()(UBreakIterator *iterator) const { ubrk_close(iterator); }
    };
    std::unique_ptr<UBreakIterator, Close> m_iterator;
};

QString field(const QString &value, const Characters &characters)
{
    if (!characters.hasSpecialOne(value))
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
    const Characters characters;
    for (const Bookmark &bookmark : flat) {
        const QString browser = Source::displayName(bookmark.source->kind);
        const QString profile = bookmark.source->name == browser ? QString() : bookmark.source->name;
        const QStringList values{browser,        profile,      bookmark.folder,
                                 bookmark.title, bookmark.url, isoDate(bookmark.dateAdded)};
        for (qsizetype i = 0; i < values.size(); ++i)
            text += field(values[i], characters) % (i + 1 < values.size() ? u","_s : u"\r\n"_s);
    }
    return text;
}

} // namespace roamlet::BookmarkExport
