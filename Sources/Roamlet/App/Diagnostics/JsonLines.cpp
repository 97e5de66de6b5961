// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/JsonLines.h"

#include "App/Diagnostics/TextLayout.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace roamlet::JsonLines
{

using namespace Qt::StringLiterals;

namespace
{

/// No browser is called so, and the ids of pages begin with their browser.
const QString bookmarkPrefix = u"bookmark/"_s;

/// Sets a field unless it has nothing to say.
void setText(QJsonObject &object, const QString &field, const QString &text)
{
    if (!text.isEmpty())
        object.insert(field, text);
}

void setTime(QJsonObject &object, const QString &field, PointInTime moment)
{
    if (const QJsonValue value = time(moment); !value.isUndefined())
        object.insert(field, value);
}

/// The text with a mark in the place of each half of a character: some programs refuse a whole document for
/// one of them.
QString wellFormed(QString text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!text.at(i).isSurrogate())
            continue;
        const bool isPair =
            text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair)
            ++i;
        else
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

QJsonValue wellFormed(const QJsonValue &value)
{
    if (value.isString())
        return wellFormed(value.toString());
    if (!value.isArray())
        return value;
    QJsonArray result;
    const QJsonArray array = value.toArray();
    for (const auto &element : array)
        result.append(wellFormed(QJsonValue(element)));
    return result;
}

} // namespace

QJsonObject object(const HistoryItem &page)
{
    QJsonObject result{
        {u"id"_s, rowID(page)},         {u"title"_s, page.title},        {u"url"_s, page.url},
        {u"visits"_s, page.visitCount}, {u"source"_s, page.source.id()}, {u"label"_s, page.source.label()}};
    setText(result, u"site"_s, page.site);
    setTime(result, u"visited"_s, page.lastVisit);
    return result;
}

QJsonObject object(const Bookmark &bookmark)
{
    QJsonObject result{{u"id"_s, rowID(bookmark)},
                       {u"title"_s, bookmark.title},
                       {u"url"_s, bookmark.url},
                       {u"folder"_s, bookmark.folder},
                       {u"source"_s, bookmark.source.id()},
                       {u"label"_s, bookmark.source.label()}};
    setText(result, u"site"_s, bookmark.site);
    if (bookmark.dateAdded)
        setTime(result, u"added"_s, *bookmark.dateAdded);
    return result;
}

QJsonObject object(const ProfileFacts &profile)
{
    QJsonObject result{{u"source"_s, profile.source.id()},
                       {u"label"_s, profile.source.label()},
                       {u"enabled"_s, profile.isEnabled}};
    if (!profile.isEnabled)
        return result;
    result.insert(u"bookmarks"_s, profile.bookmarks);
    result.insert(u"folders"_s, profile.folders);
    result.insert(u"icons"_s, profile.icons);
    result.insert(u"pages"_s, profile.pages);
    if (profile.latestVisit)
        setTime(result, u"visited"_s, *profile.latestVisit);
    result.insert(u"problems"_s, QJsonArray::fromStringList(profile.problems));
    return result;
}

QJsonValue time(PointInTime time)
{
    constexpr int lastYear = 9999;
    constexpr double millisecondsPerSecond = 1000;
    // Rounded: a stored thousandth of a second is often a little less as a number of seconds.
    const double milliseconds = std::round(secondsSince1970(countable(time)) * millisecondsPerSecond);
    const auto moment = QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(milliseconds), Qt::UTC);
    const int year = moment.date().year();
    return year >= 1 && year <= lastYear ? QJsonValue(moment.toString(Qt::ISODateWithMs))
                                         : QJsonValue(QJsonValue::Undefined);
}

QString line(const QJsonObject &object)
{
    QJsonObject fields = object;
    for (QJsonValueRef value : fields)
        value = wellFormed(value);
    const QString text = QString::fromUtf8(QJsonDocument(fields).toJson(QJsonDocument::Compact));
    QString result;
    result.reserve(text.size() + 1);
    // What stands outside of texts is ASCII, and so is every escape that is there already.
    for (const QChar c : text) {
        if (TextLayout::isObeyed(c))
            result += u"\\u" % QString::number(c.unicode(), 16).rightJustified(4, u'0');
        else
            result += c;
    }
    return result % u'\n';
}

QString rowID(const HistoryItem &page)
{
    return page.id;
}

QString rowID(const Bookmark &bookmark)
{
    return bookmarkPrefix % bookmark.id;
}

std::optional<QString> bookmarkID(const QString &rowID)
{
    return rowID.startsWith(bookmarkPrefix) ? std::optional(rowID.sliced(bookmarkPrefix.size()))
                                            : std::nullopt;
}

} // namespace roamlet::JsonLines
