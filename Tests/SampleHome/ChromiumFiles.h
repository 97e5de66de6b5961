// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "SampleHome/SqliteFile.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>

#include <optional>

namespace roamlet::sample
{

/// Chromium's clock, microseconds since 1601, for a moment in Unix seconds.
constexpr qint64 chromiumTime(qint64 unixSeconds)
{
    return (unixSeconds + 11'644'473'600) * 1'000'000;
}

/// One row of the table "urls".
struct HistoryRow {
    /// Without one, the next free number.
    std::optional<qint64> id = {};
    Text url = {};
    Text title = {};
    qint64 visitCount = 1;
    /// Microseconds since 1601.
    qint64 lastVisitTime = 0;
    bool hidden = false;
};

/// One row of the table "favicon_bitmaps".
struct FaviconBitmap {
    qint64 iconID = 0;
    std::optional<QByteArray> image = {};
    qint64 width = 0;
};

/// One row of the table "icon_mapping".
struct FaviconMapping {
    Text pageURL = {};
    std::optional<qint64> iconID = {};
};

/// Writes a profile's "History"; each row gets one visit at its last visit time.
void writeHistory(const QString &path, const Rows<HistoryRow> &rows, Journal journal = Journal::Clean);

/// Writes a profile's "Favicons".
void writeFavicons(const QString &path, const Rows<FaviconBitmap> &bitmaps,
                   const Rows<FaviconMapping> &mappings, Journal journal = Journal::Clean);

/// A bookmark as it stands in the file "Bookmarks"; the date counts microseconds since 1601.
QJsonObject bookmarkNode(const QString &id, const QString &name, const QString &url, qint64 dateAdded);
/// A folder as it stands in that file.
QJsonObject folderNode(const QString &id, const QString &name, const QJsonArray &children);
/// Writes a profile's "Bookmarks" or "AccountBookmarks"; "roots" holds "bookmark_bar", "other" and "synced".
void writeBookmarks(const QString &path, const QJsonObject &roots);

/// Writes "Bookmarks" with one bookmark, in a bar of this many folders inside each other.
void writeDeepBookmarks(const QString &path, qsizetype folders);

/// Opera's further root, "custom_root": its folders by their keys, with what lies in them by the same keys.
QJsonObject operaCustomRoot(const QMap<QString, QJsonArray> &children);

/// Writes a profile's "EncryptedBookmarks2" or another that nobody else can read. It begins with how it is
/// encrypted, "v10" or "v11".
void writeEncryptedBookmarks(const QString &path, const QByteArray &beginning = "v10");

/// What the profile list says about a profile.
QJsonObject profileInfo(const QString &name);
/// The same of one that is gone when its last window is closed.
QJsonObject ephemeralProfileInfo(const QString &name);

/// Writes a browser's "Local State", of which the profile list is the interesting part.
void writeLocalState(const QString &path, const QJsonObject &infoCache);

} // namespace roamlet::sample
