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
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (!isPixelFormat(reader.format()) || size.isEmpty() || size.width() > largestHonestSide ||
        size.height() > largestHonestSide)
        return {};
    const QImage image = reader.read();
    if (image.width() <= largestSide && image.height() <= largestSide)
        return image;
    return image.scaled(largestSide, largestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace roamlet::FaviconImage
