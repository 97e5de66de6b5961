// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Settings/LoginItem.h"

#include "Platform/LoginService.h"
#include "Platform/UserDefaults.h"

namespace roamlet::LoginItem
{

using namespace Qt::StringLiterals;

std::optional<QString> set(bool isOn, LoginService &service)
{
    const auto result = isOn ? service.registerProgram() : service.unregisterProgram();
    return result ? std::nullopt : std::optional(result.error());
}

void setUpOnFirstLaunch(LoginService &service, UserDefaults &defaults)
{
    const QString setUpKey = u"loginItemSetUp"_s;
    if (!service.isInstalledCopy() || defaults.boolean(setUpKey).value_or(false))
        return;
    defaults.setBoolean(setUpKey, true);
    // Nobody asked for it, so nobody is told when it fails.
    static_cast<void>(set(true, service));
}

} // namespace roamlet::LoginItem
