// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Lists/TableRow.h"
#include "Model/Source.h"
#include "Opening/Opener.h"

#include <QList>
#include <QString>

#include <optional>

namespace roamlet
{

/// Where a browser's bookmark manager is to be opened.
struct EditTarget {
    Source source;
    std::optional<QString> folderID;

    bool operator==(const EditTarget &) const = default;
};

/// What the menu of some rows is about.
struct LinkMenuSubject {
    /// The links among the rows, in their order.
    QList<Opener::Link> items;
    /// The site that all of them are on; absent when they are on several, or on none.
    std::optional<QString> site;
    std::optional<EditTarget> editTarget;
    std::optional<Source> historySource;

    /// Of rows of history: their browser's history can be shown when it is the same one for all.
    static LinkMenuSubject ofHistory(const QList<TableRow> &rows);
    /// Of bookmarks and folders: their browser's bookmarks can be edited when it is the same one for all, at
    /// the folder in which all of them are, or which is the only row.
    static LinkMenuSubject ofBookmarks(const QList<TableRow> &rows);
};

/// One entry of that menu.
struct LinkMenuEntry {
    enum class Action {
        Separator,
        EditBookmarks,
        ShowHistory,
        OpenInOriginalBrowsers, ///< each link where it came from
        OpenInBrowser,          ///< all links in `browser`
        CopyURLs,
        ShowOnlySite
    };

    Action action = Action::Separator;
    /// As it reads, with nothing marked up.
    QString title;
    /// Of OpenInBrowser only.
    Source::Kind browser = Source::Kind::Safari;

    bool operator==(const LinkMenuEntry &) const = default;
};

/// Narrows the list to a site.
LinkMenuEntry onlySiteEntry(const QString &site);
/// The menu for a subject where these browsers are installed, in the order in which it lists them.
QList<LinkMenuEntry> linkMenuEntries(const LinkMenuSubject &subject, const QList<Source::Kind> &installed);

/// The texts of URLs as they are put on the clipboard.
QString clipboardText(const QList<Opener::Link> &links);

} // namespace roamlet
