// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QString>

namespace roamlet
{

struct Platform;

/// A page that shall be opened, with what it takes.
struct PageOpening {
    const Platform &platform;
    QString url;
    Source source;
    /// Lets the browser come forward; may be empty.
    QString activationToken;
};

/// The one function of the module that opens pages. It needs the library of windows, which takes as much
/// memory as all the rest of a desktop's search and is only loaded when somebody has chosen a page.
using PageOpeningEntry = void(const PageOpening &opening);
inline constexpr const char *pageOpeningEntry = "roamletOpenPage";

} // namespace roamlet
