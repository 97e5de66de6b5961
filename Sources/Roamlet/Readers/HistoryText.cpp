// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/HistoryText.h"

#include "Model/LowerCase.h"
#include "Model/Utf8.h"
#include "Readers/Files/FoldedNeedle.h"

#include <QByteArray>
#include <QSet>

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <ranges>
#include <string>
#include <tuple>
#include <utility>

namespace roamlet
{

namespace
{

/// Far below what SQLite takes: 50,000 bytes in a pattern, 1,000 terms in a condition.
constexpr qsizetype longestPattern = 10'000;
constexpr qsizetype mostWords = 500;

constexpr char likeEscape = '\\';

std::string withPlainSigmaBytes(std::string text)
{
    constexpr std::string_view finalSigma = "\xCF\x82";
    for (size_t place = text.find(finalSigma); place != std::string::npos;
         place = text.find(finalSigma, place))
        text[place + 1] = '\x83';
    return text;
}

} // namespace

/// A text that is looked for: as LIKE has it, and as it is found quickly.
struct HistoryText::Literal {
    FoldedNeedle needle;
    QByteArray pattern;
    Part part = Part::All;
    FoldedNeedle::Sigmas sigmas = FoldedNeedle::Sigmas::Apart;

    /// Nothing for a pattern that is left to the database.
    static std::optional<Literal> of(const QString &pattern, Part part,
                                     FoldedNeedle::Sigmas sigmas = FoldedNeedle::Sigmas::Apart)
    {
        const QByteArray bytes = pattern.toUtf8();
        auto needle = FoldedNeedle::ofPattern(bytes.toStdString(), likeEscape, sigmas);
        if (!needle || bytes.size() > longestPattern)
            return {};
        return Literal{.needle = std::move(*needle), .pattern = bytes, .part = part, .sigmas = sigmas};
    }
};

/// What a row has to hold: all words, and one of the addresses of the site, if there are any.
struct HistoryText::Condition {
    std::vector<Literal> words;
    std::vector<Literal> site;
};

std::optional<std::vector<HistoryText::Literal>> HistoryText::wordsOf(const HistoryQuery &query)
{
    const QStringList patterns = query.patterns();
    if (patterns.size() > mostWords)
        return {};
    std::vector<Literal> result;
    for (qsizetype i = 0; i < patterns.size(); ++i) {
        const bool isWord = i < query.words.size();
        const auto sigmas =
            isWord && hasSigma(query.words[i]) ? FoldedNeedle::Sigmas::AsOne : FoldedNeedle::Sigmas::Apart;
        std::optional<Literal> literal = Literal::of(patterns[i], isWord ? Part::All : Part::Url, sigmas);
        if (!literal)
            return {};
        result.push_back(std::move(*literal));
    }
    return result;
}

std::optional<HistoryText::Answer> HistoryText::search(const HistoryQuery &query,
                                                       const RowNumbers *among) const
{
    if (query.visited.isLimited() || query.rowID)
        return {};
    const std::optional<Condition> condition = conditionOf(query);
    if (!condition)
        return {};
    Answer answer;
    if (among != nullptr) {
        answer.rows = *among;
        for (const Literal &word : condition->words)
            answer.rows = findAmong(word, answer.rows, {0, rowCount()});
        std::erase_if(answer.rows, [&](RowNumber row) { return !isOfSite(row, *condition); });
    } else {
        answer.hasAllRows = findInSlices(query, *condition, answer.rows);
    }
    answer.results = results(query, answer.rows);
    return answer;
}

std::optional<std::vector<RankedPage>> HistoryText::best(const QStringList &words, size_t most) const
{
    const HistoryQuery query{.words = words, .site = {}, .limit = -1};
    const std::optional<Condition> condition = conditionOf(query);
    const std::optional<PageRanking> ranking = PageRanking::of(words);
    if (!condition || !ranking)
        return {};
    RowNumbers rows;
    findInSlices(query, *condition, rows);

    struct Candidate {
        PageRank rank;
        RowNumber row;
    };
    const auto isBefore = [](const Candidate &left, const Candidate &right) {
        return left.rank.isBefore(right.rank);
    };
    // The best ones so far, the worst of them on top.
    std::vector<Candidate> chosen;
    for (const RowNumber row : m_areOfSharedPage.empty() ? rows : withoutRepeated(rows)) {
        const Row &facts = m_rows[row];
        if (std::isnan(facts.lastVisit))
            continue;
        const std::string_view url = text().substr(m_starts[row], m_urlSizes[row]);
        const Candidate candidate{
            .rank = ranking->rank(url, titleBytes(row), pointInTime(facts.lastVisit), facts.visitCount),
            .row = row};
        if (chosen.size() >= most) {
            if (chosen.empty() || !isBefore(candidate, chosen.front()))
                continue;
            std::ranges::pop_heap(chosen, isBefore);
            chosen.pop_back();
        }
        chosen.push_back(candidate);
        std::ranges::push_heap(chosen, isBefore);
    }
    std::ranges::sort_heap(chosen, isBefore);
    std::vector<RankedPage> result;
    for (const Candidate &candidate : chosen)
        result.push_back({.item = item(candidate.row), .rank = candidate.rank});
    return result;
}

/// What a search finds of a row's title.
std::string_view HistoryText::titleBytes(RowNumber row) const
{
    if (searched(row) != HistoryTextRow::Searched::All)
        return {};
    const size_t start = urlEnd(row) + 1;
    return text().substr(start, m_starts[row + 1] - 1 - start);
}

/// The words, those first that the fewest rows have, and the site.
std::optional<HistoryText::Condition> HistoryText::conditionOf(const HistoryQuery &query) const
{
    std::optional<std::vector<Literal>> words = wordsOf(query);
    if (!words)
        return {};
    Condition condition;
    // A page of the site has one of these in its address.
    condition.site.assign(words->begin() + query.words.size(), words->end());
    words->erase(words->begin() + query.words.size(), words->end());
    if (query.site && !query.site->isEmpty()) {
        std::optional<Literal> site = Literal::of(HistoryQuery::pattern(*query.site), Part::Url);
        if (!site)
            return {};
        words->push_back(std::move(*site));
    }
    // What the newest rows have seldom, all have seldom.
    constexpr RowNumber sampleSize = 2000;
    std::vector<std::tuple<size_t, qsizetype, const Literal *>> byRarity;
    for (const Literal &word : *words) {
        const size_t found =
            words->size() == 1 ? 0 : findAll(word, {0, std::min(sampleSize, rowCount())}).size();
        byRarity.emplace_back(found, -static_cast<qsizetype>(word.needle.size()), &word);
    }
    std::ranges::sort(byRarity);
    for (const auto &[found, size, word] : byRarity)
        condition.words.push_back(*word);
    return condition;
}

/// Appends the rows that match, the newest first, and stops where there are as many as the query wants: of a
/// letter that all rows have, nobody needs to see all of them. Returns whether it has all.
bool HistoryText::findInSlices(const HistoryQuery &query, const Condition &condition, RowNumbers &rows) const
{
    const bool wantsAll = query.order == HistoryQuery::Order::MostVisited || query.limit < 0;
    // Several rows of one page are only one that is shown.
    qint64 pages = 0;
    RowNumber size = wantsAll ? rowCount() : 4096;
    for (RowNumber begin = 0; begin < rowCount();) {
        const Slice slice{begin, begin + std::min(size, rowCount() - begin)};
        RowNumbers found;
        if (condition.words.empty()) {
            std::ranges::copy(std::views::iota(slice.begin, slice.end), std::back_inserter(found));
        } else {
            found = findAll(condition.words.front(), slice);
            for (size_t i = 1; i < condition.words.size(); ++i)
                found = findAmong(condition.words[i], found, slice);
        }
        std::erase_if(found, [&](RowNumber row) { return !isOfSite(row, condition); });
        pages += std::ranges::count_if(
            found, [this](RowNumber row) { return m_areOfSharedPage.empty() || !m_areOfSharedPage[row]; });
        if (rows.empty())
            rows = std::move(found);
        else
            rows.insert(rows.end(), found.begin(), found.end());
        begin = slice.end;
        size = std::min(size, rowCount() / 2) * 2;
        if (!wantsAll && pages >= query.limit)
            return begin == rowCount();
    }
    return true;
}

HistoryText::RowNumbers HistoryText::findAll(const Literal &literal, Slice slice) const
{
    RowNumbers found;
    const size_t textEnd = m_starts[slice.end];
    RowNumber row = slice.begin;
    size_t place = literal.needle.find(text(), m_starts[row], textEnd);
    while (place != FoldedNeedle::nowhere) {
        row = rowAt(place, row);
        if (isHit(place, row, literal))
            found.push_back(row);
        ++row;
        place = literal.needle.find(text(), m_starts[row], textEnd);
    }
    if (literal.needle.isAscii() || m_broken.empty())
        return found;
    std::erase_if(found, [this](RowNumber candidate) { return isBroken(candidate); });
    const auto regular = static_cast<std::ptrdiff_t>(found.size());
    for (auto broken = std::ranges::lower_bound(m_broken, slice.begin);
         broken != m_broken.end() && *broken < slice.end; ++broken) {
        if (isLike(*broken, literal))
            found.push_back(*broken);
    }
    std::ranges::inplace_merge(found, found.begin() + regular);
    return found;
}

/// Of the rows `among`, which lie in the slice, those that hold the literal.
HistoryText::RowNumbers HistoryText::findAmong(const Literal &literal, const RowNumbers &among,
                                               Slice slice) const
{
    RowNumbers found;
    // Where most rows are left, going through all is quicker than from one to the next.
    constexpr size_t few = 8;
    if (among.size() > (slice.end - slice.begin) / few) {
        const RowNumbers all = findAll(literal, slice);
        std::ranges::set_intersection(all, among, std::back_inserter(found));
    } else {
        std::ranges::copy_if(among, std::back_inserter(found),
                             [&](RowNumber row) { return isFoundIn(row, literal); });
    }
    return found;
}

bool HistoryText::isOfSite(RowNumber row, const Condition &condition) const
{
    return condition.site.empty() || std::ranges::any_of(condition.site, [&](const Literal &pattern) {
               return isFoundIn(row, pattern);
           });
}

bool HistoryText::isFoundIn(RowNumber row, const Literal &literal) const
{
    if (!literal.needle.isAscii() && isBroken(row))
        return isLike(row, literal);
    const size_t end = literal.part == Part::Url ? urlEnd(row) : m_starts[row + 1];
    const size_t place = literal.needle.find(text(), m_starts[row], end);
    return place != FoldedNeedle::nowhere && isHit(place, row, literal);
}

/// As the database itself would compare.
bool HistoryText::isLike(RowNumber row, const Literal &literal) const
{
    const char *start = m_text.data() + m_starts[row];
    std::string text;
    if (literal.part == Part::Url)
        text.assign(start, m_urlSizes[row]);
    else if (searched(row) == HistoryTextRow::Searched::Nothing)
        return false;
    else
        text = start;
    if (literal.sigmas == FoldedNeedle::Sigmas::AsOne)
        text = withPlainSigmaBytes(std::move(text));
    return sqlite3_strlike(literal.pattern.constData(), text.c_str(), likeEscape) == 0;
}

/// Whether the first place in a row where the bytes are is one that is searched.
bool HistoryText::isHit(size_t place, RowNumber row, const Literal &literal) const
{
    const size_t end = urlEnd(row);
    if (literal.part == Part::All && searched(row) != HistoryTextRow::Searched::Url)
        return searched(row) == HistoryTextRow::Searched::All;
    return place + literal.needle.size() <= end;
}

bool HistoryText::isBroken(RowNumber row) const
{
    return std::ranges::binary_search(m_broken, row);
}

/// The row to which a place belongs, which is `from` or, often, one soon after it.
HistoryText::RowNumber HistoryText::rowAt(size_t place, RowNumber from) const
{
    size_t low = from;
    size_t step = 1;
    while (low + step < m_rows.size() && m_starts[low + step] <= place) {
        low += step;
        step *= 2;
    }
    const size_t high = std::min(low + step, m_rows.size());
    const auto begin = m_starts.begin();
    const auto next = std::upper_bound(begin + static_cast<std::ptrdiff_t>(low),
                                       begin + static_cast<std::ptrdiff_t>(high), place);
    return static_cast<RowNumber>(next - begin - 1);
}

HistoryText::RowNumbers HistoryText::withoutRepeated(const RowNumbers &rows) const
{
    QSet<qint64> sharedPages;
    RowNumbers once;
    std::ranges::remove_copy_if(rows, std::back_inserter(once), [&](RowNumber row) {
        if (!m_areOfSharedPage[row])
            return false;
        const qsizetype known = sharedPages.size();
        sharedPages.insert(m_rows[row].id);
        return sharedPages.size() == known;
    });
    return once;
}

HistoryResults HistoryText::results(const HistoryQuery &query, const RowNumbers &rows) const
{
    // The newest row of a page that matches stands for it.
    RowNumbers once;
    if (!m_areOfSharedPage.empty())
        once = withoutRepeated(rows);
    const RowNumbers &all = m_areOfSharedPage.empty() ? rows : once;
    const size_t limit =
        query.limit < 0 ? all.size() : std::min(all.size(), static_cast<size_t>(query.limit));
    RowNumbers chosen;
    if (query.order == HistoryQuery::Order::Latest) {
        chosen.assign(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(limit));
    } else {
        const auto isBefore = [this](RowNumber left, RowNumber right) {
            const qint64 leftCount = m_rows[left].visitCount;
            const qint64 rightCount = m_rows[right].visitCount;
            return leftCount != rightCount ? leftCount > rightCount : left < right;
        };
        chosen.resize(limit);
        std::ranges::partial_sort_copy(all, chosen, isBefore);
    }
    HistoryResults results;
    results.items.reserve(static_cast<qsizetype>(chosen.size()));
    for (const RowNumber row : chosen) {
        if (!std::isnan(m_rows[row].lastVisit))
            results.items.append(item(row));
    }
    results.isCapped = query.isSearch() && results.items.size() >= query.limit;
    return results;
}

HistoryItem HistoryText::item(RowNumber row) const
{
    const auto piece = [this](size_t start, size_t end) {
        return utf8Text({m_text.data() + start, static_cast<qsizetype>(end - start)});
    };
    const Row &facts = m_rows[row];
    return HistoryItem::ofRow(facts.id, piece(urlEnd(row) + 1, m_starts[row + 1] - 1),
                              piece(m_starts[row], urlEnd(row)), pointInTime(facts.lastVisit),
                              facts.visitCount, m_source);
}

size_t HistoryText::byteCount() const
{
    return m_starts.back() + m_starts.capacity() * sizeof(m_starts.front()) +
           m_urlSizes.capacity() * sizeof(std::uint32_t) + m_rows.capacity() * sizeof(Row) +
           m_broken.capacity() * sizeof(RowNumber) + m_areOfSharedPage.capacity() / 8;
}

} // namespace roamlet
