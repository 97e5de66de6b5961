// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Library/SearchTexts.h"
#include "Platform/BackgroundTasks.h"
#include "Platform/Platform.h"

#include <QList>
#include <QObject>

#include <chrono>
#include <memory>
#include <optional>
#include <stop_token>

namespace roamlet
{

/// Keeps the texts of the histories in memory while somebody searches, so that no database has to be asked.
/// They are built away from the main thread, on which everything else happens.
class SearchCache
{
public:
    /// How long the texts are kept once nobody searches any more.
    static constexpr std::chrono::minutes keptFor{1};
    static inline const QString limitKey = textLimitKey;
    static constexpr qint64 defaultLimit = defaultTextLimit;

    explicit SearchCache(const Platform &platform) : m_platform(platform) {}

    /// Somebody may search these sources soon. Builds the texts that are missing or no longer what the files
    /// hold, in this order and as far as the limit allows, and keeps them for a while.
    void expectSearch(const QList<Source> &sources);
    /// Somebody searches these sources, or does so no longer.
    void setSearching(bool isSearching, const QList<Source> &sources);
    /// A search has found texts missing or old. They are built if somebody still searches.
    void renew(const QList<Source> &sources);
    /// Lets go of everything at once.
    void clear();

    /// What there is now.
    const SearchTexts &texts() const { return m_texts; }
    /// Whether there is a text at all.
    bool hasTexts() const;
    /// Whether there will be more in a while.
    bool isBuilding() const { return m_isBuilding; }

private:
    /// Finds the texts that are missing or old, drops these and has all of them built.
    void check(const QList<Source> &sources);
    void buildNext();
    void releaseLater();
    /// How much memory there is for further texts.
    size_t bytesLeft() const;

    Platform m_platform;
    SearchTexts m_texts;
    /// Those whose texts are to be built.
    QList<Source> m_waiting;
    /// Those that are to be looked at once these are built.
    std::optional<QList<Source>> m_next;
    bool m_isSearching = false;
    bool m_isBuilding = false;
    std::stop_source m_task;
    /// Lives until the texts are let go.
    std::unique_ptr<QObject> m_release;
    QObject m_context;
    BackgroundTasks m_tasks;
};

} // namespace roamlet
