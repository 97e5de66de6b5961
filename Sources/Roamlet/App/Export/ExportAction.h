// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Export/ExportRequest.h"

#include <functional>

namespace roamlet
{

/// What the window in front offers to whoever wants to export: a menu command opens the sheet through it.
struct ExportAction {
    /// The source that the window shows, if its bookmarks can be exported.
    std::optional<QString> sourceID;
    /// Shows the sheet.
    std::function<void(const ExportRequest &)> open;
};

} // namespace roamlet
