// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/SessionWindows.h"

#include "App/DesktopFakes.h"
#include "App/Export/ExportPanel.h"
#include "App/Window/ContentView.h"
#include "App/Window/OpenWindows.h"
#include "App/Window/SearchField.h"
#include "Support/LibraryHome.h"
#include "Support/MemoryUserDefaults.h"
#include "Support/Waiting.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <array>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

TEST(SessionWindowsTest, whatIsStoredIsFoundAgain)
{
    const QList<std::optional<Pane>> panes = {
        HistoryPane{},   HistoryPane{.sourceID = u"chrome/Profile 1"_s}, HistoryPane{.sourceID = u"a:b"_s},
        BookmarksPane{}, BookmarksPane{.sourceID = u"safari"_s},         MostVisitedPane{},
        std::nullopt};
    for (const std::optional<Pane> &pane : panes) {
        for (const bool hasSettings : {false, true}) {
            MemoryUserDefaults defaults;
            const SessionWindows session{.hasMain = true, .pane = pane, .hasSettings = hasSettings};
            session.store(defaults);
            EXPECT_EQ(SessionWindows::stored(defaults), session);
        }
    }
}

TEST(SessionWindowsTest, theLastStateCounts)
{
    MemoryUserDefaults defaults;
    SessionWindows{.hasMain = true, .pane = MostVisitedPane{}, .hasSettings = true}.store(defaults);
    SessionWindows{}.store(defaults);
    EXPECT_EQ(SessionWindows::stored(defaults), SessionWindows());
    EXPECT_TRUE(SessionWindows::stored(defaults).isEmpty());
}

TEST(SessionWindowsTest, whatCannotBeReadIsNoWindowAndAllHistory)
{
    MemoryUserDefaults defaults;
    EXPECT_EQ(SessionWindows::stored(defaults), SessionWindows());
    defaults.setStringList(u"session.windows"_s, {u"of another version"_s});
    for (const QString &pane : {u""_s, u"tabs"_s, u"tabs:safari"_s, u"mostVisited:safari"_s}) {
        defaults.setString(u"session.pane"_s, pane);
        EXPECT_EQ(SessionWindows::stored(defaults), SessionWindows()) << pane.toStdString();
    }
}

/// The whole program in a session that ends and comes back.
class SessionRestoringTest : public LibraryHome, protected DesktopFakes
{
protected:
    void SetUp() override { addChromium(); }
    void TearDown() override
    {
        app.reset();
        started.reset();
        LibraryHome::TearDown();
    }

    void begin(bool isLaunchedAtLogin, const SessionWindows &session = {})
    {
        app.reset();
        app = std::make_unique<RoamletApp>(services(home.platform()));
        app->start(isLaunchedAtLogin, session);
    }
    /// As the session manager starts it again.
    void comeBack() { begin(true, SessionWindows::stored(home.defaults)); }
    /// What Qt says when the session manager asks. Nobody looks at the session manager itself, which only Qt
    /// can make.
    static void announce(const char *request)
    {
        alignas(std::max_align_t) std::array<char, 64> nobody{};
        ASSERT_TRUE(QMetaObject::invokeMethod(qApp, request, Qt::DirectConnection,
                                              QGenericArgument("QSessionManager&", nobody.data())));
    }

    std::unique_ptr<RoamletApp> app;
};

TEST_F(SessionRestoringTest, theWindowsComeBackWithWhatTheyShowed)
{
    begin(false);
    app->mainWindow()->content()->setPane(BookmarksPane{.sourceID = u"chrome/Default"_s});
    app->mainWindow()->resize(900, 600);
    app->settingsWindow().open(app->mainWindow());
    announce("commitDataRequest");
    comeBack();
    ASSERT_NE(app->mainWindow(), nullptr);
    EXPECT_TRUE(app->mainWindow()->isVisible());
    EXPECT_FALSE(app->mainWindow()->isMinimized());
    EXPECT_EQ(app->mainWindow()->content()->pane(), Pane(BookmarksPane{.sourceID = u"chrome/Default"_s}));
    EXPECT_EQ(app->mainWindow()->size(), QSize(900, 600)) << "also where it was never closed";
    EXPECT_TRUE(app->settingsWindow().isVisible());
    ASSERT_TRUE(waitUntil([this] { return app->library().lastLoaded().has_value(); }));
    EXPECT_EQ(app->mainWindow()->content()->pane(), Pane(BookmarksPane{.sourceID = u"chrome/Default"_s}));
}

TEST_F(SessionRestoringTest, aSessionThatIsSavedForLaterCountsAsMuch)
{
    begin(false);
    app->mainWindow()->content()->setPane(MostVisitedPane{});
    announce("saveStateRequest");
    comeBack();
    ASSERT_NE(app->mainWindow(), nullptr);
    EXPECT_EQ(app->mainWindow()->content()->pane(), Pane(MostVisitedPane{}));
    EXPECT_EQ(openWindows(), QWidgetList{app->mainWindow()});
}

TEST_F(SessionRestoringTest, whereNoWindowWasOpenItWaitsInTheTray)
{
    begin(false);
    app->mainWindow()->close();
    announce("commitDataRequest");
    comeBack();
    EXPECT_EQ(openWindows(), QWidgetList());
    app->reopen();
    EXPECT_EQ(openWindows(), QWidgetList{app->mainWindow()});
}

TEST_F(SessionRestoringTest, anActionOfTheDesktopEntryOpensWhatItSays)
{
    using Wish = RunningInstance::Wish;
    begin(true);
    EXPECT_EQ(app->mainWindow(), nullptr);
    app->perform(Wish::Bookmarks);
    ASSERT_NE(app->mainWindow(), nullptr);
    EXPECT_TRUE(app->mainWindow()->isVisible());
    EXPECT_EQ(app->mainWindow()->content()->pane(), Pane(BookmarksPane()));
    app->perform({Wish::Search, u"two words"_s});
    EXPECT_EQ(app->mainWindow()->content()->pane(), Pane(HistoryPane()));
    const auto *field = app->mainWindow()->findChild<SearchField *>();
    EXPECT_EQ(field->text(), u"two words");
    app->perform({Wish::Search, u"others"_s});
    EXPECT_EQ(field->text(), u"others");
    // Without words, what is there is selected and typed over.
    app->perform(Wish::Search);
    EXPECT_EQ(field->selectedText(), u"others");
    app->perform(Wish::ComeForward);
    EXPECT_EQ(field->text(), u"others");
    app->perform(Wish::Nothing);
    EXPECT_EQ(openWindows(), QWidgetList{app->mainWindow()});
}

TEST_F(SessionRestoringTest, theExportOpensOnceTheBookmarksAreThere)
{
    begin(true);
    app->perform(RunningInstance::Wish::ExportBookmarks);
    ASSERT_TRUE(waitUntil([this] { return app->library().lastLoaded().has_value(); }));
    auto *sheet = app->mainWindow()->findChild<ExportPanel *>();
    ASSERT_NE(sheet, nullptr);
    EXPECT_TRUE(sheet->isVisible());
    app->perform(RunningInstance::Wish::ExportBookmarks);
    EXPECT_EQ(app->mainWindow()->findChildren<ExportPanel *>().size(), 1);
}

TEST_F(SessionRestoringTest, theSettingsComeBackAlone)
{
    begin(false);
    app->settingsWindow().open();
    app->mainWindow()->close();
    announce("commitDataRequest");
    comeBack();
    EXPECT_EQ(openWindows(), QWidgetList{&app->settingsWindow()});
}

TEST_F(SessionRestoringTest, withoutATrayASessionWithoutWindowsBringsAMinimisedOne)
{
    hasTray = false;
    begin(true, SessionWindows());
    ASSERT_NE(app->mainWindow(), nullptr);
    EXPECT_TRUE(app->mainWindow()->isMinimized());
}

TEST_F(SessionRestoringTest, theWindowsComeBackAlsoWhereTheLoginHasStartedItBefore)
{
    const SessionWindows session{.hasMain = true, .pane = MostVisitedPane{}, .hasSettings = true};
    begin(true);
    app->reopen(session);
    ASSERT_NE(app->mainWindow(), nullptr);
    EXPECT_TRUE(app->mainWindow()->isVisible());
    EXPECT_EQ(app->mainWindow()->content()->pane(), Pane(MostVisitedPane{}));
    EXPECT_TRUE(app->settingsWindow().isVisible());
}

TEST_F(SessionRestoringTest, whereTheUserWasFasterTheWindowsStayAsTheyAre)
{
    begin(true);
    app->reopen();
    app->reopen({.hasMain = true, .pane = MostVisitedPane{}, .hasSettings = true});
    EXPECT_EQ(openWindows(), QWidgetList{app->mainWindow()});
    EXPECT_EQ(app->mainWindow()->content()->pane(), Pane(HistoryPane{}));
}

TEST_F(SessionRestoringTest, withoutATrayTheMinimisedWindowIsTheOneThatComesBack)
{
    hasTray = false;
    begin(true);
    app->reopen({.hasMain = true, .pane = MostVisitedPane{}, .hasSettings = false});
    EXPECT_EQ(openWindows(), QWidgetList{app->mainWindow()});
    EXPECT_FALSE(app->mainWindow()->isMinimized());
    EXPECT_EQ(app->mainWindow()->content()->pane(), Pane(MostVisitedPane{}));
}

TEST_F(SessionRestoringTest, theUsersOwnStartKnowsNothingOfIt)
{
    begin(false);
    app->mainWindow()->content()->setPane(MostVisitedPane{});
    app->settingsWindow().open();
    announce("commitDataRequest");
    begin(false);
    EXPECT_EQ(openWindows(), QWidgetList{app->mainWindow()});
    EXPECT_EQ(app->mainWindow()->content()->pane(), Pane(HistoryPane{}));
}

} // namespace roamlet::testing
