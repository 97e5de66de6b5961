// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/SortedRows.h"

#include <algorithm>
#include <cstring>
#include <numeric>
#include <span>

namespace roamlet
{

namespace
{

/// Rows that the levels so far found equal.
using Run = std::span<qsizetype>;

/// Sorts `entries`, writes their rows to `run` and returns the runs that are equal.
template<typename Entry, typename Less>
void sortEntries(Run run, std::vector<Entry> &entries, std::vector<Run> &equalRuns, Less less)
{
    // Lists mostly come as they are wanted.
    if (!std::ranges::is_sorted(entries, less))
        std::ranges::stable_sort(entries, less);
    for (std::size_t begin = 0, i = 0; i < entries.size(); ++i) {
        run[i] = entries[i].row;
        const bool isLast = i + 1 == entries.size() || less(entries[i], entries[i + 1]);
        if (isLast) {
            if (i > begin)
                equalRuns.push_back(run.subspan(begin, i + 1 - begin));
            begin = i + 1;
        }
    }
}

class Sorter
{
public:
    Sorter(const Collation &collation, SortOrder order) : m_collation(collation), m_order(order) {}

    void sort(Run run, const SortLevel::Rank &rank, std::vector<Run> &equalRuns)
    {
        const quint64 mask = m_order == SortOrder::Forward ? 0 : ~quint64{0};
        m_ranks.clear();
        for (const qsizetype row : run)
            m_ranks.push_back({rank(row) ^ mask, row});
        sortEntries(run, m_ranks, equalRuns,
                    [](const RankEntry &left, const RankEntry &right) { return left.rank < right.rank; });
    }

    void sort(Run run, const SortLevel::Text &text, std::vector<Run> &equalRuns)
    {
        m_keys.clear();
        m_texts.clear();
        for (const qsizetype row : run) {
            const std::size_t key = m_keys.size();
            m_collation.appendSortKey(text(row), m_keys);
            m_texts.push_back({beginning(key), key, row});
        }
        const auto before = [this](const TextEntry &left, const TextEntry &right) {
            return left.beginning != right.beginning ? left.beginning < right.beginning
                                                     : std::strcmp(&m_keys[left.key], &m_keys[right.key]) < 0;
        };
        if (m_order == SortOrder::Forward)
            sortEntries(run, m_texts, equalRuns, before);
        else
            sortEntries(run, m_texts, equalRuns,
                        [&](const TextEntry &left, const TextEntry &right) { return before(right, left); });
    }

private:
    struct RankEntry {
        quint64 rank;
        qsizetype row;
    };
    struct TextEntry {
        /// The first bytes of the key as a number: most comparisons end here.
        quint64 beginning;
        std::size_t key;
        qsizetype row;
    };

    quint64 beginning(std::size_t key) const
    {
        quint64 result = 0;
        for (std::size_t i = 0; i < sizeof result; ++i) {
            const auto byte = static_cast<unsigned char>(key < m_keys.size() ? m_keys[key] : '\0');
            result = result << 8 | byte;
            if (byte != 0)
                ++key;
        }
        return result;
    }

    const Collation &m_collation;
    SortOrder m_order;
    std::vector<RankEntry> m_ranks;
    std::vector<TextEntry> m_texts;
    std::vector<char> m_keys;
};

} // namespace

std::optional<std::vector<qsizetype>> sortedRowNumbers(qsizetype count, const std::vector<SortLevel> &levels,
                                                       const Collation &collation,
                                                       const std::stop_token &stop)
{
    std::vector<qsizetype> numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 0);
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
