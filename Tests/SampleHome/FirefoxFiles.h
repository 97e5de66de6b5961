// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "SampleHome/SqliteFile.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace roamlet::sample
{

/// Firefox's clock, microseconds since 1970, for a moment in Unix seconds.
constexpr qint64 firefoxTime(qint64 unixSeconds)
{
    return unixSeconds * 1'000'000;
}

/// The folders of "moz_bookmarks" that are always there, and the first number that is free for others.
namespace firefox_folder
{
constexpr qint64 root = 1;
constexpr qint64 menu = 2;
constexpr qint64 toolbar = 3;
constexpr qint64 tags = 4;
constexpr qint64 unfiled = 5;
constexpr qint64 mobile = 6;
constexpr qint64 firstFree = 7;
} // namespace firefox_folder

/// One row of the table "moz_places".
struct FirefoxPage {
    /// Without one, the next free number.
    std::optional<qint64> id = {};
    Text url = {};
    Text title = {};
    qint64 visitCount = 1;
    /// Microseconds since 1970; NULL for a page that was never visited.
    std::optional<qint64> lastVisitDate = {};
    bool hidden = false;
};

/// One row of the table "moz_bookmarks".
struct FirefoxBookmarkRow {
    static constexpr qint64 bookmark = 1;
    static constexpr qint64 folder = 2;
    static constexpr qint64 separator = 3;

    /// Without one, the next free number.
    std::optional<qint64> id = {};
    qint64 type = bookmark;
    std::optional<qint64> parent = firefox_folder::toolbar;
    std::optional<qint64> position = 0;
    Text title = {};
    /// A page is looked up by this, and made where there is none.
    Text url = {};
    /// Without a URL: the key of a page, which need not exist.
    std::optional<qint64> page = {};
    /// Microseconds since 1970.
    std::optional<qint64> dateAdded = {};
    /// Without one, twelve characters are made up.
    std::optional<Text> guid = {};
};

/// A bookmark, a folder or a separator with what is in it, as rows that do not know their numbers yet.
struct FirefoxNode {
    qint64 type = FirefoxBookmarkRow::bookmark;
    Text title = {};
    Text url = {};
    /// Microseconds since 1970.
    std::optional<qint64> dateAdded = {};
    std::optional<Text> guid = {};
    QStringList tags = {};
    QList<FirefoxNode> children = {};
};

FirefoxNode firefoxBookmark(const QString &title, const QString &url, qint64 dateAdded,
                            const QStringList &tags = {});
FirefoxNode firefoxFolder(const QString &title, const QList<FirefoxNode> &children);
FirefoxNode firefoxSeparator();

/// What a profile's bookmarks hold below the folders that are always there.
struct FirefoxBookmarks {
    QList<FirefoxNode> toolbar = {};
    QList<FirefoxNode> menu = {};
    QList<FirefoxNode> unfiled = {};
    QList<FirefoxNode> mobile = {};
};

/// The rows of these bookmarks, numbered from the first free number on, with the folders and rows of their
/// tags.
QList<FirefoxBookmarkRow> firefoxBookmarkRows(const FirefoxBookmarks &bookmarks);

/// Writes a profile's "places.sqlite": each page with a date gets one visit then, and a bookmark replaces a
/// folder with its number. An unmerged log holds the later half of the pages and all of the bookmarks; it has
/// no "-shm", because Firefox holds its databases alone.
void writeFirefoxPlaces(const QString &path, const Rows<FirefoxPage> &pages,
                        const Rows<FirefoxBookmarkRow> &bookmarks = {}, Journal journal = Journal::Clean);

/// One row of the table "moz_icons".
struct FirefoxIcon {
    /// The width of a drawing (SVG).
    static constexpr qint64 drawing = 65'535;

    /// Without one, the next free number.
    std::optional<qint64> id = {};
    Text url = {};
    qint64 width = 16;
    /// Whether it is the "/favicon.ico" of a whole host.
    bool root = false;
    std::optional<QByteArray> data = {};
};

/// One row of the table "moz_pages_w_icons", and those of "moz_icons_to_pages" that name it.
struct FirefoxIconPage {
    Text url = {};
    QList<qint64> icons = {};
};

/// Writes a profile's "favicons.sqlite".
void writeFirefoxFavicons(const QString &path, const Rows<FirefoxIcon> &icons,
                          const Rows<FirefoxIconPage> &pages, Journal journal = Journal::Clean);

/// One section "[ProfileN]" of "profiles.ini".
struct FirefoxProfile {
    QString name = {};
    /// Its folder, seen from the folder of "profiles.ini" when it is relative.
    QString path = {};
    bool isRelative = true;
    bool isDefault = false;
    /// The name of its group's database, when it is in a group.
    QString storeID = {};
};

/// One section "[Install…]" of "profiles.ini": an installed Firefox and the profile that it starts with.
struct FirefoxInstall {
    QString hash = {};
    QString defaultPath = {};
};

/// How a "profiles.ini" differs from one that Firefox has written, for all of which it would be the same.
struct IniStyle {
    bool hasByteOrderMark = false;
    bool hasWindowsLineEnds = false;
    /// Lines that look like sections and keys but for their first character.
    bool hasComments = false;
    /// Each key stands there with another value before.
    bool repeatsKeys = false;
    /// Each section of a profile stands there twice, with a part of its keys.
    bool splitsSections = false;
    /// From one profile's number to the next.
    int step = 1;
};

/// Writes a Firefox's "profiles.ini", the newest profile first, as it does.
void writeFirefoxProfiles(const QString &path, const QList<FirefoxProfile> &profiles,
                          const QList<FirefoxInstall> &installs = {}, const IniStyle &style = {});

/// One row of the table "Profiles" of a group's database.
struct FirefoxGroupProfile {
    QString path = {};
    QString name = {};
    QString avatar = QStringLiteral("star");
};

/// Writes the database of a group of profiles, "Profile Groups/STOREID.sqlite".
void writeFirefoxGroup(const QString &path, const Rows<FirefoxGroupProfile> &profiles,
                       Journal journal = Journal::Clean);

} // namespace roamlet::sample
