// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <array>
#include <optional>
#include <span>

namespace roamlet
{

/// How a list is cut into sections.
enum class Grouping { None, Day, Site };

inline constexpr std::array allGroupings{Grouping::None, Grouping::Day, Grouping::Site};

/// "none", "day" or "site".
QString rawValue(Grouping grouping);
/// The grouping with this raw value, or nothing.
std::optional<Grouping> groupingFromRawValue(QStringView rawValue);

/// The lists that can be grouped, each in its own way.
enum class GroupedList { History, MostVisited, Bookmarks };

/// What a list offers, in the order in which it is offered.
std::span<const Grouping> groupingChoices(GroupedList list);
/// The settings key under which the raw value of a list's choice is stored.
QString groupingSettingsKey(GroupedList list);

} // namespace roamlet
