// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/PointInTime.h"

#include <QDate>
#include <QDateTime>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTimeZone>

#include <memory>

namespace roamlet
{

struct UserCalendar;

/// Dates and numbers in the user's language. The main thread only.
class LocalText
{
public:
    /// `now` as seen with the user's `calendar`.
    LocalText(const UserCalendar &calendar, PointInTime now);

    /// Looks up the forms of a locale's dates, which takes longer than a list of them: whoever does so on
    /// another thread saves the first list that time. Any thread.
    static void prepare(const QString &locale);

    /// As short as can be: the time for today, weekday and time within the last week, day and time within a
    /// year, and else the day: "14:02", "Tue 14:02", "9 May, 14:02", "9 May 2025".
    QString briefDate(PointInTime time) const;
    /// For where the day is said already: "14:02".
    QString timeOfDay(PointInTime time) const;
    /// Date and time.
    QString fullDate(PointInTime time) const;
    /// An hour of a day, as the clock on the wall counts them: "13:00 to 14:00".
    QString hour(int number) const;
    /// The day that begins then: "Tuesday, 10 November 2026".
    QString day(PointInTime begin) const;
    /// With its digits in groups.
    QString number(qint64 number) const;
    /// Brief dates of every form, for whoever wants to know how wide they get.
    QStringList sampleDates() const;
    /// What time it was for whoever made the list.
    PointInTime now() const { return m_now; }
    /// The day that counts as today.
    QDate today() const { return m_today; }
    /// When the next day begins.
    PointInTime tomorrow() const;

private:
    /// How the language writes times and brief days.
    struct Formats;

    QDateTime local(PointInTime time) const;
    QString briefDate(const QDateTime &shown) const;
    QString timeText(const QDateTime &shown) const;

    QLocale m_locale;
    QTimeZone m_zone;
    PointInTime m_now;
    QDate m_today;
    QString m_localeName;
};

} // namespace roamlet
