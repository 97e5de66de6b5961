// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics.h"

#include "BrowserHome.h"
#include "Library/Library.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/PropertyLists.h"
#include "SampleHome/SafariFiles.h"
#include "Support/FakeConsole.h"
#include "Support/FolderFingerprint.h"

#include <QLocale>
#include <QRegularExpression>

#include <ctime>
#include <gmock/gmock.h>
#include <limits>
#include <mutex>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

constexpr int success = 0;
constexpr int failure = 1;

/// "0.42", as the seconds that a run took are printed.
const std::string seconds = "[0-9]+\\.[0-9][0-9]";

/// Lines as a failed expectation can show them.
std::string text(const QStringList &lines)
{
    return lines.join(u'\n').toStdString();
}

class DiagnosticsTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        qputenv("TZ", BrowserHome::timeZone);
        tzset();
    }
    static void TearDownTestSuite()
    {
        qunsetenv("TZ");
        tzset();
    }

    /// Runs a job as the program would for these arguments. Every run must leave the home as it was.
    int run(const QStringList &arguments)
    {
        const FolderFingerprint before(home.path());
        const int status =
            Diagnostics::run(Command::of(arguments), home.platform(), console, stop.get_token());
        EXPECT_EQ(before.differencesTo(FolderFingerprint(home.path())), "");
        EXPECT_EQ(home.leftovers(), QStringList());
        return status;
    }
    /// What a run that succeeds prints.
    QStringList linesOf(const QStringList &arguments)
    {
        console.output.clear();
        EXPECT_EQ(run(arguments), success);
        return console.lines();
    }
    /// The same without its last line, which says how long the run took.
    QStringList rowsOf(const QStringList &arguments)
    {
        QStringList lines = linesOf(arguments);
        if (!lines.isEmpty())
            lines.removeLast();
        return lines;
    }
    QByteArray outputOf(const QStringList &arguments)
    {
        console.output.clear();
        EXPECT_EQ(run(arguments), success);
        return console.output;
    }
    void switchOff(const QStringList &ids) { home.defaults.setStringList(u"disabledProfiles"_s, ids); }
    QString safari(const QString &file) const { return home.path(u"Library/Safari/" % file); }
    /// A Safari with one page and one bookmark.
    void addSafari() const
    {
        sample::writeSafariHistory(
            safari(u"History.db"_s), {{.id = 1, .url = u"https://apple.example/"_s}},
            {{.itemID = 1, .time = sample::safariTime(BrowserHome::newest), .title = u"Apple"_s}});
        const QVariantMap bookmark =
            sample::safariBookmark(u"A"_s, u"Apple"_s, u"https://apple.example/"_s, {});
        const QVariantMap bar = sample::safariFolder(u"B"_s, u"BookmarksBar"_s, {bookmark});
        sample::writePropertyList(safari(u"Bookmarks.plist"_s),
                                  QVariantMap{{u"Children"_s, QVariantList{bar}}},
                                  sample::PropertyListFormat::Binary);
    }

    BrowserHome home;
    FakeConsole console;
    std::stop_source stop;
};

/// What an empty source is rendered to.
const QByteArray emptyHtml = "<!DOCTYPE NETSCAPE-Bookmark-file-1>\n"
                             "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">\n"
                             "<TITLE>Bookmarks</TITLE>\n<H1>Bookmarks</H1>\n<DL><p>\n</DL><p>\n";
const QByteArray emptyMarkdown = "# Bookmarks\n";
const QByteArray emptyCsv = "Browser,Profile,Folder,Title,URL,Added\r\n";

} // namespace

// --summary

TEST_F(DiagnosticsTest, summaryCountsWhatEachSourceHolds)
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

TEST_F(DiagnosticsTest, summaryEndsWithTheSecondsTaken)
{
    home.addPages();
    EXPECT_THAT(linesOf({u"--summary"_s}).last().toStdString(), MatchesRegex("Read in " + seconds + "s"));
}

TEST_F(DiagnosticsTest, summaryCountsNoMoreUrlsThanALoadKeeps)
{
    home.addProfiles();
    sample::writeHistory(
        home.chrome(u"Default/History"_s), sample::Rows<sample::HistoryRow>::generated(1005, [](qsizetype i) {
            return BrowserHome::page(u"https://example.org/%1"_s.arg(i), u"t"_s, 1, BrowserHome::newest - i);
        }));
    EXPECT_THAT(linesOf({u"--summary"_s}).first().toStdString(),
                HasSubstr("1000 history URLs, latest visit 2026-05-09 11:43"));
}

TEST_F(DiagnosticsTest, summaryOfAProfileWithoutVisitsNamesNoTime)
{
    home.addProfiles();
    EXPECT_THAT(linesOf({u"--summary"_s}).first().toStdString(),
                MatchesRegex(".*  0 history URLs, latest visit [a-z]+"));
}

TEST_F(DiagnosticsTest, summaryListsTheSwitchedOffSourcesByLabelInDiscoveryOrder)
{
    home.addPages();
    switchOff({u"edge/Default"_s, u"chrome/Default"_s, u"chrome/Profile 404"_s});
    const QStringList lines = linesOf({u"--summary"_s});
    ASSERT_EQ(lines.size(), 3) << text(lines);
    EXPECT_THAT(lines[0].toStdString(), StartsWith("Chrome - Work  "));
    EXPECT_EQ(lines[1], u"Turned off in Settings: Chrome - Personal, Edge - Office"_s);
    EXPECT_THAT(lines[2].toStdString(), StartsWith("Read in "));
}

TEST_F(DiagnosticsTest, summarySaysWhenSafariRefusedAccess)
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

TEST_F(DiagnosticsTest, summaryDoesNotCallSafariBlockedForAnotherBrowserOrAnotherFailure)
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

TEST_F(DiagnosticsTest, summaryShowsEveryProblemOfASourceBelowIt)
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

TEST_F(DiagnosticsTest, summaryOfAnEmptyHomeSaysThatThereIsNothing)
{
    const QStringList lines = linesOf({u"--summary"_s});
    ASSERT_EQ(lines.size(), 1) << text(lines);
    EXPECT_THAT(lines[0].toStdString(), StartsWith("Read in "));
    EXPECT_THAT(console.errors.toStdString(), HasSubstr(home.path().toStdString()));
}

// --top

TEST_F(DiagnosticsTest, topPrintsCountNameSiteAndTitleTwoBlanksApart)
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

TEST_F(DiagnosticsTest, topCutsAfterTenAndCountsAllRows)
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

TEST_F(DiagnosticsTest, topCollectsUpToAThousandRowsOfEachSource)
{
    home.addPages();
    sample::writeHistory(
        home.edge(u"Default/History"_s), sample::Rows<sample::HistoryRow>::generated(1001, [](qsizetype i) {
            return BrowserHome::page(u"https://e.example/%1"_s.arg(i), u"t"_s, 1, BrowserHome::newest);
        }));
    EXPECT_THAT(linesOf({u"--top"_s}).last().toStdString(), StartsWith("1005 URLs in "));
}

TEST_F(DiagnosticsTest, topKeepsRowsOfEqualCountsAsTheirSourceDeliveredThem)
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

TEST_F(DiagnosticsTest, topWithoutASiteKeepsItsColumnEmpty)
{
    home.addProfiles();
    sample::writeHistory(home.chrome(u"Default/History"_s),
                         {BrowserHome::page(u"file:///tmp/x"_s, u"Local"_s, 4, BrowserHome::newest)});
    EXPECT_EQ(text(rowsOf({u"--top"_s})), text(QStringList({u"4  Personal    Local"_s})));
}

TEST_F(DiagnosticsTest, topWithoutHistoryPrintsACountOfNone)
{
    home.addProfiles();
    const QStringList lines = linesOf({u"--top"_s});
    ASSERT_EQ(lines.size(), 1) << text(lines);
    EXPECT_THAT(lines[0].toStdString(), MatchesRegex("0 URLs in " + seconds + "s"));
}

TEST_F(DiagnosticsTest, topStandsInColumnsOnATerminal)
{
    sample::writeLocalState(home.chrome(u"Local State"_s),
                            {{u"Default"_s, QJsonObject{{u"name"_s, u"東京"_s}}},
                             {u"Profile 1"_s, QJsonObject{{u"name"_s, u"Travel"_s}}}});
    sample::writeHistory(home.chrome(u"Default/History"_s),
                         {BrowserHome::page(u"https://a.example/"_s, u"one"_s, 1200, BrowserHome::newest)});
    sample::writeHistory(home.chrome(u"Profile 1/History"_s),
                         {BrowserHome::page(u"https://long.example/"_s, u"two"_s, 7, BrowserHome::newest)});
    console.terminal = true;
    EXPECT_EQ(text(rowsOf({u"--top"_s})), "1200  東京    a.example     one\n"
                                          "   7  Travel  long.example  two");
}

// --search and --site

TEST_F(DiagnosticsTest, searchPrintsTheNewestFirstWithLocalTimeLabelTitleAndUrl)
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

TEST_F(DiagnosticsTest, searchNeedsEveryWordAndSaysHowManyMatched)
{
    home.addPages();
    const QStringList lines = linesOf({u"--search"_s, u"Bike"_s, u"example.com"_s});
    ASSERT_EQ(lines.size(), 2) << text(lines);
    EXPECT_THAT(lines[0].toStdString(), HasSubstr("Red Bike page"));
    EXPECT_THAT(lines[1].toStdString(), MatchesRegex("1 match, complete, in " + seconds + "s"));
    EXPECT_THAT(linesOf({u"--search"_s, u"bike"_s}).last().toStdString(),
                MatchesRegex("2 matches, complete, in " + seconds + "s"));
    EXPECT_THAT(linesOf({u"--search"_s, u"nowhere"_s}).last().toStdString(),
                MatchesRegex("0 matches, complete, in " + seconds + "s"));
}

TEST_F(DiagnosticsTest, searchKeepsPagesOfTheSameTimeAsTheirSourceDeliveredThem)
{
    home.addProfiles();
    QList<sample::HistoryRow> rows;
    for (int i = 0; i < 50; ++i)
        rows.append(BrowserHome::page(u"https://s.example/%1"_s.arg(i), u"t"_s, 1, BrowserHome::newest));
    sample::writeHistory(home.chrome(u"Default/History"_s), rows);
    QStringList found = rowsOf({u"--search"_s, u"s.example"_s});
    ASSERT_EQ(found.size(), 50);
    const auto delivered =
        Library::history(HistoryQuery::matching(u"s.example"_s, {}, HistoryQuery::Order::Latest),
                         Library::allProfiles({}, Library::readContext(home.platform())),
                         Library::readContext(home.platform()));
    for (qsizetype i = 0; i < found.size(); ++i)
        EXPECT_TRUE(found[i].endsWith(delivered.items[i].url));
}

TEST_F(DiagnosticsTest, searchThatReachedTheLimitIsCalledCapped)
{
    home.addPages();
    const auto rows = [](qsizetype count) {
        return sample::Rows<sample::HistoryRow>::generated(count, [](qsizetype i) {
            return BrowserHome::page(u"https://many.example/%1"_s.arg(i), u"t"_s, 1, BrowserHome::newest - i);
        });
    };
    sample::writeHistory(home.edge(u"Default/History"_s), rows(999));
    EXPECT_THAT(linesOf({u"--search"_s, u"many"_s}).last().toStdString(),
                StartsWith("999 matches, complete, in "));
    sample::writeHistory(home.edge(u"Default/History"_s), rows(1000));
    EXPECT_THAT(linesOf({u"--search"_s, u"many"_s}).last().toStdString(),
                StartsWith("1000 matches, capped, in "));
    EXPECT_THAT(linesOf({u"--search"_s}).last().toStdString(), StartsWith("1005 matches, complete, in "))
        << "a plain listing is never capped";
}

TEST_F(DiagnosticsTest, searchAndSiteWithoutAWordListEverything)
{
    home.addPages();
    const QStringList all = rowsOf({u"--search"_s});
    EXPECT_EQ(all.size(), 6);
    EXPECT_EQ(text(rowsOf({u"--search"_s, u""_s, u"  "_s})), text(all));
    EXPECT_EQ(text(rowsOf({u"--site"_s})), text(all));
}

TEST_F(DiagnosticsTest, searchTakesWildcardsAndLaterSwitchesForWords)
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

TEST_F(DiagnosticsTest, siteFindsTheHostWithAndWithoutWwwAndPortOnly)
{
    home.addPages();
    const QStringList rows = rowsOf({u"--site"_s, u"example.org"_s});
    ASSERT_EQ(rows.size(), 2);
    EXPECT_THAT(rows[0].toStdString(), HasSubstr("https://www.example.org/news"));
    EXPECT_THAT(rows[1].toStdString(), HasSubstr("https://example.org:8443/bike"));
}

TEST_F(DiagnosticsTest, siteIsTakenAsTyped)
{
    home.addPages();
    EXPECT_EQ(text(rowsOf({u"--site"_s, u"Example.org"_s})), text(QStringList()));
    EXPECT_EQ(text(rowsOf({u"--site"_s, u"www.example.org"_s})), text(QStringList()));
    EXPECT_EQ(text(rowsOf({u"--site"_s, u" example.org"_s})), text(QStringList()));
}

TEST_F(DiagnosticsTest, siteSaysCappedForRowsThatOnlyMentionIt)
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

TEST_F(DiagnosticsTest, aSourceThatFailsContributesNoRowsAndNoMessage)
{
    home.addPages();
    sample::writeFile(home.chrome(u"Default/History"_s), "foreign");
    EXPECT_EQ(rowsOf({u"--search"_s, u"page"_s}).size(), 3);
    EXPECT_EQ(rowsOf({u"--top"_s}).size(), 3);
    EXPECT_EQ(console.errors, "");
}

TEST_F(DiagnosticsTest, textsArePrintedAsStoredWhenNoTerminalShowsThem)
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

TEST_F(DiagnosticsTest, textsOnATerminalCannotCommandIt)
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

TEST_F(DiagnosticsTest, timesThatNoCalendarKnowsAreNoObstacle)
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

// --export

TEST_F(DiagnosticsTest, exportPrintsTheDocumentAndNothingElse)
{
    home.addProfiles();
    home.addBookmarks();
    EXPECT_EQ(
        outputOf({u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Default"_s}).toStdString(),
        "<!DOCTYPE NETSCAPE-Bookmark-file-1>\n"
        "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">\n"
        "<TITLE>Bookmarks</TITLE>\n"
        "<H1>Bookmarks</H1>\n"
        "<DL><p>\n"
        "    <DT><H3 PERSONAL_TOOLBAR_FOLDER=\"true\">Bar</H3>\n"
        "    <DL><p>\n"
        "        <DT><A HREF=\"https://a.example/?x=1&amp;y=2\" ADD_DATE=\"1778307200\">A &amp; B</A>\n"
        "        <DT><H3>Sub</H3>\n"
        "        <DL><p>\n"
        "            <DT><A HREF=\"https://b.example/\" ADD_DATE=\"1778307200\">Größe, &quot;東京&quot;</A>\n"
        "        </DL><p>\n"
        "        <DT><H3>Empty</H3>\n"
        "        <DL><p>\n"
        "        </DL><p>\n"
        "    </DL><p>\n"
        "    <DT><H3>Phone</H3>\n"
        "    <DL><p>\n"
        "        <DT><A HREF=\"https://c.example/\">C</A>\n"
        "    </DL><p>\n"
        "</DL><p>\n");
    EXPECT_EQ(outputOf({u"--export"_s, u"csv"_s, u"--source"_s, u"chrome/Default"_s}).toStdString(),
              "Browser,Profile,Folder,Title,URL,Added\r\n"
              "Chrome,Personal,Bar,A & B,https://a.example/?x=1&y=2,2026-05-09T06:13:20Z\r\n"
              "Chrome,Personal,Bar › Sub,\"Größe, \"\"東京\"\"\",https://b.example/,2026-05-09T06:13:20Z\r\n"
              "Chrome,Personal,Phone,C,https://c.example/,\r\n");
    EXPECT_EQ(outputOf({u"--export"_s, u"markdown"_s, u"--source"_s, u"chrome/Default"_s}).toStdString(),
              "# Bookmarks\n\n## Bar\n\n- [A & B](<https://a.example/?x=1&y=2>)\n\n### Sub\n\n"
              "- [Größe, \"東京\"](<https://b.example/>)\n\n### Empty\n\n## Phone\n\n- "
              "[C](<https://c.example/>)\n");
    EXPECT_EQ(console.errors, "");
}

TEST_F(DiagnosticsTest, exportTakesTheDefaultSafariSourceWhenNoneIsNamed)
{
    home.addProfiles();
    home.addBookmarks();
    addSafari();
    EXPECT_EQ(outputOf({u"--export"_s, u"markdown"_s}).toStdString(),
              "# Bookmarks\n\n## Favorites\n\n- [Apple](<https://apple.example/>)\n");
}

TEST_F(DiagnosticsTest, exportShowsControlCharactersAsStoredOnATerminalOrNot)
{
    home.addProfiles();
    home.addBookmarks();
    const QStringList arguments{u"--export"_s, u"csv"_s, u"--source"_s, u"chrome/Default"_s};
    const QByteArray piped = outputOf(arguments);
    console.terminal = true;
    EXPECT_EQ(outputOf(arguments), piped);
}

TEST_F(DiagnosticsTest, exportOfAnUnknownSourceIsEmptyAndSaysWhy)
{
    home.addProfiles();
    home.addBookmarks();
    EXPECT_EQ(outputOf({u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Nobody"_s}), emptyHtml);
    EXPECT_THAT(console.errors.toStdString(), HasSubstr("chrome/Nobody"));
    EXPECT_EQ(outputOf({u"--export"_s, u"markdown"_s, u"--source"_s, u"Chrome/Default"_s}), emptyMarkdown)
        << "ids are exact";
    EXPECT_EQ(outputOf({u"--export"_s, u"csv"_s, u"--source"_s, u""_s}), emptyCsv);
}

TEST_F(DiagnosticsTest, exportOfASwitchedOffSourceIsEmptyAndSaysWhy)
{
    home.addProfiles();
    home.addBookmarks();
    switchOff({u"chrome/Default"_s});
    EXPECT_EQ(outputOf({u"--export"_s, u"csv"_s, u"--source"_s, u"chrome/Default"_s}), emptyCsv);
    EXPECT_THAT(console.errors.toStdString(), HasSubstr("turned off"));
}

TEST_F(DiagnosticsTest, exportOfAnUnreadableSourceIsEmptyAndSaysWhy)
{
    home.addProfiles();
    sample::writeFile(home.chrome(u"Default/Bookmarks"_s), "[1, 2");
    EXPECT_EQ(outputOf({u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Default"_s}), emptyHtml);
    EXPECT_THAT(console.errors.toStdString(),
                HasSubstr("Couldn't read " + home.chrome(u"Default/Bookmarks"_s).toStdString() + ": "));
}

TEST_F(DiagnosticsTest, exportWithoutSafariOrBookmarksIsEmpty)
{
    EXPECT_EQ(outputOf({u"--export"_s, u"markdown"_s}), emptyMarkdown);
    home.addProfiles();
    console.errors.clear();
    EXPECT_EQ(outputOf({u"--export"_s, u"markdown"_s, u"--source"_s, u"edge/Default"_s}), emptyMarkdown);
    EXPECT_EQ(console.errors, "") << "a profile without bookmarks is no error";
}

TEST_F(DiagnosticsTest, anUnknownFormatGetsTheListOfFormats)
{
    home.addProfiles();
    home.addBookmarks();
    const QList<QStringList> wrong{{u"--export"_s},
                                   {u"--export"_s, u"HTML"_s},
                                   {u"--export"_s, u"htm"_s},
                                   {u"--export"_s, u"md"_s},
                                   {u"--export"_s, u" html"_s},
                                   {u"--export"_s, u""_s},
                                   {u"--export"_s, u"--source"_s, u"chrome/Default"_s},
                                   {u"--source"_s, u"chrome/Default"_s, u"--export"_s},
                                   {u"--export"_s, u"--top"_s}};
    for (const QStringList &arguments : wrong) {
        SCOPED_TRACE(arguments.join(u' ').toStdString());
        console.output.clear();
        EXPECT_EQ(run(arguments), failure);
        EXPECT_EQ(console.output, "Formats: html, markdown, csv\n");
        EXPECT_EQ(console.errors, "");
    }
}

// Every job

TEST_F(DiagnosticsTest, noJobReadsAProfileThatIsSwitchedOff)
{
    home.addPages();
    home.addBookmarks();
    home.addIcons();
    const auto ids = [](const char *key) {
        return std::string_view(key) == "disabledProfiles" ? u"chrome/Default"_s : u"Default"_s;
    };
    for (const char *key : {"disabledProfiles", "disabledChromeProfiles"}) {
        SCOPED_TRACE(key);
        home.defaults.remove(u"disabledProfiles"_s);
        home.defaults.remove(u"disabledChromeProfiles"_s);
        home.defaults.setStringList(QString::fromLatin1(key), {ids(key)});
        std::mutex mutex;
        QStringList touched;
        home.files.failure = [&](const QString &path) {
            const std::scoped_lock lock(mutex);
            touched.append(path);
            return std::error_code{};
        };
        const QList<QStringList> jobs{{u"--summary"_s},
                                      {u"--top"_s},
                                      {u"--search"_s, u"page"_s},
                                      {u"--site"_s, u"example.org"_s},
                                      {u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Default"_s}};
        for (const QStringList &arguments : jobs) {
            const QByteArray output = outputOf(arguments);
            EXPECT_FALSE(output.contains("Daily page")) << output.toStdString();
            EXPECT_FALSE(output.contains("https://a.example/")) << output.toStdString();
        }
        EXPECT_FALSE(touched.isEmpty());
        for (const QString &path : std::as_const(touched))
            EXPECT_FALSE(path.startsWith(home.chrome(u"Default/"_s))) << path.toStdString();
        home.files.failure = nullptr;
    }
}

TEST_F(DiagnosticsTest, aReaderThatWentAwayEndsEveryJobQuietly)
{
    home.addPages();
    console.outputError = std::make_error_code(std::errc::broken_pipe);
    for (const QStringList &arguments : {QStringList{u"--summary"_s},
                                         {u"--top"_s},
                                         {u"--search"_s},
                                         {u"--export"_s, u"csv"_s, u"--source"_s, u"edge/Default"_s}}) {
        EXPECT_EQ(run(arguments), success) << arguments.first().toStdString();
        EXPECT_EQ(console.errors, "");
    }
}

TEST_F(DiagnosticsTest, outputThatCannotBeWrittenIsAFailureWithAReason)
{
    home.addPages();
    console.outputError = std::make_error_code(std::errc::no_space_on_device);
    for (const QStringList &arguments : {QStringList{u"--summary"_s},
                                         {u"--top"_s},
                                         {u"--search"_s},
                                         {u"--export"_s, u"csv"_s, u"--source"_s, u"edge/Default"_s},
                                         {u"--export"_s, u"x"_s}}) {
        console.errors.clear();
        EXPECT_EQ(run(arguments), failure) << arguments.first().toStdString();
        EXPECT_THAT(console.errors.toStdString(), HasSubstr("No space left on device"));
    }
}

TEST_F(DiagnosticsTest, aRunThatWasAskedToStopPrintsNothing)
{
    home.addPages();
    stop.request_stop();
    for (const QStringList &arguments :
         {QStringList{u"--summary"_s}, {u"--top"_s}, {u"--search"_s}, {u"--watch"_s, u"60"_s}})
        run(arguments);
    EXPECT_EQ(console.writes, 0);
}

TEST_F(DiagnosticsTest, secondsAreWrittenWithAPointInEveryLanguage)
{
    home.addPages();
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_THAT(linesOf({u"--top"_s}).last().toStdString(), MatchesRegex("6 URLs in " + seconds + "s"));
    QLocale::setDefault(before);
}

} // namespace roamlet::testing
