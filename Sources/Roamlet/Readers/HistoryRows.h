// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/HistoryQuery.h"
#include "Model/ReadError.h"
#include "Readers/Files/SQLiteSnapshot.h"

#include <QList>
#include <QString>

#include <expected>
#include <optional>

namespace roamlet
{

/// The point in time that this column of a history's row holds, or nothing for "never".
using LastVisit = std::optional<PointInTime> (*)(const SQLiteSnapshot::Row &row, int column);

/// The rows of a browser's history that `statement` finds, in its order; rows without a visit are left out.
/// The statement gives a row's number, address, title, last visit and number of visits, and takes the
/// patterns of `query`. Any thread.
std::expected<QList<HistoryItem>, ReadError> historyRows(const SQLiteSnapshot &database,
                                                         const QString &statement, const HistoryQuery &query,
                                                         const Source &source, LastVisit lastVisit);

} // namespace roamlet
