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

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

namespace roamlet
{

class Clock;
class Files;
class Folders;
struct BrowserFolders;

/// The applications of a freedesktop.org desktop, found by their desktop entries. A source opens in the very
/// installation whose data is read, which may be a Flatpak or a snap. Safari is never here, and its links
/// open in the user's preferred browser.
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

    LinuxWorkspace(const Environment &environment, const Folders &folders, const Files &files,
                   const Clock &clock, PasteNotice notice);
    /// What to see and steer windows with; null where nothing is. Asked when a page is shown first.
    using MakeWindows = std::function<std::unique_ptr<BrowserWindows>()>;
    /// With another way to see and steer windows than the display's own.
    LinuxWorkspace(QStringList dataFolders, const Folders &folders, const Files &files, const Clock &clock,
                   MakeWindows makeWindows, PasteNotice notice);
    ~LinuxWorkspace() override;

    QList<Source::Kind> installedBrowsers() const override;
    bool canShowPages(Source::Kind browser) const override;
    std::optional<QImage> icon(Source::Kind browser, int side, qreal devicePixelRatio) const override;
    bool open(const QStringList &urls, Source::Kind browser) override;
    void openSystemURL(const QString &url) override;
    bool openInProfile(const QStringList &urls, const Source &source) override;
    void showPage(const QString &page, const Source &source) override;

    /// What is started from now on may come forward by this token, where windows need one; it may be empty.
    void setActivationToken(const QString &token) { m_activationToken = token; }
    /// Returns once everything that was asked for so far has been started, and false where something could
    /// not be.
    bool finishStarts()
    {
        m_starts.waitForDone();
        return !m_hasFailed;
    }

private:
    std::optional<BrowserInstallation> installationOf(Source::Kind browser) const;
    /// Whether the profile has a folder that the browser would be told and that is not there.
    bool isGone(const Source &source, const BrowserFolders &folders) const;
    /// Null where windows cannot be steered.
    PageSteering *steering();
    void start(const QStringList &command);
    void launch(const DesktopEntry &entry, const QStringList &urls);
    void launchPreferred(const QString &scheme, const QStringList &urls);

    QStringList m_dataFolders;
    const Folders &m_folders;
    const Files &m_files;
    const Clock &m_clock;
    MakeWindows m_makeWindows;
    std::unique_ptr<BrowserWindows> m_windows;
    std::optional<PageSteering> m_steering;
    PasteNotice m_notice;
    QString m_activationToken;
    std::atomic<bool> m_hasFailed = false;
    /// Where programs are started, one after the other: the more memory this process holds, the longer a
    /// start takes, and there may be one for each of many links.
    QThreadPool m_starts;
};

} // namespace roamlet
