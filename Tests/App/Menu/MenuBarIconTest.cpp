// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Menu/MenuBarIcon.h"

#include "App/AppDelegate.h"
#include "Support/FakeActivationPolicy.h"
#include "Support/LibraryHome.h"

#include <QMenu>
#include <QTest>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class MenuBarIconTest : public LibraryHome
{
protected:
    void block() { fail(safariFile(u"History.db"_s), std::errc::permission_denied); }

    Library library{home.platform()};
    FakeActivationPolicy activation;
    AppDelegate delegate{home.defaults, activation, [] { return true; }};
    QMenu menu;
    int opened = 0;
    MenuBarIcon::Services services{library, delegate, activation, [this] {
                                       EXPECT_EQ(activation.timesInFront, opened);
                                       ++opened;
                                   }};
    MenuBarIcon icon{services, menu};
};

TEST_F(MenuBarIconTest, showsTheSteeringWheelWithTheMenu)
{
    const auto *tray = icon.findChild<QSystemTrayIcon *>(u"trayIcon"_s);
    ASSERT_NE(tray, nullptr);
    EXPECT_FALSE(tray->icon().isNull());
    EXPECT_EQ(tray->contextMenu(), &menu);
    EXPECT_FALSE(tray->isVisible());
    icon.appear();
    EXPECT_FALSE(tray->isVisible()) << "the window comes first";
    icon.show();
    EXPECT_TRUE(tray->isVisible());
}

TEST_F(MenuBarIconTest, saysWhereThereIsNoTray)
{
    EXPECT_FALSE(MenuBarIcon::isAvailable()) << "there is none without a display";
}

TEST_F(MenuBarIconTest, aNormalLaunchOpensTheWindowOnce)
{
    EXPECT_EQ(opened, 0);
    icon.appear();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(activation.timesInFront, 1);
    MenuBarIcon again(services, menu);
    again.appear();
    icon.appear();
    EXPECT_EQ(opened, 1);
}

TEST_F(MenuBarIconTest, aLaunchAtLoginOpensNothing)
{
    delegate.applicationWillFinishLaunching(true);
    icon.appear();
    EXPECT_EQ(opened, 0);
    delegate.applicationShouldHandleReopen(false);
    EXPECT_EQ(opened, 1) << "the delegate knows how";
}

TEST_F(MenuBarIconTest, safariThatIsBlockedAlreadyOpensTheWindow)
{
    addSafari();
    block();
    loadNow(library);
    delegate.applicationWillFinishLaunching(true);
    icon.appear();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(activation.timesInFront, 1);
}

TEST_F(MenuBarIconTest, eachTimeSafariBecomesBlockedTheWindowOpens)
{
    addSafari();
    delegate.applicationWillFinishLaunching(true);
    icon.appear();
    loadNow(library);
    EXPECT_EQ(opened, 0);
    block();
    loadNow(library);
    EXPECT_EQ(opened, 1);
    loadNow(library);
    EXPECT_EQ(opened, 1) << "it still is";
    home.files.failure = nullptr;
    loadNow(library);
    EXPECT_EQ(opened, 1);
    block();
    loadNow(library);
    EXPECT_EQ(opened, 2);
}

TEST_F(MenuBarIconTest, aClickOpensTheMenu)
{
    icon.appear();
    menu.addAction(u"item"_s);
    auto *tray = icon.findChild<QSystemTrayIcon *>(u"trayIcon"_s);
    Q_EMIT tray->activated(QSystemTrayIcon::MiddleClick);
    EXPECT_FALSE(menu.isVisible());
    Q_EMIT tray->activated(QSystemTrayIcon::Trigger);
    EXPECT_TRUE(menu.isVisible());
    menu.close();
}

} // namespace
} // namespace roamlet::testing
