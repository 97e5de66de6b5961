// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/ContentViewTest.h"

#include "App/Look/Contrast.h"
#include "App/Look/Painting.h"
#include "App/Look/PlainPalette.h"
#include "App/Window/ReloadButton.h"
#include "App/Window/Sidebar.h"

#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <QUrl>

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST_F(ContentViewTest, quietTextsAreReadableInAThemeThatHidesThem)
{
    const auto content = makeContent();
    for (const auto &[ground, text] : {std::pair(Qt::white, Qt::black), std::pair(Qt::black, Qt::white)}) {
        QPalette palette = paletteOf(ground, text);
        palette.setColor(QPalette::PlaceholderText, ground);
        content->setPalette(palette);
        const auto color = [&](const QString &name, QPalette::ColorRole role) {
            return part<QWidget>(*content, name)->palette().color(role);
        };
        EXPECT_GE(contrastRatio(color(u"listSubtitle"_s, QPalette::WindowText), ground), 4.5);
        EXPECT_GE(contrastRatio(color(u"searchField"_s, QPalette::PlaceholderText), ground), 4.5);
    }
}

TEST_F(ContentViewTest, saysThatItReadsUntilTheFirstLoadHasEnded)
{
    addChromium();
    const auto content = makeContent();
    for (const std::optional<Pane> &pane :
         {std::optional<Pane>(BookmarksPane()), std::optional<Pane>(MostVisitedPane()), std::optional<Pane>(),
          std::optional<Pane>(HistoryPane())}) {
        content->setPane(pane);
        EXPECT_EQ(subtitle(*content), u"Reading…");
    }
    loadNow(*library);
    expectSubtitle(*content, u"4 items"_s);
    EXPECT_EQ(title(*content), u"Recent History");
}

TEST_F(ContentViewTest, eachPaneHasItsTable)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    EXPECT_EQ(shownTable(*content), u"historyTable");
    content->setPane(BookmarksPane());
    EXPECT_EQ(shownTable(*content), u"bookmarkTree");
    expectSubtitle(*content, u"1 item"_s);
    content->setPane(MostVisitedPane());
    EXPECT_EQ(shownTable(*content), u"mostVisitedTable");
    EXPECT_EQ(title(*content), u"Most Visited");
    expectSubtitle(*content, u"4 items"_s);
    content->setPane(HistoryPane{u"chrome/Default"_s});
    EXPECT_EQ(title(*content), u"Personal History");
    expectSubtitle(*content, u"2 items"_s);
    content->setPane({});
    EXPECT_EQ(shownTable(*content), u"");
    EXPECT_EQ(title(*content), u"Roamlet");
    const auto titles = content->findChildren<QLabel *>(u"emptyStateTitle"_s);
    EXPECT_TRUE(std::ranges::any_of(titles, [](const QLabel *label) {
        return label->isVisible() && label->text() == u"Pick something in the sidebar";
    }));
}

TEST_F(ContentViewTest, theSidebarChoosesThePane)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    auto *sidebar = part<Sidebar>(*content, u"sidebar"_s);
    QTest::keyClick(sidebar, Qt::Key_Down);
    EXPECT_EQ(content->pane(), std::optional<Pane>(MostVisitedPane()));
    QTest::keyClick(sidebar, Qt::Key_Down);
    EXPECT_EQ(content->pane(), std::optional<Pane>(BookmarksPane()));
}

TEST_F(ContentViewTest, aSearchShowsBookmarksFlatAndClearingItTheTree)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    content->setPane(BookmarksPane());
    auto *field = part<QLineEdit>(*content, u"searchField"_s);
    EXPECT_EQ(field->placeholderText(), u"Title or URL");
    QTest::keyClicks(field, u"  "_s);
    EXPECT_EQ(shownTable(*content), u"bookmarkTree");
    QTest::keyClicks(field, u"nowhere"_s);
    EXPECT_EQ(shownTable(*content), u"bookmarkTable");
    expectSubtitle(*content, u"0 items"_s);
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(field->text(), u"");
    EXPECT_EQ(shownTable(*content), u"bookmarkTree");
    expectSubtitle(*content, u"1 item"_s);
}

TEST_F(ContentViewTest, theSearchFieldHasAButtonThatClearsItWhenThereIsSomething)
{
    const auto content = makeContent();
    auto *field = part<QLineEdit>(*content, u"searchField"_s);
    auto *clear = field->findChild<QAction *>(u"clearSearch"_s);
    EXPECT_FALSE(clear->isVisible());
    QTest::keyClicks(field, u"x"_s);
    EXPECT_TRUE(clear->isVisible());
    clear->trigger();
    EXPECT_EQ(field->text(), u"");
    EXPECT_FALSE(clear->isVisible());
}

TEST_F(ContentViewTest, groupedBySiteBookmarksStayFlatWithoutASearch)
{
    addChromium();
    loadNow(*library);
    home.defaults.setString(u"grouping.bookmarks"_s, u"site"_s);
    const auto content = makeContent();
    content->setPane(BookmarksPane());
    EXPECT_EQ(shownTable(*content), u"bookmarkTable");
    const QList<QAction *> choices = content->groupingMenu()->actions();
    ASSERT_EQ(choices.size(), 2);
    EXPECT_EQ(choices[0]->text(), u"Folders");
    EXPECT_TRUE(choices[1]->isChecked());
    choices[0]->trigger();
    EXPECT_EQ(shownTable(*content), u"bookmarkTree");
    EXPECT_EQ(home.defaults.string(u"grouping.bookmarks"_s), u"none"_s);
}

TEST_F(ContentViewTest, eachListOffersItsOwnGroupings)
{
    const auto content = makeContent();
    const auto offered = [&content] {
        QStringList result;
        for (const QAction *action : content->groupingMenu()->actions())
            result.append(action->text());
        return result;
    };
    EXPECT_EQ(offered(), QStringList({u"None"_s, u"Day"_s, u"Site"_s}));
    content->groupingMenu()->actions()[1]->trigger();
    EXPECT_EQ(home.defaults.string(u"grouping.history"_s), u"day"_s);
    content->setPane(MostVisitedPane());
    EXPECT_EQ(offered(), QStringList({u"None"_s, u"Site"_s}));
    EXPECT_TRUE(content->groupingMenu()->actions()[0]->isChecked());
    content->setPane({});
    EXPECT_EQ(offered(), QStringList());
}

TEST_F(ContentViewTest, aStoredGroupingThatTheListDoesNotHaveIsNone)
{
    home.defaults.setString(u"grouping.history"_s, u"month"_s);
    home.defaults.setString(u"grouping.mostVisited"_s, u"day"_s);
    home.defaults.setStringList(u"grouping.bookmarks"_s, {u"site"_s, u"day"_s});
    const auto content = makeContent();
    for (const Pane &pane : {Pane(HistoryPane()), Pane(MostVisitedPane()), Pane(BookmarksPane())}) {
        content->setPane(pane);
        EXPECT_TRUE(content->groupingMenu()->actions()[0]->isChecked());
    }
}

TEST_F(ContentViewTest, oneSiteIsShownUnderABarThatLeadsBack)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    EXPECT_FALSE(isShown(*content, u"siteFilterBar"_s));
    content->setSite(u"a1.example"_s);
    EXPECT_TRUE(isShown(*content, u"siteFilterBar"_s));
    EXPECT_EQ(part<QWidget>(*content, u"siteFilterText"_s)->accessibleName(), u"Only a1.example");
    expectSubtitle(*content, u"1 item"_s);
    // Another pane keeps it.
    content->setPane(BookmarksPane());
    EXPECT_TRUE(isShown(*content, u"siteFilterBar"_s));
    EXPECT_EQ(shownTable(*content), u"bookmarkTable");
    QTest::mouseClick(part<QPushButton>(*content, u"showAllSitesButton"_s), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return !isShown(*content, u"siteFilterBar"_s); }));
    EXPECT_EQ(shownTable(*content), u"bookmarkTree");
}

TEST_F(ContentViewTest, anotherPaneKeepsTheSearch)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    QTest::keyClicks(part<QLineEdit>(*content, u"searchField"_s), u"a1"_s);
    expectSubtitle(*content, u"1 item"_s);
    content->setPane(HistoryPane{u"chrome/Profile 1"_s});
    expectSubtitle(*content, u"0 items"_s);
    content->setPane(MostVisitedPane());
    expectSubtitle(*content, u"1 item"_s);
    EXPECT_EQ(part<QLineEdit>(*content, u"searchField"_s)->text(), u"a1");
}

TEST_F(ContentViewTest, aRefusalOfSafarisFilesShowsTheBanner)
{
    addSafari();
    fail(safariFile(u"History.db"_s), std::errc::operation_not_permitted);
    const auto content = makeContent();
    EXPECT_FALSE(isShown(*content, u"fullDiskAccessBanner"_s));
    loadNow(*library);
    EXPECT_TRUE(isShown(*content, u"fullDiskAccessBanner"_s));
    EXPECT_EQ(part<QLabel>(*content, u"fullDiskAccessHeading"_s)->text(), u"Roamlet can't read Safari yet");
    EXPECT_EQ(part<QLabel>(*content, u"fullDiskAccessText"_s)->text(),
              u"Turn on Roamlet in Privacy & Security › Full Disk Access, then reload.");
    QTest::mouseClick(part<QPushButton>(*content, u"openSettingsButton"_s), Qt::LeftButton);
    EXPECT_EQ(
        workspace.requests,
        QList<QStringList>(
            {{u"system"_s, u"x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles"_s}}));
    home.files.failure = {};
    QTest::mouseClick(part<QPushButton>(*content, u"bannerReloadButton"_s), Qt::LeftButton);
    EXPECT_TRUE(library->isLoading());
    EXPECT_TRUE(waitUntil([&] { return !isShown(*content, u"fullDiskAccessBanner"_s); }));
}

TEST_F(ContentViewTest, whereAFilesPermissionsAreInTheWayTheBannerLeadsToThem)
{
    addSafari();
    const QString history = safariFile(u"History.db"_s);
    const auto before = QFile::permissions(history);
    ASSERT_TRUE(QFile::setPermissions(history, {}));
    if (QFileInfo(history).isReadable()) {
        QFile::setPermissions(history, before);
        GTEST_SKIP() << "permissions stop nobody here";
    }
    loadNow(*library);
    const auto content = makeContent();
    EXPECT_THAT(part<QLabel>(*content, u"fullDiskAccessDetails"_s)->text().toStdString(),
                ::testing::HasSubstr("your permission to read it is missing"));
    QTest::mouseClick(part<QPushButton>(*content, u"openSettingsButton"_s), Qt::LeftButton);
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"system"_s, QUrl::fromLocalFile(safariFile({})).toString().chopped(1)}}));
    QFile::setPermissions(history, before);
}

TEST_F(ContentViewTest, theTabKeyGoesFromAboveWhicheverStripCameFirst)
{
    addSafari();
    addChromium();
    fail(safariFile(u"History.db"_s), std::errc::operation_not_permitted);
    for (const bool isSiteFirst : {true, false}) {
        const auto content = makeContent();
        if (isSiteFirst)
            content->setSite(u"a1.example"_s);
        loadNow(*library);
        content->setSite(u"a1.example"_s);
        ASSERT_TRUE(isShown(*content, u"fullDiskAccessBanner"_s));
        QStringList names;
        for (const QWidget *next = part<QLineEdit>(*content, u"searchField"_s)->nextInFocusChain();
             names.size() < 5; next = next->nextInFocusChain()) {
            if ((next->focusPolicy() & Qt::TabFocus) != 0 && next->isVisible() &&
                next->focusProxy() == nullptr)
                names.append(next->objectName());
        }
        EXPECT_EQ(names, (QStringList{u"menuButton"_s, u"openSettingsButton"_s, u"bannerReloadButton"_s,
                                      u"showAllSitesButton"_s, u"historyTable"_s}))
            << isSiteFirst;
    }
}

TEST_F(ContentViewTest, theArrowTurnsWhileAReloadRuns)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    auto *button = part<ReloadButton>(*content, u"reloadButton"_s);
    EXPECT_FALSE(button->isReloading());
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(button->isReloading());
    EXPECT_TRUE(library->isLoading());
    EXPECT_TRUE(waitUntil([&] { return !library->isLoading(); }));
    EXPECT_FALSE(button->isReloading());
}

TEST_F(ContentViewTest, theFirstReadingIsSeenToRunOnceItTakesLong)
{
    addChromium();
    const auto content = makeContent();
    home.clock.advance(149ms);
    EXPECT_FALSE(isShown(*content, u"busyBar"_s));
    home.clock.advance(1ms);
    EXPECT_TRUE(isShown(*content, u"busyBar"_s));
    EXPECT_EQ(part<QWidget>(*content, u"busyBar"_s)->accessibleName(), u"Reading");
    loadNow(*library);
    EXPECT_TRUE(waitUntil([&] { return !isShown(*content, u"busyBar"_s); }));
}

TEST_F(ContentViewTest, aSearchIsSeenToRunOnceItTakesLong)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    expectSubtitle(*content, u"4 items"_s);
    Gate gate;
    recordReads(&gate);
    auto *field = part<QLineEdit>(*content, u"searchField"_s);
    field->setText(u"a1"_s);
    home.clock.advance(ListLoader::searchDelay);
    gate.awaitReader();
    EXPECT_FALSE(isShown(*content, u"busyBar"_s));
    home.clock.advance(149ms);
    EXPECT_FALSE(isShown(*content, u"busyBar"_s));
    home.clock.advance(1ms);
    EXPECT_TRUE(isShown(*content, u"busyBar"_s));
    EXPECT_EQ(part<QWidget>(*content, u"busyBar"_s)->accessibleName(), u"Searching");
    gate.open();
    expectSubtitle(*content, u"1 item"_s);
    EXPECT_FALSE(isShown(*content, u"busyBar"_s));
}

TEST_F(ContentViewTest, theExportIsThereOnlyWithBookmarks)
{
    addChromium();
    const auto content = makeContent();
    std::optional<ExportRequest> request;
    QObject::connect(content.get(), &ContentView::exportRequested,
                     [&request](const ExportRequest &wanted) { request = wanted; });
    EXPECT_FALSE(part<QWidget>(*content, u"exportButton"_s)->isEnabled());
    EXPECT_FALSE(content->exportAction().has_value());
    loadNow(*library);
    ASSERT_TRUE(content->exportAction().has_value());
    EXPECT_EQ(content->exportAction()->sourceID, std::nullopt);
    content->setPane(BookmarksPane{u"edge/Default"_s});
    EXPECT_EQ(content->exportAction()->sourceID, std::nullopt);
    content->setPane(BookmarksPane{u"chrome/Default"_s});
    EXPECT_EQ(content->exportAction()->sourceID, u"chrome/Default"_s);
    QTest::mouseClick(part<QWidget>(*content, u"exportButton"_s), Qt::LeftButton);
    EXPECT_EQ(request, ExportRequest{.sourceID = u"chrome/Default"_s});
}

TEST_F(ContentViewTest, whileASearchRunsTheSubtitleIsThatOfTheRowsThatAreStillShown)
{
    addChromium();
    setChromeHistory(u"Default"_s, QStringList(1000, u"word"_s));
    loadNow(*library);
    const auto content = makeContent();
    content->setPane(HistoryPane{u"chrome/Default"_s});
    expectSubtitle(*content, u"1,000 items · latest 1,000"_s);
    const QString before = subtitle(*content);
    part<QLineEdit>(*content, u"searchField"_s)->setText(u"nowhere"_s);
    EXPECT_EQ(subtitle(*content), before);
    expectSubtitle(*content, u"0 items"_s);
}

TEST_F(ContentViewTest, aSourceThatIsSwitchedOffWhileItIsShownLeavesAllOfThem)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    content->setPane(BookmarksPane{u"chrome/Profile 1"_s});
    EXPECT_EQ(title(*content), u"Work Bookmarks");
    library->setEnabled(false, *library->source(u"chrome/Profile 1"_s));
    EXPECT_TRUE(waitUntil([&] { return !library->isLoading(); }));
    EXPECT_EQ(title(*content), u"All Bookmarks");
    content->setPane(HistoryPane{u"chrome/Profile 1"_s});
    EXPECT_EQ(title(*content), u"Recent History");
}

TEST_F(ContentViewTest, theKeyboardGoesFromTheSearchToTheListAndBack)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    auto *field = beginSearch(*content);
    auto *table = part<QWidget>(*content, u"historyTable"_s);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape}) {
        content->startSearch();
        QTest::keyClick(field, key);
        EXPECT_EQ(QApplication::focusWidget(), table);
        EXPECT_TRUE(table->isVisible());
        EXPECT_TRUE(showsFocus(*table)) << "a key led there";
    }
}

TEST_F(ContentViewTest, whoTypesInTheListSearches)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    expectSubtitle(*content, u"4 items"_s);
    content->activateWindow();
    auto *field = part<QLineEdit>(*content, u"searchField"_s);
    auto *table = part<QTreeView>(*content, u"historyTable"_s);
    for (const QString &word : {u"a1"_s, u"b"_s}) {
        table->setFocus();
        ASSERT_TRUE(waitUntil([table] { return table->hasFocus(); }));
        for (const QChar letter : word)
            QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
        EXPECT_TRUE(field->hasFocus());
        EXPECT_EQ(field->text(), word) << "instead of what was searched for before";
    }
}

TEST_F(ContentViewTest, nothingIsReadIntoMemoryBeforeAnybodySearches)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    content->activateWindow();
    content->setPane(MostVisitedPane());
    expectSubtitle(*content, u"4 items"_s);
    EXPECT_FALSE(part<QLineEdit>(*content, u"searchField"_s)->hasFocus());
    EXPECT_FALSE(library->isReadyForSearch());
}

TEST_F(ContentViewTest, whoComesToTheSearchFieldFindsEachLetterAnsweredAtOnce)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    expectSubtitle(*content, u"4 items"_s);
    content->activateWindow();
    content->startSearch();
    ASSERT_TRUE(waitUntil([&] {
        return library->queryHistory(HistoryQuery::matching(u"x"_s, {}, HistoryQuery::Order::Latest), {})
            .known()
            .has_value();
    }));
    recordReads();
    auto *field = part<QLineEdit>(*content, u"searchField"_s);
    for (const auto &[letter, count] : {std::pair{u"a"_s, u"4 items"_s}, {u"1"_s, u"1 item"_s}}) {
        QTest::keyClicks(field, letter);
        // The clock stands still.
        EXPECT_TRUE(waitUntil([&, shown = count] { return subtitle(*content) == shown; }))
            << qPrintable(subtitle(*content));
    }
    EXPECT_TRUE(takeReads().isEmpty());
    field->clear();
    home.clock.advance(std::chrono::seconds(59));
    EXPECT_TRUE(library->isReadyForSearch());
    home.clock.advance(std::chrono::seconds(1));
    EXPECT_FALSE(library->isReadyForSearch());
}

TEST_F(ContentViewTest, theFirstLetterBringsTheHistoriesIntoMemoryAndTheyStay)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    auto *field = part<QLineEdit>(*content, u"searchField"_s);
    field->setText(u" "_s);
    EXPECT_FALSE(library->isReadyForSearch());
    field->setText(u"a"_s);
    EXPECT_TRUE(waitUntil([&] { return library->isReadyForSearch(); }));
    home.clock.advance(std::chrono::hours(1));
    EXPECT_TRUE(library->isReadyForSearch());
}

TEST_F(ContentViewTest, everyControlHasAName)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    content->setSite(u"a1.example"_s);
    for (const QWidget *widget : content->findChildren<QWidget *>()) {
        const bool isControl = widget->focusPolicy() != Qt::NoFocus && widget->isVisible();
        if (!isControl)
            continue;
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        const QString name = widget->accessibleName().isEmpty() && button != nullptr
                                 ? button->text()
                                 : widget->accessibleName();
        EXPECT_FALSE(name.isEmpty()) << widget->metaObject()->className() << ' '
                                     << qPrintable(widget->objectName());
    }
}

} // namespace roamlet::testing
