// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Tables/LinkTable.h"

namespace roamlet
{

/// The table of the pages that were visited, last or most often.
class HistoryTable final : public LinkTable
{
    Q_OBJECT

public:
    enum class Mode { Recent, MostVisited };
    enum Column { Title, LastVisited, Visits, Source, ColumnCount };

    HistoryTable(const WindowServices &services, Mode mode, QWidget *parent = nullptr);

    /// Whether the shown search stopped at its limit, so that there may be more.
    bool isCapped() const { return m_isCapped; }

Q_SIGNALS:
    /// A list is shown; comes before rowCountChanged.
    void isCappedChanged(bool isCapped);

protected:
    LinkMenuSubject menuSubject(const QList<TableRow> &rows) const override;
    void noteList(const ShownList &list) override;

private:
    static Kind kindOf(Mode mode);

    bool m_isCapped = false;
};

} // namespace roamlet
