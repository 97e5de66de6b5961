// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/HistoryRows.h"

#include <system_error>

#include <algorithm>
#include <bit>
#include <limits>
#include <new>
#include <string_view>

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

/// Puts the rows of a statement into a text.
class TextReader
{
    using Kind = SQLiteSnapshot::Row::Kind;

public:
    TextReader(const Source &source, const HistoryRules &rules, size_t mostBytes)
        : m_rules(rules), m_builder(source, rules.ties, rules.pages, mostBytes)
    {
    }

    void read(const SQLiteSnapshot::Row &row)
    {
        if (m_hasOddValues)
            return;
        const Kind timeKind = row.kind(RowColumn::LastVisited);
        const bool isTime = timeKind == Kind::Integer || timeKind == Kind::Real;
        m_hasOddValues = row.kind(RowColumn::VisitCount) != Kind::Integer || !isTime ||
                         timeKind != m_timeKind.value_or(timeKind) ||
                         row.kind(RowColumn::Url) == Kind::Blob || row.kind(RowColumn::Title) == Kind::Blob;
        if (m_hasOddValues)
            return;
        m_timeKind = timeKind;
        const std::optional<std::string_view> url = row.utf8(RowColumn::Url);
        const std::optional<std::string_view> title = row.utf8(RowColumn::Title);
        HistoryTextRow text{.id = row.integer(RowColumn::Id),
                            .url = untilNul(url.value_or("")),
                            .title = untilNul(title.value_or("")),
                            .order = timeKind == Kind::Integer ? row.integer(RowColumn::LastVisited)
                                                               : orderOf(row.real(RowColumn::LastVisited)),
                            .lastVisit = m_rules.lastVisit(row, RowColumn::LastVisited),
                            .visitCount = row.integer(RowColumn::VisitCount)};
        if (!url || (!title && !m_rules.findsUntitled))
            text.searched = HistoryTextRow::Searched::Nothing;
        else if (text.url.size() < url->size())
            text.searched = HistoryTextRow::Searched::Url;
        m_builder.add(text);
    }

    std::shared_ptr<const HistoryText> finish(const std::stop_token &stop)
    {
        return m_hasOddValues ? nullptr : m_builder.finish(stop);
    }

private:
    const HistoryRules &m_rules;
    HistoryText::Builder m_builder;
    /// Integers and fractions of the same size would have to be compared with each other.
    std::optional<Kind> m_timeKind;
    bool m_hasOddValues = false;
};

} // namespace

std::expected<QList<HistoryItem>, ReadError> historyRows(const SQLiteSnapshot &database,
                                                         const QString &statement, const HistoryQuery &query,
                                                         const Source &source, LastVisit lastVisit)
{
    QList<HistoryItem> items;
    items.reserve(std::min(query.limit, HistoryQuery::defaultLimit));
    const auto run = database.query(statement, query.patterns(), [&](const SQLiteSnapshot::Row &row) {
        if (const std::optional<PointInTime> visit = lastVisit(row, RowColumn::LastVisited)) {
            items.append(HistoryItem::ofRow(row.integer(RowColumn::Id),
                                            row.text(RowColumn::Title).value_or(QString()),
                                            row.text(RowColumn::Url).value_or(QString()), *visit,
                                            row.integer(RowColumn::VisitCount), source));
        }
    });
    if (!run)
        return std::unexpected(run.error());
    return items;
}

std::expected<std::shared_ptr<const HistoryText>, ReadError>
historyText(const SQLiteSnapshot &database, const QString &statement, const Source &source,
            const HistoryRules &rules, size_t mostBytes, const std::stop_token &stop)
{
    try {
        TextReader reader(source, rules, mostBytes);
        const auto run =
            database.query(statement, {}, [&](const SQLiteSnapshot::Row &row) { reader.read(row); });
        if (!run)
            return std::unexpected(run.error());
        auto text = reader.finish(stop);
        if (stop.stop_requested())
            return std::unexpected(
                ReadError::wrap(std::make_error_code(std::errc::operation_canceled), database.folder()));
        return text;
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

} // namespace roamlet
