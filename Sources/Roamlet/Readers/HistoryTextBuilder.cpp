// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/HistoryTextBuilder.h"

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

/// What the numbers of its places can say.
constexpr size_t longestText = std::numeric_limits<std::uint32_t>::max();

/// With the separator and the NUL.
size_t sizeOf(const HistoryTextRow &row)
{
    return row.url.size() + row.title.size() + 2;
}

} // namespace

void HistoryText::Builder::Part::measure(const HistoryTextRow &row)
{
    if (m_builder->m_pages == Pages::SeveralRows)
        measureShare(row);
    else
        addPlace(row);
}

/// Finds out whether the row is the first of its page that is found by its words.
void HistoryText::Builder::Part::measureShare(const HistoryTextRow &row)
{
    if (m_shares.empty() || m_page != row.id)
        m_titles.clear();
    m_page = row.id;
    // They are gone once the text is made; until then they may take as much again.
    if (m_shares.size() >= m_builder->m_mostBytes / sizeof(Share))
        throw std::bad_alloc();
    const auto [same, isNew] = m_titles.try_emplace(std::string(row.title), m_shares.size());
    if (!isNew) {
        const std::uint32_t number = m_shares[same->second].number;
        Place &place = m_places[number];
        const bool isNewest = row.order > place.order;
        m_shares.push_back({.number = number, .isNewest = isNewest});
        if (isNewest) {
            place.order = row.order;
            m_shares[same->second].isNewest = false;
            same->second = m_shares.size() - 1;
        }
        return;
    }
    const bool isOfSharedPage = m_titles.size() > 1;
    if (isOfSharedPage)
        m_areOfSharedPage.back() = true;
    m_areOfSharedPage.push_back(isOfSharedPage);
    m_shares.push_back({.number = static_cast<std::uint32_t>(m_places.size()), .isNewest = true});
    addPlace(row);
}

/// Makes room for so much text and so much memory in all.
void HistoryText::Builder::Part::count(size_t text, size_t bytes)
{
    if (bytes > m_builder->m_mostBytes - m_byteCount || text > longestText - m_textSize)
        throw std::bad_alloc();
    m_byteCount += bytes;
    m_textSize += text;
}

void HistoryText::Builder::Part::addPlace(const HistoryTextRow &row)
{
    // With room for the bit of a shared page.
    constexpr size_t perRow = sizeof(Row) + 2 * sizeof(std::uint32_t) + 1;
    const size_t size = sizeOf(row);
    count(size, size + perRow);
    m_places.push_back({.order = row.order,
                        .number = static_cast<std::uint32_t>(m_places.size()),
                        .size = static_cast<std::uint32_t>(size)});
}

void HistoryText::Builder::Part::sort()
{
    const auto isBefore = [ties = m_builder->m_ties](const Place &left, const Place &right) {
        if (left.order != right.order)
            return left.order > right.order;
        return ties == Ties::FirstRead ? left.number < right.number : left.number > right.number;
    };
    std::ranges::sort(m_places, isBefore);
}

void HistoryText::Builder::Part::put(const HistoryTextRow &row)
{
    const size_t index = m_putCount++;
    if (index >= measuredCount())
        return;
    const bool isShared = !m_shares.empty();
    if (isShared && !m_shares[index].isNewest)
        return;
    HistoryText &made = *m_builder->m_made;
    const RowNumber place = m_rowNumbers[isShared ? m_shares[index].number : index];
    m_isAsMeasured = m_isAsMeasured && sizeOf(row) == made.m_starts[place + 1] - made.m_starts[place];
    if (!m_isAsMeasured)
        return;
    char *end = made.m_text.data() + made.m_starts[place];
    end = std::ranges::copy(row.url, end).out;
    *end++ = static_cast<char>(row.searched);
    end = std::ranges::copy(row.title, end).out;
    *end = '\0';
    made.m_urlSizes[place] = static_cast<std::uint32_t>(row.url.size());
    made.m_rows[place] = {.id = row.id,
                          .lastVisit = row.lastVisit ? secondsSince1970(*row.lastVisit)
                                                     : std::numeric_limits<double>::quiet_NaN(),
                          .visitCount = row.visitCount};
    if (hasAmbiguousLetters(row.url) || hasAmbiguousLetters(row.title))
        m_broken.push_back(place);
}

std::shared_ptr<const HistoryText> HistoryText::empty(const SharedSource &source)
{
    Builder builder(source, Builder::Ties::FirstRead, Builder::Pages::OneRow, 1024);
    builder.arrange();
    return builder.finish();
}

HistoryText::Builder::Builder(SharedSource source, Ties ties, Pages pages, size_t mostBytes)
    : m_made(new HistoryText(std::move(source))), m_ties(ties), m_pages(pages), m_mostBytes(mostBytes)
{
    for (Part &part : m_parts)
        part.m_builder = this;
}

void HistoryText::Builder::arrange()
{
    size_t rows = 0;
    size_t text = 0;
    size_t bytes = 0;
    for (const Part &part : m_parts) {
        rows += part.m_places.size();
        text += part.m_textSize;
        bytes += part.m_byteCount;
    }
    if (bytes > m_mostBytes || text > longestText)
        throw std::bad_alloc();
    HistoryText &made = *m_made;
    made.m_text.resize(text);
    made.m_starts.resize(rows + 1);
    made.m_urlSizes.resize(rows);
    made.m_rows.resize(rows);
    for (Part &part : m_parts)
        part.m_rowNumbers.resize(part.m_places.size());
    if (m_pages == Pages::SeveralRows)
        made.m_areOfSharedPage.resize(rows);

    std::array<size_t, TableParts::most> taken{};
    std::uint32_t start = 0;
    const auto &[first, second] = m_parts;
    for (RowNumber row = 0; row < rows; ++row) {
        made.m_starts[row] = start;
        bool isOfSecond = taken[0] == first.m_places.size();
        if (!isOfSecond && taken[1] < second.m_places.size()) {
            const qint64 ofFirst = first.m_places[taken[0]].order;
            const qint64 ofSecond = second.m_places[taken[1]].order;
            isOfSecond = m_ties == Ties::FirstRead ? ofSecond > ofFirst : ofSecond >= ofFirst;
        }
        Part &part = m_parts[isOfSecond ? 1 : 0];
        const Part::Place &place = part.m_places[taken[isOfSecond ? 1 : 0]++];
        part.m_rowNumbers[place.number] = row;
        start += place.size;
        if (m_pages == Pages::SeveralRows)
            made.m_areOfSharedPage[row] = part.m_areOfSharedPage[place.number];
    }
    made.m_starts[rows] = start;
}

std::shared_ptr<const HistoryText> HistoryText::Builder::finish()
{
    for (const Part &part : m_parts) {
        if (!part.m_isAsMeasured || part.m_putCount != part.measuredCount())
            return nullptr;
        m_made->m_broken.insert(m_made->m_broken.end(), part.m_broken.begin(), part.m_broken.end());
    }
    std::ranges::sort(m_made->m_broken);
    m_made->m_broken.shrink_to_fit();
    if (std::ranges::find(m_made->m_areOfSharedPage, true) == m_made->m_areOfSharedPage.end())
        m_made->m_areOfSharedPage = {};
    if (m_made->byteCount() > m_mostBytes)
        throw std::bad_alloc();
    return std::move(m_made);
}

} // namespace roamlet
