// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Bookmark.h"
#include "Model/HistoryItem.h"
#include "Model/PointInTime.h"

#include <QList>
#include <QString>

#include <compare>
#include <optional>
#include <variant>

namespace roamlet
{

enum class SortOrder { Forward, Reverse };

/// Compares dates of which some are absent. An absent date is later than every date: last with the oldest
/// first, and first with the newest first.
struct OptionalDateComparator {
    SortOrder order = SortOrder::Forward;

    std::weak_ordering compare(std::optional<PointInTime> left, std::optional<PointInTime> right) const;

    bool operator==(const OptionalDateComparator &) const = default;
};

/// Numbers that have the order of what they stand for.
quint64 sortRank(qint64 number);
quint64 sortRank(std::optional<PointInTime> date);

/// What a column gives of a row for sorting: a rank,
template<typename Row>
using SortRank = quint64 (*)(const Row &row);
/// or a text that is compared as the user's language does. It lies in the row: counting references to a
/// string of each row takes longer than sorting them.
template<typename Row>
using SortText = QStringView (*)(const Row &row);
template<typename Row>
using SortField = std::variant<SortRank<Row>, SortText<Row>>;

/// What a column of a list shows, and by what it sorts the list.
enum class SortColumn {
    Title,
    Date,   ///< the last visit, or when a bookmark was added
    Visits, ///< of a page
    Folder, ///< of a bookmark
    Source
};

/// What a column gives of a row. By a column that its rows do not have, a list is not sorted.
template<typename Row>
SortField<Row> sortField(SortColumn column);
template<>
SortField<HistoryItem> sortField(SortColumn column);
template<>
SortField<Bookmark> sortField(SortColumn column);
template<>
SortField<BookmarkNode> sortField(SortColumn column);

/// A column and a direction. A plain value, so that a list can tell whether it is still sorted as asked.
struct SortComparator {
    SortColumn column{};
    SortOrder order = SortOrder::Forward;

    bool operator==(const SortComparator &) const = default;
};

size_t qHash(const SortComparator &comparator, size_t seed = 0);

/// `order` after a click on `column`: that column decides first, in the direction that people look for, or in
/// the other one if it did so already. The columns clicked before still decide between what is equal.
QList<SortComparator> orderAfterClick(QList<SortComparator> order, SortColumn column);

/// Whether sections by day begin with the newest. Only a list with the oldest visits first has them the other
/// way round; in any other order the newest are what people look for.
bool newestFirst(const QList<SortComparator> &order);

} // namespace roamlet
