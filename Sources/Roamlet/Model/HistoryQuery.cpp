// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/HistoryQuery.h"

#include "Model/LowerCase.h"

#include <algorithm>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString likeClause = u"LIKE ? ESCAPE '\\'"_s;

/// Makes the user's text match literally. The backslash goes first, or it would double the escapes of the
/// others.
QString escaped(QString text)
{
    return text.replace(u"\\"_s, u"\\\\"_s).replace(u"%"_s, u"\\%"_s).replace(u"_"_s, u"\\_"_s);
}

/// The text as LIKE compares it, to which the case of ASCII letters alone is nothing.
QString withPlainCase(QString text)
{
    for (QChar &character : text) {
        if (character >= u'A' && character <= u'Z')
            character = QChar(static_cast<char16_t>(character.unicode() | 0x20));
    }
    return text;
}

/// Adds a place that begins nowhere before the last one, and makes one of those that touch.
void appendPlace(QList<TextPlace> &places, TextPlace place)
{
    if (places.isEmpty() || place.start > places.last().end())
        places.append(place);
    else
        places.last().length = std::max(places.last().end(), place.end()) - places.last().start;
}

/// A URL matches a site when its host is the site or "www." and the site, followed by a path or a port. Rows
/// that match only further on are removed after the search, by comparing their site.
QStringList sitePatterns(const std::optional<QString> &site)
{
    if (!site)
        return {};
    const QString e = escaped(*site);
    return {u"%://" % e % u"/%", u"%://" % e % u":%", u"%://www." % e % u"/%", u"%://www." % e % u":%"};
}

} // namespace

HistoryQuery HistoryQuery::matching(const QString &text, const std::optional<QString> &site, Order order)
{
    return {.words = lowerCased(text).split(u' ', Qt::SkipEmptyParts),
            .site = site,
            .order = order,
            .limit = defaultLimit};
}

QString HistoryQuery::conditions(const QString &text, const QString &url) const
{
    QString result;
    for (const QString &word : words) {
        const QString searched = hasSigma(word) ? QString(u"replace(" % text % u", 'ς', 'σ')") : text;
        result += u" AND " % searched % u' ' % likeClause;
    }
    if (site) {
        const QString clause = url % u' ' % likeClause;
        const QStringList clauses(sitePatterns(site).size(), clause);
        result += u" AND (" % clauses.join(u" OR "_s) % u')';
    }
    return result;
}

QString HistoryQuery::pattern(const QString &text)
{
    return u'%' % escaped(text) % u'%';
}

QStringList HistoryQuery::patterns() const
{
    QStringList result;
    result.reserve(words.size() + 4);
    for (const QString &word : words)
        result.append(pattern(withPlainSigmas(word)));
    return result + sitePatterns(site);
}

bool HistoryQuery::isWithin(const HistoryQuery &wider) const
{
    if (wider.site && wider.site != site)
        return false;
    if (wider.visited.isLimited() || wider.rowID)
        return false;
    // As bytes, in which a letter of two units is never found by its half.
    const auto bytes = [](const QString &word) { return withPlainSigmas(withPlainCase(word)).toUtf8(); };
    return std::ranges::all_of(wider.words, [&](const QString &part) {
        return std::ranges::any_of(words,
                                   [&](const QString &word) { return bytes(word).contains(bytes(part)); });
    });
}

QList<TextPlace> HistoryQuery::placesIn(const QString &text) const
{
    QList<TextPlace> places;
    const QString folded = withPlainCase(text);
    for (const QString &word : words) {
        const QString wanted = withPlainSigmas(withPlainCase(word));
        const QString searched = hasSigma(word) ? withPlainSigmas(folded) : folded;
        QList<TextPlace> ofWord;
        for (qsizetype place = searched.indexOf(wanted); place >= 0 && !wanted.isEmpty();
             place = searched.indexOf(wanted, place + 1))
            appendPlace(ofWord, {.start = place, .length = wanted.size()});
        places += ofWord;
    }
    std::ranges::sort(places, {}, &TextPlace::start);
    QList<TextPlace> result;
    for (const TextPlace &place : places)
        appendPlace(result, place);
    return result;
}

size_t qHash(const HistoryQuery &query, size_t seed)
{
    const auto seconds = [](const std::optional<PointInTime> &time) {
        return time ? secondsSince1970(*time) : 0.0;
    };
    return qHashMulti(seed, query.words, query.site.has_value(), query.site.value_or(QString()),
                      static_cast<int>(query.order), query.limit, query.visited.begin.has_value(),
                      seconds(query.visited.begin), query.visited.end.has_value(), seconds(query.visited.end),
                      query.rowID.has_value(), query.rowID.value_or(0));
}

} // namespace roamlet
