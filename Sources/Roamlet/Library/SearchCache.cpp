// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/SearchCache.h"

#include "Library/LibraryReading.h"
#include "Library/SourceRead.h"
#include "Platform/Clock.h"
#include "Platform/Processes.h"
#include "Platform/UserDefaults.h"
#include "Readers/BrowserReader.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace roamlet
{

namespace
{

constexpr size_t mebibyte = size_t{1} << 20;

/// Those whose texts are missing or made of what the files no longer hold.
QList<Source> outdated(QList<Source> sources, const QHash<QString, QString> &states,
                       const ReadContext &context)
{
    sources.removeIf([&](const Source &source) {
        const auto state = states.constFind(source.id());
        return state != states.cend() && *state == SourceRead::stateOfHistory(source, context);
    });
    return sources;
}

SearchText build(const Source &source, size_t mostBytes, const ReadContext &context)
{
    // Taken before the files are read: whatever happens to them since makes it another one.
    const QString state = SourceRead::stateOfHistory(source, context);
    auto text = BrowserReader::historyText(source, context, mostBytes);
    // What could not be read may be readable the next time.
    return text ? SearchText{std::move(*text), state} : SearchText{};
}

} // namespace

void SearchCache::expectSearch(const QList<Source> &sources)
{
    if (!m_isSearching)
        releaseLater();
    if (m_isBuilding)
        m_next = sources;
    else
        check(sources);
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

void SearchCache::check(const QList<Source> &sources)
{
    m_isBuilding = true;
    QSet<QString> ids;
    for (const Source &source : sources)
        ids.insert(source.id());
    m_texts.removeIf([&ids](SearchTexts::iterator text) { return !ids.contains(text.key()); });
    QHash<QString, QString> states;
    for (auto text = m_texts.cbegin(); text != m_texts.cend(); ++text)
        states.insert(text.key(), text->state);
    m_task = m_tasks.run(
        &m_context,
        [sources, states, context = LibraryReading::readContext(m_platform)](const std::stop_token &) {
            return outdated(sources, states, context);
        },
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
            ReadContext stoppable = context;
            stoppable.stop = stop;
            return build(source, mostBytes, stoppable);
        },
        [this, id = source.id()](SearchText text) {
            m_texts.insert(id, std::move(text));
            buildNext();
        });
}

size_t SearchCache::bytesLeft() const
{
    bool isNumber = false;
    const qint64 stored = m_platform.defaults.string(limitKey).value_or(QString()).toLongLong(&isNumber);
    const qint64 limit = isNumber ? std::clamp<qint64>(stored, 0, 1 << 20) : defaultLimit;
    size_t left = static_cast<size_t>(limit) * mebibyte;
    for (const SearchText &text : m_texts)
        left -= std::min(left, text.text ? text.text->byteCount() : 0);
    return left;
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
    if (m_texts.isEmpty())
        return;
    m_texts.clear();
    Processes::giveBackMemory();
}

} // namespace roamlet
