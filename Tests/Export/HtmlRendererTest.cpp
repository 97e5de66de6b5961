// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Export/Nodes.h"
#include "Export/Renderers.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

const std::string htmlHead = "<!DOCTYPE NETSCAPE-Bookmark-file-1>\n"
                             "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">\n"
                             "<TITLE>Bookmarks</TITLE>\n"
                             "<H1>Bookmarks</H1>\n"
                             "<DL><p>\n";
const std::string htmlTail = "</DL><p>\n";

std::string html(const QList<BookmarkNode> &tree)
{
    return BookmarkExport::renderHtml(tree).toStdString();
}

/// The one line of a single bookmark, without the indent.
std::string line(const BookmarkNode &node)
{
    const std::string text = html({node});
    EXPECT_TRUE(text.starts_with(htmlHead + "    ") && text.ends_with("\n" + htmlTail)) << text;
    return text.substr(htmlHead.size() + 4, text.size() - htmlHead.size() - 4 - 1 - htmlTail.size());
}

std::string dateOf(double seconds)
{
    return line(bookmark(u"t"_s, u"u"_s, seconds));
}

} // namespace

TEST(HtmlRenderer, anEmptyTreeIsTheHeadAndTheEnd)
{
    EXPECT_EQ(html({}), htmlHead + htmlTail);
}

TEST(HtmlRenderer, aTreeIsWrittenLineByLine)
{
    const QList<BookmarkNode> tree{
        barFolder(u"Bookmarks Bar"_s, {bookmark(u"One"_s, u"https://one.example/"_s, 1'709'647'629),
                                       folder(u"Inner"_s, {bookmark(u"Two"_s, u"https://two.example/"_s),
                                                           folder(u"Empty"_s, {})}),
                                       bookmark(u"Three"_s, u"https://three.example/"_s, 5)}),
        bookmark(u"Top"_s, u"https://top.example/"_s), folder(u"Other"_s, {})};
    EXPECT_EQ(html(tree), htmlHead + R"(    <DT><H3 PERSONAL_TOOLBAR_FOLDER="true">Bookmarks Bar</H3>
    <DL><p>
        <DT><A HREF="https://one.example/" ADD_DATE="1709647629">One</A>
        <DT><H3>Inner</H3>
        <DL><p>
            <DT><A HREF="https://two.example/">Two</A>
            <DT><H3>Empty</H3>
            <DL><p>
            </DL><p>
        </DL><p>
        <DT><A HREF="https://three.example/" ADD_DATE="5">Three</A>
    </DL><p>
    <DT><A HREF="https://top.example/">Top</A>
    <DT><H3>Other</H3>
    <DL><p>
    </DL><p>
)" + htmlTail);
}

TEST(HtmlRenderer, onlyABarAtTheTopIsTheToolbar)
{
    EXPECT_EQ(html({barFolder(u"a"_s, {})}), htmlHead +
                                                 "    <DT><H3 PERSONAL_TOOLBAR_FOLDER=\"true\">a</H3>\n"
                                                 "    <DL><p>\n    </DL><p>\n" +
                                                 htmlTail);
    EXPECT_EQ(html({folder(u"a"_s, {barFolder(u"b"_s, {})})}),
              htmlHead +
                  "    <DT><H3>a</H3>\n    <DL><p>\n        <DT><H3>b</H3>\n        <DL><p>\n"
                  "        </DL><p>\n    </DL><p>\n" +
                  htmlTail);
    BookmarkNode leaf = bookmark(u"t"_s, u"u"_s);
    leaf.isBar = true;
    EXPECT_EQ(line(leaf), "<DT><A HREF=\"u\">t</A>") << "a bookmark is no toolbar";
}

TEST(HtmlRenderer, twoToolbarsAreBothMarked)
{
    const std::string text = html({barFolder(u"a"_s, {}), barFolder(u"b"_s, {})});
    EXPECT_NE(text.find("\"true\">a<"), std::string::npos);
    EXPECT_NE(text.find("\"true\">b<"), std::string::npos);
}

TEST(HtmlRenderer, titlesAndUrlsAreEscaped)
{
    EXPECT_EQ(line(bookmark(u"A & B <c>"_s, u"u"_s)), "<DT><A HREF=\"u\">A &amp; B &lt;c&gt;</A>");
    EXPECT_EQ(line(bookmark(u"&lt;"_s, u"u"_s)), "<DT><A HREF=\"u\">&amp;lt;</A>");
    EXPECT_EQ(line(bookmark(u"say \"hi\" it's"_s, u"u"_s)), "<DT><A HREF=\"u\">say &quot;hi&quot; it's</A>");
    EXPECT_EQ(line(bookmark(u"t"_s, u"https://x/?a=1&b=<\"'>"_s)),
              "<DT><A HREF=\"https://x/?a=1&amp;b=&lt;&quot;'&gt;\">t</A>");
    EXPECT_EQ(line(bookmark(u"&&amp;"_s, u"&\""_s)), "<DT><A HREF=\"&amp;&quot;\">&amp;&amp;amp;</A>");
    EXPECT_EQ(html({folder(u"</H3>&\"\n"_s, {})}),
              htmlHead + "    <DT><H3>&lt;/H3&gt;&amp;&quot; </H3>\n    <DL><p>\n    </DL><p>\n" + htmlTail);
}

TEST(HtmlRenderer, everyLineBreakBecomesABlank)
{
    EXPECT_EQ(line(bookmark(u"a\nb\rc\r\nd\n\ne"_s, u"x\r\ny"_s)), "<DT><A HREF=\"x  y\">a b c  d  e</A>");
    EXPECT_EQ(line(bookmark(u"a\tb\vc\fd\u0085e\u2028f\u2029g"_s, u"u"_s)),
              "<DT><A HREF=\"u\">a\tb\vc\fd\u0085e\u2028f\u2029g</A>")
        << "nothing else is one";
    EXPECT_EQ(line(bookmark(u"a\n\u0301b"_s, u"u"_s)), "<DT><A HREF=\"u\">a \u0301b</A>");
}

TEST(HtmlRenderer, replacementsDoNotCareWhatACharacterIsPartOf)
{
    EXPECT_EQ(line(bookmark(u"<\u0338 &\u0301 \"\u200d"_s, u"u"_s)),
              "<DT><A HREF=\"u\">&lt;\u0338 &amp;\u0301 &quot;\u200d</A>");
}

TEST(HtmlRenderer, otherTextStaysAsItIs)
{
    EXPECT_EQ(
        line(bookmark(u"Ü 日本 😀 \u202etxt\u202c\u200f \u0001 ' ` / \\"_s, u"https://ü.example/日本"_s)),
        "<DT><A HREF=\"https://ü.example/日本\">Ü 日本 😀 \u202etxt\u202c\u200f \u0001 ' ` / \\</A>");
}

TEST(HtmlRenderer, aBookmarkWithoutUrlOrTitleIsAnEmptyLink)
{
    EXPECT_EQ(line(bookmark(u"t"_s, {})), "<DT><A HREF=\"\">t</A>");
    EXPECT_EQ(line(bookmark({}, u"u"_s)), "<DT><A HREF=\"u\"></A>");
    EXPECT_EQ(line(bookmark({}, {})), "<DT><A HREF=\"\"></A>");
}

TEST(HtmlRenderer, datesAreWholeSecondsCutTowardZero)
{
    EXPECT_EQ(dateOf(1.9), "<DT><A HREF=\"u\" ADD_DATE=\"1\">t</A>");
    EXPECT_EQ(dateOf(-1.9), "<DT><A HREF=\"u\" ADD_DATE=\"-1\">t</A>");
    EXPECT_EQ(dateOf(0), "<DT><A HREF=\"u\" ADD_DATE=\"0\">t</A>");
    EXPECT_EQ(dateOf(0.999'999), "<DT><A HREF=\"u\" ADD_DATE=\"0\">t</A>");
    EXPECT_EQ(dateOf(-0.9), "<DT><A HREF=\"u\" ADD_DATE=\"0\">t</A>") << "without a sign";
    EXPECT_EQ(dateOf(1'709'647'629.999), "<DT><A HREF=\"u\" ADD_DATE=\"1709647629\">t</A>");
    EXPECT_EQ(dateOf(-11'644'473'599.5), "<DT><A HREF=\"u\" ADD_DATE=\"-11644473599\">t</A>");
    EXPECT_EQ(dateOf(9'211'727'563'254.77), "<DT><A HREF=\"u\" ADD_DATE=\"9211727563254\">t</A>");
    EXPECT_EQ(dateOf(0x1p62), "<DT><A HREF=\"u\" ADD_DATE=\"4611686018427387904\">t</A>");
}

TEST(HtmlRenderer, foldersHaveNoDate)
{
    BookmarkNode node = folder(u"f"_s, {});
    node.dateAdded = pointInTime(1);
    node.url = u"https://x/"_s;
    EXPECT_EQ(html({node}), htmlHead + "    <DT><H3>f</H3>\n    <DL><p>\n    </DL><p>\n" + htmlTail);
}

TEST(HtmlRendererDeathTest, aDateThatDoesNotFitStopsTheProcess)
{
    for (const double seconds :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN(), 9.3e18, -9.3e18, 9'223'372'036'854'775'808.0})
        EXPECT_DEATH(dateOf(seconds), "") << seconds;
}

TEST(HtmlRenderer, deepTreesAreIndentedAllTheWay)
{
    constexpr qsizetype depth = 1000;
    const std::string text = html({nested(bookmark(u"t"_s, u"u"_s), depth)});
    EXPECT_NE(text.find("\n" + std::string(4 * (depth + 1), ' ') + "<DT><A HREF=\"u\">t</A>\n" +
                        std::string(4 * depth, ' ') + "</DL><p>\n"),
              std::string::npos);
    EXPECT_TRUE(text.ends_with("\n        </DL><p>\n    </DL><p>\n</DL><p>\n"));
}

} // namespace roamlet::testing
