// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// How long does it take until a long list stands on the screen, searched, sorted and cut into sections?

#include "Lists/DayGroups.h"
#include "Lists/Refine.h"
#include "Lists/SiteGroups.h"

#include <QStringList>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <limits>
#include <malloc.h>
#include <random>

namespace
{

using namespace roamlet;
using namespace Qt::StringLiterals;

/// A fixed moment: 2026-05-09 06:13:20 UTC.
constexpr PointInTime now = pointInTime(1'778'307'200);

/// Four years of browsing on `siteCount` sites in ten profiles, in the order of the visits.
QList<HistoryItem> history(qsizetype count, int siteCount)
{
    const QStringList subjects{u"Weather in"_s,    u"How to repair"_s, u"Trains from"_s, u"Recipe for"_s,
                               u"Discussion of"_s, u"Prices of"_s,     u"Pictures of"_s, u"The history of"_s};
    std::mt19937 random(42);
    QList<Source> sources;
    for (int i = 1; i <= 10; ++i) {
        sources.append({.kind = i % 2 == 0 ? Source::Kind::Chrome : Source::Kind::Edge,
                        .profile = u"Profile %1"_s.arg(i),
                        .name = u"Person %1"_s.arg(i),
                        .safariBookmarks = Source::None{}});
    }
    const double step = 4.0 * 365 * 86400 / static_cast<double>(count);
    QList<HistoryItem> rows;
    rows.reserve(count);
    for (qsizetype i = 0; i < count; ++i) {
        const auto number = static_cast<qint64>(random() % 1'000'000);
        const int site = static_cast<int>(random() % static_cast<unsigned>(siteCount));
        const QString title =
            u"%1 place %2 - Example %3"_s.arg(subjects[static_cast<qsizetype>(random() % 8)])
                .arg(number)
                .arg(site);
        const QString url = u"https://www.site%1.example.org/articles/%2?from=search"_s.arg(site).arg(number);
        rows.append(HistoryItem::ofRow(
            i, title, url, now - std::chrono::duration<double>(step * static_cast<double>(i)),
            static_cast<qint64>(random() % 50), sources[static_cast<qsizetype>(random() % 10)]));
    }
    return rows;
}

/// Every row has them, so that the whole list is left to be sorted.
const QStringList words{u"example"_s, u"articles"_s};

const QList<SortComparator> byVisitsAndTitle{{SortColumn::Visits, SortOrder::Reverse},
                                             {SortColumn::Title, SortOrder::Forward}};
const QList<SortComparator> byTitleAndDate{{SortColumn::Title, SortOrder::Forward},
                                           {SortColumn::Date, SortOrder::Reverse}};
const QList<SortComparator> byVisitsAndDate{{SortColumn::Visits, SortOrder::Reverse},
                                            {SortColumn::Date, SortOrder::Reverse}};

/// The same by hand: pick the rows, then let them be compared in pairs.
template<typename Less>
void sortByHand(benchmark::State &state, Less less)
{
    const QList<HistoryItem> rows = history(state.range(0), 5000);
    for ([[maybe_unused]] auto iteration : state) {
        QList<HistoryItem> result;
        for (const HistoryItem &row : rows) {
            if (row.url.contains(words[0]) && row.url.contains(words[1]))
                result.append(row);
        }
        std::stable_sort(result.begin(), result.end(), less);
        benchmark::DoNotOptimize(result.constData());
    }
}

void refineBy(benchmark::State &state, const QList<SortComparator> &order)
{
    const QList<HistoryItem> rows = history(state.range(0), 5000);
    const Collation collation(u"en_US"_s);
    for ([[maybe_unused]] auto iteration : state) {
        const auto result = refine(allRows(rows), words.join(u' '), order, &HistoryItem::url, collation);
        benchmark::DoNotOptimize(result->data());
    }
}

void RefineByVisitsAndTitle(benchmark::State &state)
{
    refineBy(state, byVisitsAndTitle);
}

/// Comparing titles as people do.
void RefineByVisitsAndTitleByHand(benchmark::State &state)
{
    const Collation collation(u"en_US"_s);
    sortByHand(state, [&collation](const HistoryItem &left, const HistoryItem &right) {
        return left.visitCount != right.visitCount ? left.visitCount > right.visitCount
                                                   : collation.compare(left.title, right.title) < 0;
    });
}

/// Comparing titles by their codes, which is wrong, but the least that can be done.
void RefineByVisitsAndTitleCodesByHand(benchmark::State &state)
{
    sortByHand(state, [](const HistoryItem &left, const HistoryItem &right) {
        return left.visitCount != right.visitCount ? left.visitCount > right.visitCount
                                                   : left.title < right.title;
    });
}

void RefineByTitleAndDate(benchmark::State &state)
{
    refineBy(state, byTitleAndDate);
}

void RefineByTitleAndDateByHand(benchmark::State &state)
{
    const Collation collation(u"en_US"_s);
    sortByHand(state, [&collation](const HistoryItem &left, const HistoryItem &right) {
        const int titles = collation.compare(left.title, right.title);
        return titles != 0 ? titles < 0 : left.lastVisit > right.lastVisit;
    });
}

void RefineByVisitsAndDate(benchmark::State &state)
{
    refineBy(state, byVisitsAndDate);
}

void RefineByVisitsAndDateByHand(benchmark::State &state)
{
    sortByHand(state, [](const HistoryItem &left, const HistoryItem &right) {
        return left.visitCount != right.visitCount ? left.visitCount > right.visitCount
                                                   : left.lastVisit > right.lastVisit;
    });
}

void CopyRows(benchmark::State &state)
{
    const QList<HistoryItem> rows = history(state.range(0), static_cast<int>(state.range(1)));
    for ([[maybe_unused]] auto iteration : state) {
        QList<HistoryItem> copy = rows;
        copy.detach();
        benchmark::DoNotOptimize(copy.constData());
    }
}

void GroupByDay(benchmark::State &state)
{
    const QList<HistoryItem> rows = history(state.range(0), static_cast<int>(state.range(1)));
    const UserCalendar calendar = UserCalendar{u"Europe/Berlin"_s, u"de_DE"_s};
    for ([[maybe_unused]] auto iteration : state) {
        const auto groups = dayGroups(allRows(rows), true, now, calendar);
        benchmark::DoNotOptimize(groups.constData());
    }
}

void GroupBySite(benchmark::State &state)
{
    const QList<HistoryItem> rows = history(state.range(0), static_cast<int>(state.range(1)));
    const Collation collation(u"en_US"_s);
    for ([[maybe_unused]] auto iteration : state) {
        const auto groups = siteGroups(allRows(rows), &HistoryItem::site, collation);
        benchmark::DoNotOptimize(groups.constData());
    }
}

} // namespace

BENCHMARK(RefineByVisitsAndTitle)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(RefineByVisitsAndTitleByHand)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(RefineByVisitsAndTitleCodesByHand)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(RefineByTitleAndDate)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(RefineByTitleAndDateByHand)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(RefineByVisitsAndDate)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(RefineByVisitsAndDateByHand)->Arg(100'000)->Unit(benchmark::kMillisecond);
// Rows and sites.
BENCHMARK(CopyRows)->Args({100'000, 5000})->Args({1'000'000, 5000})->Unit(benchmark::kMillisecond);
BENCHMARK(GroupByDay)->Args({100'000, 5000})->Args({1'000'000, 5000})->Unit(benchmark::kMillisecond);
BENCHMARK(GroupBySite)
    ->Args({100'000, 5000})
    ->Args({1'000'000, 5000})
    ->Args({100'000, 100'000})
    ->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    // Memory that was once used is kept. Otherwise the larger lists, and only those, would get theirs anew
    // from the kernel in every round, and that would take longer than the work.
    // There is only one thread yet.
    mallopt(M_MMAP_MAX, 0);                                     // NOLINT(concurrency-mt-unsafe)
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max()); // NOLINT(concurrency-mt-unsafe)
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
