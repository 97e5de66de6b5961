// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QtCore/qnamespace.h>

namespace roamlet
{

/// How the user counts days: where days begin, on which day weeks begin, and what months are called.
struct UserCalendar {
    /// Such as "Europe/Berlin". A zone that nobody knows counts as UTC.
    QString timeZone;
    /// Such as "de_DE": its calendar and its names of months.
    QString locale;
    Qt::DayOfWeek firstWeekday = Qt::Monday;

    bool operator==(const UserCalendar &) const = default;

    /// What the user's session says now; a journey changes the time zone. On the main thread.
    static UserCalendar ofSystem();
    /// With the first weekday that is usual where `locale` is spoken.
    static UserCalendar of(const QString &timeZone, const QString &locale);
    /// A POSIX locale such as "de_DE.UTF-8@euro" as "de_DE". Without a language that Qt knows it is English.
    static QString localeOf(const QString &posixName);
};

} // namespace roamlet
