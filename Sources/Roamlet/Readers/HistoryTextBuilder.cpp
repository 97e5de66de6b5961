// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/HistoryText.h"

#include <QByteArrayView>

#include <algorithm>
#include <cstring>
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
HistoryText::Builder::Entry *HistoryText::Builder::sameTitle(const HistoryTextRow &row)
{
    if (m_entries.empty() || m_entries.back().row.id != row.id) {
        m_titles.clear();
        return nullptr;
    }
    const auto found = m_titles.find(row.title);
    return found == m_titles.end() ? nullptr : &m_entries[found->second];
}

void HistoryText::Builder::add(const HistoryTextRow &row)
{
    const Row facts{.id = row.id,
                    .lastVisit = row.lastVisit ? secondsSince1970(*row.lastVisit)
                                               : std::numeric_limits<double>::quiet_NaN(),
                    .visitCount = row.visitCount};
    bool isOfSharedPage = false;
    if (m_pages == Pages::SeveralRows) {
        if (Entry *same = sameTitle(row)) {
            if (row.order > same->order) {
                same->order = row.order;
                same->row = facts;
            }
            return;
        }
        isOfSharedPage = !m_titles.empty();
        if (isOfSharedPage)
            m_entries.back().isOfSharedPage = true;
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
    auto *text = static_cast<char *>(m_texts.allocate(size, 1));
    char *end = std::ranges::copy(row.url, text).out;
    *end++ = static_cast<char>(row.searched);
    char *title = end;
    end = std::ranges::copy(row.title, title).out;
    *end = '\0';
    if (m_pages == Pages::SeveralRows)
        m_titles.emplace(std::string_view(title, row.title.size()), m_entries.size());
    m_entries.push_back({.order = row.order,
                         .row = facts,
                         .text = text,
                         .urlSize = static_cast<std::uint32_t>(row.url.size()),
                         .size = static_cast<std::uint32_t>(size),
                         .number = static_cast<std::uint32_t>(m_entries.size()),
                         .isOfSharedPage = isOfSharedPage,
                         .isBroken = isBroken});
}

std::shared_ptr<const HistoryText> HistoryText::Builder::finish(const std::stop_token &stop)
{
    std::ranges::sort(m_entries, [this](const Entry &left, const Entry &right) {
        if (left.order != right.order)
            return left.order > right.order;
        return m_ties == Ties::FirstRead ? left.number < right.number : left.number > right.number;
    });
    HistoryText &made = *m_made;
    made.m_text = std::make_unique_for_overwrite<char[]>(m_textSize);
    made.m_starts.reserve(m_entries.size() + 1);
    made.m_urlSizes.reserve(m_entries.size());
    made.m_rows.reserve(m_entries.size());
    made.m_broken.reserve(static_cast<size_t>(std::ranges::count_if(m_entries, &Entry::isBroken)));
    if (std::ranges::any_of(m_entries, &Entry::isOfSharedPage))
        made.m_areOfSharedPage.reserve(m_entries.size());
    std::uint32_t place = 0;
    for (const Entry &entry : m_entries) {
        constexpr size_t rowsPerCheck = 4096;
        if (made.m_rows.size() % rowsPerCheck == 0 && stop.stop_requested())
            return nullptr;
        std::memcpy(made.m_text.get() + place, entry.text, entry.size);
        if (entry.isBroken)
            made.m_broken.push_back(made.rowCount());
        if (made.m_areOfSharedPage.capacity() > 0)
            made.m_areOfSharedPage.push_back(entry.isOfSharedPage);
        made.m_starts.push_back(place);
        made.m_urlSizes.push_back(entry.urlSize);
        made.m_rows.push_back(entry.row);
        place += entry.size;
    }
    made.m_starts.push_back(place);
    return std::move(m_made);
}

} // namespace roamlet
