// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/Workspace/DesktopEntry.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace roamlet
{

class Folders;

/// A browser that is installed here.
struct BrowserInstallation {
    DesktopEntry entry;
    /// The classes that its windows may have.
    QStringList windowClasses;

    /// The installation whose data is read. The same browser may be here as a package and as a Flatpak, each
    /// with profiles of its own; where this one is missing, no other may stand in for it.
    static std::optional<BrowserInstallation> ofData(const QString &bundleID, const Folders &folders,
                                                     const QStringList &dataFolders);
    /// The same, or else any installation of the browser.
    static std::optional<BrowserInstallation> any(const QString &bundleID, const Folders &folders,
                                                  const QStringList &dataFolders);
};

} // namespace roamlet
