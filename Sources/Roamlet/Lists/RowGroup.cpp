// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/RowGroup.h"

namespace roamlet
{

std::size_t SectionNumbers::addSection()
{
    m_rowCounts.push_back(0);
    return m_rowCounts.size() - 1;
}

void SectionNumbers::addRow(std::size_t section)
{
    m_sectionOfRow.push_back(section);
    ++m_rowCounts[section];
}

} // namespace roamlet
