// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Browser.h"
#include "Model/Favicon.h"
#include "Model/HistoryQuery.h"
#include "Model/ReadError.h"
#include "Model/Source.h"
#include "Readers/BookmarkTrees.h"
#include "Readers/ReadContext.h"

#include <QList>
#include <QString>

#include <expected>
#include <memory>

namespace roamlet
{

class HistoryText;

} // namespace roamlet

/// The one door to the browsers' files: whoever reads a source asks here, and the browser's family answers.
/// Holds nothing and writes nothing; any thread.
namespace roamlet::BrowserReader
{

/// Everything that is shown of a source, each part read or not on its own.
struct Content {
    std::expected<BookmarkTrees, ReadErrors> bookmarks;
    /// The latest rows.
    std::expected<QList<HistoryItem>, ReadError> history;
    std::expected<Favicons, ReadError> favicons;
    /// Which of the two was read first: its problems are told first.
    bool isHistoryFirst = false;
};

/// The profiles of a browser, installation by installation, in the order in which they are listed. Where a
/// list of them cannot be read now, those of `known` that are still there stay.
QList<Source> profiles(Source::Kind browser, const ReadContext &context, const QList<Source> &known = {});
/// What takes more memory than there is, is a problem of this source, and no end of all others.
ReadError noMemory(const Source &source, const ReadContext &context);
/// The database that holds a source's history.
QString historyFile(const Source &source, const ReadContext &context);
/// The rows that match, in the query's order and at most as many as it says. Empty when there is no history.
std::expected<QList<HistoryItem>, ReadError> history(const Source &source, const HistoryQuery &query,
                                                     const ReadContext &context);
/// All rows of a source that a search could find, in memory; it answers as history() does as long as the
/// files stay as they are. While it is read, it takes about a fifth more than it takes then. Nothing (no
/// error) when it would take more than `mostBytes` or there is no memory, or when the database holds values
/// that only it can put in order: then history() is to be asked.
std::expected<std::shared_ptr<const HistoryText>, ReadError>
historyText(const Source &source, const ReadContext &context, size_t mostBytes);
/// The trees of a source's bookmarks.
std::expected<BookmarkTrees, ReadErrors> bookmarks(const Source &source, const ReadContext &context);
/// All parts of a source; a file that holds several of them is copied once.
Content content(const Source &source, const ReadContext &context);
/// Whether a change of the file of this name in a profile's folder is a change of what is read there.
bool isRead(QStringView fileName, Browser::Family family);

} // namespace roamlet::BrowserReader
