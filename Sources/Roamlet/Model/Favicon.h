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

/// Icons by site, as Site::name gives it.
using Favicons = QHash<QString, Favicon>;

} // namespace roamlet
