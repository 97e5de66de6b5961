// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// How long does a search of a million rows in memory take, and what does it cost to get them there?

#include "Platform/Linux/LinuxFiles.h"
#include "Readers/BrowserReader.h"
#include "Readers/HistoryTextBuilder.h"
#include "Readers/ReadContext.h"
#include "SampleHome/ChromiumFiles.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <array>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace
{

using namespace roamlet;
using namespace Qt::StringLiterals;

constexpr qsizetype rowCount = 1'000'000;
constexpr size_t mostBytes = 1'000'000'000;

/// Pages of the usual lengths, about 100 bytes for both texts.
std::pair<std::string, std::string> page(std::mt19937 &random)
{
    constexpr std::array subjects{"Weather in",    "How to repair", "Trains from", "Recipe for",
                                  "Discussion of", "Prices of",     "Pictures of", "The history of"};
    const std::string number = std::to_string(random() % 1'000'000);
    const std::string site = std::to_string(random() % 5000);
    return {"https://www.site" + site + ".example.org/articles/" + number + "?from=search&page=2",
            std::string(subjects[random() % subjects.size()]) + " place " + number + " - Example " + site};
}

const HistoryText &history()
{
    static const std::shared_ptr<const HistoryText> text = [] {
        HistoryText::Builder builder(Source::safari(), HistoryText::Builder::Ties::FirstRead,
                                     HistoryText::Builder::Pages::OneRow, mostBytes);
        const auto handOver = [](auto take) {
            std::mt19937 random(42);
            for (qsizetype i = 0; i < rowCount; ++i) {
                const auto [url, title] = page(random);
                take({.id = i,
                      .url = url,
                      .title = title,
                      .order = i,
                      .lastVisit = pointInTime(static_cast<double>(i)),
                      .visitCount = static_cast<qint64>(random() % 50)});
            }
        };
        HistoryText::Builder::Part &part = builder.part(0);
        handOver([&part](const HistoryTextRow &row) { part.measure(row); });
        part.sort();
        builder.arrange();
        handOver([&part](const HistoryTextRow &row) { part.put(row); });
        return builder.finish();
    }();
    return *text;
}

void search(benchmark::State &state, const QStringList &words, HistoryQuery::Order order)
{
    const HistoryText &text = history();
    const HistoryQuery query{.words = words, .site = {}, .order = order};
    for ([[maybe_unused]] auto iteration : state) {
        const auto answer = text.search(query);
        benchmark::DoNotOptimize(answer->rows.data());
    }
}

void SearchForNothing(benchmark::State &state)
{
    search(state, {u"garden"_s}, HistoryQuery::Order::Latest);
}

void SearchForTwoWords(benchmark::State &state)
{
    search(state, {u"weather"_s, u"123"_s}, HistoryQuery::Order::Latest);
}

void SearchForALetter(benchmark::State &state)
{
    search(state, {u"e"_s}, HistoryQuery::Order::Latest);
}

void SearchForALetterMostVisited(benchmark::State &state)
{
    search(state, {u"e"_s}, HistoryQuery::Order::MostVisited);
}

void SearchWithinASearch(benchmark::State &state)
{
    const HistoryText &text = history();
    const auto first = text.search({.words = {u"1234"_s}, .site = {}});
    for ([[maybe_unused]] auto iteration : state) {
        const auto answer = text.search({.words = {u"12345"_s}, .site = {}}, &first->rows);
        benchmark::DoNotOptimize(answer->rows.data());
    }
}

/// One pass over as many bytes, for a byte that is not among them.
void OnePassOfMemchr(benchmark::State &state)
{
    std::mt19937 random(42);
    std::string bytes;
    for (qsizetype i = 0; i < rowCount; ++i) {
        const auto [url, title] = page(random);
        bytes.append(url).append(1, ' ').append(title).append(1, ' ');
    }
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(bytes.find('\x07'));
}

/// A Chrome with as many rows, and what a reader is given.
struct Home {
    QTemporaryDir folder;
    LinuxFiles files;
    Source source{.kind = Source::Kind::Chrome,
                  .profile = u"Default"_s,
                  .name = u"Chrome"_s,
                  .safariBookmarks = Source::AllExcept{}};
    ReadContext context;

    Home()
    {
        context.files = &files;
        context.folders.temporary = folder.path();
        context.folders.installations.append(
            {.browser = Source::Kind::Chrome, .key = {}, .roots = {folder.filePath(u"chrome"_s)}});
        std::mt19937 random(42);
        sample::writeHistory(BrowserReader::historyFile(source, context),
                             sample::Rows<sample::HistoryRow>::generated(rowCount, [&random](qsizetype i) {
                                 const auto [url, title] = page(random);
                                 return sample::HistoryRow{.url = QString::fromStdString(url),
                                                           .title = QString::fromStdString(title),
                                                           .visitCount = i % 50,
                                                           .lastVisitTime = (i * 7919) % 1'000'003 + 1};
                             }));
    }

    static const Home &get()
    {
        static const Home home;
        return home;
    }
};

void BuildFromTheDatabase(benchmark::State &state)
{
    const Home &home = Home::get();
    for ([[maybe_unused]] auto iteration : state) {
        const auto text = BrowserReader::historyText(home.source, home.context, mostBytes);
        if (!text || *text == nullptr || (*text)->rowCount() != rowCount)
            state.SkipWithError("the text cannot be built");
    }
}

void SearchOfTheDatabase(benchmark::State &state)
{
    const Home &home = Home::get();
    const HistoryQuery query{.words = {u"garden"_s}, .site = {}};
    for ([[maybe_unused]] auto iteration : state) {
        const auto rows = BrowserReader::history(home.source, query, home.context);
        if (!rows)
            state.SkipWithError("the database cannot be searched");
    }
}

/// The same statement over a copy of the same file, with the LIKE that SQLite has.
void SearchOfTheDatabaseByItsOwnLike(benchmark::State &state)
{
    const Home &home = Home::get();
    const std::string copy = home.folder.filePath(u"copy"_s).toStdString();
    for ([[maybe_unused]] auto iteration : state) {
        std::filesystem::copy_file(BrowserReader::historyFile(home.source, home.context).toStdString(), copy,
                                   std::filesystem::copy_options::overwrite_existing);
        sqlite3 *database = nullptr;
        sqlite3_open_v2(copy.c_str(), &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
        const int result = sqlite3_exec(
            database,
            "SELECT id, url, title, last_visit_time, visit_count FROM urls WHERE hidden = 0 "
            "AND (url || ' ' || title) LIKE '%garden%' ESCAPE '\\' ORDER BY last_visit_time DESC LIMIT 1000",
            nullptr, nullptr, nullptr);
        sqlite3_close(database);
        if (result != SQLITE_OK)
            state.SkipWithError("the database cannot be searched");
    }
}

} // namespace

BENCHMARK(SearchForNothing)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchForTwoWords)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchForALetter)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchForALetterMostVisited)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchWithinASearch)->Unit(benchmark::kMillisecond);
BENCHMARK(OnePassOfMemchr)->Unit(benchmark::kMillisecond);
BENCHMARK(BuildFromTheDatabase)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchOfTheDatabase)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchOfTheDatabaseByItsOwnLike)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
