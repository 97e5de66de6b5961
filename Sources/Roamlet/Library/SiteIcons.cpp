// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/SiteIcons.h"

#include "Library/FaviconImage.h"

namespace roamlet
{

void SiteIcons::setFavicons(const Favicons &favicons)
{
    m_favicons = favicons;
    m_images.clear();
}

std::optional<QImage> SiteIcons::image(const QString &site)
{
    const auto favicon = m_favicons.constFind(site);
    if (favicon == m_favicons.cend())
        return {};
    auto image = m_images.constFind(site);
    if (image == m_images.cend())
        image = m_images.insert(site, FaviconImage::decode(*favicon, m_files));
    return image->isNull() ? std::nullopt : std::optional(*image);
}

} // namespace roamlet
