// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/BookmarkTable.h"
#include "App/Tables/BookmarkTree.h"
#include "App/Tables/TableTest.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// Chrome's Default has a bar with a folder in it and another bookmark, Profile 1 a bookmark, Edge nothing.
class BookmarkTablesTest : public TableTest
{
protected:
    void SetUp() override
    {
        addChromium();
        setBookmarks(
            u"Default"_s,
            {mark(u"5"_s, u"Zebra"_s, u"https://zoo.example/zebra"_s, newest - 60),
             sample::folderNode(
                 u"6"_s, u"Food"_s,
                 {mark(u"7"_s, u"Apple pie"_s, u"https://food.example/pie"_s, newest - 3600),
                  sample::folderNode(u"8"_s, u"Deep"_s,
                                     {mark(u"9"_s, u"Bread"_s, u"https://food.example/bread"_s, 0)})}),
             mark(u"10"_s, u"Ant"_s, u"https://zoo.example/ant"_s, newest - 40 * day)});
        setBookmarks(u"Profile 1"_s, {mark(u"5"_s, u"Report"_s, u"https://work.example/"_s, newest)});
        loadNow(*library);
    }

    static constexpr qint64 day = qint64{24} * 3600;

    static QJsonObject mark(const QString &id, const QString &title, const QString &url, qint64 added)
    {
        return sample::bookmarkNode(id, title, url, added == 0 ? 0 : sample::chromiumTime(added));
    }
    void setBookmarks(const QString &profile, const QJsonArray &children)
    {
        change([&] {
            sample::writeBookmarks(chromeFile(profile % u"/Bookmarks"),
                                   {{u"bookmark_bar"_s, sample::folderNode(u"1"_s, u"Bar"_s, children)}});
        });
    }
    /// Types into the search field and waits as long as a person does.
    void search(BookmarkTable &table, const ListWish &wish)
    {
        awaitList(table, [&] {
            table.setWish(wish);
            home.clock.advance(ListLoader::refineDelay);
        });
    }
};

using BookmarkTableTest = BookmarkTablesTest;
using BookmarkTreeTest = BookmarkTablesTest;

} // namespace

TEST_F(BookmarkTableTest, bookmarksHaveTheBrowsersOrderAtFirst)
{
    BookmarkTable table(services());
    show(table);
    EXPECT_EQ(text(table), "Zebra|Bar|6:12 AM|Chrome - Personal\n"
                           "Apple pie|Bar › Food|5:13 AM|Chrome - Personal\n"
                           "Bread|Bar › Food › Deep|Chrome - Personal\n"
                           "Ant|Bar|Mar 30, 6:13 AM|Chrome - Personal\n"
                           "Report|Bar|6:13 AM|Chrome - Work");
    EXPECT_EQ(table.rowCount(), 5);
    EXPECT_EQ(table.view().header()->sortIndicatorSection(), -1);
}

TEST_F(BookmarkTableTest, aSourceAndASiteNarrowTheList)
{
    BookmarkTable table(services());
    show(table, {.sourceID = u"chrome/Profile 1"_s});
    EXPECT_EQ(titles(table), "Report");
    awaitList(table, [&] { table.setWish({.site = u"zoo.example"_s}); });
    EXPECT_EQ(titles(table), "Zebra Ant");
    awaitList(table, [&] { table.setWish({.sourceID = u"chrome/Profile 1"_s, .site = u"zoo.example"_s}); });
    EXPECT_EQ(titles(table), "");
    EXPECT_EQ(table.whyItIsEmpty(), u"Nothing found on zoo.example");
    awaitList(table, [&] { table.setWish({.sourceID = u"chrome/Nobody"_s}); });
    EXPECT_EQ(table.whyItIsEmpty(), u"No bookmarks yet");
}

TEST_F(BookmarkTableTest, typedWordsAreSearchedForAfterAShorterWait)
{
    BookmarkTable table(services());
    show(table);
    expectNoList(table, [&] {
        table.setWish({.search = u" FOOD   bre"_s});
        home.clock.advance(ListLoader::refineDelay - 1ms);
    });
    awaitList(table, [&] { home.clock.advance(1ms); });
    EXPECT_EQ(titles(table), "Bread");
}

TEST_F(BookmarkTableTest, onlyTheLastOfQuickKeysMakesAList)
{
    BookmarkTable table(services());
    show(table);
    const QSignalSpy lists(&table, &LinkTable::rowCountChanged);
    for (const QString &typed : {u"a"_s, u"an"_s, u"ant"_s}) {
        table.setWish({.search = typed});
        home.clock.advance(ListLoader::refineDelay - 1ms);
    }
    awaitList(table, [&] { home.clock.advance(ListLoader::refineDelay); });
    EXPECT_EQ(titles(table), "Ant");
    EXPECT_EQ(lists.size(), 1);
}

TEST_F(BookmarkTableTest, whatIsTypedAndTakenBackMakesNoList)
{
    BookmarkTable table(services());
    show(table);
    expectNoList(table, [&] {
        table.setWish({.search = u"x"_s});
        table.setWish({});
        home.clock.advance(1s);
    });
    EXPECT_EQ(table.rowCount(), 5);
}

TEST_F(BookmarkTableTest, sitesAreSections)
{
    BookmarkTable table(services());
    show(table, {.grouping = Grouping::Site});
    EXPECT_EQ(titles(table), "food.example Apple pie Bread work.example Report zoo.example Zebra Ant");
}

TEST_F(BookmarkTableTest, aBookmarkWithoutADateIsTheNewest)
{
    BookmarkTable table(services());
    show(table);
    awaitList(table, [&] { clickHeader(table, BookmarkTable::Added); });
    EXPECT_EQ(titles(table), "Bread Report Zebra Apple pie Ant");
    awaitList(table, [&] { clickHeader(table, BookmarkTable::Added); });
    EXPECT_EQ(titles(table), "Ant Apple pie Zebra Report Bread");
}

TEST_F(BookmarkTableTest, aFolderThatWasFoundIsInSightInANarrowColumn)
{
    QJsonArray inner = {mark(u"9"_s, u"Bread"_s, u"https://food.example/sourdough"_s, 0)};
    for (int i = 0; i < 4; ++i)
        inner = {sample::folderNode(u"%1"_s.arg(20 + i), i == 0 ? u"Sourdough"_s : u"A folder around it"_s,
                                    inner)};
    setBookmarks(u"Default"_s, inner);
    loadNow(*library);
    BookmarkTable table(services());
    show(table, {.sourceID = u"chrome/Default"_s});
    search(table, {.sourceID = u"chrome/Default"_s, .search = u"sourdough"_s});
    ASSERT_EQ(titles(table), "Bread");
    TableView &view = table.view();
    const Look look = Look::of(view);
    view.setColumnWidth(BookmarkTable::Folder, look.measures.units(9));
    const QRect cell = view.visualRect(find(table, u"Bread"_s).siblingAtColumn(BookmarkTable::Folder));
    const QImage image = view.viewport()->grab().toImage().copy(cell);
    int marked = 0;
    for (int x = 0; x < image.width(); ++x)
        marked += image.pixelColor(x, image.height() / 4) == look.match ? 1 : 0;
    EXPECT_GT(marked, look.measures.unit * 2) << "the whole word";
}

TEST_F(BookmarkTableTest, theMenuEditsTheFolder)
{
    BookmarkTable table(services());
    show(table);
    rightClick(table, u"Apple pie"_s);
    choose(table, u"linkMenu"_s, u"Edit Chrome Bookmarks"_s);
    EXPECT_EQ(workspace.requests.value(0),
              (QStringList{u"page"_s, u"chrome"_s, u"Default"_s, u"chrome://bookmarks/?id=6"_s}));
}

TEST_F(BookmarkTreeTest, theOutermostFoldersAreOpenAtFirst)
{
    BookmarkTree table(services());
    show(table, {.sourceID = u"chrome/Default"_s});
    EXPECT_EQ(text(table), "Bar\n"
                           "  Zebra|6:12 AM\n"
                           "  Food +\n"
                           "  Ant|Mar 30, 6:13 AM");
    EXPECT_EQ(table.rowCount(), 4);
}

TEST_F(BookmarkTreeTest, allSourcesAreFolders)
{
    BookmarkTree table(services());
    show(table);
    EXPECT_EQ(titles(table), "Chrome - Personal Bar + Chrome - Work Bar + Edge - Office");
    EXPECT_EQ(table.rowCount(), 5);
}

TEST_F(BookmarkTreeTest, theUsersOrderOfTheSourcesIsFollowed)
{
    BookmarkTree table(services());
    show(table);
    awaitList(table, [&] { library->moveProfiles({2}, 0); });
    EXPECT_EQ(titles(table), "Edge - Office Chrome - Personal Bar + Chrome - Work Bar +");
}

TEST_F(BookmarkTreeTest, whatIsOpenStaysSoAfterAReload)
{
    BookmarkTree table(services());
    show(table, {.sourceID = u"chrome/Default"_s});
    doubleClick(table, u"Food"_s);
    EXPECT_EQ(titles(table), "Bar Zebra Food Apple pie Deep + Ant");
    setBookmarks(
        u"Default"_s,
        {sample::folderNode(u"6"_s, u"Food"_s, {mark(u"11"_s, u"Cake"_s, u"https://x.example/"_s, 0)}),
         sample::folderNode(u"12"_s, u"New"_s, {mark(u"13"_s, u"n"_s, u"https://n.example/"_s, 0)})});
    reload(table);
    EXPECT_EQ(titles(table), "Bar Food Cake New +");
    press(table, Qt::Key_Home);
    press(table, Qt::Key_Left);
    EXPECT_EQ(titles(table), "Bar +");
    awaitList(table, [&] { table.setWish({.sourceID = u"chrome/Profile 1"_s}); });
    awaitList(table, [&] { table.setWish({.sourceID = u"chrome/Default"_s}); });
    EXPECT_EQ(titles(table), "Bar +");
}

TEST_F(BookmarkTreeTest, aFolderThatWasClosedAroundTheCurrentRowStaysClosedAfterAReload)
{
    BookmarkTree table(services());
    show(table, {.sourceID = u"chrome/Default"_s});
    click(table, u"Zebra"_s);
    table.view().collapse(find(table, u"Bar"_s));
    EXPECT_EQ(currentTitle(table), u"Bar");
    setBookmarks(u"Default"_s, {mark(u"5"_s, u"Zebra"_s, u"https://zoo.example/zebra"_s, newest)});
    reload(table);
    EXPECT_EQ(titles(table), "Bar +");
    press(table, Qt::Key_Right);
    EXPECT_EQ(titles(table), "Bar Zebra");
}

TEST_F(BookmarkTreeTest, returnOpensTheSelectedLinksAlsoFromAFolder)
{
    BookmarkTree table(services());
    show(table, {.sourceID = u"chrome/Default"_s});
    click(table, u"Zebra"_s);
    click(table, u"Food"_s, Qt::ControlModifier);
    press(table, Qt::Key_Return);
    EXPECT_EQ(workspace.requests.value(0).value(3), u"https://zoo.example/zebra");
    EXPECT_EQ(titles(table), "Bar Zebra Food + Ant");
}

TEST_F(BookmarkTreeTest, foldersAreSortedInThemselves)
{
    BookmarkTree table(services());
    show(table, {.sourceID = u"chrome/Default"_s});
    press(table, Qt::Key_Home);
    press(table, Qt::Key_Asterisk);
    awaitList(table, [&] { clickHeader(table, BookmarkTree::Title); });
    EXPECT_EQ(titles(table), "Bar Ant Food Apple pie Deep Bread Zebra");
}

TEST_F(BookmarkTreeTest, returnOpensAFolderInPlaceAndALinkInItsBrowser)
{
    BookmarkTree table(services());
    show(table, {.sourceID = u"chrome/Default"_s});
    click(table, u"Food"_s);
    press(table, Qt::Key_Return);
    EXPECT_EQ(titles(table), "Bar Zebra Food Apple pie Deep + Ant");
    EXPECT_TRUE(workspace.requests.isEmpty());
    press(table, Qt::Key_Down);
    press(table, Qt::Key_Return);
    EXPECT_EQ(workspace.requests.value(0),
              (QStringList{u"profile"_s, u"chrome"_s, u"Default"_s, u"https://food.example/pie"_s}));
}

TEST_F(BookmarkTreeTest, aFolderThatClosesDeselectsWhatItHides)
{
    BookmarkTree table(services());
    show(table, {.sourceID = u"chrome/Default"_s});
    doubleClick(table, u"Food"_s);
    click(table, u"Apple pie"_s);
    click(table, u"Ant"_s, Qt::ControlModifier);
    EXPECT_EQ(selectedTitles(table), (QStringList{u"Apple pie"_s, u"Ant"_s})) << "from top to bottom";
    table.view().collapse(find(table, u"Food"_s));
    EXPECT_EQ(selectedTitles(table), QStringList{u"Ant"_s});
}

TEST_F(BookmarkTreeTest, aFolderHasAMenuOfItsOwn)
{
    BookmarkTree table(services());
    show(table, {.sourceID = u"chrome/Default"_s});
    rightClick(table, u"Food"_s);
    EXPECT_EQ(entries(menu(table, u"linkMenu"_s)), QStringList{u"Edit Chrome Bookmarks"_s});
}

TEST_F(BookmarkTreeTest, aFolderOfFirefoxIsEditedWithoutNamingIt)
{
    addFirefox(snapFirefox);
    loadNow(*library);
    BookmarkTree table(services());
    show(table, {.sourceID = u"firefox@snap/abc.default"_s});
    EXPECT_EQ(titles(table), "Bookmarks Toolbar Kept");
    rightClick(table, u"Bookmarks Toolbar"_s);
    choose(table, u"linkMenu"_s, u"Edit Firefox Bookmarks"_s);
    EXPECT_EQ(workspace.requests.value(0), (QStringList{u"page"_s, u"firefox@snap"_s, u"abc.default"_s,
                                                        u"chrome://browser/content/places/places.xhtml"_s}));
}

TEST_F(BookmarkTreeTest, aSearchChangesNothing)
{
    BookmarkTree table(services());
    show(table, {.sourceID = u"chrome/Default"_s});
    expectNoList(table, [&] {
        table.setWish({.sourceID = u"chrome/Default"_s, .search = u"x"_s, .site = u"y"_s});
        home.clock.advance(1s);
    });
}

TEST_F(BookmarkTreeTest, aSourceWithoutBookmarksSaysSo)
{
    BookmarkTree table(services());
    show(table, {.sourceID = u"edge/Default"_s});
    EXPECT_EQ(table.whyItIsEmpty(), u"No bookmarks yet");
}

} // namespace roamlet::testing
