// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace roamlet
{

/// The user's home folder: $HOME, or what the user database says where that is not set. A relative one stays
/// so.
QString homeFolder();
/// The folder of the user's configuration files: $XDG_CONFIG_HOME, or ".config" below the home folder.
QString configHome();

} // namespace roamlet
