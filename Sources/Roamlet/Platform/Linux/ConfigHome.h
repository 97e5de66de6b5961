// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <unistd.h>

namespace roamlet
{

/// The user's home folder: $HOME, or what the user database says where that is not set. A relative one stays
/// so; where the database does not know the user either, it is empty.
QString homeFolder(uid_t user = getuid());
/// The folder of the user's configuration files: $XDG_CONFIG_HOME, or ".config" below the home folder.
QString configHome();

} // namespace roamlet
