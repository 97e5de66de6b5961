// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/DayGroups.h"

#include "Lists/CalendarMath.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <limits>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// Gives each moment the section that it belongs to.
class DaySections
{
public:
    enum class Span { Day, Week, Month };
    struct Section {
        QString title;
        PointInTime date;
        Span span;
    };

    DaySections(PointInTime now, const UserCalendar &calendar, SectionNumbers &numbers)
        : m_math(calendar), m_numbers(numbers)
    {
        const PointInTime today = m_math.startOfDay(now);
        const PointInTime thisWeek = m_math.startOfWeek(now);
        // In this order: a week may begin in the month before, and yesterday may lie in the week before.
        //: The heading of a section of pages by when they were visited.
        add(QCoreApplication::translate("roamlet::DayGroups", "Today"), today, Span::Day);
        add(QCoreApplication::translate("roamlet::DayGroups", "Yesterday"), m_math.startOfPreviousDay(today),
            Span::Day);
        add(QCoreApplication::translate("roamlet::DayGroups", "Earlier This Week"), thisWeek, Span::Week);
        add(QCoreApplication::translate("roamlet::DayGroups", "Last Week"),
            m_math.startOfPreviousWeek(thisWeek), Span::Week);
        add(QCoreApplication::translate("roamlet::DayGroups", "Earlier This Month"), m_math.startOfMonth(now),
            Span::Month);
    }

    std::size_t sectionOf(PointInTime time)
    {
        for (std::size_t section = 0; section < recentCount; ++section) {
            if (time >= m_sections[section].date)
                return section;
        }
        const PointInTime counted = countable(time);
        if (!m_lastMonth.contains(counted))
            m_lastMonth = monthOf(counted);
        return m_lastMonth.section;
    }

    const std::vector<Section> &sections() const { return m_sections; }

    /// Where the next newer section begins: today is no part of this week's.
    PointInTime endOf(const Section &section) const
    {
        PointInTime end = pointInTime(std::numeric_limits<double>::infinity());
        for (const Section &other : m_sections) {
            if (other.date > section.date)
                end = std::min(end, other.date);
        }
        return end;
    }

    /// The hours or days that a section is about, with nothing counted yet.
    VisitStrip ticks(const Section &section)
    {
        if (section.span == Span::Day)
            return VisitStrip::between(VisitStrip::Unit::Hour, m_math.hoursOfDay(section.date));
        const PointInTime end = section.span == Span::Week ? m_math.startOfNextWeek(section.date)
                                                           : m_math.startOfNextMonth(section.date);
        return VisitStrip::between(VisitStrip::Unit::Day, m_math.daysBetween(section.date, end));
    }

private:
    static constexpr std::size_t recentCount = 5;

    struct Month {
        PointInTime begin;
        PointInTime end;
        std::size_t section;

        bool contains(PointInTime time) const { return time >= begin && time < end; }
    };

    std::size_t add(const QString &title, PointInTime date, Span span)
    {
        m_sections.push_back({title, date, span});
        return m_numbers.addSection();
    }

    Month monthOf(PointInTime time)
    {
        const auto next = std::ranges::upper_bound(m_months, time, {}, &Month::begin);
        if (next != m_months.begin() && std::prev(next)->contains(time))
            return *std::prev(next);
        const PointInTime begin = m_math.startOfMonth(time);
        const QString title = m_math.monthTitle(begin);
        // Years before the first have the same names as those after it.
        auto section = m_sectionOfTitle.constFind(title);
        if (section == m_sectionOfTitle.constEnd())
            section = m_sectionOfTitle.insert(title, add(title, begin, Span::Month));
        return *m_months.insert(next, {begin, m_math.startOfNextMonth(begin), *section});
    }

    CalendarMath m_math;
    SectionNumbers &m_numbers;
    std::vector<Section> m_sections;
    /// The months that rows were found in, by their beginning.
    std::vector<Month> m_months;
    Month m_lastMonth{};
    QHash<QString, std::size_t> m_sectionOfTitle;
};

} // namespace

QList<RowGroup<HistoryItem>> dayGroups(const RowPointers<HistoryItem> &items, bool newestFirst,
                                       PointInTime now, const UserCalendar &calendar)
{
    if (items.empty())
        return {};
    SectionNumbers numbers(items.size());
    DaySections days(now, calendar, numbers);
    for (const HistoryItem *item : items)
        numbers.addRow(days.sectionOf(item->lastVisit));

    std::vector<RowPointers<HistoryItem>> rowsOfSection = numbers.distribute(items);
    std::vector<std::size_t> order(rowsOfSection.size());
    for (std::size_t section = 0; section < order.size(); ++section)
        order[section] = section;
    std::ranges::sort(order, [&](std::size_t left, std::size_t right) {
        const PointInTime leftDate = days.sections()[left].date;
        const PointInTime rightDate = days.sections()[right].date;
        return newestFirst ? leftDate > rightDate : leftDate < rightDate;
    });

    QList<RowGroup<HistoryItem>> groups;
    for (const std::size_t section : order) {
        if (rowsOfSection[section].empty())
            continue;
        groups.append({days.sections()[section].title, {}, std::move(rowsOfSection[section])});
        groups.last().visits = days.ticks(days.sections()[section]);
        groups.last().visits.count(groups.last().rows);
        groups.last().visits.end = days.endOf(days.sections()[section]);
    }
    return groups;
}

} // namespace roamlet
