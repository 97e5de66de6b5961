// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/ListLoader.h"

#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QCoreApplication>

#include <gmock/gmock.h>
#include <memory>
#include <new>
#include <string>
#include <vector>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Mode = ListWish::Mode;
using Progress = ListLoader::Progress;

/// A loader over Chrome's "a1", "a2" and "b1" and Edge's "e1", and one bookmark, "Mark".
class ListLoaderTest : public LibraryHome
{
protected:
    void SetUp() override
    {
        addChromium();
        loadNow(library);
        makeLoader();
    }
    void TearDown() override
    {
        loader.reset();
        EXPECT_TRUE(waitUntil([this] { return home.leftovers().isEmpty(); }));
        LibraryHome::TearDown();
    }

    void makeLoader()
    {
        loader = std::make_unique<ListLoader>(
            library, home.clock, std::make_shared<const Collation>(u"en_US"_s),
            [] { return UserCalendar{.timeZone = u"UTC"_s, .locale = u"en_US"_s}; });
        QObject::connect(loader.get(), &ListLoader::listLoaded, loader.get(), [this](const ShownList &list) {
            lists.push_back(text(list));
            tree = list.tree;
        });
        QObject::connect(loader.get(), &ListLoader::progressChanged, loader.get(),
                         [this] { progress.push_back(loader->progress()); });
    }

    /// The titles; a list that only comes from a reload begins with "same:".
    static std::string text(const ShownList &list)
    {
        std::string result = list.change == ListChange::Reloaded ? "same:" : "";
        for (std::size_t i = 1; i < list.tree->nodes().size(); ++i)
            result += (result.empty() ? "" : " ") + list.tree->row(i).title.toStdString();
        return result;
    }

    ListWish wish(const QString &search = {}, Mode mode = Mode::Recent) const
    {
        return {.mode = mode,
                .search = search,
                .order = {{SortColumn::Title, SortOrder::Forward}},
                .generation = library.generation()};
    }
    /// All that comes of a wish.
    std::vector<std::string> listsOf(const ListWish &wished, std::chrono::milliseconds wait = 0ms)
    {
        lists.clear();
        loader->load(wished);
        home.clock.advance(wait);
        finish();
        return lists;
    }
    void finish()
    {
        EXPECT_TRUE(waitUntil([this] { return loader->progress() == Progress::Done; }));
    }

    /// Reads all histories into memory.
    void readIntoMemory()
    {
        library.expectSearch();
        EXPECT_TRUE(waitUntil([this] {
            const HistoryQuery query = HistoryQuery::matching(u"x"_s, {}, HistoryQuery::Order::Latest);
            return library.queryHistory(query, {}).known().has_value();
        }));
    }
    void awaitLists(std::size_t count)
    {
        EXPECT_TRUE(waitUntil([&] { return lists.size() >= count; }));
    }

    Library library{home.platform()};
    std::unique_ptr<ListLoader> loader;
    std::vector<std::string> lists;
    std::vector<Progress> progress;
    SharedRowTree tree;
};

TEST_F(ListLoaderTest, everyKindOfListComes)
{
    EXPECT_THAT(listsOf(wish()), ElementsAre("a1 a2 b1 e1"));
    EXPECT_THAT(listsOf(wish(u"edge"_s), 250ms), ElementsAre("e1"));
    makeLoader();
    ListWish most = wish({}, Mode::MostVisited);
    most.order = {{SortColumn::Visits, SortOrder::Reverse}};
    EXPECT_THAT(listsOf(most), ElementsAre(::testing::StartsWith("e1 ")));
    makeLoader();
    EXPECT_THAT(listsOf(wish(u"mark"_s, Mode::Bookmarks), 150ms), ElementsAre("Mark"));
    EXPECT_THAT(listsOf(wish(u"no such"_s, Mode::Bookmarks), 150ms), ElementsAre(""));
    makeLoader();
    ListWish folders = wish({}, Mode::BookmarkTree);
    folders.sourceID = u"chrome/Default"_s;
    EXPECT_THAT(listsOf(folders), ElementsAre("Bar Mark"));
}

TEST_F(ListLoaderTest, typedTextStandsForAWhileBeforeAnybodyIsAsked)
{
    recordReads();
    loader->load(wish(u"a1"_s));
    EXPECT_EQ(loader->progress(), Progress::Waiting);
    home.clock.advance(249ms);
    EXPECT_EQ(loader->progress(), Progress::Waiting);
    EXPECT_TRUE(takeReads().isEmpty());
    home.clock.advance(1ms);
    EXPECT_EQ(loader->progress(), Progress::Working);
    finish();
    EXPECT_EQ(takeReads().size(), 3);
    EXPECT_THAT(lists, ElementsAre("a1"));
    EXPECT_THAT(progress, ElementsAre(Progress::Waiting, Progress::Working, Progress::Done));
}

TEST_F(ListLoaderTest, bookmarksWaitForLess)
{
    loader->load(wish(u"mark"_s, Mode::Bookmarks));
    home.clock.advance(149ms);
    EXPECT_EQ(loader->progress(), Progress::Waiting);
    home.clock.advance(1ms);
    EXPECT_EQ(loader->progress(), Progress::Working);
    finish();
    EXPECT_THAT(lists, ElementsAre("Mark"));
}

TEST_F(ListLoaderTest, spacesAreNoReasonToWait)
{
    EXPECT_THAT(listsOf(wish(u" \t "_s, Mode::Bookmarks)), ElementsAre("Mark"));
    EXPECT_EQ(home.clock.waiting(), 0U);
    makeLoader();
    EXPECT_THAT(listsOf(wish(u"   "_s)), ElementsAre("a1 a2 b1 e1"));
    EXPECT_EQ(home.clock.waiting(), 0U);
}

TEST_F(ListLoaderTest, ofThreeQuickKeysTheLastMakesAList)
{
    for (const Mode mode : {Mode::Recent, Mode::Bookmarks}) {
        makeLoader();
        lists.clear();
        for (const QString &typed : {u"x"_s, u"xy"_s, u"mark"_s}) {
            loader->load(wish(typed, mode));
            home.clock.advance(100ms);
        }
        home.clock.advance(1s);
        finish();
        EXPECT_THAT(lists, ElementsAre(mode == Mode::Recent ? "" : "Mark"));
    }
}

TEST_F(ListLoaderTest, slowKeysMakeAListEach)
{
    EXPECT_THAT(listsOf(wish(u"a"_s), 250ms), ElementsAre("a1 a2 b1 e1"));
    EXPECT_THAT(listsOf(wish(u"a1"_s), 250ms), ElementsAre("a1"));
}

TEST_F(ListLoaderTest, theSameWishIsAskedForOnce)
{
    recordReads();
    loader->load(wish(u"a1"_s));
    home.clock.advance(200ms);
    loader->load(wish(u"a1"_s));
    EXPECT_THAT(listsOf(wish(u"a1"_s), 50ms), ElementsAre("a1"));
    EXPECT_EQ(takeReads().size(), 3);
    EXPECT_THAT(listsOf(wish(u"a1"_s), 1s), IsEmpty()) << "it is shown";
    EXPECT_TRUE(takeReads().isEmpty());
}

TEST_F(ListLoaderTest, sortingAndCuttingAskNobody)
{
    listsOf(wish(u"example"_s), 250ms);
    recordReads();
    ListWish sorted = wish(u"example"_s);
    sorted.order = {{SortColumn::Title, SortOrder::Reverse}};
    EXPECT_THAT(listsOf(sorted), ElementsAre("e1 b1 a2 a1")) << "nor do they wait";
    sorted.grouping = Grouping::Site;
    EXPECT_THAT(listsOf(sorted), ElementsAre("a1.example a2.example b1.example edge.example a1 a2 b1 e1"));
    EXPECT_TRUE(takeReads().isEmpty());
}

TEST_F(ListLoaderTest, sortingDuringASearchIsDoneWithItsAnswer)
{
    Gate gate;
    recordReads(&gate);
    loader->load(wish(u"example"_s));
    home.clock.advance(250ms);
    gate.awaitReader();
    ListWish sorted = wish(u"example"_s);
    sorted.order = {{SortColumn::Title, SortOrder::Reverse}};
    loader->load(sorted);
    gate.open();
    finish();
    EXPECT_THAT(lists, ElementsAre("e1 b1 a2 a1"));
    EXPECT_EQ(takeReads().size(), 3) << "each was asked once";
    loader.reset();
}

TEST_F(ListLoaderTest, aNewerWishSupersedesAnOlderOne)
{
    Gate gate;
    recordReads(&gate);
    loader->load(wish(u"a1"_s));
    home.clock.advance(250ms);
    gate.awaitReader();
    ListWish other = wish(u"a2"_s);
    loader->load(other);
    gate.open();
    home.clock.advance(250ms);
    finish();
    EXPECT_THAT(lists, ElementsAre("a2"));
    loader.reset();
}

TEST_F(ListLoaderTest, whatIsShownIsThereWhenItIsWishedForAgain)
{
    listsOf(wish());
    loader->load(wish(u"a1"_s));
    loader->load(wish());
    EXPECT_EQ(loader->progress(), Progress::Done);
    home.clock.advance(1s);
    EXPECT_THAT(lists, ElementsAre("a1 a2 b1 e1")) << "nothing came of the other one";
}

TEST_F(ListLoaderTest, anEqualListIsTheOneBefore)
{
    listsOf(wish());
    const SharedRowTree before = tree;
    loadNow(library);
    EXPECT_THAT(listsOf(wish()), ElementsAre("same: a1 a2 b1 e1"));
    EXPECT_EQ(tree, before);
    setChromeHistory(u"Profile 1"_s, {u"new"_s});
    loadNow(library);
    EXPECT_THAT(listsOf(wish()), ElementsAre("same: a1 a2 e1 new"));
    EXPECT_NE(tree, before);
}

TEST_F(ListLoaderTest, aReloadAsksAgainAndIsNoNewWish)
{
    listsOf(wish(u"a"_s), 250ms);
    loadNow(library);
    recordReads();
    progress.clear();
    EXPECT_THAT(listsOf(wish(u"a"_s), 250ms), ElementsAre("same: a1 a2 b1 e1"));
    EXPECT_EQ(takeReads().size(), 3);
    EXPECT_THAT(progress, ElementsAre(Progress::Waiting, Progress::Reloading, Progress::Done));
    ListWish other = wish(u"a"_s);
    other.sourceID = u"edge/Default"_s;
    EXPECT_THAT(listsOf(other, 250ms), ElementsAre("e1"));
}

TEST_F(ListLoaderTest, theSnapshotStandsInUntilTheDatabasesHaveAnswered)
{
    setChromeHistory(u"Profile 1"_s, {u"new"_s});
    Gate gate;
    recordReads(&gate);
    loader->load(wish());
    ASSERT_TRUE(waitUntil([&gate] { return gate.readerHasCome(); }));
    EXPECT_THAT(lists, ElementsAre("a1 a2 b1 e1"));
    EXPECT_EQ(loader->progress(), Progress::Working);
    gate.open();
    finish();
    EXPECT_THAT(lists, ElementsAre("a1 a2 b1 e1", "same: a1 a2 e1 new"));
    EXPECT_THAT(progress, ElementsAre(Progress::Working, Progress::Done));
    loader.reset();
}

TEST_F(ListLoaderTest, whatOnlyStoodInIsNoAnswer)
{
    setChromeHistory(u"Profile 1"_s, {u"new"_s});
    Gate gate;
    recordReads(&gate);
    loader->load(wish());
    ASSERT_TRUE(waitUntil([&gate] { return gate.readerHasCome(); }));
    loader->load(wish(u"x"_s));
    gate.open();
    loader->load(wish());
    finish();
    EXPECT_EQ(lists.back(), "same: a1 a2 e1 new");
    loader.reset();
}

TEST_F(ListLoaderTest, aReloadNeedsNothingToStandIn)
{
    listsOf(wish());
    loadNow(library);
    setChromeHistory(u"Profile 1"_s, {u"new"_s});
    EXPECT_THAT(listsOf(wish()), ElementsAre("same: a1 a2 e1 new")) << "what was shown stays until then";
}

TEST_F(ListLoaderTest, anOutdatedListIsMadeAgainOfTheSameRows)
{
    listsOf(wish());
    recordReads();
    loader->outdate();
    EXPECT_THAT(listsOf(wish()), ElementsAre("same: a1 a2 b1 e1"));
    EXPECT_TRUE(takeReads().isEmpty());
    EXPECT_THAT(listsOf(wish()), IsEmpty());
}

TEST_F(ListLoaderTest, whatWasTypedIsFoundOnceWhenMidnightPasses)
{
    EXPECT_THAT(listsOf(wish(u"a"_s), 250ms), ElementsAre("a1 a2 b1 e1"));
    recordReads();
    // Its rows are known, so nobody waits, and nobody is asked.
    loader->outdate();
    EXPECT_THAT(listsOf(wish(u"a"_s)), ElementsAre("same: a1 a2 b1 e1"));
    EXPECT_TRUE(takeReads().isEmpty());

    // What was typed a moment ago waits anew, and is looked for once.
    lists.clear();
    loader->load(wish(u"a1"_s));
    home.clock.advance(200ms);
    loader->outdate();
    EXPECT_EQ(loader->progress(), Progress::Done);
    loader->load(wish(u"a1"_s));
    EXPECT_EQ(loader->progress(), Progress::Waiting);
    home.clock.advance(200ms);
    EXPECT_EQ(loader->progress(), Progress::Waiting);
    EXPECT_THAT(lists, IsEmpty());
    home.clock.advance(50ms);
    finish();
    EXPECT_THAT(lists, ElementsAre("a1"));
}

TEST_F(ListLoaderTest, whatIsBeingLookedForComesOnceWhenMidnightPasses)
{
    loader->load(wish(u"a1"_s));
    home.clock.advance(250ms);
    EXPECT_EQ(loader->progress(), Progress::Working);
    loader->outdate();
    EXPECT_THAT(listsOf(wish(u"a1"_s), 250ms), ElementsAre("a1"));
}

TEST_F(ListLoaderTest, aTypedWordIsInYesterdaysSectionOnceMidnightHasPassed)
{
    ListWish typed = wish(u"a1"_s);
    typed.grouping = Grouping::Day;
    EXPECT_THAT(listsOf(typed, 250ms), ElementsAre("Today a1"));
    home.clock.advance(24h);
    loader->outdate();
    EXPECT_THAT(listsOf(typed), ElementsAre("same: Yesterday a1"));
}

TEST_F(ListLoaderTest, aWishMayComeWhileAListIsShown)
{
    bool isAsked = false;
    QObject::connect(loader.get(), &ListLoader::listLoaded, loader.get(), [&] {
        if (!std::exchange(isAsked, true))
            loader->load(wish(u"a1"_s));
    });
    loader->load(wish());
    ASSERT_TRUE(waitUntil([this] { return loader->progress() == Progress::Waiting; }));
    home.clock.advance(250ms);
    finish();
    EXPECT_THAT(lists, ElementsAre("a1 a2 b1 e1", "a1"));
}

TEST_F(ListLoaderTest, withTheHistoriesInMemoryEachLetterHasItsList)
{
    readIntoMemory();
    recordReads();
    for (const QString &typed : {u"a"_s, u"a1"_s, u"a1."_s})
        loader->load(wish(typed));
    awaitLists(1);
    EXPECT_THAT(lists, ElementsAre("a1")) << "of letters at once the last one";
    loader->load(wish(u"a"_s));
    awaitLists(2);
    loader->load(wish(u"a2"_s));
    awaitLists(3);
    EXPECT_THAT(lists, ElementsAre("a1", "a1 a2 b1 e1", "a2"));
    EXPECT_THAT(progress, ::testing::Each(AnyOf(Progress::Looking, Progress::Done)))
        << "there was nothing to wait for";
    home.clock.advance(1s);
    EXPECT_EQ(loader->progress(), Progress::Done);
    EXPECT_TRUE(takeReads().isEmpty());
}

TEST_F(ListLoaderTest, theMostVisitedPagesComeFromMemoryToo)
{
    readIntoMemory();
    recordReads();
    ListWish most = wish({}, Mode::MostVisited);
    EXPECT_THAT(listsOf(most), ElementsAre("a1 a2 b1 e1"));
    EXPECT_TRUE(takeReads().isEmpty());
}

TEST_F(ListLoaderTest, whereMemoryIsOldTheDatabasesAreAskedAfterTheWait)
{
    readIntoMemory();
    setChromeHistory(u"Profile 1"_s, {u"new"_s});
    recordReads();
    loader->load(wish(u"example"_s));
    ASSERT_TRUE(waitUntil([this] { return loader->progress() == Progress::Waiting; }));
    EXPECT_THAT(lists, IsEmpty());
    home.clock.advance(250ms);
    finish();
    EXPECT_THAT(lists, ElementsAre("a1 a2 e1 new"));
    ASSERT_TRUE(waitUntil([this] {
        const HistoryQuery query = HistoryQuery::matching(u"x"_s, {}, HistoryQuery::Order::Latest);
        return library.queryHistory(query, {}).known().has_value();
    })) << "memory was told";
    EXPECT_THAT(takeReads(), ::testing::Each(u"chrome/Profile 1"_s));
    loader->load(wish(u"new"_s));
    awaitLists(2);
    EXPECT_EQ(lists.back(), "new") << "the next letter does not wait";
}

TEST_F(ListLoaderTest, theWaitMayEndBeforeMemoryHasAnswered)
{
    readIntoMemory();
    setChromeHistory(u"Profile 1"_s, {u"new"_s});
    loader->load(wish(u"example"_s));
    home.clock.advance(250ms);
    finish();
    EXPECT_THAT(lists, ElementsAre("a1 a2 e1 new"));
}

TEST_F(ListLoaderTest, sortingWhileMemoryIsAskedIsDoneWithItsAnswer)
{
    readIntoMemory();
    recordReads();
    loader->load(wish(u"example"_s));
    ListWish sorted = wish(u"example"_s);
    sorted.order = {{SortColumn::Title, SortOrder::Reverse}};
    loader->load(sorted);
    awaitLists(1);
    EXPECT_THAT(lists, ElementsAre("e1 b1 a2 a1"));
    home.clock.advance(1s);
    finish();
    EXPECT_EQ(lists.size(), 1U);
    EXPECT_TRUE(takeReads().isEmpty());
}

TEST_F(ListLoaderTest, bookmarksWaitAlsoWithHistoriesInMemory)
{
    readIntoMemory();
    loader->load(wish(u"mark"_s, Mode::Bookmarks));
    EXPECT_EQ(loader->progress(), Progress::Waiting);
    home.clock.advance(150ms);
    finish();
    EXPECT_THAT(lists, ElementsAre("Mark"));
}

TEST_F(ListLoaderTest, whatIsTypedBeforeThereAreSourcesIsReadIntoMemoryOnceThereAre)
{
    Library fresh(home.platform());
    ListLoader early(fresh, home.clock, std::make_shared<const Collation>(u"en_US"_s),
                     [] { return UserCalendar{.timeZone = u"UTC"_s, .locale = u"en_US"_s}; });
    fresh.setSearching(true);
    loadNow(fresh);
    ListWish typed = wish(u"a"_s);
    typed.generation = fresh.generation();
    early.load(typed);
    EXPECT_TRUE(waitUntil([&fresh] { return fresh.isReadyForSearch(); }));
}

TEST_F(ListLoaderTest, whatStandsInIsSortedAtOnce)
{
    setChromeHistory(u"Profile 1"_s, {u"new"_s});
    Gate gate;
    recordReads(&gate);
    ListWish sorted = wish();
    sorted.order = {{SortColumn::Title, SortOrder::Reverse}};
    loader->load(wish());
    loader->load(sorted);
    ASSERT_TRUE(waitUntil([&gate] { return gate.readerHasCome(); }));
    EXPECT_THAT(lists, ElementsAre("e1 b1 a2 a1")) << "asked for before anything was there";
    sorted.grouping = Grouping::Site;
    loader->load(sorted);
    awaitLists(2);
    EXPECT_EQ(lists[1], "a1.example a2.example b1.example edge.example a1 a2 b1 e1");
    gate.open();
    finish();
    EXPECT_EQ(lists.back(), "same: a1.example a2.example edge.example new.example a1 a2 e1 new");
    loader.reset();
}

TEST_F(ListLoaderTest, sortingWhileTypingIsWaitedForDoesNotShortenTheWait)
{
    setChromeHistory(u"Profile 1"_s, {u"new"_s});
    Gate gate;
    recordReads(&gate);
    loader->load(wish());
    ASSERT_TRUE(waitUntil([&gate] { return gate.readerHasCome(); }));
    gate.open();
    loader->load(wish(u"a1"_s));
    ListWish sorted = wish(u"a1"_s);
    sorted.order = {{SortColumn::Title, SortOrder::Reverse}};
    loader->load(sorted);
    EXPECT_EQ(loader->progress(), Progress::Waiting);
    home.clock.advance(249ms);
    EXPECT_EQ(loader->progress(), Progress::Waiting);
    home.clock.advance(1ms);
    finish();
    EXPECT_EQ(lists.back(), "a1");
    loader.reset();
}

TEST_F(ListLoaderTest, aReloadDuringASearchSupersedesIt)
{
    Gate gate;
    recordReads(&gate);
    loader->load(wish(u"example"_s));
    home.clock.advance(250ms);
    gate.awaitReader();
    setChromeHistory(u"Profile 1"_s, {u"new"_s});
    loadNow(library);
    loader->load(wish(u"example"_s));
    gate.open();
    home.clock.advance(250ms);
    finish();
    EXPECT_THAT(lists, ElementsAre("a1 a2 e1 new"));
    loader.reset();
}

TEST_F(ListLoaderTest, whatIsCancelledIsDoneWith)
{
    loader->load(wish(u"a1"_s));
    loader->cancel();
    EXPECT_EQ(loader->progress(), Progress::Done);
    home.clock.advance(1s);
    EXPECT_THAT(lists, IsEmpty());
    EXPECT_THAT(listsOf(wish(u"a1"_s), 250ms), ElementsAre("a1")) << "and can be wished for again";
    loader->load(wish(u"a2"_s));
    loader->outdate();
    EXPECT_EQ(loader->progress(), Progress::Done);
}

TEST_F(ListLoaderTest, aLateAnswerBringsNothingBackIntoMemory)
{
    readIntoMemory();
    setChromeHistory(u"Profile 1"_s, {u"new"_s});
    loader->load(wish(u"example"_s));
    library.endSearch();
    home.clock.advance(250ms);
    finish();
    EXPECT_FALSE(library.isReadyForSearch());
    EXPECT_TRUE(waitUntil([this] { return home.leftovers().isEmpty(); }));
    EXPECT_FALSE(library.isReadyForSearch());
}

TEST_F(ListLoaderTest, whatThereIsNoMemoryForIsAnEmptyListThatSaysSo)
{
    std::vector<bool> lacksMemory;
    QObject::connect(loader.get(), &ListLoader::listLoaded, loader.get(),
                     [&](const ShownList &list) { lacksMemory.push_back(list.lacksMemory); });
    home.files.beforeStamp = [] { throw std::bad_alloc(); };
    EXPECT_THAT(listsOf(wish()), ElementsAre(""));
    // The next time there may be more.
    home.files.beforeStamp = {};
    loader->load(wish());
    finish();
    EXPECT_EQ(lists.back(), "same: a1 a2 b1 e1");
    EXPECT_THAT(lacksMemory, ElementsAre(true, false));
}

TEST_F(ListLoaderTest, nothingComesOnceTheLoaderIsGone)
{
    std::vector<std::string> late;
    QObject::connect(loader.get(), &ListLoader::listLoaded, &library,
                     [&late](const ShownList &list) { late.push_back(text(list)); });
    Gate gate;
    recordReads(&gate);
    loader->load(wish(u"a1"_s));
    home.clock.advance(250ms);
    gate.awaitReader();
    gate.open();
    loader.reset();
    home.clock.advance(1s);
    QCoreApplication::processEvents();
    EXPECT_THAT(late, IsEmpty());
    EXPECT_TRUE(home.leftovers().isEmpty()) << "what ran was waited for";
}

} // namespace
} // namespace roamlet::testing
