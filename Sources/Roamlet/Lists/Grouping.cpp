// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/Grouping.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

constexpr std::array rawValues{"none"_L1, "day"_L1, "site"_L1};
constexpr std::array settingsKeys{"grouping.history"_L1, "grouping.mostVisited"_L1, "grouping.bookmarks"_L1};

/// Days mean nothing where the most visited pages come first, nor to bookmarks.
constexpr std::array choicesWithoutDays{Grouping::None, Grouping::Site};

} // namespace

QString rawValue(Grouping grouping)
{
    return rawValues.at(static_cast<size_t>(grouping));
}

std::optional<Grouping> groupingFromRawValue(QStringView value)
{
    for (const Grouping grouping : allGroupings) {
        if (rawValues.at(static_cast<size_t>(grouping)) == value)
            return grouping;
    }
    return {};
}

std::span<const Grouping> groupingChoices(GroupedList list)
{
    if (list == GroupedList::History)
        return allGroupings;
    return choicesWithoutDays;
}

QString groupingSettingsKey(GroupedList list)
{
    return settingsKeys.at(static_cast<size_t>(list));
}

} // namespace roamlet
