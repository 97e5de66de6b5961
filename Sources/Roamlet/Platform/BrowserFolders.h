// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace roamlet
{

class Files;
class Folders;

/// Where the browsers' files lie now, as plain values that a reading task can take along.
struct BrowserFolders {
    /// The data of one installation of a browser.
    struct Installation {
        Source::Kind browser = {};
        QString key;
        /// The folders that serve. A browser of Firefox's family may have several, all others have one; where
        /// none has profiles, the one that would serve.
        QStringList roots;
        bool hasProfiles = false;
        /// Whether labels name it, because another installation of the browser has profiles, too.
        bool isNamed = false;

        bool operator==(const Installation &) const = default;
    };

    QString temporary;
    /// Safari's history and bookmarks.
    QString safari;
    /// What Safari's sandbox owns: tabs and profiles.
    QString safariContainer;
    /// Whether this machine has any Safari data. A place that may not be looked into counts as existing.
    bool hasSafari = true;
    /// Of all browsers but Safari, in the order in which they are listed.
    QList<Installation> installations;

    /// Those that there are now: looks at every place of every browser.
    static BrowserFolders of(const Folders &folders, const Files &files);

    /// The folders of Safari's named profiles, each named by the profile's identifier.
    QString safariProfiles() const;
    /// The folders in which the installation of this source keeps its profiles; none for Safari.
    QStringList roots(const Source &source) const;
    /// The folder of a profile of Chromium's or Firefox's family. Where several folders could hold it, the
    /// first one that has its history.
    QString profile(const Source &source, const Files &files) const;
    /// The folder that a browser of Firefox's family with this data folder means by `key`: seen from there,
    /// or absolute. Two ways to write it give the same.
    static QString firefoxProfile(const QString &root, const QString &key);

    bool operator==(const BrowserFolders &) const = default;
};

} // namespace roamlet
