// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Lists/TableRow.h"

#include "Model/Site.h"

namespace roamlet
{

TableRow TableRow::of(const HistoryItem &item)
{
    return {.kind = Kind::Link,
            .id = item.id,
            .title = item.title,
            .url = item.url,
            .site = item.site,
            .folder = {},
            .folderID = {},
            .date = item.lastVisit,
            .visits = item.visitCount,
            .source = item.source};
}

TableRow TableRow::of(const Bookmark &bookmark)
{
    return {.kind = Kind::Link,
            .id = bookmark.id,
            .title = bookmark.title,
            .url = bookmark.url,
            .site = bookmark.site,
            .folder = bookmark.folder,
            .folderID = bookmark.folderID,
            .date = bookmark.dateAdded,
            .visits = 0,
            .source = bookmark.source};
}

TableRow TableRow::of(const BookmarkNode &node, const std::optional<QString> &folderID)
{
    const QString url = node.urlText();
    return {.kind = node.isFolder() ? Kind::Folder : Kind::Link,
            .id = node.id,
            .title = node.title,
            .url = url,
            .site = Site::name(url).value_or(QString()),
            .folder = {},
            .folderID = folderID,
            .date = node.dateAdded,
            .visits = 0,
            .source = node.source};
}

TableRow TableRow::section(const QString &title, const std::optional<QString> &site)
{
    TableRow row;
    row.kind = Kind::Section;
    row.id = title;
    row.title = title;
    row.site = site.value_or(QString());
    return row;
}

} // namespace roamlet
