// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/FaviconImage.h"

#include "Platform/Files.h"

#include <QBuffer>
#include <QByteArrayList>
#include <QImageReader>

namespace roamlet::FaviconImage
{

namespace
{

/// What an icon may claim to be before anything is decoded: the sizes in files lie.
constexpr int largestHonestSide = 2048;
constexpr qsizetype largestHonestFile = qsizetype{8} << 20U;
/// In MiB: what a picture of the largest side takes. The directory of an .ico file may say 16 x 16 and the
/// picture inside be huge.
constexpr int mostMemory = 4 * largestHonestSide * largestHonestSide >> 20;

constexpr QByteArrayView pngSignature = "\x89PNG\r\n\x1a\n";

QByteArray encoded(const Favicon &favicon, const Files &files)
{
    if (const auto *data = std::get_if<FaviconData>(&favicon))
        return data->bytes;
    return files.read(std::get<FaviconFile>(favicon).path).value_or(QByteArray());
}

/// Formats that hold pixels only. A drawing could refer to other files or never end.
bool isPixelFormat(const QByteArray &format)
{
    static const QByteArrayList formats{"png", "jpeg", "jpg", "gif", "ico", "bmp", "webp"};
    return formats.contains(format);
}

} // namespace

QImage decode(const Favicon &favicon, const Files &files)
{
    QByteArray bytes = encoded(favicon, files);
    if (bytes.isEmpty() || bytes.size() > largestHonestFile)
        return {};
    QImageReader::setAllocationLimit(mostMemory);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    // Nearly all are of this kind, which Qt reads by itself; to look what else it could be loads every
    // plugin.
    if (bytes.startsWith(pngSignature)) {
        reader.setFormat("png");
        reader.setAutoDetectImageFormat(false);
    } else {
        reader.setDecideFormatFromContent(true);
    }
    // First: once the size was asked for, the reader of .ico files no longer knows its format.
    const QByteArray format = reader.format();
    const QSize size = reader.size();
    if (!isPixelFormat(format) || size.isEmpty() || size.width() > largestHonestSide ||
        size.height() > largestHonestSide)
        return {};
    QImage image = reader.read();
    if (image.width() <= largestSide && image.height() <= largestSide)
        return image;
    return image.scaled(largestSide, largestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace roamlet::FaviconImage
