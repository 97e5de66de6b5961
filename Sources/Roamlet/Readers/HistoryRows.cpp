// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/HistoryRows.h"

#include "Readers/Files/TableParts.h"
#include "Readers/HistoryTextBuilder.h"

#include <system_error>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <deque>
#include <iterator>
#include <limits>
#include <new>
#include <string_view>
#include <utility>
#include <vector>

namespace roamlet
{

namespace
{

/// What a statement's row consists of.
struct RowColumn {
    enum Index { Id, Url, Title, LastVisited, VisitCount };
};

/// A text as LIKE and everybody else reads it.
std::string_view untilNul(std::string_view text)
{
    return text.substr(0, text.find('\0'));
}

/// A number of which a larger one stands for a larger number of a database.
qint64 orderOf(double number)
{
    // Zero has two forms, and they are equal.
    const auto bits = std::bit_cast<qint64>(number + 0.0);
    return bits >= 0 ? bits : bits ^ std::numeric_limits<qint64>::max();
}

/// Puts the rows of a part into a text.
class TextReader
{
    using Kind = SQLiteSnapshot::Row::Kind;

public:
    TextReader(const HistoryRules &rules, HistoryText::Builder::Part &part) : m_rules(rules), m_part(part) {}

    /// The first time the rows are measured, the second time they are put where they belong.
    std::expected<void, ReadError> measure(const SQLiteSnapshot &database, const QString &sql)
    {
        return readAll([&] {
            const auto run = database.query(sql, {}, [this](const SQLiteSnapshot::Row &row) {
                if (canBeText(row))
                    m_part.measure(textRow(row));
            });
            m_part.sort();
            return run;
        });
    }

    std::expected<void, ReadError> put(const SQLiteSnapshot &database, const QString &sql)
    {
        return readAll([&] {
            return database.query(sql, {}, [this](const SQLiteSnapshot::Row &row) {
                HistoryTextRow text = textRow(row);
                text.lastVisit = m_rules.lastVisit(row, RowColumn::LastVisited);
                text.visitCount = row.integer(RowColumn::VisitCount);
                m_part.put(text);
            });
        });
    }

    /// Whether the rows of both can be one text: nothing went wrong, and integers and fractions of the same
    /// size need not be compared with each other.
    bool canBeTextWith(const TextReader &other) const
    {
        const bool hasOneKindOfTime = !m_timeKind || !other.m_timeKind || m_timeKind == other.m_timeKind;
        return m_canBeText && other.m_canBeText && hasOneKindOfTime;
    }

private:
    bool canBeText(const SQLiteSnapshot::Row &row)
    {
        if (!m_canBeText)
            return false;
        const Kind timeKind = row.kind(RowColumn::LastVisited);
        const bool isTime = timeKind == Kind::Integer || timeKind == Kind::Real;
        m_canBeText = row.kind(RowColumn::VisitCount) == Kind::Integer && isTime &&
                      timeKind == m_timeKind.value_or(timeKind) && row.kind(RowColumn::Url) != Kind::Blob &&
                      row.kind(RowColumn::Title) != Kind::Blob;
        if (m_canBeText)
            m_timeKind = timeKind;
        return m_canBeText;
    }

    /// What a row's place depends on; what is shown of it beside its texts is left out.
    HistoryTextRow textRow(const SQLiteSnapshot::Row &row) const
    {
        const std::optional<std::string_view> url = row.utf8(RowColumn::Url);
        const std::optional<std::string_view> title = row.utf8(RowColumn::Title);
        const bool isInteger = row.kind(RowColumn::LastVisited) == Kind::Integer;
        HistoryTextRow text{.id = row.integer(RowColumn::Id),
                            .url = untilNul(url.value_or("")),
                            .title = untilNul(title.value_or("")),
                            .order = isInteger ? row.integer(RowColumn::LastVisited)
                                               : orderOf(row.real(RowColumn::LastVisited))};
        if (!url || (!title && !m_rules.findsUntitled))
            text.searched = HistoryTextRow::Searched::Nothing;
        else if (text.url.size() < url->size())
            text.searched = HistoryTextRow::Searched::Url;
        return text;
    }

    template<typename Work>
    std::expected<void, ReadError> readAll(Work work)
    {
        try {
            return work();
        } catch (const std::bad_alloc &) {
            m_canBeText = false;
            return {};
        }
    }

    const HistoryRules &m_rules;
    HistoryText::Builder::Part &m_part;
    std::optional<Kind> m_timeKind;
    bool m_canBeText = true;
};

/// What a row is put in order by.
struct FoundRow {
    qint64 visitCount = 0;
    qint64 lastVisit = 0;
    /// Rows of a part come with their numbers descending.
    std::size_t arrival = 0;
    /// Which of the items it is.
    std::size_t item = 0;
};

HistoryItem itemOf(const SQLiteSnapshot::Row &row, const SharedSource &source, const PointInTime &lastVisit)
{
    return HistoryItem::ofRow(row.integer(RowColumn::Id), row.text(RowColumn::Title).value_or(QString()),
                              row.text(RowColumn::Url).value_or(QString()), lastVisit,
                              row.integer(RowColumn::VisitCount), source);
}

/// The first rows of one part in the query's order. The database would put each row into a tree on its way
/// and take another one out of it, which takes ten times as long as going through all.
class FirstRows
{
public:
    FirstRows(const HistoryQuery &query, const SharedSource &source, LastVisit lastVisit)
        : m_query(query), m_source(source), m_lastVisit(lastVisit)
    {
    }

    void read(const SQLiteSnapshot::Row &row)
    {
        using Kind = SQLiteSnapshot::Row::Kind;
        m_hasOddValues = m_hasOddValues || row.kind(RowColumn::LastVisited) != Kind::Integer ||
                         row.kind(RowColumn::VisitCount) != Kind::Integer;
        if (m_hasOddValues)
            return;
        FoundRow found{.visitCount = row.integer(RowColumn::VisitCount),
                       .lastVisit = row.integer(RowColumn::LastVisited),
                       .arrival = m_arrivals++,
                       .item = m_items.size()};
        const auto isBefore = [this](const FoundRow &left, const FoundRow &right) {
            return this->isBefore(left, right);
        };
        const bool isFull = m_query.limit >= 0 && std::cmp_greater_equal(m_rows.size(), m_query.limit);
        if (isFull) {
            if (m_rows.empty() || !isBefore(found, m_rows.front()))
                return;
            std::ranges::pop_heap(m_rows, isBefore);
            found.item = m_rows.back().item;
            m_rows.pop_back();
        } else {
            m_items.emplace_back();
        }
        const std::optional<PointInTime> visit = m_lastVisit(row, RowColumn::LastVisited);
        m_items[found.item] = visit ? std::optional(itemOf(row, m_source, *visit)) : std::nullopt;
        m_rows.push_back(found);
        std::ranges::push_heap(m_rows, isBefore);
    }

    /// Whether there are values that only the database can put in order.
    bool hasOddValues() const { return m_hasOddValues; }

    /// The rows, with those of `later`, whose numbers are larger.
    QList<HistoryItem> items(FirstRows &later)
    {
        for (FoundRow &row : m_rows)
            row.arrival += later.m_arrivals;
        for (FoundRow row : later.m_rows) {
            row.item += m_items.size();
            m_rows.push_back(row);
        }
        std::ranges::move(later.m_items, std::back_inserter(m_items));
        std::ranges::sort(
            m_rows, [this](const FoundRow &left, const FoundRow &right) { return isBefore(left, right); });
        if (m_query.limit >= 0 && std::cmp_greater(m_rows.size(), m_query.limit))
            m_rows.resize(static_cast<std::size_t>(m_query.limit));
        QList<HistoryItem> result;
        result.reserve(static_cast<qsizetype>(m_rows.size()));
        for (const FoundRow &row : m_rows) {
            if (std::optional<HistoryItem> &item = m_items[row.item])
                result.append(std::move(*item));
        }
        return result;
    }

private:
    bool isBefore(const FoundRow &left, const FoundRow &right) const
    {
        if (m_query.order == HistoryQuery::Order::MostVisited && left.visitCount != right.visitCount)
            return left.visitCount > right.visitCount;
        return left.lastVisit != right.lastVisit ? left.lastVisit > right.lastVisit
                                                 : left.arrival > right.arrival;
    }

    const HistoryQuery &m_query;
    const SharedSource &m_source;
    LastVisit m_lastVisit;
    /// A heap: the last in the order is at its front.
    std::vector<FoundRow> m_rows;
    /// Nothing for a row without a visit, which takes a place among those that are found and is not shown.
    std::deque<std::optional<HistoryItem>> m_items;
    std::size_t m_arrivals = 0;
    bool m_hasOddValues = false;
};

/// Puts the rows in order without the database, or says nothing where it has to answer.
std::expected<std::optional<QList<HistoryItem>>, ReadError>
rowsOfTable(const TableParts &table, const HistoryStatement &statement, const HistoryQuery &query,
            const SharedSource &source, LastVisit lastVisit)
{
    std::array<FirstRows, TableParts::most> parts{FirstRows(query, source, lastVisit),
                                                  FirstRows(query, source, lastVisit)};
    const auto run =
        table.forEach([&](std::size_t part, const SQLiteSnapshot &reader, const QString &condition) {
            return reader.query(statement.rows % condition % u"\nORDER BY _rowid_ DESC", query.patterns(),
                                [&rows = parts[part]](const SQLiteSnapshot::Row &row) { rows.read(row); });
        });
    if (!run)
        return std::unexpected(run.error());
    if (std::ranges::any_of(parts, &FirstRows::hasOddValues))
        return std::nullopt;
    return parts[0].items(parts[1]);
}

} // namespace

QString timeCondition(const TimeSpan &span, const QString &column, QString (*stored)(PointInTime time))
{
    QString result;
    if (span.begin)
        result += u" AND " % column % u" >= " % stored(*span.begin);
    if (span.end)
        result += u" AND " % column % u" < " % stored(*span.end);
    return result;
}

QString rowCondition(const HistoryQuery &query, const QString &column)
{
    return query.rowID ? QString(u" AND " % column % u" = " % QString::number(*query.rowID)) : QString();
}

qint64 wholeMicroseconds(PointInTime time, double secondsBefore1970)
{
    constexpr double microsecondsPerSecond = 1'000'000;
    // Farther away, no browser has a number for it.
    constexpr double farthest = 9e12;
    const double seconds =
        std::clamp(secondsSince1970(countable(time)) + secondsBefore1970, -farthest, farthest);
    return static_cast<qint64>(std::ceil(seconds * microsecondsPerSecond));
}

std::expected<QList<HistoryItem>, ReadError> historyRows(const SQLiteSnapshot &database,
                                                         const HistoryStatement &statement,
                                                         const HistoryQuery &query,
                                                         const SharedSource &source, LastVisit lastVisit)
{
    if (const TableParts table(database, statement.table); table.hasRowNumbers()) {
        auto rows = rowsOfTable(table, statement, query, source, lastVisit);
        if (!rows)
            return std::unexpected(rows.error());
        if (*rows)
            return std::move(**rows);
    }
    QList<HistoryItem> items;
    const auto run = database.query(
        statement.rows % statement.order, query.patterns(), [&](const SQLiteSnapshot::Row &row) {
            if (const std::optional<PointInTime> visit = lastVisit(row, RowColumn::LastVisited))
                items.append(itemOf(row, source, *visit));
        });
    if (!run)
        return std::unexpected(run.error());
    return items;
}

std::expected<std::shared_ptr<const HistoryText>, ReadError>
historyText(const SQLiteSnapshot &database, const HistoryStatement &statement, const Source &source,
            const HistoryRules &rules, size_t mostBytes, const std::stop_token &stop)
{
    const auto canceled = [&] {
        return std::unexpected(
            ReadError::wrap(std::make_error_code(std::errc::operation_canceled), database.folder()));
    };
    try {
        HistoryText::Builder builder(source, rules.ties, rules.pages, mostBytes);
        std::array<TextReader, TableParts::most> readers{TextReader(rules, builder.part(0)),
                                                         TextReader(rules, builder.part(1))};
        const TableParts table(database, statement.table);
        const auto read = [&](auto step) {
            return table.forEach(
                [&](std::size_t part, const SQLiteSnapshot &reader, const QString &condition) {
                    return (readers[part].*step)(reader, statement.rows % condition % statement.order);
                });
        };
        if (const auto measured = read(&TextReader::measure); !measured)
            return std::unexpected(measured.error());
        if (stop.stop_requested())
            return canceled();
        if (!readers[0].canBeTextWith(readers[1]))
            return nullptr;
        builder.arrange();
        if (const auto put = read(&TextReader::put); !put)
            return std::unexpected(put.error());
        if (stop.stop_requested())
            return canceled();
        return readers[0].canBeTextWith(readers[1]) ? builder.finish() : nullptr;
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

} // namespace roamlet
