// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/RowPointers.h"
#include "Lists/VisitStrip.h"

#include <QString>

#include <optional>
#include <vector>

namespace roamlet
{

/// One section of a list.
template<typename Row>
struct RowGroup {
    /// The heading. It is also what makes a section the same one after a reload.
    QString title;
    /// The site of a section by site, so that the list can be narrowed to it.
    std::optional<QString> site;
    /// In the order of the list.
    RowPointers<Row> rows;
    /// When its rows were visited, of a section by day.
    VisitStrip visits = {};

    const QString &id() const { return title; }
};

/// Which section each row of a list belongs to, and how many rows each section gets: with it, every section
/// is filled in one go.
class SectionNumbers
{
public:
    explicit SectionNumbers(std::size_t rowCount) { m_sectionOfRow.reserve(rowCount); }

    /// A new section without rows.
    std::size_t addSection();
    /// Puts the next row into `section`.
    void addRow(std::size_t section);

    /// The sections' rows, section by section.
    template<typename Row>
    std::vector<RowPointers<Row>> distribute(const RowPointers<Row> &rows) const
    {
        std::vector<RowPointers<Row>> result(m_rowCounts.size());
        for (std::size_t section = 0; section < result.size(); ++section)
            result[section].reserve(m_rowCounts[section]);
        for (std::size_t row = 0; row < rows.size(); ++row)
            result[m_sectionOfRow[row]].push_back(rows[row]);
        return result;
    }

private:
    std::vector<std::size_t> m_sectionOfRow;
    std::vector<std::size_t> m_rowCounts;
};

} // namespace roamlet
