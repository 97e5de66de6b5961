// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsTest.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/SafariFiles.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

/// What the switches of rows make of a job.
class DiagnosticsRowsTest : public DiagnosticsTest
{
protected:
    /// The objects that a run prints.
    QList<QJsonObject> objectsOf(const QStringList &arguments)
    {
        QList<QJsonObject> objects;
        for (const QString &line : linesOf(arguments)) {
            QJsonParseError error;
            objects.append(QJsonDocument::fromJson(line.toUtf8(), &error).object());
            EXPECT_EQ(error.error, QJsonParseError::NoError) << line.toStdString();
        }
        return objects;
    }
    QStringList fieldOf(const QString &field, const QStringList &arguments)
    {
        QStringList values;
        for (const QJsonObject &object : objectsOf(arguments))
            values.append(object[field].toString());
        return values;
    }

    /// Pages of Edge's, one second apart, the newest first.
    void addManyPages(qsizetype count) const
    {
        home.addProfiles();
        sample::writeHistory(home.edge(u"Default/History"_s),
                             sample::Rows<sample::HistoryRow>::generated(count, [](qsizetype i) {
                                 return BrowserHome::page(u"https://many.example/%1"_s.arg(i),
                                                          QString::number(i), 1, BrowserHome::newest - i);
                             }));
    }
};

} // namespace

TEST_F(DiagnosticsRowsTest, searchPrintsTheSameRowsForOtherPrograms)
{
    home.addPages();
    EXPECT_EQ(
        text(fieldOf(u"url"_s, {u"--json"_s, u"--search"_s, u"PAGE"_s})),
        text({u"https://www.example.org/news"_s, u"https://intra.example/page"_s,
              u"https://work.example.com/"_s, u"https://example.org:8443/bike"_s,
              u"https://mirror.example.net/?from=https://example.org/"_s, u"https://bike.example.com/"_s}));
    const QList<QJsonObject> bikes = objectsOf({u"--json"_s, u"--search"_s, u"blue"_s, u"bike"_s});
    ASSERT_EQ(bikes.size(), 1);
    EXPECT_EQ(bikes.first(), (QJsonObject{{u"id"_s, u"chrome/Default/2"_s},
                                          {u"title"_s, u"Blue Bike page 東京"_s},
                                          {u"url"_s, u"https://example.org:8443/bike"_s},
                                          {u"site"_s, u"example.org"_s},
                                          {u"visited"_s, u"2026-05-09T04:13:20.000Z"_s},
                                          {u"visits"_s, 3},
                                          {u"source"_s, u"chrome/Default"_s},
                                          {u"label"_s, u"Chrome - Personal"_s}}));
    EXPECT_EQ(outputOf({u"--json"_s, u"--search"_s, u"nowhere"_s}), "");
}

TEST_F(DiagnosticsRowsTest, siteAndTopPrintTheSameRowsForOtherPrograms)
{
    home.addPages();
    EXPECT_EQ(text(fieldOf(u"title"_s, {u"--site"_s, u"example.org"_s, u"--json"_s})),
              text({u"Daily page"_s, u"Blue Bike page 東京"_s}));
    EXPECT_EQ(text(fieldOf(u"title"_s, {u"--top"_s, u"--json"_s, u"--limit"_s, u"2"_s})),
              text({u"Board page"_s, u"Daily page"_s}));
    EXPECT_EQ(objectsOf({u"--top"_s, u"--json"_s}).size(), 6);
}

TEST_F(DiagnosticsRowsTest, summaryPrintsAnObjectForEachProfile)
{
    home.addPages();
    home.addBookmarks();
    home.addIcons();
    sample::writeFile(home.edge(u"Default/Bookmarks"_s), "{");
    switchOff({u"chrome/Profile 1"_s});
    const QList<QJsonObject> profiles = objectsOf({u"--summary"_s, u"--json"_s});
    ASSERT_EQ(profiles.size(), 3);
    EXPECT_EQ(profiles[0], (QJsonObject{{u"source"_s, u"chrome/Default"_s},
                                        {u"label"_s, u"Chrome - Personal"_s},
                                        {u"enabled"_s, true},
                                        {u"bookmarks"_s, 3},
                                        {u"folders"_s, 4},
                                        {u"icons"_s, 2},
                                        {u"pages"_s, 3},
                                        {u"visited"_s, u"2026-05-09T06:13:20.000Z"_s},
                                        {u"problems"_s, QJsonArray()}}));
    EXPECT_EQ(profiles[1], (QJsonObject{{u"source"_s, u"chrome/Profile 1"_s},
                                        {u"label"_s, u"Chrome - Work"_s},
                                        {u"enabled"_s, false}}));
    ASSERT_EQ(profiles[2][u"problems"].toArray().size(), 1);
    EXPECT_THAT(profiles[2][u"problems"].toArray()[0].toString().toStdString(), HasSubstr("Couldn't read"));
}

TEST_F(DiagnosticsRowsTest, aTerminalGetsTheSameBytesForOtherPrograms)
{
    home.addProfiles();
    home.addBookmarks();
    auto row = BrowserHome::page(u"https://a.example/\u0007"_s, {}, 1, BrowserHome::newest);
    row.title = sample::Text::raw("\x1B[31mred\n\xC2\x9B\xE2\x80\xA8\xFF\xED\xA0\x80 \xE2\x80\xAE\x7F" +
                                  QByteArray(200, 'x'));
    sample::writeHistory(home.chrome(u"Default/History"_s), {row});
    for (const QStringList &arguments : {QStringList{u"--json"_s, u"--search"_s},
                                         {u"--json"_s, u"--top"_s},
                                         {u"--json"_s, u"--summary"_s},
                                         {u"--json"_s, u"--bookmarks"_s}}) {
        console.terminal = false;
        const QByteArray inPipe = outputOf(arguments);
        EXPECT_EQ(objectsOf(arguments).size(), inPipe.count('\n'));
        console.terminal = true;
        EXPECT_EQ(outputOf(arguments), inPipe);
        for (const char c : inPipe)
            EXPECT_TRUE(c == '\n' || static_cast<unsigned char>(c) >= 0x20) << static_cast<int>(c);
        EXPECT_FALSE(inPipe.contains("\xC2\x9B"));
        EXPECT_FALSE(inPipe.contains("\xE2\x80\xAE"));
    }
}

TEST_F(DiagnosticsRowsTest, aProgramThatReadsRowsIsToldThatThereMayBeMore)
{
    addManyPages(1500);
    EXPECT_EQ(objectsOf({u"--json"_s, u"--search"_s, u"many"_s}).size(), 1000);
    EXPECT_THAT(console.errors.toStdString(), HasSubstr("--limit"));
    console.errors.clear();
    EXPECT_EQ(objectsOf({u"--json"_s, u"--search"_s}).size(), 1000);
    EXPECT_THAT(console.errors.toStdString(), HasSubstr("--limit"));
    console.errors.clear();
    EXPECT_EQ(objectsOf({u"--json"_s, u"--limit"_s, u"1000"_s, u"--search"_s}).size(), 1000);
    EXPECT_EQ(objectsOf({u"--json"_s, u"--since"_s, u"2020-01-01"_s, u"--search"_s}).size(), 1500);
    EXPECT_EQ(objectsOf({u"--json"_s, u"--search"_s, u"many.example/7"_s}).size(), 111);
    EXPECT_EQ(console.errors, "");
}

TEST_F(DiagnosticsRowsTest, aLimitCutsTheRowsOfAllProfilesTogether)
{
    home.addPages();
    const QStringList all = rowsOf({u"--search"_s});
    for (qsizetype limit = 1; limit <= 7; ++limit) {
        const QStringList lines = linesOf({u"--limit"_s, QString::number(limit), u"--search"_s, u"page"_s});
        ASSERT_EQ(lines.size(), std::min<qsizetype>(limit, 6) + 1);
        EXPECT_THAT(lines.last().toStdString(),
                    MatchesRegex(std::to_string(std::min<qsizetype>(limit, 6)) + " match(es)?, " +
                                 (limit < 6 ? "capped" : "not capped") + ", in " + seconds + "s"));
        for (qsizetype i = 0; i + 1 < lines.size(); ++i)
            EXPECT_EQ(lines[i].left(16).toStdString(), all[i].left(16).toStdString());
    }
    EXPECT_EQ(rowsOf({u"--top"_s, u"--limit"_s, u"2"_s}).size(), 2);
    EXPECT_THAT(linesOf({u"--top"_s, u"--limit"_s, u"2"_s}).last().toStdString(), StartsWith("6 URLs in "));
}

TEST_F(DiagnosticsRowsTest, aLimitAboveTheUsualOneIsReached)
{
    addManyPages(2500);
    EXPECT_THAT(linesOf({u"--limit"_s, u"2000"_s, u"--search"_s, u"many"_s}).last().toStdString(),
                StartsWith("2000 matches, capped"));
    EXPECT_THAT(linesOf({u"--limit"_s, u"2500"_s, u"--search"_s, u"many"_s}).last().toStdString(),
                StartsWith("2500 matches, not capped"));
    EXPECT_THAT(linesOf({u"--limit"_s, u"9223372036854775807"_s, u"--search"_s}).last().toStdString(),
                StartsWith("2500 matches, not capped"));
    EXPECT_EQ(rowsOf({u"--limit"_s, u"2000"_s, u"--top"_s}).size(), 2000);
}

TEST_F(DiagnosticsRowsTest, rowsThatOnlyMentionASiteTakeNobodysPlace)
{
    home.addProfiles();
    sample::writeHistory(
        home.chrome(u"Default/History"_s), sample::Rows<sample::HistoryRow>::generated(3000, [](qsizetype i) {
            return BrowserHome::page(i % 1000 == 999 ? u"https://s.example/%1"_s.arg(i)
                                                     : u"https://x.example/?u=https://s.example/%1"_s.arg(i),
                                     u"t"_s, 1, BrowserHome::newest - i);
        }));
    EXPECT_THAT(linesOf({u"--limit"_s, u"2"_s, u"--site"_s, u"s.example"_s}).last().toStdString(),
                StartsWith("2 matches, capped"));
    EXPECT_THAT(linesOf({u"--limit"_s, u"3"_s, u"--site"_s, u"s.example"_s}).last().toStdString(),
                StartsWith("3 matches, not capped"));
    EXPECT_THAT(linesOf({u"--since"_s, u"1d"_s, u"--site"_s, u"s.example"_s}).last().toStdString(),
                StartsWith("3 matches, not capped"));
}

TEST_F(DiagnosticsRowsTest, aTimeNarrowsWhatIsSearchedByDaysOfTheUsersZone)
{
    home.addPages();
    // It is 11:43 there; the pages of today were visited from 08:43 on, one yesterday at 11:43.
    EXPECT_EQ(rowsOf({u"--since"_s, u"today"_s, u"--search"_s}).size(), 5);
    EXPECT_EQ(rowsOf({u"--until"_s, u"yesterday"_s, u"--search"_s}).size(), 1);
    EXPECT_EQ(rowsOf({u"--since"_s, u"yesterday"_s, u"--until"_s, u"today"_s, u"--search"_s}).size(), 6);
    EXPECT_EQ(rowsOf({u"--since"_s, u"2h"_s, u"--search"_s}).size(), 4) << "on the second, too";
    EXPECT_EQ(rowsOf({u"--since"_s, u"2026-05-09 09:44"_s, u"--search"_s, u"page"_s}).size(), 3);
    EXPECT_EQ(rowsOf({u"--until"_s, u"2026-05-09 09:43"_s, u"--search"_s, u"page"_s}).size(), 3);
    EXPECT_EQ(rowsOf({u"--until"_s, u"2026-05-09 09:43"_s, u"--site"_s, u"example.org"_s}).size(), 1);
    EXPECT_EQ(rowsOf({u"--since"_s, u"2099-01-01"_s, u"--search"_s}).size(), 0);
}

TEST_F(DiagnosticsRowsTest, theTimeOfEveryBrowserIsUnderstood)
{
    addSafari();
    home.addPages();
    EXPECT_EQ(rowsOf({u"--since"_s, u"0h"_s, u"--search"_s}).size(), 2);
    EXPECT_THAT(text(rowsOf({u"--since"_s, u"0h"_s, u"--search"_s, u"apple"_s})), HasSubstr("Safari"));
    home.clock.advance(std::chrono::milliseconds(1));
    EXPECT_EQ(rowsOf({u"--since"_s, u"0h"_s, u"--search"_s}).size(), 0);
}

TEST_F(DiagnosticsRowsTest, noCapHidesWhatLiesInTheTime)
{
    addManyPages(5000);
    const QStringList lines = linesOf(
        {u"--since"_s, u"2026-05-09 10:43:20"_s, u"--until"_s, u"2026-05-09 11:13:20"_s, u"--search"_s});
    EXPECT_EQ(lines.size(), 1802);
    EXPECT_THAT(lines.last().toStdString(), StartsWith("1801 matches, not capped"));
    EXPECT_EQ(rowsOf({u"--until"_s, u"2026-05-09 10:30"_s, u"--search"_s, u"many.example/4999"_s}).size(), 1);
    EXPECT_EQ(rowsOf({u"--until"_s, u"2026-05-09 10:30"_s, u"--limit"_s, u"1"_s, u"--search"_s}).size(), 1);
}

TEST_F(DiagnosticsRowsTest, timesBetweenWhichNothingLiesAreMisuse)
{
    home.addPages();
    for (const auto &[since, until] : {std::pair(u"today"_s, u"yesterday"_s),
                                       {u"2026-01-02"_s, u"2026-01-01"_s},
                                       {u"12h"_s, u"12h"_s},
                                       {u"1h"_s, u"2026-05-01"_s}}) {
        console.errors.clear();
        EXPECT_EQ(run({u"--since"_s, since, u"--until"_s, until, u"--search"_s}), 2) << since.toStdString();
        EXPECT_THAT(console.errors.toStdString(),
                    StartsWith("roamlet: --since has to be before --until"));
    }
    EXPECT_EQ(console.output, "");
    EXPECT_EQ(run({u"--since"_s, u"today"_s, u"--until"_s, u"today"_s, u"--search"_s}), 0);
}

TEST_F(DiagnosticsRowsTest, bookmarksAreFoundByTitleAddressAndFolder)
{
    home.addProfiles();
    home.addBookmarks();
    EXPECT_EQ(
        text(rowsOf({u"--bookmarks"_s})),
        text({u"2026-05-09 11:43  Chrome - Personal  Bar        A & B          https://a.example/?x=1&y=2"_s,
              u"2026-05-09 11:43  Chrome - Personal  Bar › Sub  Größe, \"東京\"  https://b.example/"_s,
              u"unknown time      Chrome - Personal  Phone      C              https://c.example/"_s}));
    addSafari();
    EXPECT_THAT(rowsOf({u"--bookmarks"_s}).value(0).toStdString(), HasSubstr("Safari"));
    EXPECT_EQ(rowsOf({u"--bookmarks"_s}).size(), 4);
    EXPECT_EQ(fieldOf(u"title"_s, {u"--json"_s, u"--bookmarks"_s, u"GRÖSSE"_s}), QStringList());
    EXPECT_EQ(fieldOf(u"title"_s, {u"--json"_s, u"--bookmarks"_s, u"GRÖßE"_s, u"sub"_s}),
              QStringList{u"Größe, \"東京\""_s});
    EXPECT_EQ(fieldOf(u"title"_s, {u"--json"_s, u"--bookmarks"_s, u"c.example phone"_s}),
              QStringList{u"C"_s});
    EXPECT_EQ(fieldOf(u"title"_s, {u"--json"_s, u"--bookmarks"_s, u"\tBAR "_s}),
              (QStringList{u"A & B"_s, u"Größe, \"東京\""_s}))
        << "spaces and tabs around what is typed are nothing";
    EXPECT_THAT(linesOf({u"--bookmarks"_s, u"phone"_s}).last().toStdString(),
                MatchesRegex("1 match, not capped, in " + seconds + "s"));
    EXPECT_THAT(linesOf({u"--limit"_s, u"3"_s, u"--bookmarks"_s}).last().toStdString(),
                MatchesRegex("3 matches, capped, in " + seconds + "s"));
}

TEST_F(DiagnosticsRowsTest, bookmarksOfAProfileThatIsSwitchedOffAreNotFound)
{
    home.addProfiles();
    home.addBookmarks();
    switchOff({u"chrome/Default"_s});
    EXPECT_EQ(rowsOf({u"--bookmarks"_s}).size(), 0);
}

TEST_F(DiagnosticsRowsTest, bookmarksThatCannotBeReadAreNamedOnTheErrorStream)
{
    home.addProfiles();
    home.addBookmarks();
    sample::writeFile(home.edge(u"Default/Bookmarks"_s), "{");
    sample::writeFile(home.chrome(u"Profile 1/EncryptedBookmarks"_s), "v10secret");
    EXPECT_EQ(rowsOf({u"--bookmarks"_s}).size(), 3);
    EXPECT_THAT(
        console.errors.toStdString(),
        MatchesRegex("roamlet: Chrome keeps the bookmarks of Chrome - Work encrypted\\. Only it can find "
                     "them\\.\nroamlet: Edge - Office: Couldn't read [^\n]*\n"));
}

TEST_F(DiagnosticsRowsTest, aReaderOfRowsThatWentAwayEndsTheJobQuietly)
{
    addManyPages(20'000);
    console.outputError = std::make_error_code(std::errc::broken_pipe);
    EXPECT_EQ(run({u"--json"_s, u"--limit"_s, u"20000"_s, u"--search"_s}), 0);
    EXPECT_EQ(console.writes, 1) << "nothing is written after the first portion";
    EXPECT_EQ(console.errors, "");
    console.outputError = std::make_error_code(std::errc::no_space_on_device);
    EXPECT_EQ(run({u"--json"_s, u"--limit"_s, u"20000"_s, u"--search"_s}), 1);
    EXPECT_THAT(console.errors.toStdString(), HasSubstr("No space left on device"));
}

} // namespace roamlet::testing
