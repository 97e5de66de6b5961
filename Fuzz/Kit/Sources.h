// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

namespace roamlet::fuzz
{

/// The profile "Default" of Chrome,
inline Source chrome()
{
    return {.kind = Source::Kind::Chrome,
            .profile = QStringLiteral("Default"),
            .name = QStringLiteral("Chrome"),
            .safariBookmarks = Source::AllExcept{}};
}

/// and "abcd.default" of Firefox.
inline Source firefox()
{
    return {.kind = *Source::kindFromRawValue(u"firefox"),
            .profile = QStringLiteral("abcd.default"),
            .name = QStringLiteral("Firefox"),
            .safariBookmarks = Source::AllExcept{}};
}

} // namespace roamlet::fuzz
