// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/RecentPages.h"

#include <algorithm>
#include <vector>

namespace roamlet
{

namespace
{

constexpr std::ptrdiff_t menuLength = 10;

} // namespace

bool RecentPages::update(const QList<HistoryItem> &history, std::optional<PointInTime> time)
{
    if (m_isMenuOpen)
        return false;
    // Only the few that the menu holds are put into order; an earlier row goes before one of the same time.
    std::vector<const HistoryItem *> rows;
    rows.reserve(static_cast<size_t>(history.size()));
    for (const HistoryItem &item : history)
        rows.push_back(&item);
    const auto end = rows.begin() + std::min(std::ssize(rows), menuLength);
    std::ranges::partial_sort(rows, end, [](const HistoryItem *left, const HistoryItem *right) {
        return left->lastVisit != right->lastVisit ? left->lastVisit > right->lastVisit : left < right;
    });
    m_pages.clear();
    std::for_each(rows.begin(), end, [this](const HistoryItem *item) { m_pages.append(*item); });
    m_updated = time;
    return true;
}

} // namespace roamlet
