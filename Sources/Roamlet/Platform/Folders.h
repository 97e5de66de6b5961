// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace roamlet
{

/// Where the user's things lie. Browsers go by the names "safari", "chrome" and "edge".
class Folders
{
public:
    Folders() = default;
    Folders(const Folders &) = delete;
    Folders &operator=(const Folders &) = delete;
    virtual ~Folders() = default;

    virtual QString home() const = 0;
    /// The user's temporary folder.
    virtual QString temporary() const = 0;
    /// Every place in which the data of `browser` may lie on this system, best first; never empty.
    virtual QStringList dataRootCandidates(const QString &browser) const = 0;
    /// Where the data of `browser` lies now: the first candidate that exists, else the first one.
    virtual QString dataRoot(const QString &browser) const = 0;
    /// Where Safari keeps what its sandbox owns (tabs and profiles), given its data root.
    virtual QString safariContainer() const = 0;
    /// Whether the data of `browser` exists at all. A place that may not be looked into counts as existing.
    virtual bool hasData(const QString &browser) const = 0;
};

} // namespace roamlet
