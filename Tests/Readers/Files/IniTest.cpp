// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/Ini.h"

#include "Readers/ReaderTest.h"

#include <string>
#include <vector>

namespace roamlet::testing
{

using namespace std::string_view_literals;

namespace
{

/// Each entry as "section/key=value".
std::vector<std::string> entriesOf(std::string_view text)
{
    std::vector<std::string> entries;
    Ini::forEachEntry(text, [&entries](const Ini::Entry &entry) {
        entries.push_back(std::string(entry.section) + '/' + std::string(entry.key) + '=' +
                          std::string(entry.value));
    });
    return entries;
}

using Entries = std::vector<std::string>;

std::string repeated(std::string_view text, size_t size)
{
    std::string result;
    result.reserve(size + text.size());
    while (result.size() < size)
        result += text;
    return result;
}

} // namespace

TEST(Ini, entriesComeInTheOrderOfTheFile)
{
    EXPECT_EQ(entriesOf("[b]\nz=1\na=2\n[a]\nz=3\n[b]\nz=4\n"),
              (Entries{"b/z=1", "b/a=2", "a/z=3", "b/z=4"}));
    EXPECT_EQ(entriesOf(""), Entries());
    EXPECT_EQ(entriesOf("[a]\n"), Entries());
}

TEST(Ini, everyLineEndIsOneAndTheLastLineNeedsNone)
{
    EXPECT_EQ(entriesOf("[a]\r\nb=1\r\n\r\n\n\nc=2\rd=3"), (Entries{"a/b=1", "a/c=2", "a/d=3"}));
    EXPECT_EQ(entriesOf("[a]\nb="), Entries{"a/b="});
    EXPECT_EQ(entriesOf("[a]"), Entries());
    EXPECT_EQ(entriesOf("["), Entries());
    EXPECT_EQ(entriesOf("\r"), Entries());
}

TEST(Ini, aByteOrderMarkAtTheBeginningIsNoText)
{
    EXPECT_EQ(entriesOf("\xEF\xBB\xBF[a]\nb=1"), Entries{"a/b=1"});
    EXPECT_EQ(entriesOf("\xEF\xBB\xBF"), Entries());
    EXPECT_EQ(entriesOf("\xEF\xBB"), Entries());
    EXPECT_EQ(entriesOf("[a]\n\xEF\xBB\xBF"
                        "b=\xEF\xBB\xBF"
                        "1"),
              Entries{"a/\xEF\xBB\xBF"
                      "b=\xEF\xBB\xBF"
                      "1"});
}

TEST(Ini, aCommentIsALineThatBeginsWithItsSign)
{
    EXPECT_EQ(entriesOf("[a]\n;b=1\n#c=2\n;[d]\n#\n;\ne=3"), Entries{"a/e=3"});
    EXPECT_EQ(entriesOf("[a]\n ;b=1\n\t#c=2\nd=;3 ; # 4"), (Entries{"a/;b=1", "a/#c=2", "a/d=;3 ; # 4"}));
}

TEST(Ini, textsStandAsTheyAreWritten)
{
    EXPECT_EQ(entriesOf("[a]\n \t b =  \"1\" \\n\t\nc='=='\nZo\xC3\xAB=\xFF"),
              (Entries{"a/b =  \"1\" \\n\t", "a/c='=='", "a/Zo\xC3\xAB=\xFF"}));
    EXPECT_EQ(entriesOf("[ a b ]\nc=1"), Entries{" a b /c=1"});
}

TEST(Ini, aLineWithoutASignOrWithoutAKeyIsNoEntry)
{
    EXPECT_EQ(entriesOf("[a]\nb\n=1\n==\n   \n\t=2\nc==3\nd="), (Entries{"a/c==3", "a/d="}));
}

TEST(Ini, whatIsInNoSectionIsNoEntry)
{
    EXPECT_EQ(entriesOf("a=1\n[b]\nc=2"), Entries{"b/c=2"});
    for (const char *line : {"[]", "[]]", "[b]c", "[b] ;", "[b]]", "[[b]", "[b[c]"})
        EXPECT_EQ(entriesOf("[a]\nb=1\n" + std::string(line) + "\nc=2\n[d]\ne=3"),
                  (Entries{"a/b=1", "d/e=3"}))
            << line;
}

TEST(Ini, aSectionMayBeIndentedFollowedByBlanksOrLeftOpen)
{
    for (const char *line : {"[a]", " \t[a]", "[a] \t ", "[a"})
        EXPECT_EQ(entriesOf(std::string(line) + "\nb=1"), Entries{"a/b=1"}) << line;
}

TEST(Ini, theFileEndsAtANul)
{
    EXPECT_EQ(entriesOf("[a]\nb=1\0\nc=2"sv), Entries{"a/b=1"});
    EXPECT_EQ(entriesOf("[a]\nb=1\n\0c=2\n[d]\ne=3"sv), Entries{"a/b=1"});
    EXPECT_EQ(entriesOf("\0[a]\nb=1"sv), Entries());
    EXPECT_EQ(entriesOf("\xEF\xBB\xBF\0[a]\nb=1"sv), Entries());
}

TEST(Ini, longFilesOfAnyKindAreReadToTheEnd)
{
    constexpr size_t size = 5'000'000;
    for (const char *line :
         {"x", "[", "]", "=", "\n", "\r", " ", "[x]", "[x]\n", "[x\n", "x=\n", "x=1\r", ";\n", "a b"}) {
        const std::string text = repeated(line, size) + "\n[a]\nb=1";
        std::string last;
        Ini::forEachEntry(text, [&last](const Ini::Entry &entry) { last = entry.section; });
        EXPECT_EQ(last, "a") << line;
    }
}

} // namespace roamlet::testing
