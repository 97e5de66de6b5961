// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

namespace roamlet::sample
{

/// Where a home keeps its browsers' files.
enum class Layout {
    /// As on a Mac, with Safari.
    Mac,
    /// As on a Linux desktop, without.
    Linux
};

/// A browser that shall be there.
struct BrowserSample {
    /// "KIND" or "KIND@KEY", such as "firefox" or "firefox@flatpak"; "@old" stands for the folders of earlier
    /// versions.
    QString name;
    int profiles = 1;
};

/// What a whole home folder shall hold. The same options give the same home (but for the random salts in
/// SQLite's logs).
struct Options {
    Layout layout = Layout::Mac;
    int chromeProfiles = 2;
    int edgeProfiles = 1;
    /// Beside the default one; the macOS layout only. Below zero, there is no Safari at all.
    int safariProfiles = 1;
    /// Any browsers, beside these three; a number that is given here for Chrome or Edge wins.
    QList<BrowserSample> furtherBrowsers = {};
    qsizetype rowsPerProfile = 1000;
    qsizetype bookmarksPerProfile = 120;
    qsizetype iconsPerProfile = 40;
    /// Adds values of every kind that is hard to read, and profiles of such kinds.
    bool isAwkward = false;
    /// Leaves the databases as running or killed browsers do, with logs that are still to be merged or rolled
    /// back.
    bool leavesLogs = false;
    quint64 seed = 1;
    /// The visits spread over the two years before.
    QDateTime newestVisit{QDate(2026, 5, 9), QTime(6, 13, 20), Qt::UTC};
};

/// How much a home got, unusual values not counted.
struct Contents {
    int profiles = 0;
    qsizetype historyRows = 0;
    qsizetype bookmarks = 0;
    qsizetype icons = 0;
};

/// Writes the home; the folder may exist, other files in it stay. Throws Failure.
Contents build(const QString &homeFolder, const Options &options);

} // namespace roamlet::sample
