// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/HistoryQuery.h"

#include "Model/LowerCase.h"

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

QStringList HistoryQuery::patterns() const
{
    QStringList result;
    result.reserve(words.size() + 4);
    for (const QString &word : words)
        result.append(u'%' % escaped(withPlainSigmas(word)) % u'%');
    return result + sitePatterns(site);
}

size_t qHash(const HistoryQuery &query, size_t seed)
{
    return qHashMulti(seed, query.words, query.site.has_value(), query.site.value_or(QString()),
                      static_cast<int>(query.order), query.limit);
}

} // namespace roamlet
