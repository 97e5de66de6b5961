// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/Sidebar.h"

#include "App/Look/Look.h"
#include "App/Window/SidebarModel.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// The rows, headings in brackets.
QStringList texts(const QAbstractItemModel &model)
{
    QStringList result;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        const QString text = index.data().toString();
        result.append(index.data(SidebarModel::IsHeadingRole).toBool() ? u'[' % text % u']' : text);
    }
    return result;
}

} // namespace

class SidebarTest : public LibraryHome
{
protected:
    Library library{home.platform()};
};

TEST_F(SidebarTest, listsAllSourcesTogetherAndThenEachOne)
{
    addChromium();
    SidebarModel model(library);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(texts(model),
              QStringList({u"[Library]"_s, u"Recent History"_s, u"Most Visited"_s, u"All Bookmarks"_s}));
    loadNow(library);
    EXPECT_EQ(texts(model), QStringList({u"[Library]"_s, u"Recent History"_s, u"Most Visited"_s,
                                         u"All Bookmarks"_s, u"[Chrome - Personal]"_s, u"History"_s,
                                         u"Bookmarks"_s, u"[Chrome - Work]"_s, u"History"_s, u"Bookmarks"_s,
                                         u"[Edge - Office]"_s, u"History"_s, u"Bookmarks"_s}));
    EXPECT_EQ(model.pane(model.index(5)), Pane(HistoryPane{u"chrome/Default"_s}));
    EXPECT_EQ(model.pane(model.index(2)), Pane(MostVisitedPane()));
    EXPECT_EQ(model.pane(model.index(4)), std::nullopt);
    EXPECT_EQ(model.index(5).data(Qt::AccessibleTextRole), u"Chrome - Personal: History"_s);
}

TEST_F(SidebarTest, everyInstallationOfABrowserHasItsRows)
{
    addChromium();
    addChromeBeta();
    addFirefox(snapFirefox);
    loadNow(library);
    Sidebar sidebar(library);
    sidebar.resize(220, 400);
    const auto headings = [&sidebar] { return texts(*sidebar.model()).filter(u"["_s); };
    EXPECT_EQ(headings(),
              (QStringList{u"[Library]"_s, u"[Chrome - Personal]"_s, u"[Chrome - Work]"_s,
                           u"[Chrome Beta - Trial]"_s, u"[Edge - Office]"_s, u"[Firefox - default]"_s}));
    sidebar.select(HistoryPane{u"chrome@beta/Default"_s});
    EXPECT_EQ(sidebar.currentIndex().data(Qt::AccessibleTextRole), u"Chrome Beta - Trial: History"_s);
    QTest::keyClick(&sidebar, Qt::Key_End);
    const Pane ofFirefox = BookmarksPane{u"firefox@snap/abc.default"_s};
    EXPECT_EQ(sidebar.pane(), ofFirefox);
    // Another Firefox comes: from now on the first one has to be told apart, and is still the one shown.
    addFirefox();
    loadNow(library);
    EXPECT_EQ(headings().last(2), (QStringList{u"[Firefox - default]"_s, u"[Firefox (Snap) - default]"_s}));
    EXPECT_EQ(sidebar.pane(), ofFirefox);
    EXPECT_EQ(sidebar.currentIndex().data(Qt::AccessibleTextRole), u"Firefox (Snap) - default: Bookmarks"_s);
}

TEST_F(SidebarTest, aHeadingIsShownAsItIsAndNotAsMarkUp)
{
    addChromium();
    change([this] {
        sample::writeLocalState(chromeFile(u"Local State"_s),
                                {{u"Default"_s, QJsonObject{{u"name"_s, u"<h1>Big</h1>"_s}}},
                                 {u"Profile 1"_s, QJsonObject{{u"name"_s, QString(1'000'000, u'x')}}}});
    });
    loadNow(library);
    const SidebarModel model(library);
    EXPECT_EQ(model.index(4).data(), u"Chrome - <h1>Big</h1>"_s);
    EXPECT_TRUE(model.index(4).data(Qt::ToolTipRole).toString().contains(u"&lt;h1&gt;Big&lt;/h1&gt;"));
    EXPECT_LT(model.index(7).data().toString().size(), 2000);
    EXPECT_LT(model.index(7).data(Qt::ToolTipRole).toString().size(), 2000);
}

TEST_F(SidebarTest, followsTheUsersOrder)
{
    addChromium();
    SidebarModel model(library);
    loadNow(library);
    library.moveProfiles({2}, 0);
    EXPECT_EQ(texts(model)[4], u"[Edge - Office]");
}

TEST_F(SidebarTest, aReloadThatChangesNoSourceMovesNothing)
{
    addChromium();
    SidebarModel model(library);
    loadNow(library);
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    loadNow(library);
    EXPECT_EQ(resets.size(), 0);
}

TEST_F(SidebarTest, theKeyboardGoesFromRowToRowAndSkipsTheHeadings)
{
    addChromium();
    loadNow(library);
    Sidebar sidebar(library);
    sidebar.resize(220, 400);
    sidebar.select(BookmarksPane());
    QTest::keyClick(&sidebar, Qt::Key_Down);
    EXPECT_EQ(sidebar.pane(), Pane(HistoryPane{u"chrome/Default"_s}));
    QTest::keyClick(&sidebar, Qt::Key_Up);
    EXPECT_EQ(sidebar.pane(), Pane(BookmarksPane()));
}

TEST_F(SidebarTest, homeAndEndGoToTheOutermostRows)
{
    addChromium();
    loadNow(library);
    Sidebar sidebar(library);
    sidebar.resize(220, 400);
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_PageUp}) {
        sidebar.select(BookmarksPane());
        QTest::keyClick(&sidebar, key);
        EXPECT_EQ(sidebar.pane(), Pane(HistoryPane()));
    }
    QTest::keyClick(&sidebar, Qt::Key_End);
    EXPECT_EQ(sidebar.pane(), Pane(BookmarksPane{u"edge/Default"_s}));
}

TEST_F(SidebarTest, theSelectionTellsWhetherTheKeyboardIsInIt)
{
    QWidget window;
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    Sidebar sidebar(library, &window);
    sidebar.resize(220, 400);
    sidebar.select(HistoryPane());
    window.show();
    window.activateWindow();
    ASSERT_TRUE(waitUntil([&window] { return window.isActiveWindow(); }));
    const auto ground = [&sidebar] {
        const QRect row = sidebar.visualRect(sidebar.currentIndex());
        return sidebar.viewport()->grab().toImage().pixelColor(row.right() - 16, row.center().y());
    };
    sidebar.setFocus();
    const QColor selected = Look::of(sidebar).sidebar.selected.base;
    const QImage withFocus = sidebar.viewport()->grab().toImage();
    EXPECT_EQ(ground(), selected);
    other.setFocus();
    EXPECT_NE(sidebar.viewport()->grab().toImage(), withFocus);
    EXPECT_EQ(ground(), selected) << "it is still seen";
}

TEST_F(SidebarTest, aClickSelectsARowAndAHeadingDoesNothing)
{
    addChromium();
    loadNow(library);
    Sidebar sidebar(library);
    sidebar.resize(220, 600);
    sidebar.show();
    int changes = 0;
    QObject::connect(&sidebar, &Sidebar::paneSelected, [&changes] { ++changes; });
    const auto click = [&sidebar](int row) {
        QTest::mouseClick(sidebar.viewport(), Qt::LeftButton, {},
                          sidebar.visualRect(sidebar.model()->index(row, 0)).center());
    };
    click(2);
    EXPECT_EQ(sidebar.pane(), Pane(MostVisitedPane()));
    EXPECT_EQ(changes, 1);
    click(4);
    EXPECT_EQ(sidebar.pane(), Pane(MostVisitedPane()));
}

TEST_F(SidebarTest, theSelectionOutlivesAReloadAndASourceThatIsGoneForAWhile)
{
    addChromium();
    loadNow(library);
    Sidebar sidebar(library);
    int changes = 0;
    QObject::connect(&sidebar, &Sidebar::paneSelected, [&changes] { ++changes; });
    const Pane pane = BookmarksPane{u"chrome/Profile 1"_s};
    sidebar.select(pane);
    const auto selectedText = [&sidebar] {
        const QModelIndexList rows = sidebar.selectionModel()->selectedIndexes();
        return rows.isEmpty() ? QString() : rows.first().data(Qt::AccessibleTextRole).toString();
    };
    EXPECT_EQ(selectedText(), u"Chrome - Work: Bookmarks");
    library.setEnabled(false, *library.source(u"chrome/Profile 1"_s));
    ASSERT_TRUE(waitUntil([this] { return !library.isLoading(); }));
    EXPECT_EQ(selectedText(), u"");
    const auto &profiles = library.snapshot().browserProfiles;
    const auto work = std::ranges::find(profiles, u"chrome/Profile 1"_s, &Source::id);
    ASSERT_NE(work, profiles.end());
    library.setEnabled(true, *work);
    ASSERT_TRUE(waitUntil([this] { return !library.isLoading(); }));
    EXPECT_EQ(selectedText(), u"Chrome - Work: Bookmarks");
    EXPECT_EQ(changes, 0);
}

TEST_F(SidebarTest, theContextMenuExportsABookmarksRowThatHasSome)
{
    addChromium();
    loadNow(library);
    Sidebar sidebar(library);
    sidebar.resize(220, 600);
    sidebar.show();
    std::optional<std::optional<QString>> exported;
    QObject::connect(&sidebar, &Sidebar::exportRequested,
                     [&exported](const std::optional<QString> &id) { exported = id; });
    const auto openMenu = [&sidebar](int row) -> QMenu * {
        const QPoint place = sidebar.visualRect(sidebar.model()->index(row, 0)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, sidebar.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(sidebar.viewport(), &event);
        return sidebar.findChild<QMenu *>(u"sidebarMenu"_s);
    };
    EXPECT_EQ(openMenu(5), nullptr);

    QMenu *ofAll = openMenu(3);
    ASSERT_NE(ofAll, nullptr);
    EXPECT_EQ(ofAll->actions().first()->text(), u"Export Bookmarks…");
    EXPECT_TRUE(ofAll->actions().first()->isEnabled());
    ofAll->actions().first()->trigger();
    EXPECT_EQ(exported, std::optional<std::optional<QString>>(std::optional<QString>()));
    delete ofAll;

    QMenu *ofOne = openMenu(6);
    ASSERT_NE(ofOne, nullptr);
    ofOne->actions().first()->trigger();
    EXPECT_EQ(exported, std::optional<std::optional<QString>>(u"chrome/Default"_s));
    delete ofOne;

    QMenu *withoutBookmarks = openMenu(12);
    ASSERT_NE(withoutBookmarks, nullptr);
    EXPECT_FALSE(withoutBookmarks->actions().first()->isEnabled());
}

TEST_F(SidebarTest, onlyTheLeftButtonChooses)
{
    addChromium();
    loadNow(library);
    Sidebar sidebar(library);
    sidebar.resize(240, 600);
    sidebar.show();
    sidebar.select(HistoryPane());
    const QPoint below =
        sidebar.visualRect(sidebar.currentIndex()).center() + QPoint(0, 2 * sidebar.sizeHintForRow(1));
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(sidebar.viewport(), button, {}, below);
        EXPECT_EQ(sidebar.pane(), Pane(HistoryPane()));
    }
    QTest::mouseClick(sidebar.viewport(), Qt::LeftButton, {}, below);
    EXPECT_NE(sidebar.pane(), Pane(HistoryPane()));
}

} // namespace roamlet::testing
