// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Menu/MenuBarMenu.h"

#include "Opening/Opener.h"
#include "Support/FakeActivationPolicy.h"
#include "Support/FakeWorkspace.h"
#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QTest>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class MenuBarMenuTest : public LibraryHome
{
protected:
    QStringList texts(const QMenu &shown) const
    {
        QStringList result;
        for (const QAction *action : shown.actions()) {
            if (action->isVisible())
                result.append(action->isSeparator() ? u"---"_s : action->text());
        }
        return result;
    }
    QAction &item(const QString &name) { return *menu.findChild<QAction *>(name); }
    QMenu &recent() { return *menu.findChild<QMenu *>(u"recentlyVisited"_s); }
    QStringList recentTitles() { return texts(recent()); }
    /// Opens the menu and presses the item with the mouse.
    void choose(QMenu &in, QAction &action)
    {
        menu.popup(QPoint(0, 0));
        if (&in != &menu)
            in.popup(QPoint(200, 0));
        QTest::mouseClick(&in, Qt::LeftButton, {}, in.actionGeometry(&action).center());
        menu.close();
        QCoreApplication::processEvents();
    }

    Library library{home.platform()};
    FakeWorkspace workspace;
    Opener opener{workspace};
    FakeActivationPolicy activation;
    UserCalendar calendar{.timeZone = u"UTC"_s, .locale = u"en_US"_s};
    QStringList events;
    MenuBarMenu menu{{.library = library,
                      .opener = opener,
                      .activation = activation,
                      .calendar = [this] { return calendar; },
                      .openMainWindow = [this] { note(u"window"_s); },
                      .openSettings = [this] { note(u"settings"_s); },
                      .checkForUpdates = [this] { note(u"check"_s); },
                      .quit = [this] { note(u"quit"_s); }}};

private:
    /// With how often the program had come to the front by then.
    void note(const QString &event)
    {
        events.append(event % u'/' % QString::number(activation.timesInFront));
    }
};

TEST_F(MenuBarMenuTest, beforeTheFirstLoadItHasNoUpdateTimeAndIsReading)
{
    EXPECT_EQ(texts(menu), (QStringList{u"Open Roamlet"_s, u"Recently Visited"_s, u"---"_s, u"Reload"_s,
                                        u"Settings…"_s, u"---"_s, u"Quit Roamlet"_s}));
    EXPECT_EQ(recentTitles(), QStringList{u"Reading…"_s});
    EXPECT_FALSE(recent().actions().first()->isEnabled());
}

TEST_F(MenuBarMenuTest, afterALoadItTellsTheTime)
{
    loadNow(library);
    EXPECT_EQ(texts(menu),
              (QStringList{u"Open Roamlet"_s, u"Recently Visited"_s, u"---"_s, u"Updated at 6:13 AM"_s,
                           u"Reload"_s, u"Settings…"_s, u"---"_s, u"Quit Roamlet"_s}));
    EXPECT_FALSE(item(u"updated"_s).isEnabled());
}

TEST_F(MenuBarMenuTest, writesTheTimeInTheUsersZoneAndLanguage)
{
    calendar = {.timeZone = u"Asia/Kolkata"_s, .locale = u"en_AU"_s};
    loadNow(library);
    EXPECT_EQ(item(u"updated"_s).text(), u"Updated at 11:43 am"_s);
}

TEST_F(MenuBarMenuTest, withoutHistoryTheSubmenuSaysSo)
{
    loadNow(library);
    EXPECT_EQ(recentTitles(), QStringList{u"No history"_s});
    EXPECT_FALSE(recent().actions().first()->isEnabled());
}

TEST_F(MenuBarMenuTest, itemsHaveTheirShortcuts)
{
    EXPECT_EQ(item(u"open"_s).shortcut(), QKeySequence(u"Ctrl+O"_s));
    EXPECT_EQ(item(u"reload"_s).shortcut(), QKeySequence(u"Ctrl+R"_s));
    EXPECT_EQ(item(u"settings"_s).shortcut(), QKeySequence(u"Ctrl+,"_s));
    EXPECT_EQ(item(u"quit"_s).shortcut(), QKeySequence(u"Ctrl+Q"_s));
    EXPECT_TRUE(item(u"updateAvailable"_s).shortcut().isEmpty());
    EXPECT_TRUE(recent().menuAction()->shortcut().isEmpty());
}

TEST_F(MenuBarMenuTest, openOpensTheWindowAndComesToTheFront)
{
    choose(menu, item(u"open"_s));
    EXPECT_EQ(events, QStringList{u"window/0"_s});
    EXPECT_EQ(activation.timesInFront, 1);
}

TEST_F(MenuBarMenuTest, settingsOpensTheSettingsAndThenComesToTheFront)
{
    choose(menu, item(u"settings"_s));
    EXPECT_EQ(events, QStringList{u"settings/0"_s});
    EXPECT_EQ(activation.timesInFront, 1);
}

TEST_F(MenuBarMenuTest, reloadReadsEverySource)
{
    addChromium();
    loadNow(library);
    recordReads();
    choose(menu, item(u"reload"_s));
    EXPECT_TRUE(library.isLoading());
    ASSERT_TRUE(waitUntil([this] { return !library.isLoading(); }));
    EXPECT_EQ(takeReads(), (QStringList{u"chrome/Default"_s, u"chrome/Profile 1"_s, u"edge/Default"_s}));
}

TEST_F(MenuBarMenuTest, quitQuits)
{
    choose(menu, item(u"quit"_s));
    EXPECT_EQ(events, QStringList{u"quit/0"_s});
}

TEST_F(MenuBarMenuTest, anUpdateThatWaitsHasAnItemThatComesToTheFrontFirst)
{
    EXPECT_FALSE(texts(menu).contains(u"Update Available…"_s));
    menu.setUpdateIsWaiting(true);
    const QStringList shown = texts(menu);
    EXPECT_EQ(shown.sliced(shown.size() - 3),
              (QStringList{u"---"_s, u"Update Available…"_s, u"Quit Roamlet"_s}));
    choose(menu, item(u"updateAvailable"_s));
    EXPECT_EQ(events, QStringList{u"check/1"_s});
    menu.setUpdateIsWaiting(false);
    EXPECT_FALSE(texts(menu).contains(u"Update Available…"_s));
}

TEST_F(MenuBarMenuTest, showsThePagesVisitedLastInTheirOrder)
{
    addChromium();
    addSafari();
    loadNow(library);
    EXPECT_EQ(recentTitles(), titles(library.menuRecent()));
    EXPECT_EQ(recentTitles(), (QStringList{u"b1"_s, u"e1"_s, u"s1"_s, u"a1"_s, u"a2"_s}));
}

TEST_F(MenuBarMenuTest, pagesHaveTheirBrowsersIcon)
{
    workspace.icons = {{u"chrome"_s, Qt::green}, {u"edge"_s, Qt::blue}};
    addChromium();
    loadNow(library);
    const auto color = [this](int row) {
        return recent().actions().at(row)->icon().pixmap(16).toImage().pixelColor(8, 8);
    };
    EXPECT_EQ(color(0), QColor(Qt::green));
    EXPECT_EQ(color(1), QColor(Qt::blue));
}

TEST_F(MenuBarMenuTest, pagesOfTwoProfilesOfABrowserHaveDifferentIcons)
{
    addChromium();
    loadNow(library);
    ASSERT_EQ(recentTitles(), (QStringList{u"b1"_s, u"e1"_s, u"a1"_s, u"a2"_s}));
    const auto icon = [this](int row) { return recent().actions().at(row)->icon().pixmap(16).toImage(); };
    EXPECT_NE(icon(0), icon(2));
    EXPECT_EQ(icon(2), icon(3));
}

TEST_F(MenuBarMenuTest, aPageOpensInTheBrowserAndProfileThatItCameFrom)
{
    addChromium();
    addSafari();
    loadNow(library);
    for (const int row : {0, 1, 2})
        choose(recent(), *recent().actions().at(row));
    EXPECT_EQ(workspace.requests,
              (QList<QStringList>{{u"profile"_s, u"chrome"_s, u"Profile 1"_s, u"https://b1.example/"_s},
                                  {u"profile"_s, u"edge"_s, u"Default"_s, u"https://edge.example/"_s},
                                  {u"open"_s, u"safari"_s, u"https://s.example/"_s}}));
}

TEST_F(MenuBarMenuTest, aPageOpensInTheInstallationThatItCameFrom)
{
    workspace.icons = {{u"chrome"_s, Qt::green}, {u"firefox"_s, Qt::red}};
    addChromium();
    addChromeBeta();
    addFirefox(snapFirefox);
    loadNow(library);
    EXPECT_EQ(recentTitles(), (QStringList{u"b1"_s, u"e1"_s, u"Fox"_s, u"Beta"_s, u"a1"_s, u"a2"_s}));
    const QIcon ofFirefox = recent().actions().at(2)->icon();
    EXPECT_EQ(ofFirefox.pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::red));
    for (const int row : {2, 3})
        choose(recent(), *recent().actions().at(row));
    EXPECT_EQ(
        workspace.requests,
        (QList<QStringList>{{u"profile"_s, u"firefox@snap"_s, u"abc.default"_s, u"https://fox.example/"_s},
                            {u"profile"_s, u"chrome@beta"_s, u"Default"_s, u"https://beta.example/"_s}}));
}

TEST_F(MenuBarMenuTest, whileItIsOpenItDoesNotChange)
{
    addChromium();
    loadNow(library);
    const QStringList before = recentTitles();
    menu.popup(QPoint(0, 0));
    setChromeHistory(u"Default"_s, {u"newest"_s}, newest + 1000);
    loadNow(library);
    EXPECT_EQ(recentTitles(), before);
    menu.close();
    ASSERT_TRUE(waitUntil([this] { return recentTitles().first() == u"newest"; }));
}

TEST_F(MenuBarMenuTest, aMenuWhoseEndNobodyReportsIsUpToDateWhenItOpensAgain)
{
    addChromium();
    loadNow(library);
    Q_EMIT menu.aboutToShow();
    setChromeHistory(u"Default"_s, {u"newest"_s}, newest + 1000);
    loadNow(library);
    EXPECT_NE(recentTitles().first(), u"newest"_s);
    Q_EMIT menu.aboutToShow();
    EXPECT_EQ(recentTitles().first(), u"newest"_s);
}

TEST_F(MenuBarMenuTest, thePageThatIsChosenIsTheOneThatWasShown)
{
    addChromium();
    loadNow(library);
    menu.popup(QPoint(0, 0));
    recent().popup(QPoint(200, 0));
    setChromeHistory(u"Default"_s, {u"newest"_s}, newest + 1000);
    loadNow(library);
    QTest::keyClick(&recent(), Qt::Key_Down);
    QTest::keyClick(&recent(), Qt::Key_Return);
    ASSERT_EQ(workspace.requests.size(), 1);
    EXPECT_EQ(workspace.requests.first().last(), u"https://b1.example/"_s);
}

TEST_F(MenuBarMenuTest, shortcutsWorkWhileItIsOpen)
{
    menu.popup(QPoint(0, 0));
    QTest::keyClick(&menu, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(events, QStringList{u"quit/0"_s});
    EXPECT_FALSE(menu.isVisible());
    menu.popup(QPoint(0, 0));
    QTest::keyClick(&menu, Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(events.last(), u"settings/0"_s);
    menu.popup(QPoint(0, 0));
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
    EXPECT_EQ(events.last(), u"window/1"_s) << "the arrows work as in any menu";
}

TEST_F(MenuBarMenuTest, shortcutsWorkWhileTheSubmenuIsOpen)
{
    menu.popup(QPoint(0, 0));
    recent().popup(QPoint(200, 0));
    QTest::keyClick(&recent(), Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(events, QStringList{u"settings/0"_s});
    EXPECT_FALSE(recent().isVisible());
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(MenuBarMenuTest, anEndlessTitleIsCutInTheItemAndInTheTip)
{
    addChromium();
    setChromeHistory(u"Default"_s, {QString(1'000'000, u'w')}, newest + 1000);
    loadNow(library);
    EXPECT_EQ(recentTitles().first().size(), 59);
    EXPECT_LT(recent().actions().first()->toolTip().size(), 10'000);
    menu.popup(QPoint(0, 0));
    EXPECT_LT(recent().sizeHint().width(), 1500);
}

TEST_F(MenuBarMenuTest, titlesAreNoMarkupAndHaveNoLetterToPress)
{
    addChromium();
    setChromeHistory(u"Default"_s, {u"<b>Q&A</b>"_s}, newest + 1000);
    loadNow(library);
    EXPECT_EQ(recentTitles().first(), u"<b>Q&&A</b>"_s);
    EXPECT_TRUE(recent().actions().first()->toolTip().contains(u"&lt;b&gt;Q&amp;A&lt;/b&gt;"_s));
}

} // namespace
} // namespace roamlet::testing
