// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Bookmark.h"
#include "Model/HistoryQuery.h"
#include "Model/ReadError.h"
#include "Model/Source.h"
#include "Readers/ReadContext.h"

#include <QList>
#include <QString>

#include <expected>

/// Reads Google Chrome and Microsoft Edge, which keep the same files. Holds nothing and writes nothing; any
/// thread.
namespace roamlet::ChromiumReader
{

/// The profiles of one browser, "Default" first, the others by folder name. Empty when the browser is absent
/// or its list of profiles cannot be read.
QList<Source> profiles(Source::Kind kind, const ReadContext &context);
/// The folder of a profile.
QString folder(const Source &source, const ReadContext &context);
/// The database that holds a profile's history.
QString historyFile(const Source &source, const ReadContext &context);
/// The rows that match, in the query's order and at most as many as it says. Empty when there is no history.
std::expected<QList<HistoryItem>, ReadError> history(const Source &source, const HistoryQuery &query,
                                                     const ReadContext &context);
/// One tree for each of the browser's root folders that holds a bookmark, the bookmarks bar first.
std::expected<QList<BookmarkNode>, ReadError> bookmarks(const Source &source, const ReadContext &context);

} // namespace roamlet::ChromiumReader
