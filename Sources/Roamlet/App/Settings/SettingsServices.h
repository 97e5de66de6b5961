// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace roamlet
{

class ActivationPolicy;
class Library;
class LoginService;
class Updater;
class UserDefaults;

/// What the settings work with. All of it outlives them.
struct SettingsServices {
    Library &library;
    UserDefaults &defaults;
    LoginService &loginService;
    ActivationPolicy &activation;
    /// While the main window is open, it decides how present the program is.
    std::function<bool()> isMainWindowOpen;
    /// Without one that is available there are no settings for updates.
    Updater *updater = nullptr;
};

} // namespace roamlet
