// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/RowPointers.h"
#include "Model/HistoryItem.h"
#include "Model/PointInTime.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace roamlet
{

/// How many rows of a section fall into each hour of its day, or into each day of its week or month.
struct VisitStrip {
    enum class Unit { Hour, Day };

    /// One of these hours or days.
    struct Tick {
        PointInTime begin;
        PointInTime end;
        int count = 0;
        /// The place, among the section's rows, of the first that falls into it; of no meaning where none
        /// does.
        int firstRow = 0;

        bool operator==(const Tick &) const = default;
    };

    Unit unit = Unit::Hour;
    /// In the order of time, without gaps. None where a section is not cut by time.
    std::vector<Tick> ticks;
    /// What begins then, or later, lies in the section of a newer day.
    PointInTime end;

    bool operator==(const VisitStrip &) const = default;

    /// A strip for these moments, each the end of one tick and the beginning of the next.
    static VisitStrip between(Unit unit, const std::vector<PointInTime> &moments);

    /// Counts the section's rows, which stand in this order.
    void count(const RowPointers<HistoryItem> &rows);
    /// The number of the tick that `time` falls into.
    std::optional<std::size_t> tickAt(PointInTime time) const;
    /// The count of the tick with the most.
    int most() const;
};

} // namespace roamlet
