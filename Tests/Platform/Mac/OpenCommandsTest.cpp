// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Mac/OpenCommands.h"

#include "Model/Browser.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using OpenCommands::Command;

TEST(OpenCommandsTest, aProfileIsOneArgumentAndSoIsEachUrl)
{
    const QStringList urls{u"https://example.com/?a=1 2"_s, u"about:blank"_s};
    EXPECT_EQ(OpenCommands::inProfile(urls, Browser::of(Source::Kind::Chrome), u"Profile 1"_s),
              (Command{.program = u"/usr/bin/open"_s,
                       .arguments = {u"-n"_s, u"-b"_s, u"com.google.Chrome"_s, u"--args"_s,
                                     u"--profile-directory=Profile 1"_s, u"https://example.com/?a=1 2"_s,
                                     u"about:blank"_s}}));
}

TEST(OpenCommandsTest, nothingIsQuoted)
{
    EXPECT_EQ(
        OpenCommands::inProfile({u"http://a/'\"$(x)"_s}, Browser::of(Source::Kind::Edge), u"Jo's \"$1\""_s)
            .arguments,
        (QStringList{u"-n"_s, u"-b"_s, u"com.microsoft.edgemac"_s, u"--args"_s,
                     u"--profile-directory=Jo's \"$1\""_s, u"http://a/'\"$(x)"_s}));
}

TEST(OpenCommandsTest, theScriptIsKnownToTheByte)
{
    const QString script = u"repeat 40 times\n"
                           "    try\n"
                           "        tell application id \"com.google.Chrome\"\n"
                           "            if (count of windows) > 0 and URL of active tab of front window is "
                           "\"about:blank\" then\n"
                           "                set URL of active tab of front window to "
                           "\"chrome://bookmarks/?id=5\"\n"
                           "                return\n"
                           "            end if\n"
                           "        end tell\n"
                           "    end try\n"
                           "    delay 0.1\n"
                           "end repeat"_s;
    EXPECT_EQ(OpenCommands::pageScript(Browser::of(Source::Kind::Chrome), u"chrome://bookmarks/?id=5"_s),
              script);
    EXPECT_EQ(OpenCommands::showPage(Browser::of(Source::Kind::Chrome), u"chrome://bookmarks/?id=5"_s),
              (Command{.program = u"/usr/bin/osascript"_s, .arguments = {u"-e"_s, script}}));
}

TEST(OpenCommandsTest, theScriptHasElevenLinesAndNoneAfterTheLast)
{
    const QStringList lines =
        OpenCommands::pageScript(Browser::of(Source::Kind::Edge), u"edge://history/"_s).split(u'\n');
    ASSERT_EQ(lines.size(), 11);
    EXPECT_EQ(lines.at(2), u"        tell application id \"com.microsoft.edgemac\"");
    EXPECT_EQ(lines.at(4), u"                set URL of active tab of front window to \"edge://history/\"");
    EXPECT_EQ(lines.last(), u"end repeat");
}

TEST(OpenCommandsTest, theScriptNamesAnApplicationWithoutAnIdentifier)
{
    const Browser &vivaldi = Browser::of(Source::kindFromRawValue(u"vivaldi").value());
    const QStringList lines = OpenCommands::pageScript(vivaldi, u"vivaldi://history/"_s).split(u'\n');
    EXPECT_EQ(lines.value(2), u"        tell application \"Vivaldi\"");
}

} // namespace
} // namespace roamlet::testing
