// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Readers/HistoryTextBuilder.h"
#include "Readers/ReaderTest.h"

#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace roamlet::testing
{

/// More bytes than any text of a test takes.
constexpr size_t plenty = 1'000'000'000;

inline HistoryQuery wordsQuery(const QStringList &words,
                               HistoryQuery::Order order = HistoryQuery::Order::Latest,
                               qint64 limit = HistoryQuery::defaultLimit)
{
    return {.words = words, .site = {}, .order = order, .limit = limit};
}

inline QStringList found(const HistoryText &text, const HistoryQuery &query)
{
    const auto answer = text.search(query);
    return answer ? titlesOf(answer->results.items) : QStringList{QStringLiteral("only the database knows")};
}

/// Rows that need no database, for a text.
class TextRows
{
public:
    using Builder = HistoryText::Builder;

    explicit TextRows(size_t mostBytes = plenty, Builder::Pages pages = Builder::Pages::OneRow,
                      Builder::Ties ties = Builder::Ties::FirstRead)
        : m_mostBytes(mostBytes), m_pages(pages), m_ties(ties)
    {
    }

    void add(const HistoryTextRow &row)
    {
        m_rows.push_back({.row = row, .url = std::string(row.url), .title = std::string(row.title)});
    }

    /// The text, made of the first rows and, as a second part, the others.
    std::shared_ptr<const HistoryText> text(size_t first = std::numeric_limits<size_t>::max()) const
    {
        Builder builder(Source::safari(), m_ties, m_pages, m_mostBytes);
        const auto handOver = [&](auto take) {
            for (size_t i = 0; i < m_rows.size(); ++i) {
                HistoryTextRow row = m_rows[i].row;
                row.url = m_rows[i].url;
                row.title = m_rows[i].title;
                take(builder.part(i < first ? 0 : 1), row);
            }
        };
        handOver([](Builder::Part &part, const HistoryTextRow &row) { part.measure(row); });
        for (const size_t part : {0, 1})
            builder.part(part).sort();
        builder.arrange();
        handOver([](Builder::Part &part, const HistoryTextRow &row) { part.put(row); });
        return builder.finish();
    }

private:
    struct Kept {
        HistoryTextRow row;
        std::string url;
        std::string title;
    };

    size_t m_mostBytes;
    Builder::Pages m_pages;
    Builder::Ties m_ties;
    std::vector<Kept> m_rows;
};

} // namespace roamlet::testing
