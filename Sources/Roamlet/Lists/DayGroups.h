// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/RowGroup.h"
#include "Model/HistoryItem.h"
#include "Model/PointInTime.h"
#include "Model/UserCalendar.h"

#include <QList>

namespace roamlet
{

/// Cuts history by the day of the last visit, as seen from `now`: today, yesterday, this week, last week,
/// this month, and each month before. Rows keep their order within a section.
QList<RowGroup<HistoryItem>> dayGroups(const RowPointers<HistoryItem> &items, bool newestFirst,
                                       PointInTime now, const UserCalendar &calendar);

} // namespace roamlet
