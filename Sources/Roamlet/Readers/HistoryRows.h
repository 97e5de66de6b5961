// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/HistoryQuery.h"
#include "Model/ReadError.h"
#include "Readers/Files/SQLiteSnapshot.h"
#include "Readers/HistoryTextBuilder.h"

#include <QList>
#include <QString>

#include <expected>
#include <memory>
#include <optional>
#include <stop_token>

namespace roamlet
{

/// The point in time that this column of a history's row holds, or nothing for "never".
using LastVisit = std::optional<PointInTime> (*)(const SQLiteSnapshot::Row &row, int column);

/// Gives a row's number, address, title, last visit and number of visits.
struct HistoryStatement {
    /// Up to the last of its conditions,
    QString rows;
    /// and what follows them.
    QString order;
    /// The table that it goes through from one end to the other, rows of the same time in the order of their
    /// numbers; empty where it does not. Such rows are read in parts and put in order here.
    // The compiler wants it from whoever names only the others.
    // NOLINTNEXTLINE(readability-redundant-member-init)
    QString table = QString();
};

/// The SQL condition that the times in `column` lie in the span, `stored` telling in which number the browser
/// keeps a point in time: empty, or a text that begins with " AND ".
QString timeCondition(const TimeSpan &span, const QString &column, QString (*stored)(PointInTime time));
/// The same, that `column` holds the number of the row that the query asks for.
QString rowCondition(const HistoryQuery &query, const QString &column);
/// The first whole count of microseconds since 1970 at a point in time or after it, and so many more.
qint64 wholeMicroseconds(PointInTime time, double secondsBefore1970 = 0);

/// The rows of a browser's history that `statement` finds, in its order; rows without a visit are left out.
/// It takes the patterns of `query`. Any thread.
std::expected<QList<HistoryItem>, ReadError> historyRows(const SQLiteSnapshot &database,
                                                         const HistoryStatement &statement,
                                                         const HistoryQuery &query,
                                                         const SharedSource &source, LastVisit lastVisit);

/// How a family's history is searched, beyond the words.
struct HistoryRules {
    LastVisit lastVisit;
    HistoryText::Builder::Ties ties = HistoryText::Builder::Ties::FirstRead;
    HistoryText::Builder::Pages pages = HistoryText::Builder::Pages::OneRow;
    /// Whether words find a page whose title is NULL.
    bool findsUntitled = true;
};

/// A history's text, or nothing (no error) where it does not fit into `mostBytes`, there is no memory, or a
/// value is of a kind that only the database can put in order. `statement` gives every row that a search
/// could find, in the order of their numbers. Any thread.
std::expected<std::shared_ptr<const HistoryText>, ReadError>
historyText(const SQLiteSnapshot &database, const HistoryStatement &statement, const Source &source,
            const HistoryRules &rules, size_t mostBytes, const std::stop_token &stop);

} // namespace roamlet
