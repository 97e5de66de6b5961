// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace roamlet
{

class LoginService;
class UserDefaults;

/// Whether the program starts at login: the user's switch, and the one time it is set without being asked.
namespace LoginItem
{

/// Switches it on or off; the error's words when that fails.
std::optional<QString> set(bool isOn, LoginService &service);
/// Switches it on once, on the first launch of an installed copy; afterwards only the user's switch changes
/// it.
void setUpOnFirstLaunch(LoginService &service, UserDefaults &defaults);

} // namespace LoginItem

} // namespace roamlet
