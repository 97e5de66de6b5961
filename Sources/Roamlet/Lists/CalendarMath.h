// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/PointInTime.h"
#include "Model/UserCalendar.h"

#include <QString>

#include <memory>
#include <vector>

namespace roamlet
{

/// Computes with the days, weeks and months of one user's calendar. Not cheap: make one for a whole list, and
/// use it on one thread.
class CalendarMath
{
public:
    explicit CalendarMath(const UserCalendar &calendar);
    ~CalendarMath();
    CalendarMath(const CalendarMath &) = delete;
    CalendarMath &operator=(const CalendarMath &) = delete;

    /// The first moment of the day that contains `time`. It is not always midnight: where clocks are put
    /// forward at midnight, the day begins at one.
    PointInTime startOfDay(PointInTime time);
    PointInTime startOfWeek(PointInTime time);
    PointInTime startOfMonth(PointInTime time);
    PointInTime startOfPreviousDay(PointInTime startOfDay);
    PointInTime startOfPreviousWeek(PointInTime startOfWeek);
    PointInTime startOfNextMonth(PointInTime startOfMonth);
    PointInTime startOfNextDay(PointInTime startOfDay);
    PointInTime startOfNextWeek(PointInTime startOfWeek);

    /// The moments at which the clock on the wall first shows each full hour of the day that begins then, and
    /// the beginning of the next day: 25 in all. An hour that is left out begins when the next one does.
    std::vector<PointInTime> hoursOfDay(PointInTime startOfDay);
    /// The beginnings of the days from one beginning to another, both among them.
    std::vector<PointInTime> daysBetween(PointInTime begin, PointInTime end);

    /// "March 2025", "marzo de 2025", "2025年3月".
    QString monthTitle(PointInTime time);

private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

} // namespace roamlet
