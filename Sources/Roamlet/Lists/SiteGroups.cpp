// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/SiteGroups.h"

#include "Lists/SortedRows.h"

namespace roamlet
{

std::vector<qsizetype> siteOrder(const QStringList &sites, const Collation &collation)
{
    const SortLevel emptyLast{SortOrder::Forward,
                              [&sites](qsizetype site) -> quint64 { return sites[site].isEmpty() ? 1 : 0; }};
    const SortLevel byName{SortOrder::Forward, [&sites](qsizetype site) { return QStringView(sites[site]); }};
    return *sortedRowNumbers(sites.size(), {emptyLast, byName}, collation);
}

} // namespace roamlet
