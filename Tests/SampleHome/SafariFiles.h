// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "SampleHome/SqliteFile.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QVariant>

#include <optional>

namespace roamlet::sample
{

/// Safari's clock, seconds since 2001, for a moment in Unix seconds.
constexpr double safariTime(double unixSeconds)
{
    return unixSeconds - 978'307'200;
}

/// One row of the table "history_items".
struct SafariItem {
    /// Without one, the next free number.
    std::optional<qint64> id = {};
    Text url = {};
    qint64 visitCount = 1;
};

/// One row of the table "history_visits".
struct SafariVisit {
    qint64 itemID = 0;
    /// Seconds since 2001.
    double time = 0;
    Text title = {};
};

/// One row of the table "bookmarks" in "SafariTabs.db"; as it stands here, a profile.
struct SafariProfileRow {
    Text title = {};
    Text serverID = {};
    /// A property list that may hold "CustomFavoritesFolderServerID".
    std::optional<QByteArray> extraAttributes = {};
    /// Without one, the row's place in the list.
    std::optional<qint64> orderIndex = {};
    qint64 subtype = 2;
    bool deleted = false;
};

/// One row of the table "icon_info" with its image file.
struct SafariIcon {
    Text uuid = {};
    double timestamp = 0;
    /// Without bytes there is no image file.
    std::optional<QByteArray> image = {};
};

/// One row of the table "page_url".
struct SafariIconPage {
    Text url = {};
    Text uuid = {};
};

/// Writes a "History.db".
void writeSafariHistory(const QString &path, const Rows<SafariItem> &items, const Rows<SafariVisit> &visits,
                        Journal journal = Journal::Clean);

/// Writes a "SafariTabs.db" with these rows, beside the root and the default profile that are always there.
void writeSafariTabs(const QString &path, const Rows<SafariProfileRow> &rows,
                     Journal journal = Journal::Clean);

/// Fills a "Favicon Cache" folder: "favicons.db", and the image files in "favicons".
void writeSafariFavicons(const QString &folder, const Rows<SafariIcon> &icons,
                         const Rows<SafariIconPage> &pages, Journal journal = Journal::Clean);

/// The name of an icon's image file.
QString safariIconFileName(const QByteArray &uuid);

/// A bookmark as it stands in "Bookmarks.plist".
QVariantMap safariBookmark(const QString &uuid, const QString &title, const QString &url,
                           const QDateTime &dateAdded);
/// A folder as it stands there; the server ID is left out when it is empty.
QVariantMap safariFolder(const QString &uuid, const QString &title, const QVariantList &children,
                         const QString &serverID = {});

} // namespace roamlet::sample
