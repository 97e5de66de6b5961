// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/SortedRows.h"
#include "Lists/UserCalendar.h"
#include "Model/Collation.h"
#include "Model/HistoryItem.h"
#include "Model/PointInTime.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace roamlet
{

/// One section of a list.
template<typename Row>
struct RowGroup {
    /// The heading. It is also what makes a section the same one after a reload.
    QString title;
    /// The site of a section by site, so that the list can be narrowed to it.
    std::optional<QString> site;
    /// In the order of the list.
    QList<Row> rows;

    bool operator==(const RowGroup &) const = default;

    const QString &id() const { return title; }
};

/// Which section each row of a list belongs to, and how many rows each section gets: with it, every section
/// is filled in one go.
class SectionNumbers
{
public:
    explicit SectionNumbers(qsizetype rowCount)
    {
        m_sectionOfRow.reserve(static_cast<std::size_t>(rowCount));
    }

    /// A new section without rows.
    std::size_t addSection();
    /// Puts the next row into `section`.
    void addRow(std::size_t section);

    /// The sections' rows, section by section.
    template<typename Row>
    std::vector<QList<Row>> distribute(const QList<Row> &rows) const
    {
        std::vector<QList<Row>> result(m_rowCounts.size());
        for (std::size_t section = 0; section < result.size(); ++section)
            result[section].reserve(m_rowCounts[section]);
        for (qsizetype row = 0; row < rows.size(); ++row)
            result[m_sectionOfRow[static_cast<std::size_t>(row)]].append(rows[row]);
        return result;
    }

private:
    std::vector<std::size_t> m_sectionOfRow;
    std::vector<qsizetype> m_rowCounts;
};

/// Cuts history by the day of the last visit, as seen from `now`: today, yesterday, this week, last week,
/// this month, and each month before. Rows keep their order within a section.
QList<RowGroup<HistoryItem>> dayGroups(const QList<HistoryItem> &items, bool newestFirst, PointInTime now,
                                       const UserCalendar &calendar);

/// The numbers of `sites` in the order in which their sections stand: the empty site comes last.
std::vector<qsizetype> siteOrder(const QStringList &sites, const Collation &collation);
/// The section that holds the rows of `site`, still without rows.
template<typename Row>
RowGroup<Row> siteGroup(const QString &site)
{
    if (site.isEmpty())
        return {.title = QStringLiteral("Other"), .site = {}, .rows = {}};
    return {.title = site, .site = site, .rows = {}};
}

/// Cuts any rows by their site. Rows keep their order within a section.
template<typename Row, typename SiteOf>
QList<RowGroup<Row>> siteGroups(const QList<Row> &rows, const SiteOf &siteOf, const Collation &collation)
{
    SectionNumbers numbers(rows.size());
    QHash<QString, std::size_t> sectionOfSite;
    QStringList sites;
    for (const Row &row : rows) {
        const QString &site = std::invoke(siteOf, row);
        auto found = sectionOfSite.constFind(site);
        if (found == sectionOfSite.constEnd()) {
            found = sectionOfSite.insert(site, numbers.addSection());
            sites.append(site);
        }
        numbers.addRow(*found);
    }

    std::vector<QList<Row>> rowsOfSection = numbers.distribute(rows);
    QList<RowGroup<Row>> groups;
    groups.reserve(sites.size());
    for (const qsizetype section : siteOrder(sites, collation)) {
        groups.append(siteGroup<Row>(sites[section]));
        groups.last().rows = std::move(rowsOfSection[static_cast<std::size_t>(section)]);
    }
    return groups;
}

} // namespace roamlet
