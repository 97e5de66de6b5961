// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QSet>
#include <QString>

namespace roamlet
{

class TableView;

/// Where the user is in a list: what a newer list is to have in common with it.
class ViewPlace
{
public:
    explicit ViewPlace(const TableView &view);

    /// Selects the same rows, as far as they can be seen.
    void restoreSelection(TableView &view) const;
    /// Leaves most of the rows in sight where they were. At the top, new rows come into sight.
    void restoreScrolling(TableView &view) const;

private:
    QSet<QString> m_selected;
    QString m_current;
    int m_column = 0;
    /// How far below the upper edge each row in sight begins.
    QHash<QString, int> m_inSight;
    bool m_isAtTop = true;
};

} // namespace roamlet
