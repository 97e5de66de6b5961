// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/LibraryReading.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QFile>

#include <stop_token>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class LibrarySearchTest : public LibraryHome
{
protected:
    HistoryResults search(const QString &text, const std::optional<QString> &site = {})
    {
        const ReadContext context = LibraryReading::readContext(home.platform());
        return LibraryReading::history(HistoryQuery::matching(text, site, HistoryQuery::Order::Latest),
                                       LibraryReading::allProfiles({}, context), context);
    }

    static HistoryQuery mostVisited()
    {
        return HistoryQuery::matching({}, {}, HistoryQuery::Order::MostVisited);
    }

    /// What the Library answers about the source, or about all of them.
    static HistoryResults ask(const Library &library, const std::optional<QString> &id,
                              const HistoryQuery &query = HistoryQuery::recent())
    {
        return library.queryHistory(query, id).run({}).results;
    }

    static QStringList sortedTitles(const HistoryResults &results)
    {
        QStringList result = titles(results.items);
        result.sort();
        return result;
    }
};

TEST_F(LibrarySearchTest, noSourcesGiveNothing)
{
    const ReadContext context = home.context();
    EXPECT_EQ(
        LibraryReading::history(HistoryQuery::matching(u"x"_s, {}, HistoryQuery::Order::Latest), {}, context),
        HistoryResults());
}

TEST_F(LibrarySearchTest, everySourceIsSearchedAndSafariToo)
{
    addChromium();
    addSafari();
    EXPECT_EQ(search(u"example"_s).items.size(), 5);
    EXPECT_EQ(titles(search(u"s1"_s).items), QStringList{u"s1"_s});
    EXPECT_EQ(titles(search(u"  E1  EDGE "_s).items), QStringList{u"e1"_s});
}

TEST_F(LibrarySearchTest, twoFullSourcesGiveTwoThousandRowsAndAreCapped)
{
    addChromium();
    setChromePages(u"Default"_s, 1200, u"https://w.example/"_s);
    setChromePages(u"Profile 1"_s, 1000, u"https://w.example/"_s);
    const HistoryResults results = search(u"word"_s);
    EXPECT_EQ(results.items.size(), 2000);
    EXPECT_TRUE(results.isCapped);
}

TEST_F(LibrarySearchTest, oneRowLessIsNotCapped)
{
    addChromium();
    setChromePages(u"Default"_s, 999, u"https://w.example/"_s);
    EXPECT_FALSE(search(u"word"_s).isCapped);
    setChromePages(u"Default"_s, 1000, u"https://w.example/"_s);
    EXPECT_TRUE(search(u"word"_s).isCapped);
}

TEST_F(LibrarySearchTest, thePlainListingIsNeverCapped)
{
    addChromium();
    setChromePages(u"Default"_s, 1500, u"https://w.example/"_s);
    const HistoryResults results = search({});
    EXPECT_FALSE(results.isCapped);
    EXPECT_EQ(results.items.size(), 1000 + 2);
}

TEST_F(LibrarySearchTest, aSiteIsComparedExactlyAfterTheCap)
{
    addChromium();
    setChromePagesAroundASite(u"Default"_s);
    const HistoryResults results = search({}, u"site.example"_s);
    EXPECT_EQ(results.items.size(), 10);
    EXPECT_TRUE(results.isCapped);
}

TEST_F(LibrarySearchTest, aSourceThatCannotBeReadContributesNothing)
{
    addChromium();
    home.files.failure = [this](const QString &path) {
        return path == chromeFile(u"Default/History"_s) ? std::make_error_code(std::errc::io_error)
                                                        : std::error_code{};
    };
    EXPECT_EQ(search(u"example"_s).items.size(), 2);
}

TEST_F(LibrarySearchTest, sourcesThatFailAreReportedInTheirOrderOnTheCallersThread)
{
    addChromium();
    home.files.failure = [this](const QString &path) {
        return path == chromeFile(u"Default/History"_s) || path == edgeFile(u"Default/History"_s)
                   ? std::make_error_code(std::errc::io_error)
                   : std::error_code{};
    };
    const ReadContext context = home.context();
    QStringList problems;
    const auto caller = std::this_thread::get_id();
    const HistoryResults results =
        LibraryReading::history(HistoryQuery::recent(), LibraryReading::allProfiles({}, context), context,
                                [&](const Source &source, const ReadError &error) {
                                    EXPECT_EQ(std::this_thread::get_id(), caller);
                                    problems.append(source.id() % u' ' % error.path());
                                });
    EXPECT_EQ(titles(results.items), QStringList{u"b1"_s});
    EXPECT_EQ(problems, (QStringList{u"chrome/Default " % chromeFile(u"Default/History"_s),
                                     u"edge/Default " % edgeFile(u"Default/History"_s)}));
}

TEST_F(LibrarySearchTest, aWordThatIsTooLongForTheDatabaseFindsNothing)
{
    addChromium();
    EXPECT_EQ(search(QString(60'000, u'x')), HistoryResults());
}

TEST_F(LibrarySearchTest, aSiteOfWhichThereAreFewerRowsIsNotCapped)
{
    addChromium();
    setChromePages(u"Default"_s, 999, u"https://site.example/"_s);
    const HistoryResults results = search({}, u"site.example"_s);
    EXPECT_EQ(results.items.size(), 999);
    EXPECT_FALSE(results.isCapped);
    EXPECT_EQ(search({}, u"ite.example"_s), HistoryResults()) << "the end of a site is another site";
    setChromePages(u"Default"_s, 1000, u"https://site.example/"_s);
    EXPECT_TRUE(search({}, u"site.example"_s).isCapped);
}

TEST_F(LibrarySearchTest, rowsComeSourceBySourceInTheOrderOfTheirQuery)
{
    addChromium();
    setChromePages(u"Default"_s, 50, u"https://d.example/"_s);
    setChromePages(u"Profile 1"_s, 50, u"https://p.example/"_s);
    const HistoryResults results = search(u"word"_s);
    ASSERT_EQ(results.items.size(), 100);
    for (qsizetype i = 1; i < 100; ++i) {
        if (i == 50)
            EXPECT_NE(results.items[i].source.id(), results.items[i - 1].source.id());
        else
            EXPECT_GT(results.items[i - 1].lastVisit, results.items[i].lastVisit) << i;
    }
}

TEST_F(LibrarySearchTest, rowsOfSeveralSourcesAreNotMadeOne)
{
    addChromium();
    setChromeHistory(u"Default"_s, {u"same"_s});
    setChromeHistory(u"Profile 1"_s, {u"same"_s});
    EXPECT_EQ(titles(search(u"same"_s).items), (QStringList{u"same"_s, u"same"_s}));
}

TEST_F(LibrarySearchTest, theLibrarySearchesOneSourceOrAllOfTheSnapshot)
{
    addChromium();
    Library library(home.platform());
    EXPECT_EQ(ask(library, {}), HistoryResults()) << "no snapshot, no sources";
    loadNow(library);
    EXPECT_EQ(sortedTitles(ask(library, u"chrome/Default"_s)), (QStringList{u"a1"_s, u"a2"_s}));
    EXPECT_EQ(sortedTitles(ask(library, {})), (QStringList{u"a1"_s, u"a2"_s, u"b1"_s, u"e1"_s}));
    EXPECT_EQ(ask(library, u"unknown"_s), HistoryResults());
    EXPECT_EQ(ask(library, u""_s), HistoryResults());
    EXPECT_EQ(
        ask(library, {}, HistoryQuery::matching(u"edge"_s, {}, HistoryQuery::Order::Latest)).items.size(), 1);
}

TEST_F(LibrarySearchTest, theLibraryAsksTheDatabasesAndNotTheSnapshot)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    setChromeHistory(u"Default"_s, {u"since then"_s});
    for (const HistoryQuery &query : {HistoryQuery::recent(), mostVisited()})
        EXPECT_EQ(sortedTitles(ask(library, u"chrome/Default"_s, query)), QStringList{u"since then"_s});
    EXPECT_EQ(library.generation(), 1);
}

TEST_F(LibrarySearchTest, theLatestRowsOfUnchangedFilesAreNotReadAgain)
{
    addChromium();
    addSafari();
    Library library(home.platform());
    loadNow(library);
    recordReads();
    const QList<HistoryItem> &known = library.snapshot().history;
    EXPECT_TRUE(library.queryHistory(HistoryQuery::recent(), {}).known()->results.items.isSharedWith(known))
        << "nor do they take memory of their own";
    EXPECT_EQ(titles(ask(library, u"chrome/Default"_s).items), (QStringList{u"a1"_s, u"a2"_s}));
    EXPECT_FALSE(ask(library, {}).isCapped);
    EXPECT_EQ(takeReads(), QStringList());
    EXPECT_EQ(ask(library, {}, mostVisited()).items.size(), known.size());
    EXPECT_EQ(takeReads().size(), library.snapshot().sources.size()) << "the snapshot knows the latest only";
}

TEST_F(LibrarySearchTest, theLatestRowsOfChangedFilesAreReadAgain)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    recordReads();
    setChromeHistory(u"Profile 1"_s, {u"since then"_s});
    EXPECT_EQ(sortedTitles(ask(library, {})), (QStringList{u"a1"_s, u"a2"_s, u"e1"_s, u"since then"_s}));
    EXPECT_EQ(takeReads(), QStringList{u"chrome/Profile 1"_s});

    change([&] {
        QFile log(chromeFile(u"Default/History-wal"_s));
        ASSERT_TRUE(log.open(QIODevice::WriteOnly));
        log.write("not a log");
    });
    EXPECT_EQ(titles(ask(library, u"chrome/Default"_s).items), (QStringList{u"a1"_s, u"a2"_s}));
    EXPECT_EQ(takeReads(), QStringList{u"chrome/Default"_s}) << "a log that is new is a change, too";

    change([&] { ASSERT_TRUE(QFile::remove(edgeFile(u"Default/History"_s))); });
    EXPECT_TRUE(ask(library, u"edge/Default"_s).items.isEmpty());
}

TEST_F(LibrarySearchTest, theLatestRowsThatAPartialLoadHasKeptAreNotReadAgain)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    setChromeHistory(u"Profile 1"_s, {u"since then"_s});
    loadNow(library, QSet<QString>{u"chrome/Profile 1"_s});
    recordReads();
    EXPECT_EQ(sortedTitles(ask(library, {})), (QStringList{u"a1"_s, u"a2"_s, u"e1"_s, u"since then"_s}));
    EXPECT_EQ(takeReads(), QStringList());
}

TEST_F(LibrarySearchTest, theLatestRowsOfARenamedProfileBearItsNewName)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    change([&] {
        sample::writeLocalState(edgeFile(u"Local State"_s),
                                {{u"Default"_s, QJsonObject{{u"name"_s, u"Elsewhere"_s}}}});
    });
    loadNow(library, QSet<QString>{u"chrome/Default"_s});
    const HistoryResults results = ask(library, u"edge/Default"_s);
    ASSERT_EQ(titles(results.items), QStringList{u"e1"_s});
    EXPECT_EQ(results.items.first().source->name, u"Elsewhere");
}

TEST_F(LibrarySearchTest, theLatestRowsThatCouldNotBeReadAreAskedForAgain)
{
    addChromium();
    fail(chromeFile(u"Default/History"_s), std::errc::io_error);
    Library library(home.platform());
    loadNow(library);
    EXPECT_TRUE(library.snapshot().problems.contains(u"chrome/Default"_s));
    recordReads();
    EXPECT_EQ(titles(ask(library, u"chrome/Default"_s).items), (QStringList{u"a1"_s, u"a2"_s}));
    EXPECT_EQ(takeReads(), QStringList{u"chrome/Default"_s});
}

TEST_F(LibrarySearchTest, profilesThatAreSwitchedOffAreNotSearched)
{
    addChromium();
    home.defaults.setStringList(u"disabledProfiles"_s, {u"chrome/Default"_s});
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(sortedTitles(ask(library, {})), (QStringList{u"b1"_s, u"e1"_s}));
    EXPECT_EQ(ask(library, u"chrome/Default"_s), HistoryResults());
}

TEST_F(LibrarySearchTest, aSearchDoesNotWaitForALoad)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    Gate gate;
    recordReads(&gate);
    library.load(QSet<QString>{u"chrome/Default"_s});
    gate.awaitReader();
    EXPECT_EQ(sortedTitles(ask(library, u"edge/Default"_s, mostVisited())), QStringList{u"e1"_s});
    EXPECT_TRUE(library.isLoading());
    gate.open();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
}

TEST_F(LibrarySearchTest, aQuestionIsToTheLibraryAsItWasWhenItWasAsked)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    const HistorySearch search = library.queryHistory(mostVisited(), {});
    library.setEnabled(false, *library.source(u"edge/Default"_s));
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(sortedTitles(search.run({}).results), (QStringList{u"a1"_s, u"a2"_s, u"b1"_s, u"e1"_s}));
}

TEST_F(LibrarySearchTest, onlyTheLatestRowsOfUnchangedFilesAreKnown)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    EXPECT_FALSE(library.queryHistory(mostVisited(), {}).known());
    EXPECT_FALSE(library.queryHistory(mostVisited(), {}).standIn());
    setChromeHistory(u"Profile 1"_s, {u"since then"_s});
    const HistorySearch all = library.queryHistory(HistoryQuery::recent(), {});
    EXPECT_FALSE(all.known());
    EXPECT_EQ(titles(all.standIn()->items), (QStringList{u"a1"_s, u"a2"_s, u"b1"_s, u"e1"_s}));
    const HistorySearch one = library.queryHistory(HistoryQuery::recent(), u"edge/Default"_s);
    EXPECT_EQ(titles(one.known()->results.items), QStringList{u"e1"_s});
}

TEST_F(LibrarySearchTest, aSearchThatIsStoppedEnds)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    std::stop_source stop;
    stop.request_stop();
    EXPECT_TRUE(library.queryHistory(mostVisited(), {}).run(stop.get_token()).results.items.isEmpty());
    EXPECT_TRUE(home.leftovers().isEmpty());
}

} // namespace
} // namespace roamlet::testing
