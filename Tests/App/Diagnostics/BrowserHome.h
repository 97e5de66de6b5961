// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "SampleHome/ChromiumFiles.h"
#include "Support/TestHome.h"

#include <QByteArray>
#include <QJsonArray>
#include <QList>
#include <QString>

namespace roamlet::testing
{

/// A home folder whose browsers a test fills by hand, in the Linux layout.
class BrowserHome : public TestHome
{
public:
    /// 2026-05-09 06:13:20 UTC, in seconds since 1970. Visits are counted back from here.
    static constexpr qint64 newest = 1'778'307'200;
    /// Five and a half hours ahead of UTC, for the variable TZ; needs no time zone files. Where it is used,
    /// `newest` is 2026-05-09 11:43.
    static constexpr const char *timeZone = "TST-5:30";

    /// The path of a file in the data folder of Chrome or of Edge.
    QString chrome(const QString &file) const { return path(u".config/google-chrome/" % file); }
    QString edge(const QString &file) const { return path(u".config/microsoft-edge/" % file); }

    /// Writes the profile lists: "Personal" (Default) and "Work" (Profile 1) of Chrome, "Office" (Default) of
    /// Edge.
    void addProfiles() const;
    /// The profiles with a few pages in each; all of them hold the word "page", none is in two profiles.
    void addPages() const;
    /// Bookmarks of Chrome's "Personal": three in four folders, one of which is empty.
    void addBookmarks() const;
    /// Icons for two sites in Chrome's "Personal".
    void addIcons() const;
    /// Writes the settings file.
    void setSettings(const QByteArray &linesInGeneral) const;

    /// A visited page; the moment in seconds since 1970.
    static sample::HistoryRow page(const QString &url, const QString &title, qint64 visits, qint64 moment);
};

} // namespace roamlet::testing
