// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsTest.h"
#include "Library/LibraryReading.h"
#include "SampleHome/PlainFiles.h"

#include <QRegularExpression>

#include <gmock/gmock.h>
#include <limits>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

using DiagnosticsSearchTest = DiagnosticsTest;

} // namespace

TEST_F(DiagnosticsSearchTest, searchPrintsTheNewestFirstWithLocalTimeLabelTitleAndUrl)
{
    home.addPages();
    EXPECT_EQ(text(rowsOf({u"--search"_s, u"PAGE"_s})),
              text(QStringList({u"2026-05-09 11:43  Chrome - Personal  Daily page                  "
                                "https://www.example.org/news"_s,
                                u"2026-05-09 11:42  Edge - Office      https://intra.example/page  "
                                "https://intra.example/page"_s,
                                u"2026-05-09 10:43  Chrome - Work      Board page                  "
                                "https://work.example.com/"_s,
                                u"2026-05-09 09:43  Chrome - Personal  Blue Bike page 東京         "
                                "https://example.org:8443/bike"_s,
                                u"2026-05-09 08:43  Chrome - Personal  Mirror page                 "
                                "https://mirror.example.net/?from=https://example.org/"_s,
                                u"2026-05-08 11:43  Chrome - Work      Red Bike page               "
                                "https://bike.example.com/"_s})));
}

TEST_F(DiagnosticsSearchTest, searchNeedsEveryWordAndSaysHowManyMatched)
{
    home.addPages();
    const QStringList lines = linesOf({u"--search"_s, u"Bike"_s, u"example.com"_s});
    ASSERT_EQ(lines.size(), 2) << text(lines);
    EXPECT_THAT(lines[0].toStdString(), HasSubstr("Red Bike page"));
    EXPECT_THAT(lines[1].toStdString(), MatchesRegex("1 match, not capped, in " + seconds + "s"));
    EXPECT_THAT(linesOf({u"--search"_s, u"bike"_s}).last().toStdString(),
                MatchesRegex("2 matches, not capped, in " + seconds + "s"));
    EXPECT_THAT(linesOf({u"--search"_s, u"nowhere"_s}).last().toStdString(),
                MatchesRegex("0 matches, not capped, in " + seconds + "s"));
}

TEST_F(DiagnosticsSearchTest, pagesOfTheSameTimeKeepTheOrderOfTheirSourcesWhicheverEndsFirst)
{
    home.addProfiles();
    const auto write = [](const QString &file, const QString &host, int count) {
        QList<sample::HistoryRow> rows;
        for (int i = 0; i < count; ++i)
            rows.append(BrowserHome::page(u"https://%1.example/%2"_s.arg(host).arg(i), u"t"_s, 1,
                                          BrowserHome::newest));
        sample::writeHistory(file, rows);
    };
    // The first source has by far the most to read.
    write(home.chrome(u"Default/History"_s), u"first"_s, 900);
    write(home.edge(u"Default/History"_s), u"last"_s, 1);
    const QStringList found = rowsOf({u"--search"_s, u"example"_s});
    ASSERT_GE(found.size(), 901);
    EXPECT_TRUE(found.first().contains(u"first.example"_s));
    EXPECT_TRUE(found.at(899).contains(u"first.example"_s));
}

TEST_F(DiagnosticsSearchTest, searchKeepsPagesOfTheSameTimeAsTheirSourceDeliveredThem)
{
    home.addProfiles();
    QList<sample::HistoryRow> rows;
    for (int i = 0; i < 50; ++i)
        rows.append(BrowserHome::page(u"https://s.example/%1"_s.arg(i), u"t"_s, 1, BrowserHome::newest));
    sample::writeHistory(home.chrome(u"Default/History"_s), rows);
    QStringList found = rowsOf({u"--search"_s, u"s.example"_s});
    ASSERT_EQ(found.size(), 50);
    const auto delivered =
        LibraryReading::history(HistoryQuery::matching(u"s.example"_s, {}, HistoryQuery::Order::Latest),
                                LibraryReading::allProfiles({}, LibraryReading::readContext(home.platform())),
                                LibraryReading::readContext(home.platform()));
    for (qsizetype i = 0; i < found.size(); ++i)
        EXPECT_TRUE(found[i].endsWith(delivered.items[i].url));
}

TEST_F(DiagnosticsSearchTest, searchThatReachedTheLimitIsCalledCapped)
{
    home.addPages();
    const auto rows = [](qsizetype count) {
        return sample::Rows<sample::HistoryRow>::generated(count, [](qsizetype i) {
            return BrowserHome::page(u"https://many.example/%1"_s.arg(i), u"t"_s, 1, BrowserHome::newest - i);
        });
    };
    sample::writeHistory(home.edge(u"Default/History"_s), rows(999));
    EXPECT_THAT(linesOf({u"--search"_s, u"many"_s}).last().toStdString(),
                StartsWith("999 matches, not capped, in "));
    sample::writeHistory(home.edge(u"Default/History"_s), rows(1000));
    EXPECT_THAT(linesOf({u"--search"_s, u"many"_s}).last().toStdString(),
                StartsWith("1000 matches, capped, in "));
    EXPECT_THAT(linesOf({u"--search"_s}).last().toStdString(), StartsWith("1005 matches, not capped, in "))
        << "a plain listing is never capped";
}

TEST_F(DiagnosticsSearchTest, searchAndSiteWithoutAWordListEverything)
{
    home.addPages();
    const QStringList all = rowsOf({u"--search"_s});
    EXPECT_EQ(all.size(), 6);
    EXPECT_EQ(text(rowsOf({u"--search"_s, u""_s, u"  "_s})), text(all));
    EXPECT_EQ(text(rowsOf({u"--site"_s})), text(all));
}

TEST_F(DiagnosticsSearchTest, searchTakesWildcardsAndLaterSwitchesForWords)
{
    home.addProfiles();
    sample::writeHistory(
        home.chrome(u"Default/History"_s),
        {BrowserHome::page(u"https://a.example/--watch"_s, u"100% a_b"_s, 1, BrowserHome::newest),
         BrowserHome::page(u"https://b.example/"_s, u"1000 axb"_s, 1, BrowserHome::newest)});
    EXPECT_EQ(rowsOf({u"--search"_s, u"100%"_s}).size(), 1);
    EXPECT_EQ(rowsOf({u"--search"_s, u"a_b"_s}).size(), 1);
    EXPECT_EQ(rowsOf({u"--search"_s, u"--watch"_s}).size(), 1);
}

TEST_F(DiagnosticsSearchTest, siteFindsTheHostWithAndWithoutWwwAndPortOnly)
{
    home.addPages();
    const QStringList rows = rowsOf({u"--site"_s, u"example.org"_s});
    ASSERT_EQ(rows.size(), 2);
    EXPECT_THAT(rows[0].toStdString(), HasSubstr("https://www.example.org/news"));
    EXPECT_THAT(rows[1].toStdString(), HasSubstr("https://example.org:8443/bike"));
}

TEST_F(DiagnosticsSearchTest, siteIsTakenAsTyped)
{
    home.addPages();
    EXPECT_EQ(text(rowsOf({u"--site"_s, u"Example.org"_s})), text(QStringList()));
    EXPECT_EQ(text(rowsOf({u"--site"_s, u"www.example.org"_s})), text(QStringList()));
    EXPECT_EQ(text(rowsOf({u"--site"_s, u" example.org"_s})), text(QStringList()));
}

TEST_F(DiagnosticsSearchTest, siteSaysCappedForRowsThatOnlyMentionIt)
{
    home.addProfiles();
    sample::writeHistory(
        home.chrome(u"Default/History"_s), sample::Rows<sample::HistoryRow>::generated(1000, [](qsizetype i) {
            return BrowserHome::page(i % 100 == 0 ? u"https://s.example/%1"_s.arg(i)
                                                  : u"https://x.example/?u=https://s.example/%1"_s.arg(i),
                                     u"t"_s, 1, BrowserHome::newest - i);
        }));
    const QStringList lines = linesOf({u"--site"_s, u"s.example"_s});
    EXPECT_EQ(lines.size(), 11);
    EXPECT_THAT(lines.last().toStdString(), StartsWith("10 matches, capped, in "));
}

TEST_F(DiagnosticsSearchTest, sourcesThatFailAreNamedOnTheErrorStreamInTheirOrder)
{
    home.addPages();
    sample::writeFile(home.edge(u"Default/History"_s), "foreign");
    sample::writeFile(home.chrome(u"Default/History"_s), "foreign");
    for (const QStringList &arguments :
         {QStringList{u"--search"_s, u"page"_s}, {u"--site"_s, u"work.example.com"_s}, {u"--top"_s}}) {
        SCOPED_TRACE(arguments.first().toStdString());
        console.errors.clear();
        const QStringList rows = rowsOf(arguments);
        EXPECT_EQ(rows.size(), arguments.contains(u"--site") ? 1 : 2);
        EXPECT_TRUE(rows.first().contains(u"Work")) << rows.first().toStdString();
        EXPECT_EQ(console.errors.toStdString(),
                  "roamlet: Chrome - Personal: Couldn't read query: file is not a database\n"
                  "roamlet: Edge - Office: Couldn't read query: file is not a database\n");
    }
}

TEST_F(DiagnosticsSearchTest, aSourceThatFailsCannotCommandTheTerminal)
{
    sample::writeLocalState(home.chrome(u"Local State"_s),
                            {{u"Default"_s, QJsonObject{{u"name"_s, u"Evil\u001B[2J\nname"_s}}}});
    sample::writeFile(home.chrome(u"Default/History"_s), "foreign");
    console.terminal = true;
    for (const QString &option : {u"--search"_s, u"--top"_s}) {
        console.errors.clear();
        outputOf({option});
        EXPECT_THAT(console.errors.toStdString(),
                    StartsWith("roamlet: Chrome - Evil␛[2J␊name: Couldn't read "));
        EXPECT_EQ(console.errors.count('\n'), 1);
    }
}

TEST_F(DiagnosticsSearchTest, aRunThatShallEndComplainsAboutNoSource)
{
    home.addPages();
    stop.request_stop();
    for (const QString &option : {u"--search"_s, u"--site"_s, u"--top"_s}) {
        run({option});
        EXPECT_EQ(console.errors, "") << option.toStdString();
    }
}

TEST_F(DiagnosticsSearchTest, textsArePrintedAsStoredWhenNoTerminalShowsThem)
{
    home.addProfiles();
    const QString title = u"\u001B[31mred\u001B[0m\ttab\nline \u202Ereversed\u009B"_s;
    sample::writeHistory(home.chrome(u"Default/History"_s),
                         {BrowserHome::page(u"https://a.example/\u0007"_s, title, 1, BrowserHome::newest)});
    EXPECT_THAT(outputOf({u"--search"_s}).toStdString(),
                HasSubstr(title.toStdString() + "  https://a.example/\a\n"));
    EXPECT_THAT(outputOf({u"--top"_s}).toStdString(),
                StartsWith("1  Personal  a.example  " + title.toStdString() + '\n'));
}

TEST_F(DiagnosticsSearchTest, textsOnATerminalCannotCommandIt)
{
    sample::writeLocalState(home.chrome(u"Local State"_s),
                            {{u"Default"_s, QJsonObject{{u"name"_s, u"Evil\u001B]0;name\u0007"_s}}}});
    sample::makeFolder(home.chrome(u"Default"_s));
    sample::writeFile(home.chrome(u"Default/Bookmarks"_s), "{");
    const QString title = u"\u001B[31mred\u0085\ttab\nline \u202Ereversed\u009B\u007F\r"_s;
    sample::writeHistory(
        home.chrome(u"Default/History"_s),
        {BrowserHome::page(u"https://a.example/\u0007\u001B"_s, title, 1, BrowserHome::newest)});
    console.terminal = true;
    static const QRegularExpression commands(
        u"[\\x{00}-\\x{09}\\x{0B}-\\x{1F}\\x{7F}-\\x{9F}\\x{202A}-\\x{202E}\\x{2066}-\\x{2069}]"_s);
    for (const QString &option : {u"--search"_s, u"--top"_s, u"--summary"_s}) {
        const QString output = QString::fromUtf8(outputOf({option}));
        EXPECT_FALSE(output.contains(commands)) << option.toStdString() << ": " << output.toStdString();
    }
    EXPECT_EQ(linesOf({u"--search"_s}).size(), 2) << "a line end in a title starts no line";
    EXPECT_THAT(linesOf({u"--top"_s}).first().toStdString(),
                HasSubstr("␛[31mred<U+0085>␉tab␊line <U+202E>reversed"));
}

TEST_F(DiagnosticsSearchTest, timesThatNoCalendarKnowsAreNoObstacle)
{
    home.addProfiles();
    auto first = BrowserHome::page(u"https://first.example/"_s, u"t"_s, 1, 0);
    first.lastVisitTime = 1;
    auto last = BrowserHome::page(u"https://last.example/"_s, u"t"_s, 1, 0);
    last.lastVisitTime = std::numeric_limits<qint64>::max();
    auto never = BrowserHome::page(u"https://never.example/"_s, u"t"_s, 1, 0);
    never.lastVisitTime = 0;
    sample::writeHistory(home.chrome(u"Default/History"_s), {first, last, never});
    const QStringList rows = rowsOf({u"--search"_s});
    ASSERT_EQ(rows.size(), 2);
    EXPECT_THAT(rows[0].toStdString(), HasSubstr("last.example"));
    EXPECT_THAT(rows[1].toStdString(), StartsWith("1601-01-01 05:30"));
    EXPECT_EQ(linesOf({u"--summary"_s}).size(), 4);
}

} // namespace roamlet::testing
