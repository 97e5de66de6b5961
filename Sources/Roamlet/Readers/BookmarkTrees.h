// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Bookmark.h"
#include "Model/ReadError.h"

#include <QList>

namespace roamlet
{

/// Why nothing could be read, for each file that was tried.
using ReadErrors = QList<ReadError>;

/// The bookmarks of a source.
struct BookmarkTrees {
    QList<BookmarkNode> roots;
    /// Why a part of them is missing, for each file that could not be read beside others that could.
    // The compiler wants it from whoever names only some of the members.
    // NOLINTNEXTLINE(readability-redundant-member-init)
    ReadErrors problems = {};
    /// Whether the browser keeps the bookmarks of this profile in encrypted form only.
    bool areEncrypted = false;
};

} // namespace roamlet
