// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/HistorySearch.h"

#include "Library/LibraryReading.h"
#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/SampleText.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QCoreApplication>

#include <sqlite3.h>

#include <algorithm>
#include <atomic>
#include <thread>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using Order = HistoryQuery::Order;

/// Searches through a Library whose histories are in memory.
class HistorySearchTest : public LibraryHome
{
protected:
    void fill()
    {
        library.expectSearch();
        EXPECT_TRUE(waitUntil(
            [this] {
                const QList<Source> &sources = library.snapshot().sources;
                return std::ranges::all_of(sources, [this](const Source &source) {
                    return library.queryHistory(query(u"x"_s), source.id()).known().has_value();
                });
            },
            patience, std::chrono::milliseconds(1)));
    }
    static HistoryQuery query(const QString &text, const std::optional<QString> &site = {},
                              Order order = Order::Latest)
    {
        return HistoryQuery::matching(text, site, order);
    }
    /// What the databases have.
    HistoryResults read(const HistoryQuery &query) const
    {
        return LibraryReading::history(query, library.snapshot().sources, home.context());
    }
    /// Sources stand in the order in which they answer, which says nothing.
    static HistoryResults bySource(HistoryResults results)
    {
        std::ranges::stable_sort(results.items, {}, [](const HistoryItem &item) { return item.source.id(); });
        return results;
    }

    Library library{home.platform()};
};

TEST_F(HistorySearchTest, memoryAnswersAndNoDatabaseIsAsked)
{
    addChromium();
    addSafari();
    addFirefox();
    loadNow(library);
    EXPECT_FALSE(library.queryHistory(query(u"example"_s), {}).known());
    fill();
    recordReads();
    const auto known = library.queryHistory(query(u"example"_s), {}).known();
    ASSERT_TRUE(known);
    EXPECT_EQ(known->results.items.size(), 6);
    EXPECT_EQ(library.queryHistory(query({}, {}, Order::MostVisited), {}).known()->results.items.size(), 6);
    EXPECT_TRUE(takeReads().isEmpty());
    EXPECT_EQ(bySource(known->results), bySource(read(query(u"example"_s))));
}

TEST_F(HistorySearchTest, capAndSiteAreThoseOfTheDatabases)
{
    addChromium();
    setChromePages(u"Default"_s, 1200, u"https://w.example/"_s);
    setChromePagesAroundASite(u"Profile 1"_s);
    loadNow(library);
    fill();
    const auto words = library.queryHistory(query(u"word"_s), {}).known();
    EXPECT_EQ(words->results.items.size(), 1000);
    EXPECT_TRUE(words->results.isCapped);
    const auto site = library.queryHistory(query({}, u"site.example"_s), {}).known();
    EXPECT_EQ(site->results.items.size(), 10);
    EXPECT_TRUE(site->results.isCapped);
    EXPECT_FALSE(library.queryHistory(query(u"edge"_s), {}).known()->results.isCapped);
}

TEST_F(HistorySearchTest, aFileThatHasChangedIsAskedItself)
{
    addChromium();
    loadNow(library);
    fill();
    setChromeHistory(u"Profile 1"_s, {u"new"_s});
    recordReads();
    const HistorySearch search = library.queryHistory(query(u"example"_s), {});
    EXPECT_FALSE(search.known());
    EXPECT_EQ(bySource(search.run({}).results), bySource(read(query(u"example"_s))));
    EXPECT_EQ(takeReads().count(u"chrome/Profile 1"_s), 2);
    EXPECT_TRUE(library.queryHistory(query(u"example"_s), u"edge/Default"_s).known())
        << "others are as they were";
}

TEST_F(HistorySearchTest, theCapIsSeenWhoeverOfBothAnswersIt)
{
    addChromium();
    for (const QString &full : {u"Default"_s, u"Profile 1"_s}) {
        setChromePages(u"Default"_s, 999, u"https://w.example/"_s);
        setChromePages(u"Profile 1"_s, 999, u"https://w.example/"_s);
        setChromePages(full, 1000, u"https://w.example/"_s);
        loadNow(library);
        fill();
        EXPECT_EQ(library.queryHistory(query(u"word"_s), {}).known()->results.items.size(), 1999);
        EXPECT_TRUE(library.queryHistory(query(u"word"_s), {}).known()->results.isCapped);
        // The same rows, of which only the text of the other source is known now.
        setChromePages(u"Default"_s, full == u"Default" ? 1000 : 999, u"https://w.example/"_s);
        const HistorySearch search = library.queryHistory(query(u"word"_s), {});
        EXPECT_FALSE(search.known());
        EXPECT_EQ(search.run({}).results.items.size(), 1999);
        EXPECT_TRUE(search.run({}).results.isCapped);
    }
    setChromePages(u"Default"_s, 999, u"https://w.example/"_s);
    setChromePages(u"Profile 1"_s, 999, u"https://w.example/"_s);
    fill();
    EXPECT_FALSE(library.queryHistory(query(u"word"_s), {}).known()->results.isCapped);
}

TEST_F(HistorySearchTest, whatOnlyADatabaseKnowsItIsAsked)
{
    addChromium();
    loadNow(library);
    fill();
    const HistorySearch search = library.queryHistory(query(QString(60'000, u'x')), {});
    EXPECT_FALSE(search.known());
    EXPECT_EQ(search.run({}).results, HistoryResults());
}

TEST_F(HistorySearchTest, aLongerWordIsLookedForInWhatTheShorterOneFound)
{
    addChromium();
    setChromePages(u"Default"_s, 900, u"https://w.example/"_s);
    loadNow(library);
    fill();
    const auto wide = library.queryHistory(query(u"example/89"_s), {}).known();
    ASSERT_TRUE(wide && wide->findings);
    EXPECT_EQ(wide->results.items.size(), 11) << "89, and 890 to 899";
    for (const QString &typed : {u"example/899"_s, u"example/89 word"_s, u"xample/8"_s, u"edge"_s}) {
        HistorySearch search = library.queryHistory(query(typed), {});
        const auto afresh = search.known();
        search.narrow(wide->findings);
        EXPECT_EQ(search.known()->results, afresh->results) << qPrintable(typed);
    }
    // Only what was found there shows that nothing else was looked at.
    auto nothing = std::make_shared<SearchFindings>(*wide->findings);
    for (SearchFindings::InText &found : nothing->texts)
        found.rows.clear();
    HistorySearch narrowed = library.queryHistory(query(u"example/899"_s), {});
    narrowed.narrow(nothing);
    EXPECT_TRUE(narrowed.known()->results.items.isEmpty());
}

TEST_F(HistorySearchTest, whatWasFoundInAnOlderTextIsNoHelp)
{
    addChromium();
    setChromePages(u"Default"_s, 100, u"https://w.example/"_s);
    loadNow(library);
    fill();
    const auto earlier = library.queryHistory(query(u"example/9"_s), {}).known();
    setChromePages(u"Default"_s, 1000, u"https://w.example/"_s);
    fill();
    HistorySearch search = library.queryHistory(query(u"example/99"_s), {});
    search.narrow(earlier->findings);
    EXPECT_EQ(search.known()->results.items.size(), 11) << "99, and 990 to 999";
}

TEST_F(HistorySearchTest, whateverHappensToTheFilesTheAnswerIsTheDatabases)
{
    addChromium();
    addFirefox();
    loadNow(library);
    sample::Random random(20261122);
    const auto below = [&random](qint64 bound) { return random.below(bound); };
    const QStringList words{u"a"_s, u"ab"_s, u"b_"_s, u"%"_s, u"É"_s, u"\\"_s, u"example"_s, u"/1"_s};
    const auto title = [&] { return words.at(below(words.size())) % words.at(below(words.size())); };
    std::shared_ptr<const SearchFindings> findings;
    int fromMemory = 0;
    for (int round = 0; round < 300; ++round) {
        if (below(4) == 0) {
            QList<sample::HistoryRow> rows;
            for (qint64 i = below(30); i > 0; --i)
                rows.append({.url = u"https://%1.example/%2"_s.arg(title()).arg(i),
                             .title = title(),
                             .visitCount = below(3),
                             .lastVisitTime = sample::chromiumTime(newest - below(10))});
            const QString profile = below(2) == 0 ? u"Default"_s : u"Profile 1"_s;
            change([&] { sample::writeHistory(chromeFile(profile % u"/History"), rows); });
        } else if (below(3) == 0) {
            fill();
        } else if (below(10) == 0) {
            library.expectSearch();
        }
        const HistoryQuery asked = query(title() % (below(3) == 0 ? u" "_s % title() : QString()),
                                         below(5) == 0 ? std::optional(u"a.example"_s) : std::nullopt,
                                         below(2) == 0 ? Order::Latest : Order::MostVisited);
        HistorySearch search = library.queryHistory(asked, {});
        search.narrow(findings);
        const HistoryResults expected = bySource(read(asked));
        const HistorySearch::Answer answer = search.run({});
        ASSERT_EQ(bySource(answer.results), expected) << round;
        if (const auto known = search.known()) {
            ++fromMemory;
            ASSERT_EQ(bySource(known->results), expected) << round;
        }
        findings = answer.findings;
    }
    EXPECT_GT(fromMemory, 50) << "or this was about nothing";
    EXPECT_LT(fromMemory, 250);
    EXPECT_TRUE(waitUntil([this] { return home.leftovers().isEmpty(); }));
}

TEST_F(HistorySearchTest, whatIsWrittenDuringASearchHidesNothingThatWasThereBefore)
{
    addChromium();
    setChromePages(u"Default"_s, 50, u"https://w.example/"_s);
    loadNow(library);
    HistoryQuery all = query(u"written"_s);
    all.limit = -1;
    std::atomic<int> written = 0;
    change([&] {
        std::atomic<int> turn = 0;
        std::jthread writer([&](const std::stop_token &stop) {
            sqlite3 *database = nullptr;
            ASSERT_EQ(sqlite3_open(qPrintable(chromeFile(u"Default/History"_s)), &database), SQLITE_OK);
            sqlite3_exec(database, "PRAGMA synchronous = OFF", nullptr, nullptr, nullptr);
            for (int seen = 0; !stop.stop_requested(); seen = turn) {
                turn.wait(seen);
                // No more than a copy is made again for.
                for (int commits = turn % 3; commits > 0; --commits) {
                    const QByteArray number = QByteArray::number(written + 1);
                    const QByteArray insert =
                        "INSERT INTO urls (url, title, visit_count, typed_count, last_visit_time, hidden) "
                        "VALUES ('https://written.example/" +
                        number + "', 'written', 1, 0, " + number + ", 0)";
                    EXPECT_EQ(sqlite3_exec(database, insert.constData(), nullptr, nullptr, nullptr),
                              SQLITE_OK);
                    ++written;
                }
            }
            sqlite3_close(database);
        });
        for (int round = 0; round < 200; ++round) {
            library.expectSearch();
            const int before = written;
            const HistorySearch search = library.queryHistory(all, u"chrome/Default"_s);
            ++turn;
            turn.notify_one();
            const qsizetype found = search.run({}).results.items.size();
            EXPECT_GE(found, before) << round;
            EXPECT_LE(found, written + 1) << round;
            QCoreApplication::processEvents();
        }
        writer.request_stop();
        ++turn;
        turn.notify_one();
    });
    fill();
    EXPECT_EQ(library.queryHistory(all, u"chrome/Default"_s).known()->results.items.size(), written);
    EXPECT_EQ(read(all).items.size(), written);
    EXPECT_GT(written, 0);
    EXPECT_TRUE(waitUntil([this] { return home.leftovers().isEmpty(); }));
}

} // namespace
} // namespace roamlet::testing
