// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Bookmark.h"

#include <optional>
#include <utility>

namespace roamlet::testing
{

/// A profile of this name.
inline Source source(Source::Kind kind, const QString &name)
{
    return {.kind = kind, .profile = QStringLiteral("1"), .name = name, .safariBookmarks = Source::None{}};
}

/// A bookmark with what a file shows of it.
inline BookmarkNode bookmark(const QString &title, const std::optional<QString> &url,
                             const std::optional<double> &secondsAdded = {})
{
    BookmarkNode node;
    node.title = title;
    node.url = url;
    if (secondsAdded)
        node.dateAdded = pointInTime(*secondsAdded);
    return node;
}

inline BookmarkNode folder(const QString &title, const QList<BookmarkNode> &children)
{
    BookmarkNode node;
    node.title = title;
    node.children = children;
    return node;
}

inline BookmarkNode barFolder(const QString &title, const QList<BookmarkNode> &children)
{
    BookmarkNode node = folder(title, children);
    node.isBar = true;
    return node;
}

/// One bookmark below this many folders, one in the other.
inline BookmarkNode nested(BookmarkNode node, qsizetype depth)
{
    for (qsizetype i = 0; i < depth; ++i) {
        QList<BookmarkNode> children;
        children.append(std::move(node));
        node = folder(QStringLiteral("f"), {});
        node.children = std::move(children);
    }
    return node;
}

} // namespace roamlet::testing
