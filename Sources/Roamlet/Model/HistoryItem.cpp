// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/HistoryItem.h"

#include "Model/Site.h"

namespace roamlet
{

HistoryItem::HistoryItem(qint64 rowID, const QString &title, const QString &url, PointInTime lastVisit,
                         qint64 visitCount, const Source &source)
    : id(source.id() % u'/' % QString::number(rowID)), title(title.isEmpty() ? url : title), url(url),
      lastVisit(lastVisit), visitCount(visitCount), source(source),
      searchKey(QString(this->title % u'\n' % url).toLower()), site(Site::name(url).value_or(QString()))
{
}

size_t qHash(const HistoryItem &item, size_t seed)
{
    return qHashMulti(seed, item.id, item.title, item.url, secondsSince1970(item.lastVisit), item.visitCount,
                      item.source, item.searchKey, item.site);
}

} // namespace roamlet
