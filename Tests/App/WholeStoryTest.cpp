// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/DesktopFakes.h"
#include "App/Export/ExportPanel.h"
#include "App/Look/Look.h"
#include "App/Look/Motion.h"
#include "App/Tables/LinkTable.h"
#include "App/Updates/UpdateWindows.h"
#include "App/Window/ContentView.h"
#include "Platform/Update.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPixmap>
#include <QPixmapCache>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QSystemTrayIcon>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <atomic>
#include <gmock/gmock.h>
#include <semaphore>
#include <thread>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

/// The whole program, with everything of the desktop's replaced, over a home with browsers.
class WholeStoryTest : public LibraryHome, protected DesktopFakes
{
protected:
    void SetUp() override
    {
        addChromium();
        addSafari();
        app = std::make_unique<RoamletApp>(services(home.platform()));
    }
    void TearDown() override
    {
        app.reset();
        started.reset();
        LibraryHome::TearDown();
    }

    bool isWindowShown() const { return app->mainWindow() != nullptr && app->mainWindow()->isVisible(); }

    /// The titles of the shown history.
    QStringList shownTitles() const
    {
        if (!isWindowShown())
            return {};
        for (const QTreeView *view : app->mainWindow()->findChildren<QTreeView *>(u"historyTable"_s)) {
            if (!view->isVisible())
                continue;
            QStringList result;
            for (int row = 0; row < view->model()->rowCount(); ++row)
                result.append(view->model()->index(row, 0).data().toString());
            return result;
        }
        return {};
    }
    QStringList recentTitles()
    {
        QStringList result;
        for (const QAction *action : app->menu().actions()) {
            if (action->menu() == nullptr)
                continue;
            for (const QAction *recent : action->menu()->actions())
                result.append(recent->text());
        }
        return result;
    }
    /// Lets time pass until something holds.
    ::testing::AssertionResult eventually(const std::function<bool()> &condition)
    {
        const bool held = waitUntil([&] {
            home.clock.advance(std::chrono::milliseconds(500));
            return condition();
        });
        return held ? ::testing::AssertionSuccess() : ::testing::AssertionFailure();
    }

    std::unique_ptr<RoamletApp> app;
};

TEST_F(WholeStoryTest, aPageIsVisitedSearchedNarrowedToItsSiteOpenedAndTheBookmarksExported)
{
    app->start(false);
    MainWindow &window = *app->mainWindow();
    EXPECT_TRUE(window.isVisible());
    ASSERT_TRUE(eventually([this] { return shownTitles().size() == 5; }));
    EXPECT_EQ(shownTitles().first(), u"b1");

    // The browser writes a new page.
    setChromeHistory(u"Default"_s, {u"Fresh"_s, u"a1"_s, u"a2"_s}, newest + 1000);
    home.fileEvents.report({chromeFile(u"Default/History"_s)});
    ASSERT_TRUE(eventually([this] { return shownTitles().size() == 6; }));
    EXPECT_EQ(shownTitles().first(), u"Fresh");
    EXPECT_THAT(recentTitles(), ::testing::Contains(u"Fresh"_s));

    // It is searched for.
    auto *field = window.findChild<QLineEdit *>(u"searchField"_s);
    ASSERT_NE(field, nullptr);
    QTest::keyClicks(field, u"fresh"_s);
    ASSERT_TRUE(eventually([this] { return shownTitles() == QStringList{u"Fresh"_s}; }));
    QTest::keyClick(field, Qt::Key_Escape);
    ASSERT_TRUE(eventually([this] { return shownTitles().size() == 6; }));

    // The list is narrowed to its site.
    window.content()->setSite(u"fresh.example"_s);
    ASSERT_TRUE(eventually([this] { return shownTitles() == QStringList{u"Fresh"_s}; }));

    // It is opened in its own profile.
    for (QTreeView *view : window.findChildren<QTreeView *>(u"historyTable"_s)) {
        if (!view->isVisible())
            continue;
        view->setCurrentIndex(view->model()->index(0, 0));
        QTest::keyClick(view, Qt::Key_Return);
    }
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"profile"_s, u"chrome"_s, u"Default"_s, u"https://Fresh.example/"_s}}));

    // And the bookmarks go into a file.
    const QTemporaryDir target;
    savePanel.chosenPath = target.filePath(u"Bookmarks.html"_s);
    window.findChild<QAction *>(u"exportCommand"_s)->trigger();
    // It goes when it is done.
    const QPointer<ExportPanel> sheet = window.findChild<ExportPanel *>();
    ASSERT_NE(sheet, nullptr);
    QTest::keyClick(sheet, Qt::Key_Return);
    ASSERT_TRUE(eventually([&sheet] { return sheet.isNull(); }));
    QFile file(*savePanel.chosenPath);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray exported = file.readAll();
    EXPECT_TRUE(exported.contains("https://mark.example/"));
    EXPECT_TRUE(exported.contains("https://smark.example/"));
    EXPECT_EQ(alert.problems, QStringList());
}

TEST_F(WholeStoryTest, theDesktopIsAskedBesideTheMainThreadAndFollowedWhenItAnswers)
{
    app.reset();
    std::binary_semaphore mayAnswer(0);
    std::thread::id asked;
    int questions = 0;
    desktopSettings = [&] {
        mayAnswer.acquire();
        asked = std::this_thread::get_id();
        ++questions;
        return DesktopSettings{.allowsMotion = false, .wantsMoreContrast = true};
    };
    app = std::make_unique<RoamletApp>(services(home.platform()));
    app->start(false);
    EXPECT_TRUE(eventually([this] { return shownTitles().size() == 5; })) << "nobody waits for the answer";
    const QWidget &window = *app->mainWindow();
    const QColor before = Look::of(window).list.quiet;
    EXPECT_TRUE(isMotionWanted(window));
    mayAnswer.release();
    EXPECT_TRUE(waitUntil([&window] { return !isMotionWanted(window); }));
    EXPECT_NE(Look::of(window).list.quiet, before);
    app.reset();
    EXPECT_EQ(questions, 1);
    EXPECT_NE(asked, std::this_thread::get_id());
    setMotionAllowed(true);
    setContrast(Look::Contrast::Normal);
}

TEST_F(WholeStoryTest, whatTheUserSetsForTheDesktopIsFollowedWithoutARestart)
{
    app.reset();
    std::binary_semaphore mayAnswer(1);
    std::atomic<int> questions = 0;
    std::atomic<bool> allowsMotion = true;
    std::atomic<bool> wantsMoreContrast = false;
    desktopSettings = [&] {
        ++questions;
        mayAnswer.acquire();
        return DesktopSettings{.allowsMotion = allowsMotion, .wantsMoreContrast = wantsMoreContrast};
    };
    app = std::make_unique<RoamletApp>(services(home.platform()));
    app->start(false);
    ASSERT_TRUE(eventually([this] { return shownTitles().size() == 5; }));
    const QWidget &window = *app->mainWindow();
    const QColor before = Look::of(window).list.quiet;

    allowsMotion = false;
    wantsMoreContrast = true;
    ASSERT_NE(desktopChanges, nullptr);
    // Often enough that one reading is under way when the next is asked for.
    for (int change = 0; change < 20; ++change)
        (*desktopChanges)();
    mayAnswer.release(); // for the first of the new readings
    EXPECT_TRUE(waitUntil([&] { return !isMotionWanted(window); }));
    EXPECT_NE(Look::of(window).list.quiet, before);
    EXPECT_TRUE(waitUntil([&] { return questions == 3; })) << "twenty changes are one more reading";
    allowsMotion = true;
    wantsMoreContrast = false;
    mayAnswer.release();
    EXPECT_TRUE(waitUntil([&] { return isMotionWanted(window); }));
    EXPECT_EQ(Look::of(window).list.quiet, before);
    app.reset();
    EXPECT_EQ(questions, 3);
    EXPECT_EQ(desktopChanges.use_count(), 1) << "it follows no longer";
}

TEST_F(WholeStoryTest, itsIconsComeAfterItsWindow)
{
    QApplication::setWindowIcon({});
    const auto *tray = app->icon().findChild<QSystemTrayIcon *>(u"trayIcon"_s);
    ASSERT_NE(tray, nullptr);
    app->start(false);
    EXPECT_TRUE(isWindowShown());
    home.clock.advance(std::chrono::milliseconds(149));
    EXPECT_FALSE(tray->isVisible());
    EXPECT_TRUE(QApplication::windowIcon().isNull());
    home.clock.advance(std::chrono::milliseconds(1));
    EXPECT_TRUE(tray->isVisible());
    EXPECT_FALSE(QApplication::windowIcon().isNull());
}

TEST_F(WholeStoryTest, launchedAtLoginItWaitsInTheTrayUntilItIsStartedAgain)
{
    app->start(true);
    EXPECT_FALSE(isWindowShown());
    EXPECT_EQ(activation.current, ActivationPolicy::Policy::Accessory);
    ASSERT_TRUE(eventually([this] { return app->library().lastLoaded().has_value(); }));
    EXPECT_FALSE(isWindowShown());
    EXPECT_TRUE(app->icon().findChild<QSystemTrayIcon *>(u"trayIcon"_s)->isVisible());
    app->reopen();
    EXPECT_TRUE(isWindowShown());
    EXPECT_EQ(activation.current, ActivationPolicy::Policy::Regular);
    app->mainWindow()->close();
    EXPECT_EQ(activation.current, ActivationPolicy::Policy::Accessory);
}

TEST_F(WholeStoryTest, launchedAtLoginWithoutATrayItShowsAMinimisedWindow)
{
    hasTray = false;
    app->start(true);
    ASSERT_NE(app->mainWindow(), nullptr);
    EXPECT_TRUE(app->mainWindow()->isVisible());
    EXPECT_TRUE(app->mainWindow()->isMinimized());
    EXPECT_EQ(activation.current, ActivationPolicy::Policy::Regular);
    app->reopen();
    EXPECT_TRUE(isWindowShown());
    EXPECT_FALSE(app->mainWindow()->isMinimized());
    ASSERT_TRUE(eventually([this] { return shownTitles().size() == 5; }));
}

namespace
{

/// The files of letters that this process has open.
QStringList mappedFonts()
{
    QFile maps(u"/proc/self/maps"_s);
    EXPECT_TRUE(maps.open(QIODevice::ReadOnly));
    static const QRegularExpression font(u"/[^ ]*\\.(ttf|ttc|otf|pfb)$"_s,
                                         QRegularExpression::MultilineOption);
    QStringList result;
    for (const QRegularExpressionMatch &match : font.globalMatch(QString::fromUtf8(maps.readAll())))
        result.append(match.captured());
    result.removeDuplicates();
    return result;
}

} // namespace

TEST_F(WholeStoryTest, onceAllWindowsAreClosedItLetsGoOfWhatOnlyTheyNeed)
{
    app->start(false);
    ASSERT_TRUE(eventually([this] { return shownTitles().size() == 5; }));
    MainWindow &window = *app->mainWindow();
    // Only while its loop runs does Qt say that the last window was closed.
    const auto close = [](QWidget &shown) {
        QTimer::singleShot(0, &shown, [&shown] {
            shown.close();
            QCoreApplication::exit();
        });
        QApplication::exec();
    };
    app->library().setSearching(true);
    ASSERT_TRUE(eventually([this] { return app->library().isReadyForSearch(); }));
    const QString picture = u"a picture"_s;
    QPixmapCache::insert(picture, QPixmap(1, 1));
    app->settingsWindow().open();
    close(window);
    EXPECT_TRUE(eventually([this] { return app->mainWindow() == nullptr; }));
    EXPECT_TRUE(app->library().isReadyForSearch()) << "a window is left";
    home.clock.advance(std::chrono::seconds(1));
    EXPECT_TRUE(QPixmapCache::find(picture, nullptr)) << "a window is left";
    close(app->settingsWindow());
    EXPECT_FALSE(app->library().isReadyForSearch()) << "nobody sees what is searched for";
    EXPECT_TRUE(QPixmapCache::find(picture, nullptr)) << "it may come back at once";
    app->reopen();
    home.clock.advance(std::chrono::seconds(1));
    EXPECT_TRUE(QPixmapCache::find(picture, nullptr)) << "it did";

    // What was let go of once is read again, and has to go again.
    for (int round = 0; round < 2; ++round) {
        app->mainWindow()->grab();
        EXPECT_NE(mappedFonts(), QStringList()) << round;
        close(*app->mainWindow());
        home.clock.advance(std::chrono::seconds(1));
        EXPECT_FALSE(QPixmapCache::find(picture, nullptr));
        EXPECT_EQ(mappedFonts(), QStringList()) << round;
        app->reopen();
        EXPECT_TRUE(eventually([this] { return shownTitles().size() == 5; }));
    }
}

TEST_F(WholeStoryTest, aClosedWindowGoesWithTheProgramAtTheLatest)
{
    app->start(false);
    const QPointer<MainWindow> window = app->mainWindow();
    window->close();
    app->openMainWindow();
    ASSERT_NE(app->mainWindow(), window);
    ASSERT_FALSE(window.isNull()) << "the loop has not turned";
    app.reset();
    EXPECT_TRUE(window.isNull());
}

TEST_F(WholeStoryTest, whatWasSearchedForGoesWithItsWindowAlsoWhereAnotherIsLeft)
{
    app->start(false);
    ASSERT_TRUE(eventually([this] { return shownTitles().size() == 5; }));
    app->settingsWindow().open();
    QTest::keyClicks(app->mainWindow()->findChild<QLineEdit *>(u"searchField"_s), u"b1"_s);
    ASSERT_TRUE(eventually([this] { return app->library().isReadyForSearch(); }));
    app->mainWindow()->close();
    ASSERT_TRUE(eventually([this] { return app->mainWindow() == nullptr; }));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    home.clock.advance(std::chrono::seconds(59));
    EXPECT_TRUE(app->library().isReadyForSearch());
    home.clock.advance(std::chrono::seconds(1));
    EXPECT_FALSE(app->library().isReadyForSearch());
}

TEST_F(WholeStoryTest, aWindowThatIsOpenedAgainIsANewOne)
{
    app->start(false);
    ASSERT_TRUE(eventually([this] { return shownTitles().size() == 5; }));
    QPointer<MainWindow> first = app->mainWindow();
    first->content()->setPane(BookmarksPane{});
    first->findChild<QLineEdit *>(u"searchField"_s)->setText(u"b1"_s);
    app->reopen();
    EXPECT_EQ(app->mainWindow(), first) << "it was not closed";
    first->close();
    app->reopen();
    ASSERT_NE(app->mainWindow(), nullptr);
    EXPECT_NE(app->mainWindow(), first);
    EXPECT_TRUE(isWindowShown());
    EXPECT_EQ(app->mainWindow()->content()->pane(), Pane(HistoryPane()));
    EXPECT_EQ(app->mainWindow()->findChild<QLineEdit *>(u"searchField"_s)->text(), QString());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(first.isNull());
    EXPECT_TRUE(eventually([this] { return shownTitles().size() == 5; }));
}

TEST_F(WholeStoryTest, startedAgainItComesBackAlsoWhereTheTraysIconIsAWindow)
{
    app->start(false);
    app->mainWindow()->close();
    QWidget icon(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
    icon.show();
    app->reopen();
    EXPECT_TRUE(isWindowShown());
    app->mainWindow()->close();
    app->settingsWindow().open();
    app->reopen();
    EXPECT_FALSE(isWindowShown()) << "the settings are a window";
}

TEST_F(WholeStoryTest, itQuitsAlsoWhileASheetIsBusy)
{
    class Busy final : public QDialog
    {
        void reject() override {}
    } sheet;
    app->start(false);
    sheet.show();
    for (QAction *quit : {app->menu().findChild<QAction *>(u"quit"_s),
                          app->mainWindow()->findChild<QAction *>(u"quitCommand"_s)}) {
        ASSERT_NE(quit, nullptr);
        QTimer::singleShot(0, &sheet, [quit] { quit->trigger(); });
        bool isStuck = false;
        QTimer stuck;
        QObject::connect(&stuck, &QTimer::timeout, &stuck, [&isStuck] {
            isStuck = true;
            QCoreApplication::exit();
        });
        stuck.start(std::chrono::seconds(20));
        QApplication::exec();
        EXPECT_FALSE(isStuck);
    }
}

TEST_F(WholeStoryTest, safariBecomingBlockedBringsTheWindowForward)
{
    app->start(true);
    ASSERT_TRUE(eventually([this] { return app->library().lastLoaded().has_value(); }));
    EXPECT_FALSE(isWindowShown());
    fail(safariFile(u"History.db"_s), std::errc::operation_not_permitted);
    app->library().load({});
    ASSERT_TRUE(eventually([this] { return isWindowShown(); }));
    EXPECT_TRUE(app->mainWindow()->findChild<QWidget *>(u"fullDiskAccessBanner"_s)->isVisible());
}

TEST_F(WholeStoryTest, aProfileSwitchedOffWhileItIsShownVanishesFromTheSidebarAndTheList)
{
    app->start(false);
    ASSERT_TRUE(eventually([this] { return shownTitles().size() == 5; }));
    app->library().setEnabled(false, *app->library().source(u"chrome/Default"_s));
    ASSERT_TRUE(eventually([this] { return shownTitles().size() == 3; }));
    EXPECT_THAT(shownTitles(), ::testing::Not(::testing::Contains(u"a1"_s)));
}

TEST_F(WholeStoryTest, theSettingsOpenFromTheMenuAndFromTheWindow)
{
    app->start(false);
    app->mainWindow()->findChild<QAction *>(u"settingsCommand"_s)->trigger();
    EXPECT_TRUE(app->settingsWindow().isVisible());
    app->settingsWindow().close();
    EXPECT_FALSE(app->settingsWindow().isVisible());
}

TEST_F(WholeStoryTest, withoutATrayTheProgramEndsWithItsLastWindowAndNotBetweenTwo)
{
    hasTray = false;
    QApplication::setQuitOnLastWindowClosed(false);
    app->start(false);
    UpdateWindows windows(u"1.0"_s, [](const QString &) {});
    Update update;
    update.version = u"2.0"_s;
    windows.showUpdate(update, [&](UpdateUserInterface::Choice) { windows.showDownload(update, [] {}); });
    bool isDownloadShown = false;
    const auto install = [&] {
        app->mainWindow()->close();
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            if (auto *button = window->findChild<QPushButton *>(u"updateInstall"_s))
                QTest::mouseClick(button, Qt::LeftButton);
        }
    };
    const auto closeDownload = [&] {
        isDownloadShown = true;
        windows.close();
    };
    QTimer::singleShot(0, qApp, [&] {
        install();
        // What wants to quit has done so by the turn after the next one.
        QTimer::singleShot(0, qApp, [&] { QTimer::singleShot(0, qApp, closeDownload); });
    });
    QTimer::singleShot(patience, qApp, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0) << "it does not end";
    EXPECT_TRUE(isDownloadShown);
}

TEST_F(WholeStoryTest, withoutATrayAnUpdateThatWaitsIsShownWhenTheUserComesBack)
{
    app->start(false);
    const auto comeBack = [] { Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive); };
    hasTray = false;
    comeBack();
    EXPECT_EQ(driver->checks, 0) << "nothing waits";
    driver->delegate->willHandleShowingUpdate(false, Update(), UpdateState());
    EXPECT_EQ(driver->checks, 0) << "the user is not here";
    hasTray = true;
    comeBack();
    EXPECT_EQ(driver->checks, 0) << "the menu tells of it";
    hasTray = false;
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_EQ(driver->checks, 0);
    comeBack();
    EXPECT_EQ(driver->checks, 1);
}

} // namespace roamlet::testing
