// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/CalendarMath.h"

#include <unicode/calendar.h>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

#include <algorithm>
#include <cmath>

namespace roamlet
{

namespace
{

/// Far enough for every date that a browser can have stored, and near enough for every calendar.
constexpr double farthestSeconds = 1e12;

/// The library counts whole milliseconds. Days begin at whole seconds, and rounding must never lift the last
/// moment of a day into the next one.
UDate milliseconds(PointInTime time)
{
    return std::floor(secondsSince1970(CalendarMath::countable(time))) * 1000;
}

icu::UnicodeString unicode(const QString &text)
{
    return {text.utf16(), static_cast<int32_t>(text.size())};
}

} // namespace

struct CalendarMath::Native {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar;
    std::unique_ptr<icu::DateFormat> monthFormat;

    explicit Native(const UserCalendar &user)
    {
        const icu::Locale locale(user.locale.toLatin1().constData());
        std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createTimeZone(unicode(user.timeZone)));
        calendar.reset(icu::Calendar::createInstance(zone.release(), locale, status));
        if (U_FAILURE(status))
            return;
        calendar->setFirstDayOfWeek(user.firstWeekday == Qt::Sunday
                                        ? UCAL_SUNDAY
                                        : static_cast<UCalendarDaysOfWeek>(user.firstWeekday + 1));
        // The first moment of a day: of a midnight that comes twice the first, of one that never comes the
        // moment at which the clocks are put forward.
        calendar->setRepeatedWallTimeOption(UCAL_WALLTIME_FIRST);
        calendar->setSkippedWallTimeOption(UCAL_WALLTIME_NEXT_VALID);
        // The library remembers the pattern of each locale; looking it up anew takes longer than a list does.
        monthFormat.reset(
            icu::DateFormat::createInstanceForSkeleton(calendar->clone(), "yMMMM", locale, status));
    }

    /// Goes to `time`, changes the day and returns the first moment of the day that this leads to. Without
    /// the library's data there are no days, and a list is better with wrong sections than not shown.
    template<typename Change>
    PointInTime dayStart(PointInTime time, Change change)
    {
        if (U_FAILURE(status))
            return time;
        UErrorCode result = U_ZERO_ERROR;
        calendar->setTime(milliseconds(time), result);
        change(result);
        for (const UCalendarDateFields field : {UCAL_HOUR_OF_DAY, UCAL_MINUTE, UCAL_SECOND, UCAL_MILLISECOND})
            calendar->set(field, 0);
        const UDate start = calendar->getTime(result);
        return U_SUCCESS(result) ? pointInTime(start / 1000) : time;
    }
};

CalendarMath::CalendarMath(const UserCalendar &calendar) : m_native(std::make_unique<Native>(calendar)) {}

CalendarMath::~CalendarMath() = default;

PointInTime CalendarMath::countable(PointInTime time)
{
    const double seconds = secondsSince1970(time);
    return pointInTime(std::isnan(seconds) ? -farthestSeconds
                                           : std::clamp(seconds, -farthestSeconds, farthestSeconds));
}

PointInTime CalendarMath::startOfDay(PointInTime time)
{
    return m_native->dayStart(time, [](UErrorCode & /*status*/) {});
}

PointInTime CalendarMath::startOfWeek(PointInTime time)
{
    return m_native->dayStart(time, [this](UErrorCode &status) {
        icu::Calendar &calendar = *m_native->calendar;
        const int first = calendar.getFirstDayOfWeek(status);
        const int daysSince = (calendar.get(UCAL_DAY_OF_WEEK, status) - first + 7) % 7;
        calendar.add(UCAL_DATE, -daysSince, status);
    });
}

PointInTime CalendarMath::startOfMonth(PointInTime time)
{
    return m_native->dayStart(time,
                              [this](UErrorCode & /*status*/) { m_native->calendar->set(UCAL_DATE, 1); });
}

PointInTime CalendarMath::startOfPreviousDay(PointInTime startOfDay)
{
    return m_native->dayStart(startOfDay,
                              [this](UErrorCode &status) { m_native->calendar->add(UCAL_DATE, -1, status); });
}

PointInTime CalendarMath::startOfPreviousWeek(PointInTime startOfWeek)
{
    return m_native->dayStart(startOfWeek,
                              [this](UErrorCode &status) { m_native->calendar->add(UCAL_DATE, -7, status); });
}

PointInTime CalendarMath::startOfNextMonth(PointInTime startOfMonth)
{
    return m_native->dayStart(startOfMonth,
                              [this](UErrorCode &status) { m_native->calendar->add(UCAL_MONTH, 1, status); });
}

QString CalendarMath::monthTitle(PointInTime time)
{
    if (U_FAILURE(m_native->status))
        return {};
    icu::UnicodeString title;
    m_native->monthFormat->format(milliseconds(time), title);
    return QString::fromUtf16(title.getBuffer(), title.length());
}

} // namespace roamlet
