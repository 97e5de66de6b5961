// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/TableParts.h"

#include "Readers/Files/SQLiteSnapshot.h"

#include <system_error>

#include <cstdint>
#include <optional>
#include <thread>

namespace roamlet::TableParts
{

using namespace Qt::StringLiterals;

namespace
{

/// Below this a second thread and connection take longer than they save.
constexpr std::int64_t largeDatabase = std::int64_t{16} << 20;

/// The last row's number of the first part, or nothing where there shall be one part.
std::optional<std::int64_t> middle(const SQLiteSnapshot &database, const QString &table)
{
    if (table.isEmpty() || std::thread::hardware_concurrency() < most || database.size() < largeDatabase ||
        !hasRowNumbers(database, table))
        return {};
    std::optional<std::int64_t> result;
    const auto ends = database.query(
        u"SELECT (SELECT min(_rowid_) FROM " % table % u"), (SELECT max(_rowid_) FROM " % table % u")", {},
        [&result](const SQLiteSnapshot::Row &row) {
            using Kind = SQLiteSnapshot::Row::Kind;
            const std::int64_t first = row.integer(0);
            const std::int64_t last = row.integer(1);
            // Numbers below zero would not be worth the care with the distance.
            if (row.kind(0) == Kind::Integer && row.kind(1) == Kind::Integer && first >= 0 && first < last)
                result = first + (last - first) / 2;
        });
    return ends ? result : std::nullopt;
}

} // namespace

bool hasRowNumbers(const SQLiteSnapshot &database, const QString &table)
{
    // A column of this name would be read instead.
    bool hasColumn = false;
    const auto columns =
        database.query(u"SELECT 1 FROM pragma_table_info(?) WHERE name = '_rowid_' COLLATE NOCASE"_s, {table},
                       [&hasColumn](const SQLiteSnapshot::Row &) { hasColumn = true; });
    return columns && !hasColumn && database.query(u"SELECT _rowid_ FROM "_s % table % u" LIMIT 0", {}, {});
}

std::expected<void, ReadError> forEach(const SQLiteSnapshot &database, const QString &table, const Read &read)
{
    const std::optional<std::int64_t> last = middle(database, table);
    if (!last)
        return read(0, database, {});
    const auto second = database.secondReader();
    if (!second)
        return read(0, database, {});
    const QString number = QString::number(*last);
    std::expected<void, ReadError> ofSecond;
    std::jthread thread;
    const auto readSecond = [&] { ofSecond = read(1, *second, u" AND _rowid_ > " % number); };
    try {
        thread = std::jthread(readSecond);
    } catch (const std::system_error &) {
        // There are too many threads already.
        readSecond();
    }
    const std::expected<void, ReadError> ofFirst = read(0, database, u" AND _rowid_ <= " % number);
    if (thread.joinable())
        thread.join();
    return ofFirst ? ofSecond : ofFirst;
}

} // namespace roamlet::TableParts
