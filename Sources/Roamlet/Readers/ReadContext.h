// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/BrowserFolders.h"

#include <QString>

#include <stop_token>

namespace roamlet
{

class Files;

/// What every read is given. Values, and services that any thread may use.
struct ReadContext {
    BrowserFolders folders;
    const Files *files = nullptr;
    /// By whose rules profiles are sorted, such as "de_DE".
    QString locale;
    /// A read whose result nobody waits for any more ends early, with an error.
    std::stop_token stop;
};

} // namespace roamlet
