// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Source.h"

#include <QString>

#include <optional>

namespace roamlet::testing
{

/// The browser with this raw value, which the table must have.
inline Source::Kind browserKind(QStringView rawValue)
{
    return Source::kindFromRawValue(rawValue).value();
}

/// A profile of a browser, called "Name".
inline Source profileOf(Source::Kind browser, const std::optional<QString> &profile,
                        const QString &installation = {})
{
    return {.kind = browser,
            .profile = profile,
            .name = QStringLiteral("Name"),
            .safariBookmarks = {},
            .installation = installation};
}

} // namespace roamlet::testing
