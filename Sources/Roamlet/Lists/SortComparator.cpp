// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/SortComparator.h"

#include <bit>
#include <limits>

namespace roamlet
{

namespace
{

constexpr quint64 signBit = quint64{1} << 63;

template<typename Row>
QStringView title(const Row &row)
{
    return row.title;
}

template<typename Row>
QStringView sourceLabel(const Row &row)
{
    return row.source.label();
}

template<typename Row>
quint64 dateAdded(const Row &row)
{
    return sortRank(row.dateAdded);
}

template<typename Row>
quint64 nothing(const Row & /*row*/)
{
    return 0;
}

} // namespace

quint64 sortRank(qint64 number)
{
    return static_cast<quint64>(number) ^ signBit;
}

quint64 sortRank(std::optional<PointInTime> date)
{
    if (!date)
        return std::numeric_limits<quint64>::max();
    // The bits of floating-point numbers have the order of the numbers, negative ones backwards. Adding zero
    // makes one of the two zeros.
    const auto bits = std::bit_cast<quint64>(secondsSince1970(*date) + 0.0);
    return (bits & signBit) != 0 ? ~bits : bits | signBit;
}

std::weak_ordering OptionalDateComparator::compare(std::optional<PointInTime> left,
                                                   std::optional<PointInTime> right) const
{
    return order == SortOrder::Forward ? sortRank(left) <=> sortRank(right)
                                       : sortRank(right) <=> sortRank(left);
}

template<>
SortField<HistoryItem> sortField(SortColumn column)
{
    switch (column) {
    case SortColumn::Title:
        return title<HistoryItem>;
    case SortColumn::Date:
        return [](const HistoryItem &item) { return sortRank(item.lastVisit); };
    case SortColumn::Visits:
        return [](const HistoryItem &item) { return sortRank(item.visitCount); };
    case SortColumn::Source:
        return sourceLabel<HistoryItem>;
    case SortColumn::Folder:
        break;
    }
    return nothing<HistoryItem>;
}

template<>
SortField<Bookmark> sortField(SortColumn column)
{
    switch (column) {
    case SortColumn::Title:
        return title<Bookmark>;
    case SortColumn::Date:
        return dateAdded<Bookmark>;
    case SortColumn::Folder:
        return [](const Bookmark &bookmark) { return QStringView(bookmark.folder); };
    case SortColumn::Source:
        return sourceLabel<Bookmark>;
    case SortColumn::Visits:
        break;
    }
    return nothing<Bookmark>;
}

template<>
SortField<BookmarkNode> sortField(SortColumn column)
{
    if (column == SortColumn::Title)
        return title<BookmarkNode>;
    if (column == SortColumn::Date)
        return dateAdded<BookmarkNode>;
    return nothing<BookmarkNode>;
}

size_t qHash(const SortComparator &comparator, size_t seed)
{
    return qHashMulti(seed, static_cast<int>(comparator.column), static_cast<int>(comparator.order));
}

QList<SortComparator> orderAfterClick(QList<SortComparator> order, SortColumn column)
{
    if (!order.isEmpty() && order.first().column == column) {
        SortOrder &direction = order.first().order;
        direction = direction == SortOrder::Forward ? SortOrder::Reverse : SortOrder::Forward;
        return order;
    }
    order.removeIf([column](const SortComparator &comparator) { return comparator.column == column; });
    // The newest and the most first, and names from A to Z.
    const bool isNumber = column == SortColumn::Date || column == SortColumn::Visits;
    order.prepend({column, isNumber ? SortOrder::Reverse : SortOrder::Forward});
    return order;
}

bool newestFirst(const QList<SortComparator> &order)
{
    return order.isEmpty() || order.first() != SortComparator{SortColumn::Date, SortOrder::Forward};
}

} // namespace roamlet
