// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/Bookmark.h"

#include "Model/ChromeProfile.h"

#include <gtest/gtest.h>

#include <utility>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

constexpr PointInTime added = pointInTime(1'709'647'629);

BookmarkNode leaf(const QString &id, const QString &title, const std::optional<QString> &url = {})
{
    BookmarkNode node;
    node.id = id;
    node.title = title;
    node.url = url;
    node.source = chrome();
    return node;
}

BookmarkNode folder(const QString &id, const QString &title, const QList<BookmarkNode> &children)
{
    BookmarkNode node = leaf(id, title);
    node.children = children;
    return node;
}

/// One bookmark below this many folders, one in the other; built from the inside out.
BookmarkNode nested(qsizetype depth)
{
    BookmarkNode node = leaf(u"leaf"_s, u"Leaf"_s, u"https://example.org/"_s);
    for (qsizetype i = 0; i < depth; ++i) {
        QList<BookmarkNode> children;
        children.append(std::move(node));
        node = folder(QString::number(i), u"f"_s, {});
        node.children = std::move(children);
    }
    return node;
}

QStringList ids(const QList<Bookmark> &bookmarks)
{
    QStringList result;
    for (const Bookmark &bookmark : bookmarks)
        result.append(bookmark.id);
    return result;
}

} // namespace

TEST(BookmarkNode, isAFolderExactlyWhenItHasAListOfChildren)
{
    EXPECT_FALSE(leaf(u"1"_s, u"a"_s, u"https://a/"_s).isFolder());
    EXPECT_FALSE(leaf(u"1"_s, u"a"_s).isFolder()) << "a bookmark may lack a URL";
    EXPECT_TRUE(folder(u"1"_s, u"a"_s, {}).isFolder()) << "a folder may be empty";
    BookmarkNode both = folder(u"1"_s, u"a"_s, {leaf(u"2"_s, u"b"_s, u"https://b/"_s)});
    both.url = u"https://a/"_s;
    EXPECT_TRUE(both.isFolder()) << "its URL does not make it a bookmark";
    EXPECT_EQ(both.bookmarkCount(), 1);
    EXPECT_EQ(ids(both.flattened()), QStringList{u"2"_s});
}

TEST(BookmarkNode, urlTextIsEmptyWithoutUrl)
{
    EXPECT_EQ(leaf(u"1"_s, u"a"_s).urlText(), u""_s);
    EXPECT_EQ(leaf(u"1"_s, u"a"_s, u"https://a/"_s).urlText(), u"https://a/"_s);
}

TEST(BookmarkNode, countsTheBookmarksBelowIt)
{
    EXPECT_EQ(leaf(u"1"_s, u"a"_s).bookmarkCount(), 1);
    EXPECT_EQ(folder(u"1"_s, u"a"_s, {}).bookmarkCount(), 0);
    const BookmarkNode tree = folder(
        u"1"_s, u"root"_s,
        {leaf(u"2"_s, u"a"_s), folder(u"3"_s, u"empty"_s, {}),
         folder(u"4"_s, u"f"_s, {leaf(u"5"_s, u"b"_s), folder(u"6"_s, u"g"_s, {leaf(u"7"_s, u"c"_s)})}),
         leaf(u"8"_s, u"d"_s)});
    EXPECT_EQ(tree.bookmarkCount(), 4);
    EXPECT_EQ(tree.folderCount(), 4);
    EXPECT_EQ(leaf(u"1"_s, u"a"_s).folderCount(), 0);
}

TEST(BookmarkNode, aBookmarkAtTheTopHasNoFolder)
{
    BookmarkNode node = leaf(u"chrome/Default/9"_s, u"Ä Title"_s, u"https://www.Example.org/X"_s);
    node.dateAdded = added;
    const QList<Bookmark> flat = node.flattened({}, {});
    ASSERT_EQ(flat.size(), 1);
    const Bookmark expected{.id = u"chrome/Default/9"_s,
                            .title = u"Ä Title"_s,
                            .url = u"https://www.Example.org/X"_s,
                            .folder = u""_s,
                            .folderID = {},
                            .dateAdded = added,
                            .source = chrome(),
                            .searchKey = u"ä title\nhttps://www.example.org/x\n"_s,
                            .site = u"example.org"_s};
    EXPECT_EQ(flat.first(), expected);
}

TEST(BookmarkNode, aBookmarkWithoutUrlHasAnEmptyOne)
{
    const Bookmark flat = leaf(u"1"_s, u"A"_s).flattened().first();
    EXPECT_EQ(flat.url, u""_s);
    EXPECT_EQ(flat.site, u""_s);
    EXPECT_EQ(flat.searchKey, u"a\n\n"_s);
    BookmarkNode greek;
    greek.title = u"ΣΊΣΥΦΟΣ"_s;
    EXPECT_EQ(greek.flattened({u"ΟΔΟΣ"_s}).value(0).searchKey, u"σίσυφος\n\nοδος"_s);
    EXPECT_FALSE(flat.dateAdded.has_value());
}

TEST(BookmarkNode, anEmptyTitleStaysEmpty)
{
    EXPECT_EQ(leaf(u"1"_s, u""_s, u"https://a/"_s).flattened().first().title, u""_s);
}

TEST(BookmarkNode, flattensInTreeOrderWithThePathOfFolders)
{
    const BookmarkNode tree =
        folder(u"root"_s, u"Bar"_s,
               {leaf(u"1"_s, u"one"_s),
                folder(u"A"_s, u"Über"_s,
                       {leaf(u"2"_s, u"two"_s), folder(u"B"_s, u""_s, {leaf(u"3"_s, u"three"_s)})}),
                folder(u"C"_s, u"empty"_s, {}), folder(u"D"_s, u"D › E"_s, {leaf(u"4"_s, u"four"_s)}),
                leaf(u"5"_s, u"five"_s)});
    const QList<Bookmark> flat = tree.flattened();
    QStringList lines;
    for (const Bookmark &bookmark : flat)
        lines.append(bookmark.id % u"|" % bookmark.folder % u"|" % bookmark.folderID.value_or(u"none"_s));
    EXPECT_EQ(lines.join(u'\n').toStdString(), u"1|Bar|root\n"
                                               "2|Bar › Über|A\n"
                                               "3|Bar › Über › |B\n"
                                               "4|Bar › D › E|D\n"
                                               "5|Bar|root"_s.toStdString());
    EXPECT_EQ(flat.at(2).searchKey, u"three\n\nbar › über › "_s);
}

TEST(BookmarkNode, flattensBelowTheGivenPath)
{
    const QStringList path{u"Outer"_s, u"Inner"_s};
    const Bookmark alone = leaf(u"1"_s, u"a"_s).flattened(path, u"77"_s).first();
    EXPECT_EQ(alone.folder, u"Outer › Inner"_s);
    EXPECT_EQ(alone.folderID, std::optional(u"77"_s));

    const Bookmark inFolder = folder(u"9"_s, u"F"_s, {leaf(u"1"_s, u"a"_s)}).flattened(path, u"77"_s).first();
    EXPECT_EQ(inFolder.folder, u"Outer › Inner › F"_s);
    EXPECT_EQ(inFolder.folderID, std::optional(u"9"_s)) << "the folder that encloses it directly";
}

TEST(BookmarkNode, foldersWithoutTitlesKeepTheirPlaceInThePath)
{
    const BookmarkNode tree = folder(u"1"_s, u""_s, {folder(u"2"_s, u""_s, {leaf(u"3"_s, u"a"_s)})});
    EXPECT_EQ(tree.flattened().first().folder, u" › "_s);
    const BookmarkNode single = folder(u"1"_s, u""_s, {folder(u"2"_s, u"x"_s, {leaf(u"3"_s, u"a"_s)})});
    EXPECT_EQ(single.flattened().first().folder, u" › x"_s);
    EXPECT_EQ(single.flattened({u""_s}).first().folder, u" ›  › x"_s);
}

TEST(BookmarkNode, anEmptyFolderGivesNoBookmarks)
{
    EXPECT_TRUE(folder(u"1"_s, u"a"_s, {}).flattened().isEmpty());
    EXPECT_TRUE(folder(u"1"_s, u"a"_s, {folder(u"2"_s, u"b"_s, {})}).flattened().isEmpty());
}

TEST(BookmarkNode, sourcesAreTheBookmarksOwn)
{
    BookmarkNode child = leaf(u"1"_s, u"a"_s);
    child.source = Source::safari();
    EXPECT_EQ(folder(u"2"_s, u"b"_s, {child}).flattened().first().source, Source::safari());
}

TEST(BookmarkNode, fiveThousandLevelsAreLikeFew)
{
    constexpr qsizetype depth = 5000;
    const BookmarkNode tree = nested(depth);
    EXPECT_EQ(tree.bookmarkCount(), 1);
    EXPECT_EQ(tree.folderCount(), depth);
    const QList<Bookmark> flat = tree.flattened();
    ASSERT_EQ(flat.size(), 1);
    EXPECT_EQ(flat.first().folder.count(u'f'), depth);
    EXPECT_EQ(flat.first().folder.size(), depth + 3 * (depth - 1));
    EXPECT_EQ(flat.first().folderID, std::optional(u"0"_s)) << "the innermost folder was made first";

    const BookmarkNode same = nested(depth);
    EXPECT_EQ(same, tree);
    EXPECT_EQ(qHash(same), qHash(tree));
    EXPECT_NE(nested(depth - 1), tree);
}

TEST(BookmarkNode, aMillionLevelsCanBeHeldCopiedCountedAndLetGo)
{
    constexpr qsizetype depth = 1'000'000;
    BookmarkNode tree = nested(depth);
    BookmarkNode copy = tree;
    EXPECT_EQ(tree.bookmarkCount(), 1);
    EXPECT_EQ(tree.folderCount(), depth);
    ASSERT_EQ(tree.flattened().size(), 1);

    tree = leaf(u"1"_s, u"a"_s);
    EXPECT_EQ(copy.folderCount(), depth) << "the copy does not need the original";
    BookmarkNode moved = std::move(copy);
    EXPECT_EQ(moved.folderCount(), depth);
    moved = BookmarkNode();
    EXPECT_EQ(moved.bookmarkCount(), 1);
}

TEST(BookmarkNode, aBookmarkInEachOfManyFoldersNeedsNoMoreThanItsShare)
{
    constexpr qsizetype depth = 200'000;
    BookmarkNode node = nested(0);
    for (qsizetype i = 0; i < depth; ++i) {
        QList<BookmarkNode> children{leaf(QString::number(i), u"Leaf"_s, u"https://example.org/"_s)};
        children.append(std::move(node));
        node = folder(u"folder"_s, u"folder %1"_s.arg(i), {});
        node.children = std::move(children);
    }
    const QList<Bookmark> bookmarks = node.flattened();
    ASSERT_EQ(bookmarks.size(), depth + 1);
    qint64 characters = 0;
    for (const Bookmark &bookmark : bookmarks)
        characters += bookmark.folder.size() + bookmark.searchKey.size();
    EXPECT_LT(characters, 200'000'000) << "in full it would be some 560 billion";
    EXPECT_EQ(bookmarks.at(1).folder, u"folder 199999 › folder 199998");
    EXPECT_TRUE(bookmarks.last().folder.startsWith(u"folder 199999 › folder 199998 › "));
    EXPECT_TRUE(bookmarks.last().folder.endsWith(u"folder 1 › folder 0"));

    // The trees of a source share what there is.
    const QList<Bookmark> ofMany = BookmarkNode::flattened(QList<BookmarkNode>(3, node));
    ASSERT_EQ(ofMany.size(), 3 * (depth + 1));
    EXPECT_EQ(ofMany.first().folder, bookmarks.first().folder);
    characters = 0;
    for (const Bookmark &bookmark : ofMany)
        characters += bookmark.folder.size() + bookmark.searchKey.size();
    EXPECT_LT(characters, 450'000'000);
}

TEST(BookmarkNode, aShortenedPathHoldsWholeCharacters)
{
    BookmarkNode node = leaf(u"leaf"_s, u"Leaf"_s, u"https://example.org/"_s);
    node = folder(u"inner"_s, u"😀"_s.repeated(20'000'000), {node});
    for (const QString &title : {u""_s, u"x"_s}) {
        const QString path = folder(u"outer"_s, title, {node}).flattened().value(0).folder;
        EXPECT_LT(path.size(), 300);
        EXPECT_TRUE(path.isValidUtf16());
    }
}

TEST(BookmarkNode, lettingGoOfATreeLeavesThePartsThatSomebodyElseHolds)
{
    BookmarkNode tree = nested(100'000);
    const BookmarkNode *node = &tree;
    for (int i = 0; i < 50'000; ++i)
        node = &node->children->first();
    const BookmarkNode lower = *node;
    const QList<BookmarkNode> list = *tree.children;
    tree = BookmarkNode();
    EXPECT_EQ(lower.folderCount(), 50'000);
    EXPECT_EQ(lower.bookmarkCount(), 1);
    EXPECT_EQ(list.first().folderCount(), 99'999);
}

TEST(BookmarkNode, aChangedCopyLeavesTheOriginal)
{
    const BookmarkNode original = folder(u"1"_s, u"a"_s, {leaf(u"2"_s, u"b"_s), leaf(u"3"_s, u"c"_s)});
    BookmarkNode copy = original;
    copy.children->first().title = u"changed"_s;
    copy.children->removeLast();
    EXPECT_EQ(original.children->size(), 2);
    EXPECT_EQ(original.children->first().title, u"b"_s);
    EXPECT_EQ(copy.bookmarkCount(), 1);
}

TEST(BookmarkNode, wideAndDeepTreesAreFlattenedWhole)
{
    BookmarkNode tree = leaf(u"last"_s, u"last"_s);
    QStringList expected{u"last"_s};
    for (int i = 0; i < 300; ++i) {
        const QString before = u"before %1"_s.arg(i);
        const QString after = u"after %1"_s.arg(i);
        tree = folder(QString::number(i), u"f"_s, {leaf(before, before), tree, leaf(after, after)});
        expected.prepend(before);
        expected.append(after);
    }
    EXPECT_EQ(ids(tree.flattened()), expected);
    EXPECT_EQ(tree.bookmarkCount(), 601);
}

TEST(BookmarkNode, equalityAndHashCoverEveryField)
{
    const auto made = [] {
        BookmarkNode node = folder(u"1"_s, u"a"_s, {leaf(u"2"_s, u"b"_s)});
        node.url = u"https://a/"_s;
        node.dateAdded = added;
        return node;
    };
    const BookmarkNode original = made();
    EXPECT_EQ(made(), original);
    EXPECT_EQ(qHash(made()), qHash(original));

    QList<BookmarkNode> others(12, original);
    others[0].id = u"x"_s;
    others[1].title = u"x"_s;
    others[2].url = u"x"_s;
    others[3].url.reset();
    others[4].dateAdded = pointInTime(1);
    others[5].dateAdded.reset();
    others[6].source = Source::safari();
    others[7].children.reset();
    others[8].children = QList<BookmarkNode>();
    others[9].children->first().title = u"x"_s;
    others[10].children->append(leaf(u"3"_s, u"c"_s));
    others[11].isBar = true;
    for (qsizetype i = 0; i < others.size(); ++i) {
        EXPECT_NE(others[i], original) << i;
        EXPECT_NE(qHash(others[i]), qHash(original)) << i;
    }
    EXPECT_NE(leaf(u"1"_s, u"a"_s), folder(u"1"_s, u"a"_s, {})) << "an empty folder is no bookmark";
    EXPECT_NE(leaf(u"1"_s, u"a"_s), leaf(u"1"_s, u"a"_s, u""_s)) << "an empty URL is not an absent one";
}

TEST(Bookmark, equalityAndHashCoverEveryField)
{
    BookmarkNode node = leaf(u"2"_s, u"b"_s, u"https://a/"_s);
    node.dateAdded = added;
    const Bookmark original = folder(u"1"_s, u"a"_s, {node}).flattened().first();
    const Bookmark copy = folder(u"1"_s, u"a"_s, {node}).flattened().first();
    EXPECT_EQ(copy, original);
    EXPECT_EQ(qHash(copy), qHash(original));

    QList<Bookmark> others(11, original);
    others[0].id = u"x"_s;
    others[1].title = u"x"_s;
    others[2].url = u"x"_s;
    others[3].folder = u"x"_s;
    others[4].folderID = u"x"_s;
    others[5].folderID.reset();
    others[6].dateAdded = pointInTime(1);
    others[7].dateAdded.reset();
    others[8].source = Source::safari();
    others[9].searchKey = u"x"_s;
    others[10].site = u"x"_s;
    for (qsizetype i = 0; i < others.size(); ++i) {
        EXPECT_NE(others[i], original) << i;
        EXPECT_NE(qHash(others[i]), qHash(original)) << i;
    }
}

} // namespace roamlet::testing
