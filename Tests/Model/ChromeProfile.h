// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

namespace roamlet::testing
{

/// The first profile of Chrome, as its user named it.
inline Source chrome()
{
    return {.kind = Source::Kind::Chrome,
            .profile = QStringLiteral("Default"),
            .name = QStringLiteral("Work"),
            .safariBookmarks = Source::None{}};
}

} // namespace roamlet::testing
