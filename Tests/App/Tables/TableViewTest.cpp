// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/TableView.h"

#include "App/Tables/HistoryTable.h"
#include "App/Tables/TableHeader.h"
#include "App/Tables/TableTest.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// A page that is visited at another time than the others, or not at all.
struct Exception {
    int number = -1;
    std::optional<qint64> secondsAgo;
};

/// What every table does, shown on the one of the history.
class TableViewTest : public TableTest
{
protected:
    void SetUp() override
    {
        addChromium();
        setPages(u"Default"_s, {page(u"a"_s, 1), page(u"b"_s, 2), page(u"c"_s, 3)});
        setPages(u"Profile 1"_s, {page(u"w"_s, 86'400)});
        loadNow(*library);
    }

    /// Enough rows to scroll.
    void setManyPages(int count, int first = 0, const Exception &exception = {})
    {
        QList<sample::HistoryRow> rows;
        for (int i = first; i < count; ++i) {
            const std::optional<qint64> secondsAgo = i == exception.number ? exception.secondsAgo : i;
            if (!secondsAgo)
                continue;
            sample::HistoryRow row = page(u"p%1"_s.arg(i), *secondsAgo);
            row.id = 1000 - i;
            rows.append(row);
        }
        setPages(u"Default"_s, rows);
        loadNow(*library);
    }
    void scrollToMiddle() const
    {
        QScrollBar *bar = table.view().verticalScrollBar();
        bar->setValue(bar->maximum() / 2 + 3);
    }
    TableView &view() const { return table.view(); }
    QString topTitle() const { return table.view().indexAt({0, 0}).data().toString(); }
    QStringList requested(int i) const { return workspace.requests.value(i); }

    HistoryTable table{services(), HistoryTable::Mode::Recent};
};

} // namespace

TEST_F(TableViewTest, aDoubleClickOpensTheLinkWhereItCameFrom)
{
    show(table);
    doubleClick(table, u"w"_s);
    EXPECT_EQ(workspace.requests.size(), 1);
    EXPECT_EQ(requested(0),
              (QStringList{u"profile"_s, u"chrome"_s, u"Profile 1"_s, u"https://w.example/"_s}));
}

TEST_F(TableViewTest, returnOpensEveryRowOfTheSelection)
{
    show(table);
    click(table, u"a"_s);
    click(table, u"w"_s, Qt::ControlModifier);
    press(table, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(workspace.requests.size(), 2);
    EXPECT_EQ(requested(0).last(), u"https://a.example/");
    EXPECT_EQ(requested(1).last(), u"https://w.example/");
}

TEST_F(TableViewTest, returnWithoutASelectionOpensNothing)
{
    show(table);
    press(table, Qt::Key_Return);
    EXPECT_TRUE(workspace.requests.isEmpty());
}

TEST_F(TableViewTest, theSelectedRowsAreCopiedFromTopToBottom)
{
    show(table);
    click(table, u"c"_s);
    click(table, u"a"_s, Qt::ShiftModifier);
    press(table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              u"https://a.example/\nhttps://b.example/\nhttps://c.example/");
}

TEST_F(TableViewTest, copyingNothingLeavesTheClipboardAlone)
{
    show(table);
    QGuiApplication::clipboard()->setText(u"before"_s);
    press(table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"before");
}

TEST_F(TableViewTest, aRightClickIsAboutTheClickedRow)
{
    workspace.icons.insert(u"edge"_s, Qt::blue);
    show(table);
    click(table, u"a"_s);
    rightClick(table, u"b"_s);
    EXPECT_EQ(entries(menu(table, u"linkMenu"_s)),
              (QStringList{u"Show Chrome History"_s, u"-"_s, u"Open in Chrome"_s, u"Open in Edge"_s, u"-"_s,
                           u"Copy URL"_s, u"-"_s, u"Show Only b.example"_s}));
    choose(table, u"linkMenu"_s, u"Open in Edge"_s);
    EXPECT_EQ(requested(0), (QStringList{u"open"_s, u"edge"_s, u"https://b.example/"_s}));
}

TEST_F(TableViewTest, aRightClickOnTheSelectionIsAboutAllOfIt)
{
    show(table);
    click(table, u"a"_s);
    click(table, u"w"_s, Qt::ControlModifier);
    rightClick(table, u"a"_s);
    EXPECT_EQ(entries(menu(table, u"linkMenu"_s)),
              (QStringList{u"Open in Original Browsers"_s, u"-"_s, u"Copy 2 URLs"_s}));
    choose(table, u"linkMenu"_s, u"Copy 2 URLs"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"https://a.example/\nhttps://w.example/");
}

TEST_F(TableViewTest, theMenuKeyOpensTheMenuOfTheSelection)
{
    show(table);
    click(table, u"a"_s);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(table.view().viewport(), &event);
    const QSignalSpy sites(&table, &LinkTable::onlySiteRequested);
    choose(table, u"linkMenu"_s, u"Show Only a.example"_s);
    EXPECT_EQ(sites.value(0).value(0), u"a.example"_s);
}

TEST_F(TableViewTest, theHistoryPageOpensInItsProfile)
{
    show(table);
    rightClick(table, u"w"_s);
    choose(table, u"linkMenu"_s, u"Show Chrome History"_s);
    EXPECT_EQ(requested(0), (QStringList{u"page"_s, u"chrome"_s, u"Profile 1"_s, u"chrome://history/"_s}));
}

TEST_F(TableViewTest, aLinkOpensInTheInstallationThatItCameFrom)
{
    workspace.icons = {{u"chrome"_s, Qt::green}, {u"firefox"_s, Qt::red}};
    addChromeBeta();
    addFirefox(snapFirefox);
    loadNow(*library);
    show(table);
    rightClick(table, u"Beta"_s);
    EXPECT_EQ(entries(menu(table, u"linkMenu"_s)),
              (QStringList{u"Show Chrome History"_s, u"-"_s, u"Open in Chrome"_s, u"Open in Firefox"_s,
                           u"-"_s, u"Copy URL"_s, u"-"_s, u"Show Only beta.example"_s}));
    choose(table, u"linkMenu"_s, u"Open in Chrome"_s);
    EXPECT_EQ(requested(0),
              (QStringList{u"profile"_s, u"chrome@beta"_s, u"Default"_s, u"https://beta.example/"_s}));
    rightClick(table, u"Beta"_s);
    choose(table, u"linkMenu"_s, u"Show Chrome History"_s);
    EXPECT_EQ(requested(1), (QStringList{u"page"_s, u"chrome@beta"_s, u"Default"_s, u"chrome://history/"_s}));
    rightClick(table, u"Fox"_s);
    EXPECT_EQ(entries(menu(table, u"linkMenu"_s)),
              (QStringList{u"Show Firefox History"_s, u"-"_s, u"Open in Firefox"_s, u"Open in Chrome"_s,
                           u"-"_s, u"Copy URL"_s, u"-"_s, u"Show Only fox.example"_s}));
    choose(table, u"linkMenu"_s, u"Open in Firefox"_s);
    EXPECT_EQ(requested(2),
              (QStringList{u"profile"_s, u"firefox@snap"_s, u"abc.default"_s, u"https://fox.example/"_s}));
    rightClick(table, u"Fox"_s);
    choose(table, u"linkMenu"_s, u"Open in Chrome"_s);
    EXPECT_EQ(requested(3), (QStringList{u"open"_s, u"chrome"_s, u"https://fox.example/"_s}))
        << "the chosen browser itself decides which installation that is";
}

TEST_F(TableViewTest, thereIsNoMenuForHeadingsAndEmptySpace)
{
    show(table, {.grouping = Grouping::Day});
    rightClick(table, u"Today"_s);
    EXPECT_EQ(menu(table, u"linkMenu"_s), nullptr);
    QWidget *viewport = table.view().viewport();
    const QPoint below = viewport->rect().bottomLeft();
    QContextMenuEvent event(QContextMenuEvent::Mouse, below, viewport->mapToGlobal(below));
    QCoreApplication::sendEvent(viewport, &event);
    EXPECT_EQ(menu(table, u"linkMenu"_s), nullptr);
}

TEST_F(TableViewTest, selectionAndCurrentRowStayAfterAReload)
{
    show(table);
    click(table, u"a"_s);
    click(table, u"c"_s, Qt::ControlModifier);
    click(table, u"w"_s, Qt::ControlModifier);
    setPages(u"Profile 1"_s, {page(u"x"_s, 86'400)});
    change([this] {
        sample::writeHistory(edgeFile(u"Default/History"_s), {page(u"n1"_s, -5), page(u"n2"_s, -4)});
    });
    reload(table);
    // The row of the work profile is another page now, but the same entry of its history.
    EXPECT_EQ(titles(table), "n1 n2 a b c x");
    EXPECT_EQ(selectedTitles(table), (QStringList{u"a"_s, u"c"_s, u"x"_s}));
    EXPECT_EQ(currentTitle(table), u"x");
}

TEST_F(TableViewTest, aRowThatIsGoneIsNotSelectedAnyMore)
{
    show(table);
    click(table, u"c"_s);
    setPages(u"Default"_s, {page(u"a"_s, 1), page(u"b"_s, 2)});
    reload(table);
    EXPECT_TRUE(selectedTitles(table).isEmpty());
}

TEST_F(TableViewTest, theRowsOnScreenStayWhereTheyAreAfterAReload)
{
    setManyPages(100, 10);
    show(table, {.sourceID = u"chrome/Default"_s});
    QScrollBar *bar = table.view().verticalScrollBar();
    bar->setValue(bar->maximum() / 2 + 3);
    const QModelIndex top = table.view().indexAt({0, 0});
    const QString title = top.data().toString();
    const int offset = table.view().visualRect(top).top();
    awaitList(table, [&] { setManyPages(100); });
    const QModelIndex now = table.view().indexAt({0, 0});
    EXPECT_EQ(now.data().toString(), title);
    EXPECT_EQ(table.view().visualRect(now).top(), offset);
}

TEST_F(TableViewTest, theRowsOnScreenStayWhenTheTopmostIsGone)
{
    setManyPages(200);
    show(table, {.sourceID = u"chrome/Default"_s});
    click(table, u"p0"_s);
    scrollToMiddle();
    const QString gone = topTitle();
    const QString stays = table.view().indexBelow(table.view().indexAt({0, 0})).data().toString();
    const int place = table.view().visualRect(find(table, stays)).top();
    awaitList(table, [&] { setManyPages(200, 0, {.number = gone.mid(1).toInt(), .secondsAgo = {}}); });
    ASSERT_FALSE(find(table, gone).isValid());
    EXPECT_EQ(table.view().visualRect(find(table, stays)).top(), place);
    EXPECT_EQ(currentTitle(table), u"p0");
}

TEST_F(TableViewTest, theRowsOnScreenStayWhenTheTopmostIsVisitedAgain)
{
    setManyPages(200);
    show(table, {.sourceID = u"chrome/Default"_s});
    scrollToMiddle();
    const QString visited = topTitle();
    const QString stays = table.view().indexBelow(table.view().indexAt({0, 0})).data().toString();
    const int place = table.view().visualRect(find(table, stays)).top();
    awaitList(table, [&] { setManyPages(200, 0, {.number = visited.mid(1).toInt(), .secondsAgo = -1}); });
    ASSERT_EQ(find(table, visited).row(), 0);
    EXPECT_EQ(table.view().visualRect(find(table, stays)).top(), place);
}

TEST_F(TableViewTest, whereNothingIsLeftOnScreenTheScrollBarStays)
{
    setManyPages(200);
    show(table, {.sourceID = u"chrome/Default"_s});
    scrollToMiddle();
    const int value = table.view().verticalScrollBar()->value();
    awaitList(table, [&] { setManyPages(400, 200); });
    EXPECT_EQ(table.view().verticalScrollBar()->value(), value);
}

TEST_F(TableViewTest, returnOpensTheSelectionAlsoAfterAClickOnAHeading)
{
    show(table, {.grouping = Grouping::Day});
    click(table, u"w"_s);
    click(table, u"Today"_s);
    press(table, Qt::Key_Return);
    EXPECT_EQ(requested(0).value(3), u"https://w.example/");
    EXPECT_EQ(titles(table), "Today + Yesterday w");
}

TEST_F(TableViewTest, atTheTopNewRowsComeIntoSight)
{
    setManyPages(100, 10);
    show(table, {.sourceID = u"chrome/Default"_s});
    awaitList(table, [&] { setManyPages(100); });
    EXPECT_EQ(table.view().indexAt({0, 0}).data(), u"p0"_s);
}

TEST_F(TableViewTest, anotherOrderBeginsAtTheTop)
{
    setManyPages(100);
    show(table, {.sourceID = u"chrome/Default"_s});
    table.view().scrollToBottom();
    awaitList(table, [&] { clickHeader(table, HistoryTable::Title); });
    EXPECT_EQ(table.view().verticalScrollBar()->value(), 0);
}

TEST_F(TableViewTest, allLinksOfAllSectionsAreSelectedWithoutTheirHeadings)
{
    show(table, {.grouping = Grouping::Day});
    press(table, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(selectedTitles(table), (QStringList{u"e1"_s, u"a"_s, u"b"_s, u"c"_s, u"w"_s}));
}

TEST_F(TableViewTest, thousandsOfSectionsAreSelectedAtOnce)
{
    show(table);
    constexpr int count = 20'000;
    QList<HistoryItem> rows(count);
    QList<RowGroup<HistoryItem>> groups;
    for (int i = 0; i < count; ++i) {
        rows[i].id = u"%1"_s.arg(i);
        groups.append({.title = u"s%1"_s.arg(i), .site = {}, .rows = {&rows[i]}});
    }
    table.view().showTree(std::make_shared<RowTree>(RowTree::ofGroups(groups)), TableView::Scrolling::ToTop);
    // The view lists the rows once on each side of it.
    table.view().setColumnHidden(HistoryTable::Visits, true);
    QElapsedTimer timer;
    timer.start();
    press(table, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(table.view().selectedRows().size(), count);
    EXPECT_LE(table.view().selectionModel()->selection().size(), count + 1)
        << "the headings are a range, too";
    // Comparing each with all others takes many times as long.
    EXPECT_LT(timer.elapsed(), 3000);
}

TEST_F(TableViewTest, everyRowHasRoomForItsIcon)
{
    show(table, {.grouping = Grouping::Day});
    EXPECT_GT(table.view().visualRect(find(table, u"Today"_s)).height(), Look::of(table).measures.iconSide);
    EXPECT_GT(table.view().visualRect(find(table, u"a"_s)).height(), Look::of(table).measures.iconSide);
}

TEST_F(TableViewTest, whatIsTypedIsSearchedForAndJumpsNowhere)
{
    show(table);
    click(table, u"a"_s);
    QSignalSpy searches(&table, &LinkTable::searchRequested);
    press(table, Qt::Key_C);
    press(table, Qt::Key_Space);
    press(table, Qt::Key_Escape);
    press(table, Qt::Key_Backspace);
    EXPECT_EQ(searches, QList<QVariantList>{{u"c"_s}});
    EXPECT_EQ(currentTitle(table), u"a");
    EXPECT_EQ(selectedTitles(table), QStringList{u"a"_s});
}

TEST_F(TableViewTest, aReloadThatBringsNothingNewChangesNothing)
{
    show(table);
    const QSignalSpy resets(table.view().model(), &QAbstractItemModel::modelReset);
    reload(table);
    EXPECT_EQ(resets.size(), 0);
}

TEST_F(TableViewTest, aMillionCharactersArePaintedLikeAnyTitle)
{
    const QString million(1'000'000, u'x');
    setPages(u"Default"_s, {page(million, 1, 1, u"https://long.example/"_s % million)});
    loadNow(*library);
    show(table, {.sourceID = u"chrome/Default"_s, .grouping = Grouping::Site});
    EXPECT_FALSE(table.grab().isNull());
    table.view().resizeColumnToContents(0);
    EXPECT_LT(table.view().columnWidth(0), 20'000);
    EXPECT_EQ(table.rowCount(), 1);
}

TEST_F(TableViewTest, everyPartHasAName)
{
    show(table);
    EXPECT_EQ(table.view().objectName(), u"historyTable");
    EXPECT_EQ(table.view().accessibleName(), u"History");
    EXPECT_EQ(table.view().tableHeader().accessibleName(), u"Columns");
    EXPECT_TRUE(table.view().uniformRowHeights());
}

} // namespace roamlet::testing
