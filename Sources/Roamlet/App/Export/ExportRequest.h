// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace roamlet
{

/// A wish to export bookmarks.
struct ExportRequest {
    /// The source to begin with; absent for all.
    std::optional<QString> sourceID;

    bool operator==(const ExportRequest &) const = default;
};

} // namespace roamlet
