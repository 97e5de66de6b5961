// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/JsonLines.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gmock/gmock.h>
#include <limits>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::HasSubstr;

Source work()
{
    return {
        .kind = Source::Kind::Chrome, .profile = u"Profile 1"_s, .name = u"Work"_s, .safariBookmarks = {}};
}

HistoryItem page(const QString &title, PointInTime visited = pointInTime(1'778'307'200.25))
{
    return HistoryItem::ofRow(7, title, u"https://www.example.org/a?b=\"c\""_s, visited, 12, work());
}

Bookmark bookmark(const std::optional<PointInTime> &added)
{
    BookmarkNode leaf;
    leaf.id = u"chrome/Profile 1/7"_s;
    leaf.title = u"Größe"_s;
    leaf.url = u"data:text/plain,x"_s;
    leaf.dateAdded = added;
    leaf.source = work();
    BookmarkNode folder;
    folder.title = u"Bar"_s;
    folder.children = QList<BookmarkNode>{leaf};
    return folder.flattened().first();
}

/// The line as another program reads it, which must find nothing to complain of.
QJsonObject parsed(const QString &line)
{
    EXPECT_EQ(line.count(u'\n'), 1);
    EXPECT_TRUE(line.endsWith(u'\n'));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line.toUtf8(), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    return document.object();
}

} // namespace

TEST(JsonLinesTest, aPageHasTheFieldsThatTheManualTellsOf)
{
    EXPECT_EQ(JsonLines::line(JsonLines::object(page(u"Daily \"page\""_s))).toStdString(),
              "{\"id\":\"chrome/Profile 1/7\",\"label\":\"Chrome - Work\",\"site\":\"example.org\","
              "\"source\":\"chrome/Profile 1\",\"title\":\"Daily \\\"page\\\"\","
              "\"url\":\"https://www.example.org/a?b=\\\"c\\\"\",\"visited\":\"2026-05-09T06:13:20.250Z\","
              "\"visits\":12}\n");
}

TEST(JsonLinesTest, aBookmarkHasTheFieldsThatTheManualTellsOf)
{
    EXPECT_EQ(JsonLines::line(JsonLines::object(bookmark(pointInTime(1'778'307'200)))).toStdString(),
              "{\"added\":\"2026-05-09T06:13:20.000Z\",\"folder\":\"Bar\","
              "\"id\":\"bookmark/chrome/Profile 1/7\",\"label\":\"Chrome - Work\","
              "\"source\":\"chrome/Profile 1\",\"title\":\"Größe\",\"url\":\"data:text/plain,x\"}\n");
    EXPECT_FALSE(JsonLines::object(bookmark({})).contains(u"added"));
}

TEST(JsonLinesTest, aProfileHasTheFieldsThatTheManualTellsOf)
{
    ProfileFacts facts{.source = work(), .bookmarks = 3, .folders = 4, .icons = 2, .pages = 1000};
    EXPECT_EQ(JsonLines::line(JsonLines::object(facts)).toStdString(),
              "{\"bookmarks\":3,\"enabled\":true,\"folders\":4,\"icons\":2,\"label\":\"Chrome - Work\","
              "\"pages\":1000,\"problems\":[],\"source\":\"chrome/Profile 1\"}\n");
    facts.latestVisit = pointInTime(1'778'307'200);
    facts.problems = QStringList{u"a\u2028\u0085b"_s, QString(QChar(0xD800))};
    EXPECT_EQ(parsed(JsonLines::line(JsonLines::object(facts)))[u"problems"],
              (QJsonArray{u"a\u2028\u0085b"_s, u"\uFFFD"_s}));
    EXPECT_TRUE(JsonLines::object(facts).contains(u"visited"));
    facts.isEnabled = false;
    EXPECT_EQ(JsonLines::line(JsonLines::object(facts)).toStdString(),
              "{\"enabled\":false,\"label\":\"Chrome - Work\",\"source\":\"chrome/Profile 1\"}\n");
}

TEST(JsonLinesTest, noTextBreaksALineOrCommandsATerminal)
{
    QString every;
    for (char16_t code = 0; code < 0x3100; ++code)
        every += QChar(code);
    every += u"\uFEFF\uFFFD\uFFFE\uFFFF😀"_s;
    const QString line = JsonLines::line(JsonLines::object(page(every)));
    for (const QChar c : line.chopped(1))
        EXPECT_FALSE(c < u' ' || (c >= u'\u007F' && c <= u'\u009F') || (c >= u'\u2028' && c <= u'\u202E') ||
                     (c >= u'\u2066' && c <= u'\u2069'))
            << static_cast<int>(c.unicode());
    EXPECT_EQ(parsed(line)[u"title"].toString(), every);
    EXPECT_THAT(line.toStdString(), HasSubstr("\\u2028\\u2029"));
    EXPECT_THAT(line.toStdString(), HasSubstr("\\u007f\\u0080"));
    EXPECT_EQ(parsed(JsonLines::line(JsonLines::object(page(u"\\u2028\\\\"_s))))[u"title"].toString(),
              u"\\u2028\\\\"_s);
}

TEST(JsonLinesTest, halvesOfCharactersBecomeMarks)
{
    const QChar high(0xD83D);
    const QChar low(0xDE00);
    const QString title = QString(low) + high + u'a' + high + low + low + high;
    const QString line = JsonLines::line(JsonLines::object(page(title)));
    EXPECT_EQ(parsed(line)[u"title"].toString(), u"\uFFFD\uFFFDa😀\uFFFD\uFFFD"_s);
    EXPECT_FALSE(line.contains(u"\\ud"));
}

TEST(JsonLinesTest, aMillionLettersAreOneLine)
{
    const QString title = u"ä\n"_s.repeated(500'000);
    EXPECT_EQ(parsed(JsonLines::line(JsonLines::object(page(title))))[u"title"].toString(), title);
}

TEST(JsonLinesTest, countsAreExact)
{
    HistoryItem often = page(u"t"_s);
    often.visitCount = std::numeric_limits<qint64>::max();
    EXPECT_THAT(JsonLines::line(JsonLines::object(often)).toStdString(),
                HasSubstr("\"visits\":9223372036854775807"));
}

TEST(JsonLinesTest, timesAreUtcToTheMillisecondOrAbsent)
{
    EXPECT_EQ(JsonLines::time(pointInTime(1'778'307'200)).toString(), u"2026-05-09T06:13:20.000Z"_s);
    EXPECT_EQ(JsonLines::time(pointInTime(1'778'307'200.12299919)).toString(), u"2026-05-09T06:13:20.123Z"_s)
        << "what a stored thousandth becomes as seconds";
    EXPECT_EQ(JsonLines::time(pointInTime(-11'644'473'600)).toString(), u"1601-01-01T00:00:00.000Z"_s);
    EXPECT_TRUE(JsonLines::time(pointInTime(1e12)).isUndefined());
    EXPECT_TRUE(JsonLines::time(pointInTime(-1e12)).isUndefined());
    EXPECT_TRUE(JsonLines::time(pointInTime(std::numeric_limits<double>::quiet_NaN())).isUndefined());
    EXPECT_FALSE(JsonLines::object(page(u"t"_s, pointInTime(1e300))).contains(u"visited"));
}

TEST(JsonLinesTest, aPageWithoutASiteHasNone)
{
    EXPECT_FALSE(JsonLines::object(HistoryItem::ofRow(1, u"t"_s, u"about:blank"_s, pointInTime(1), 1, work()))
                     .contains(u"site"));
}

TEST(JsonLinesTest, idsTellBookmarksFromPages)
{
    EXPECT_EQ(JsonLines::bookmarkID(JsonLines::rowID(bookmark({}))), u"chrome/Profile 1/7"_s);
    EXPECT_FALSE(JsonLines::bookmarkID(JsonLines::rowID(page(u"t"_s))));
    EXPECT_FALSE(JsonLines::bookmarkID(u"bookmarks/1"_s));
}

} // namespace roamlet::testing
