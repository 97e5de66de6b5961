// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/PointInTime.h"

#include <QDate>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <QTimeZone>

namespace roamlet
{

struct UserCalendar;

/// Foreign texts in a form that can be shown.
namespace CellText
{

/// Nobody reads more of a title, and laying out a million characters would stop the window.
constexpr qsizetype longestText = 1000;
/// What still fits into a menu.
constexpr qsizetype longestMenuText = 80;

/// The beginning of `text` on one line: line ends, tabs and control characters become blanks.
QString oneLine(QStringView text, qsizetype longest = longestText);
/// oneLine for a menu, in which an "&" would otherwise underline the letter behind it.
QString inMenu(QStringView text);
/// A tooltip over these lines, each shown as it is and broken where it gets too wide.
QString toolTip(const QStringList &lines);

} // namespace CellText

/// Dates and numbers in the user's language.
class LocalText
{
public:
    /// `now` as seen with the user's `calendar`.
    LocalText(const UserCalendar &calendar, PointInTime now);

    /// As short as can be: the time for today, weekday and time within the last week, and else the date.
    QString briefDate(PointInTime time) const;
    /// Date and time.
    QString fullDate(PointInTime time) const;
    /// With its digits in groups.
    QString number(qint64 number) const;
    /// The day that counts as today.
    QDate today() const { return m_today; }
    /// When the next day begins.
    PointInTime tomorrow() const;

private:
    QDateTime local(PointInTime time) const;

    QLocale m_locale;
    QTimeZone m_zone;
    QDate m_today;
};

} // namespace roamlet
