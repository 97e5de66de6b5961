// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/AppDelegate.h"
#include "App/Menu/MenuBarIcon.h"
#include "App/Menu/MenuBarMenu.h"
#include "App/SessionWindows.h"
#include "App/Settings/SettingsWindow.h"
#include "App/Window/MainWindow.h"
#include "Library/Library.h"
#include "Opening/Opener.h"
#include "Platform/BackgroundTasks.h"
#include "Platform/DesktopSettings.h"
#include "Platform/Platform.h"
#include "Platform/RunningInstance.h"

#include <QList>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

namespace roamlet
{

class LoginService;
class Updater;
class Workspace;

/// The program with its windows: the one library, and the scenes that show it.
class RoamletApp
{
public:
    /// The services of the system and of the user's desktop. They outlive the program.
    struct Services {
        Platform platform;
        /// Started.
        Library &library;
        ActivationPolicy &activation;
        LoginService &loginService;
        Workspace &workspace;
        SavePanel &savePanel;
        Alert &alert;
        Updater &updater;
        /// What the user has set for the desktop. Never asked on the main thread.
        std::function<DesktopSettings()> desktopSettings;
        /// Tells when that may have changed: DesktopSettings::follow().
        std::function<std::shared_ptr<void>(const std::function<void()> &changed)> followDesktopSettings;
        /// Whether this desktop has a tray at present.
        std::function<bool()> hasTray;
    };

    explicit RoamletApp(const Services &services);
    RoamletApp(const RoamletApp &) = delete;
    RoamletApp &operator=(const RoamletApp &) = delete;
    ~RoamletApp();

    /// Opens the main window unless the login has launched the program. Then it opens what the session had
    /// when it ended, and where that is nothing and there is no tray, a minimised main window: a program that
    /// nobody sees could not even be quit.
    void start(bool isLaunchedAtLogin, const SessionWindows &session = {});
    /// The user has started the program once more.
    void reopen();
    /// The session manager has, to bring back the session's windows, where something else had started the
    /// program already. What the user has opened meanwhile stays as it is.
    void reopen(const SessionWindows &session);

    /// What a later start wishes, or the user who has picked an action of the desktop entry.
    void perform(const RunningInstance::Wish &wish);

    Library &library() { return m_services.library; }
    /// The main window, or nothing while there is none.
    MainWindow *mainWindow() { return m_mainWindow.get(); }
    /// Brings it forward, or makes one.
    void openMainWindow();
    /// Made when it is asked for first.
    SettingsWindow &settingsWindow();
    /// The session is about to end, or is saved for later: remembers its windows.
    void storeSession();
    MenuBarMenu &menu() { return m_menu; }
    MenuBarIcon &icon() { return m_icon; }

    /// Runs the program until the user quits, and returns the process's status.
    static int run(int argc, char **argv);

private:
    /// Runs until the user quits or `stop` asks for the end.
    static int runUntilTheEnd(int argc, char **argv, const std::stop_token &stop);

    /// Follows what the user has set for the desktop, as soon as that is known, and whenever it changes.
    void readDesktopSettings();
    void restoreSession(const SessionWindows &session);
    /// Where there is none.
    void makeMainWindow();
    void dropClosedWindow();
    /// Keeps no more memory than the tray needs, once nobody looks.
    void rest();

    Services m_services;
    AppDelegate m_delegate;
    Opener m_opener;
    std::shared_ptr<const Collation> m_collation;
    /// Its connections and timers end with the program.
    QObject m_context;
    /// Each opening makes a new one.
    std::unique_ptr<MainWindow> m_mainWindow;
    /// Those that go with the next turn of the event loop.
    QList<QPointer<MainWindow>> m_closedWindows;
    std::unique_ptr<SettingsWindow> m_settingsWindow;
    MenuBarMenu m_menu;
    MenuBarIcon m_icon;
    /// Nobody but the reading of the desktop's settings, of which there is one at a time, touches it before
    /// the end.
    std::shared_ptr<void> m_desktopFollower;
    bool m_isReadingDesktopSettings = false;
    bool m_haveDesktopSettingsChanged = false;
    BackgroundTasks m_tasks;
};

} // namespace roamlet
