// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/BookmarkSearch.h"

#include "Library/Parallel.h"
#include "Lists/Refine.h"
#include "Readers/BrowserReader.h"

#include <vector>

namespace roamlet::BookmarkSearch
{

QList<Bookmark> run(const QString &words, const QList<Source> &sources, const ReadContext &context,
                    const ReadHandler &handle)
{
    std::vector<std::expected<BookmarkTrees, ReadErrors>> trees(static_cast<size_t>(sources.size()));
    forEachInParallel(trees.size(), [&](size_t index, CoreTurns &turns) {
        const CoreTurns::Turn turn(turns);
        trees[index] = BrowserReader::bookmarks(sources.at(static_cast<qsizetype>(index)), context);
    });
    QList<Bookmark> all;
    for (size_t i = 0; i < trees.size(); ++i) {
        handle(sources.at(static_cast<qsizetype>(i)), trees[i]);
        if (trees[i])
            all += BookmarkNode::flattened(trees[i]->roots);
    }
    QList<Bookmark> found;
    const auto rows = refine(allRows(all), words, {}, &Bookmark::searchKey, Collation(context.locale));
    for (const Bookmark *bookmark : rows.value_or(RowPointers<Bookmark>()))
        found.append(*bookmark);
    return found;
}

} // namespace roamlet::BookmarkSearch
