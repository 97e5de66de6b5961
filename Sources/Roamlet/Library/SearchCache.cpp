// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/SearchCache.h"

#include "Library/LibraryReading.h"
#include "Library/SourceRead.h"
#include "Platform/Clock.h"
#include "Platform/Confinement.h"
#include "Platform/Processes.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace roamlet
{

namespace
{

/// Those whose texts are missing, made of what the files no longer hold, or refused for want of room that
/// there is now.
QList<Source> outdated(QList<Source> sources, const SearchTexts &texts, size_t bytesLeft,
                       const ReadContext &context)
{
    sources.removeIf([&](const Source &source) {
        const auto known = texts.constFind(source.id());
        return known != texts.cend() && known->state == SourceRead::stateOfHistory(source, context) &&
               (known->text || bytesLeft <= known->refusedBytes);
    });
    return sources;
}

} // namespace

void SearchCache::expectSearch(const QList<Source> &sources)
{
    if (!m_isSearching)
        releaseLater();
    m_texts.removeIf([](SearchTexts::iterator known) {
        return !known->text && known->refusedBytes == std::numeric_limits<size_t>::max();
    });
    renew(sources);
}

void SearchCache::setSearching(bool isSearching, const QList<Source> &sources)
{
    if (isSearching == m_isSearching)
        return;
    m_isSearching = isSearching;
    m_release.reset();
    if (isSearching)
        expectSearch(sources);
    else
        releaseLater();
}

void SearchCache::renew(const QList<Source> &sources)
{
    // A late answer may come when all was let go already.
    if (!m_isSearching && !m_release)
        return;
    if (m_isBuilding)
        m_next = sources;
    else
        check(sources);
}

bool SearchCache::hasTexts() const
{
    return std::ranges::any_of(m_texts, [](const SearchText &known) { return known.text != nullptr; });
}

void SearchCache::check(const QList<Source> &sources)
{
    m_isBuilding = true;
    QSet<QString> ids;
    for (const Source &source : sources)
        ids.insert(source.id());
    m_texts.removeIf([&ids](SearchTexts::iterator text) { return !ids.contains(text.key()); });
    m_task = m_tasks.run(
        &m_context,
        [sources, texts = m_texts, left = bytesLeft(), context = LibraryReading::readContext(m_platform)](
            const std::stop_token &) { return outdated(sources, texts, left, context); },
        [this](const QList<Source> &found) {
            // They make room before the new ones come.
            for (const Source &source : found)
                m_texts.remove(source.id());
            m_waiting = found;
            buildNext();
        });
}

void SearchCache::buildNext()
{
    if (m_waiting.isEmpty()) {
        m_isBuilding = false;
        if (const auto next = std::exchange(m_next, {}))
            check(*next);
        return;
    }
    const Source source = m_waiting.takeFirst();
    m_task = m_tasks.run(
        &m_context,
        [source, mostBytes = bytesLeft(),
         context = LibraryReading::readContext(m_platform)](const std::stop_token &stop) {
            Confinement::ofReadingThread(context.folders.temporary);
            ReadContext stoppable = context;
            stoppable.stop = stop;
            return SearchText::of(source, mostBytes, stoppable);
        },
        [this, id = source.id()](const SearchText &text) {
            m_texts.insert(id, text);
            buildNext();
        });
}

size_t SearchCache::bytesLeft() const
{
    return roamlet::bytesLeft(m_texts, textLimit(m_platform.defaults));
}

void SearchCache::releaseLater()
{
    m_release = std::make_unique<QObject>();
    m_platform.clock.after(keptFor, m_release.get(), [this] { clear(); });
}

void SearchCache::clear()
{
    m_task.request_stop();
    m_isBuilding = false;
    m_isSearching = false;
    m_waiting.clear();
    m_next.reset();
    m_release.reset();
    if (m_texts.isEmpty())
        return;
    m_texts.clear();
    Processes::giveBackMemory();
}

} // namespace roamlet
