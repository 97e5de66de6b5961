// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/RowFolds.h"

#include "App/Tables/HistoryTable.h"
#include "App/Tables/TableTest.h"

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

class RowFoldsTest : public TableTest
{
protected:
    void SetUp() override
    {
        addChromium();
        setPages(u"Default"_s, {page(u"a"_s, 1), page(u"b"_s, 2), page(u"c"_s, 3)});
        setPages(u"Profile 1"_s, {page(u"w"_s, 86'400)});
        loadNow(*library);
    }

    HistoryTable table{services(), HistoryTable::Mode::Recent};
};

} // namespace

TEST_F(RowFoldsTest, aClickClosesASectionAndAnotherOpensIt)
{
    show(table, {.grouping = Grouping::Day});
    click(table, u"Today"_s);
    EXPECT_EQ(titles(table), "Today + Yesterday w");
    click(table, u"Today"_s);
    EXPECT_EQ(titles(table), "Today e1 a b c Yesterday w");
    EXPECT_TRUE(selectedTitles(table).isEmpty()) << "a heading is no link";
    doubleClick(table, u"Today"_s);
    EXPECT_EQ(titles(table), "Today e1 a b c Yesterday w") << "each click counts";
    EXPECT_TRUE(workspace.requests.isEmpty());
}

TEST_F(RowFoldsTest, keysCloseAndOpenSections)
{
    show(table, {.grouping = Grouping::Day});
    press(table, Qt::Key_Home);
    EXPECT_EQ(currentTitle(table), u"Today");
    press(table, Qt::Key_Left);
    EXPECT_EQ(titles(table), "Today + Yesterday w");
    press(table, Qt::Key_Right);
    EXPECT_EQ(titles(table), "Today e1 a b c Yesterday w");
    press(table, Qt::Key_Space);
    EXPECT_EQ(titles(table), "Today + Yesterday w");
    press(table, Qt::Key_Return);
    EXPECT_EQ(titles(table), "Today e1 a b c Yesterday w");
    press(table, Qt::Key_Down);
    EXPECT_EQ(selectedTitles(table), QStringList{u"e1"_s});
}

TEST_F(RowFoldsTest, aClosedSectionStaysClosedAfterAReload)
{
    show(table, {.grouping = Grouping::Day});
    click(table, u"Today"_s);
    setPages(u"Profile 1"_s, {page(u"x"_s, 0), page(u"w"_s, 86'400)});
    reload(table);
    EXPECT_EQ(titles(table), "Today + Yesterday w");
    EXPECT_EQ(table.rowCount(), 6) << "closed rows count";
    click(table, u"Today"_s);
    EXPECT_EQ(titles(table), "Today e1 x a b c Yesterday w");
}

TEST_F(RowFoldsTest, openingEverythingBelowStopsBeforeTheStackEnds)
{
    show(table);
    BookmarkNode node;
    node.url = u"https://deepest.example/"_s;
    for (int depth = 0; depth < 200'000; ++depth) {
        BookmarkNode folder;
        folder.id = u"%1"_s.arg(depth);
        folder.children = QList<BookmarkNode>{std::move(node)};
        node = std::move(folder);
    }
    const Collation collation(u"en_US"_s);
    table.view().showTree(std::make_shared<RowTree>(*RowTree::ofBookmarks({node}, {}, collation)),
                          TableView::Scrolling::ToTop);
    press(table, Qt::Key_Home);
    press(table, Qt::Key_Asterisk);
    QModelIndex inner = table.view().model()->index(0, 0);
    for (int depth = 0; depth < 50; ++depth)
        inner = inner.model()->index(0, 0, inner);
    EXPECT_TRUE(table.view().isExpanded(inner));
}

TEST_F(RowFoldsTest, withoutACurrentRowNothingIsOpenedBelowIt)
{
    show(table, {.grouping = Grouping::Day});
    table.view().setExpanded(find(table, u"Today"_s), false);
    table.view().setCurrentIndex({});
    press(table, Qt::Key_Asterisk);
    EXPECT_EQ(titles(table), "Today + Yesterday w");
}

TEST_F(RowFoldsTest, whatAClosedSectionHidesIsNotSelectedWhenTheSectionsComeBack)
{
    show(table, {.grouping = Grouping::Site});
    click(table, u"a.example"_s);
    awaitList(table, [&] { table.setWish({}); });
    click(table, u"b"_s);
    click(table, u"a"_s, Qt::ControlModifier);
    awaitList(table, [&] { table.setWish({.grouping = Grouping::Site}); });
    EXPECT_EQ(titles(table).substr(0, 23), "a.example + b.example b");
    EXPECT_EQ(selectedTitles(table), QStringList{u"b"_s});
    EXPECT_EQ(currentTitle(table), u"a.example");
}

} // namespace roamlet::testing
