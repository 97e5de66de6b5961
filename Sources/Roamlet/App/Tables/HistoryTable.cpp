// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/HistoryTable.h"

#include "Lists/DayGroups.h"
#include "Lists/SiteGroups.h"
#include "Platform/Clock.h"

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

using Comparator = SortComparator<HistoryItem>;
using HistoryColumn = SortColumns<HistoryItem>::Column;

static_assert(static_cast<int>(HistoryColumn::LastVisit) == HistoryTable::LastVisited &&
              static_cast<int>(HistoryColumn::VisitCount) == HistoryTable::Visits &&
              static_cast<int>(HistoryColumn::Source) == HistoryTable::Source);

QList<TableColumn> historyColumns()
{
    using Content = TableColumn::Content;
    return {{u"title"_s, u"Title"_s, Content::Title, 40},
            {u"lastVisited"_s, u"Last Visited"_s, Content::Date, 16},
            {u"visits"_s, u"Visits"_s, Content::Visits, 9},
            {u"source"_s, u"Source"_s, Content::Source, 22}};
}

HistoryTable::Order defaultOrder(HistoryTable::Mode mode)
{
    if (mode == HistoryTable::Mode::MostVisited)
        return {Comparator{HistoryColumn::VisitCount, SortOrder::Reverse}};
    return {Comparator{HistoryColumn::LastVisit, SortOrder::Reverse}};
}

} // namespace

HistoryTable::HistoryTable(const WindowServices &services, Mode mode, QWidget *parent)
    : SortedTable(services,
                  {.objectName = mode == Mode::Recent ? u"historyTable"_s : u"mostVisitedTable"_s,
                   .accessibleName = mode == Mode::Recent ? u"History"_s : u"Most Visited"_s,
                   .layoutKey = mode == Mode::Recent ? u"columns.history"_s : u"columns.mostVisited"_s,
                   .shape = TableView::Shape::List,
                   .columns = historyColumns(),
                   .nothingText = u"No history yet"_s},
                  defaultOrder(mode), parent),
      m_mode(mode)
{
}

HistoryTable::~HistoryTable()
{
    stopSearching();
}

SearchKey HistoryTable::searchKey() const
{
    return {.sourceID = inputs().sourceID,
            .search = inputs().search,
            .site = inputs().site,
            .generation = services().library.generation()};
}

void HistoryTable::refresh()
{
    // Before the first load there is nothing to search in.
    if (services().library.generation() == 0)
        return;
    const SearchKey key = searchKey();
    if (m_found && m_found->key == key) {
        stopSearching();
        makeList();
        return;
    }
    if (m_searching == key) {
        if (m_standIn)
            makeList();
        return;
    }
    stopSearching();
    maker().cancel();
    showThatItWorks();
    m_searching = key;
    if (refineText(key.search).isEmpty()) {
        search(key);
        return;
    }
    m_wait = std::make_unique<QObject>();
    services().clock.after(searchDelay, m_wait.get(), [this, key] { search(key); });
}

void HistoryTable::search(const SearchKey &key)
{
    // What a reload brings may take its time: a list is there.
    const bool isAskedFor = maker().changeTo(this->key()) == ListChange::Asked;
    setBusy(true, isAskedFor);
    const auto order =
        m_mode == Mode::Recent ? HistoryQuery::Order::Latest : HistoryQuery::Order::MostVisited;
    const HistoryQuery query = HistoryQuery::matching(key.search, key.site, order);
    // The snapshot holds the latest pages already: they are shown until the databases have answered.
    if (isAskedFor && query == HistoryQuery::recent()) {
        m_standIn = {.items = services().library.recentHistory(key.sourceID)};
        makeList();
    }
    m_search =
        services().library.queryHistory(query, key.sourceID, this, [this, key](HistoryResults results) {
            if (m_searching != key)
                return;
            m_searching.reset();
            // Most often the snapshot had it all.
            if (m_standIn && *m_standIn != results)
                maker().outdate();
            m_standIn.reset();
            m_found = {key, std::move(results)};
            makeList();
        });
}

void HistoryTable::stopSearching()
{
    // What stood in for an answer may be shown, and is none.
    if (m_standIn)
        maker().outdate();
    m_standIn.reset();
    m_wait.reset();
    m_search.request_stop();
    m_search = {};
    m_searching.reset();
    setBusy(false);
}

void HistoryTable::makeList()
{
    if (!maker().needs(key())) {
        if (maker().shown() == key()) {
            showWhyItIsEmpty();
            setBusy(m_searching.has_value());
        }
        return;
    }
    const HistoryResults &results = m_standIn ? *m_standIn : m_found->results;
    const PointInTime now = services().clock.now();
    // The databases have searched already; what is left is sorting.
    maker().make(
        key(), results.items, {},
        [grouping = inputs().grouping, isNewestFirst = newestFirst(order()), now,
         calendar = services().calendar(), collation = services().collation](const QList<HistoryItem> &rows) {
            switch (grouping) {
            case Grouping::None:
                break;
            case Grouping::Day:
                return RowTree::ofGroups(dayGroups(rows, isNewestFirst, now, calendar));
            case Grouping::Site:
                return RowTree::ofGroups(siteGroups(rows, &HistoryItem::site, *collation));
            }
            return RowTree::ofRows(rows);
        },
        [this, isCapped = results.isCapped](const SharedRowTree &tree, ListChange change) {
            m_isCapped = isCapped;
            Q_EMIT isCappedChanged(isCapped);
            deliver(tree, change);
            setBusy(m_searching.has_value());
        });
}

LinkMenuSubject HistoryTable::menuSubject(const QList<TableRow> &rows) const
{
    return LinkMenuSubject::ofHistory(rows);
}

} // namespace roamlet
