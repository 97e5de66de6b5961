// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/Workspace/BrowserInstallation.h"
#include "Platform/Linux/Workspace/BrowserWindows.h"
#include "Platform/Linux/Workspace/PageSteering.h"
#include "Platform/Linux/Workspace/PasteNotice.h"
#include "Platform/Workspace.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QThreadPool>

#include <memory>

namespace roamlet
{

class Clock;
class Folders;

/// The applications of a freedesktop.org desktop, found by their desktop entries. Chrome and Edge are the
/// ones whose data is read, which may be a Flatpak; where Chromium's data stands in for Chrome's, Chromium
/// does so, too. Safari is never here, and its links open in the user's preferred browser.
class LinuxWorkspace final : public Workspace
{
public:
    struct Environment {
        /// Below which "applications" holds desktop entries, best first.
        QStringList dataFolders;
        /// The X11 display; empty where programs may not type into each other's windows.
        QByteArray display;

        /// $XDG_DATA_HOME and $XDG_DATA_DIRS, and $DISPLAY unless the session is a Wayland one.
        static Environment ofThisProcess();
    };

    LinuxWorkspace(const Environment &environment, const Folders &folders, const Clock &clock,
                   PasteNotice notice);
    /// With another way to see and steer windows than the display's own.
    LinuxWorkspace(QStringList dataFolders, const Folders &folders, const Clock &clock,
                   std::unique_ptr<BrowserWindows> windows, PasteNotice notice);
    ~LinuxWorkspace() override;

    bool hasApplication(const QString &bundleID) const override;
    std::optional<QImage> icon(const QString &bundleID, int side, qreal devicePixelRatio) const override;
    void open(const QStringList &urls, const QString &bundleID) override;
    void openSystemURL(const QString &url) override;
    void start(const QString &program, const QStringList &arguments) override;
    bool openInProfile(const QStringList &urls, const QString &bundleID, const QString &profile) override;
    bool showPage(const QString &page, const QString &bundleID,
                  const std::optional<QString> &profile) override;

    /// Returns once everything that was asked for so far has been started.
    void finishStarts() { m_starts.waitForDone(); }

private:
    void start(const QStringList &command);
    void launch(const DesktopEntry &entry, const QStringList &urls);
    void launchPreferred(const QString &scheme, const QStringList &urls);

    QStringList m_dataFolders;
    const Folders &m_folders;
    std::unique_ptr<BrowserWindows> m_windows;
    PageSteering m_steering;
    PasteNotice m_notice;
    /// Where programs are started, one after the other: the more memory this process holds, the longer a
    /// start takes, and there may be one for each of many links.
    QThreadPool m_starts;
};

} // namespace roamlet
