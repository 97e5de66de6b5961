// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/Updates/UpdateSession.h"

namespace roamlet
{

/// The one function of the module that fetches updates: makes a session, which the caller owns. What it needs
/// of the network takes long to load and much memory, and most runs of the program never check for updates.
/// Its name has the version in it: a module that came with another version is none for this program.
using SessionModuleEntry = UpdateSession *(const UpdateSession::Setup *setup, UpdateSession::Origin origin,
                                           const UpdateSession::Handlers *handlers);
inline constexpr const char *sessionModuleEntry = ROAMLET_SESSION_ENTRY_NAME;

} // namespace roamlet
