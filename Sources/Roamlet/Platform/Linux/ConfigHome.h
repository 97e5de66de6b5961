// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace roamlet
{

/// The folder of the user's configuration files: $XDG_CONFIG_HOME, or ".config" below the home folder.
QString configHome();

} // namespace roamlet
