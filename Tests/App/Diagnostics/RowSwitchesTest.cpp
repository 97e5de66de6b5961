// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/CommandLine.h"

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using Job = Command::Job;
using ::testing::AllOf;
using ::testing::HasSubstr;

Command of(const QString &line)
{
    return Command::of(line.split(u'|'));
}

/// What is wrong with a command line, its words separated by bars; empty where nothing is.
std::string complaint(const QString &line)
{
    const Command command = of(line);
    return command.job == Job::Misuse ? command.argument.value_or(QString()).toStdString() : std::string();
}

} // namespace

TEST(RowSwitchesTest, rowsAreForOtherProgramsWhereThatIsSaid)
{
    for (const auto &[line, job] : {std::pair(u"--json|--summary"_s, Job::Summary),
                                    {u"--summary|--json"_s, Job::Summary},
                                    {u"--top|--json"_s, Job::Top},
                                    {u"--json|--search|a"_s, Job::Search},
                                    {u"--site|a.org|--json"_s, Job::Site},
                                    {u"--json|--bookmarks|a"_s, Job::Bookmarks}}) {
        EXPECT_EQ(of(line).job, job) << line.toStdString();
        EXPECT_TRUE(of(line).isJson) << line.toStdString();
    }
    EXPECT_FALSE(of(u"--top"_s).isJson);
}

TEST(RowSwitchesTest, whatFollowsTheWordsSwitchIsWords)
{
    EXPECT_EQ(Command::of({u"--search"_s, u"--json"_s, u"--limit"_s, u"5"_s}),
              (Command{.job = Job::Search, .argument = u"--json --limit 5"_s, .sourceID = {}}));
    EXPECT_EQ(
        Command::of({u"--bookmarks"_s, u"a"_s, u"--json"_s, u"--top"_s, u"--help"_s, u"--open"_s}),
        (Command{.job = Job::Bookmarks, .argument = u"a --json --top --help --open"_s, .sourceID = {}}));
    EXPECT_EQ(of(u"--search|--bookmarks"_s),
              (Command{.job = Job::Search, .argument = u"--bookmarks"_s, .sourceID = {}}));
    EXPECT_EQ(of(u"--bookmarks"_s), (Command{.job = Job::Bookmarks, .argument = u""_s, .sourceID = {}}));
}

TEST(RowSwitchesTest, aWordThatBelongsToAnotherSwitchIsNone)
{
    EXPECT_EQ(of(u"--site|--json"_s), (Command{.job = Job::Site, .argument = u"--json"_s, .sourceID = {}}));
    EXPECT_EQ(of(u"--export|--open"_s),
              (Command{.job = Job::Export, .argument = u"--open"_s, .sourceID = {}}));
    EXPECT_EQ(of(u"--export|html|--source|--limit"_s),
              (Command{.job = Job::Export, .argument = u"html"_s, .sourceID = u"--limit"_s}));
    EXPECT_EQ(of(u"--open|--top"_s), (Command{.job = Job::Open, .argument = u"--top"_s, .sourceID = {}}));
    EXPECT_EQ(of(u"--open|--help"_s).job, Job::Open);
}

TEST(RowSwitchesTest, valuesStandBehindTheirSwitchOrBehindAnEqualsSign)
{
    EXPECT_EQ(of(u"--limit|5|--top"_s).limit, 5);
    EXPECT_EQ(of(u"--limit=5|--search|a"_s).limit, 5);
    EXPECT_EQ(of(u"--site|a.org|--limit|999999999999"_s).limit, 999'999'999'999);
    EXPECT_EQ(of(u"--limit|5|--limit|6|--top"_s).limit, 5) << "a switch counts at its first place";
    const Command timed = of(u"--since=7d|--until|yesterday|--search|a"_s);
    EXPECT_EQ(timed.since, NamedTime::of(u"7d"_s));
    EXPECT_EQ(timed.until, NamedTime::of(u"yesterday"_s));
    EXPECT_EQ(of(u"--open=chrome/Default/1"_s).argument, u"chrome/Default/1"_s);
}

TEST(RowSwitchesTest, aLimitIsAWholeNumberFromOneOn)
{
    for (const QString &value : {u"0"_s, u"-1"_s, u"+1"_s, u"1.5"_s, u"5x"_s, u""_s, u" 5"_s, u"ten"_s,
                                 u"٥"_s, u"9223372036854775808"_s, u"--top"_s})
        EXPECT_THAT(complaint(u"--limit|"_s % value % u"|--top"),
                    AllOf(HasSubstr("--limit takes a whole number"), HasSubstr(value.toStdString())));
}

TEST(RowSwitchesTest, aTimeThatIsNoneIsNamed)
{
    for (const QString &name : {u"--since"_s, u"--until"_s})
        EXPECT_THAT(
            complaint(name % u"|tomorrow|--search|a"),
            AllOf(HasSubstr(name.toStdString() + " takes a day or a time"), HasSubstr("not tomorrow")));
}

TEST(RowSwitchesTest, aSwitchWithoutItsValueIsNamed)
{
    for (const QString &name : {u"--limit"_s, u"--since"_s, u"--until"_s, u"--open"_s}) {
        EXPECT_EQ(complaint(name), name.toStdString() + " needs a value.");
        EXPECT_EQ(complaint(u"--top|"_s % name), name.toStdString() + " needs a value.");
    }
}

TEST(RowSwitchesTest, switchesThatMeanNothingToAJobAreNamed)
{
    for (const QString &job : {u"--export|html"_s, u"--watch"_s, u"--watch|5"_s, u"--open|a"_s})
        EXPECT_THAT(complaint(u"--json|"_s % job), HasSubstr("--json goes with")) << job.toStdString();
    EXPECT_THAT(complaint(u"--watch|--json"_s), HasSubstr("--json goes with"));
    EXPECT_THAT(complaint(u"--json"_s), HasSubstr("--json goes with"));
    EXPECT_THAT(complaint(u"--json|--frobnicate"_s), HasSubstr("--json goes with"));
    for (const QString &job : {u"--summary"_s, u"--export|html"_s, u"--watch"_s, u"--open|a"_s})
        EXPECT_THAT(complaint(u"--limit|5|"_s % job), HasSubstr("--limit goes with")) << job.toStdString();
    for (const QString &job :
         {u"--summary"_s, u"--top"_s, u"--export|html"_s, u"--watch"_s, u"--open|a"_s, u"--bookmarks|a"_s}) {
        EXPECT_THAT(complaint(u"--since|7d|"_s % job), HasSubstr("--since goes with")) << job.toStdString();
        EXPECT_THAT(complaint(u"--until|7d|"_s % job), HasSubstr("--until goes with")) << job.toStdString();
    }
}

TEST(RowSwitchesTest, jobsThatDoNotGoTogetherAreNamed)
{
    for (const QString &other : {u"--summary"_s, u"--top"_s, u"--watch"_s, u"--export"_s, u"--site"_s}) {
        const std::string both = "--bookmarks and " + other.toStdString() + " do not go together.";
        EXPECT_EQ(complaint(other % u"|x|--bookmarks|a"), both);
        EXPECT_EQ(complaint(other % u"|x|--open|a"), "--open and" + both.substr(15));
    }
    EXPECT_EQ(complaint(u"--open|a|--search|b"_s), "--open and --search do not go together.");
    EXPECT_EQ(complaint(u"--open|a|--bookmarks|b"_s), "--open and --bookmarks do not go together.");
    EXPECT_EQ(complaint(u"--bookmarks|a|--summary"_s), "--bookmarks and --summary do not go together.")
        << "--summary counts wherever it stands";
}

TEST(RowSwitchesTest, helpIsGivenWhateverStandsBesideIt)
{
    EXPECT_EQ(of(u"--json|--help"_s).job, Job::Help);
    EXPECT_EQ(of(u"--limit|-v"_s).job, Job::Version);
}

TEST(RowSwitchesTest, helpNamesEverySwitch)
{
    for (const char *option : {"--bookmarks", "--open", "--json", "--limit", "--since", "--until"})
        EXPECT_THAT(Command::help().toStdString(), HasSubstr(option));
}

} // namespace roamlet::testing
