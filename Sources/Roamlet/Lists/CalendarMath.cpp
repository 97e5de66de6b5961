// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/CalendarMath.h"

#include <QDateTime>
#include <QTimeZone>

#include <unicode/calendar.h>
#include <unicode/dtfmtsym.h>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

#include <algorithm>
#include <cmath>
#include <string_view>

namespace roamlet
{

namespace
{

/// No clock on earth is farther from UTC.
constexpr double farthestOffset = 26.0 * 3600;

constexpr int hoursPerDay = 24;
constexpr double hour = 3600;
constexpr double day = hoursPerDay * hour;
/// More than the month of any calendar has.
constexpr std::size_t mostDays = 64;

/// The moments between two, at equal distances and with both of them, where that comes out even: no clocks
/// are put forward or back in between. Asking for each one's place in the calendar takes much longer.
std::vector<PointInTime> evenly(PointInTime begin, PointInTime end, double distance)
{
    const double first = secondsSince1970(begin);
    const double length = secondsSince1970(end) - first;
    if (!(length >= 0) || length > mostDays * day || std::fmod(length, day) != 0)
        return {};
    std::vector<PointInTime> result;
    for (double passed = 0; passed <= length; passed += distance)
        result.push_back(pointInTime(first + passed));
    return result;
}

QDateTime utc(double seconds)
{
    return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(seconds), Qt::UTC);
}

QTimeZone knownTimeZone(const QString &name)
{
    // Without a name it would be the zone of this machine.
    const QTimeZone zone(name.toLatin1());
    return !name.isEmpty() && zone.isValid() ? zone : QTimeZone::utc();
}

/// `locale`, or English where the library has no names of months: others would be numbers.
icu::Locale localeOfMonths(icu::Locale locale)
{
    UErrorCode status = U_ZERO_ERROR;
    locale.canonicalize(status);
    const icu::DateFormatSymbols symbols(locale, status);
    const icu::Locale found = symbols.getLocale(ULOC_VALID_LOCALE, status);
    const bool isKnown =
        U_SUCCESS(status) != 0 && std::string_view(found.getLanguage()) == locale.getLanguage();
    return isKnown ? locale : icu::Locale::getEnglish();
}

} // namespace

struct CalendarMath::Native {
    // The time zone is not left to the calendar: distributions keep the system's rules up to date, but not
    // the library's own copy of them. The calendar counts in what the clock on the wall shows, as if that
    // were UTC.
    QTimeZone zone;
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar;
    std::unique_ptr<icu::DateFormat> monthFormat;

    explicit Native(const UserCalendar &user) : zone(knownTimeZone(user.timeZone))
    {
        const icu::Locale locale(user.locale.toLatin1().constData());
        calendar.reset(icu::Calendar::createInstance(icu::TimeZone::getGMT()->clone(), locale, status));
        if (U_FAILURE(status) != 0)
            return;
        // There the week begins with Sunday at 1.
        if (user.firstWeekday)
            calendar->setFirstDayOfWeek(static_cast<UCalendarDaysOfWeek>(*user.firstWeekday % 7 + 1));
        // The library remembers the pattern of each locale; looking it up anew takes longer than a list does.
        monthFormat.reset(icu::DateFormat::createInstanceForSkeleton(calendar->clone(), "yMMMM",
                                                                     localeOfMonths(locale), status));
    }

    /// What the clock on the wall shows, in whole seconds: days begin at whole seconds, and rounding must
    /// never lift the last moment of a day into the next one.
    double wallTime(PointInTime time) const
    {
        const double seconds = std::floor(secondsSince1970(countable(time)));
        return seconds + zone.offsetFromUtc(utc(seconds));
    }

    /// The first moment at which the clock on the wall shows `wall` or more. A time that comes twice is met
    /// the first time, one that never comes at the moment at which the clocks are put forward over it.
    PointInTime firstMoment(double wall) const
    {
        const QTimeZone::OffsetDataList changes =
            zone.transitions(utc(wall - farthestOffset), utc(wall + farthestOffset));
        double begin = wall - farthestOffset;
        double offset = zone.offsetFromUtc(utc(begin));
        for (const QTimeZone::OffsetData &change : changes) {
            const auto end = static_cast<double>(change.atUtc.toSecsSinceEpoch());
            if (const double moment = std::max(begin, wall - offset); moment < end)
                return pointInTime(moment);
            begin = end;
            offset = change.offsetFromUtc;
        }
        return pointInTime(std::max(begin, wall - offset));
    }

    /// Goes to `time`, changes the day and returns the first moment of the day that this leads to. Without
    /// the library's data there are no days, and a list is better with wrong sections than not shown.
    template<typename Change>
    PointInTime dayStart(PointInTime time, Change change)
    {
        if (U_FAILURE(status) != 0)
            return time;
        UErrorCode result = U_ZERO_ERROR;
        calendar->setTime(wallTime(time) * 1000, result);
        change(result);
        for (const UCalendarDateFields field : {UCAL_HOUR_OF_DAY, UCAL_MINUTE, UCAL_SECOND, UCAL_MILLISECOND})
            calendar->set(field, 0);
        const UDate midnight = calendar->getTime(result);
        return U_SUCCESS(result) != 0 ? firstMoment(midnight / 1000) : time;
    }
};

CalendarMath::CalendarMath(const UserCalendar &calendar) : m_native(std::make_unique<Native>(calendar)) {}

CalendarMath::~CalendarMath() = default;

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

PointInTime CalendarMath::startOfNextDay(PointInTime startOfDay)
{
    return m_native->dayStart(startOfDay,
                              [this](UErrorCode &status) { m_native->calendar->add(UCAL_DATE, 1, status); });
}

PointInTime CalendarMath::startOfNextWeek(PointInTime startOfWeek)
{
    return m_native->dayStart(startOfWeek,
                              [this](UErrorCode &status) { m_native->calendar->add(UCAL_DATE, 7, status); });
}

std::vector<PointInTime> CalendarMath::hoursOfDay(PointInTime startOfDay)
{
    const PointInTime end = startOfNextDay(startOfDay);
    if (std::vector<PointInTime> result = evenly(startOfDay, end, hour); result.size() == hoursPerDay + 1)
        return result;
    const double midnight = std::floor(m_native->wallTime(startOfDay) / day) * day;
    std::vector<PointInTime> result;
    for (int i = 0; i < hoursPerDay; ++i)
        result.push_back(m_native->firstMoment(midnight + (i * hour)));
    result.push_back(end);
    return result;
}

std::vector<PointInTime> CalendarMath::daysBetween(PointInTime begin, PointInTime end)
{
    if (std::vector<PointInTime> result = evenly(begin, end, day); !result.empty())
        return result;
    std::vector<PointInTime> result{begin};
    while (result.back() < end && result.size() <= mostDays)
        result.push_back(startOfNextDay(result.back()));
    return result;
}

QString CalendarMath::monthTitle(PointInTime time)
{
    if (U_FAILURE(m_native->status) != 0)
        return {};
    icu::UnicodeString title;
    m_native->monthFormat->format(m_native->wallTime(time) * 1000, title);
    return QString::fromUtf16(title.getBuffer(), title.length());
}

} // namespace roamlet
