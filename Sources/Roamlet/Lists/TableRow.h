// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Bookmark.h"
#include "Model/HistoryItem.h"
#include "Model/PointInTime.h"
#include "Model/SharedSource.h"

#include <QString>

#include <optional>

namespace roamlet
{

/// One row of any of the tables, with all that is shown of it and done with it.
struct TableRow {
    enum class Kind {
        Section, ///< the heading of a section
        Folder,  ///< a folder of a bookmark tree
        Link     ///< a page; the only kind that is selected, opened and copied
    };

    Kind kind = Kind::Link;
    /// What makes it the same row in a newer list. A section's id is its heading.
    QString id;
    QString title;
    QString url;
    /// As Site::name gives it, or empty.
    QString site;
    /// The titles of the folders around a bookmark.
    QString folder;
    /// The folder directly around a bookmark.
    std::optional<QString> folderID;
    /// The last visit, or when a bookmark was added.
    std::optional<PointInTime> date;
    qint64 visits = 0;
    /// Of a section it says nothing.
    SharedSource source;

    bool operator==(const TableRow &) const = default;

    static TableRow of(const HistoryItem &item);
    static TableRow of(const Bookmark &bookmark);
    /// `folderID` is the folder directly around the node.
    static TableRow of(const BookmarkNode &node, const std::optional<QString> &folderID);
    static TableRow section(const QString &title, const std::optional<QString> &site);
};

} // namespace roamlet
