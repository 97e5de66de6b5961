// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/CommandLine.h"

#include <gmock/gmock.h>
#include <ostream>

namespace roamlet
{

using namespace Qt::StringLiterals;

/// What a failed expectation prints.
static void PrintTo(const Command &command, std::ostream *stream)
{
    *stream << "job " << static_cast<int>(command.job) << " of \""
            << command.argument.value_or(u"(nothing)"_s).toStdString() << "\" for \""
            << command.sourceID.value_or(u"(nothing)"_s).toStdString() << '"';
}

namespace testing
{

namespace
{

using Job = Command::Job;
using ::testing::HasSubstr;

Command command(Job job, const std::optional<QString> &argument = {},
                const std::optional<QString> &sourceID = {})
{
    return {.job = job, .argument = argument, .sourceID = sourceID};
}

} // namespace

TEST(CommandLineTest, nothingAsksForTheWindows)
{
    EXPECT_EQ(Command::of({}), command(Job::Windows));
    EXPECT_EQ(Command::of({u"--started-at-login"_s}), command(Job::Windows));
    EXPECT_EQ(Command::of({u"--started-at-login"_s, u"--what"_s}), command(Job::Unknown, u"--what"_s));
}

TEST(CommandLineTest, eachSwitchAloneIsItsJob)
{
    EXPECT_EQ(Command::of({u"--summary"_s}), command(Job::Summary));
    EXPECT_EQ(Command::of({u"--export"_s}), command(Job::Export));
    EXPECT_EQ(Command::of({u"--top"_s}), command(Job::Top));
    EXPECT_EQ(Command::of({u"--search"_s}), command(Job::Search, u""_s));
    EXPECT_EQ(Command::of({u"--site"_s}), command(Job::Site));
    EXPECT_EQ(Command::of({u"--watch"_s}), command(Job::Watch));
    EXPECT_EQ(Command::of({u"--help"_s}), command(Job::Help));
    EXPECT_EQ(Command::of({u"-h"_s}), command(Job::Help));
    EXPECT_EQ(Command::of({u"--version"_s}), command(Job::Version));
    EXPECT_EQ(Command::of({u"-v"_s}), command(Job::Version));
}

TEST(CommandLineTest, theSwitchTestedFirstDecidesWhereverItStands)
{
    const QStringList inOrder{u"--summary"_s, u"--export"_s, u"--top"_s,
                              u"--search"_s,  u"--site"_s,   u"--watch"_s};
    const QList<Job> jobs{Job::Summary, Job::Export, Job::Top, Job::Search, Job::Site, Job::Watch};
    for (qsizetype first = 0; first < inOrder.size(); ++first) {
        for (qsizetype second = first + 1; second < inOrder.size(); ++second) {
            SCOPED_TRACE(QString(inOrder[first] % u" and " % inOrder[second]).toStdString());
            EXPECT_EQ(Command::of({inOrder[first], inOrder[second]}).job, jobs[first]);
            EXPECT_EQ(Command::of({inOrder[second], inOrder[first]}).job, jobs[first]);
            EXPECT_EQ(Command::of({u"--help"_s, inOrder[second], u"--version"_s, inOrder[first]}).job,
                      jobs[first]);
        }
    }
}

TEST(CommandLineTest, summaryCountsAnywhereEvenAmongSearchWords)
{
    EXPECT_EQ(Command::of({u"--search"_s, u"news"_s, u"--summary"_s}), command(Job::Summary));
    EXPECT_EQ(Command::of({u"--site"_s, u"--summary"_s}), command(Job::Summary));
    EXPECT_EQ(Command::of({u"--export"_s, u"html"_s, u"--source"_s, u"--summary"_s}), command(Job::Summary));
}

TEST(CommandLineTest, exportTakesTheNextWordAsItsFormat)
{
    EXPECT_EQ(Command::of({u"--export"_s, u"csv"_s}), command(Job::Export, u"csv"_s));
    EXPECT_EQ(Command::of({u"--export"_s, u"--top"_s}), command(Job::Export, u"--top"_s));
    EXPECT_EQ(Command::of({u"--export"_s, u"--source"_s, u"edge/Default"_s}),
              command(Job::Export, u"--source"_s, u"edge/Default"_s));
    EXPECT_EQ(Command::of({u"--export"_s, u""_s}), command(Job::Export, u""_s));
}

TEST(CommandLineTest, theSourceMayStandBeforeOrAfterTheFormat)
{
    const Command expected = command(Job::Export, u"html"_s, u"chrome/Profile 1"_s);
    EXPECT_EQ(Command::of({u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Profile 1"_s}), expected);
    EXPECT_EQ(Command::of({u"--source"_s, u"chrome/Profile 1"_s, u"--export"_s, u"html"_s}), expected);
}

TEST(CommandLineTest, aSourceSwitchWithoutAWordNamesNoSource)
{
    EXPECT_EQ(Command::of({u"--export"_s, u"html"_s, u"--source"_s}), command(Job::Export, u"html"_s));
}

TEST(CommandLineTest, aSwitchCountsAtItsFirstPlace)
{
    EXPECT_EQ(Command::of({u"--export"_s, u"html"_s, u"--export"_s, u"csv"_s}),
              command(Job::Export, u"html"_s));
    EXPECT_EQ(Command::of({u"--export"_s, u"html"_s, u"--source"_s, u"a"_s, u"--source"_s, u"b"_s}),
              command(Job::Export, u"html"_s, u"a"_s));
    EXPECT_EQ(Command::of({u"--site"_s, u"a.org"_s, u"--site"_s, u"b.org"_s}),
              command(Job::Site, u"a.org"_s));
    EXPECT_EQ(Command::of({u"--watch"_s, u"1"_s, u"--watch"_s, u"2"_s}), command(Job::Watch, u"1"_s));
    EXPECT_EQ(Command::of({u"--search"_s, u"a"_s, u"--search"_s, u"b"_s}),
              command(Job::Search, u"a --search b"_s));
}

TEST(CommandLineTest, searchJoinsEverythingAfterItWithSingleBlanks)
{
    EXPECT_EQ(Command::of({u"--search"_s, u"Blue"_s, u"Bike"_s}), command(Job::Search, u"Blue Bike"_s));
    EXPECT_EQ(Command::of({u"ignored"_s, u"--search"_s, u" two  blanks "_s, u""_s, u"end"_s}),
              command(Job::Search, u" two  blanks   end"_s));
}

TEST(CommandLineTest, wordsOfASearchMayLookLikeSwitchesTestedLater)
{
    EXPECT_EQ(Command::of({u"--search"_s, u"--site"_s, u"--watch"_s, u"--help"_s, u"-v"_s, u"--source"_s}),
              command(Job::Search, u"--site --watch --help -v --source"_s));
}

TEST(CommandLineTest, siteTakesTheNextWordAsTyped)
{
    EXPECT_EQ(Command::of({u"--site"_s, u"WWW.Example.org"_s}), command(Job::Site, u"WWW.Example.org"_s));
    EXPECT_EQ(Command::of({u"--site"_s, u"--watch"_s}), command(Job::Site, u"--watch"_s));
    EXPECT_EQ(Command::of({u"--site"_s, u""_s}), command(Job::Site, u""_s));
}

TEST(CommandLineTest, watchTakesTheNextWordWhateverItIs)
{
    EXPECT_EQ(Command::of({u"--watch"_s, u"2.5"_s}), command(Job::Watch, u"2.5"_s));
    EXPECT_EQ(Command::of({u"--watch"_s, u"soon"_s}), command(Job::Watch, u"soon"_s));
}

TEST(CommandLineTest, switchesAreWholeWordsInLowerCase)
{
    EXPECT_EQ(Command::of({u"--Summary"_s}), command(Job::Unknown, u"--Summary"_s));
    EXPECT_EQ(Command::of({u"--top=5"_s}), command(Job::Unknown, u"--top=5"_s));
    EXPECT_EQ(Command::of({u"-summary"_s}), command(Job::Unknown, u"-summary"_s));
    EXPECT_EQ(Command::of({u"--sum"_s}), command(Job::Unknown, u"--sum"_s));
}

TEST(CommandLineTest, theFirstWordIsNamedWhenThereIsNoJob)
{
    EXPECT_EQ(Command::of({u"--frobnicate"_s, u"--other"_s}), command(Job::Unknown, u"--frobnicate"_s));
    EXPECT_EQ(Command::of({u"--source"_s, u"safari"_s}), command(Job::Unknown, u"--source"_s));
    EXPECT_EQ(Command::of({u""_s}), command(Job::Unknown, u""_s));
}

TEST(CommandLineTest, helpNamesEverySwitch)
{
    const std::string help = Command::help().toStdString();
    for (const char *option : {"--summary", "--export", "--source", "--top", "--search", "--site", "--watch",
                               "--help", "--version", "html", "markdown", "csv"})
        EXPECT_THAT(help, HasSubstr(option));
    EXPECT_TRUE(help.ends_with('\n'));
}

TEST(CommandLineTest, theDesktopsSearchIsAJobThatHelpDoesNotOffer)
{
    EXPECT_EQ(Command::of({u"--desktop-search"_s}), command(Job::DesktopSearch));
    EXPECT_FALSE(Command::help().contains(u"desktop"));
}

TEST(CommandLineTest, anActionOfTheDesktopEntryIsForTheWindows)
{
    EXPECT_EQ(Command::of({u"--action"_s, u"bookmarks"_s}), command(Job::Windows));
    EXPECT_EQ(Command::of({u"--action"_s}), command(Job::Windows));
}

TEST(CommandLineTest, whatQtAndTheSessionManagerAddIsLeftToTheWindows)
{
    for (const QStringList &arguments : {QStringList{u"-session"_s, u"10e1d0_1793"_s},
                                         {u"-style"_s, u"fusion"_s},
                                         {u"--style=fusion"_s},
                                         {u"-platform"_s, u"xcb"_s, u"-reverse"_s, u"--started-at-login"_s},
                                         {u"-geometry"_s, u"800x600"_s},
                                         {u"-display"_s, u":1"_s, u"-name"_s, u"--odd"_s},
                                         {u"-session"_s}})
        EXPECT_EQ(Command::of(arguments), Command()) << arguments.join(u' ').toStdString();
    EXPECT_EQ(Command::of({u"-style"_s, u"fusion"_s, u"fusion"_s}), command(Job::Unknown, u"fusion"_s));
    EXPECT_EQ(Command::of({u"-session"_s, u"id"_s, u"--what"_s}), command(Job::Unknown, u"--what"_s));
    EXPECT_EQ(Command::of({u"-sessions"_s, u"id"_s}), command(Job::Unknown, u"-sessions"_s));
    EXPECT_EQ(Command::of({u"session"_s, u"id"_s}), command(Job::Unknown, u"session"_s));
    EXPECT_EQ(Command::of({u"-"_s}), command(Job::Unknown, u"-"_s));
    EXPECT_EQ(Command::of({u"--"_s}), command(Job::Unknown, u"--"_s));
    EXPECT_EQ(Command::of({u"-style"_s, u"fusion"_s, u"--top"_s}), command(Job::Top));
}

} // namespace testing

} // namespace roamlet
