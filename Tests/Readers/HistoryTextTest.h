// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Readers/HistoryText.h"
#include "Readers/ReaderTest.h"

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

/// A text of rows that need no database.
inline HistoryText::Builder builderOf(size_t mostBytes = plenty)
{
    return {Source::safari(), HistoryText::Builder::Ties::FirstRead, HistoryText::Builder::Pages::OneRow,
            mostBytes};
}

} // namespace roamlet::testing
