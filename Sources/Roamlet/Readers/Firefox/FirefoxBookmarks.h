// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Bookmark.h"
#include "Model/ReadError.h"
#include "Model/Source.h"

#include <QList>

#include <expected>

namespace roamlet
{

class SQLiteSnapshot;

/// The bookmarks in a copy of a profile's "places.sqlite".
namespace FirefoxBookmarks
{

/// One tree for each of the browser's root folders that holds a bookmark, the bookmarks bar first.
std::expected<QList<BookmarkNode>, ReadError> read(const SQLiteSnapshot &places, const SharedSource &source);

} // namespace FirefoxBookmarks

} // namespace roamlet
