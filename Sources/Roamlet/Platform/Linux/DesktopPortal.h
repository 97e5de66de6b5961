// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/DesktopSettings.h"

class QDBusConnection;

/// The service by which desktops tell programs what all of them have in common, whatever toolkit they use.
namespace roamlet::DesktopPortal
{

/// What the portal on this bus says. Nobody is started for it, and where no portal runs, or it knows nothing
/// of such settings, nothing is set. On any thread.
DesktopSettings settings(const QDBusConnection &bus);

} // namespace roamlet::DesktopPortal
