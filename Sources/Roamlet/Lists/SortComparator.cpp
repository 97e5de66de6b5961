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
QStringView title(const Row &row, QString & /*made*/)
{
    return row.title;
}

template<typename Row>
QStringView sourceLabel(const Row &row, QString &made)
{
    made = row.source.label();
    return made;
}

template<typename Row>
quint64 dateAdded(const Row &row)
{
    return sortRank(row.dateAdded);
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

SortField<HistoryItem> SortColumns<HistoryItem>::field(Column column)
{
    switch (column) {
    case Column::Title:
        break;
    case Column::LastVisit:
        return [](const HistoryItem &item) { return sortRank(item.lastVisit); };
    case Column::VisitCount:
        return [](const HistoryItem &item) { return sortRank(item.visitCount); };
    case Column::Source:
        return sourceLabel<HistoryItem>;
    }
    return title<HistoryItem>;
}

SortField<Bookmark> SortColumns<Bookmark>::field(Column column)
{
    switch (column) {
    case Column::Title:
        break;
    case Column::Folder:
        return [](const Bookmark &bookmark, QString & /*made*/) { return QStringView(bookmark.folder); };
    case Column::DateAdded:
        return dateAdded<Bookmark>;
    case Column::Source:
        return sourceLabel<Bookmark>;
    }
    return title<Bookmark>;
}

SortField<BookmarkNode> SortColumns<BookmarkNode>::field(Column column)
{
    if (column == Column::DateAdded)
        return dateAdded<BookmarkNode>;
    return title<BookmarkNode>;
}

bool newestFirst(const QList<SortComparator<HistoryItem>> &order)
{
    const SortComparator<HistoryItem> oldestFirst{SortColumns<HistoryItem>::Column::LastVisit,
                                                  SortOrder::Forward};
    return order.isEmpty() || order.first() != oldestFirst;
}

} // namespace roamlet
