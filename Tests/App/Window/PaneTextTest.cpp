// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/PaneText.h"

#include "Support/LibraryHome.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// Titles "t0", "t1" and so on.
QStringList manyTitles(int count)
{
    QStringList result;
    for (int i = 0; i < count; ++i)
        result.append(u"t%1"_s.arg(i));
    return result;
}

} // namespace

class PaneTextTest : public LibraryHome
{
protected:
    QString subtitle(const std::optional<Pane> &pane, const PaneText::ListState &list = {}) const
    {
        return PaneText::subtitle(pane, library, list, QLocale(QLocale::English, QLocale::UnitedStates));
    }

    Library library{home.platform()};
};

TEST_F(PaneTextTest, theTitleNamesWhatIsShown)
{
    addChromium();
    loadNow(library);
    EXPECT_EQ(PaneText::title({}, library), u"Roamlet");
    EXPECT_EQ(PaneText::title(MostVisitedPane(), library), u"Most Visited");
    EXPECT_EQ(PaneText::title(HistoryPane(), library), u"Recent History");
    EXPECT_EQ(PaneText::title(BookmarksPane(), library), u"All Bookmarks");
    EXPECT_EQ(PaneText::title(HistoryPane{u"chrome/Profile 1"_s}, library), u"Work History");
    EXPECT_EQ(PaneText::title(BookmarksPane{u"edge/Default"_s}, library), u"Office Bookmarks");
}

TEST_F(PaneTextTest, aTitleIsOneLineOfAReadableLength)
{
    addChromium();
    change([this] {
        sample::writeLocalState(chromeFile(u"Local State"_s),
                                {{u"Default"_s, QJsonObject{{u"name"_s, u"two\nlines"_s}}},
                                 {u"Profile 1"_s, QJsonObject{{u"name"_s, QString(1'000'000, u'x')}}}});
    });
    loadNow(library);
    EXPECT_EQ(PaneText::title(HistoryPane{u"chrome/Default"_s}, library), u"two lines History");
    EXPECT_LT(PaneText::title(HistoryPane{u"chrome/Profile 1"_s}, library).size(), 2000);
}

TEST_F(PaneTextTest, theTitleFallsBackWhenTheSourceIsGone)
{
    addChromium();
    home.defaults.setStringList(u"disabledProfiles"_s, {u"chrome/Profile 1"_s});
    Library switchedOff(home.platform());
    loadNow(switchedOff);
    EXPECT_EQ(PaneText::title(HistoryPane{u"chrome/Profile 1"_s}, switchedOff), u"Recent History");
    EXPECT_EQ(PaneText::title(BookmarksPane{u"chrome/Profile 1"_s}, switchedOff), u"All Bookmarks");
}

TEST_F(PaneTextTest, nothingIsCountedBeforeTheFirstLoad)
{
    for (const std::optional<Pane> &pane :
         {std::optional<Pane>(), std::optional<Pane>(HistoryPane()), std::optional<Pane>(MostVisitedPane()),
          std::optional<Pane>(BookmarksPane{u"chrome/Default"_s})})
        EXPECT_EQ(subtitle(pane, {.rowCount = 5, .isCapped = true, .search = {}, .site = {}}), u"Reading…");
}

TEST_F(PaneTextTest, rowsAreCountedWithGroupedDigits)
{
    addChromium();
    loadNow(library);
    EXPECT_EQ(subtitle(HistoryPane(), {.rowCount = 0, .search = {}, .site = {}}), u"0 items");
    EXPECT_EQ(subtitle(HistoryPane(), {.rowCount = 1, .search = {}, .site = {}}), u"1 item");
    EXPECT_EQ(subtitle(HistoryPane(), {.rowCount = 1234, .search = {}, .site = {}}), u"1,234 items");
    EXPECT_EQ(subtitle({}, {.rowCount = 1234, .isCapped = true, .search = u"x"_s, .site = {}}),
              u"1,234 items");
}

TEST_F(PaneTextTest, theSelectedSourcesProblemComesFirst)
{
    addChromium();
    fail(chromeFile(u"Default/History"_s), std::errc::io_error);
    loadNow(library);
    const QString problem = library.snapshot().problems.value(u"chrome/Default"_s);
    ASSERT_FALSE(problem.isEmpty());
    EXPECT_EQ(subtitle(HistoryPane{u"chrome/Default"_s}), problem);
    EXPECT_EQ(subtitle(BookmarksPane{u"chrome/Default"_s}), problem);
    EXPECT_EQ(subtitle(HistoryPane{u"chrome/Profile 1"_s}), u"0 items");
    EXPECT_EQ(subtitle(HistoryPane()), u"0 items");
}

TEST_F(PaneTextTest, aListThatHoldsTheLatestRowsOnlySaysSo)
{
    addChromium();
    setChromeHistory(u"Default"_s, manyTitles(1000));
    loadNow(library);
    const PaneText::ListState list{.rowCount = 1000, .isCapped = false, .search = u" \t"_s, .site = {}};
    EXPECT_EQ(subtitle(HistoryPane{u"chrome/Default"_s}, list), u"1,000 items · latest 1,000");
    EXPECT_EQ(subtitle(HistoryPane(), list), u"1,000 items · latest 1,000 from each source");
    EXPECT_EQ(subtitle(MostVisitedPane(), list), u"1,000 items · top 1,000 from each source");
    EXPECT_EQ(subtitle(HistoryPane{u"chrome/Profile 1"_s}, list), u"1,000 items");
    EXPECT_EQ(subtitle(HistoryPane{u"gone"_s}, list), u"1,000 items");
}

TEST_F(PaneTextTest, oneRowLessIsNoLimit)
{
    addChromium();
    setChromeHistory(u"Default"_s, manyTitles(999));
    loadNow(library);
    EXPECT_EQ(subtitle(HistoryPane(), {.rowCount = 999, .search = {}, .site = {}}), u"999 items");
}

TEST_F(PaneTextTest, aSearchSaysWhetherItWasCapped)
{
    addChromium();
    setChromeHistory(u"Default"_s, manyTitles(1000));
    loadNow(library);
    EXPECT_EQ(subtitle(HistoryPane(), {.rowCount = 2, .isCapped = false, .search = u"x"_s, .site = {}}),
              u"2 items");
    EXPECT_EQ(subtitle(HistoryPane(), {.rowCount = 2, .isCapped = true, .search = u"x"_s, .site = {}}),
              u"2 items · latest 1,000 from each source");
    EXPECT_EQ(subtitle(HistoryPane{u"chrome/Profile 1"_s},
                       {.rowCount = 2, .isCapped = true, .search = {}, .site = u"a.example"_s}),
              u"2 items · latest 1,000");
    EXPECT_EQ(subtitle(MostVisitedPane(), {.rowCount = 2, .isCapped = true, .search = {}, .site = u""_s}),
              u"2 items · top 1,000 from each source");
}

TEST_F(PaneTextTest, theExportBeginsWithTheShownSourceIfItHasBookmarks)
{
    addChromium();
    EXPECT_FALSE(PaneText::hasBookmarks({}, library.snapshot()));
    loadNow(library);
    const Library::Snapshot &snapshot = library.snapshot();
    EXPECT_TRUE(PaneText::hasBookmarks({}, snapshot));
    EXPECT_TRUE(PaneText::hasBookmarks(u"chrome/Default"_s, snapshot));
    EXPECT_FALSE(PaneText::hasBookmarks(u"edge/Default"_s, snapshot));
    EXPECT_EQ(PaneText::exportSourceID(BookmarksPane{u"chrome/Default"_s}, snapshot), u"chrome/Default"_s);
    EXPECT_EQ(PaneText::exportSourceID(BookmarksPane{u"edge/Default"_s}, snapshot), std::nullopt);
    EXPECT_EQ(PaneText::exportSourceID(BookmarksPane(), snapshot), std::nullopt);
    EXPECT_EQ(PaneText::exportSourceID(HistoryPane{u"chrome/Default"_s}, snapshot), std::nullopt);
    EXPECT_EQ(PaneText::exportSourceID({}, snapshot), std::nullopt);
}

TEST(PaneTextLabels, groupingsAreNamedByTheirList)
{
    EXPECT_EQ(PaneText::label(Grouping::None, GroupedList::History), u"None");
    EXPECT_EQ(PaneText::label(Grouping::Day, GroupedList::History), u"Day");
    EXPECT_EQ(PaneText::label(Grouping::Site, GroupedList::MostVisited), u"Site");
    EXPECT_EQ(PaneText::label(Grouping::None, GroupedList::Bookmarks), u"Folders");
    EXPECT_EQ(PaneText::groupedList(MostVisitedPane()), GroupedList::MostVisited);
    EXPECT_EQ(PaneText::groupedList(BookmarksPane{u"x"_s}), GroupedList::Bookmarks);
}

} // namespace roamlet::testing
