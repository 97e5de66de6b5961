// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/RowTree.h"

#include "Lists/SiteGroups.h"

#include <gtest/gtest.h>

#include <memory>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

BookmarkNode mark(const QString &title)
{
    BookmarkNode node;
    node.id = u"id-" % title;
    node.title = title;
    node.url = u"https://www." % title % u".example/page";
    return node;
}

BookmarkNode folder(const QString &title, const QList<BookmarkNode> &children)
{
    BookmarkNode node;
    node.id = u"id-" % title;
    node.title = title;
    node.children = children;
    return node;
}

/// "Bar(a Inner(b) Empty()) c".
QString text(const RowTree &tree, RowTree::Number parent = RowTree::root)
{
    QStringList parts;
    const RowTree::Node &node = tree.node(parent);
    for (int i = 0; i < node.childCount; ++i) {
        const RowTree::Number child = node.firstChild + static_cast<RowTree::Number>(i);
        EXPECT_EQ(tree.node(child).parent, parent);
        EXPECT_EQ(tree.node(child).position, i);
        const bool isLeaf = tree.row(child).kind == TableRow::Kind::Link;
        parts.append(tree.row(child).title % (isLeaf ? QString() : QString(u'(' % text(tree, child) % u')')));
    }
    return parts.join(u' ');
}

const QList<BookmarkNode> sample{
    folder(u"Bar"_s, {mark(u"b"_s), folder(u"Inner"_s, {mark(u"d"_s), mark(u"c"_s)}), mark(u"a"_s)}),
    mark(u"z"_s), folder(u"Empty"_s, {})};

RowTree bookmarks(const QList<BookmarkNode> &nodes, const QList<SortComparator> &order = {})
{
    return RowTree::ofBookmarks(nodes, order, Collation(u"en_US"_s)).value_or(RowTree());
}

HistoryItem item(const QString &title, const QString &url)
{
    return HistoryItem::ofRow(1, title, url, pointInTime(5), 2, Source::safari());
}

} // namespace

TEST(RowTreeTest, isEmptyAtFirst)
{
    EXPECT_EQ(text({}), u"");
    EXPECT_EQ(RowTree().linkCount(), 0);
}

TEST(RowTreeTest, rowsHaveTheirOrder)
{
    const QList<HistoryItem> items{item(u"b"_s, u"https://b/"_s), item(u"a"_s, u"https://a/"_s)};
    const RowTree tree = RowTree::ofRows(allRows(items));
    EXPECT_EQ(text(tree), u"b a");
    EXPECT_EQ(tree.linkCount(), 2);
}

TEST(RowTreeTest, groupsBecomeSections)
{
    const QList<HistoryItem> items{item(u"1"_s, u"https://b.example/1"_s),
                                   item(u"2"_s, u"https://a.example/2"_s), item(u"3"_s, u"about:blank"_s),
                                   item(u"4"_s, u"https://b.example/4"_s)};
    const RowTree tree =
        RowTree::ofGroups(siteGroups(allRows(items), &HistoryItem::site, Collation(u"en_US"_s)));
    EXPECT_EQ(text(tree), u"a.example(2) b.example(1 4) Other(3)");
    EXPECT_EQ(tree.row(1).kind, TableRow::Kind::Section);
    EXPECT_EQ(tree.row(1).site, u"a.example");
    EXPECT_EQ(tree.row(3).site, u"");
    EXPECT_EQ(tree.linkCount(), 4);
}

TEST(RowTreeTest, bookmarksLieInTheirFolders)
{
    const RowTree tree = bookmarks(sample);
    EXPECT_EQ(text(tree), u"Bar(b Inner(d c) a) z Empty()");
    EXPECT_EQ(tree.linkCount(), 5);
}

TEST(RowTreeTest, eachNodeKnowsHowManyLinksLieBelowIt)
{
    const RowTree tree = bookmarks(sample);
    EXPECT_EQ(tree.node(RowTree::root).linksBelow, 5);
    EXPECT_EQ(tree.node(1).linksBelow, 4) << "also those of the inner folder";
    EXPECT_EQ(tree.node(2).linksBelow, 0) << "a link";
    EXPECT_EQ(tree.node(3).linksBelow, 0) << "an empty folder";
    const QList<HistoryItem> items{item(u"1"_s, u"https://b.example/1"_s),
                                   item(u"2"_s, u"https://b.example/2"_s)};
    EXPECT_EQ(RowTree::ofGroups(siteGroups(allRows(items), &HistoryItem::site, Collation(u"en_US"_s)))
                  .node(1)
                  .linksBelow,
              2);
}

TEST(RowTreeTest, aBookmarkKnowsItsFolderAndItsSite)
{
    const RowTree tree = bookmarks({folder(u"Bar"_s, {mark(u"b"_s)})});
    EXPECT_EQ(tree.row(1).folderID, std::nullopt);
    EXPECT_EQ(tree.row(2).folderID, u"id-Bar"_s);
    EXPECT_EQ(tree.row(2).site, u"b.example");
    EXPECT_EQ(tree.node(1).depth, 0);
    EXPECT_EQ(tree.node(2).depth, 1);
}

TEST(RowTreeTest, eachFolderIsSortedInItself)
{
    EXPECT_EQ(text(bookmarks(sample, {{SortColumn::Title, SortOrder::Forward}})),
              u"Bar(a b Inner(c d)) Empty() z");
    EXPECT_EQ(text(bookmarks(sample, {{SortColumn::Title, SortOrder::Reverse}})),
              u"z Empty() Bar(Inner(d c) b a)");
}

TEST(RowTreeTest, aStopLeavesNothing)
{
    const auto stop = std::make_unique<std::stop_source>();
    stop->request_stop();
    EXPECT_FALSE(RowTree::ofBookmarks(sample, {}, Collation(u"en_US"_s), stop->get_token()));
}

TEST(RowTreeTest, foldersMayBeAsDeepAsTheyLike)
{
    constexpr int depth = 50'000;
    BookmarkNode node = mark(u"deepest"_s);
    for (int i = 0; i < depth; ++i)
        node = folder(u"f"_s, {std::move(node)});
    const RowTree tree = bookmarks({node});
    EXPECT_EQ(tree.nodes().size(), 1U + depth + 1);
    EXPECT_EQ(tree.nodes().back().depth, depth);
    EXPECT_EQ(tree.linkCount(), 1);
}

TEST(RowTreeTest, equalListsMakeEqualTrees)
{
    EXPECT_EQ(bookmarks(sample), bookmarks(sample));
    EXPECT_FALSE(bookmarks(sample) == bookmarks(sample.first(2)));
}

} // namespace roamlet::testing
