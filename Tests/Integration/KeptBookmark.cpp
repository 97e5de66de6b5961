// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "KeptBookmark.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

namespace
{

void append(const BookmarkNode &node, const QStringList &folders, QList<KeptBookmark> *list)
{
    if (!node.isFolder()) {
        ASSERT_TRUE(node.dateAdded);
        list->append({folders, node.title, node.urlText(), secondsSince1970(*node.dateAdded)});
        return;
    }
    for (const BookmarkNode &child : *node.children)
        append(child, folders + QStringList{node.title}, list);
}

} // namespace

QList<KeptBookmark> KeptBookmark::allOf(const QList<BookmarkNode> &roots)
{
    QList<KeptBookmark> list;
    for (const BookmarkNode &root : roots)
        append(root, {}, &list);
    return list;
}

void expectSameBookmarks(const QList<KeptBookmark> &actual, const QList<KeptBookmark> &expected,
                         double tolerance)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (qsizetype i = 0; i < actual.size(); ++i) {
        SCOPED_TRACE(expected[i].title.toStdString());
        EXPECT_EQ(actual[i].folders, expected[i].folders);
        EXPECT_EQ(actual[i].title, expected[i].title);
        EXPECT_EQ(actual[i].url, expected[i].url);
        EXPECT_NEAR(actual[i].added, expected[i].added, tolerance);
    }
}

} // namespace roamlet::testing
