// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/HistoryText.h"

#include <QByteArrayView>

#include <algorithm>
#include <limits>
#include <new>
#include <utility>

namespace roamlet
{

namespace
{

/// Whether LIKE may take bytes of this text for letters that others spell in other bytes: it reads broken
/// UTF-8 in its own way, and takes the last numbers before U+10000 and what it cannot read for one letter.
bool hasAmbiguousLetters(std::string_view text)
{
    return !QByteArrayView(text.data(), static_cast<qsizetype>(text.size())).isValidUtf8() ||
           text.find("\xEF\xBF") != std::string_view::npos;
}

} // namespace

HistoryText::Builder::Builder(Source source, Ties ties, Pages pages, size_t mostBytes)
    : m_made(new HistoryText(std::move(source))), m_ties(ties), m_pages(pages), m_bytesLeft(mostBytes)
{
}

/// The row of the same page that can be found by the same words, if there is one.
HistoryText::Builder::Place *HistoryText::Builder::sameTitle(const HistoryTextRow &row)
{
    if (m_places.empty() || m_places.back().entry->row.id != row.id) {
        m_titles.clear();
        return nullptr;
    }
    const auto found = m_titles.find(row.title);
    return found == m_titles.end() ? nullptr : &m_places[found->second];
}

void HistoryText::Builder::add(const HistoryTextRow &row)
{
    const Row facts{.id = row.id,
                    .lastVisit = row.lastVisit ? secondsSince1970(*row.lastVisit)
                                               : std::numeric_limits<double>::quiet_NaN(),
                    .visitCount = row.visitCount};
    bool isOfSharedPage = false;
    if (m_pages == Pages::SeveralRows) {
        if (Place *same = sameTitle(row)) {
            if (row.order > same->order) {
                same->order = row.order;
                same->entry->row = facts;
            }
            return;
        }
        isOfSharedPage = !m_titles.empty();
        if (isOfSharedPage)
            m_places.back().entry->isOfSharedPage = true;
    }

    const bool isBroken = hasAmbiguousLetters(row.url) || hasAmbiguousLetters(row.title);
    // With room for the bit of a shared page.
    const size_t perRow = sizeof(Row) + 2 * sizeof(std::uint32_t) + (isBroken ? sizeof(RowNumber) : 0) + 1;
    const size_t size = row.url.size() + row.title.size() + 2;
    const bool isAddressable = m_textSize + size <= std::numeric_limits<std::uint32_t>::max();
    if (size + perRow > m_bytesLeft || !isAddressable)
        throw std::bad_alloc();
    m_bytesLeft -= size + perRow;
    m_textSize += size;
    auto *entry = new (m_entries.allocate(sizeof(Entry) + size, alignof(Entry)))
        Entry{.row = facts,
              .urlSize = static_cast<std::uint32_t>(row.url.size()),
              .size = static_cast<std::uint32_t>(size),
              .number = static_cast<std::uint32_t>(m_places.size()),
              .isOfSharedPage = isOfSharedPage,
              .isBroken = isBroken};
    char *end = std::ranges::copy(row.url, entry->text()).out;
    *end++ = static_cast<char>(row.searched);
    char *title = end;
    end = std::ranges::copy(row.title, title).out;
    *end = '\0';
    if (m_pages == Pages::SeveralRows)
        m_titles.emplace(std::string_view(title, row.title.size()), m_places.size());
    m_places.push_back({.order = row.order, .entry = entry});
}

std::shared_ptr<const HistoryText> HistoryText::Builder::finish(const std::stop_token &stop)
{
    std::ranges::sort(m_places, [this](const Place &left, const Place &right) {
        if (left.order != right.order)
            return left.order > right.order;
        return m_ties == Ties::FirstRead ? left.entry->number < right.entry->number
                                         : left.entry->number > right.entry->number;
    });
    HistoryText &made = *m_made;
    made.m_text.reserve(m_textSize + 1);
    made.m_starts.reserve(m_places.size() + 1);
    made.m_urlSizes.reserve(m_places.size());
    made.m_rows.reserve(m_places.size());
    for (size_t row = 0; row < m_places.size(); ++row) {
        constexpr size_t rowsPerCheck = 4096;
        if (row % rowsPerCheck == 0 && stop.stop_requested())
            return nullptr;
        // They lie all over the memory: without this, each would be waited for.
        constexpr size_t rowsAhead = 16;
        if (row + rowsAhead < m_places.size())
            __builtin_prefetch(m_places[row + rowsAhead].entry);
        const Entry &each = *m_places[row].entry;
        if (each.isBroken)
            made.m_broken.push_back(made.rowCount());
        if (each.isOfSharedPage) {
            made.m_areOfSharedPage.resize(m_places.size());
            made.m_areOfSharedPage[made.rowCount()] = true;
        }
        made.m_starts.push_back(static_cast<std::uint32_t>(made.m_text.size()));
        made.m_text.insert(made.m_text.end(), each.text(), each.text() + each.size);
        made.m_urlSizes.push_back(each.urlSize);
        made.m_rows.push_back(each.row);
    }
    made.m_starts.push_back(static_cast<std::uint32_t>(m_textSize));
    made.m_broken.shrink_to_fit();
    return std::move(m_made);
}

} // namespace roamlet
