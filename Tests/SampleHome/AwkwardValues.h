// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/SafariFiles.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QVariant>

namespace roamlet::sample
{

// What real homes hold once in a thousand rows, and broken ones more often. Everything here must be read
// without a crash; most of it must be shown.

struct AwkwardPage {
    Text url;
    Text title;
};

/// Pages whose titles and addresses are hard to show, to split or to store.
QList<AwkwardPage> awkwardPages();

/// Rows with them, and with unusual numbers. Moments are Unix seconds throughout.
QList<HistoryRow> awkwardHistory(qint64 newest);

/// The same pages for Safari, where an address is never NULL and stands only once.
QList<SafariItem> awkwardSafariItems(qint64 firstID);
QList<SafariVisit> awkwardSafariVisits(qint64 firstID, qint64 newest);

/// Icons without bytes, with broken bytes, in many widths, for pages without a host and for unknown icons.
QList<FaviconBitmap> awkwardBitmaps(qint64 firstID);
QList<FaviconMapping> awkwardMappings(qint64 firstID);

/// Bookmark nodes with unusual, missing or wrong values.
QJsonArray awkwardNodes();

/// Entries of "Bookmarks.plist" with unusual, missing or wrong values.
QVariantList awkwardSafariEntries();

/// Profiles with unusual entries in the profile list; "Profile 404" has no folder.
QJsonObject awkwardProfiles();

/// Rows of "SafariTabs.db" that look like profiles and are none, or are odd ones.
QList<SafariProfileRow> awkwardSafariProfiles();

} // namespace roamlet::sample
