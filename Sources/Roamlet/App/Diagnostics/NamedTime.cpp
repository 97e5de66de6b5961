// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/NamedTime.h"

#include <QDateTime>
#include <QRegularExpression>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

constexpr double secondsPerMinute = 60;
constexpr double secondsPerHour = 3600;
constexpr qint64 daysPerWeek = 7;

PointInTime pointInTimeOf(const QDateTime &time)
{
    constexpr double millisecondsPerSecond = 1000;
    return pointInTime(static_cast<double>(time.toMSecsSinceEpoch()) / millisecondsPerSecond);
}

/// Where clocks are put forward at midnight, a day begins at one.
PointInTime startOf(const QDate &day)
{
    return pointInTimeOf(day.startOfDay());
}

QRegularExpression whole(const QString &pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

} // namespace

std::optional<NamedTime> NamedTime::of(const QString &words)
{
    const std::optional<Name> name = nameOf(words);
    return name ? std::optional(NamedTime(*name)) : std::nullopt;
}

std::optional<NamedTime::Name> NamedTime::nameOf(const QString &words)
{
    // The numbers are as long as lead to years that a calendar counts.
    static const QRegularExpression ago = whole(u"([0-9]{1,5})([hdw])"_s);
    static const QRegularExpression date = whole(
        u"([0-9]{4}-[0-9]{2}-[0-9]{2})(?:[T ]((?:[01][0-9]|2[0-3]):[0-9]{2})(:[0-9]{2}(?:\\.[0-9]{1,3})?)?(Z)?)?"_s);
    if (words == u"today")
        return DaysAgo{0};
    if (words == u"yesterday")
        return DaysAgo{1};
    if (const QRegularExpressionMatch match = ago.match(words); match.hasMatch()) {
        const qint64 count = match.captured(1).toLongLong();
        const QString unit = match.captured(2);
        if (unit == u"h")
            return HoursAgo{count};
        return DaysAgo{unit == u"w" ? count * daysPerWeek : count};
    }
    const QRegularExpressionMatch match = date.match(words);
    const QDate day = QDate::fromString(match.captured(1), Qt::ISODate);
    if (!match.hasMatch() || !day.isValid())
        return {};
    if (!match.hasCaptured(2))
        return day;
    const QString seconds = match.captured(3);
    const QTime time = QTime::fromString(QString(match.captured(2) % seconds), Qt::ISODateWithMs);
    if (!time.isValid())
        return {};
    double length = seconds.contains(u'.') ? 0.001 : 1;
    if (seconds.isEmpty())
        length = secondsPerMinute;
    return Moment{.date = day, .time = time, .isUtc = match.hasCaptured(4), .length = length};
}

std::optional<PointInTime> NamedTime::moment(PointInTime now) const
{
    if (const auto *ago = std::get_if<HoursAgo>(&m_name))
        return pointInTime(secondsSince1970(now) - (static_cast<double>(ago->hours) * secondsPerHour));
    if (const auto *named = std::get_if<Moment>(&m_name))
        return pointInTimeOf(QDateTime(named->date, named->time, named->isUtc ? Qt::UTC : Qt::LocalTime));
    return {};
}

QDate NamedTime::day(PointInTime now) const
{
    if (const auto *date = std::get_if<QDate>(&m_name))
        return *date;
    const QDate today = QDateTime::fromMSecsSinceEpoch(millisecondsSince1970(now)).date();
    return today.addDays(-std::get<DaysAgo>(m_name).days);
}

PointInTime NamedTime::begin(PointInTime now) const
{
    if (const auto named = moment(now))
        return *named;
    return startOf(day(now));
}

PointInTime NamedTime::end(PointInTime now) const
{
    if (const auto named = moment(now)) {
        const auto *written = std::get_if<Moment>(&m_name);
        return pointInTime(secondsSince1970(*named) + (written != nullptr ? written->length : 0));
    }
    return startOf(day(now).addDays(1));
}

} // namespace roamlet
