// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/ListWish.h"

namespace roamlet
{

size_t qHash(const SearchKey &key, size_t seed)
{
    return qHashMulti(seed, key.sourceID.has_value(), key.sourceID.value_or(QString()), key.search,
                      key.site.has_value(), key.site.value_or(QString()), key.generation);
}

size_t qHash(const RefineKey &key, size_t seed)
{
    return qHashMulti(seed, key.sourceID.has_value(), key.sourceID.value_or(QString()), key.search,
                      key.site.has_value(), key.site.value_or(QString()), static_cast<int>(key.grouping),
                      key.order, key.generation);
}

SearchKey ListWish::searchKey() const
{
    return {.sourceID = sourceID, .search = search, .site = site, .generation = generation};
}

RefineKey ListWish::refineKey() const
{
    return {.sourceID = sourceID,
            .search = search,
            .site = site,
            .grouping = grouping,
            .order = order,
            .generation = generation};
}

} // namespace roamlet
