// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Favicon.h"
#include "Model/ReadError.h"
#include "Model/Source.h"
#include "Readers/Files/SQLiteSnapshot.h"

#include <QString>

#include <expected>
#include <optional>

namespace roamlet
{

struct ReadContext;

/// The icons of single pages of one source, for whoever shows few pages and has no use for the icons of all.
/// Keeps a private copy of the icon store, as it was when it was opened. One task at a time.
class PageIcons
{
public:
    /// A source without an icon store has no icons, and that is no error.
    static std::expected<PageIcons, ReadError> of(const Source &source, const ReadContext &context);

    /// The icon of the page, or else one of its site; nothing where there is none, or none can be read.
    std::optional<Favicon> icon(const QString &url) const;

private:
    using Lookup = std::optional<Favicon> (*)(const SQLiteSnapshot &store, const QString &folder,
                                              const QString &url);

    PageIcons() = default;

    std::optional<SQLiteSnapshot> m_store;
    /// The one that the store lies in.
    QString m_folder;
    Lookup m_lookup = nullptr;
};

} // namespace roamlet
