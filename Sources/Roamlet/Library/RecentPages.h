// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/HistoryItem.h"
#include "Model/PointInTime.h"

#include <QList>

#include <optional>

namespace roamlet
{

/// The ten pages visited last, for the menu. They do not change under the pointer: an open menu keeps its
/// pages.
class RecentPages
{
public:
    /// A menu opened or closed on screen.
    void setMenuOpen(bool isOpen) { m_isMenuOpen = isOpen; }
    /// Takes the latest of these rows, which stand as of `time`. Returns whether it did: an open menu waits.
    bool update(const QList<HistoryItem> &history, std::optional<PointInTime> time);

    /// The latest page first.
    const QList<HistoryItem> &pages() const { return m_pages; }
    /// As of when the pages stand; nothing before the first ones were read.
    std::optional<PointInTime> updated() const { return m_updated; }

private:
    QList<HistoryItem> m_pages;
    std::optional<PointInTime> m_updated;
    bool m_isMenuOpen = false;
};

} // namespace roamlet
