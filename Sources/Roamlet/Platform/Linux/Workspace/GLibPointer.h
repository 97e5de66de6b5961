// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <glib.h>
#include <memory>

namespace roamlet
{

/// How every other program is started: found along $PATH, with nothing to read and nowhere to write to, since
/// browsers talk a lot.
constexpr auto spawnFlags = static_cast<GSpawnFlags>(static_cast<unsigned>(G_SPAWN_SEARCH_PATH) |
                                                     static_cast<unsigned>(G_SPAWN_STDOUT_TO_DEV_NULL) |
                                                     static_cast<unsigned>(G_SPAWN_STDERR_TO_DEV_NULL));

struct GLibDeleter {
    void operator()(gchar *text) const { g_free(text); }
    void operator()(gchar **texts) const { g_strfreev(texts); }
    void operator()(GKeyFile *file) const { g_key_file_unref(file); }
};

/// Owns what the library hands over.
template<typename Type>
using GLibPointer = std::unique_ptr<Type, GLibDeleter>;

} // namespace roamlet
