// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/LoginService.h"

#include <QString>
#include <QStringList>

namespace roamlet
{

/// Start at login through an XDG autostart entry of the user's.
class AutostartLoginService final : public LoginService
{
public:
    /// By this argument a started program knows that the login started it.
    static constexpr char launchMarker[] = "--started-at-login";

    struct Environment {
        /// The folder of the user's configuration files.
        QString configHome;
        /// The path of the program that is to be started.
        QString program;
        /// Below which the desktop finds its applications.
        QStringList dataFolders;

        /// $XDG_CONFIG_HOME, $XDG_DATA_HOME, $XDG_DATA_DIRS and the running program (an AppImage's own file
        /// where it runs from one).
        static Environment ofThisProcess();
    };

    explicit AutostartLoginService(Environment environment);

    Status status() const override;
    std::expected<void, QString> registerProgram() override;
    std::expected<void, QString> unregisterProgram() override;
    bool isInstalledCopy() const override;

    /// The path of the autostart entry.
    QString entryPath() const;

private:
    Environment m_environment;
};

} // namespace roamlet
