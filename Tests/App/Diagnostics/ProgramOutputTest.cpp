// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "ProgramTest.h"
#include "SampleHome/PlainFiles.h"

#include <QRegularExpression>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::StartsWith;

using ProgramOutputTest = ProgramTest;

} // namespace

TEST_F(ProgramOutputTest, aPipeClosedAtOnceEndsEveryJobQuietly)
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

TEST_F(ProgramOutputTest, aPipeClosedAfterTheFirstLineEndsTheProgramQuietly)
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

TEST_F(ProgramOutputTest, aFullDiskIsAFailureWithAReason)
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

TEST_F(ProgramOutputTest, aClosedOutputIsAFailureAndNotAHang)
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

TEST_F(ProgramOutputTest, closedStandardStreamsAreNotMistakenForFiles)
{
    home.addPages();
    EXPECT_EQ(program.runInShell(u"timeout -s KILL 20 \"$0\" --top <&- 2>&-"_s).lines().size(), 7);
    EXPECT_EQ(program.runInShell(u"timeout -s KILL 20 \"$0\" --export x 2>&-"_s).status, 1);
    EXPECT_EQ(program.runInShell(u"timeout -s KILL 20 \"$0\" --top <&- >&- 2>&-"_s).status, 1);
}

TEST_F(ProgramOutputTest, anOutputThatDoesNotWaitGetsEverything)
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

TEST_F(ProgramOutputTest, aTerminalShowsControlCharactersAndDoesNotObeyThem)
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

TEST_F(ProgramOutputTest, aTerminalGetsFoundPagesInColumnsOfEqualWidth)
{
    home.addPages();
    EXPECT_THAT(
        program.runOnTerminal({u"--search"_s, u"bike"_s}).output.toStdString(),
        StartsWith("2026-05-09 09:43  Chrome - Personal  Blue Bike page 東京  https://example.org:8443/bike\n"
                   "2026-05-08 11:43  Chrome - Work      Red Bike page        https://bike.example.com/\n"
                   "2 matches, not capped, in "));
}

TEST_F(ProgramOutputTest, aTerminalGetsTheSameMostVisitedPagesAsAPipe)
{
    home.addPages();
    const auto withoutTheTime = [](const Ended &ended) {
        return ended.lines().first(6).join(u'\n').toStdString();
    };
    EXPECT_EQ(withoutTheTime(program.runOnTerminal({u"--top"_s})), withoutTheTime(program.run({u"--top"_s})));
}

TEST_F(ProgramOutputTest, aTerminalGetsLongTitlesCut)
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

TEST_F(ProgramOutputTest, everyJobSpeaksEnglishWhateverTheLanguage)
{
    home.addPages();
    home.addBookmarks();
    sample::writeFile(home.chrome(u"Profile 1/History"_s), QByteArray(5000, 'x'));
    sample::writeFile(home.chrome(u"Profile 1/Bookmarks"_s), "{");
    const auto printed = [this](const QStringList &arguments) {
        const Ended ended = program.run(arguments);
        static const QRegularExpression time(u"in [0-9.]+s\\n"_s);
        return QString::fromUtf8(ended.output).remove(time).toStdString() + ended.errors.toStdString();
    };
    for (const QStringList &arguments : readingJobs + QList<QStringList>{{u"--help"_s}, {u"--no-such"_s}}) {
        for (const QString &name : {u"LANGUAGE"_s, u"LC_MESSAGES"_s})
            program.environment.remove(name);
        const std::string english = printed(arguments);
        EXPECT_NE(english, "");
        program.environment.insert(u"LANGUAGE"_s, u"de:fr"_s);
        program.environment.insert(u"LC_MESSAGES"_s, u"de_DE.UTF-8"_s);
        EXPECT_EQ(printed(arguments), english) << arguments.first().toStdString();
    }
}

} // namespace roamlet::testing
