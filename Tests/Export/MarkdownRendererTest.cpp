// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Export/Nodes.h"
#include "Export/Renderers.h"

#include <gtest/gtest.h>

#include <string>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

std::string markdown(const QList<BookmarkNode> &tree)
{
    return BookmarkExport::renderMarkdown(tree).toStdString();
}

BookmarkNode link(const QString &name)
{
    return bookmark(name, QString(u"https://" % name % u"/"));
}

} // namespace

TEST(MarkdownRenderer, anEmptyTreeIsTheTitle)
{
    EXPECT_EQ(markdown({}), "# Bookmarks\n");
}

TEST(MarkdownRenderer, aTreeBecomesHeadingsAndLists)
{
    const QList<BookmarkNode> tree{
        folder(u"Bar"_s,
               {link(u"a"_s),
                folder(u"Inner"_s,
                       {link(u"b"_s),
                        folder(u"Third"_s, {link(u"c"_s), folder(u"Fourth"_s, {link(u"d"_s)}), link(u"e"_s)}),
                        link(u"f"_s)}),
                link(u"g"_s), folder(u"Second"_s, {link(u"h"_s)}), link(u"i"_s)}),
        folder(u"Other"_s, {link(u"j"_s)})};
    EXPECT_EQ(markdown(tree), R"(# Bookmarks

## Bar

- [a](<https://a/>)
- [g](<https://g/>)
- [i](<https://i/>)

### Inner

- [b](<https://b/>)
- **Third**
  - [c](<https://c/>)
  - **Fourth**
    - [d](<https://d/>)
  - [e](<https://e/>)
- [f](<https://f/>)

### Second

- [h](<https://h/>)

## Other

- [j](<https://j/>)
)");
}

TEST(MarkdownRenderer, theTopKeepsTheOrderOfTheTree)
{
    EXPECT_EQ(markdown({link(u"a"_s), folder(u"F"_s, {link(u"b"_s)}), link(u"c"_s), link(u"d"_s),
                        folder(u"G"_s, {link(u"e"_s)})}),
              R"(# Bookmarks
- [a](<https://a/>)

## F

- [b](<https://b/>)
- [c](<https://c/>)
- [d](<https://d/>)

## G

- [e](<https://e/>)
)");
}

TEST(MarkdownRenderer, headingsHaveOneEmptyLineAroundThemNeverTwo)
{
    EXPECT_EQ(markdown({folder(u"F"_s, {folder(u"G"_s, {}), folder(u"H"_s, {})}), folder(u"I"_s, {})}),
              "# Bookmarks\n\n## F\n\n### G\n\n### H\n\n## I\n\n");
    EXPECT_EQ(markdown({folder(u"F"_s, {})}), "# Bookmarks\n\n## F\n\n") << "ends in two line feeds";
    EXPECT_EQ(markdown({folder(u"F"_s, {}), link(u"a"_s)}), "# Bookmarks\n\n## F\n\n- [a](<https://a/>)\n");
}

TEST(MarkdownRenderer, emptyNestedFoldersAreOneItem)
{
    EXPECT_EQ(markdown({folder(u"F"_s, {folder(u"G"_s, {folder(u"H"_s, {}), link(u"a"_s)})})}),
              "# Bookmarks\n\n## F\n\n### G\n\n- **H**\n- [a](<https://a/>)\n");
}

TEST(MarkdownRenderer, folderTitlesStayAsTheyAre)
{
    EXPECT_EQ(markdown({folder(u"a [b] *c* > # \\"_s, {folder(u"[x]"_s, {folder(u"**y** [z]"_s, {})})})}),
              "# Bookmarks\n\n## a [b] *c* > # \\\n\n### [x]\n\n- ****y** [z]**\n");
    EXPECT_EQ(markdown({folder({}, {folder({}, {folder({}, {})})})}),
              "# Bookmarks\n\n## \n\n### \n\n- ****\n");
}

TEST(MarkdownRenderer, aTitleWithALineBreakIsNoEmptyLine)
{
    EXPECT_EQ(markdown({bookmark(u"a\n"_s, u"u"_s), folder(u"F\n"_s, {})}),
              "# Bookmarks\n- [a\n](<u>)\n\n## F\n\n\n");
}

TEST(MarkdownRenderer, onlyBracketsOfTitlesAreEscaped)
{
    EXPECT_EQ(markdown({bookmark(u"a [b] c"_s, u"u"_s)}), "# Bookmarks\n- [a \\[b\\] c](<u>)\n");
    EXPECT_EQ(markdown({bookmark(u"]][[ \\[ <i> *b* `c` & ! (d) _e_"_s, u"u"_s)}),
              "# Bookmarks\n- [\\]\\]\\[\\[ \\\\[ <i> *b* `c` & ! (d) _e_](<u>)\n");
}

TEST(MarkdownRenderer, onlyClosingAngleBracketsOfUrlsAreEscaped)
{
    EXPECT_EQ(markdown({bookmark(u"t"_s, u"https://x/a>b>>"_s)}),
              "# Bookmarks\n- [t](<https://x/a%3Eb%3E%3E>)\n");
    EXPECT_EQ(markdown({bookmark(u"t"_s, u"https://x/a b(c)[d]<e%3E\\"_s)}),
              "# Bookmarks\n- [t](<https://x/a b(c)[d]<e%3E\\>)\n");
}

TEST(MarkdownRenderer, replacementsDoNotCareWhatACharacterIsPartOf)
{
    EXPECT_EQ(markdown({bookmark(u"[\u0301 ]\u200d"_s, u">\u0338"_s)}),
              "# Bookmarks\n- [\\[\u0301 \\]\u200d](<%3E\u0338>)\n");
}

TEST(MarkdownRenderer, aBookmarkWithoutUrlIsALinkToNothing)
{
    EXPECT_EQ(markdown({bookmark(u"t"_s, {})}), "# Bookmarks\n- [t](<>)\n");
    EXPECT_EQ(markdown({bookmark({}, {})}), "# Bookmarks\n- [](<>)\n");
}

TEST(MarkdownRenderer, aFolderWithAUrlIsAFolder)
{
    BookmarkNode node = folder(u"F"_s, {link(u"a"_s)});
    node.url = u"https://f/"_s;
    EXPECT_EQ(markdown({node}), "# Bookmarks\n\n## F\n\n- [a](<https://a/>)\n");
}

TEST(MarkdownRenderer, deepTreesAreIndentedAllTheWay)
{
    constexpr qsizetype depth = 1000;
    const std::string text = markdown({nested(link(u"a"_s), depth)});
    EXPECT_TRUE(text.starts_with("# Bookmarks\n\n## f\n\n### f\n\n- **f**\n  - **f**\n    - **f**\n"));
    EXPECT_TRUE(text.ends_with("\n" + std::string(2 * (depth - 2), ' ') + "- [a](<https://a/>)\n"));
}

} // namespace roamlet::testing
