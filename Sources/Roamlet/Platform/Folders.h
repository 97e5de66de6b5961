// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QString>
#include <QStringList>

namespace roamlet
{

/// Where the user's things lie.
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
    /// Every place in which one installation of a browser may keep its data on this system, best first; never
    /// empty for an installation of the table.
    virtual QStringList dataFolders(Source::Kind browser, const QString &installation) const = 0;
    /// Where Safari keeps what its sandbox owns (tabs and profiles).
    virtual QString safariContainer() const = 0;
};

} // namespace roamlet
