// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"
#include "Platform/Linux/Workspace/DesktopEntry.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace roamlet
{

class Files;
struct BrowserFolders;

/// A browser that is installed here.
struct BrowserInstallation {
    DesktopEntry entry;
    /// The classes that its windows may have.
    QStringList windowClasses;

    /// The installation that keeps the source's data. The same browser may be here as a package and as a
    /// Flatpak, each with profiles of its own; where this one is missing, no other may stand in for it. Of
    /// several Firefoxes with the same data, it is the one that used the profile last.
    static std::optional<BrowserInstallation> ofSource(const Source &source, const BrowserFolders &folders,
                                                       const QStringList &dataFolders, const Files &files);
    /// An installation of the browser, best one whose data is read.
    static std::optional<BrowserInstallation> any(Source::Kind browser, const BrowserFolders &folders,
                                                  const QStringList &dataFolders);
};

} // namespace roamlet
