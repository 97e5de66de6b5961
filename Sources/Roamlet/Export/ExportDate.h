// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/PointInTime.h"

#include <QtGlobal>

#include <cmath>
#include <limits>

namespace roamlet::BookmarkExport
{

/// A number of seconds without a fraction, as it is written into files. Readers hand on no date that does not
/// fit; one that does not is a mistake of ours, and the process stops.
inline qint64 wholeSeconds(double seconds)
{
    // Written so that what is no number does not pass.
    const bool fits = std::abs(seconds) < static_cast<double>(std::numeric_limits<qint64>::max());
    if (!fits)
        qFatal("a date lies outside of what can be written");
    return static_cast<qint64>(seconds);
}

} // namespace roamlet::BookmarkExport
