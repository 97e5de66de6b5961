// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "ProgramTest.h"
#include "SampleHome/PlainFiles.h"

#include <QDeadlineTimer>
#include <QFile>

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// The switches of rows, with a browser that writes down what it was to open.
class ProgramRowsTest : public ProgramTest
{
protected:
    ProgramRowsTest()
    {
        program.environment.insert(u"XDG_DATA_HOME"_s, home.path(u"data"_s));
        program.environment.insert(u"XDG_DATA_DIRS"_s, home.path(u"data"_s));
    }

    void addBrowser() const
    {
        const QString script = home.path(u"browser"_s);
        sample::writeFile(script, QString(u"#!/bin/sh\nprintf '%s\\n' \"$@\" >\"" % opened() %
                                          u".new\"\n"
                                          "mv \"" %
                                          opened() % u".new\" \"" % opened() % u"\"\n")
                                      .toUtf8());
        QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        sample::writeFile(
            home.path(u"data/applications/google-chrome.desktop"_s),
            QString(u"[Desktop Entry]\nType=Application\nName=Chrome\nExec=" % script % u" %U\n").toUtf8());
    }
    /// Beside the home, which no run may change.
    QString opened() const { return home.temporary() % u"/opened"; }
};

} // namespace

TEST_F(ProgramRowsTest, wrongSwitchesEndWithStatus2AndAWord)
{
    home.addPages();
    for (const auto &[arguments, word] :
         {std::pair(QStringList{u"--limit"_s, u"none"_s, u"--top"_s}, "--limit takes a whole number"),
          {QStringList{u"--since"_s, u"soon"_s, u"--search"_s, u"a"_s}, "--since takes a day or a time"},
          {QStringList{u"--until"_s}, "--until needs a value"},
          {QStringList{u"--json"_s, u"--watch"_s}, "--json goes with"},
          {QStringList{u"--open"_s, u"a"_s, u"--top"_s}, "--open and --top do not go together"},
          {QStringList{u"--since"_s, u"1d"_s, u"--until"_s, u"2d"_s, u"--search"_s},
           "--since has to be before --until"}}) {
        const Ended ended = program.run(arguments);
        EXPECT_EQ(ended.status, 2) << word;
        EXPECT_EQ(ended.output, "");
        EXPECT_THAT(ended.errors.toStdString(), StartsWith(std::string("roamlet: ") + word));
        EXPECT_EQ(ended.errors.count('\n'), 1);
    }
}

TEST_F(ProgramRowsTest, rowsForOtherProgramsAreTheSameOnATerminal)
{
    home.addPages();
    const QStringList arguments{u"--json"_s, u"--limit"_s, u"1"_s, u"--search"_s, u"bike"_s};
    EXPECT_THAT(linesOf(arguments), ElementsAre(StartsWith("{\"id\":\"chrome/Default/2\",")));
    EXPECT_EQ(program.runOnTerminal(arguments).output, program.run(arguments).output);
}

TEST_F(ProgramRowsTest, theSessionsTimeZoneDecidesWhatADayIs)
{
    home.addPages();
    // The newest page was visited at 06:13 UTC, when it was still the eighth of May ten hours behind.
    const auto onTheNinth = [this](const char *zone) {
        program.environment.insert(u"TZ"_s, QString::fromLatin1(zone));
        return linesOf({u"--since"_s, u"2026-05-09"_s, u"--until"_s, u"2026-05-09"_s, u"--search"_s}).size() -
               1;
    };
    EXPECT_EQ(onTheNinth("UTC"), 5U);
    EXPECT_EQ(onTheNinth("WEST10"), 0U);
}

TEST_F(ProgramRowsTest, aRowOpensInItsBrowserAndProfile)
{
    home.addPages();
    home.addBookmarks();
    addBrowser();
    for (const auto &[id, address] : {std::pair(u"chrome/Profile 1/1"_s, "https://work.example.com/"),
                                      {u"bookmark/chrome/Default/7"_s, "https://b.example/"}}) {
        const Ended ended = program.run({u"--open"_s, id});
        EXPECT_EQ(ended.status, 0);
        EXPECT_EQ(ended.output, "");
        EXPECT_EQ(ended.errors, "");
        // The browser is started and left alone.
        const QDeadlineTimer deadline(patience);
        while (!QFile::exists(opened()) && !deadline.hasExpired())
            continue;
        QFile file(opened());
        ASSERT_TRUE(file.open(QFile::ReadOnly)) << "nothing is opened";
        EXPECT_THAT(file.readAll().toStdString(), EndsWith(std::string("\n") + address + '\n'));
        file.remove();
    }
}

TEST_F(ProgramRowsTest, whatCannotBeOpenedIsSaidWithStatus1)
{
    home.addPages();
    const auto complaint = [this](const QString &id) {
        const Ended ended = program.run({u"--open"_s, id});
        EXPECT_EQ(ended.status, 1);
        EXPECT_EQ(ended.output, "");
        EXPECT_EQ(ended.errors.count('\n'), 1);
        return ended.errors.toStdString();
    };
    EXPECT_THAT(complaint(u"edge/Default/1"_s), HasSubstr("Edge - Office is not here"));
    EXPECT_THAT(complaint(u"edge/Default/99"_s), HasSubstr("There is no row edge/Default/99"));
    addBrowser();
    QFile::remove(home.path(u"browser"_s));
    EXPECT_THAT(complaint(u"chrome/Default/1"_s), HasSubstr("Chrome - Personal"));
}

} // namespace roamlet::testing
