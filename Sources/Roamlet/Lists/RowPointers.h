// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

#include <vector>

namespace roamlet
{

/// Rows of a list that somebody else keeps meanwhile, picked and put in order without copying one of them.
template<typename Row>
using RowPointers = std::vector<const Row *>;

/// All rows of a list, as they stand there.
template<typename Row>
RowPointers<Row> allRows(const QList<Row> &rows)
{
    RowPointers<Row> result;
    result.reserve(static_cast<std::size_t>(rows.size()));
    for (const Row &row : rows)
        result.push_back(&row);
    return result;
}

/// Those of a list that goes at once would point nowhere.
template<typename Row>
RowPointers<Row> allRows(QList<Row> &&rows) = delete;

} // namespace roamlet
