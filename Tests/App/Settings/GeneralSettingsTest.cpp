// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Settings/GeneralSettings.h"

#include "App/AppDelegate.h"
#include "App/Look/NoteLabel.h"
#include "App/Look/Switch.h"
#include "App/Settings/SettingsWindow.h"
#include "App/Updates/BundleInformation.h"
#include "App/Updates/Updater.h"
#include "Library/Library.h"
#include "Opening/Opener.h"
#include "Support/FakeActivationPolicy.h"
#include "Support/FakeLoginService.h"
#include "Support/FakeUpdateDriver.h"
#include "Support/FakeWorkspace.h"
#include "Support/TestHome.h"

#include <QAccessible>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using Policy = ActivationPolicy::Policy;
using Status = LoginService::Status;

class GeneralSettingsTest : public ::testing::Test
{
protected:
    void open()
    {
        window = std::make_unique<SettingsWindow>(
            SettingsServices{library, home.defaults, login, activation, delegate, opener});
        window->open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    Switch &control(const QString &name) const { return *window->findChild<Switch *>(name); }
    Switch &atLogin() const { return control(u"openAtLogin"_s); }
    Switch &dockIcon() const { return control(u"showDockIcon"_s); }
    const NoteLabel &note() const { return *window->findChild<NoteLabel *>(u"openAtLoginNote"_s); }

    TestHome home;
    Library library{home.platform()};
    FakeLoginService login;
    FakeActivationPolicy activation;
    bool hasTray = true;
    AppDelegate delegate{home.defaults, activation, [this] { return hasTray; }};
    FakeWorkspace workspace;
    Opener opener{workspace};
    std::unique_ptr<SettingsWindow> window;
};

TEST_F(GeneralSettingsTest, theWindowHasTwoTabsWithSymbols)
{
    open();
    auto *tabs = window->findChild<QTabBar *>();
    const auto *pages = window->findChild<QStackedWidget *>();
    ASSERT_EQ(tabs->count(), 2);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(tabs)->role(), QAccessible::PageTabList);
    EXPECT_EQ(tabs->tabText(0), u"General"_s);
    EXPECT_EQ(tabs->tabText(1), u"Browser Profiles"_s);
    EXPECT_FALSE(tabs->tabIcon(0).isNull());
    EXPECT_FALSE(tabs->tabIcon(1).isNull());
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_EQ(pages->currentIndex(), 0);
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs->currentIndex(), 1);
    EXPECT_EQ(pages->currentIndex(), 1);
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(pages->currentIndex(), 0);
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
    EXPECT_EQ(pages->currentIndex(), 1);
}

TEST_F(GeneralSettingsTest, theWindowOpensOverTheMiddleOfTheOneItComesFromAndOnTheScreen)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    SettingsWindow settings({library, home.defaults, login, activation, delegate, opener});
    QWidget origin;
    origin.setGeometry(QRect(screen.center() - QPoint(90, 60), QSize(240, 180)));
    origin.show();
    settings.open(&origin);
    const QPoint off = settings.frameGeometry().center() - origin.frameGeometry().center();
    EXPECT_LE(off.manhattanLength(), 2);
    settings.close();
    origin.move(screen.bottomRight() - QPoint(20, 20));
    settings.open(&origin);
    EXPECT_TRUE(screen.contains(settings.frameGeometry()));
    settings.close();
    origin.close();
    settings.resize(screen.size() * 2);
    settings.open(&origin);
    EXPECT_EQ(settings.frameGeometry(), screen) << "no larger than there is room for";
}

TEST_F(GeneralSettingsTest, escapeClosesTheWindowAndItOpensAgain)
{
    open();
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    window->open();
    EXPECT_TRUE(window->isVisible());
}

TEST_F(GeneralSettingsTest, openAtLoginShowsTheServicesStatus)
{
    open();
    EXPECT_FALSE(atLogin().isChecked());
    EXPECT_FALSE(note().isVisible());
    login.currentStatus = Status::Enabled;
    open();
    EXPECT_TRUE(atLogin().isChecked());
    login.currentStatus = Status::RequiresApproval;
    open();
    EXPECT_FALSE(atLogin().isChecked());
}

TEST_F(GeneralSettingsTest, aStatusThatChangesMeanwhileShowsWhenTheTabAppears)
{
    open();
    window->close();
    login.currentStatus = Status::Enabled;
    window->open();
    EXPECT_TRUE(atLogin().isChecked());
    EXPECT_EQ(login.registrations, 0) << "showing it is no change";
}

TEST_F(GeneralSettingsTest, openAtLoginRegistersAndUnregisters)
{
    open();
    QTest::mouseClick(&atLogin(), Qt::LeftButton);
    EXPECT_EQ(login.currentStatus, Status::Enabled);
    EXPECT_TRUE(atLogin().isChecked());
    EXPECT_FALSE(note().isVisible());
    atLogin().setFocus();
    QTest::keyClick(&atLogin(), Qt::Key_Space);
    EXPECT_EQ(login.currentStatus, Status::NotRegistered);
    EXPECT_FALSE(atLogin().isChecked());
}

TEST_F(GeneralSettingsTest, aClickOnTheWordsTurnsTheSwitch)
{
    open();
    QTest::mouseClick(atLogin().parentWidget(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(login.currentStatus, Status::Enabled);
}

TEST_F(GeneralSettingsTest, aFailedRegistrationFlipsTheSwitchBackAndSaysWhyInRed)
{
    login.error = u"<b>Operation not permitted</b>"_s;
    open();
    QTest::mouseClick(&atLogin(), Qt::LeftButton);
    EXPECT_FALSE(atLogin().isChecked());
    EXPECT_TRUE(note().isVisible());
    EXPECT_EQ(note().text(), u"<b>Operation not permitted</b>"_s);
    EXPECT_EQ(note().textFormat(), Qt::PlainText);
    EXPECT_EQ(note().tone(), NoteLabel::Tone::Problem);
    const QColor red = note().palette().color(QPalette::WindowText);
    EXPECT_GT(red.red(), red.green() + 80);

    login.error = {};
    QTest::mouseClick(&atLogin(), Qt::LeftButton);
    EXPECT_TRUE(atLogin().isChecked());
    EXPECT_FALSE(note().isVisible());
}

TEST_F(GeneralSettingsTest, aFailedRegistrationIsNotToldAgainWhenTheWindowComesBack)
{
    login.error = u"no"_s;
    open();
    QTest::mouseClick(&atLogin(), Qt::LeftButton);
    EXPECT_TRUE(note().isVisible());
    window->close();
    login.currentStatus = Status::Enabled;
    window->open();
    EXPECT_TRUE(atLogin().isChecked());
    EXPECT_FALSE(note().isVisible());
}

TEST_F(GeneralSettingsTest, aFailedUnregistrationLeavesTheSwitchOn)
{
    login.currentStatus = Status::Enabled;
    login.error = u"no"_s;
    open();
    QTest::mouseClick(&atLogin(), Qt::LeftButton);
    EXPECT_TRUE(atLogin().isChecked());
    EXPECT_EQ(note().text(), u"no"_s);
}

TEST_F(GeneralSettingsTest, aRegistrationThatNeedsApprovalSaysSo)
{
    /// The user has switched the entry off in the system's settings.
    class PendingLoginService final : public LoginService
    {
    public:
        Status status() const override { return current; }
        std::expected<void, QString> registerProgram() override
        {
            current = Status::RequiresApproval;
            return {};
        }
        std::expected<void, QString> unregisterProgram() override { return {}; }
        bool isInstalledCopy() const override { return true; }
        Status current = Status::NotRegistered;
    } pending;
    SettingsWindow own({library, home.defaults, pending, activation, delegate, opener});
    own.open();
    auto *toggle = own.findChild<Switch *>(u"openAtLogin"_s);
    QTest::mouseClick(toggle, Qt::LeftButton);
    EXPECT_FALSE(toggle->isChecked());
    const auto *hint = own.findChild<NoteLabel *>(u"openAtLoginNote"_s);
    EXPECT_TRUE(hint->isVisible());
    EXPECT_EQ(hint->text(), u"Approve Roamlet in System Settings › General › Login Items."_s);
    EXPECT_EQ(hint->tone(), NoteLabel::Tone::Secondary);
}

TEST_F(GeneralSettingsTest, showDockIconIsOffUnlessStoredOtherwise)
{
    open();
    EXPECT_FALSE(dockIcon().isChecked());
    home.defaults.setString(u"showDockIcon"_s, u"yes"_s);
    open();
    EXPECT_FALSE(dockIcon().isChecked()) << "a value of another type is none";
    home.defaults.setBoolean(u"showDockIcon"_s, true);
    open();
    EXPECT_TRUE(dockIcon().isChecked());
    EXPECT_TRUE(activation.policies.isEmpty()) << "showing it is no change";
}

TEST_F(GeneralSettingsTest, showDockIconIsStoredAndSetsThePolicyBeforeComingToTheFront)
{
    open();
    QTest::mouseClick(&dockIcon(), Qt::LeftButton);
    EXPECT_EQ(home.defaults.boolean(u"showDockIcon"_s), true);
    EXPECT_EQ(activation.policies, QList{Policy::Regular});
    EXPECT_EQ(activation.timesInFront, 1);
    EXPECT_EQ(activation.policyInFront, Policy::Regular);
    QTest::mouseClick(&dockIcon(), Qt::LeftButton);
    EXPECT_EQ(home.defaults.boolean(u"showDockIcon"_s), false);
    EXPECT_EQ(activation.policies, (QList{Policy::Regular, Policy::Accessory}));
    EXPECT_EQ(activation.timesInFront, 2);
}

TEST_F(GeneralSettingsTest, whileTheMainWindowIsOpenItKeepsTheDockIcon)
{
    delegate.mainWindowDidAppear();
    home.defaults.setBoolean(u"showDockIcon"_s, true);
    open();
    QTest::mouseClick(&dockIcon(), Qt::LeftButton);
    EXPECT_EQ(home.defaults.boolean(u"showDockIcon"_s), false);
    EXPECT_EQ(activation.current, Policy::Regular);
    EXPECT_EQ(activation.timesInFront, 2);
    delegate.mainWindowDidDisappear(true);
    EXPECT_EQ(activation.current, Policy::Accessory);
}

TEST_F(GeneralSettingsTest, withoutATrayTheSettingsStayInTheTaskSwitcher)
{
    hasTray = false;
    home.defaults.setBoolean(u"showDockIcon"_s, true);
    open();
    QTest::mouseClick(&dockIcon(), Qt::LeftButton);
    EXPECT_EQ(home.defaults.boolean(u"showDockIcon"_s), false);
    EXPECT_EQ(activation.current, Policy::Regular);
}

/// The settings of a build that can be updated, or cannot.
class UpdateSettingsTest : public GeneralSettingsTest
{
protected:
    void openWith(const QString &feedURL)
    {
        BundleInformation information;
        information.feedURL = feedURL;
        auto own = std::make_unique<FakeUpdateDriver>();
        driver = own.get();
        updater = std::make_unique<Updater>(information, std::move(own));
        driver->isAutomatic = false;
        window = std::make_unique<SettingsWindow>(
            SettingsServices{library, home.defaults, login, activation, delegate, opener, updater.get()});
        window->open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    Switch *automatic() const { return window->findChild<Switch *>(u"checkForUpdatesAutomatically"_s); }
    QPushButton *check() const { return window->findChild<QPushButton *>(u"checkForUpdates"_s); }

    std::unique_ptr<Updater> updater;
    FakeUpdateDriver *driver = nullptr;
    const QString feed = u"https://updates.example/feed.xml"_s;
};

TEST_F(UpdateSettingsTest, aBuildWithoutAFeedHasNoSettingsForUpdates)
{
    openWith({});
    EXPECT_EQ(automatic(), nullptr);
    EXPECT_EQ(check(), nullptr);
    open();
    EXPECT_EQ(automatic(), nullptr);
}

TEST_F(UpdateSettingsTest, theSwitchShowsAndSetsTheAutomaticChecks)
{
    openWith(feed);
    ASSERT_NE(automatic(), nullptr);
    EXPECT_EQ(automatic()->accessibleName(), u"Check for updates automatically"_s);
    EXPECT_FALSE(automatic()->isChecked());
    QTest::mouseClick(automatic(), Qt::LeftButton);
    EXPECT_TRUE(driver->isAutomatic);
    QTest::mouseClick(automatic(), Qt::LeftButton);
    EXPECT_FALSE(driver->isAutomatic);
    window->close();
    driver->isAutomatic = true;
    window->open();
    EXPECT_TRUE(automatic()->isChecked()) << "it is read whenever the tab appears";
}

TEST_F(UpdateSettingsTest, theButtonComesToTheFrontAndChecks)
{
    openWith(feed);
    EXPECT_EQ(check()->text(), u"Check for Updates…"_s);
    check()->setFocus();
    QTest::keyClick(check(), Qt::Key_Space);
    EXPECT_EQ(driver->checks, 1);
    EXPECT_EQ(activation.timesInFront, 1);
}

TEST_F(GeneralSettingsTest, theDesktopsSearchIsOnUntilItIsSwitchedOff)
{
    open();
    Switch &search = control(u"showInDesktopSearch"_s);
    EXPECT_EQ(search.accessibleName(), u"Show pages in the desktop's search");
    EXPECT_TRUE(search.isChecked());
    EXPECT_FALSE(home.defaults.contains(u"showInDesktopSearch"_s));
    QTest::mouseClick(&search, Qt::LeftButton);
    EXPECT_EQ(home.defaults.boolean(u"showInDesktopSearch"_s), false);
    window.reset();
    open();
    EXPECT_FALSE(control(u"showInDesktopSearch"_s).isChecked());
    QTest::mouseClick(&control(u"showInDesktopSearch"_s), Qt::LeftButton);
    EXPECT_EQ(home.defaults.boolean(u"showInDesktopSearch"_s), true);
}

TEST_F(GeneralSettingsTest, everySwitchSaysWhatItIs)
{
    open();
    for (const Switch *each : window->findChildren<Switch *>()) {
        EXPECT_FALSE(each->objectName().isEmpty());
        EXPECT_FALSE(each->accessibleName().isEmpty());
        EXPECT_EQ(
            QAccessible::queryAccessibleInterface(window->findChild<Switch *>(each->objectName()))->role(),
            QAccessible::CheckBox);
    }
    EXPECT_EQ(atLogin().accessibleName(), u"Open at login"_s);
    EXPECT_EQ(dockIcon().accessibleName(), u"Show Dock icon"_s);
}

} // namespace
} // namespace roamlet::testing
