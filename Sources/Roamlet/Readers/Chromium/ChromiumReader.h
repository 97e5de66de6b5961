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

/// Reads the browsers of Chromium's family, which keep the same files. Holds nothing and writes nothing; any
/// thread.
namespace roamlet::ChromiumReader
{

/// The profiles of one installation, "Default" first and the others by folder name. Empty when its list of
/// profiles cannot be read.
QList<Source> profiles(const BrowserFolders::Installation &installation, const ReadContext &context);
/// The folder of a profile.
QString folder(const Source &source, const ReadContext &context);
/// The database that holds a profile's history.
QString historyFile(const Source &source, const ReadContext &context);
/// The rows that match, in the query's order and at most as many as it says. Empty when there is no history.
std::expected<QList<HistoryItem>, ReadError> history(const Source &source, const HistoryQuery &query,
                                                     const ReadContext &context);
/// The rows that match in a private copy of that database.
std::expected<QList<HistoryItem>, ReadError> historyIn(const SQLiteSnapshot &copy, const Source &source,
                                                       const HistoryQuery &query);
/// All rows that a search could find; see BrowserReader::historyText.
std::expected<std::shared_ptr<const HistoryText>, ReadError>
historyText(const Source &source, const ReadContext &context, size_t mostBytes);
/// One tree for each of the browser's root folders that holds a bookmark, the bookmarks bar first; then those
/// that are kept in the user's account. The bookmarks of this computer and those of the account are two
/// files, and a damaged one does not hide the other.
std::expected<BookmarkTrees, ReadErrors> bookmarks(const Source &source, const ReadContext &context);

/// The names of the files in a profile's folder that hold its history and its bookmarks.
QStringList readFiles();

} // namespace roamlet::ChromiumReader
