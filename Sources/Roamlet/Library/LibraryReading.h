// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Library/Snapshot.h"
#include "Model/HistoryQuery.h"
#include "Model/ReadError.h"
#include "Platform/Platform.h"
#include "Readers/ReadContext.h"

#include <QList>
#include <QSet>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

/// Reads all browsers, several at a time. Holds no state: any thread, with windows or without.
namespace roamlet::LibraryReading
{

/// What a reading pass is to do.
struct Request {
    /// The ids of the sources that are switched off.
    QSet<QString> disabled;
    /// The ids of the sources to read anew; absent for all.
    std::optional<QSet<QString>> only;
    /// What the others are taken from, and what a source keeps where it cannot be read.
    Snapshot previous;
};

/// Gets a source that could not be read, and why.
using ProblemHandler = std::function<void(const Source &source, const ReadError &error)>;

/// What the readers need to know about this platform, with no stop requested.
ReadContext readContext(const Platform &platform);
/// Every profile of every browser, in the order of the browsers: Safari's (the known ones where given), then
/// Chrome's, Edge's and so on. A machine without any Safari data has no Safari profile. Of a list that cannot
/// be read now, the profiles among `known` stay.
QList<Source> allProfiles(const std::optional<QList<Source>> &knownSafari, const ReadContext &context,
                          const QList<Source> &known = {});
/// Reads the enabled profiles in parallel, as many at a time as there are cores. Never fails: what cannot be
/// read becomes a problem text.
Snapshot readAll(const Request &request, const ReadContext &context, const Clock &clock);
/// Runs a query on these sources in parallel. The rows come unsorted, source by source as they finish; a
/// source that cannot be read has none. In the end `report` gets these, on the caller's thread and in the
/// order of `sources`.
HistoryResults history(const HistoryQuery &query, const QList<Source> &sources, const ReadContext &context,
                       const ProblemHandler &report = {});
/// The answers of several sources, each in the query's order, as one.
HistoryResults merged(const HistoryQuery &query, std::vector<QList<HistoryItem>> parts);

} // namespace roamlet::LibraryReading
