// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/TableParts.h"

#include <system_error>

#include <cstdint>
#include <optional>
#include <thread>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Below this a second thread and connection take longer than they save.
constexpr std::int64_t largeDatabase = std::int64_t{16} << 20;

/// The last row's number of the first part, or nothing where there shall be one part.
std::optional<std::int64_t> middle(const SQLiteSnapshot &database, const QString &table)
{
    if (std::thread::hardware_concurrency() < TableParts::most || database.size() < largeDatabase)
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

bool rowsHaveNumbers(const SQLiteSnapshot &database, const QString &table)
{
    if (table.isEmpty())
        return false;
    // A column of this name would be read instead.
    bool hasColumn = false;
    const auto columns =
        database.query(u"SELECT 1 FROM pragma_table_info(?) WHERE name = '_rowid_' COLLATE NOCASE"_s, {table},
                       [&hasColumn](const SQLiteSnapshot::Row &) { hasColumn = true; });
    return columns && !hasColumn && database.query(u"SELECT _rowid_ FROM "_s % table % u" LIMIT 0", {}, {});
}

} // namespace

TableParts::TableParts(const SQLiteSnapshot &database, const QString &table)
    : m_database(database), m_hasRowNumbers(rowsHaveNumbers(database, table))
{
    const std::optional<std::int64_t> last = m_hasRowNumbers ? middle(database, table) : std::nullopt;
    if (!last)
        return;
    m_middle = QString::number(*last);
    if (auto second = database.secondReader())
        m_second = std::move(*second);
}

std::expected<void, ReadError> TableParts::forEach(const Read &read) const
{
    if (!m_second)
        return read(0, m_database, {});
    std::expected<void, ReadError> ofSecond;
    std::jthread thread;
    const auto readSecond = [&] { ofSecond = read(1, *m_second, u" AND _rowid_ > " % m_middle); };
    try {
        thread = std::jthread(readSecond);
    } catch (const std::system_error &) {
        // There are too many threads already.
        readSecond();
    }
    const std::expected<void, ReadError> ofFirst = read(0, m_database, u" AND _rowid_ <= " % m_middle);
    if (thread.joinable())
        thread.join();
    return ofFirst ? ofSecond : ofFirst;
}

} // namespace roamlet
