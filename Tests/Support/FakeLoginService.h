// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/LoginService.h"

#include <optional>

namespace roamlet::testing
{

/// A list of login programs that a test fills and breaks.
class FakeLoginService final : public LoginService
{
public:
    Status status() const override { return currentStatus; }
    std::expected<void, QString> registerProgram() override
    {
        ++registrations;
        return answer(Status::Enabled);
    }
    std::expected<void, QString> unregisterProgram() override { return answer(Status::NotRegistered); }
    bool isInstalledCopy() const override { return isInstalled; }

    Status currentStatus = Status::NotRegistered;
    bool isInstalled = true;
    /// What every change fails with, if anything.
    std::optional<QString> error;
    int registrations = 0;

private:
    std::expected<void, QString> answer(Status status)
    {
        if (error)
            return std::unexpected(*error);
        currentStatus = status;
        return {};
    }
};

} // namespace roamlet::testing
