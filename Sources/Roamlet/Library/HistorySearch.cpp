// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/HistorySearch.h"

#include "Library/LibraryReading.h"
#include "Library/SourceRead.h"
#include "Platform/Confinement.h"

#include <QSet>

#include <new>
#include <vector>

namespace roamlet
{

namespace
{

/// What was found is kept for a longer word where it is no more than one row in so many: looking at more rows
/// one by one is no quicker than looking through all, and their numbers take memory.
constexpr HistoryText::RowNumber narrowEnough = 64;

/// Nothing where only the database can answer.
std::optional<HistoryText::Answer> searched(const HistoryText &text, const HistoryQuery &query,
                                            const HistoryText::RowNumbers *among)
{
    try {
        return text.search(query, among);
    } catch (const std::bad_alloc &) {
        return {};
    }
}

} // namespace

std::optional<HistorySearch::Answer> HistorySearch::known() const
{
    Remembered memory = remembered();
    return memory.others.isEmpty() ? std::optional(std::move(memory.answer)) : std::nullopt;
}

HistorySearch::Answer HistorySearch::run(const std::stop_token &stop) const
{
    Remembered memory = remembered();
    if (memory.others.isEmpty())
        return memory.answer;
    Confinement::ofReadingThread(m_context.folders.temporary);
    ReadContext context = m_context;
    context.stop = stop;
    const HistoryResults read = LibraryReading::history(m_query, memory.others, context);
    HistoryResults &all = memory.answer.results;
    all.items += read.items;
    all.isCapped = all.isCapped || read.isCapped;
    return memory.answer;
}

std::optional<HistoryResults> HistorySearch::standIn() const
{
    return isForLatest() ? std::optional(snapshotRows(m_sources)) : std::nullopt;
}

HistorySearch::Remembered HistorySearch::remembered() const
{
    return isForLatest() ? latestRows() : foundInTexts();
}

HistorySearch::Remembered HistorySearch::latestRows() const
{
    Remembered result;
    QList<Source> unchanged;
    for (const Source &source : m_sources) {
        const auto state = m_snapshot.historyStates.constFind(source.id());
        const bool isUnchanged = state != m_snapshot.historyStates.cend() &&
                                 *state == SourceRead::stateOfHistory(source, m_context);
        (isUnchanged ? unchanged : result.others).append(source);
    }
    result.answer.results = snapshotRows(unchanged);
    return result;
}

HistorySearch::Remembered HistorySearch::foundInTexts() const
{
    Remembered result;
    auto findings = std::make_shared<SearchFindings>();
    findings->query = m_query;
    const bool isWithinEarlier = m_earlier && m_query.isWithin(m_earlier->query);
    std::vector<QList<HistoryItem>> parts;
    for (const Source &source : m_sources) {
        const QString id = source.id();
        const auto held = m_texts.constFind(id);
        if (held == m_texts.cend() || !held->text ||
            held->state != SourceRead::stateOfHistory(source, m_context)) {
            result.others.append(source);
            continue;
        }
        const HistoryText::RowNumbers *among = nullptr;
        if (isWithinEarlier) {
            const auto earlier = m_earlier->texts.constFind(id);
            if (earlier != m_earlier->texts.cend() && earlier->text.lock() == held->text)
                among = &earlier->rows;
        }
        std::optional<HistoryText::Answer> found = searched(*held->text, m_query, among);
        if (!found) {
            result.others.append(source);
            continue;
        }
        parts.push_back(std::move(found->results.items));
        if (found->hasAllRows && found->rows.size() <= held->text->rowCount() / narrowEnough)
            findings->texts.insert(id, {held->text, std::move(found->rows)});
    }
    result.answer.results = LibraryReading::merged(m_query, std::move(parts));
    if (!findings->texts.isEmpty())
        result.answer.findings = std::move(findings);
    return result;
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
