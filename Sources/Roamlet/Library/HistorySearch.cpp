// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/HistorySearch.h"

#include "Library/LibraryReading.h"
#include "Library/SourceRead.h"

#include <QSet>

namespace roamlet
{

std::optional<HistoryResults> HistorySearch::known() const
{
    Remembered answer = remembered();
    return answer.others.isEmpty() ? std::optional(std::move(answer.results)) : std::nullopt;
}

HistoryResults HistorySearch::run(const std::stop_token &stop) const
{
    Remembered answer = remembered();
    if (answer.others.isEmpty())
        return answer.results;
    ReadContext context = m_context;
    context.stop = stop;
    HistoryResults read = LibraryReading::history(m_query, answer.others, context);
    read.items = answer.results.items + read.items;
    return read;
}

std::optional<HistoryResults> HistorySearch::standIn() const
{
    return isForLatest() ? std::optional(snapshotRows(m_sources)) : std::nullopt;
}

HistorySearch::Remembered HistorySearch::remembered() const
{
    if (!isForLatest())
        return {.results = {}, .others = m_sources};
    QList<Source> unchanged;
    QList<Source> others;
    for (const Source &source : m_sources) {
        const auto state = m_snapshot.historyStates.constFind(source.id());
        const bool isUnchanged = state != m_snapshot.historyStates.cend() &&
                                 *state == SourceRead::stateOfHistory(source, m_context);
        (isUnchanged ? unchanged : others).append(source);
    }
    return {.results = snapshotRows(unchanged), .others = others};
}

HistoryResults HistorySearch::snapshotRows(const QList<Source> &sources) const
{
    QSet<QString> wanted;
    for (const Source &source : sources)
        wanted.insert(source.id());
    HistoryResults results{.items = m_snapshot.history};
    results.items.removeIf([&wanted](const HistoryItem &item) { return !wanted.contains(item.source.id()); });
    return results;
}

} // namespace roamlet
