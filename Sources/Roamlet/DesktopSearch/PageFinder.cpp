// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DesktopSearch/PageFinder.h"

#include "Library/LibraryReading.h"
#include "Library/ProfileChoice.h"
#include "Library/SourceRead.h"
#include "Readers/BrowserReader.h"

#include <QSet>

#include <algorithm>
#include <iterator>
#include <limits>
#include <new>
#include <utility>
#include <vector>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// The rows of a profile whose text is not in memory.
std::vector<RankedPage> askedOfDatabase(const Source &source, const QStringList &words,
                                        const ReadContext &context)
{
    std::vector<RankedPage> pages;
    const auto ranking = PageRanking::of(words);
    const auto rows = BrowserReader::history(source, {.words = words, .site = {}}, context);
    if (!ranking || !rows)
        return pages;
    for (const HistoryItem &item : *rows)
        pages.push_back({.item = item, .rank = ranking->rank(item)});
    return pages;
}

std::optional<std::vector<RankedPage>> foundIn(const HistoryText &text, const QStringList &words, size_t most)
{
    try {
        return text.best(words, most);
    } catch (const std::bad_alloc &) {
        return {};
    }
}

} // namespace

void PageFinder::findProfiles(const ReadContext &context)
{
    m_profiles = LibraryReading::allProfiles({}, context, m_profiles);
    // What could not be read may be readable again.
    m_texts.removeIf([](SearchTexts::iterator known) {
        return !known->text && known->refusedBytes == std::numeric_limits<size_t>::max();
    });
}

bool PageFinder::renew(const ProfileChoice &choice, size_t mostBytes, const ReadContext &context)
{
    m_sources = choice.ordered(choice.enabled(m_profiles));
    QSet<QString> ids;
    for (const Source &source : std::as_const(m_sources))
        ids.insert(source.id());
    m_texts.removeIf([&ids](SearchTexts::iterator text) { return !ids.contains(text.key()); });
    QList<Source> outdated;
    for (const Source &source : std::as_const(m_sources)) {
        const auto known = m_texts.constFind(source.id());
        if (known != m_texts.cend() && known->state == SourceRead::stateOfHistory(source, context))
            continue;
        // They make room before the new ones come.
        m_texts.remove(source.id());
        outdated.append(source);
    }
    for (const Source &source : std::as_const(outdated))
        m_texts.insert(source.id(), SearchText::of(source, bytesLeft(m_texts, mostBytes), context));
    return !outdated.isEmpty();
}

QList<HistoryItem> PageFinder::best(const QStringList &words, size_t most, const ReadContext &context) const
{
    std::vector<RankedPage> all;
    for (const Source &source : m_sources) {
        const SearchText known = m_texts.value(source.id());
        std::optional<std::vector<RankedPage>> pages;
        if (known.text)
            pages = foundIn(*known.text, words, most);
        // What could not be read a moment ago cannot be searched either.
        const bool isReadable = known.refusedBytes != std::numeric_limits<size_t>::max();
        if (!pages && isReadable)
            pages = askedOfDatabase(source, words, context);
        if (pages)
            std::ranges::move(*pages, std::back_inserter(all));
    }
    std::ranges::stable_sort(
        all, [](const RankedPage &left, const RankedPage &right) { return left.rank.isBefore(right.rank); });
    QList<HistoryItem> result;
    for (size_t i = 0; i < std::min(most, all.size()); ++i)
        result.append(std::move(all[i].item));
    return result;
}

std::optional<Source> PageFinder::source(const QString &id) const
{
    const auto found = std::ranges::find(m_sources, id, &Source::id);
    return found == m_sources.end() ? std::nullopt : std::optional(*found);
}

} // namespace roamlet
