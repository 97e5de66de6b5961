// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace roamlet
{

/// The path of a package that is to stand at `target` once it is complete and checked.
inline QString unfinishedPackage(const QString &target)
{
    return target % u".part";
}

} // namespace roamlet
