// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "EmptyDocuments.h"
#include "Model/Browser.h"
#include "ProgramTest.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/SampleHome.h"
#include "Support/Stranger.h"

#include <QDir>
#include <QProcess>

#include <unistd.h>

#include <gmock/gmock.h>
#include <pwd.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

using ProgramHomesTest = ProgramTest;

} // namespace

TEST_F(ProgramHomesTest, anEmptyHomeIsNoError)
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

TEST_F(ProgramHomesTest, aMacHomeWithUnusualValuesAndOpenLogsIsReadWhole)
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

TEST_F(ProgramHomesTest, aLinuxHomeIsFoundBelowTheConfigurationFolder)
{
    sample::build(home.path(), {.layout = sample::Layout::Linux, .rowsPerProfile = 20});
    EXPECT_THAT(linesOf({u"--summary"_s}),
                ElementsAre(StartsWith("Chrome - Work "), StartsWith("Chrome - Personal "),
                            StartsWith("Edge - Personal"), StartsWith("Read in ")));
    program.environment.remove(u"XDG_CONFIG_HOME"_s);
    EXPECT_EQ(linesOf({u"--summary"_s}).size(), 4U);
}

TEST_F(ProgramHomesTest, aUserWithoutAHomeGetsEmptyAnswers)
{
    program.environment.insert(u"HOME"_s, u"/dev/null"_s);
    program.environment.remove(u"XDG_CONFIG_HOME"_s);
    for (const QStringList &arguments : readingJobs)
        EXPECT_EQ(program.run(arguments).status, 0) << arguments.first().toStdString();
}

TEST_F(ProgramHomesTest, withoutAVariableTheUserDatabaseNamesTheHome)
{
    const passwd *user = getpwuid(getuid()); // NOLINT(concurrency-mt-unsafe): no other thread asks
    ASSERT_NE(user, nullptr);
    // That home is not the test's own, so nothing is looked for there.
    QByteArray settings;
    for (const Browser &browser : Browser::all()) {
        for (const Browser::Installation &installation : browser.installations) {
            settings += "dataRoot." + browser.rawValue.toUtf8();
            if (!installation.key.isEmpty())
                settings += '@' + installation.key.toUtf8();
            settings += '=' + home.path(u"nothing"_s).toUtf8() + '\n';
        }
    }
    home.setSettings(settings);
    program.environment.remove(u"HOME"_s);
    const Ended ended = program.run({u"--summary"_s});
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.errors.toStdString(),
              std::string("roamlet: No browser profiles were found in ") + user->pw_dir + '\n');
}

TEST_F(ProgramHomesTest, aRelativeHomeIsRefused)
{
    home.addPages();
    const auto expectRefused = [this](const QString &relative, const QStringList &arguments) {
        SCOPED_TRACE(arguments.value(0).toStdString());
        program.environment.insert(u"HOME"_s, relative);
        const Ended ended = program.run(arguments);
        EXPECT_EQ(ended.status, 1);
        EXPECT_EQ(ended.output, "");
        EXPECT_EQ(ended.errors.toStdString(), "roamlet: the home folder is not an absolute path: " +
                                                  relative.toStdString() + ". Set HOME to one.\n");
    };
    for (const QStringList &arguments : readingJobs + QList<QStringList>{{u"--watch"_s, u"0"_s}})
        expectRefused(u"home"_s, arguments);
    for (const QString &relative : {u"../home"_s, u"."_s, u"~"_s})
        expectRefused(relative, {u"--summary"_s});
    EXPECT_EQ(program.run({u"--help"_s}).status, 0);
    program.environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    expectRefused(u"home"_s, {});
}

TEST_F(ProgramHomesTest, aUserWhomNobodyKnowsIsAskedForAHome)
{
    constexpr int cannotBecomeOne = 99;
    program.environment.remove(u"HOME"_s);
    program.environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    program.prepare = [stranger = strangerToTheUserDatabase()] {
        if (setuid(stranger) != 0 || access(ROAMLET_PROGRAM, X_OK) != 0)
            _exit(cannotBecomeOne);
    };
    if (program.run({u"--help"_s}).status == cannotBecomeOne)
        GTEST_SKIP() << "only root can become another user, and that one has to reach the program";
    for (const QStringList &arguments :
         readingJobs + QList<QStringList>{{u"--watch"_s, u"0"_s}, QStringList()}) {
        SCOPED_TRACE(arguments.value(0).toStdString());
        const Ended ended = program.run(arguments);
        EXPECT_EQ(ended.status, 1);
        EXPECT_EQ(ended.output, "");
        EXPECT_EQ(ended.errors,
                  "roamlet: the user database knows no home folder of this user. Set HOME to one.\n");
    }
    program.environment.insert(u"HOME"_s, home.path());
    EXPECT_EQ(program.run({u"--search"_s}).status, 0);
}

TEST_F(ProgramHomesTest, withoutATemporaryFolderTheSummarySaysWhy)
{
    home.addPages();
    sample::writeFile(home.temporary() % u"/file", "in the way");
    program.environment.insert(u"TMPDIR"_s, QString(home.temporary() % u"/file/below"));
    const auto lines = linesOf({u"--summary"_s});
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_THAT(lines[0], StartsWith("Chrome - Personal  "));
    EXPECT_THAT(lines[0], HasSubstr("  0 history URLs"));
    EXPECT_THAT(lines[1], HasSubstr("Couldn't read " + home.chrome(u"Default/History"_s).toStdString() +
                                    ": cannot make a copy in " + home.temporary().toStdString() +
                                    "/file/below: Not a directory"));
    const Ended search = program.run({u"--search"_s});
    EXPECT_EQ(search.status, 0);
    EXPECT_THAT(search.output.toStdString(), StartsWith("0 matches, not capped, in "));
    EXPECT_EQ(search.errors.count('\n'), 3) << "one line for each profile";
    EXPECT_THAT(search.errors.toStdString(), StartsWith("roamlet: Chrome - Personal: Couldn't read "));
}

TEST_F(ProgramHomesTest, copiesThatARunLeftBehindGoWithTheNextRun)
{
    home.addPages();
    const QString ofALiveRun = u"Roamlet-%1-LIVE"_s.arg(::getpid());
    sample::writeFile(home.temporary() % u'/' % ofALiveRun % u"/History", "being read");
    for (const QStringList &arguments : readingJobs) {
        sample::writeFile(home.temporary() % u"/Roamlet-999999999-OLD/History", "left by a run that died");
        QProcess process;
        program.start(process, arguments);
        EXPECT_EQ(Program::end(process).status, 0);
        EXPECT_EQ(home.leftovers(), QStringList{ofALiveRun}) << arguments.first().toStdString();
    }
}

} // namespace roamlet::testing
