// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/ReadError.h"
#include "Readers/Files/SQLiteSnapshot.h"

#include <QString>

#include <cstddef>
#include <expected>
#include <functional>
#include <optional>

namespace roamlet
{

/// A large table is read in parts, at the same time: going through a million rows keeps a core busy for a
/// quarter of a second while the others have nothing to do. Earlier parts have the smaller row numbers. A
/// table of a small database, one whose rows have no numbers, and one without a name is one part.
class TableParts
{
public:
    static constexpr std::size_t most = 2;

    /// Reads one part: its number, the reader that its thread has for itself, and the SQL condition that the
    /// rows of this part meet, which is empty or begins with " AND ".
    using Read = std::function<std::expected<void, ReadError>(
        std::size_t part, const SQLiteSnapshot &database, const QString &condition)>;

    /// The database must outlive the parts.
    TableParts(const SQLiteSnapshot &database, const QString &table);

    /// Whether each row of the table has a number of its own under the name "_rowid_".
    bool hasRowNumbers() const { return m_hasRowNumbers; }
    /// Calls `read` for each part, for all at the same time, and returns when all have ended: the first
    /// part's error, if there is one.
    std::expected<void, ReadError> forEach(const Read &read) const;

private:
    const SQLiteSnapshot &m_database;
    bool m_hasRowNumbers;
    /// Absent where there is one part.
    std::optional<SQLiteSnapshot> m_second;
    /// The last row's number of the first part.
    QString m_middle;
};

} // namespace roamlet
