// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Library/SearchTexts.h"
#include "Library/Snapshot.h"
#include "Model/HistoryQuery.h"
#include "Readers/ReadContext.h"

#include <QList>

#include <memory>
#include <optional>
#include <stop_token>
#include <utility>

namespace roamlet
{

/// One question to the histories of some sources, with all that it takes to answer it. Any thread.
class HistorySearch
{
public:
    struct Answer {
        HistoryResults results;
        /// What was found in texts; null where that is nothing to go on with.
        std::shared_ptr<const SearchFindings> findings;
    };

    HistorySearch(HistoryQuery query, QList<Source> sources, Snapshot snapshot, SearchTexts texts,
                  ReadContext context)
        : m_query(std::move(query)),
          m_sources(std::move(sources)),
          m_snapshot(std::move(snapshot)),
          m_texts(std::move(texts)),
          m_context(std::move(context))
    {
    }

    /// Goes on from what an earlier search has found, where this one is within it.
    void narrow(std::shared_ptr<const SearchFindings> findings) { m_earlier = std::move(findings); }

    /// The answer, where memory has all of it. The files of every source still have to be as they were when
    /// the snapshot was read, which has the latest rows, or the source's text, which has all.
    std::optional<Answer> known() const;
    /// The answer; the databases are asked for what memory does not have.
    Answer run(const std::stop_token &stop) const;
    /// What the snapshot has of the latest rows, whatever has changed since; nothing for another question.
    std::optional<HistoryResults> standIn() const;

private:
    struct Remembered {
        Answer answer;
        /// The sources of which nothing is known.
        QList<Source> others;
    };

    bool isForLatest() const { return m_query == HistoryQuery::recent(); }
    Remembered remembered() const;
    Remembered latestRows() const;
    Remembered foundInTexts() const;
    HistoryResults snapshotRows(const QList<Source> &sources) const;

    HistoryQuery m_query;
    QList<Source> m_sources;
    Snapshot m_snapshot;
    SearchTexts m_texts;
    ReadContext m_context;
    std::shared_ptr<const SearchFindings> m_earlier;
};

} // namespace roamlet
