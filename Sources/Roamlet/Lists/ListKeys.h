// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/Grouping.h"
#include "Lists/SortComparator.h"

#include <QList>
#include <QString>

#include <optional>

namespace roamlet
{

/// What makes one search of the browsers' databases: as long as it stays the same, so does the result.
struct SearchKey {
    /// Absent for all sources.
    std::optional<QString> sourceID;
    /// As typed.
    QString search;
    /// Absent for all sites.
    std::optional<QString> site;
    /// The library's generation: a reload makes every result stale.
    int generation = 0;

    bool operator==(const SearchKey &) const = default;
};

/// What makes one shown list: as long as it stays the same, nothing has to be refined again.
template<typename Row>
struct RefineKey {
    std::optional<QString> sourceID;
    QString search;
    std::optional<QString> site;
    Grouping grouping = Grouping::None;
    QList<SortComparator<Row>> order;
    int generation = 0;

    bool operator==(const RefineKey &) const = default;
};

inline size_t qHash(const SearchKey &key, size_t seed = 0)
{
    return qHashMulti(seed, key.sourceID.has_value(), key.sourceID.value_or(QString()), key.search,
                      key.site.has_value(), key.site.value_or(QString()), key.generation);
}

template<typename Row>
size_t qHash(const RefineKey<Row> &key, size_t seed = 0)
{
    return qHashMulti(seed, key.sourceID.has_value(), key.sourceID.value_or(QString()), key.search,
                      key.site.has_value(), key.site.value_or(QString()), static_cast<int>(key.grouping),
                      key.order, key.generation);
}

} // namespace roamlet
