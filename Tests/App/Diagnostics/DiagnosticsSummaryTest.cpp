// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsTest.h"
#include "SampleHome/PlainFiles.h"

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

using DiagnosticsSummaryTest = DiagnosticsTest;

} // namespace

TEST_F(DiagnosticsSummaryTest, countsWhatEachSourceHolds)
{
    home.addPages();
    home.addBookmarks();
    home.addIcons();
    EXPECT_EQ(text(rowsOf({u"--summary"_s})),
              text(QStringList({u"Chrome - Personal  3 bookmarks, 4 folders  2 site icons  "
                                "3 history URLs, latest visit 2026-05-09 11:43"_s,
                                u"Chrome - Work      0 bookmarks, 0 folders  0 site icons  "
                                "2 history URLs, latest visit 2026-05-09 10:43"_s,
                                u"Edge - Office      0 bookmarks, 0 folders  0 site icons  "
                                "1 history URLs, latest visit 2026-05-09 11:42"_s})));
    EXPECT_EQ(console.errors, "");
}

TEST_F(DiagnosticsSummaryTest, endsWithTheSecondsTaken)
{
    home.addPages();
    EXPECT_THAT(linesOf({u"--summary"_s}).last().toStdString(), MatchesRegex("Read in " + seconds + "s"));
}

TEST_F(DiagnosticsSummaryTest, countsNoMoreUrlsThanALoadKeeps)
{
    home.addProfiles();
    sample::writeHistory(
        home.chrome(u"Default/History"_s), sample::Rows<sample::HistoryRow>::generated(1005, [](qsizetype i) {
            return BrowserHome::page(u"https://example.org/%1"_s.arg(i), u"t"_s, 1, BrowserHome::newest - i);
        }));
    EXPECT_THAT(linesOf({u"--summary"_s}).first().toStdString(),
                HasSubstr("1000 history URLs, latest visit 2026-05-09 11:43"));
}

TEST_F(DiagnosticsSummaryTest, ofAProfileWithoutVisitsNamesNoTime)
{
    home.addProfiles();
    EXPECT_THAT(linesOf({u"--summary"_s}).first().toStdString(),
                MatchesRegex(".*  0 history URLs, latest visit [a-z]+"));
}

TEST_F(DiagnosticsSummaryTest, listsTheSwitchedOffSourcesByLabelInDiscoveryOrder)
{
    home.addPages();
    switchOff({u"edge/Default"_s, u"chrome/Default"_s, u"chrome/Profile 404"_s});
    const QStringList lines = linesOf({u"--summary"_s});
    ASSERT_EQ(lines.size(), 3) << text(lines);
    EXPECT_THAT(lines[0].toStdString(), StartsWith("Chrome - Work  "));
    EXPECT_EQ(lines[1], u"Turned off in Settings: Chrome - Personal, Edge - Office"_s);
    EXPECT_THAT(lines[2].toStdString(), StartsWith("Read in "));
}

TEST_F(DiagnosticsSummaryTest, saysWhenSafariRefusedAccess)
{
    home.addPages();
    addSafari();
    switchOff({u"chrome/Default"_s, u"chrome/Profile 1"_s});
    const QString file = safari(u"History.db"_s);
    home.files.failure = [file](const QString &path) {
        return path == file ? std::make_error_code(std::errc::operation_not_permitted) : std::error_code{};
    };
    const QStringList lines = linesOf({u"--summary"_s});
    ASSERT_EQ(lines.size(), 6) << text(lines);
    EXPECT_THAT(lines[0].toStdString(), StartsWith("Safari  "));
    EXPECT_THAT(lines[1].toStdString(), HasSubstr("macOS blocked access to " + file.toStdString() + "."));
    EXPECT_THAT(lines[2].toStdString(), StartsWith("Edge - Office  "));
    EXPECT_EQ(lines[3], u"Turned off in Settings: Chrome - Personal, Chrome - Work"_s);
    EXPECT_EQ(lines[4], u"Safari is blocked: grant Full Disk Access."_s);
    EXPECT_THAT(lines[5].toStdString(), StartsWith("Read in "));
    EXPECT_THAT(home.clock.sleeps(), ::testing::IsEmpty()) << "a refusal is not tried again";
}

TEST_F(DiagnosticsSummaryTest, doesNotCallSafariBlockedForAnotherBrowserOrAnotherFailure)
{
    home.addPages();
    addSafari();
    sample::writeFile(safari(u"History.db"_s), "no database at all, but long enough to be taken for one");
    const QString refused = home.chrome(u"Default/History"_s);
    home.files.failure = [refused](const QString &path) {
        return path == refused ? std::make_error_code(std::errc::permission_denied) : std::error_code{};
    };
    const QStringList lines = linesOf({u"--summary"_s});
    EXPECT_THAT(lines[1].toStdString(), HasSubstr("Couldn't read query: file is not a database"));
    EXPECT_THAT(lines[3].toStdString(), HasSubstr("macOS blocked access to " + refused.toStdString() + "."));
    EXPECT_FALSE(lines.contains(u"Safari is blocked: grant Full Disk Access."_s));
}

TEST_F(DiagnosticsSummaryTest, showsEveryProblemOfASourceBelowIt)
{
    home.addPages();
    sample::writeFile(home.chrome(u"Profile 1/History"_s), "foreign");
    sample::writeFile(home.chrome(u"Profile 1/Bookmarks"_s), "{");
    const QStringList lines = linesOf({u"--summary"_s});
    ASSERT_EQ(lines.size(), 6) << text(lines);
    EXPECT_THAT(lines[1].toStdString(), StartsWith("Chrome - Work "));
    EXPECT_THAT(lines[2].toStdString(),
                HasSubstr("Couldn't read " + home.chrome(u"Profile 1/Bookmarks"_s).toStdString() + ": "));
    EXPECT_THAT(lines[3].toStdString(), HasSubstr("Couldn't read query: "));
    EXPECT_THAT(lines[4].toStdString(), StartsWith("Edge - Office "));
}

TEST_F(DiagnosticsSummaryTest, saysWhichListOfProfilesCannotBeRead)
{
    home.addPages();
    const QString list = home.path(u".mozilla/firefox/profiles.ini"_s);
    sample::writeFile(list, "[Profile0]\nName=A\nIsRelative=1\nPath=a\n");
    home.files.failure = [&list](const QString &path) {
        return path == list ? std::make_error_code(std::errc::io_error) : std::error_code();
    };
    run({u"--summary"_s});
    EXPECT_EQ(console.errors.toStdString(),
              "roamlet: Couldn't read " + list.toStdString() + ": Input/output error\n");
}

TEST_F(DiagnosticsSummaryTest, ofAnEmptyHomeSaysThatThereIsNothing)
{
    const QStringList lines = linesOf({u"--summary"_s});
    ASSERT_EQ(lines.size(), 1) << text(lines);
    EXPECT_THAT(lines[0].toStdString(), StartsWith("Read in "));
    EXPECT_THAT(console.errors.toStdString(), HasSubstr(home.path().toStdString()));
}

} // namespace roamlet::testing
