// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <functional>

namespace roamlet::testing
{

/// Far longer than anything here takes on a slow machine; only a failure ever waits for it.
constexpr std::chrono::seconds patience{30};

/// Runs the event loop until `condition` holds, and says whether it did before `deadline` was over. For
/// conditions of other processes, which send no signal when they begin to hold.
bool waitUntil(const std::function<bool()> &condition, std::chrono::milliseconds deadline = patience,
               std::chrono::milliseconds interval = std::chrono::milliseconds(20));

} // namespace roamlet::testing
