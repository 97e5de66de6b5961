// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Export/Nodes.h"
#include "Export/Renderers.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

const std::string csvHead = "Browser,Profile,Folder,Title,URL,Added\r\n";

/// A bookmark of the tree as the flat list has it.
Bookmark flat(BookmarkNode node, const Source &from = source(Source::Kind::Chrome, u"Chrome"_s))
{
    node.source = from;
    return node.flattened().first();
}

std::string csv(const QList<Bookmark> &bookmarks)
{
    const std::string text = BookmarkExport::renderCsv(bookmarks).toStdString();
    EXPECT_TRUE(text.starts_with(csvHead)) << text;
    return text.substr(csvHead.size());
}

/// The field of a bookmark with this title.
std::string field(const QString &title)
{
    const std::string line = csv({flat(bookmark(title, u"u"_s))});
    const std::string before = "Chrome,,,";
    const std::string after = ",u,\r\n";
    EXPECT_TRUE(line.starts_with(before) && line.ends_with(after)) << line;
    return line.substr(before.size(), line.size() - before.size() - after.size());
}

std::string added(double seconds)
{
    const std::string line = csv({flat(bookmark(u"t"_s, u"u"_s, seconds))});
    return line.substr(std::string("Chrome,,,t,u,").size(),
                       line.size() - std::string("Chrome,,,t,u,\r\n").size());
}

void expectFields(const std::vector<std::pair<QString, std::string>> &rows)
{
    for (const auto &[title, expected] : rows)
        EXPECT_EQ(field(title), expected) << qPrintable(title);
}

} // namespace

TEST(CsvRenderer, anEmptyListIsTheHeader)
{
    EXPECT_EQ(BookmarkExport::renderCsv({}).toStdString(), csvHead);
}

TEST(CsvRenderer, everyBookmarkIsOneLine)
{
    const BookmarkNode tree =
        folder(u"Bar"_s, {folder(u"Inner"_s, {bookmark(u"One"_s, u"https://one/"_s, 1'709'647'629)}),
                          bookmark(u"Two"_s, u"https://two/"_s)});
    EXPECT_EQ(csv(tree.flattened()), "Safari,,Bar › Inner,One,https://one/,2024-03-05T14:07:09Z\r\n"
                                     "Safari,,Bar,Two,https://two/,\r\n")
        << "a profile without a name is shown without one";
}

TEST(CsvRenderer, theProfileIsShownUnlessItIsNamedAfterTheBrowser)
{
    const auto profile = [](Source::Kind kind, const QString &name) {
        return csv({flat(bookmark(u"t"_s, u"u"_s), source(kind, name))});
    };
    EXPECT_EQ(profile(Source::Kind::Chrome, u"Work"_s), "Chrome,Work,,t,u,\r\n");
    EXPECT_EQ(profile(Source::Kind::Safari, u"Safari"_s), "Safari,,,t,u,\r\n");
    EXPECT_EQ(profile(Source::Kind::Chrome, u"Chrome"_s), "Chrome,,,t,u,\r\n");
    EXPECT_EQ(profile(Source::Kind::Edge, u"Edge"_s), "Edge,,,t,u,\r\n");
    EXPECT_EQ(profile(Source::Kind::Edge, u"Chrome"_s), "Edge,Chrome,,t,u,\r\n");
    EXPECT_EQ(profile(Source::Kind::Edge, u"edge"_s), "Edge,edge,,t,u,\r\n");
    EXPECT_EQ(profile(Source::Kind::Chrome, u"Work, \"private\""_s),
              "Chrome,\"Work, \"\"private\"\"\",,t,u,\r\n");
}

TEST(CsvRenderer, theBrowserIsNamedWithoutItsInstallation)
{
    const auto beta = [](const QString &name) {
        Source profile = source(Source::Kind::Chrome, name);
        profile.installation = u"beta"_s;
        profile.namesInstallation = true;
        return csv({flat(bookmark(u"t"_s, u"u"_s), profile)});
    };
    EXPECT_EQ(beta(u"Work"_s), "Chrome,Work,,t,u,\r\n");
    EXPECT_EQ(beta(u"Chrome"_s), "Chrome,,,t,u,\r\n");
    EXPECT_EQ(beta(u"Chrome Beta"_s), "Chrome,Chrome Beta,,t,u,\r\n");
}

TEST(CsvRenderer, theFolderIsQuotedWhereItMustBe)
{
    EXPECT_EQ(csv(folder(u"a,b"_s, {bookmark(u"t"_s, u"u"_s)}).flattened()), "Safari,,\"a,b\",t,u,\r\n");
}

TEST(CsvRenderer, theUrlIsQuotedWhereItMustBe)
{
    EXPECT_EQ(csv({flat(bookmark(u"t"_s, u"https://x/?a=1,2"_s))}), "Chrome,,,t,\"https://x/?a=1,2\",\r\n");
    EXPECT_EQ(csv({flat(bookmark(u"t"_s, {}))}), "Chrome,,,t,,\r\n");
}

TEST(CsvRenderer, fieldsWithSpecialCharactersAreQuoted)
{
    expectFields({{u"a,b"_s, R"("a,b")"},
                  {u"say \"hi\""_s, R"("say ""hi""")"},
                  {u"\""_s, R"("""")"},
                  {u"\"\""_s, R"("""""")"},
                  {u","_s, "\",\""},
                  {u"a\nb"_s, "\"a\nb\""},
                  {u"a\rb"_s, "\"a\rb\""},
                  {u"\n"_s, "\"\n\""}});
}

TEST(CsvRenderer, otherFieldsAreNot)
{
    expectFields({{u""_s, ""},
                  {u" a b "_s, " a b "},
                  {u"a;b\tc'd|e"_s, "a;b\tc'd|e"},
                  {u"=1+1"_s, "=1+1"},
                  {u"a\u2028b\u0085c\vd\fe"_s, "a\u2028b\u0085c\vd\fe"},
                  {u"，＂“”"_s, "，＂“”"},
                  {u"日本 😀 \u202eabc\u202c"_s, "日本 😀 \u202eabc\u202c"}});
}

TEST(CsvRenderer, aPairOfCarriageReturnAndLineFeedNeedsNoQuotes)
{
    expectFields({{u"a\r\nb"_s, "a\r\nb"},
                  {u"\r\n"_s, "\r\n"},
                  {u"\r\n\r\n"_s, "\r\n\r\n"},
                  {u"\r\r\n"_s, "\"\r\r\n\""},
                  {u"\r\n\n"_s, "\"\r\n\n\""},
                  {u"\n\r"_s, "\"\n\r\""},
                  {u"a\r\nb,c"_s, "\"a\r\nb,c\""}});
}

TEST(CsvRenderer, aSpecialCharacterThatIsPartOfALargerOneNeedsNoQuotes)
{
    expectFields({{u"a,\u0301b"_s, "a,\u0301b"},
                  {u"a\"\u0301b"_s, "a\"\u0301b"},
                  {u",\u0301\u0302"_s, ",\u0301\u0302"},
                  {u",\u200d"_s, ",\u200d"},
                  {u",\ufe0f"_s, ",\ufe0f"},
                  {u"\u0600,"_s, "\u0600,"}});
}

TEST(CsvRenderer, marksThatTakeRoomJoinThemToo)
{
    expectFields({{u",\u0903"_s, ",\u0903"}, {u"\"\u0e33"_s, "\"\u0e33"}, {u"\u0d4e,"_s, "\u0d4e,"}});
}

TEST(CsvRenderer, aSpecialCharacterBesideALargerOneNeedsThem)
{
    expectFields({{u"e\u0301,x"_s, "\"e\u0301,x\""},
                  {u",e\u0301"_s, "\",e\u0301\""},
                  {u"👩‍👩‍👧,👍🏽"_s, "\"👩‍👩‍👧,👍🏽\""},
                  {u"🇩🇪,🇫🇷"_s, "\"🇩🇪,🇫🇷\""},
                  {u"1\ufe0f\u20e3,"_s, "\"1\ufe0f\u20e3,\""},
                  {u"\n\u0301"_s, "\"\n\u0301\""},
                  {u"\r\u0301"_s, "\"\r\u0301\""},
                  {u",\u200b"_s, "\",\u200b\""}});
}

TEST(CsvRenderer, clustersWithoutSpecialCharactersNeedNone)
{
    expectFields({{u"👩‍👩‍👧 👍🏽 🇩🇪 1\ufe0f\u20e3 e\u0301 한국 नमस्ते"_s,
                   "👩‍👩‍👧 👍🏽 🇩🇪 1\ufe0f\u20e3 e\u0301 한국 नमस्ते"}});
}

TEST(CsvRenderer, inQuotesEveryQuoteIsDoubledAlsoOneThatIsPartOfALargerCharacter)
{
    expectFields({{u"\"\u0301,"_s, "\"\"\"\u0301,\""}, {u"a\"\u200d\""_s, "\"a\"\"\u200d\"\"\""}});
}

TEST(CsvRenderer, addedIsTheSecondThatTheDateLiesIn)
{
    EXPECT_EQ(added(1'709'647'629), "2024-03-05T14:07:09Z");
    EXPECT_EQ(added(1'709'647'629.999'999), "2024-03-05T14:07:09Z");
    EXPECT_EQ(added(0), "1970-01-01T00:00:00Z");
    EXPECT_EQ(added(0.5), "1970-01-01T00:00:00Z");
    EXPECT_EQ(added(951'782'400), "2000-02-29T00:00:00Z");
    EXPECT_EQ(added(951'868'799), "2000-02-29T23:59:59Z");
}

TEST(CsvRenderer, addedIsRoundedDownAlsoBefore1970)
{
    EXPECT_EQ(added(-0.001), "1969-12-31T23:59:59Z");
    EXPECT_EQ(added(-1), "1969-12-31T23:59:59Z");
    EXPECT_EQ(added(-1.9), "1969-12-31T23:59:58Z");
    EXPECT_EQ(added(-11'644'473'600), "1601-01-01T00:00:00Z");
    EXPECT_EQ(added(-62'135'596'800), "0001-01-01T00:00:00Z");
}

TEST(CsvRenderer, addedKnowsYearsBeyond9999)
{
    EXPECT_EQ(added(253'402'300'799.9), "9999-12-31T23:59:59Z");
    EXPECT_EQ(added(253'402'300'800), "10000-01-01T00:00:00Z");
    EXPECT_EQ(added(9'211'727'563'254.77), "293878-01-10T04:00:54Z") << "the last that Chromium can store";
}

TEST(CsvRenderer, addedIsTheSameInEveryTimeZone)
{
    const bool wasSet = qEnvironmentVariableIsSet("TZ");
    const QByteArray before = qgetenv("TZ");
    for (const char *zone : {"America/St_Johns", "Pacific/Kiritimati", "UTC"}) {
        qputenv("TZ", zone);
        EXPECT_EQ(added(1'709'647'629), "2024-03-05T14:07:09Z") << zone;
    }
    if (wasSet)
        qputenv("TZ", before);
    else
        qunsetenv("TZ");
}

TEST(CsvRendererDeathTest, aDateThatDoesNotFitStopsTheProcess)
{
    for (const double seconds :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN(), 9.3e18, -9.3e18})
        EXPECT_DEATH(added(seconds), "") << seconds;
}

} // namespace roamlet::testing
