// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

namespace roamlet
{

class ActivationPolicy;
class AppDelegate;
class Library;
class LoginService;
class Opener;
class Updater;
class UserDefaults;

/// What the settings work with. All of it outlives them.
struct SettingsServices {
    Library &library;
    UserDefaults &defaults;
    LoginService &loginService;
    ActivationPolicy &activation;
    AppDelegate &delegate;
    Opener &opener;
    /// Without one that is available there are no settings for updates.
    Updater *updater = nullptr;
};

} // namespace roamlet
