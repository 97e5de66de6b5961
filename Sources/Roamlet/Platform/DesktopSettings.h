// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

/// What the user has set for the whole desktop. On the main thread.
namespace roamlet::DesktopSettings
{

/// Whether things may move on the screen; yes where the desktop has no such setting. The first answer takes a
/// few milliseconds.
bool allowsMotion();

} // namespace roamlet::DesktopSettings
