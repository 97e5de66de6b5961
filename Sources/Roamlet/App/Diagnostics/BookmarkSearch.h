// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Bookmark.h"
#include "Model/Source.h"
#include "Readers/BookmarkTrees.h"
#include "Readers/ReadContext.h"

#include <QList>
#include <QString>

#include <expected>
#include <functional>

/// The bookmarks of several profiles, without a window.
namespace roamlet::BookmarkSearch
{

/// Gets what was read of each source, in the order of the sources, before anything is searched in it.
using ReadHandler =
    std::function<void(const Source &source, const std::expected<BookmarkTrees, ReadErrors> &trees)>;

/// The bookmarks that the list of bookmarks shows for these words, in its order: source by source, each as
/// its folders have them. Reads several sources at a time.
QList<Bookmark> run(const QString &words, const QList<Source> &sources, const ReadContext &context,
                    const ReadHandler &handle);

} // namespace roamlet::BookmarkSearch
