// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <expected>

namespace roamlet
{

/// The system's list of programs that start when the user logs in. On the main thread.
class LoginService
{
public:
    enum class Status {
        Enabled,          ///< it starts at login
        RequiresApproval, ///< it is registered, and the user has switched it off in the system's own settings
        NotRegistered,
    };

    LoginService() = default;
    LoginService(const LoginService &) = delete;
    LoginService &operator=(const LoginService &) = delete;
    virtual ~LoginService() = default;

    virtual Status status() const = 0;
    /// Puts this program on the list. What the user has switched off in the system's settings stays off. The
    /// system's words for what went wrong otherwise.
    virtual std::expected<void, QString> registerProgram() = 0;
    /// Takes it off the list.
    virtual std::expected<void, QString> unregisterProgram() = 0;
    /// Whether this copy of the program is one that was installed, as opposed to one that was built or
    /// downloaded.
    virtual bool isInstalledCopy() const = 0;
};

} // namespace roamlet
