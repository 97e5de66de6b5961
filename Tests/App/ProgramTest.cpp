// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Program.h"

#include "BrowserHome.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/SampleHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <gmock/gmock.h>
#include <grp.h>
#include <string>
#include <utility>
#include <vector>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

const std::string seconds = "[0-9]+\\.[0-9][0-9]";

const QByteArray emptyHtml = "<!DOCTYPE NETSCAPE-Bookmark-file-1>\n"
                             "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">\n"
                             "<TITLE>Bookmarks</TITLE>\n<H1>Bookmarks</H1>\n<DL><p>\n</DL><p>\n";

class ProgramTest : public ::testing::Test
{
protected:
    /// The lines of a run that succeeds without a message.
    std::vector<std::string> linesOf(const QStringList &arguments) const
    {
        const Ended ended = program.run(arguments);
        EXPECT_EQ(ended.status, 0);
        EXPECT_EQ(ended.errors, "");
        std::vector<std::string> lines;
        for (const QString &line : ended.lines())
            lines.push_back(line.toStdString());
        return lines;
    }

    BrowserHome home;
    Program program{home};
};

/// The jobs that read and end by themselves.
const QList<QStringList> readingJobs{{u"--summary"_s},
                                     {u"--top"_s},
                                     {u"--search"_s, u"page"_s},
                                     {u"--site"_s, u"example.org"_s},
                                     {u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Default"_s}};

} // namespace

// What it is asked for

TEST_F(ProgramTest, helpAndVersionGoToTheOutput)
{
    const Ended help = program.run({u"--help"_s});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.errors, "");
    EXPECT_THAT(help.output.toStdString(), AllOf(HasSubstr("--summary"), HasSubstr("--watch")));
    EXPECT_EQ(program.run({u"-h"_s}).output, help.output);

    const Ended version = program.run({u"--version"_s});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.errors, "");
    EXPECT_THAT(version.output.toStdString(), MatchesRegex("Roamlet [0-9]+\\.[0-9]+\\.[0-9]+\n"));
    EXPECT_EQ(program.run({u"-v"_s}).output, version.output);
}

TEST_F(ProgramTest, anUnknownSwitchIsNamedWithStatus2)
{
    for (const QString &word : {u"--frobnicate"_s, u"--Summary"_s, u"history"_s, u"--größe"_s}) {
        const Ended ended = program.run({word, u"--other"_s});
        EXPECT_EQ(ended.status, 2);
        EXPECT_EQ(ended.output, "");
        EXPECT_THAT(ended.errors.toStdString(), AllOf(HasSubstr(word.toStdString()), HasSubstr("--help")));
    }
}

TEST_F(ProgramTest, theSwitchTestedFirstDecides)
{
    home.addPages();
    EXPECT_THAT(linesOf({u"--top"_s, u"--search"_s, u"nowhere"_s, u"--summary"_s}).back(),
                StartsWith("Read in "));
    EXPECT_THAT(linesOf({u"--help"_s, u"--site"_s, u"a"_s, u"--top"_s}).back(), StartsWith("6 URLs in "));
    EXPECT_EQ(program.run({u"--top"_s, u"--export"_s}).output, "Formats: html, markdown, csv\n");
}

TEST_F(ProgramTest, anUnknownOrMissingFormatListsTheFormatsWithStatus1)
{
    home.addBookmarks();
    for (const QStringList &arguments : {QStringList{u"--export"_s},
                                         {u"--export"_s, u"pdf"_s},
                                         {u"--export"_s, u"--source"_s, u"safari"_s}}) {
        const Ended ended = program.run(arguments);
        EXPECT_EQ(ended.status, 1);
        EXPECT_EQ(ended.output, "Formats: html, markdown, csv\n");
        EXPECT_EQ(ended.errors, "");
    }
}

// What it prints to another program

TEST_F(ProgramTest, summaryListsSourcesThenSwitchedOffOnesThenTheSeconds)
{
    home.addPages();
    home.addBookmarks();
    home.addIcons();
    home.setSettings("disabledProfiles=chrome/Profile 1, edge/Default\n");
    EXPECT_THAT(linesOf({u"--summary"_s}),
                ElementsAre("Chrome - Personal  3 bookmarks, 4 folders  2 site icons  "
                            "3 history URLs, latest visit 2026-05-09 11:43",
                            "Turned off in Settings: Chrome - Work, Edge - Office",
                            MatchesRegex("Read in " + seconds + "s")));
}

TEST_F(ProgramTest, topIsExactToTheByte)
{
    home.addPages();
    const Ended ended = program.run({u"--top"_s});
    EXPECT_EQ(ended.status, 0);
    EXPECT_THAT(ended.output.toStdString(),
                MatchesRegex("40  Work  work\\.example\\.com  Board page\n"
                             "12  Personal  example\\.org  Daily page\n"
                             "7  Personal  mirror\\.example\\.net  Mirror page\n"
                             "5  Office  intra\\.example  https://intra\\.example/page\n"
                             "3  Personal  example\\.org  Blue Bike page 東京\n"
                             "2  Work  bike\\.example\\.com  Red Bike page\n"
                             "6 URLs in " +
                             seconds + "s\n"));
}

TEST_F(ProgramTest, searchListsTheNewestFirstAndCounts)
{
    home.addPages();
    EXPECT_THAT(linesOf({u"--search"_s, u"bike"_s, u"PAGE"_s}),
                ElementsAre(AllOf(StartsWith("2026-05-09 09:43  Chrome - Personal  Blue Bike page 東京"),
                                  HasSubstr("  https://example.org:8443/bike")),
                            AllOf(StartsWith("2026-05-08 11:43  Chrome - Work  "),
                                  HasSubstr("  https://bike.example.com/")),
                            MatchesRegex("2 matches, complete, in " + seconds + "s")));
}

TEST_F(ProgramTest, siteListsOneSite)
{
    home.addPages();
    EXPECT_THAT(linesOf({u"--site"_s, u"example.org"_s}),
                ElementsAre(StartsWith("2026-05-09 11:43  Chrome - Personal  Daily page"),
                            StartsWith("2026-05-09 09:43  Chrome - Personal  Blue Bike page"),
                            MatchesRegex("2 matches, complete, in " + seconds + "s")));
    EXPECT_EQ(linesOf({u"--site"_s}).size(), 7U);
}

TEST_F(ProgramTest, wordsInOtherLanguagesAreFoundInEveryLocale)
{
    home.addPages();
    for (const char *locale :
         {"", "C", "POSIX", "C.UTF-8", "de_DE.ISO-8859-1", "tr_TR.UTF-8", "no such locale"}) {
        SCOPED_TRACE(locale);
        program.environment.insert(u"LC_ALL"_s, QString::fromLatin1(locale));
        const auto lines = linesOf({u"--search"_s, u"東京"_s, u"BIKE"_s});
        ASSERT_EQ(lines.size(), 2U);
        EXPECT_THAT(lines[0], HasSubstr("Blue Bike page 東京"));
    }
    program.environment.remove(u"LC_ALL"_s);
    EXPECT_EQ(linesOf({u"--search"_s, u"東京"_s}).size(), 2U);
}

TEST_F(ProgramTest, foldersWithForeignNamesAreReadWithoutALocale)
{
    sample::writeLocalState(home.chrome(u"Local State"_s),
                            {{u"Größe 東"_s, QJsonObject{{u"name"_s, u"Ä"_s}}}});
    sample::writeHistory(home.chrome(u"Größe 東/History"_s),
                         {BrowserHome::page(u"https://a.example/"_s, u"t"_s, 1, BrowserHome::newest)});
    EXPECT_THAT(linesOf({u"--top"_s}), ElementsAre("1  Ä  a.example  t", StartsWith("1 URLs in ")));
    EXPECT_EQ(program.run({u"--export"_s, u"csv"_s, u"--source"_s, u"chrome/Größe 東"_s}).errors, "");
}

TEST_F(ProgramTest, anUnknownTimeZoneMeansUniversalTime)
{
    home.addPages();
    program.environment.insert(u"TZ"_s, u"Nowhere/At_All"_s);
    EXPECT_THAT(linesOf({u"--search"_s, u"daily"_s}).front(), StartsWith("2026-05-09 06:13  "));
    program.environment.insert(u"TZ"_s, u":garbage/////"_s);
    EXPECT_THAT(linesOf({u"--search"_s, u"daily"_s}).front(), StartsWith("2026-05-09 06:13  "));
}

TEST_F(ProgramTest, textsInAPipeAreExactlyAsStored)
{
    home.addProfiles();
    const QByteArray title = "\x1B[31m\ttab\nline \xE2\x80\xAEreversed\xC2\x9B \r end";
    auto row = BrowserHome::page(u"https://a.example/"_s, {}, 1, BrowserHome::newest);
    row.title = sample::Text::raw(title);
    sample::writeHistory(home.chrome(u"Default/History"_s), {row});
    EXPECT_THAT(program.run({u"--top"_s}).output.toStdString(),
                StartsWith("1  Personal  a.example  " + title.toStdString() + "\n1 URLs"));
    EXPECT_THAT(program.run({u"--search"_s}).output.toStdString(),
                HasSubstr("  " + title.toStdString() + "  https://a.example/\n"));
}

TEST_F(ProgramTest, titlesOfAMegabyteArePrintedWhole)
{
    home.addProfiles();
    sample::writeHistory(
        home.chrome(u"Default/History"_s),
        {BrowserHome::page(u"https://a.example/"_s, QString(1'000'000, u'x'), 2, BrowserHome::newest),
         BrowserHome::page(u"https://b.example/"_s, u"short"_s, 1, BrowserHome::newest - 1)});
    EXPECT_THAT(linesOf({u"--top"_s}),
                ElementsAre("2  Personal  a.example  " + std::string(1'000'000, 'x'),
                            "1  Personal  b.example  short", StartsWith("2 URLs in ")));
    EXPECT_LT(program.run({u"--search"_s}).output.size(), 1'001'000) << "a long title widens no other row";
}

TEST_F(ProgramTest, exportAddsNothingToTheDocument)
{
    home.addProfiles();
    home.addBookmarks();
    const Ended html = program.run({u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Default"_s});
    EXPECT_EQ(html.status, 0);
    EXPECT_EQ(html.errors, "");
    EXPECT_TRUE(html.output.startsWith("<!DOCTYPE NETSCAPE-Bookmark-file-1>\n"));
    EXPECT_TRUE(html.output.endsWith("    </DL><p>\n</DL><p>\n"));
    EXPECT_EQ(program.run({u"--export"_s, u"csv"_s, u"--source"_s, u"chrome/Default"_s}).output,
              "Browser,Profile,Folder,Title,URL,Added\r\n"
              "Chrome,Personal,Bar,A & B,https://a.example/?x=1&y=2,2026-05-09T06:13:20Z\r\n"
              "Chrome,Personal,Bar › Sub,\"Größe, \"\"東京\"\"\",https://b.example/,2026-05-09T06:13:20Z\r\n"
              "Chrome,Personal,Phone,C,https://c.example/,\r\n");
}

TEST_F(ProgramTest, exportOfWhatCannotBeReadIsAnEmptyDocumentAndAMessage)
{
    home.addProfiles();
    home.addBookmarks();
    const auto expectEmpty = [this](const QString &source) {
        SCOPED_TRACE(source.toStdString());
        const QList<std::pair<QString, QByteArray>> formats{
            {u"html"_s, emptyHtml},
            {u"markdown"_s, "# Bookmarks\n"},
            {u"csv"_s, "Browser,Profile,Folder,Title,URL,Added\r\n"}};
        for (const auto &[format, document] : formats) {
            const Ended ended = program.run({u"--export"_s, format, u"--source"_s, source});
            EXPECT_EQ(ended.status, 0);
            EXPECT_EQ(ended.output, document);
            EXPECT_TRUE(ended.errors.endsWith('\n'));
        }
    };
    expectEmpty(u"chrome/Nobody"_s);
    expectEmpty(u"safari"_s);
    home.setSettings("disabledProfiles=chrome/Default\n");
    expectEmpty(u"chrome/Default"_s);
    sample::writeFile(home.edge(u"Default/Bookmarks"_s), QByteArray("\0\1\2", 3));
    expectEmpty(u"edge/Default"_s);
}

// Profiles that are switched off

TEST_F(ProgramTest, profilesSwitchedOffInTheSettingsFileAreNotRead)
{
    home.addPages();
    home.addBookmarks();
    // Whoever opens this would wait for somebody to write into it.
    for (const QString &file : {home.chrome(u"Profile 1/History"_s), home.edge(u"Default/History"_s)}) {
        QFile::remove(file);
        ASSERT_EQ(mkfifo(file.toUtf8().constData(), 0600), 0);
    }
    home.setSettings("disabledProfiles=chrome/Profile 1, edge/Default\n");
    EXPECT_EQ(linesOf({u"--top"_s}).size(), 4U);
    EXPECT_EQ(linesOf({u"--search"_s, u"page"_s}).size(), 4U);
    EXPECT_EQ(linesOf({u"--site"_s, u"work.example.com"_s}).size(), 1U);
    EXPECT_THAT(linesOf({u"--summary"_s}),
                ElementsAre(StartsWith("Chrome - Personal  3 bookmarks"),
                            "Turned off in Settings: Chrome - Work, Edge - Office", StartsWith("Read in ")));
}

TEST_F(ProgramTest, theOlderListOfChromeProfilesStillCounts)
{
    home.addPages();
    home.setSettings("disabledChromeProfiles=Profile 1\n");
    EXPECT_THAT(linesOf({u"--summary"_s})[2], ::testing::Eq("Turned off in Settings: Chrome - Work"));
    home.setSettings("disabledChromeProfiles=Default, Profile 1\ndisabledProfiles=edge/Default\n");
    EXPECT_THAT(linesOf({u"--summary"_s}),
                ElementsAre("Turned off in Settings: Chrome - Personal, Chrome - Work, Edge - Office",
                            StartsWith("Read in ")));
    EXPECT_THAT(linesOf({u"--top"_s}), ElementsAre(StartsWith("0 URLs in ")));
}

TEST_F(ProgramTest, aSettingsFileOfGarbageSwitchesNothingOff)
{
    home.addPages();
    for (const QByteArray &content : {QByteArray("disabledProfiles=\n"),
                                      QByteArray("\xFF\xFE\0\0[[[=\"\n", 10), QByteArray(100'000, '\\')}) {
        home.setSettings(content);
        EXPECT_EQ(linesOf({u"--top"_s}).size(), 7U);
    }
    QFile::remove(home.path(u".config/Roamlet/Roamlet.conf"_s));
    sample::makeFolder(home.path(u".config/Roamlet/Roamlet.conf"_s));
    EXPECT_EQ(linesOf({u"--top"_s}).size(), 7U);
}

// Homes

TEST_F(ProgramTest, anEmptyHomeIsNoError)
{
    for (const QStringList &arguments : readingJobs) {
        const Ended ended = program.run(arguments);
        EXPECT_EQ(ended.status, 0) << arguments.first().toStdString();
    }
    EXPECT_EQ(program.run({u"--export"_s, u"html"_s}).output, emptyHtml);
    EXPECT_EQ(program.run({u"--watch"_s, u"0"_s}).status, 0);
    QDir(home.path()).removeRecursively();
    for (const QStringList &arguments : readingJobs)
        EXPECT_EQ(program.run(arguments).status, 0) << arguments.first().toStdString();
}

TEST_F(ProgramTest, aMacHomeWithUnusualValuesAndOpenLogsIsReadWhole)
{
    sample::build(home.path(), {.rowsPerProfile = 300, .isAwkward = true, .leavesLogs = true});
    const auto summary = linesOf({u"--summary"_s});
    EXPECT_THAT(summary.front(), StartsWith("Safari - Personal"));
    EXPECT_THAT(summary, ::testing::Contains(StartsWith("Chrome - Work")));
    for (const std::string &line : summary)
        EXPECT_THAT(line, ::testing::Not(HasSubstr("Couldn't read")));
    EXPECT_THAT(linesOf({u"--top"_s}).back(), MatchesRegex("[0-9]+ URLs in " + seconds + "s"));
    for (const QStringList &arguments : readingJobs)
        EXPECT_EQ(program.run(arguments).status, 0) << arguments.first().toStdString();
    EXPECT_THAT(program.run({u"--export"_s, u"html"_s}).output.toStdString(), HasSubstr("<DT><A HREF="));
    EXPECT_EQ(program.runOnTerminal({u"--search"_s}).status, 0);
}

TEST_F(ProgramTest, aLinuxHomeIsFoundBelowTheConfigurationFolder)
{
    sample::build(home.path(), {.layout = sample::Layout::Linux, .rowsPerProfile = 20});
    EXPECT_THAT(linesOf({u"--summary"_s}),
                ElementsAre(StartsWith("Chrome - Work "), StartsWith("Chrome - Personal "),
                            StartsWith("Edge - Personal"), StartsWith("Read in ")));
    program.environment.remove(u"XDG_CONFIG_HOME"_s);
    EXPECT_EQ(linesOf({u"--summary"_s}).size(), 4U);
}

TEST_F(ProgramTest, aUserWithoutAHomeGetsEmptyAnswers)
{
    program.environment.remove(u"HOME"_s);
    program.environment.remove(u"XDG_CONFIG_HOME"_s);
    EXPECT_EQ(program.run({u"--site"_s, u"nowhere.invalid"_s}).status, 0);
    program.environment.insert(u"HOME"_s, u"/dev/null"_s);
    for (const QStringList &arguments : readingJobs)
        EXPECT_EQ(program.run(arguments).status, 0) << arguments.first().toStdString();
}

TEST_F(ProgramTest, withoutATemporaryFolderTheSummarySaysWhy)
{
    home.addPages();
    sample::writeFile(home.temporary() % u"/file", "in the way");
    program.environment.insert(u"TMPDIR"_s, QString(home.temporary() % u"/file/below"));
    const auto lines = linesOf({u"--summary"_s});
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_THAT(lines[0], StartsWith("Chrome - Personal  "));
    EXPECT_THAT(lines[0], HasSubstr("  0 history URLs"));
    EXPECT_THAT(lines[1], HasSubstr("Couldn't read " + home.chrome(u"Default/History"_s).toStdString() +
                                    ": Not a directory"));
    EXPECT_THAT(linesOf({u"--search"_s}), ElementsAre(StartsWith("0 matches, complete, in ")));
    EXPECT_THAT(linesOf({u"--top"_s}), ElementsAre(StartsWith("0 URLs in ")));
}

TEST_F(ProgramTest, copiesOfOthersStayWhereTheyAre)
{
    home.addPages();
    sample::writeFile(home.temporary() % u"/Roamlet-999999999-OLD/History", "left by a run that died");
    for (const QStringList &arguments : readingJobs)
        EXPECT_EQ(program.run(arguments).status, 0);
    EXPECT_EQ(home.leftovers(), QStringList(u"Roamlet-999999999-OLD"_s));
}

// Files that the user may not read

namespace
{

/// A user who owns nothing here, where the tests run as somebody whom no permission stops.
constexpr unsigned int nobody = 65'534;

class ProgramWithoutPermissionTest : public ProgramTest
{
protected:
    void SetUp() override
    {
        home.addPages();
        home.addBookmarks();
        if (geteuid() != 0)
            return;
        // The other user must be able to come as far as here and to write copies.
        const QString folder = QFileInfo(home.path()).path();
        ASSERT_EQ(chmod(folder.toUtf8().constData(), 0755), 0);
        ASSERT_EQ(chmod(home.temporary().toUtf8().constData(), 0777), 0);
        program.prepare = [] {
            // After these calls nobody is left who could report a failure; the program would then read it
            // all.
            if (setgroups(0, nullptr) != 0 || setgid(nobody) != 0 || setuid(nobody) != 0)
                _exit(99);
        };
        QProcess probe;
        program.start(probe, {u"--version"_s});
        if (Program::end(probe).status != 0)
            GTEST_SKIP() << "another user cannot start the program here";
    }
    void forbid(const QString &path, unsigned int mode = 0)
    {
        ASSERT_EQ(chmod(path.toUtf8().constData(), mode), 0);
        m_forbidden.append(path);
    }
    void TearDown() override
    {
        for (const QString &path : std::as_const(m_forbidden))
            chmod(path.toUtf8().constData(), 0700);
    }

private:
    QStringList m_forbidden;
};

} // namespace

TEST_F(ProgramWithoutPermissionTest, aRefusedFileIsNamedAndTheOthersAreRead)
{
    forbid(home.chrome(u"Default/History"_s));
    const auto lines = linesOf({u"--summary"_s});
    EXPECT_THAT(
        lines,
        ElementsAre(
            AllOf(StartsWith("Chrome - Personal  3 bookmarks"), HasSubstr("  0 history URLs")),
            HasSubstr("macOS blocked access to " + home.chrome(u"Default/History"_s).toStdString() + "."),
            AllOf(StartsWith("Chrome - Work"), HasSubstr("  2 history URLs")),
            AllOf(StartsWith("Edge - Office"), HasSubstr("  1 history URLs")), StartsWith("Read in ")));
    EXPECT_EQ(linesOf({u"--search"_s}).size(), 4U);
}

TEST_F(ProgramWithoutPermissionTest, aRefusedFolderIsNamedAndTheOthersAreRead)
{
    forbid(home.chrome(u"Default"_s));
    const auto lines = linesOf({u"--summary"_s});
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_THAT(lines[1], HasSubstr("macOS blocked access to " +
                                    home.chrome(u"Default/Bookmarks"_s).toStdString() + "."));
    EXPECT_THAT(lines[2], HasSubstr("macOS blocked access to " +
                                    home.chrome(u"Default/History"_s).toStdString() + "."));
    const Ended exported = program.run({u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Default"_s});
    EXPECT_EQ(exported.status, 0);
    EXPECT_EQ(exported.output, emptyHtml);
    EXPECT_THAT(exported.errors.toStdString(), HasSubstr("macOS blocked access to "));
}

TEST_F(ProgramWithoutPermissionTest, aRefusedSafariIsReportedAsBlocked)
{
    const QString file = home.path(u"Library/Safari/History.db"_s);
    sample::writeFile(file, "secret");
    forbid(file);
    const auto lines = linesOf({u"--summary"_s});
    EXPECT_THAT(lines.front(), StartsWith("Safari "));
    ASSERT_GE(lines.size(), 2U);
    EXPECT_EQ(lines[lines.size() - 2], "Safari is blocked: grant Full Disk Access.");
}

TEST_F(ProgramWithoutPermissionTest, aTemporaryFolderThatRefusesIsNoCrash)
{
    forbid(home.temporary(), 0500);
    const auto lines = linesOf({u"--summary"_s});
    EXPECT_THAT(lines[1], HasSubstr("Default/History"));
    EXPECT_THAT(linesOf({u"--top"_s}), ElementsAre(StartsWith("0 URLs in ")));
}

// Where the output goes

TEST_F(ProgramTest, aPipeClosedAtOnceEndsEveryJobQuietly)
{
    home.addPages();
    home.addBookmarks();
    program.prepare = [] {
        std::array<int, 2> ends{};
        if (pipe(ends.data()) == 0) {
            dup2(ends[1], STDOUT_FILENO);
            close(ends[0]);
            close(ends[1]);
        }
    };
    for (const QStringList &arguments : readingJobs + QList<QStringList>{{u"--help"_s}, {u"--version"_s}}) {
        const Ended ended = program.run(arguments);
        EXPECT_EQ(ended.errors, "") << arguments.first().toStdString();
        EXPECT_EQ(ended.status, 0) << arguments.first().toStdString();
    }
}

TEST_F(ProgramTest, aPipeClosedAfterTheFirstLineEndsTheProgramQuietly)
{
    home.addProfiles();
    sample::writeHistory(home.chrome(u"Default/History"_s),
                         sample::Rows<sample::HistoryRow>::generated(1000, [](qsizetype i) {
                             return BrowserHome::page(u"https://example.org/%1"_s.arg(i), QString(500, u't'),
                                                      1, BrowserHome::newest - i);
                         }));
    const Ended ended = program.runInShell(u"\"$0\" --search example | head -n 1"_s);
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.errors, "");
    ASSERT_EQ(ended.lines().size(), 1);
    EXPECT_TRUE(ended.lines().first().endsWith(u"https://example.org/0"));
}

TEST_F(ProgramTest, aFullDiskIsAFailureWithAReason)
{
    home.addPages();
    home.addBookmarks();
    program.prepare = [] {
        const int full = open("/dev/full", O_WRONLY);
        dup2(full, STDOUT_FILENO);
        close(full);
    };
    for (const QStringList &arguments :
         readingJobs + QList<QStringList>{{u"--help"_s}, {u"--version"_s}, {u"--export"_s}}) {
        const Ended ended = program.run(arguments);
        EXPECT_EQ(ended.status, 1) << arguments.first().toStdString();
        EXPECT_EQ(ended.errors.toStdString(), "roamlet: cannot write: No space left on device\n");
    }
}

TEST_F(ProgramTest, aClosedOutputIsAFailureAndNotAHang)
{
    home.addPages();
    home.addBookmarks();
    for (const QStringList &arguments : readingJobs + QList<QStringList>{{u"--help"_s}}) {
        const QString words = u"'" % arguments.join(u"' '") % u'\'';
        const Ended ended = program.runInShell(QString(u"timeout -s KILL 20 \"$0\" " % words % u" >&-"));
        EXPECT_EQ(ended.status, 1) << arguments.first().toStdString();
        EXPECT_THAT(ended.errors.toStdString(), HasSubstr("cannot write")) << arguments.first().toStdString();
    }
}

TEST_F(ProgramTest, closedStandardStreamsAreNotMistakenForFiles)
{
    home.addPages();
    EXPECT_EQ(program.runInShell(u"timeout -s KILL 20 \"$0\" --top <&- 2>&-"_s).lines().size(), 7);
    EXPECT_EQ(program.runInShell(u"timeout -s KILL 20 \"$0\" --export x 2>&-"_s).status, 1);
    EXPECT_EQ(program.runInShell(u"timeout -s KILL 20 \"$0\" --top <&- >&- 2>&-"_s).status, 1);
}

TEST_F(ProgramTest, anOutputThatDoesNotWaitGetsEverything)
{
    // Whoever shares a terminal with the program may have set it to refuse instead of to wait.
    home.addProfiles();
    sample::writeHistory(home.chrome(u"Default/History"_s),
                         sample::Rows<sample::HistoryRow>::generated(1000, [](qsizetype i) {
                             return BrowserHome::page(u"https://example.org/"_s % QString(500, u'p'), u"t"_s,
                                                      1, BrowserHome::newest - i);
                         }));
    program.prepare = [] { fcntl(STDOUT_FILENO, F_SETFL, fcntl(STDOUT_FILENO, F_GETFL) | O_NONBLOCK); };
    for (const Ended &ended : {program.run({u"--search"_s}), program.runOnTerminal({u"--search"_s})}) {
        EXPECT_EQ(ended.status, 0);
        EXPECT_EQ(ended.errors, "");
        EXPECT_EQ(ended.lines().size(), 1001);
    }
}

TEST_F(ProgramTest, wordsThatAreNoTextFindNothing)
{
    home.addPages();
    const Ended ended = program.runInShell(u"\"$0\" --search $'\\xff\\xfe' $'\\xc3'"_s);
    EXPECT_EQ(ended.status, 0);
    EXPECT_THAT(ended.output.toStdString(), StartsWith("0 matches, complete, in "));
}

// On a terminal

TEST_F(ProgramTest, aTerminalShowsControlCharactersAndDoesNotObeyThem)
{
    home.addProfiles();
    const QString title = u"\u001B]0;gotcha\u0007\u001B[2J\tx\r\nnext\u009B1m\u202Eend"_s;
    sample::writeHistory(
        home.chrome(u"Default/History"_s),
        {BrowserHome::page(u"https://a.example/\u001B[31m"_s, title, 1, BrowserHome::newest)});
    for (const QString &option : {u"--search"_s, u"--top"_s}) {
        const Ended ended = program.runOnTerminal({option});
        EXPECT_EQ(ended.status, 0);
        EXPECT_EQ(ended.lines().size(), 2);
        EXPECT_FALSE(ended.output.contains('\x1B'));
        EXPECT_FALSE(ended.output.contains('\r'));
        EXPECT_FALSE(ended.output.contains('\t'));
        EXPECT_FALSE(ended.output.contains("\xC2\x9B"));
        EXPECT_FALSE(ended.output.contains("\u202E"));
        EXPECT_THAT(ended.output.toStdString(), HasSubstr("␛]0;gotcha␇␛[2J␉x␍␊next<U+009B>1m<U+202E>end"));
    }
}

TEST_F(ProgramTest, aTerminalGetsColumnsOfEqualWidth)
{
    home.addPages();
    EXPECT_THAT(program.runOnTerminal({u"--top"_s}).output.toStdString(),
                StartsWith("40  Work      work.example.com    Board page\n"
                           "12  Personal  example.org         Daily page\n"
                           " 7  Personal  mirror.example.net  Mirror page\n"
                           " 5  Office    intra.example       https://intra.example/page\n"
                           " 3  Personal  example.org         Blue Bike page 東京\n"
                           " 2  Work      bike.example.com    Red Bike page\n"
                           "6 URLs in "));
    EXPECT_THAT(
        program.runOnTerminal({u"--search"_s, u"bike"_s}).output.toStdString(),
        StartsWith("2026-05-09 09:43  Chrome - Personal  Blue Bike page 東京  https://example.org:8443/bike\n"
                   "2026-05-08 11:43  Chrome - Work      Red Bike page        https://bike.example.com/\n"
                   "2 matches, complete, in "));
}

TEST_F(ProgramTest, aTerminalGetsLongTitlesCut)
{
    home.addProfiles();
    sample::writeHistory(
        home.chrome(u"Default/History"_s),
        {BrowserHome::page(u"https://a.example/"_s, QString(500, u'東'), 1, BrowserHome::newest)});
    const Ended ended = program.runOnTerminal({u"--search"_s});
    EXPECT_THAT(ended.lines().first().toStdString(),
                AllOf(HasSubstr("東…"), HasSubstr("  https://a.example/")));
    EXPECT_LT(ended.lines().first().size(), 120);
}

} // namespace roamlet::testing
