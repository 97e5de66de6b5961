// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/PointInTime.h"
#include "Model/SharedSource.h"

#include <QString>

namespace roamlet
{

/// One row of a browser's history: one URL with its latest visit.
struct HistoryItem {
    /// The source's id, "/", and the row's id in the browser's history table.
    QString id;
    /// Never empty when the URL is not.
    QString title;
    QString url;
    PointInTime lastVisit;
    qint64 visitCount = 0;
    SharedSource source;
    /// Site::name of the URL, or empty.
    QString site;

    /// Lower-cased title, line feed, URL. Made when it is asked for: databases and texts in memory are
    /// searched without it.
    QString searchKey() const;

    bool operator==(const HistoryItem &) const = default;

    /// The row `rowID` of the history table of `from`. An empty title is replaced by the URL; the site is
    /// derived here, once.
    static HistoryItem ofRow(qint64 rowID, const QString &rowTitle, const QString &rowUrl,
                             PointInTime visitedAt, qint64 visits, const SharedSource &from);
};

size_t qHash(const HistoryItem &item, size_t seed = 0);

} // namespace roamlet
