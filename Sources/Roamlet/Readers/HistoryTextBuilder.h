// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/LargeMemory.h"
#include "Readers/Files/TableParts.h"
#include "Readers/HistoryText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace roamlet
{

/// Makes a text of rows that are handed over twice, in the same order: first to learn where each one belongs
/// and how much room it takes, then to put it there. Kept in between, the rows would take as much memory as
/// the text, and getting memory takes longer than reading them again.
class HistoryText::Builder
{
public:
    enum class Ties {
        FirstRead, ///< rows of the same time come in the order in which they are handed over
        LastRead,  ///< in the opposite order
    };
    enum class Pages {
        OneRow,     ///< each row is another page
        SeveralRows ///< a page has a row for each of its titles, one after the other; the newest one is found
    };

    /// Some of the rows. Each part may be used by a thread of its own.
    class Part
    {
    public:
        /// Throws std::bad_alloc when the text would take more than the most bytes, or there are no more to
        /// be had.
        void measure(const HistoryTextRow &row);
        /// Puts the rows into their order, after the last has been measured.
        void sort();
        /// After arrange(). Throws std::bad_alloc as well.
        void put(const HistoryTextRow &row);

    private:
        friend Builder;

        /// A row of the text, at first in the order in which the rows are handed over.
        struct Place {
            qint64 order;
            std::uint32_t number;
            std::uint32_t size;
        };
        /// Which row of the text a row that is handed over is part of, and
        struct Share {
            std::uint32_t number;
            /// whether it is the newest of those.
            bool isNewest;
        };

        void measureShare(const HistoryTextRow &row);
        void addPlace(const HistoryTextRow &row);
        void count(std::size_t text, std::size_t bytes);
        std::size_t measuredCount() const { return m_shares.empty() ? m_places.size() : m_shares.size(); }

        Builder *m_builder = nullptr;
        std::size_t m_textSize = 0;
        std::size_t m_byteCount = 0;
        LargeVector<Place> m_places{&largeMemory()};
        /// Which row of the whole text each of them became, by its number.
        LargeVector<RowNumber> m_rowNumbers{&largeMemory()};
        /// How many rows were handed over for the second time, and whether they were the same.
        std::size_t m_putCount = 0;
        bool m_isAsMeasured = true;
        RowNumbers m_broken;

        // Only where pages have several rows:
        std::vector<Share> m_shares;
        std::vector<bool> m_areOfSharedPage;
        qint64 m_page = 0;
        /// The rows of the page that was measured last, by their titles: what was handed over as the newest.
        std::unordered_map<std::string, std::size_t> m_titles;
    };

    Builder(SharedSource source, Ties ties, Pages pages, std::size_t mostBytes);

    /// The rows of the first part come before those of the second.
    Part &part(std::size_t index) { return m_parts[index]; }
    /// Makes the room, once all parts have been measured and sorted. Throws std::bad_alloc as well.
    void arrange();
    /// The text, or nothing when the rows were not handed over a second time. Throws std::bad_alloc as well.
    std::shared_ptr<const HistoryText> finish();

private:
    std::shared_ptr<HistoryText> m_made;
    Ties m_ties;
    Pages m_pages;
    std::size_t m_mostBytes;
    std::array<Part, TableParts::most> m_parts;
};

} // namespace roamlet
