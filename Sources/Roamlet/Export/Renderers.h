// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Bookmark.h"

#include <QList>
#include <QString>

namespace roamlet::BookmarkExport
{

/// The bookmarks file that every browser imports. Importers read it line by line: one item a line.
QString renderHtml(const QList<BookmarkNode> &tree);
/// An outline for notes and documents.
QString renderMarkdown(const QList<BookmarkNode> &tree);
/// A table for spreadsheets.
QString renderCsv(const QList<Bookmark> &flat);

} // namespace roamlet::BookmarkExport
