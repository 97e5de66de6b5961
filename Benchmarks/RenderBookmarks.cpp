// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// How long does an export take, and does it grow only with the number of bookmarks?

#include "Export/BookmarkExport.h"

#include <benchmark/benchmark.h>

#include <limits>
#include <malloc.h>

namespace
{

using namespace roamlet;
using namespace Qt::StringLiterals;

/// Folders of a hundred bookmarks in folders of ten such folders.
QList<BookmarkNode> tree(qsizetype bookmarks)
{
    constexpr qsizetype perFolder = 100;
    constexpr qsizetype foldersPerShelf = 10;
    constexpr double firstDate = 1'700'000'000;
    qsizetype written = 0;
    const auto folder = [](const QString &title) {
        BookmarkNode node;
        node.title = title;
        node.children = QList<BookmarkNode>();
        return node;
    };
    QList<BookmarkNode> shelves;
    while (written < bookmarks) {
        BookmarkNode shelf = folder(u"Shelf & Co <%1>"_s.arg(shelves.size()));
        for (qsizetype i = 0; i < foldersPerShelf && written < bookmarks; ++i) {
            BookmarkNode inner = folder(u"Folder \"%1\""_s.arg(i));
            for (qsizetype j = 0; j < perFolder && written < bookmarks; ++j, ++written) {
                BookmarkNode leaf;
                leaf.title = u"Page %1, about [things] and \"others\""_s.arg(written);
                leaf.url =
                    u"https://www.site-%1.example/articles/%2?a=1&b=2"_s.arg(written % 500).arg(written);
                leaf.dateAdded = pointInTime(firstDate + static_cast<double>(written));
                leaf.source = Source::safari();
                inner.children->append(leaf);
            }
            shelf.children->append(inner);
        }
        shelves.append(shelf);
    }
    return shelves;
}

void render(benchmark::State &state, BookmarkExport::Format format)
{
    const QList<BookmarkNode> roots = tree(state.range(0));
    QList<Bookmark> flat;
    for (const BookmarkNode &root : roots)
        flat += root.flattened();
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(BookmarkExport::render(format, roots, flat));
}

constexpr int few = 10'000;
constexpr int many = 100'000;

} // namespace

BENCHMARK_CAPTURE(render, html, roamlet::BookmarkExport::Format::Html)->Arg(few)->Arg(many);
BENCHMARK_CAPTURE(render, markdown, roamlet::BookmarkExport::Format::Markdown)->Arg(few)->Arg(many);
BENCHMARK_CAPTURE(render, csv, roamlet::BookmarkExport::Format::Csv)->Arg(few)->Arg(many);

int main(int argc, char **argv)
{
    // Memory that was freed is kept, or only the large list would get fresh pages from the kernel each time.
    // There is only one thread yet.
    mallopt(M_MMAP_MAX, 0);                                     // NOLINT(concurrency-mt-unsafe)
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max()); // NOLINT(concurrency-mt-unsafe)
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
