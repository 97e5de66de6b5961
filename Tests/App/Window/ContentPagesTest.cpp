// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Painting.h"
#include "App/Window/ContentViewTest.h"
#include "App/Window/LoadingRows.h"
#include "Model/Browser.h"
#include "SampleHome/ChromiumFiles.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

/// What stands in the place of a list that has no rows.
class ContentPagesTest : public ContentViewTest
{
};

TEST_F(ContentPagesTest, aSearchThatFindsNothingSaysSoAndOffersWaysOut)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    expectSubtitle(*content, u"4 items"_s);
    EXPECT_FALSE(isShown(*content, u"emptyListPage"_s));
    auto *field = part<QLineEdit>(*content, u"searchField"_s);
    content->setSite(u"a1.example"_s);
    QTest::keyClicks(field, u"zeppelin"_s);
    expectSubtitle(*content, u"0 items"_s);
    ASSERT_TRUE(isShown(*content, u"emptyListPage"_s));
    EXPECT_EQ(shownTexts(*content), QStringList{u"Nothing found for “zeppelin” on a1.example"_s});
    EXPECT_FALSE(part<QWidget>(*content, u"historyTable"_s)->isEnabled()) << "the Tab key goes past it";
    EXPECT_FALSE(isShown(*content, u"emptyListReload"_s));
    QTest::mouseClick(part<QPushButton>(*content, u"emptyListAllSites"_s), Qt::LeftButton);
    // Until the answer is there, what was said stays.
    EXPECT_TRUE(isShown(*content, u"emptyListPage"_s));
    EXPECT_TRUE(waitUntil([&] {
        home.clock.advance(std::chrono::milliseconds(300));
        return shownTexts(*content) == QStringList{u"Nothing found for “zeppelin”"_s};
    }));
    EXPECT_FALSE(isShown(*content, u"emptyListAllSites"_s));
    QTest::mouseClick(part<QPushButton>(*content, u"emptyListClearSearch"_s), Qt::LeftButton);
    EXPECT_EQ(field->text(), u"");
    expectSubtitle(*content, u"4 items"_s);
    EXPECT_FALSE(isShown(*content, u"emptyListPage"_s));
    EXPECT_TRUE(part<QWidget>(*content, u"historyTable"_s)->isEnabled());
}

TEST_F(ContentPagesTest, anotherPaneDoesNotKeepThePageOfTheLast)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    content->setPane(BookmarksPane{u"edge/Default"_s});
    EXPECT_TRUE(waitUntil([&] { return isShown(*content, u"emptyListPage"_s); }));
    EXPECT_EQ(shownTexts(*content), QStringList{u"No bookmarks yet"_s});
    content->setPane(HistoryPane());
    EXPECT_FALSE(isShown(*content, u"emptyListPage"_s));
    expectSubtitle(*content, u"4 items"_s);
    content->setPane(BookmarksPane{u"edge/Default"_s});
    EXPECT_TRUE(waitUntil([&] { return isShown(*content, u"emptyListPage"_s); }));
    EXPECT_EQ(shownTexts(*content), QStringList{u"No bookmarks yet"_s});
}

TEST_F(ContentPagesTest, foldersWithoutAnyLinkAreNotCovered)
{
    addChromium();
    change([this] {
        sample::writeBookmarks(
            chromeFile(u"Default/Bookmarks"_s),
            {{u"bookmark_bar"_s,
              sample::folderNode(u"1"_s, u"Bar"_s, {sample::folderNode(u"6"_s, u"Plans"_s, {})})}});
    });
    loadNow(*library);
    const auto content = makeContent();
    for (const Pane &pane : {Pane(BookmarksPane()), Pane(BookmarksPane{u"chrome/Default"_s})}) {
        content->setPane(HistoryPane());
        content->setPane(pane);
        expectSubtitle(*content, u"0 items"_s);
        const auto *tree = part<QTreeView>(*content, u"bookmarkTree"_s);
        EXPECT_TRUE(waitUntil([tree] { return tree->model()->rowCount() > 0; }));
        EXPECT_FALSE(isShown(*content, u"emptyListPage"_s));
        EXPECT_TRUE(tree->isEnabled());
    }
    // A source without even a folder has nothing to show.
    content->setPane(BookmarksPane{u"edge/Default"_s});
    EXPECT_TRUE(waitUntil([&] { return isShown(*content, u"emptyListPage"_s); }));
}

TEST_F(ContentPagesTest, aListThatCouldNotBeReadSaysWhyAndOffersToReadItAgain)
{
    addChromium();
    fail(chromeFile(u"Default/History"_s), std::errc::io_error);
    loadNow(*library);
    const auto content = makeContent();
    content->setPane(HistoryPane{u"chrome/Default"_s});
    ASSERT_TRUE(waitUntil([&] { return isShown(*content, u"emptyListReload"_s); }));
    EXPECT_THAT(shownTexts(*content).join(u' ').toStdString(), ::testing::HasSubstr("Input/output error"));
    EXPECT_THAT(part<QWidget>(*content, u"listSubtitle"_s)->accessibleDescription().toStdString(),
                ::testing::HasSubstr("Input/output error"));
    home.files.failure = {};
    QTest::mouseClick(part<QPushButton>(*content, u"emptyListReload"_s), Qt::LeftButton);
    expectSubtitle(*content, u"2 items"_s);
    EXPECT_FALSE(isShown(*content, u"emptyListPage"_s));
}

TEST_F(ContentPagesTest, whatIsReadForTheFirstTimeHasShapesInThePlaceOfRows)
{
    addChromium();
    const auto content = makeContent();
    auto *shapes = content->findChild<LoadingRows *>();
    ASSERT_NE(shapes, nullptr);
    EXPECT_TRUE(shapes->isVisible());
    const QImage image = shapes->grab().toImage();
    const auto darkest = [&image](int from, int to) {
        int result = 255;
        for (int y = from; y < to; ++y) {
            for (int x = 0; x < image.width(); ++x)
                result = std::min(result, image.pixelColor(x, y).lightness());
        }
        return result;
    };
    EXPECT_LT(darkest(0, image.height() / 3), darkest(image.height() * 2 / 3, image.height()));
    loadNow(*library);
    expectSubtitle(*content, u"4 items"_s);
    EXPECT_FALSE(shapes->isVisible());
}

TEST_F(ContentPagesTest, withoutAnyBrowserItSaysWhereItLooked)
{
    const auto content = makeContent();
    loadNow(*library);
    EXPECT_EQ(shownTable(*content), u"");
    EXPECT_THAT(shownTexts(*content).join(u'\n').toStdString(),
                ::testing::HasSubstr("Roamlet looks for the data of Safari, Chrome, Edge"));
    const auto *places = part<QWidget>(*content, u"browserPlaces"_s);
    EXPECT_TRUE(places->isVisible());
    EXPECT_EQ(places->findChildren<QLabel *>(u"browserPlace"_s).size(), Browser::all().size());
    content->activateWindow();
    content->startSearch();
    QTest::keyClick(part<QLineEdit>(*content, u"searchField"_s), Qt::Key_Down);
    const auto *reload = part<QWidget>(*content, u"noBrowsersReload"_s);
    EXPECT_TRUE(waitUntil([reload] { return reload->hasFocus(); }));
}

TEST_F(ContentPagesTest, ofEncryptedBookmarksItSaysSoAndOffersTheirManager)
{
    addChromium();
    change([this] {
        QFile::remove(chromeFile(u"Profile 1/Bookmarks"_s));
        sample::writeEncryptedBookmarks(chromeFile(u"Profile 1/EncryptedBookmarks2"_s));
    });
    loadNow(*library);
    const auto content = makeContent();
    content->setPane(BookmarksPane{u"chrome/Default"_s});
    EXPECT_FALSE(isShown(*content, u"emptyStateAction"_s));
    content->setPane(BookmarksPane{u"chrome/Profile 1"_s});
    EXPECT_EQ(shownTable(*content), u"");
    auto *button = part<QPushButton>(*content, u"emptyStateAction"_s);
    ASSERT_TRUE(button->isVisible());
    EXPECT_EQ(button->text(), u"Edit Chrome Bookmarks");
    EXPECT_EQ(shownTexts(*content), (QStringList{u"Bookmarks are encrypted"_s,
                                                 u"Chrome keeps the bookmarks of this profile encrypted, "
                                                 "so that only Chrome itself can show them."_s}));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"page"_s, u"chrome"_s, u"Profile 1"_s, u"chrome://bookmarks/"_s}}));
    EXPECT_TRUE(library->snapshot().problems.isEmpty()) << "it is no problem of the source";
    content->activateWindow();
    content->startSearch();
    QTest::keyClick(part<QLineEdit>(*content, u"searchField"_s), Qt::Key_Down);
    EXPECT_TRUE(waitUntil([button] { return button->hasFocus(); }));
    // As soon as there is a file that can be read, its bookmarks are shown.
    change([this] { sample::writeBookmarks(chromeFile(u"Profile 1/Bookmarks"_s), {}); });
    loadNow(*library);
    EXPECT_NE(shownTable(*content), u"");
}

TEST_F(ContentPagesTest, browsersThatVanishLeaveNothingToCount)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    expectSubtitle(*content, u"4 items"_s);
    change([this] {
        for (const QString &file : {chromeFile(QString()), edgeFile(QString())})
            EXPECT_TRUE(QDir(file).removeRecursively());
    });
    loadNow(*library);
    EXPECT_EQ(shownTable(*content), u"");
    EXPECT_EQ(subtitle(*content), u"0 items");
}

TEST_F(ContentPagesTest, theKeyboardGoesFromTheSearchToWhatHelpsWhereNothingIsFound)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    auto *field = beginSearch(*content);
    QTest::keyClicks(field, u"zeppelin"_s);
    expectSubtitle(*content, u"0 items"_s);
    auto *clear = part<QPushButton>(*content, u"emptyListClearSearch"_s);
    ASSERT_TRUE(waitUntil([clear] { return clear->isVisible(); }));
    QTest::keyClick(field, Qt::Key_Down);
    EXPECT_TRUE(clear->hasFocus());
    EXPECT_TRUE(showsFocus(*clear)) << "a key led there";
}

TEST_F(ContentPagesTest, theKeyboardDoesNotGoToAPageOnWhichThereIsNothingToDo)
{
    addChromium();
    loadNow(*library);
    const auto content = makeContent();
    content->activateWindow();
    content->setPane(BookmarksPane{u"edge/Default"_s});
    ASSERT_TRUE(waitUntil([&] { return isShown(*content, u"emptyListPage"_s); }));
    content->startSearch();
    auto *field = part<QLineEdit>(*content, u"searchField"_s);
    ASSERT_TRUE(waitUntil([&] { return field->hasFocus(); }));
    QTest::keyClick(field, Qt::Key_Down);
    EXPECT_TRUE(field->hasFocus());
    part<QWidget>(*content, u"sidebar"_s)->setFocus();
    content->setSidebarShown(false);
    EXPECT_TRUE(field->hasFocus());
}

} // namespace roamlet::testing
