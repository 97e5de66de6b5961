// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/HistoryQuery.h"
#include "Model/ReadError.h"
#include "Model/Source.h"
#include "Readers/BookmarkTrees.h"
#include "Readers/ReadContext.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <expected>
#include <memory>

namespace roamlet
{

class HistoryText;
class SQLiteSnapshot;

} // namespace roamlet

/// Reads Safari. Holds nothing and writes nothing; any thread.
namespace roamlet::SafariReader
{

/// The default profile, then the named ones in Safari's order. Never empty: where the named profiles cannot
/// be read, there is the default one.
QList<Source> profiles(const ReadContext &context);
/// The database that holds a profile's history.
QString historyFile(const Source &source, const ReadContext &context);
/// The rows that match, one for each page with its newest visit, in the query's order and at most as many as
/// it says. A named profile without history is empty; the default one must have a history.
std::expected<QList<HistoryItem>, ReadError> history(const Source &source, const HistoryQuery &query,
                                                     const ReadContext &context);
/// The rows that match in a private copy of that database.
std::expected<QList<HistoryItem>, ReadError> historyIn(const SQLiteSnapshot &copy, const Source &source,
                                                       const HistoryQuery &query);
/// All rows that a search could find; see BrowserReader::historyText.
std::expected<std::shared_ptr<const HistoryText>, ReadError>
historyText(const Source &source, const ReadContext &context, size_t mostBytes);
/// The part of Safari's one bookmark file that belongs to `source`. The Reading List is never in it.
std::expected<BookmarkTrees, ReadErrors> bookmarks(const Source &source, const ReadContext &context);

/// The names of the files in a profile's folder that hold its history and its bookmarks.
QStringList readFiles();

} // namespace roamlet::SafariReader
