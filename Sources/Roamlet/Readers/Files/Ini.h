// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string_view>

/// Files of sections and keys, read as Firefox reads its list of profiles. No library does it so: others take
/// quotes, blanks and comments behind a value for something else than a part of it.
namespace roamlet::Ini
{

/// One line "key=value", as it stands in the file.
struct Entry {
    std::string_view section;
    std::string_view key;
    std::string_view value;
};

/// Hands over every line that has a section, a key and a value, from the first to the last. Sections of one
/// name are one, and of equal keys in it the last one counts. The texts are UTF-8 without any escapes, and
/// parts of `text`.
void forEachEntry(std::string_view text, const std::function<void(const Entry &)> &handle);

} // namespace roamlet::Ini
