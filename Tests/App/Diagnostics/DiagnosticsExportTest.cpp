// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsTest.h"
#include "EmptyDocuments.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/PlainFiles.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::HasSubstr;
using ::testing::StartsWith;

using DiagnosticsExportTest = DiagnosticsTest;

} // namespace

TEST_F(DiagnosticsExportTest, printsTheDocumentAndNothingElse)
{
    home.addProfiles();
    home.addBookmarks();
    EXPECT_EQ(
        outputOf({u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Default"_s}).toStdString(),
        "<!DOCTYPE NETSCAPE-Bookmark-file-1>\n"
        "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">\n"
        "<TITLE>Bookmarks</TITLE>\n"
        "<H1>Bookmarks</H1>\n"
        "<DL><p>\n"
        "    <DT><H3 PERSONAL_TOOLBAR_FOLDER=\"true\">Bar</H3>\n"
        "    <DL><p>\n"
        "        <DT><A HREF=\"https://a.example/?x=1&amp;y=2\" ADD_DATE=\"1778307200\">A &amp; B</A>\n"
        "        <DT><H3>Sub</H3>\n"
        "        <DL><p>\n"
        "            <DT><A HREF=\"https://b.example/\" ADD_DATE=\"1778307200\">Größe, &quot;東京&quot;</A>\n"
        "        </DL><p>\n"
        "        <DT><H3>Empty</H3>\n"
        "        <DL><p>\n"
        "        </DL><p>\n"
        "    </DL><p>\n"
        "    <DT><H3>Phone</H3>\n"
        "    <DL><p>\n"
        "        <DT><A HREF=\"https://c.example/\">C</A>\n"
        "    </DL><p>\n"
        "</DL><p>\n");
    EXPECT_EQ(outputOf({u"--export"_s, u"csv"_s, u"--source"_s, u"chrome/Default"_s}).toStdString(),
              "Browser,Profile,Folder,Title,URL,Added\r\n"
              "Chrome,Personal,Bar,A & B,https://a.example/?x=1&y=2,2026-05-09T06:13:20Z\r\n"
              "Chrome,Personal,Bar › Sub,\"Größe, \"\"東京\"\"\",https://b.example/,2026-05-09T06:13:20Z\r\n"
              "Chrome,Personal,Phone,C,https://c.example/,\r\n");
    EXPECT_EQ(outputOf({u"--export"_s, u"markdown"_s, u"--source"_s, u"chrome/Default"_s}).toStdString(),
              "# Bookmarks\n\n## Bar\n\n- [A & B](<https://a.example/?x=1&y=2>)\n\n### Sub\n\n"
              "- [Größe, \"東京\"](<https://b.example/>)\n\n### Empty\n\n## Phone\n\n- "
              "[C](<https://c.example/>)\n");
    EXPECT_EQ(console.errors, "");
}

TEST_F(DiagnosticsExportTest, takesTheDefaultSafariSourceWhenNoneIsNamed)
{
    home.addProfiles();
    home.addBookmarks();
    addSafari();
    EXPECT_EQ(outputOf({u"--export"_s, u"markdown"_s}).toStdString(),
              "# Bookmarks\n\n## Favorites\n\n- [Apple](<https://apple.example/>)\n");
}

TEST_F(DiagnosticsExportTest, whatIsStoredCannotCommandATerminal)
{
    home.addProfiles();
    home.addBookmarks();
    const QString title = u"a\x1b[31mb\x07"_s;
    sample::writeBookmarks(
        home.chrome(u"Default/Bookmarks"_s),
        {{u"bookmark_bar"_s,
          sample::folderNode(u"1"_s, u"Bar"_s,
                             {sample::bookmarkNode(u"2"_s, title, u"https://a.example/"_s, 0)})}});
    const QStringList arguments{u"--export"_s, u"csv"_s, u"--source"_s, u"chrome/Default"_s};
    EXPECT_THAT(outputOf(arguments).toStdString(), HasSubstr("a\x1b[31mb\x07"));
    console.terminal = true;
    const QByteArray shown = outputOf(arguments);
    EXPECT_THAT(shown.toStdString(), HasSubstr("a␛[31mb␇"));
    EXPECT_TRUE(
        std::ranges::none_of(shown, [](char byte) { return byte >= 0 && byte < ' ' && byte != '\n'; }));
}

TEST_F(DiagnosticsExportTest, ofAnUnknownSourceIsEmptyAndSaysWhy)
{
    home.addProfiles();
    home.addBookmarks();
    EXPECT_EQ(outputOf({u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Nobody"_s}), emptyHtml);
    EXPECT_THAT(console.errors.toStdString(), HasSubstr("chrome/Nobody"));
    EXPECT_EQ(outputOf({u"--export"_s, u"markdown"_s, u"--source"_s, u"Chrome/Default"_s}), emptyMarkdown)
        << "ids are exact";
    EXPECT_EQ(outputOf({u"--export"_s, u"csv"_s, u"--source"_s, u""_s}), emptyCsv);
}

TEST_F(DiagnosticsExportTest, ofASourceThatThereIsNotNamesTheOnesThatThereAre)
{
    home.addProfiles();
    home.addBookmarks();
    EXPECT_EQ(outputOf({u"--export"_s, u"html"_s}), emptyHtml);
    EXPECT_EQ(console.errors.toStdString(), "roamlet: There is no source safari. There are: chrome/Default, "
                                            "chrome/Profile 1, edge/Default\n");
    switchOff({u"chrome/Profile 1"_s});
    console.errors.clear();
    EXPECT_EQ(outputOf({u"--export"_s, u"html"_s, u"--source"_s, u"Profile 1"_s}), emptyHtml);
    EXPECT_EQ(console.errors.toStdString(),
              "roamlet: There is no source Profile 1. There are: chrome/Default, edge/Default\n");
}

TEST_F(DiagnosticsExportTest, whereThereIsNoSourceAtAllNamesNone)
{
    EXPECT_EQ(outputOf({u"--export"_s, u"html"_s}), emptyHtml);
    EXPECT_EQ(console.errors.toStdString(), "roamlet: There is no source safari.\n");
}

TEST_F(DiagnosticsExportTest, ofASwitchedOffSourceIsEmptyAndSaysWhy)
{
    home.addProfiles();
    home.addBookmarks();
    switchOff({u"chrome/Default"_s});
    EXPECT_EQ(outputOf({u"--export"_s, u"csv"_s, u"--source"_s, u"chrome/Default"_s}), emptyCsv);
    EXPECT_THAT(console.errors.toStdString(), HasSubstr("turned off"));
}

TEST_F(DiagnosticsExportTest, ofAnUnreadableSourceIsEmptyAndSaysWhy)
{
    home.addProfiles();
    sample::writeFile(home.chrome(u"Default/Bookmarks"_s), "[1, 2");
    EXPECT_EQ(outputOf({u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Default"_s}), emptyHtml);
    EXPECT_THAT(console.errors.toStdString(),
                HasSubstr("Couldn't read " + home.chrome(u"Default/Bookmarks"_s).toStdString() + ": "));
}

TEST_F(DiagnosticsExportTest, ofADamagedFileBesideAGoodOneIsTheGoodOneAndSaysWhatIsMissing)
{
    home.addProfiles();
    home.addBookmarks();
    const QStringList arguments{u"--export"_s, u"markdown"_s, u"--source"_s, u"chrome/Default"_s};
    const QByteArray whole = outputOf(arguments);
    const QString account = home.chrome(u"Default/AccountBookmarks"_s);
    sample::writeFile(account, "[1, 2");
    EXPECT_EQ(outputOf(arguments), whole);
    EXPECT_THAT(console.errors.toStdString(),
                StartsWith("roamlet: Chrome - Personal: Couldn't read " + account.toStdString() + ": "));
    EXPECT_EQ(console.errors.count('\n'), 1);

    const QString local = home.chrome(u"Default/Bookmarks"_s);
    sample::writeFile(local, "{");
    console.errors.clear();
    EXPECT_EQ(outputOf(arguments), emptyMarkdown);
    EXPECT_THAT(console.errors.toStdString(),
                StartsWith("roamlet: Chrome - Personal: Couldn't read " + local.toStdString() + ": "));
    EXPECT_EQ(console.errors.count('\n'), 2) << "each file is named";
}

TEST_F(DiagnosticsExportTest, ofEncryptedBookmarksIsEmptyAndSaysWhy)
{
    home.addProfiles();
    sample::writeEncryptedBookmarks(home.chrome(u"Default/EncryptedBookmarks2"_s));
    const QStringList arguments{u"--export"_s, u"html"_s, u"--source"_s, u"chrome/Default"_s};
    EXPECT_EQ(outputOf(arguments), emptyHtml);
    EXPECT_EQ(console.errors.toStdString(), "roamlet: Chrome keeps the bookmarks of Chrome - Personal "
                                            "encrypted. Only it can export them.\n");
    home.addBookmarks();
    console.errors.clear();
    EXPECT_NE(outputOf(arguments), emptyHtml);
    EXPECT_EQ(console.errors, "") << "what can be read is everything";
}

TEST_F(DiagnosticsExportTest, foldersThatAreTooDeepAreAMessageAndStatusOne)
{
    home.addProfiles();
    sample::writeDeepBookmarks(home.chrome(u"Default/Bookmarks"_s), 10'000);
    for (const QString &format : {u"html"_s, u"markdown"_s}) {
        console.errors.clear();
        EXPECT_EQ(run({u"--export"_s, format, u"--source"_s, u"chrome/Default"_s}), 1);
        EXPECT_EQ(console.output, "") << qPrintable(format);
        EXPECT_EQ(console.errors, "roamlet: The folders are nested too deeply for this format.\n");
    }
    console.errors.clear();
    EXPECT_EQ(outputOf({u"--export"_s, u"csv"_s, u"--source"_s, u"chrome/Default"_s}).count('\n'), 2);
    EXPECT_EQ(console.errors, "");
}

TEST_F(DiagnosticsExportTest, withoutSafariOrBookmarksIsEmpty)
{
    EXPECT_EQ(outputOf({u"--export"_s, u"markdown"_s}), emptyMarkdown);
    home.addProfiles();
    console.errors.clear();
    EXPECT_EQ(outputOf({u"--export"_s, u"markdown"_s, u"--source"_s, u"edge/Default"_s}), emptyMarkdown);
    EXPECT_EQ(console.errors, "") << "a profile without bookmarks is no error";
}

TEST_F(DiagnosticsExportTest, anUnknownFormatGetsTheListOfFormats)
{
    home.addProfiles();
    home.addBookmarks();
    const QList<QStringList> wrong{{u"--export"_s},
                                   {u"--export"_s, u"HTML"_s},
                                   {u"--export"_s, u"htm"_s},
                                   {u"--export"_s, u"md"_s},
                                   {u"--export"_s, u" html"_s},
                                   {u"--export"_s, u""_s},
                                   {u"--export"_s, u"--source"_s, u"chrome/Default"_s},
                                   {u"--source"_s, u"chrome/Default"_s, u"--export"_s},
                                   {u"--export"_s, u"--top"_s}};
    for (const QStringList &arguments : wrong) {
        SCOPED_TRACE(arguments.join(u' ').toStdString());
        console.output.clear();
        EXPECT_EQ(run(arguments), 1);
        EXPECT_EQ(console.output, "Formats: html, markdown, csv\n");
        EXPECT_EQ(console.errors, "");
    }
}

} // namespace roamlet::testing
