// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/MainWindow.h"

#include "App/AppDelegate.h"
#include "App/Export/FakeAlert.h"
#include "App/Export/FakeSavePanel.h"
#include "App/Look/Look.h"
#include "App/Updates/BundleInformation.h"
#include "App/Updates/Updater.h"
#include "App/Window/ContentView.h"
#include "App/Window/Sidebar.h"
#include "App/Window/WindowTest.h"
#include "Support/FakeActivationPolicy.h"
#include "Support/FakeUpdateDriver.h"
#include "Support/Waiting.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

using Policy = ActivationPolicy::Policy;

namespace
{

/// What a menu and the menus in it offer, without lines.
QList<QAction *> commandsIn(const QWidget &menu)
{
    QList<QAction *> result;
    for (QAction *action : menu.actions()) {
        if (action->isSeparator() || !action->isVisible())
            continue;
        if (action->menu() != nullptr && action->menu()->objectName() != u"groupingMenu")
            result += commandsIn(*action->menu());
        else
            result.append(action);
    }
    return result;
}

} // namespace

class MainWindowTest : public WindowTest
{
protected:
    /// A window in which the list has no room beside the sidebar.
    std::unique_ptr<MainWindow> openNarrowWindow()
    {
        QFont font = QApplication::font();
        font.setPixelSize(24);
        auto window = makeWindow();
        window->setFont(font);
        window->resize(820, 600);
        window->open();
        window->activateWindow();
        EXPECT_TRUE(waitUntil([&window] { return window->isActiveWindow(); }));
        return window;
    }
    std::unique_ptr<MainWindow> makeWindow()
    {
        return std::make_unique<MainWindow>(MainWindow::Services{.content = services(),
                                                                 .delegate = delegate,
                                                                 .activation = activation,
                                                                 .savePanel = savePanel,
                                                                 .alert = alert,
                                                                 .updater = updater,
                                                                 .quit = [this] { ++quits; }});
    }

    /// Counts how often a window was drawn.
    class Drawings final : public QObject
    {
    public:
        explicit Drawings(QWidget &window) { window.installEventFilter(this); }
        /// Once everything that is due has happened.
        int count()
        {
            QCoreApplication::processEvents();
            QCoreApplication::processEvents();
            return m_count;
        }
        bool eventFilter(QObject * /*watched*/, QEvent *event) override
        {
            m_count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }

    private:
        int m_count = 0;
    };

    FakeActivationPolicy activation;
    AppDelegate delegate{home.defaults, activation, [] { return true; }};
    FakeSavePanel savePanel;
    FakeAlert alert;
    Updater updater{BundleInformation(), std::make_unique<FakeUpdateDriver>()};
    int quits = 0;
};

TEST_F(MainWindowTest, openingItIsAnAppearanceAndClosingItADisappearance)
{
    const auto window = makeWindow();
    EXPECT_FALSE(delegate.isMainWindowOpen());
    window->open();
    EXPECT_TRUE(delegate.isMainWindowOpen());
    EXPECT_EQ(activation.current, Policy::Regular);
    EXPECT_GE(activation.timesInFront, 1);
    window->open();
    EXPECT_EQ(activation.policies.size(), 1);
    window->close();
    EXPECT_FALSE(delegate.isMainWindowOpen());
    EXPECT_EQ(activation.current, Policy::Accessory);
}

TEST_F(MainWindowTest, aMaximisedWindowThatWasMinimisedComesBackMaximised)
{
    const auto window = makeWindow();
    window->showMaximized();
    window->setWindowState(window->windowState() | Qt::WindowMinimized);
    ASSERT_TRUE(window->isMinimized());
    window->open();
    EXPECT_FALSE(window->isMinimized());
    EXPECT_TRUE(window->isMaximized());
}

TEST_F(MainWindowTest, itsFirstPictureHasTheFirstRows)
{
    addChromium();
    const auto window = makeWindow();
    Drawings drawings(*window);
    window->open();
    EXPECT_EQ(drawings.count(), 0);
    loadNow(*library);
    const auto *table = part<QTreeView>(*window, u"historyTable"_s);
    ASSERT_TRUE(waitUntil([&drawings] { return drawings.count() > 0; }));
    EXPECT_GT(table->model()->rowCount(), 0);
}

TEST_F(MainWindowTest, itsFirstPictureDoesNotWaitForLong)
{
    const auto window = makeWindow();
    Drawings drawings(*window);
    window->open();
    EXPECT_EQ(drawings.count(), 0);
    home.clock.advance(std::chrono::milliseconds(50));
    EXPECT_GT(drawings.count(), 0);
}

TEST_F(MainWindowTest, theNextWindowIsMaximisedAgainAndKnowsItsOtherSize)
{
    {
        const auto window = makeWindow();
        window->open();
        window->resize(900, 555);
        window->showMaximized();
        window->close();
    }
    const auto window = makeWindow();
    window->open();
    EXPECT_TRUE(window->isMaximized());
    window->showNormal();
    EXPECT_EQ(window->size(), QSize(900, 555));
}

TEST_F(MainWindowTest, theMenuBarIsHiddenUntilItIsAskedForAndThenStays)
{
    {
        const auto window = makeWindow();
        window->open();
        ASSERT_EQ(window->menuWidget(), nullptr);
        window->activateWindow();
        ASSERT_TRUE(waitUntil([&window] { return window->isActiveWindow(); }));
        QTest::keyClick(window.get(), Qt::Key_M, Qt::ControlModifier);
        ASSERT_NE(window->menuWidget(), nullptr);
        EXPECT_TRUE(window->menuWidget()->isVisible());
        QTest::keyClick(window.get(), Qt::Key_M, Qt::ControlModifier);
        EXPECT_FALSE(window->menuWidget()->isVisible());
        QTest::keyClick(window.get(), Qt::Key_M, Qt::ControlModifier);
    }
    const auto window = makeWindow();
    window->open();
    ASSERT_NE(window->menuWidget(), nullptr);
    EXPECT_TRUE(window->menuWidget()->isVisible());
    EXPECT_TRUE(window->findChild<QAction *>(u"menuBarCommand"_s)->isChecked());
}

TEST_F(MainWindowTest, theHeadersMenuHoldsWhatTheMenuBarHolds)
{
    home.defaults.setBoolean(u"window.main.menuBar"_s, true);
    const auto window = makeWindow();
    window->open();
    const QList<QAction *> inBar = commandsIn(*window->menuBar());
    const QList<QAction *> inMenu = commandsIn(*window->findChild<QMenu *>(u"mainMenu"_s));
    EXPECT_EQ(inBar.size(), 12);
    EXPECT_EQ(QSet<QAction *>(inMenu.begin(), inMenu.end()), QSet<QAction *>(inBar.begin(), inBar.end()));
    EXPECT_EQ(inMenu.size(), inBar.size());
    QStringList texts;
    for (const QAction *command : inMenu)
        texts.append(command->text() + u' ' + command->shortcut().toString());
    EXPECT_EQ(texts, (QStringList{u"Export Bookmarks… "_s, u"Find Ctrl+F"_s, u"Reload Ctrl+R"_s,
                                  u"Group By "_s, u"Settings… Ctrl+,"_s, u"Sidebar F9"_s, u"Wider Sidebar "_s,
                                  u"Narrower Sidebar "_s, u"Menu Bar Ctrl+M"_s, u"About Roamlet "_s,
                                  u"Close Window "_s + QKeySequence(QKeySequence::Close).toString(),
                                  u"Quit Roamlet Ctrl+Q"_s}));
}

TEST_F(MainWindowTest, theKeyForMenusOpensTheHeadersMenu)
{
    const auto window = makeWindow();
    window->open();
    window->activateWindow();
    ASSERT_TRUE(waitUntil([&window] { return window->isActiveWindow(); }));
    auto *menu = window->findChild<QMenu *>(u"mainMenu"_s);
    bool wasOpen = false;
    QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, &wasOpen] {
        wasOpen = true;
        QTimer::singleShot(0, menu, &QMenu::close);
    });
    QTest::keyClick(window.get(), Qt::Key_F10);
    EXPECT_TRUE(wasOpen);
}

TEST_F(MainWindowTest, quittingDoesNotAskTheWindowsFirst)
{
    const auto window = makeWindow();
    window->open();
    window->activateWindow();
    ASSERT_TRUE(waitUntil([&window] { return window->isActiveWindow(); }));
    QTest::keyClick(window.get(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits, 1);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(MainWindowTest, itIsNeverSmallerThanItsContentNeeds)
{
    const auto window = makeWindow();
    window->open();
    window->resize(100, 100);
    EXPECT_EQ(window->size(), QSize(820, 480));
}

TEST_F(MainWindowTest, itsPlaceAndItsColumnsAreRemembered)
{
    {
        const auto window = makeWindow();
        window->open();
        window->resize(900, 555);
        window->content()->setSizes({300, 600});
        window->close();
    }
    const auto window = makeWindow();
    window->open();
    EXPECT_EQ(window->size(), QSize(900, 555));
    EXPECT_EQ(window->content()->sizes().first(), 300);
}

TEST_F(MainWindowTest, theMenuResizesTheSidebar)
{
    const auto window = makeWindow();
    window->open();
    const int width = window->content()->sizes().first();
    window->findChild<QAction *>(u"widerSidebarCommand"_s)->trigger();
    EXPECT_GT(window->content()->sizes().first(), width);
    for (int i = 0; i < 50; ++i)
        window->findChild<QAction *>(u"narrowerSidebarCommand"_s)->trigger();
    EXPECT_EQ(window->content()->sizes().first(), Sidebar::minimumWidthOfColumn);
}

TEST_F(MainWindowTest, theSidebarIsHiddenAndShownAndStaysSo)
{
    addChromium();
    loadNow(*library);
    {
        const auto window = makeWindow();
        window->open();
        window->activateWindow();
        ASSERT_TRUE(waitUntil([&window] { return window->isActiveWindow(); }));
        const auto *sidebar = part<QWidget>(*window, u"sidebar"_s);
        auto *button = part<QToolButton>(*window, u"sidebarButton"_s);
        const auto *command = window->findChild<QAction *>(u"sidebarCommand"_s);
        EXPECT_TRUE(sidebar->isVisible());
        EXPECT_FALSE(button->isVisible());
        EXPECT_TRUE(command->isChecked());
        part<QWidget>(*window, u"sidebar"_s)->setFocus();
        QTest::keyClick(window.get(), Qt::Key_F9);
        EXPECT_FALSE(sidebar->isVisible());
        EXPECT_TRUE(part<QWidget>(*window, u"historyTable"_s)->hasFocus());
        EXPECT_FALSE(command->isChecked());
        ASSERT_TRUE(button->isVisible());
        QTest::mouseClick(button, Qt::LeftButton);
        EXPECT_TRUE(sidebar->isVisible());
        EXPECT_FALSE(button->isVisible());
        EXPECT_TRUE(command->isChecked());
        QTest::keyClick(window.get(), Qt::Key_F9);
        window->close();
    }
    const auto window = makeWindow();
    window->open();
    EXPECT_FALSE(part<QWidget>(*window, u"sidebar"_s)->isVisible());
    EXPECT_TRUE(part<QWidget>(*window, u"sidebarButton"_s)->isVisible());
}

TEST_F(MainWindowTest, besideANarrowListTheSidebarOpensOverItAndGoesWithAChoice)
{
    addChromium();
    loadNow(*library);
    const auto window = openNarrowWindow();
    auto *sidebar = part<Sidebar>(*window, u"sidebar"_s);
    const auto *list = part<QWidget>(*window, u"historyTable"_s);
    ASSERT_FALSE(sidebar->isVisible());
    EXPECT_EQ(home.defaults.boolean(u"sidebar.hidden"_s), std::nullopt);
    const int width = list->width();
    QTest::mouseClick(part<QToolButton>(*window, u"sidebarButton"_s), Qt::LeftButton);
    ASSERT_TRUE(sidebar->isVisible());
    EXPECT_TRUE(sidebar->hasFocus());
    EXPECT_EQ(list->width(), width);
    EXPECT_EQ(sidebar->mapTo(window.get(), QPoint()).x(), 0);
    QTest::mouseClick(
        sidebar->viewport(), Qt::LeftButton, {},
        sidebar->visualRect(sidebar->model()->index(1, 0, sidebar->model()->index(0, 0))).center());
    EXPECT_FALSE(sidebar->isVisible());
    EXPECT_EQ(window->content()->pane(), std::optional<Pane>(MostVisitedPane()));
    QTest::keyClick(window.get(), Qt::Key_F9);
    ASSERT_TRUE(sidebar->isVisible());
    QTest::keyClick(sidebar, Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([sidebar] { return !sidebar->isVisible(); }));
    EXPECT_TRUE(part<QWidget>(*window, u"mostVisitedTable"_s)->hasFocus());
    // With room for both it stands beside the list again.
    window->resize(1600, 600);
    EXPECT_TRUE(sidebar->isVisible());
    const auto *shown = part<QWidget>(*window, u"mostVisitedTable"_s);
    EXPECT_TRUE(waitUntil([&] { return shown->mapTo(window.get(), QPoint()).x() >= sidebar->width(); }));
}

TEST_F(MainWindowTest, theSidebarOverTheListGoesOnceAndOnlyAKeyBringsTheKeyboardsRing)
{
    addChromium();
    loadNow(*library);
    const auto window = openNarrowWindow();
    auto *sidebar = part<Sidebar>(*window, u"sidebar"_s);
    auto *table = part<QTreeView>(*window, u"historyTable"_s);
    const auto *bubble = table->viewport()->findChild<QWidget *>(u"rowBubble"_s);
    ASSERT_TRUE(waitUntil([table] { return table->model()->rowCount() > 0; }));
    table->setCurrentIndex(table->model()->index(0, 0));
    const auto chosen = [sidebar] {
        return sidebar->visualRect(sidebar->model()->index(0, 0, sidebar->model()->index(0, 0))).center();
    };
    const QSignalSpy changes(window->content(), &ContentView::sidebarShownChanged);
    const auto changesUntilNow = [&changes] {
        QCoreApplication::processEvents();
        return changes.size();
    };

    QTest::keyClick(window.get(), Qt::Key_F9);
    ASSERT_TRUE(sidebar->hasFocus());
    ASSERT_EQ(changesUntilNow(), 1);
    QTest::keyClick(sidebar, Qt::Key_Return);
    EXPECT_FALSE(sidebar->isVisible());
    EXPECT_TRUE(table->hasFocus());
    EXPECT_TRUE(bubble->isVisible());
    EXPECT_EQ(changesUntilNow(), 2);

    QTest::keyClick(window.get(), Qt::Key_F9);
    ASSERT_TRUE(sidebar->hasFocus());
    EXPECT_FALSE(bubble->isVisible());
    QTest::mouseClick(sidebar->viewport(), Qt::LeftButton, {}, chosen());
    EXPECT_FALSE(sidebar->isVisible());
    EXPECT_TRUE(table->hasFocus());
    EXPECT_FALSE(bubble->isVisible()) << "the mouse led here";
    EXPECT_EQ(changesUntilNow(), 4);
}

TEST_F(MainWindowTest, aSidebarThatWasMadeWiderLeavesTheListItsRoom)
{
    addChromium();
    loadNow(*library);
    const auto window = makeWindow();
    window->open();
    window->resize(1600, 600);
    const auto *sidebar = part<Sidebar>(*window, u"sidebar"_s);
    const auto *list = part<QWidget>(*window, u"historyTable"_s);
    const int wide = 2 * sidebar->sizeHint().width();
    window->content()->setSizes({wide, 1600 - wide});
    ASSERT_EQ(sidebar->width(), wide);
    const int least = Measures(window->content()->font()).units(30);
    int width = 1600;
    for (; width > window->minimumWidth() && sidebar->isVisible(); --width) {
        window->resize(width, 600);
        EXPECT_TRUE(!sidebar->isVisible() || list->width() >= least) << width;
    }
    EXPECT_FALSE(sidebar->isVisible());
    // It comes back as wide as it was, and so not before there is room for that.
    for (++width; width <= 1600 && !sidebar->isVisible(); ++width)
        window->resize(width, 600);
    ASSERT_TRUE(sidebar->isVisible());
    EXPECT_TRUE(waitUntil([&] { return sidebar->width() == wide; }));
    window->resize(window->width() + 1, 600);
    EXPECT_TRUE(sidebar->isVisible());
    EXPECT_GE(list->width(), least);
}

TEST_F(MainWindowTest, theFirstWindowIsNoLargerThanTheScreen)
{
    const auto window = makeWindow();
    // Where the screen is smaller than what the content needs, nothing can be done.
    const QSize screen = window->screen()->availableSize().expandedTo(window->minimumSize());
    EXPECT_LE(window->width(), screen.width());
    EXPECT_LT(window->height(), screen.height());
}

TEST_F(MainWindowTest, aStoredPlaceThatIsNoneIsPassedOver)
{
    home.defaults.setBytes(u"window.main"_s, "garbage");
    home.defaults.setStringList(u"window.main.columns"_s, {u"a"_s, u"b"_s});
    const auto window = makeWindow();
    window->open();
    EXPECT_GE(window->width(), 820);
    EXPECT_GE(window->content()->sizes().first(), Sidebar::minimumWidthOfColumn);
}

TEST_F(MainWindowTest, theWindowsTitleIsTheLists)
{
    addChromium();
    loadNow(*library);
    const auto window = makeWindow();
    EXPECT_EQ(window->windowTitle(), u"Recent History");
    window->content()->setPane(BookmarksPane{u"chrome/Default"_s});
    EXPECT_EQ(window->windowTitle(), u"Personal Bookmarks");
}

TEST_F(MainWindowTest, theExportCommandOpensTheSheetForTheShownSource)
{
    addChromium();
    const auto window = makeWindow();
    window->open();
    auto *command = window->findChild<QAction *>(u"exportCommand"_s);
    ASSERT_NE(command, nullptr);
    EXPECT_EQ(command->text(), u"Export Bookmarks…");
    EXPECT_FALSE(command->isEnabled());
    loadNow(*library);
    EXPECT_TRUE(command->isEnabled());

    window->content()->setPane(BookmarksPane{u"chrome/Default"_s});
    command->trigger();
    auto *sheet = window->findChild<ExportPanel *>();
    ASSERT_NE(sheet, nullptr);
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_EQ(sheet->findChild<QComboBox *>()->currentText(), u"Chrome - Personal (1)");
    command->trigger();
    EXPECT_EQ(window->findChildren<ExportPanel *>().size(), 1);
    QTest::keyClick(sheet, Qt::Key_Escape);
    EXPECT_FALSE(sheet->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window->findChild<ExportPanel *>(), nullptr);

    window->content()->setPane(HistoryPane());
    command->trigger();
    sheet = window->findChild<ExportPanel *>();
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->findChild<QComboBox *>()->currentText(), u"All Browsers (1)");
}

TEST_F(MainWindowTest, reloadIsOffWhileTheLibraryLoads)
{
    addChromium();
    const auto window = makeWindow();
    window->open();
    const auto *command = window->findChild<QAction *>(u"reloadCommand"_s);
    EXPECT_TRUE(command->isEnabled());
    EXPECT_EQ(command->shortcut(), QKeySequence(u"Ctrl+R"_s));
    window->activateWindow();
    ASSERT_TRUE(waitUntil([&window] { return window->isActiveWindow(); }));
    QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
    EXPECT_TRUE(library->isLoading());
    EXPECT_FALSE(command->isEnabled());
    ASSERT_TRUE(waitUntil([this] { return !library->isLoading(); }));
    EXPECT_TRUE(command->isEnabled());
}

TEST_F(MainWindowTest, theKeyboardReachesTheSearchAndTheSettings)
{
    const auto window = makeWindow();
    window->open();
    window->activateWindow();
    ASSERT_TRUE(waitUntil([&window] { return window->isActiveWindow(); }));
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(part<QLineEdit>(*window, u"searchField"_s)->hasFocus());
    int asked = 0;
    QObject::connect(window.get(), &MainWindow::settingsRequested, [&asked] { ++asked; });
    QTest::keyClick(window.get(), Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(asked, 1);
}

} // namespace roamlet::testing
