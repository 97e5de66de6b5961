// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

/// SQLite's way to the file system, kept within private copies.
///
/// A rollback journal can name a second journal that several databases share, by an absolute path of its
/// writer's choice. When SQLite rolls the copy back and finds that nobody needs that file any more, it
/// deletes it: the browser's own, or whatever a damaged journal names.
namespace roamlet::ConfinedFiles
{

/// What the names of our private folders begin with.
inline constexpr std::string_view folderPrefix = "Roamlet-";

/// The name under which to open a private copy. It exists from the first call on. Any thread.
const char *name();

} // namespace roamlet::ConfinedFiles
