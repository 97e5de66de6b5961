// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Library/Snapshot.h"
#include "Model/HistoryQuery.h"
#include "Readers/ReadContext.h"

#include <QList>

#include <optional>
#include <stop_token>
#include <utility>

namespace roamlet
{

/// One question to the histories of some sources, with all that it takes to answer it. Any thread.
class HistorySearch
{
public:
    HistorySearch(HistoryQuery query, QList<Source> sources, Snapshot snapshot, ReadContext context)
        : m_query(std::move(query)),
          m_sources(std::move(sources)),
          m_snapshot(std::move(snapshot)),
          m_context(std::move(context))
    {
    }

    /// The answer, where memory has all of it: the snapshot has the latest rows of every source whose files
    /// are as they were when it was read.
    std::optional<HistoryResults> known() const;
    /// The answer; the databases are asked for what memory does not have.
    HistoryResults run(const std::stop_token &stop) const;
    /// What the snapshot has of the latest rows, whatever has changed since; nothing for another question.
    std::optional<HistoryResults> standIn() const;

private:
    struct Remembered {
        HistoryResults results;
        /// The sources of which nothing is known.
        QList<Source> others;
    };

    bool isForLatest() const { return m_query == HistoryQuery::recent(); }
    Remembered remembered() const;
    HistoryResults snapshotRows(const QList<Source> &sources) const;

    HistoryQuery m_query;
    QList<Source> m_sources;
    Snapshot m_snapshot;
    ReadContext m_context;
};

} // namespace roamlet
