// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Browser.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace roamlet
{

/// An application, as its desktop entry describes it.
struct DesktopEntry {
    using Packaging = Browser::Installation::Packaging;

    QString path;        ///< the entry's file
    QStringList command; ///< the program and its arguments, without the places for files and URLs
    QString icon;        ///< a name in the icon theme, or a path
    QString windowClass; ///< the class of the application's windows, where the entry names it

    /// Seen by the command: a browser's own package and its Flatpak may share the entry's name.
    Packaging packaging() const;
    /// Whether the program lies below this folder; either may be reached through links.
    bool startsFrom(const QString &folder) const;
    /// Opens URLs with the application, as many at once as it takes. The token, where there is one, lets its
    /// window come forward. False when it could not be started.
    bool launch(const QStringList &urls, const QString &activationToken = {}) const;

    /// The entries of this name ("google-chrome.desktop") that could be started, those of the first folder
    /// first. An entry that hides the application also hides those in the folders behind it.
    static QList<DesktopEntry> named(const QString &name, const QStringList &dataFolders);
    /// Opens URLs with the application that the user prefers for `scheme`. Those of files are of folders.
    /// False when there is none, or it could not be started.
    static bool launchPreferred(const QString &scheme, const QStringList &urls,
                                const QString &activationToken = {});
};

} // namespace roamlet
