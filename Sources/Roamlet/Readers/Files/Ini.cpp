// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/Ini.h"

#include <algorithm>

namespace roamlet::Ini
{

namespace
{

constexpr std::string_view blanks = " \t";

/// The name in a line that begins with a bracket, which need not be closed; empty when there is none, or when
/// more follows.
std::string_view sectionName(std::string_view line)
{
    const std::string_view inside = line.substr(1);
    const std::string_view name = inside.substr(0, inside.find(']'));
    const std::string_view rest = inside.substr(std::min(name.size() + 1, inside.size()));
    const bool isName = !name.contains('[') && rest.find_first_not_of(blanks) == std::string_view::npos;
    return isName ? name : std::string_view();
}

} // namespace

void forEachEntry(std::string_view text, const std::function<void(const Entry &)> &handle)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    // To Firefox, the file ends there.
    text = text.substr(0, text.find('\0'));

    std::string_view section;
    while (!text.empty()) {
        std::string_view line = text.substr(0, text.find_first_of("\r\n"));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        // Only here: behind a blank, these are characters like any other.
        if (line.starts_with(';') || line.starts_with('#'))
            continue;
        line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
        if (line.starts_with('[')) {
            section = sectionName(line);
            continue;
        }
        const auto sign = line.find('=');
        if (!section.empty() && sign != 0 && sign != std::string_view::npos)
            handle({.section = section, .key = line.substr(0, sign), .value = line.substr(sign + 1)});
    }
}

} // namespace roamlet::Ini
