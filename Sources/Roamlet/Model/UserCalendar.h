// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QtCore/qnamespace.h>

#include <optional>

namespace roamlet
{

/// How the user counts days: where days begin, on which day weeks begin, and what months are called.
struct UserCalendar {
    /// Such as "Europe/Berlin". A zone that nobody knows counts as UTC.
    QString timeZone;
    /// Such as "de_DE": its calendar and its names of months.
    QString locale;
    /// Absent for the one that is usual where the locale is spoken.
    // The compiler wants it from whoever names only some of the members.
    // NOLINTNEXTLINE(readability-redundant-member-init)
    std::optional<Qt::DayOfWeek> firstWeekday = {};

    bool operator==(const UserCalendar &) const = default;

    /// A POSIX locale such as "de_DE.UTF-8@euro" as "de_DE". Without a language that Qt knows it is English.
    static QString localeOf(const QString &posixName);
};

} // namespace roamlet
