// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

namespace roamlet
{

struct BundleInformation;
struct Platform;
class UpdateDriver;
class UpdateUserInterface;

/// This system's driver for updates, as the release configured it. `userInterface` and the services outlive
/// it.
std::unique_ptr<UpdateDriver> platformUpdateDriver(const BundleInformation &information,
                                                   const Platform &platform,
                                                   UpdateUserInterface &userInterface);

} // namespace roamlet
