// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QString>

#include <stop_token>

namespace roamlet
{

class Files;
class Folders;

/// Where the browsers' files lie, as plain values that a reading task can take along.
struct BrowserFolders {
    QString temporary;
    /// Safari's history and bookmarks.
    QString safari;
    /// What Safari's sandbox owns: tabs and profiles.
    QString safariContainer;
    QString chrome;
    QString edge;
    /// Whether this machine has any Safari data.
    bool hasSafari = true;

    static BrowserFolders of(const Folders &folders);

    /// The folders of Safari's named profiles, each named by the profile's identifier.
    QString safariProfiles() const;
    /// The user-data folder of a Chromium browser; empty for Safari.
    QString chromium(Source::Kind kind) const;

    bool operator==(const BrowserFolders &) const = default;
};

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
