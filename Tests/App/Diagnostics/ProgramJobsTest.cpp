// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "EmptyDocuments.h"
#include "ProgramTest.h"
#include "SampleHome/PlainFiles.h"

#include <QFile>
#include <QJsonObject>

#include <sys/stat.h>

#include <gmock/gmock.h>
#include <utility>

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

using ProgramJobsTest = ProgramTest;

} // namespace

TEST_F(ProgramJobsTest, helpAndVersionGoToTheOutput)
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

TEST_F(ProgramJobsTest, anUnknownSwitchIsNamedWithStatus2)
{
    for (const QString &word : {u"--frobnicate"_s, u"--Summary"_s, u"history"_s, u"--größe"_s}) {
        const Ended ended = program.run({word, u"--other"_s});
        EXPECT_EQ(ended.status, 2);
        EXPECT_EQ(ended.output, "");
        EXPECT_THAT(ended.errors.toStdString(), AllOf(HasSubstr(word.toStdString()), HasSubstr("--help")));
    }
}

TEST_F(ProgramJobsTest, withoutASessionBusNoDesktopCanAsk)
{
    program.environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nowhere"_s);
    const Ended ended = program.run({u"--desktop-search"_s});
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.output, "");
    EXPECT_EQ(ended.errors, "roamlet: there is no session bus on which a desktop could ask.\n");
}

TEST_F(ProgramJobsTest, anUnknownSwitchIsNotObeyedByTheTerminal)
{
    const Ended ended = program.run({u"\x1b[31mred"_s});
    EXPECT_EQ(ended.status, 2);
    EXPECT_THAT(ended.errors.toStdString(), AllOf(HasSubstr("[31mred"), ::testing::Not(HasSubstr("\x1b"))));
}

TEST_F(ProgramJobsTest, aWindowWithoutADisplayIsAFailureWithAReason)
{
    for (const QString &name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
        program.environment.remove(name);
    const Ended ended = program.run({});
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.output, "");
    EXPECT_THAT(ended.errors.toStdString(), AllOf(HasSubstr("no display"), HasSubstr("--help")));
}

TEST_F(ProgramJobsTest, theSwitchTestedFirstDecides)
{
    home.addPages();
    EXPECT_THAT(linesOf({u"--top"_s, u"--search"_s, u"nowhere"_s, u"--summary"_s}).back(),
                StartsWith("Read in "));
    EXPECT_THAT(linesOf({u"--help"_s, u"--site"_s, u"a"_s, u"--top"_s}).back(), StartsWith("6 URLs in "));
    EXPECT_EQ(program.run({u"--top"_s, u"--export"_s}).output, "Formats: html, markdown, csv\n");
}

TEST_F(ProgramJobsTest, anUnknownOrMissingFormatListsTheFormatsWithStatus1)
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

TEST_F(ProgramJobsTest, summaryListsSourcesThenSwitchedOffOnesThenTheSeconds)
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

TEST_F(ProgramJobsTest, topIsExactToTheByte)
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

TEST_F(ProgramJobsTest, searchListsTheNewestFirstAndCounts)
{
    home.addPages();
    EXPECT_THAT(linesOf({u"--search"_s, u"bike"_s, u"PAGE"_s}),
                ElementsAre(AllOf(StartsWith("2026-05-09 09:43  Chrome - Personal  Blue Bike page 東京"),
                                  HasSubstr("  https://example.org:8443/bike")),
                            AllOf(StartsWith("2026-05-08 11:43  Chrome - Work  "),
                                  HasSubstr("  https://bike.example.com/")),
                            MatchesRegex("2 matches, not capped, in " + seconds + "s")));
}

TEST_F(ProgramJobsTest, siteListsOneSite)
{
    home.addPages();
    EXPECT_THAT(linesOf({u"--site"_s, u"example.org"_s}),
                ElementsAre(StartsWith("2026-05-09 11:43  Chrome - Personal  Daily page"),
                            StartsWith("2026-05-09 09:43  Chrome - Personal  Blue Bike page"),
                            MatchesRegex("2 matches, not capped, in " + seconds + "s")));
    EXPECT_EQ(linesOf({u"--site"_s}).size(), 7U);
}

TEST_F(ProgramJobsTest, wordsInOtherLanguagesAreFoundInEveryLocale)
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

TEST_F(ProgramJobsTest, foldersWithForeignNamesAreReadWithoutALocale)
{
    sample::writeLocalState(home.chrome(u"Local State"_s),
                            {{u"Größe 東"_s, QJsonObject{{u"name"_s, u"Ä"_s}}}});
    sample::writeHistory(home.chrome(u"Größe 東/History"_s),
                         {BrowserHome::page(u"https://a.example/"_s, u"t"_s, 1, BrowserHome::newest)});
    EXPECT_THAT(linesOf({u"--top"_s}), ElementsAre("1  Ä  a.example  t", StartsWith("1 URLs in ")));
    EXPECT_EQ(program.run({u"--export"_s, u"csv"_s, u"--source"_s, u"chrome/Größe 東"_s}).errors, "");
}

TEST_F(ProgramJobsTest, anUnknownTimeZoneMeansUniversalTime)
{
    home.addPages();
    program.environment.insert(u"TZ"_s, u"Nowhere/At_All"_s);
    EXPECT_THAT(linesOf({u"--search"_s, u"daily"_s}).front(), StartsWith("2026-05-09 06:13  "));
    program.environment.insert(u"TZ"_s, u":garbage/////"_s);
    EXPECT_THAT(linesOf({u"--search"_s, u"daily"_s}).front(), StartsWith("2026-05-09 06:13  "));
}

TEST_F(ProgramJobsTest, textsInAPipeAreExactlyAsStored)
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

TEST_F(ProgramJobsTest, titlesOfAMegabyteArePrintedWhole)
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

TEST_F(ProgramJobsTest, exportAddsNothingToTheDocument)
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

TEST_F(ProgramJobsTest, exportOfWhatCannotBeReadIsAnEmptyDocumentAndAMessage)
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

TEST_F(ProgramJobsTest, wordsThatAreNoTextFindNothing)
{
    home.addPages();
    const Ended ended = program.runInShell(u"\"$0\" --search $'\\xff\\xfe' $'\\xc3'"_s);
    EXPECT_EQ(ended.status, 0);
    EXPECT_THAT(ended.output.toStdString(), StartsWith("0 matches, not capped, in "));
}

TEST_F(ProgramJobsTest, profilesSwitchedOffInTheSettingsFileAreNotRead)
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

TEST_F(ProgramJobsTest, theOlderListOfChromeProfilesStillCounts)
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

TEST_F(ProgramJobsTest, aSettingsFileOfGarbageSwitchesNothingOff)
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

} // namespace roamlet::testing
