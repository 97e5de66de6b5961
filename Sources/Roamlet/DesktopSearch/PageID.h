// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace roamlet
{

/// What a desktop keeps of a page that it was given.
struct PageID {
    QString sourceID;
    QString url;

    QString text() const;
    /// Nothing for a text that is no id.
    static std::optional<PageID> of(const QString &text);

    bool operator==(const PageID &) const = default;
};

} // namespace roamlet
