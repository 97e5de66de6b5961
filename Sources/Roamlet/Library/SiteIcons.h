// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/Favicon.h"

#include <QHash>
#include <QImage>
#include <QString>

#include <optional>

namespace roamlet
{

class Files;

/// The icons of sites as images, each decoded when it is first asked for and not again.
class SiteIcons
{
public:
    explicit SiteIcons(const Files &files) : m_files(files) {}

    /// From now on these are the icons; what was decoded before is forgotten.
    void setFavicons(const Favicons &favicons);
    /// The icon of a site; nothing where there is none or it is broken.
    std::optional<QImage> image(const QString &site);

private:
    const Files &m_files;
    Favicons m_favicons;
    /// Null images are icons that could not be decoded.
    QHash<QString, QImage> m_images;
};

} // namespace roamlet
