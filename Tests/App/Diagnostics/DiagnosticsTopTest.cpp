// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsTest.h"

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

using DiagnosticsTopTest = DiagnosticsTest;

} // namespace

TEST_F(DiagnosticsTopTest, printsCountNameSiteAndTitleTwoBlanksApart)
{
    home.addPages();
    const QStringList lines = linesOf({u"--top"_s});
    ASSERT_EQ(lines.size(), 7) << text(lines);
    EXPECT_EQ(text(lines.first(6)),
              text(QStringList({u"40  Work  work.example.com  Board page"_s,
                                u"12  Personal  example.org  Daily page"_s,
                                u"7  Personal  mirror.example.net  Mirror page"_s,
                                u"5  Office  intra.example  https://intra.example/page"_s,
                                u"3  Personal  example.org  Blue Bike page 東京"_s,
                                u"2  Work  bike.example.com  Red Bike page"_s})));
    EXPECT_THAT(lines[6].toStdString(), MatchesRegex("6 URLs in " + seconds + "s"));
}

TEST_F(DiagnosticsTopTest, cutsAfterTenAndCountsAllRows)
{
    home.addProfiles();
    QList<sample::HistoryRow> rows;
    for (int i = 1; i <= 12; ++i)
        rows.append(BrowserHome::page(u"https://s%1.example/"_s.arg(i), u"t"_s, i, BrowserHome::newest + i));
    sample::writeHistory(home.chrome(u"Default/History"_s), rows);
    const QStringList lines = linesOf({u"--top"_s});
    ASSERT_EQ(lines.size(), 11) << text(lines);
    EXPECT_EQ(lines[0], u"12  Personal  s12.example  t"_s);
    EXPECT_EQ(lines[9], u"3  Personal  s3.example  t"_s);
    EXPECT_THAT(lines[10].toStdString(), MatchesRegex("12 URLs in " + seconds + "s"));
}

TEST_F(DiagnosticsTopTest, collectsUpToAThousandRowsOfEachSource)
{
    home.addPages();
    sample::writeHistory(
        home.edge(u"Default/History"_s), sample::Rows<sample::HistoryRow>::generated(1001, [](qsizetype i) {
            return BrowserHome::page(u"https://e.example/%1"_s.arg(i), u"t"_s, 1, BrowserHome::newest);
        }));
    EXPECT_THAT(linesOf({u"--top"_s}).last().toStdString(), StartsWith("1005 URLs in "));
}

TEST_F(DiagnosticsTopTest, keepsRowsOfEqualCountsAsTheirSourceDeliveredThem)
{
    home.addProfiles();
    sample::writeHistory(
        home.chrome(u"Default/History"_s),
        {BrowserHome::page(u"https://older.example/"_s, u"t"_s, 4, BrowserHome::newest - 2),
         BrowserHome::page(u"https://newest.example/"_s, u"t"_s, 4, BrowserHome::newest),
         BrowserHome::page(u"https://newer.example/"_s, u"t"_s, 4, BrowserHome::newest - 1)});
    EXPECT_EQ(text(rowsOf({u"--top"_s})),
              text(QStringList({u"4  Personal  newest.example  t"_s, u"4  Personal  newer.example  t"_s,
                                u"4  Personal  older.example  t"_s})));
}

TEST_F(DiagnosticsTopTest, withoutASiteKeepsItsColumnEmpty)
{
    home.addProfiles();
    sample::writeHistory(home.chrome(u"Default/History"_s),
                         {BrowserHome::page(u"file:///tmp/x"_s, u"Local"_s, 4, BrowserHome::newest)});
    EXPECT_EQ(text(rowsOf({u"--top"_s})), text(QStringList({u"4  Personal    Local"_s})));
}

TEST_F(DiagnosticsTopTest, namesTheProfileWithoutItsInstallation)
{
    home.addPages();
    const QString beta = home.path(u".config/google-chrome-beta"_s);
    sample::writeLocalState(beta % u"/Local State", {{u"Default"_s, QJsonObject{{u"name"_s, u"Test"_s}}}});
    sample::writeHistory(beta % u"/Default/History",
                         {BrowserHome::page(u"https://b.example/"_s, u"t"_s, 50, BrowserHome::newest)});
    const QStringList rows = rowsOf({u"--top"_s});
    EXPECT_EQ(rows.value(0).toStdString(), "50  Test  b.example  t");
    EXPECT_EQ(rows.value(1).toStdString(), "40  Work  work.example.com  Board page");
    EXPECT_THAT(linesOf({u"--summary"_s}).join(u'\n').toStdString(), HasSubstr("Chrome Beta - Test"))
        << "where the label does name it";
}

TEST_F(DiagnosticsTopTest, withoutHistoryPrintsACountOfNone)
{
    home.addProfiles();
    const QStringList lines = linesOf({u"--top"_s});
    ASSERT_EQ(lines.size(), 1) << text(lines);
    EXPECT_THAT(lines[0].toStdString(), MatchesRegex("0 URLs in " + seconds + "s"));
}

TEST_F(DiagnosticsTopTest, keepsItsLinesOnATerminal)
{
    sample::writeLocalState(home.chrome(u"Local State"_s),
                            {{u"Default"_s, QJsonObject{{u"name"_s, u"東京"_s}}},
                             {u"Profile 1"_s, QJsonObject{{u"name"_s, u"Travel"_s}}}});
    sample::writeHistory(home.chrome(u"Default/History"_s),
                         {BrowserHome::page(u"https://a.example/"_s, u"one"_s, 1200, BrowserHome::newest)});
    const QString title = u"two "_s % QString(100, u't');
    sample::writeHistory(home.chrome(u"Profile 1/History"_s),
                         {BrowserHome::page(u"https://long.example/"_s, title, 7, BrowserHome::newest)});
    console.terminal = true;
    EXPECT_EQ(text(rowsOf({u"--top"_s})),
              "1200  東京  a.example  one\n7  Travel  long.example  " + title.toStdString());
}

} // namespace roamlet::testing
