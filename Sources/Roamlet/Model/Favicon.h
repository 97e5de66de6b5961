// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <variant>

namespace roamlet
{

/// The location of an image file on disk.
struct FaviconFile {
    QString path;
    bool operator==(const FaviconFile &) const = default;
};

/// Encoded image bytes.
struct FaviconData {
    QByteArray bytes;
    bool operator==(const FaviconData &) const = default;
};

/// Where a site's icon is.
using Favicon = std::variant<FaviconFile, FaviconData>;

inline size_t qHash(const Favicon &favicon, size_t seed = 0)
{
    const auto *file = std::get_if<FaviconFile>(&favicon);
    return file != nullptr ? qHashMulti(seed, favicon.index(), file->path)
                           : qHashMulti(seed, favicon.index(), std::get<FaviconData>(favicon).bytes);
}

/// Icons by site, as Site::name gives it.
using Favicons = QHash<QString, Favicon>;

} // namespace roamlet
