// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/RecentPages.h"

#include "Support/LibraryHome.h"
#include "Support/Waiting.h"

#include <QSignalSpy>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

using RecentPagesTest = LibraryHome;

TEST_F(RecentPagesTest, theMenuShowsTheTenPagesVisitedLast)
{
    addChromium();
    QStringList many;
    for (int i = 0; i < 12; ++i)
        many.append(u"page%1"_s.arg(i));
    setChromeHistory(u"Default"_s, many, newest + 60);
    Library library(home.platform());
    loadNow(library);
    QStringList expected{u"b1"_s};
    for (int i = 0; i < 9; ++i)
        expected.append(u"page%1"_s.arg(i));
    EXPECT_EQ(titles(library.menuRecent()), expected);
    EXPECT_EQ(library.menuUpdated(), library.lastLoaded());
}

TEST_F(RecentPagesTest, pagesOfTheSameTimeStayInTheSnapshotsOrder)
{
    addChromium();
    setChromeHistory(u"Default"_s, {u"first"_s});
    setChromeHistory(u"Profile 1"_s, {u"second"_s});
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(titles(library.menuRecent()), (QStringList{u"e1"_s, u"first"_s, u"second"_s}));
}

TEST_F(RecentPagesTest, anOpenMenuDoesNotChangeUntilItIsClosed)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    const QStringList before = titles(library.menuRecent());
    const std::optional<PointInTime> updated = library.menuUpdated();
    library.setMenuOpen(true);
    setChromeHistory(u"Default"_s, {u"newest"_s}, newest + 1000);
    home.clock.advance(std::chrono::seconds(60));
    loadNow(library);
    EXPECT_EQ(titles(library.menuRecent()), before);
    EXPECT_EQ(library.menuUpdated(), updated);
    library.setMenuOpen(false);
    EXPECT_EQ(library.menuRecent().first().title, u"newest"_s);
    EXPECT_EQ(library.menuUpdated(), library.lastLoaded());
    EXPECT_NE(library.menuUpdated(), updated);
}

TEST_F(RecentPagesTest, aMenuThatClosesBeforeTheFirstLoadIsEmpty)
{
    addChromium();
    Library library(home.platform());
    const QSignalSpy changes(&library, &Library::menuRecentChanged);
    library.setMenuOpen(true);
    EXPECT_EQ(changes.count(), 0);
    library.setMenuOpen(false);
    EXPECT_TRUE(library.menuRecent().isEmpty());
    EXPECT_EQ(library.menuUpdated(), std::nullopt);
}

TEST_F(RecentPagesTest, aMenuThatClosesDuringALoadShowsTheLastSnapshot)
{
    addChromium();
    Library library(home.platform());
    loadNow(library);
    library.setMenuOpen(true);
    setChromeHistory(u"Default"_s, {u"newest"_s}, newest + 1000);
    Gate gate;
    recordReads(&gate);
    library.load({});
    gate.awaitReader();
    library.setMenuOpen(false);
    EXPECT_EQ(library.menuRecent().first().title, u"b1"_s);
    gate.open();
    ASSERT_TRUE(waitUntil([&library] { return !library.isLoading(); }));
    EXPECT_EQ(library.menuRecent().first().title, u"newest"_s);
}

} // namespace
} // namespace roamlet::testing
