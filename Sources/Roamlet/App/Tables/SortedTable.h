// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Tables/BackgroundRefineRunner.h"
#include "App/Tables/LinkTable.h"
#include "App/Tables/ListMaker.h"
#include "Library/Library.h"
#include "Lists/SortComparator.h"

#include <utility>

namespace roamlet
{

/// `order` after a click on `column`: that column decides first, in the direction `first`, or in the other
/// one if it did so already. The columns clicked before still decide between what is equal.
template<typename Row>
QList<SortComparator<Row>> orderAfterClick(QList<SortComparator<Row>> order,
                                           typename SortComparator<Row>::Column column, SortOrder first)
{
    if (!order.isEmpty() && order.first().column == column) {
        order.first().order =
            order.first().order == SortOrder::Forward ? SortOrder::Reverse : SortOrder::Forward;
        return order;
    }
    order.removeIf([column](const SortComparator<Row> &comparator) { return comparator.column == column; });
    order.prepend({column, first});
    return order;
}

/// A table whose list is sorted by its columns, in the background. The columns of the table are those of
/// SortColumns, in the same order.
template<typename Row>
class SortedTable : public LinkTable
{
public:
    using Order = QList<SortComparator<Row>>;

    const Order &order() const { return m_order; }

protected:
    SortedTable(const WindowServices &services, const Kind &kind, const Order &defaultOrder, QWidget *parent)
        : LinkTable(services, kind, parent),
          m_defaultOrder(defaultOrder),
          m_order(defaultOrder),
          m_runner(services.clock),
          m_maker(m_runner, services.collation)
    {
        showOrder();
    }

    void sortBy(int column) override
    {
        const auto content = columns()[column].content;
        const bool isNumber =
            content == TableColumn::Content::Date || content == TableColumn::Content::Visits;
        // People look for the newest and the most, and for names from A to Z.
        m_order = orderAfterClick<Row>(m_order, static_cast<typename SortComparator<Row>::Column>(column),
                                       isNumber ? SortOrder::Reverse : SortOrder::Forward);
        showOrder();
        refreshIfVisible();
    }
    void sortByDefault() override
    {
        m_order = m_defaultOrder;
        showOrder();
        refreshIfVisible();
    }
    void invalidate() override { m_maker.invalidate(); }

    ListMaker<Row> &maker() { return m_maker; }
    RefineKey<Row> key() const
    {
        return {.sourceID = inputs().sourceID,
                .search = inputs().search,
                .site = inputs().site,
                .grouping = inputs().grouping,
                .order = m_order,
                .generation = services().library.generation()};
    }
    void deliver(const SharedRowTree &tree, ListChange change)
    {
        showList(tree,
                 change == ListChange::Reloaded ? TableView::Scrolling::Stay : TableView::Scrolling::ToTop);
    }

private:
    void showOrder()
    {
        if (m_order.isEmpty())
            showSortIndicator(-1, Qt::AscendingOrder);
        else
            showSortIndicator(static_cast<int>(m_order.first().column),
                              m_order.first().order == SortOrder::Forward ? Qt::AscendingOrder
                                                                          : Qt::DescendingOrder);
    }

    Order m_defaultOrder;
    Order m_order;
    BackgroundRefineRunner m_runner;
    ListMaker<Row> m_maker;
};

} // namespace roamlet
