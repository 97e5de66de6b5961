// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "SampleHome/FirefoxFiles.h"

#include <QList>
#include <QStringList>

namespace roamlet::sample
{

// What is hard to read in Firefox's files. As with the other browsers, nothing here may crash a reader, and
// most of it must be shown.

/// The page without an address among awkwardFirefoxPages().
constexpr qint64 pageWithoutAddress = -8;

/// Pages that are hard to show, pages that are hidden or were never visited, and dates of all kinds. The
/// moment is in Unix seconds.
QList<FirefoxPage> awkwardFirefoxPages(qint64 newest);

/// A folder "Awkward" in the menu with unusual, missing or wrong values; one bookmark is of
/// pageWithoutAddress.
QList<FirefoxBookmarkRow> awkwardFirefoxBookmarks(qint64 firstID);
/// Two folders that lie in each other and one that lies in itself, each with a bookmark. No root leads there.
QList<FirefoxBookmarkRow> circlingFirefoxFolders(qint64 firstID);
/// A root that is its own child, with one bookmark beside itself. In a list it replaces the true one.
QList<FirefoxBookmarkRow> firefoxRootBelowItself(qint64 root, const QString &guid, qint64 firstID);
/// Bookmarks whose parent is missing, NULL, a bookmark or a separator.
QList<FirefoxBookmarkRow> orphanedFirefoxBookmarks(qint64 firstID);
/// Folders in the bar, each in the one before, and a bookmark in the last.
Rows<FirefoxBookmarkRow> deepFirefoxFolders(qint64 firstID, qsizetype levels);

/// Icons without data, with broken data, in many widths, as drawings and for whole hosts.
QList<FirefoxIcon> awkwardFirefoxIcons(qint64 firstID);
/// Pages with those icons, with unknown ones and with none.
QList<FirefoxIconPage> awkwardFirefoxIconPages(qint64 firstID);

/// Names of profiles that could be taken for something else in "profiles.ini".
QStringList awkwardFirefoxProfileNames();

} // namespace roamlet::sample
