// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Tables/SortedTable.h"
#include "Lists/ListKeys.h"
#include "Model/HistoryItem.h"
#include "Model/HistoryQuery.h"

#include <memory>
#include <optional>
#include <stop_token>

namespace roamlet
{

/// The table of the pages that were visited, last or most often. It searches the browsers' databases.
class HistoryTable final : public SortedTable<HistoryItem>
{
    Q_OBJECT

public:
    enum class Mode { Recent, MostVisited };
    enum Column { Title, LastVisited, Visits, Source, ColumnCount };

    /// How long a typed text has to stand before the databases are searched for it.
    static constexpr std::chrono::milliseconds searchDelay{250};

    HistoryTable(const WindowServices &services, Mode mode, QWidget *parent = nullptr);
    ~HistoryTable() override;

    /// Whether the shown search stopped at its limit, so that there may be more.
    bool isCapped() const { return m_isCapped; }

Q_SIGNALS:
    /// A list is shown; comes before rowCountChanged.
    void isCappedChanged(bool isCapped);

protected:
    void refresh() override;
    LinkMenuSubject menuSubject(const QList<TableRow> &rows) const override;

private:
    struct Found {
        SearchKey key;
        HistoryResults results;
    };

    SearchKey searchKey() const;
    void search(const SearchKey &key);
    void stopSearching();
    void makeList();

    Mode m_mode;
    bool m_isCapped = false;
    /// The last search that ended.
    std::optional<Found> m_found;
    /// The search that waits or runs.
    std::optional<SearchKey> m_searching;
    /// Lives as long as the wait for typing to end.
    std::unique_ptr<QObject> m_wait;
    std::stop_source m_search;
    /// What is shown in the place of m_searching's answer.
    std::optional<HistoryResults> m_standIn;
};

} // namespace roamlet
