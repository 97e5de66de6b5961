// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace roamlet
{

class ActivationPolicy;
class UserDefaults;

/// Decides whether the main window opens at launch, and how present the program is on the desktop. On the
/// main thread.
class AppDelegate
{
public:
    using OpenWindow = std::function<void()>;

    /// `hasMenuBarIcon` says whether this desktop shows the program's icon at present. Without it the program
    /// would have no place but its windows, so they stay in the task switcher.
    AppDelegate(const UserDefaults &defaults, ActivationPolicy &activation,
                std::function<bool()> hasMenuBarIcon);
    AppDelegate(const AppDelegate &) = delete;
    AppDelegate &operator=(const AppDelegate &) = delete;

    /// Before anything is shown.
    void applicationWillFinishLaunching(bool isLaunchedAtLogin) { m_launchedAtLogin = isLaunchedAtLogin; }
    /// Once the program runs.
    void applicationDidFinishLaunching() { applyPolicy(); }
    /// Takes the way to open the main window. The first one is used at once, unless the login has launched
    /// the program: then it starts silently.
    void windowOpenerIsReady(OpenWindow opener);
    /// The user has started the program once more.
    void applicationShouldHandleReopen(bool hasVisibleWindows);

    void mainWindowDidAppear();
    /// `otherWindowIsVisible`: there is another one that should keep the keyboard.
    void mainWindowDidDisappear(bool otherWindowIsVisible);
    /// The user has made another choice of whether the program shows in the Dock.
    void showDockIconDidChange();

    bool launchedAtLogin() const { return m_launchedAtLogin; }
    bool isMainWindowOpen() const { return m_isMainWindowOpen; }

private:
    void applyPolicy();

    const UserDefaults &m_defaults;
    ActivationPolicy &m_activation;
    std::function<bool()> m_hasMenuBarIcon;
    OpenWindow m_openMainWindow;
    bool m_launchedAtLogin = false;
    bool m_isMainWindowOpen = false;
};

} // namespace roamlet
