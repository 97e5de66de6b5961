// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/HistoryRows.h"

#include <algorithm>

namespace roamlet
{

std::expected<QList<HistoryItem>, ReadError> historyRows(const SQLiteSnapshot &database,
                                                         const QString &statement, const HistoryQuery &query,
                                                         const Source &source, LastVisit lastVisit)
{
    QList<HistoryItem> items;
    items.reserve(std::min(query.limit, HistoryQuery::defaultLimit));
    const auto run = database.query(statement, query.patterns(), [&](const SQLiteSnapshot::Row &row) {
        enum Column { Id, Url, Title, LastVisited, VisitCount };
        if (const std::optional<PointInTime> visit = lastVisit(row, LastVisited)) {
            items.append(HistoryItem::ofRow(row.integer(Id), row.text(Title).value_or(QString()),
                                            row.text(Url).value_or(QString()), *visit,
                                            row.integer(VisitCount), source));
        }
    });
    if (!run)
        return std::unexpected(run.error());
    return items;
}

} // namespace roamlet
