// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/SortedRows.h"

#include <algorithm>
#include <span>

namespace roamlet
{

namespace
{

/// Rows that the levels so far found equal.
using Run = std::span<qsizetype>;

struct Entry {
    /// What the row is sorted by now: its rank, or the next bytes of its key as a number.
    quint64 rank;
    /// Where its key goes on.
    std::size_t key;
    qsizetype row;
};

/// Sorts `entries` by their ranks and calls `equal` for each part with more than one entry of the same rank.
template<typename Equal>
void sortByRank(std::span<Entry> entries, Equal equal)
{
    // Lists mostly come as they are wanted.
    if (!std::ranges::is_sorted(entries, {}, &Entry::rank))
        std::ranges::stable_sort(entries, {}, &Entry::rank);
    for (auto begin = entries.begin(); begin != entries.end();) {
        const auto end = std::find_if(
            begin, entries.end(), [rank = begin->rank](const Entry &entry) { return entry.rank != rank; });
        if (end - begin > 1)
            equal(std::span(begin, end));
        begin = end;
    }
}

/// Sorts runs by one level.
class Sorter
{
public:
    Sorter(const Collation &collation, SortOrder order)
        : m_collation(collation), m_reversal(order == SortOrder::Forward ? 0 : ~quint64{0})
    {
    }

    /// Sorts `run` and appends the parts of it that are equal to `equalRuns`.
    void sort(Run run, const SortLevel::Rank &rank, std::vector<Run> &equalRuns)
    {
        m_entries.clear();
        for (const qsizetype row : run)
            m_entries.push_back({rank(row) ^ m_reversal, 0, row});
        sortByRank(m_entries, [&](std::span<Entry> equal) { equalRuns.push_back(runOf(equal, run)); });
        write(run);
    }

    void sort(Run run, const SortLevel::Text &text, std::vector<Run> &equalRuns)
    {
        m_entries.clear();
        m_keys.clear();
        for (const qsizetype row : run) {
            m_entries.push_back({0, m_keys.size(), row});
            m_collation.appendSortKey(text(row), m_keys);
        }
        // Eight bytes of all keys at a time, and the next eight only where these are equal: comparing whole
        // keys in pairs would wait for memory in each comparison.
        m_open.assign(1, m_entries);
        while (!m_open.empty()) {
            const std::span<Entry> entries = m_open.back();
            m_open.pop_back();
            for (Entry &entry : entries)
                entry.rank = nextBytes(entry.key) ^ m_reversal;
            sortByRank(entries, [&](std::span<Entry> equal) {
                const bool isWholeKey = ((equal.front().rank ^ m_reversal) & 0xff) == 0;
                if (isWholeKey)
                    equalRuns.push_back(runOf(equal, run));
                else
                    m_open.push_back(equal);
            });
        }
        write(run);
    }

private:
    /// The next bytes at `key` as a number, and moves on behind them. A key that has ended gives zeros.
    quint64 nextBytes(std::size_t &key) const
    {
        quint64 result = 0;
        for (std::size_t i = 0; i < sizeof result; ++i) {
            const auto byte = static_cast<unsigned char>(m_keys[key]);
            result = result << 8 | byte;
            if (byte != 0)
                ++key;
        }
        return result;
    }

    Run runOf(std::span<Entry> entries, Run run) const
    {
        return run.subspan(static_cast<std::size_t>(entries.data() - m_entries.data()), entries.size());
    }

    void write(Run run) const { std::ranges::transform(m_entries, run.begin(), &Entry::row); }

    const Collation &m_collation;
    quint64 m_reversal;
    std::vector<Entry> m_entries;
    std::vector<char> m_keys;
    /// Parts of the entries whose keys are equal so far.
    std::vector<std::span<Entry>> m_open;
};

} // namespace

std::optional<std::vector<qsizetype>> sortedRowNumbers(qsizetype count, const std::vector<SortLevel> &levels,
                                                       const Collation &collation,
                                                       const std::stop_token &stop)
{
    std::vector<qsizetype> numbers;
    numbers.reserve(static_cast<std::size_t>(count));
    for (qsizetype row = 0; row < count; ++row)
        numbers.push_back(row);
    std::vector<Run> runs{Run(numbers)};
    for (const SortLevel &level : levels) {
        // A level is only asked about rows that are still equal: keys of texts are what takes the time.
        Sorter sorter(collation, level.order);
        std::vector<Run> equalRuns;
        for (const Run run : runs) {
            if (stop.stop_requested())
                return {};
            std::visit([&](const auto &value) { sorter.sort(run, value, equalRuns); }, level.value);
        }
        runs = std::move(equalRuns);
    }
    return numbers;
}

} // namespace roamlet
