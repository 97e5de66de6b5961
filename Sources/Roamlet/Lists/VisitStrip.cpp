// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/VisitStrip.h"

#include <algorithm>

namespace roamlet
{

VisitStrip VisitStrip::between(Unit unit, const std::vector<PointInTime> &moments)
{
    VisitStrip strip{.unit = unit, .ticks = {}, .end = moments.empty() ? PointInTime() : moments.back()};
    for (std::size_t i = 1; i < moments.size(); ++i)
        strip.ticks.push_back({.begin = moments[i - 1], .end = moments[i], .count = 0, .firstRow = 0});
    return strip;
}

void VisitStrip::count(const RowPointers<HistoryItem> &rows)
{
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const std::optional number = tickAt(rows[row]->lastVisit);
        if (!number)
            continue;
        Tick &tick = ticks[*number];
        if (tick.count++ == 0)
            tick.firstRow = static_cast<int>(row);
    }
}

std::optional<std::size_t> VisitStrip::tickAt(PointInTime time) const
{
    // An hour that the clocks leave out has no length, and the one after it begins at the same moment.
    const auto next = std::ranges::upper_bound(ticks, time, {}, &Tick::begin);
    if (next == ticks.begin() || !(time < std::prev(next)->end))
        return {};
    return static_cast<std::size_t>(std::prev(next) - ticks.begin());
}

int VisitStrip::most() const
{
    return ticks.empty() ? 0 : std::ranges::max_element(ticks, {}, &Tick::count)->count;
}

} // namespace roamlet
