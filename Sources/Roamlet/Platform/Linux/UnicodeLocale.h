// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

namespace roamlet
{

/// Takes the user's locale over into the process, with UTF-8 as its encoding in any case: services often run
/// without a locale, and Qt complains when the encoding is another. Before any thread starts.
void useUnicodeLocale();

} // namespace roamlet
