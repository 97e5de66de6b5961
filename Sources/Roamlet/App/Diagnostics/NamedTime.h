// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/PointInTime.h"

#include <QDate>
#include <QString>
#include <QTime>

#include <optional>
#include <variant>

namespace roamlet
{

/// A time as the user names it on the command line: a day, or a moment. What it stands for is only known with
/// a clock, and in the time zone of this process.
class NamedTime
{
public:
    /// What these words name: "2025-11-05", with a time behind it ("2025-11-05 14:30", "2025-11-05T14:30:20")
    /// that is UTC's where a Z follows, "today", "yesterday", "7d" and "2w" for the day so many days or weeks
    /// ago, "12h" for the moment so many hours ago. Nothing for anything else.
    static std::optional<NamedTime> of(const QString &words);

    /// The first moment of what is named,
    PointInTime begin(PointInTime now) const;
    /// and the first one after it. A day ends with the next one, a time with the next minute or second,
    /// whichever was written last; nothing lies within a moment some hours ago.
    PointInTime end(PointInTime now) const;

    bool operator==(const NamedTime &) const = default;

private:
    struct DaysAgo {
        qint64 days = 0;
        bool operator==(const DaysAgo &) const = default;
    };
    struct HoursAgo {
        qint64 hours = 0;
        bool operator==(const HoursAgo &) const = default;
    };
    struct Moment {
        QDate date;
        QTime time;
        bool isUtc = false;
        /// In seconds.
        double length = 0;
        bool operator==(const Moment &) const = default;
    };
    using Name = std::variant<DaysAgo, HoursAgo, QDate, Moment>;

    explicit NamedTime(Name name) : m_name(name) {}

    static std::optional<Name> nameOf(const QString &words);
    /// The moment that is named, or nothing where that is a day.
    std::optional<PointInTime> moment(PointInTime now) const;
    QDate day(PointInTime now) const;

    Name m_name;
};

} // namespace roamlet
