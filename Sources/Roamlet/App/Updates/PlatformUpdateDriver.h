// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace roamlet
{

struct BundleInformation;
struct Platform;
class UpdateDriver;
class UpdateUserInterface;

/// This system's driver for updates, as the release configured it. `userInterface` and the services outlive
/// it. `restart` ends the program and starts the one at the path afterwards, not before: while this one runs,
/// a second one would hand over to it and end.
std::unique_ptr<UpdateDriver> platformUpdateDriver(const BundleInformation &information,
                                                   const Platform &platform,
                                                   UpdateUserInterface &userInterface,
                                                   std::function<void(const QString &path)> restart);

} // namespace roamlet
