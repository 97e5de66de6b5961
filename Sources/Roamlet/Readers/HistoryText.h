// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/HistoryQuery.h"
#include "Model/Source.h"
#include "Platform/LargeMemory.h"
#include "Readers/PageRanking.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <stop_token>
#include <string_view>
#include <utility>
#include <vector>

namespace roamlet
{

/// One row as the text of a history is made of it; the texts end before their first NUL.
struct HistoryTextRow {
    /// What words are looked for in. The value stands between the address and the title: a NUL ends a text,
    /// and the last byte is in none that a search looks for.
    enum class Searched : char {
        All = ' ',        ///< the address, a blank and the title
        Url = '\0',       ///< the address alone
        Nothing = '\xFF', ///< nothing: no word finds the row
    };

    qint64 id = 0;
    // The compiler wants them from whoever names only some of the members.
    // NOLINTBEGIN(readability-redundant-string-init)
    std::string_view url = "";
    std::string_view title = "";
    // NOLINTEND(readability-redundant-string-init)
    Searched searched = Searched::All;
    /// What the latest rows are sorted by, the largest first.
    qint64 order = 0;
    /// Nothing for "never": such a row takes a place among those that are found and is not shown.
    std::optional<PointInTime> lastVisit = std::nullopt;
    qint64 visitCount = 0;
};

/// All that a search of one source's history could find, as one text in memory, newest row first. It answers
/// as the database does from which it was read. Never changes; any thread may ask, several at a time.
class HistoryText
{
public:
    using RowNumber = std::uint32_t;
    /// Ascending, so the newest rows are first.
    using RowNumbers = std::vector<RowNumber>;

    struct Answer {
        /// The rows in the query's order and at most as many as it says.
        HistoryResults results;
        /// The rows that match, for a later query that is within this one,
        RowNumbers rows;
        /// if these are all.
        bool hasAllRows = true;
    };

    class Builder;

    HistoryText(const HistoryText &) = delete;
    HistoryText &operator=(const HistoryText &) = delete;
    ~HistoryText() = default;

    /// The answer to a query, or nothing where only the database can give it: for a time or a row's number,
    /// for a NUL and for more or longer words than anybody types, some of which are an error. When the query
    /// is within an earlier one (see HistoryQuery::isWithin), only the rows `among` that one found, all of
    /// them, are looked at.
    std::optional<Answer> search(const HistoryQuery &query, const RowNumbers *among = nullptr) const;

    /// The so many rows that answer the words best, the best first; nothing where only the database can.
    std::optional<std::vector<RankedPage>> best(const QStringList &words, size_t most) const;

    /// The text of a source that has no history.
    static std::shared_ptr<const HistoryText> empty(const SharedSource &source);

    RowNumber rowCount() const { return static_cast<RowNumber>(m_rows.size()); }
    /// The bytes of its addresses and titles,
    size_t textSize() const { return m_text.size(); }
    /// and the memory that it takes.
    size_t byteCount() const;

private:
    struct Row {
        qint64 id;
        /// Seconds since 1970; NaN for "never".
        double lastVisit;
        qint64 visitCount;
    };
    enum class Part { All, Url };
    struct Literal;
    struct Condition;
    /// From one row to before another.
    struct Slice {
        RowNumber begin = 0;
        RowNumber end = 0;
    };

    explicit HistoryText(SharedSource source) : m_source(std::move(source)) {}

    static std::optional<std::vector<Literal>> wordsOf(const HistoryQuery &query);
    std::optional<Condition> conditionOf(const HistoryQuery &query) const;
    bool findInSlices(const HistoryQuery &query, const Condition &condition, RowNumbers &rows) const;
    RowNumbers findAll(const Literal &literal, Slice slice) const;
    RowNumbers findAmong(const Literal &literal, const RowNumbers &among, Slice slice) const;
    bool isOfSite(RowNumber row, const Condition &condition) const;
    HistoryResults results(const HistoryQuery &query, const RowNumbers &rows) const;
    /// These rows, and of several that stand for one page the newest.
    RowNumbers withoutRepeated(const RowNumbers &rows) const;
    HistoryItem item(RowNumber row) const;

    bool isFoundIn(RowNumber row, const Literal &literal) const;
    bool isLike(RowNumber row, const Literal &literal) const;
    std::string_view titleBytes(RowNumber row) const;
    bool isHit(size_t place, RowNumber row, const Literal &literal) const;
    bool isBroken(RowNumber row) const;
    RowNumber rowAt(size_t place, RowNumber from) const;
    HistoryTextRow::Searched searched(RowNumber row) const
    {
        return static_cast<HistoryTextRow::Searched>(m_text[urlEnd(row)]);
    }
    size_t urlEnd(RowNumber row) const { return m_starts[row] + m_urlSizes[row]; }
    std::string_view text() const { return {m_text.data(), m_text.size()}; }

    SharedSource m_source;
    /// Of each row the address, a separator, the title and a NUL, as they stand in the database.
    LargeVector<char> m_text{&largeMemory()};
    /// Where each row begins, and after them the end of the last one.
    LargeVector<std::uint32_t> m_starts{&largeMemory()};
    LargeVector<std::uint32_t> m_urlSizes{&largeMemory()};
    LargeVector<Row> m_rows{&largeMemory()};
    /// The rows in which a letter beyond ASCII may be spelt in other bytes than those that are looked for.
    RowNumbers m_broken;
    /// Whether a row is one of several of its page; empty when no page has several.
    std::vector<bool> m_areOfSharedPage;
};

} // namespace roamlet
