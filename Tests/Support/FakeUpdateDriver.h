// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/UpdateDriver.h"

#include <optional>

namespace roamlet::testing
{

/// A driver that finds what a test tells it to find.
class FakeUpdateDriver final : public UpdateDriver
{
public:
    void open(UpdateDriverDelegate &openedBy, Scheduler openedWith) override
    {
        delegate = &openedBy;
        scheduler = openedWith;
    }
    void checkForUpdates() override { ++checks; }
    bool automaticallyChecksForUpdates() const override { return isAutomatic; }
    void setAutomaticallyChecksForUpdates(bool newValue) override { isAutomatic = newValue; }

    UpdateDriverDelegate *delegate = nullptr;
    /// How it was opened, when it was.
    std::optional<Scheduler> scheduler;
    int checks = 0;
    bool isAutomatic = true;
};

} // namespace roamlet::testing
