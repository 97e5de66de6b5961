// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/HistoryItem.h"

#include "Model/LowerCase.h"
#include "Model/Site.h"

namespace roamlet
{

HistoryItem HistoryItem::ofRow(qint64 rowID, const QString &rowTitle, const QString &rowUrl,
                               PointInTime visitedAt, qint64 visits, const SharedSource &from)
{
    const QString shownTitle = rowTitle.isEmpty() ? rowUrl : rowTitle;
    return {.id = from.id() % u'/' % QString::number(rowID),
            .title = shownTitle,
            .url = rowUrl,
            .lastVisit = visitedAt,
            .visitCount = visits,
            .source = from,
            .site = Site::name(rowUrl).value_or(QString())};
}

QString HistoryItem::searchKey() const
{
    return lowerCased(title % u'\n' % url);
}

size_t qHash(const HistoryItem &item, size_t seed)
{
    return qHashMulti(seed, item.id, item.title, item.url, secondsSince1970(item.lastVisit), item.visitCount,
                      item.source, item.site);
}

} // namespace roamlet
