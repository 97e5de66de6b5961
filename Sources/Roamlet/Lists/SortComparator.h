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
/// or a text that is compared as the user's language does. It lies in the row, or in `made` when it had to be
/// put together: counting references to a string of each row takes longer than sorting them.
template<typename Row>
using SortText = QStringView (*)(const Row &row, QString &made);
template<typename Row>
using SortField = std::variant<SortRank<Row>, SortText<Row>>;

/// The columns by which rows of a type can be sorted.
template<typename Row>
struct SortColumns;

template<>
struct SortColumns<HistoryItem> {
    enum class Column { Title, LastVisit, VisitCount, Source };
    static SortField<HistoryItem> field(Column column);
};

template<>
struct SortColumns<Bookmark> {
    enum class Column { Title, Folder, DateAdded, Source };
    static SortField<Bookmark> field(Column column);
};

template<>
struct SortColumns<BookmarkNode> {
    enum class Column { Title, DateAdded };
    static SortField<BookmarkNode> field(Column column);
};

/// A column and a direction. A plain value, so that a list can tell whether it is still sorted as asked.
template<typename Row>
struct SortComparator {
    using Column = typename SortColumns<Row>::Column;

    Column column{};
    SortOrder order = SortOrder::Forward;

    bool operator==(const SortComparator &) const = default;
};

template<typename Row>
size_t qHash(const SortComparator<Row> &comparator, size_t seed = 0)
{
    return qHashMulti(seed, static_cast<int>(comparator.column), static_cast<int>(comparator.order));
}

/// Whether sections by day begin with the newest. Only a list with the oldest visits first has them the other
/// way round; in any other order the newest are what people look for.
bool newestFirst(const QList<SortComparator<HistoryItem>> &order);

} // namespace roamlet
