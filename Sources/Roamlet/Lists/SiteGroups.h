// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/RowGroup.h"
#include "Model/Collation.h"

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

namespace roamlet
{

/// The numbers of `sites` in the order in which their sections stand: the empty site comes last.
std::vector<qsizetype> siteOrder(const QStringList &sites, const Collation &collation);
/// The section that holds the rows of `site`, still without rows.
template<typename Row>
RowGroup<Row> siteGroup(const QString &site)
{
    if (site.isEmpty())
        //: The heading of a section of pages that belong to no web site, such as files.
        return {.title = QCoreApplication::translate("roamlet::SiteGroups", "Other"), .site = {}, .rows = {}};
    return {.title = site, .site = site, .rows = {}};
}

/// Cuts any rows by their site. Rows keep their order within a section.
template<typename Row, typename SiteOf>
QList<RowGroup<Row>> siteGroups(const RowPointers<Row> &rows, const SiteOf &siteOf,
                                const Collation &collation)
{
    SectionNumbers numbers(rows.size());
    QHash<QString, std::size_t> sectionOfSite;
    QStringList sites;
    for (const Row *row : rows) {
        const QString &site = std::invoke(siteOf, *row);
        auto found = sectionOfSite.constFind(site);
        if (found == sectionOfSite.constEnd()) {
            found = sectionOfSite.insert(site, numbers.addSection());
            sites.append(site);
        }
        numbers.addRow(*found);
    }

    std::vector<RowPointers<Row>> rowsOfSection = numbers.distribute(rows);
    QList<RowGroup<Row>> groups;
    groups.reserve(sites.size());
    for (const qsizetype section : siteOrder(sites, collation)) {
        groups.append(siteGroup<Row>(sites[section]));
        groups.last().rows = std::move(rowsOfSection[static_cast<std::size_t>(section)]);
    }
    return groups;
}

} // namespace roamlet
