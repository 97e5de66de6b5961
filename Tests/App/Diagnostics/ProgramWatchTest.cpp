// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "BrowserHome.h"
#include "Program.h"
#include "SampleHome/PlainFiles.h"

#include <QFile>

#include <fcntl.h>
#include <linux/landlock.h>
#include <signal.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <gmock/gmock.h>
#include <string>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::MatchesRegex;

/// A run of "--watch" that a test looks at while it goes on.
class ProgramWatchTest : public ::testing::Test
{
protected:
    void startWatching(const QString &duration)
    {
        program.start(process, {u"--watch"_s, duration});
        ASSERT_TRUE(
            waitWhileRunning(process, [this] { return process.readAllStandardError().contains('\n'); }));
    }
    /// The next line of the output; empty when the program ends without one.
    std::string nextLine()
    {
        EXPECT_TRUE(waitWhileRunning(process, [this] { return process.canReadLine(); }));
        return process.readLine().toStdString();
    }
    void send(int signal) { ASSERT_EQ(::kill(static_cast<pid_t>(process.processId()), signal), 0); }
    void visitInEdge(qint64 visit) const
    {
        sample::writeHistory(home.edge(u"Default/History"_s),
                             {BrowserHome::page(u"https://intra.example/"_s, u"t"_s, 1, visit)});
    }

    BrowserHome home;
    Program program{home};
    QProcess process;
};

const std::string moment = "20[0-9][0-9]-[01][0-9]-[0-3][0-9] [0-2][0-9]:[0-5][0-9]";

} // namespace

TEST_F(ProgramWatchTest, reportsAPageThatIsVisitedMeanwhile)
{
    home.addPages();
    startWatching(u"300"_s);
    visitInEdge(BrowserHome::newest + 1);
    EXPECT_THAT(nextLine(), MatchesRegex(moment + "  Edge - Office\n"));
    send(SIGTERM);
    const Ended ended = Program::end(process);
    EXPECT_EQ(ended.signal, SIGTERM);
    EXPECT_EQ(ended.errors, "");
    EXPECT_EQ(home.leftovers(), QStringList());
}

TEST_F(ProgramWatchTest, reportsFilesThatAreReplacedAndProfilesThatAppear)
{
    home.addPages();
    startWatching(u"300"_s);
    // Browsers write a new file beside the old one and rename it.
    home.addBookmarks();
    QFile::remove(home.chrome(u"Default/new"_s));
    ASSERT_TRUE(QFile::rename(home.chrome(u"Default/Bookmarks"_s), home.chrome(u"Default/new"_s)));
    ASSERT_TRUE(QFile::rename(home.chrome(u"Default/new"_s), home.chrome(u"Default/Bookmarks"_s)));
    EXPECT_THAT(nextLine(), MatchesRegex(moment + "  Chrome - Personal\n"));
    sample::writeHistory(home.chrome(u"Profile 2/History"_s),
                         {BrowserHome::page(u"https://new.example/"_s, u"t"_s, 1, BrowserHome::newest)});
    EXPECT_THAT(nextLine(), MatchesRegex(moment + "  chrome/Profile 2\n"));
    send(SIGTERM);
    EXPECT_EQ(Program::end(process).signal, SIGTERM);
}

TEST_F(ProgramWatchTest, reportsABrowserThatIsInstalledMeanwhile)
{
    startWatching(u"300"_s);
    home.addPages();
    EXPECT_THAT(nextLine(), MatchesRegex(moment + "  Chrome - Personal, Chrome - Work, Edge - Office\n"));
    send(SIGINT);
    EXPECT_EQ(Program::end(process).signal, SIGINT);
}

TEST_F(ProgramWatchTest, givesUpTheRightToWriteWhereTheKernelTakesIt)
{
    if (::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION) < 1)
        GTEST_SKIP() << "this kernel cannot do it";
    startWatching(u"300"_s);
    QFile status(u"/proc/%1/status"_s.arg(process.processId()));
    ASSERT_TRUE(status.open(QIODevice::ReadOnly));
    EXPECT_THAT(status.readAll().toStdString(), ::testing::HasSubstr("NoNewPrivs:\t1\n"));
    send(SIGTERM);
    EXPECT_EQ(Program::end(process).signal, SIGTERM);
}

TEST_F(ProgramWatchTest, endsByItselfWithStatus0)
{
    for (const QString &duration : {u"0"_s, u"0.05"_s, u"-1"_s, u".01"_s}) {
        const Ended ended = program.run({u"--watch"_s, duration});
        EXPECT_EQ(ended.status, 0) << duration.toStdString();
        EXPECT_EQ(ended.output, "");
        EXPECT_EQ(ended.errors.count('\n'), 1) << "only the line that says how long";
    }
}

TEST_F(ProgramWatchTest, everyStopSignalEndsIt)
{
    home.addPages();
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        startWatching(u"soon"_s);
        send(signal);
        const Ended ended = Program::end(process);
        EXPECT_EQ(ended.signal, signal);
        EXPECT_EQ(ended.output, "");
    }
}

TEST_F(ProgramWatchTest, aRunThatShallSurviveTheEndOfTheSessionDoes)
{
    home.addPages();
    program.prepare = [] { ::signal(SIGHUP, SIG_IGN); };
    startWatching(u"300"_s);
    send(SIGHUP);
    visitInEdge(BrowserHome::newest + 2);
    EXPECT_THAT(nextLine(), MatchesRegex(moment + "  Edge - Office\n"));
    send(SIGTERM);
    EXPECT_EQ(Program::end(process).signal, SIGTERM);
}

TEST_F(ProgramWatchTest, readsNoProfileThatIsSwitchedOff)
{
    home.addPages();
    home.setSettings("disabledProfiles=edge/Default\n");
    startWatching(u"300"_s);
    // What changed is told, whoever's it is; nothing is read for it.
    visitInEdge(BrowserHome::newest + 3);
    EXPECT_THAT(nextLine(), MatchesRegex(moment + "  Edge - Office\n"));
    send(SIGTERM);
    EXPECT_EQ(Program::end(process).signal, SIGTERM);
}

TEST_F(ProgramWatchTest, closingTheOutputEndsItAtTheNextReport)
{
    home.addPages();
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    program.prepare = [ends] { dup2(ends[1], STDOUT_FILENO); };
    startWatching(u"300"_s);
    close(ends[0]);
    close(ends[1]);
    visitInEdge(BrowserHome::newest + 4);
    const Ended ended = Program::end(process);
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.errors, "");
}

} // namespace roamlet::testing
