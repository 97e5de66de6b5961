// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/DesktopFakes.h"
#include "App/Export/ExportPanel.h"
#include "App/Look/Motion.h"
#include "App/Updates/UpdateWindows.h"
#include "App/Window/ContentView.h"
#include "App/Window/Pane.h"
#include "Platform/Update.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QTabBar>
#include <QTest>
#include <QTreeView>

#include <algorithm>
#include <gmock/gmock.h>
#include <set>
#include <string>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

/// Every window, gone through with the Tab key alone and as a screen reader reads it.
class WindowWalkTest : public LibraryHome, protected DesktopFakes
{
protected:
    void SetUp() override
    {
        // A sheet slides into its window, and what is gone through stands still.
        setMotionAllowed(false);
        desktopSettings = [] { return DesktopSettings{.allowsMotion = false, .wantsMoreContrast = false}; };
        addChromium();
        addSafari();
        app = std::make_unique<RoamletApp>(services(home.platform()));
        app->start(false);
        ASSERT_TRUE(waitUntil([this] {
            home.clock.advance(std::chrono::milliseconds(500));
            const auto *view = app->mainWindow()->findChild<QTreeView *>(u"historyTable"_s);
            return view != nullptr && view->model()->rowCount() > 0;
        }));
    }
    void TearDown() override
    {
        app.reset();
        setMotionAllowed(true);
        LibraryHome::TearDown();
    }

    using Names = std::multiset<std::string>;

    static std::string nameOf(const QWidget *widget)
    {
        if (widget == nullptr)
            return "nothing";
        return widget->metaObject()->className() + std::string(" ") + widget->objectName().toStdString();
    }

    /// What Tab should reach in a window, or in a sheet over it.
    static Names reachable(const QWidget &area)
    {
        Names result;
        for (const QWidget *widget : area.findChildren<QWidget *>()) {
            // Of the buttons that exclude each other, the arrow keys go from one to the next.
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            const bool isOther = button != nullptr && button->isCheckable() && !button->isChecked() &&
                                 (button->autoExclusive() || button->group() != nullptr);
            if (!isOther && widget->isVisible() && widget->isEnabled() && widget->focusProxy() == nullptr &&
                (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->window() == area.window())
                result.insert(nameOf(widget));
        }
        return result;
    }

    /// What has the keyboard while Tab, or Shift and Tab, is pressed until it is back where it was.
    static Names walk(const QWidget &area, Qt::KeyboardModifiers modifiers)
    {
        Names result;
        const QWidget *first = QApplication::focusWidget();
        const QWidget *previous = nullptr;
        constexpr int tooMany = 100;
        for (int i = 0; i < tooMany; ++i) {
            QWidget *now = QApplication::focusWidget();
            if (now == nullptr || (i > 0 && now == first))
                break;
            EXPECT_TRUE(area.isAncestorOf(now)) << nameOf(now);
            EXPECT_TRUE(now->isVisible()) << nameOf(now);
            EXPECT_TRUE(area.rect().contains(now->mapTo(&area, now->rect().center()))) << nameOf(now);
            // Notes have links, through which Tab goes as well.
            if (now != previous)
                result.insert(nameOf(now));
            previous = now;
            QTest::keyClick(now, modifiers == Qt::NoModifier ? Qt::Key_Tab : Qt::Key_Backtab, modifiers);
        }
        return result;
    }

    /// The keyboard reaches everything in an area, in both directions.
    static void expectReached(QWidget &area)
    {
        ASSERT_TRUE(QTest::qWaitForWindowActive(area.window()));
        if (!area.isAncestorOf(QApplication::focusWidget()))
            QTest::keyClick(&area, Qt::Key_Tab);
        const auto all = reachable(area);
        EXPECT_FALSE(all.empty());
        EXPECT_EQ(walk(area, Qt::NoModifier), all);
        EXPECT_EQ(walk(area, Qt::ShiftModifier), all);
    }

    /// Everything that is shown tells a screen reader what it is, and what can be used has a name.
    static void expectTold(QAccessibleInterface *element, const std::string &way)
    {
        ASSERT_NE(element, nullptr);
        if (element->state().invisible)
            return;
        const auto *widget = qobject_cast<const QWidget *>(element->object());
        const std::string name = element->text(QAccessible::Name).toStdString();
        const std::string here = way + " / " + nameOf(widget) + " \"" + name + '"';
        const QAccessible::Role role = element->role();
        const bool isUsed = widget != nullptr && !widget->isWindow() && widget->isEnabled() &&
                            widget->focusPolicy() != Qt::NoFocus && widget->focusProxy() == nullptr;
        if (isUsed) {
            EXPECT_NE(name, "") << here << " has no name";
            EXPECT_NE(role, QAccessible::Client) << here;
            EXPECT_NE(role, QAccessible::NoRole) << here;
        }
        using enum QAccessible::Role;
        if (QList{StaticText, Button, CheckBox, RadioButton, PageTab, ListItem}.contains(role)) {
            EXPECT_NE(name, "") << here << " is read as nothing";
        }
        for (int i = 0; i < element->childCount(); ++i) {
            if (QAccessibleInterface *child = element->child(i))
                expectTold(child, here);
        }
    }

    static void expectTold(QWidget &area) { expectTold(QAccessible::queryAccessibleInterface(&area), {}); }

    std::unique_ptr<RoamletApp> app;
};

TEST_F(WindowWalkTest, theMainWindowInEveryPane)
{
    MainWindow &window = *app->mainWindow();
    for (const Pane &pane : {Pane(HistoryPane{}), Pane(MostVisitedPane{}), Pane(BookmarksPane{})}) {
        window.content()->setPane(pane);
        expectReached(window);
        expectTold(window);
    }
}

TEST_F(WindowWalkTest, theExportSheet)
{
    app->mainWindow()->findChild<QAction *>(u"exportCommand"_s)->trigger();
    auto *sheet = app->mainWindow()->findChild<ExportPanel *>();
    ASSERT_NE(sheet, nullptr);
    expectReached(*sheet);
    expectTold(*sheet);
}

TEST_F(WindowWalkTest, theSettings)
{
    SettingsWindow &settings = app->settingsWindow();
    settings.open();
    auto *tabs = settings.findChild<QTabBar *>();
    ASSERT_NE(tabs, nullptr);
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        expectReached(settings);
        expectTold(settings);
    }
}

TEST_F(WindowWalkTest, theWindowsOfUpdates)
{
    UpdateWindows windows(u"1.0"_s, [](const QString &) {});
    Update update;
    update.version = u"2.0"_s;
    update.displayVersion = u"2.0"_s;
    update.notes = ReleaseNotes{.text = u"<p>New: <a href='https://a.example/'>this</a></p>"_s};
    const auto nothing = [] {};
    const auto look = [] {
        const QWidgetList all = QApplication::topLevelWidgets();
        const auto shown = std::ranges::find_if(all, [](const QWidget *window) {
            return window->isVisible() && qobject_cast<const QDialog *>(window) != nullptr;
        });
        ASSERT_NE(shown, all.cend());
        expectReached(**shown);
        expectTold(**shown);
    };
    windows.showChecking(nothing);
    look();
    windows.showUpToDate(nothing);
    look();
    windows.showUpdate(update, [](UpdateUserInterface::Choice) {});
    look();
    windows.showDownload(update, nothing);
    look();
    windows.showHandedOver(update, nothing);
    look();
    windows.showError({UpdateError::Code::NoInstaller, u"a"_s}, nothing);
    look();
}

} // namespace roamlet::testing
