// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/FaviconImage.h"

#include "DesktopSearch/PngIcon.h"
#include "Kit/Targets.h"
#include "Platform/Linux/LinuxFiles.h"
#include "SampleHome/SampleText.h"

#include <QBuffer>
#include <QImage>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

void attackFaviconImage(QByteArrayView bytes)
{
    static const LinuxFiles files;
    const QImage image = FaviconImage::decode(FaviconData{bytes.toByteArray()}, files);
    require(image.width() <= FaviconImage::largestSide && image.height() <= FaviconImage::largestSide,
            "no icon is larger than any display needs");
    if (const auto icon = PngIcon::decode(bytes.toByteArray())) {
        require(icon->width > 0 && icon->height > 0 && icon->width <= PngIcon::largestSide &&
                    icon->height <= PngIcon::largestSide,
                "no icon is larger than any list of a desktop needs");
        require(icon->bytes.size() == qsizetype{4} * icon->width * icon->height,
                "each pixel of an icon has four bytes");
    }
}

/// A small picture in a format that the library can write.
QByteArray picture(const char *format)
{
    QImage image(4, 4, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QList<QByteArray> faviconImageSeeds()
{
    QList<QByteArray> seeds{
        sample::siteIcon(1, 16), sample::siteIcon(2, 100),
        QByteArray::fromBase64("R0lGODlhAQABAIAAAAAAAP///yH5BAEAAAAALAAAAAABAAEAAAIBRAA7"),
        QByteArray::fromBase64("UklGRiQAAABXRUJQVlA4IBgAAAAwAQCdASoBAAEAAgA0JaQAA3AA/vuUAAA=")};
    for (const char *format : {"png", "jpeg", "ico", "bmp"}) {
        if (const QByteArray bytes = picture(format); !bytes.isEmpty())
            seeds.append(bytes);
    }
    return seeds;
}

} // namespace

Target faviconImage()
{
    return {.name = "FaviconImage",
            .attack = attackFaviconImage,
            .seeds = faviconImageSeeds,
            .dictionary = "FaviconImage"};
}

} // namespace roamlet::fuzz
