// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/ReadError.h"
#include "Platform/BrowserFolders.h"

#include <QString>

#include <functional>
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
    /// Told of a list of profiles that is there and could not be read, where somebody listens: what it names
    /// is nowhere to be seen, not even as a problem.
    std::function<void(const ReadError &)> onUnreadableList;

    void reportList(const ReadError &error) const
    {
        if (onUnreadableList)
            onUnreadableList(error);
    }
};

} // namespace roamlet
