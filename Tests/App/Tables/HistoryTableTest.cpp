// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/HistoryTable.h"

#include "App/Tables/TableTest.h"
#include "Support/Waiting.h"

#include <QHeaderView>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>
#include <new>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

class HistoryTableTest : public TableTest
{
protected:
    using Mode = HistoryTable::Mode;

    static constexpr qint64 hour = 3600;
    static constexpr qint64 day = 24 * hour;

    void SetUp() override
    {
        addChromium();
        setPages(u"Default"_s, {page(u"today"_s, 60, 3), page(u"yesterday"_s, day, 2),
                                page(u"monday"_s, 5 * day, 1234), page(u"old"_s, 40 * day, 1)});
        setPages(u"Profile 1"_s, {page(u"work"_s, 2 * hour, 7)});
        loadNow(*library);
    }

    /// Types into the search field and waits as long as a person does.
    void search(HistoryTable &table, const QString &text)
    {
        awaitList(table, [&] {
            table.setWish({.search = text});
            home.clock.advance(ListLoader::searchDelay);
        });
    }
};

} // namespace

TEST_F(HistoryTableTest, theNewestPagesComeFirst)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    EXPECT_EQ(text(table), "e1|6:14 AM|3|Edge - Office\n"
                           "today|6:12 AM|3|Chrome - Personal\n"
                           "work|4:13 AM|7|Chrome - Work\n"
                           "yesterday|Fri 6:13 AM|2|Chrome - Personal\n"
                           "monday|Mon 6:13 AM|1,234|Chrome - Personal\n"
                           "old|Mar 30, 6:13 AM|1|Chrome - Personal");
    EXPECT_EQ(table.rowCount(), 6);
    EXPECT_FALSE(table.isCapped());
}

TEST_F(HistoryTableTest, theMostVisitedPagesComeFirstInTheOtherMode)
{
    HistoryTable table(services(), Mode::MostVisited);
    show(table);
    EXPECT_EQ(titles(table).substr(0, 11), "monday work");
    EXPECT_EQ(table.view().accessibleName(), u"Most Visited");
}

TEST_F(HistoryTableTest, oneSourceIsShownAlone)
{
    HistoryTable table(services(), Mode::Recent);
    show(table, {.sourceID = u"chrome/Profile 1"_s});
    EXPECT_EQ(titles(table), "work");
    awaitList(table, [&] { table.setWish({.sourceID = u"chrome/Nobody"_s}); });
    EXPECT_EQ(titles(table), "");
}

TEST_F(HistoryTableTest, nothingIsReadUntilTheTableIsSeen)
{
    recordReads();
    HistoryTable table(services(), Mode::Recent);
    expectNoList(table,
                 [&] { table.setWish({.sourceID = u"chrome/Default"_s, .site = u"today.example"_s}); });
    EXPECT_TRUE(takeReads().isEmpty());
    show(table, {.sourceID = u"chrome/Profile 1"_s, .site = u"work.example"_s});
    EXPECT_EQ(takeReads(), QStringList{u"chrome/Profile 1"_s});
}

TEST_F(HistoryTableTest, aHiddenTableCatchesUpWhenItIsShown)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    table.hide();
    setPages(u"Profile 1"_s, {page(u"new"_s, 0)});
    expectNoList(table, [&] { loadNow(*library); });
    awaitList(table, [&] { table.show(); });
    EXPECT_EQ(titles(table), "e1 new today yesterday monday old");
}

TEST_F(HistoryTableTest, aReloadShowsNewPages)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    setPages(u"Profile 1"_s, {page(u"new"_s, 0), page(u"work"_s, 2 * hour)});
    reload(table);
    EXPECT_EQ(titles(table), "e1 new today work yesterday monday old");
    EXPECT_EQ(table.rowCount(), 7);
}

TEST_F(HistoryTableTest, typedWordsAreSearchedForAfterAWait)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    recordReads();
    expectNoList(table, [&] {
        table.setWish({.search = u"day"_s});
        home.clock.advance(ListLoader::searchDelay - 1ms);
    });
    EXPECT_TRUE(takeReads().isEmpty());
    awaitList(table, [&] { home.clock.advance(1ms); });
    EXPECT_EQ(titles(table), "today yesterday monday");
    EXPECT_EQ(takeReads().size(), 3);
}

TEST_F(HistoryTableTest, eachKeyStartsTheWaitAnew)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    recordReads();
    expectNoList(table, [&] {
        for (const QString &typed : {u"m"_s, u"mo"_s, u"mon"_s}) {
            table.setWish({.search = typed});
            home.clock.advance(ListLoader::searchDelay - 1ms);
        }
    });
    awaitList(table, [&] { home.clock.advance(1ms); });
    EXPECT_EQ(titles(table), "monday");
    EXPECT_EQ(takeReads().size(), 3) << "one search of three sources";
}

TEST_F(HistoryTableTest, anEmptiedFieldIsSearchedAtOnce)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    search(table, u"monday"_s);
    awaitList(table, [&] { table.setWish({}); });
    EXPECT_EQ(table.rowCount(), 6);
}

TEST_F(HistoryTableTest, blanksAreNoSearch)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    awaitList(table, [&] { table.setWish({.search = u"   "_s}); });
    EXPECT_EQ(table.rowCount(), 6);
}

TEST_F(HistoryTableTest, theSameSearchRunsOnce)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    search(table, u"day"_s);
    recordReads();
    // Typed and taken back before anything was searched.
    table.setWish({.search = u"days"_s});
    table.setWish({.search = u"day"_s});
    expectNoList(table, [&] { home.clock.advance(1s); });
    EXPECT_EQ(titles(table), "today yesterday monday");
    EXPECT_TRUE(takeReads().isEmpty());
}

TEST_F(HistoryTableTest, sortingAndGroupingSearchNothing)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    recordReads();
    awaitList(table, [&] { clickHeader(table, HistoryTable::Title); });
    awaitList(table, [&] { table.setWish({.grouping = Grouping::Site}); });
    EXPECT_TRUE(takeReads().isEmpty());
}

TEST_F(HistoryTableTest, aLateResultIsNotShown)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    Gate gate;
    recordReads(&gate);
    QStringList lists;
    QObject::connect(&table, &LinkTable::rowCountChanged, &table,
                     [&] { lists.append(QString::fromStdString(titles(table))); });
    table.setWish({.sourceID = u"chrome/Default"_s, .site = u"today.example"_s});
    gate.awaitReader();
    awaitList(table, [&] { table.setWish({.sourceID = u"edge/Default"_s, .site = u"edge.example"_s}); });
    gate.open();
    awaitList(table, [&] { table.setWish({.site = u"work.example"_s}); });
    EXPECT_EQ(lists, (QStringList{u"e1"_s, u"work"_s}));
}

TEST_F(HistoryTableTest, aSiteIsShownAlone)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    awaitList(table, [&] { table.setWish({.site = u"work.example"_s}); });
    EXPECT_EQ(titles(table), "work");
}

TEST_F(HistoryTableTest, aFullSearchIsCapped)
{
    QList<sample::HistoryRow> rows;
    for (int i = 0; i < HistoryQuery::defaultLimit + 5; ++i)
        rows.append(page(u"word"_s, i, 1, u"https://many.example/%1"_s.arg(i)));
    setPages(u"Default"_s, rows);
    loadNow(*library);
    HistoryTable table(services(), Mode::Recent);
    const QSignalSpy capped(&table, &HistoryTable::isCappedChanged);
    show(table);
    EXPECT_FALSE(table.isCapped());
    search(table, u"word"_s);
    EXPECT_TRUE(table.isCapped());
    EXPECT_EQ(capped.last().first(), true);
    EXPECT_EQ(table.rowCount(), 1000);
    search(table, u"work"_s);
    EXPECT_FALSE(table.isCapped());
}

TEST_F(HistoryTableTest, theColumnClickedLastDecidesFirst)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    const QHeaderView &header = *table.view().header();
    EXPECT_EQ(header.sortIndicatorSection(), HistoryTable::LastVisited);
    EXPECT_EQ(header.sortIndicatorOrder(), Qt::DescendingOrder);
    awaitList(table, [&] { clickHeader(table, HistoryTable::Title); });
    EXPECT_EQ(titles(table), "e1 monday old today work yesterday");
    EXPECT_EQ(header.sortIndicatorSection(), HistoryTable::Title);
    EXPECT_EQ(header.sortIndicatorOrder(), Qt::AscendingOrder);
    awaitList(table, [&] { clickHeader(table, HistoryTable::Title); });
    EXPECT_EQ(titles(table), "yesterday work today old monday e1");
    EXPECT_EQ(header.sortIndicatorOrder(), Qt::DescendingOrder);
    awaitList(table, [&] { clickHeader(table, HistoryTable::Source); });
    EXPECT_EQ(titles(table), "yesterday today old monday work e1") << "by source, then by title backwards";
    awaitList(table, [&] { clickHeader(table, HistoryTable::Visits); });
    EXPECT_EQ(titles(table), "monday work today e1 yesterday old") << "the most first";
}

TEST_F(HistoryTableTest, theMenuOfTheHeaderSortsToo)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    QTest::keyClick(table.view().header(), Qt::Key_Space);
    awaitList(table, [&] {
        auto *orders = table.findChild<QMenu *>(u"columnMenu"_s)->findChild<QMenu *>();
        orders->actions().value(HistoryTable::Title)->trigger();
    });
    EXPECT_EQ(titles(table), "e1 monday old today work yesterday");
    awaitList(table, [&] { choose(table, u"columnMenu"_s, u"Default Order"_s); });
    EXPECT_EQ(titles(table), "e1 today work yesterday monday old");
}

TEST_F(HistoryTableTest, daysAreSections)
{
    HistoryTable table(services(), Mode::Recent);
    show(table, {.grouping = Grouping::Day});
    EXPECT_EQ(titles(table),
              "Today e1 today work Yesterday yesterday Earlier This Week monday March 2026 old");
    EXPECT_EQ(table.rowCount(), 6);
    awaitList(table, [&] { clickHeader(table, HistoryTable::LastVisited); });
    EXPECT_EQ(titles(table),
              "March 2026 old Earlier This Week monday Yesterday yesterday Today work today e1");
}

TEST_F(HistoryTableTest, sitesAreSections)
{
    HistoryTable table(services(), Mode::Recent);
    show(table, {.grouping = Grouping::Site});
    EXPECT_EQ(titles(table).substr(0, 24), "edge.example e1 monday.e");
}

TEST_F(HistoryTableTest, theNextDayIsNoticedWhenTheWindowIsUsedAgain)
{
    HistoryTable table(services(), Mode::Recent);
    show(table, {.grouping = Grouping::Day});
    table.clearFocus();
    QWidget other;
    other.show();
    other.activateWindow();
    home.clock.jump(24h);
    awaitList(table, [&] { table.activateWindow(); });
    EXPECT_EQ(titles(table).substr(0, 22), "Yesterday e1 today wor");
}

TEST_F(HistoryTableTest, theNextDayIsNoticedWhenTheTableIsShownAgain)
{
    HistoryTable table(services(), Mode::Recent);
    show(table, {.grouping = Grouping::Day});
    table.hide();
    home.clock.advance(24h);
    awaitList(table, [&] { table.show(); });
    EXPECT_EQ(titles(table).substr(0, 22), "Yesterday e1 today wor");
}

TEST_F(HistoryTableTest, theNextDayBeginsAtMidnight)
{
    HistoryTable table(services(), Mode::Recent);
    show(table, {.grouping = Grouping::Day});
    const QDateTime now = QDateTime::fromSecsSinceEpoch(newest, QTimeZone::utc());
    const auto left = std::chrono::seconds(now.secsTo(now.date().addDays(1).startOfDay(QTimeZone::utc())));
    expectNoList(table, [&] { home.clock.advance(left - 10min); });
    EXPECT_EQ(titles(table).substr(0, 18), "Today e1 today wor");
    awaitList(table, [&] { home.clock.advance(10min); });
    EXPECT_EQ(titles(table).substr(0, 22), "Yesterday e1 today wor");
    awaitList(table, [&] { home.clock.advance(24h); });
    EXPECT_EQ(titles(table).substr(0, 14), "Last Week e1 t") << "and at every midnight";
}

TEST_F(HistoryTableTest, nobodyIsWokenAtMidnightForATableThatIsNotSeen)
{
    HistoryTable table(services(), Mode::Recent);
    show(table, {.grouping = Grouping::Day});
    table.hide();
    recordReads();
    expectNoList(table, [&] { home.clock.advance(48h); });
    EXPECT_TRUE(takeReads().isEmpty());
}

TEST_F(HistoryTableTest, whatWasFoundBeforeStandsWhileASearchRuns)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    Gate gate;
    recordReads(&gate);
    table.setWish({.search = u"day"_s});
    home.clock.advance(ListLoader::searchDelay);
    gate.awaitReader();
    EXPECT_TRUE(table.isWorking());
    EXPECT_EQ(titles(table), "e1 today work yesterday monday old") << "what was found before stands";
    awaitList(table, [&] { gate.open(); });
    EXPECT_EQ(titles(table), "today yesterday monday");
    EXPECT_FALSE(table.isWorking());
}

TEST_F(HistoryTableTest, aReloadThatTakesLongIsNotShown)
{
    Gate gate;
    HistoryTable table(services(), Mode::MostVisited);
    show(table);
    // The load itself passes; the table's own question after it stands at the gate.
    QObject::connect(library.get(), &Library::snapshotChanged, &table, [&] { recordReads(&gate); });
    library->load({});
    EXPECT_TRUE(waitUntil([&] { return gate.readerHasCome(); }));
    EXPECT_TRUE(table.isAwaited());
    home.clock.advance(1s);
    EXPECT_FALSE(table.isWorking());
    gate.open();
    EXPECT_TRUE(waitUntil([&] { return !table.isAwaited(); }));
}

TEST_F(HistoryTableTest, aSearchThatIsTakenBackNoLongerRuns)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    Gate gate;
    recordReads(&gate);
    table.setWish({.search = u"day"_s});
    home.clock.advance(ListLoader::searchDelay);
    gate.awaitReader();
    table.setWish({});
    home.clock.advance(1s);
    EXPECT_FALSE(table.isAwaited());
    EXPECT_FALSE(table.isWorking());
    gate.open();
    EXPECT_TRUE(waitUntil([this] { return home.leftovers().isEmpty(); }));
}

TEST_F(HistoryTableTest, theSnapshotsPagesAreShownUntilTheDatabasesAnswer)
{
    HistoryTable table(services(), Mode::Recent);
    // Visited since the snapshot was read.
    setPages(u"Profile 1"_s, {page(u"new"_s, 0)});
    Gate gate;
    recordReads(&gate);
    QStringList lists;
    QObject::connect(&table, &LinkTable::rowCountChanged, &table,
                     [&] { lists.append(QString::fromStdString(titles(table))); });
    table.resize(900, 400);
    table.show();
    EXPECT_TRUE(waitUntil([&] { return gate.readerHasCome(); }));
    EXPECT_TRUE(waitUntil([&] { return !lists.isEmpty(); }));
    EXPECT_EQ(lists, QStringList{u"e1 today work yesterday monday old"_s});
    EXPECT_TRUE(table.isAwaited());
    gate.open();
    EXPECT_TRUE(waitUntil([&] { return !table.isAwaited(); }));
    EXPECT_EQ(lists.last(), u"e1 new today yesterday monday old");
}

TEST_F(HistoryTableTest, whatOnlyStoodInForAnAnswerIsNoAnswer)
{
    Gate gate;
    HistoryTable table(services(), Mode::Recent);
    setPages(u"Profile 1"_s, {page(u"new"_s, 0)});
    recordReads(&gate);
    table.resize(900, 400);
    table.show();
    EXPECT_TRUE(waitUntil([&] { return gate.readerHasCome(); }));
    // Something else is asked for, and taken back, while the databases are still being read.
    table.setWish({.search = u"day"_s});
    gate.open();
    table.setWish({});
    EXPECT_TRUE(waitUntil([&] { return !table.isAwaited(); }));
    EXPECT_EQ(titles(table), "e1 new today yesterday monday old");
    EXPECT_TRUE(waitUntil([this] { return home.leftovers().isEmpty(); }));
}

TEST_F(HistoryTableTest, aStandInThatIsTakenBackBeforeItIsShownKeepsNothingBusy)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    recordReads();
    // All at once, so that no list can be made in between.
    table.setWish({.sourceID = u"chrome/Default"_s});
    table.setWish({.grouping = Grouping::Day});
    table.setWish({});
    EXPECT_TRUE(waitUntil([&] { return !table.isAwaited(); }));
    home.clock.advance(1s);
    EXPECT_FALSE(table.isWorking());
    EXPECT_EQ(titles(table), "e1 today work yesterday monday old");
}

TEST_F(HistoryTableTest, aStandInDoesNotTakeThePlaceOfWhatWasFound)
{
    HistoryTable table(services(), Mode::Recent);
    show(table);
    search(table, u"day"_s);
    // Cleared, and typed again before the databases have answered.
    table.setWish({});
    EXPECT_TRUE(table.isAwaited());
    table.setWish({.search = u"day"_s});
    EXPECT_FALSE(table.isAwaited());
    home.clock.advance(1s);
    EXPECT_FALSE(table.isAwaited()) << "the answer is known";
    EXPECT_TRUE(waitUntil([this] { return home.leftovers().isEmpty(); }));
    EXPECT_EQ(titles(table), "today yesterday monday");
}

TEST_F(HistoryTableTest, anEmptyListSaysWhy)
{
    HistoryTable table(services(), Mode::Recent);
    show(table, {.sourceID = u"edge/Default"_s});
    awaitList(table, [&] {
        table.setWish({.search = u"no & such"_s});
        home.clock.advance(ListLoader::searchDelay);
    });
    EXPECT_EQ(table.whyItIsEmpty(), u"Nothing found for “no & such”");
    awaitList(table, [&] { table.setWish({.site = u"nowhere.example"_s}); });
    EXPECT_EQ(table.whyItIsEmpty(), u"Nothing found on nowhere.example");
    awaitList(table, [&] { table.setWish({.sourceID = u"chrome/Nobody"_s}); });
    EXPECT_EQ(table.whyItIsEmpty(), u"No history yet");
}

TEST_F(HistoryTableTest, aListWithoutMemoryForItSaysSo)
{
    HistoryTable table(services(), Mode::Recent);
    home.files.beforeStamp = [] { throw std::bad_alloc(); };
    show(table);
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_EQ(table.whyItIsEmpty(), u"There is not enough memory for this list.");
    home.files.beforeStamp = {};
    awaitList(table, [&] { loadNow(*library); });
    EXPECT_EQ(table.rowCount(), 6);
}

} // namespace roamlet::testing
