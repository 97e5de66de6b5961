// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <expected>

namespace roamlet
{

struct Source;

/// The one function of the module that opens pages. It needs the library of windows, which takes as much
/// memory as all the rest of a desktop's search. Says what is wrong where it cannot, and nothing where it
/// can.
using OpenPageEntry = void(const QString &url, const Source &source, const QString &activationToken,
                           QString &problem);
inline constexpr const char *openPageEntry = "roamletOpenPage";

/// Opens an address in the browser and the profile of its source, or says why that cannot be done. The token,
/// where there is one, lets the browser come forward. Loads the module first.
std::expected<void, QString> openPage(const QString &url, const Source &source,
                                      const QString &activationToken = {});

} // namespace roamlet
