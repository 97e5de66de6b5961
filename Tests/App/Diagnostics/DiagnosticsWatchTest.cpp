// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/Diagnostics.h"
#include "BrowserHome.h"
#include "LocalTime.h"
#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/PlainFiles.h"
#include "Support/FakeConsole.h"

#include <QTimer>

#include <chrono>
#include <functional>
#include <gmock/gmock.h>
#include <optional>
#include <utility>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

using ::testing::HasSubstr;

/// Runs "--watch" and, once the program waits for changes, takes steps one after the other, each with the
/// event loop in between, as long as it waits.
class Watching
{
public:
    explicit Watching(const std::optional<QString> &duration) : m_arguments{u"--watch"_s}
    {
        if (duration)
            m_arguments.append(*duration);
    }

    /// Ends after the last step at the latest.
    int run(QList<std::function<void()>> steps)
    {
        steps.append([this] { stop.request_stop(); });
        QObject context;
        // The program says that it watches just before it waits.
        console.onError = [&] { takeStep(steps, 0, &context); };
        return Diagnostics::run(Command::of(m_arguments), home.platform(), console, stop.get_token());
    }

    BrowserHome home;
    FakeConsole console;
    std::stop_source stop;

private:
    static void takeStep(const QList<std::function<void()>> &steps, qsizetype index, QObject *context)
    {
        QTimer::singleShot(0, context, [&steps, index, context] {
            steps[index]();
            if (index + 1 < steps.size())
                takeStep(steps, index + 1, context);
        });
    }

    QStringList m_arguments;
};

/// Whether "--watch" with this word watches for exactly this time.
bool lasts(const std::optional<QString> &word, std::chrono::milliseconds duration)
{
    Watching watching(word);
    bool endsEarly = true;
    bool endsLate = false;
    watching.run({[&] { watching.home.clock.advance(duration - 1ms); },
                  [&] {
                      endsEarly = false;
                      watching.home.clock.advance(1ms);
                  },
                  [&] { endsLate = true; }});
    EXPECT_EQ(watching.console.output, "");
    return !endsEarly && !endsLate;
}

/// Whether "--watch" with this word ends without any time going by.
bool endsAtOnce(const std::optional<QString> &word)
{
    Watching watching(word);
    bool endsLate = false;
    const int status = watching.run({[&] { watching.home.clock.advance(0ms); }, [&] { endsLate = true; }});
    EXPECT_EQ(watching.console.output, "");
    return status == 0 && !endsLate;
}

class DiagnosticsWatchTest : public ::testing::Test
{
protected:
    LocalTime localTime;
};

} // namespace

TEST_F(DiagnosticsWatchTest, watchesForAMinuteUnlessToldOtherwise)
{
    EXPECT_TRUE(lasts({}, 60s));
}

TEST_F(DiagnosticsWatchTest, takesEveryDecimalNumberOfSeconds)
{
    EXPECT_TRUE(lasts(u"10"_s, 10s));
    EXPECT_TRUE(lasts(u"2.5"_s, 2500ms));
    EXPECT_TRUE(lasts(u"0.25"_s, 250ms));
    EXPECT_TRUE(lasts(u".5"_s, 500ms));
    EXPECT_TRUE(lasts(u"007"_s, 7s));
    EXPECT_TRUE(lasts(u"+3"_s, 3s));
    EXPECT_TRUE(lasts(u"1e1"_s, 10s));
    EXPECT_TRUE(lasts(u"90000"_s, 25h));
}

TEST_F(DiagnosticsWatchTest, wordsThatAreNoNumberMeanAMinute)
{
    for (const QString &word : {u"soon"_s, u""_s, u" "_s, u"ten"_s, u"12s"_s, u"1,5"_s, u"1 5"_s, u"1.2.3"_s,
                                u"."_s, u"-"_s, u"e5"_s, u"１２"_s, u"٣"_s, u"5\n"_s}) {
        SCOPED_TRACE(word.toStdString());
        EXPECT_TRUE(lasts(word, 60s));
    }
}

TEST_F(DiagnosticsWatchTest, noTimeAndLessEndAtOnce)
{
    for (const QString &word : {u"0"_s, u"0.0"_s, u"-0"_s, u"-5"_s, u"-1e9"_s, u"1e-400"_s})
        EXPECT_TRUE(endsAtOnce(word)) << word.toStdString();
}

TEST_F(DiagnosticsWatchTest, hugeNumbersLastLongerThanAnybodyWaits)
{
    for (const QString &word : {u"1e9"_s, u"99999999999999999999999999"_s, u"1e400"_s, u"1e999999999999"_s}) {
        SCOPED_TRACE(word.toStdString());
        Watching watching(word);
        bool lastsLonger = false;
        watching.run({[&] { watching.home.clock.advance(24h * 20); }, [&] { lastsLonger = true; }});
        EXPECT_TRUE(lastsLonger);
    }
}

TEST_F(DiagnosticsWatchTest, saysOnTheErrorStreamHowLongItWatches)
{
    const QList<std::pair<QString, std::string>> cases{
        {u"10"_s, "10 s"}, {u"2.5"_s, "2.5 s"}, {u"soon"_s, "60 s"}, {u"1234567.25"_s, "1234567.25 s"}};
    for (const auto &[word, expected] : cases) {
        Watching watching(word);
        watching.run({});
        EXPECT_THAT(watching.console.errors.toStdString(), HasSubstr(' ' + expected));
    }
}

TEST_F(DiagnosticsWatchTest, reportsChangedSourcesWithLocalTimeAndLabelsOnOneLine)
{
    Watching watching(u"60"_s);
    const BrowserHome &home = watching.home;
    home.addPages();
    EXPECT_EQ(watching.run({[&] {
                                home.fileEvents.report({home.edge(u"Default/History"_s),
                                                        home.chrome(u"Profile 1/History"_s),
                                                        home.chrome(u"Default/History"_s)});
                            },
                            [&] { watching.home.clock.advance(1h); }}),
              0);
    EXPECT_EQ(watching.console.output.toStdString(),
              "2026-05-09 11:43  Chrome - Personal, Chrome - Work, Edge - Office\n");
}

TEST_F(DiagnosticsWatchTest, reportsEachChangeAtItsOwnTime)
{
    Watching watching(u"600"_s);
    const BrowserHome &home = watching.home;
    home.addPages();
    watching.run({[&] { home.fileEvents.report({home.edge(u"Default/History"_s)}); },
                  [&] {
                      watching.home.clock.advance(2min);
                      home.addBookmarks();
                      home.fileEvents.report({home.chrome(u"Default/Bookmarks"_s)});
                  }});
    EXPECT_EQ(watching.console.output.toStdString(), "2026-05-09 11:43  Edge - Office\n"
                                                     "2026-05-09 11:45  Chrome - Personal\n");
}

TEST_F(DiagnosticsWatchTest, staysSilentAboutFilesThatDidNotChangeOrAreNotRead)
{
    Watching watching(u"60"_s);
    const BrowserHome &home = watching.home;
    home.addPages();
    home.addIcons();
    watching.run({[&] { home.fileEvents.report({home.edge(u"Default/History"_s)}); },
                  [&] { home.fileEvents.report({home.edge(u"Default/History"_s)}); },
                  [&] {
                      home.fileEvents.report(
                          {home.chrome(u"Default/Favicons"_s), home.chrome(u"Local State"_s)});
                  }});
    EXPECT_EQ(watching.console.lines().size(), 1);
}

TEST_F(DiagnosticsWatchTest, namesAProfileThatIsInNoListByItsId)
{
    Watching watching(u"60"_s);
    const BrowserHome &home = watching.home;
    home.addPages();
    watching.run({[&] { home.fileEvents.report({home.chrome(u"Profile 9/History"_s)}); }});
    EXPECT_EQ(watching.console.output.toStdString(), "2026-05-09 11:43  chrome/Profile 9\n");
}

TEST_F(DiagnosticsWatchTest, namesAProfileWhoseListCannotBeReadAsBefore)
{
    Watching watching(u"60"_s);
    BrowserHome &home = watching.home;
    home.addPages();
    watching.run({[&] {
        home.files.failure = [list = home.edge(u"Local State"_s)](const QString &path) {
            return path == list ? std::make_error_code(std::errc::io_error) : std::error_code();
        };
        home.fileEvents.report({home.edge(u"Default/History"_s)});
    }});
    EXPECT_EQ(watching.console.output.toStdString(), "2026-05-09 11:43  Edge - Office\n");
}

TEST_F(DiagnosticsWatchTest, saysOnceWhichFoldersAreOnlyLookedAt)
{
    Watching watching(u"60"_s);
    const BrowserHome &home = watching.home;
    home.addPages();
    const QString folder = home.path(u"Library/Application Support/Google/Chrome"_s);
    watching.run({[&] {
        // Its own message needs no further step.
        watching.console.onError = nullptr;
        watching.home.fileEvents.silentFolders = {folder};
        home.fileEvents.report({});
        home.fileEvents.report({});
    }});
    EXPECT_EQ(watching.console.errors.toStdString(),
              "roamlet: Watching the browsers' folders for 60 s.\nroamlet: " + folder.toStdString() +
                  " is looked at once a minute: the system does not tell of every change in it.\n");
}

TEST_F(DiagnosticsWatchTest, readsNothingOfAProfileThatIsSwitchedOff)
{
    Watching watching(u"60"_s);
    BrowserHome &home = watching.home;
    home.addPages();
    home.defaults.setStringList(u"disabledProfiles"_s, {u"chrome/Default"_s});
    QStringList touched;
    home.files.failure = [&touched](const QString &path) {
        touched.append(path);
        return std::error_code{};
    };
    watching.run({[&] {
        home.fileEvents.report({home.chrome(u"Default/History"_s), home.edge(u"Default/History"_s)});
    }});
    EXPECT_FALSE(touched.isEmpty());
    for (const QString &path : std::as_const(touched))
        EXPECT_FALSE(path.startsWith(home.chrome(u"Default/"_s))) << path.toStdString();
}

TEST_F(DiagnosticsWatchTest, followsProfilesElsewhereThatAppearWhileItWatches)
{
    Watching watching(u"60"_s);
    const BrowserHome &home = watching.home;
    home.addPages();
    const QString list = home.path(u".mozilla/firefox/profiles.ini"_s);
    const QString first = home.path(u"disk/first"_s);
    const QString second = home.path(u"disk/second"_s);
    for (const QString &folder : {first, second})
        sample::writeFile(folder % u"/places.sqlite", "x");
    sample::writeFirefoxProfiles(list, {{.name = u"First"_s, .path = first, .isRelative = false}});
    const auto report = [&home](const QString &file) {
        return [&home, file] { home.fileEvents.report({file}); };
    };
    bool isWatchedAtFirst = true;
    watching.run({report(first % u"/places.sqlite"), report(second % u"/places.sqlite"),
                  [&] {
                      isWatchedAtFirst = home.fileEvents.watchedFolders.contains(second);
                      sample::writeFirefoxProfiles(
                          list, {{.name = u"First"_s, .path = first, .isRelative = false},
                                 {.name = u"Second"_s, .path = second, .isRelative = false}});
                  },
                  report(home.edge(u"Default/History"_s)), report(second % u"/places.sqlite")});
    EXPECT_FALSE(isWatchedAtFirst);
    EXPECT_TRUE(home.fileEvents.watchedFolders.contains(second));
    EXPECT_EQ(watching.console.output.toStdString(), "2026-05-09 11:43  Firefox - First\n"
                                                     "2026-05-09 11:43  Edge - Office\n"
                                                     "2026-05-09 11:43  Firefox - Second\n");
}

TEST_F(DiagnosticsWatchTest, namesCannotCommandATerminal)
{
    Watching watching(u"60"_s);
    const BrowserHome &home = watching.home;
    home.addPages();
    watching.console.terminal = true;
    watching.run({[&] { home.fileEvents.report({home.chrome(u"Evil\u001B[2J\n/History"_s)}); }});
    EXPECT_EQ(watching.console.output.toStdString(), "2026-05-09 11:43  chrome/Evil␛[2J␊\n");
}

TEST_F(DiagnosticsWatchTest, endsWhenNobodyReadsAnyMore)
{
    Watching watching(u"60"_s);
    const BrowserHome &home = watching.home;
    home.addPages();
    watching.console.outputError = std::make_error_code(std::errc::broken_pipe);
    bool goesOn = false;
    EXPECT_EQ(watching.run({[&] { home.fileEvents.report({home.edge(u"Default/History"_s)}); },
                            [&] { goesOn = true; }}),
              0);
    EXPECT_FALSE(goesOn);
}

TEST_F(DiagnosticsWatchTest, endsWithAReasonWhenItCannotWrite)
{
    Watching watching(u"60"_s);
    const BrowserHome &home = watching.home;
    home.addPages();
    watching.console.outputError = std::make_error_code(std::errc::no_space_on_device);
    EXPECT_EQ(watching.run({[&] {
        // Its own message needs no further step.
        watching.console.onError = nullptr;
        home.fileEvents.report({home.edge(u"Default/History"_s)});
    }}),
              1);
    EXPECT_THAT(watching.console.errors.toStdString(), HasSubstr("No space left on device"));
}

TEST_F(DiagnosticsWatchTest, saysThatNothingCanBeWatchedAndEnds)
{
    Watching watching(u"60"_s);
    watching.home.fileEvents.isAvailable = false;
    bool waits = false;
    EXPECT_EQ(watching.run({[&] { waits = true; }}), 1);
    EXPECT_FALSE(waits);
    EXPECT_EQ(watching.console.output, "");
    EXPECT_EQ(watching.console.errors.toStdString(),
              "roamlet: The browsers' folders cannot be watched: the system reports no changes in them.\n");
}

TEST_F(DiagnosticsWatchTest, saysThatTheSystemHasNoMoreWatchesAndEnds)
{
    Watching watching(u"60"_s);
    watching.home.fileEvents.isLimitReached = true;
    bool waits = false;
    EXPECT_EQ(watching.run({[&] { waits = true; }}), 1);
    EXPECT_FALSE(waits);
    EXPECT_EQ(watching.console.output, "");
    EXPECT_EQ(watching.console.errors.toStdString(),
              "roamlet: The browsers' folders cannot be watched: the system has no more watches to give. "
              "fs.inotify.max_user_watches and fs.inotify.max_user_instances say how many there are.\n");
}

TEST_F(DiagnosticsWatchTest, endsWhenTheSystemRunsOutOfWatchesMeanwhile)
{
    Watching watching(u"60"_s);
    bool goesOn = false;
    EXPECT_EQ(watching.run({[&] {
                                // Its own message needs no further step.
                                watching.console.onError = nullptr;
                                watching.home.fileEvents.isLimitReached = true;
                                watching.home.fileEvents.report({});
                            },
                            [&] { goesOn = true; }}),
              1);
    EXPECT_FALSE(goesOn);
    EXPECT_THAT(watching.console.errors.toStdString(), HasSubstr("no more watches to give"));
}

TEST_F(DiagnosticsWatchTest, leavesNoCopiesBehind)
{
    Watching watching(u"60"_s);
    const BrowserHome &home = watching.home;
    home.addPages();
    watching.run({[&] { home.fileEvents.report({home.edge(u"Default/History"_s)}); }});
    EXPECT_EQ(home.leftovers(), QStringList());
}

} // namespace roamlet::testing
