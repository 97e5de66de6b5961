// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/HistoryTable.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

QList<TableColumn> historyColumns()
{
    using Content = TableColumn::Content;
    return {{u"title"_s, HistoryTable::tr("Title"), Content::Title, 40},
            {u"lastVisited"_s, HistoryTable::tr("Last Visited"), Content::Date, 16},
            //: The column that says how often a page was visited.
            {u"visits"_s, HistoryTable::tr("Visits"), Content::Visits, 9},
            //: The column that says from which browser and profile a page is.
            {u"source"_s, HistoryTable::tr("Source"), Content::Source, 26}};
}

} // namespace

HistoryTable::HistoryTable(const WindowServices &services, Mode mode, QWidget *parent)
    : LinkTable(services, kindOf(mode), parent)
{
}

LinkTable::Kind HistoryTable::kindOf(Mode mode)
{
    const bool isRecent = mode == Mode::Recent;
    return {.mode = isRecent ? ListWish::Mode::Recent : ListWish::Mode::MostVisited,
            .objectName = isRecent ? u"historyTable"_s : u"mostVisitedTable"_s,
            .accessibleName = isRecent ? tr("History") : tr("Most Visited"),
            .layoutKey = isRecent ? u"columns.history"_s : u"columns.mostVisited"_s,
            .shape = TableView::Shape::List,
            .columns = historyColumns(),
            .order = {{isRecent ? SortColumn::Date : SortColumn::Visits, SortOrder::Reverse}},
            .nothingText = tr("No history yet")};
}

void HistoryTable::noteList(const ShownList &list)
{
    m_isCapped = list.isCapped;
    Q_EMIT isCappedChanged(m_isCapped);
}

LinkMenuSubject HistoryTable::menuSubject(const QList<TableRow> &rows) const
{
    return LinkMenuSubject::ofHistory(rows);
}

} // namespace roamlet
