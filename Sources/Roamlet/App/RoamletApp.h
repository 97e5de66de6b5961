// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/AppDelegate.h"
#include "App/Settings/SettingsWindow.h"
#include "App/Window/MainWindow.h"
#include "Library/Library.h"
#include "Opening/Opener.h"
#include "Platform/Platform.h"

#include <memory>

namespace roamlet
{

class LoginService;
class RunningInstance;
class Workspace;

/// The program with its windows: the one library, and the scenes that show it.
class RoamletApp
{
public:
    /// The services of the system and of the user's desktop. They outlive the program.
    struct Services {
        Platform platform;
        ActivationPolicy &activation;
        LoginService &loginService;
        Workspace &workspace;
        SavePanel &savePanel;
        Alert &alert;
    };

    explicit RoamletApp(const Services &services);
    RoamletApp(const RoamletApp &) = delete;
    RoamletApp &operator=(const RoamletApp &) = delete;
    ~RoamletApp();

    /// Reads the browsers, and opens the main window unless the login has launched the program.
    void start(bool isLaunchedAtLogin);
    /// The user has started the program once more.
    void reopen();

    Library &library() { return m_library; }
    MainWindow &mainWindow() { return m_mainWindow; }
    SettingsWindow &settingsWindow() { return m_settingsWindow; }

    /// Runs the program until the user quits, and returns the process's status.
    static int run(int argc, char **argv);

private:
    Services m_services;
    AppDelegate m_delegate;
    Library m_library;
    Opener m_opener;
    MainWindow m_mainWindow;
    SettingsWindow m_settingsWindow;
};

} // namespace roamlet
