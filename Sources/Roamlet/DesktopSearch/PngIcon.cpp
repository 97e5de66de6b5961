// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DesktopSearch/PngIcon.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <png.h>

namespace roamlet::PngIcon
{

namespace
{

/// A picture of this side takes 1 MiB while it is read.
constexpr png_uint_32 largestHonestSide = 512;
constexpr int channels = 4;

/// The mean of each square of pixels.
IconPixels smaller(const IconPixels &icon, int factor)
{
    IconPixels result{.width = icon.width / factor, .height = icon.height / factor, .bytes = {}};
    result.width = std::max(result.width, 1);
    result.height = std::max(result.height, 1);
    result.bytes.resize(qsizetype{channels} * result.width * result.height);
    qsizetype place = 0;
    for (int top = 0; top < result.height; ++top) {
        for (int left = 0; left < result.width; ++left) {
            std::array<int, channels> sums{};
            int count = 0;
            for (int y = top * factor; y < std::min((top + 1) * factor, icon.height); ++y) {
                for (int x = left * factor; x < std::min((left + 1) * factor, icon.width); ++x, ++count) {
                    const qsizetype pixel = qsizetype{channels} * (qsizetype{y} * icon.width + x);
                    for (int channel = 0; channel < channels; ++channel)
                        sums[static_cast<std::size_t>(channel)] +=
                            static_cast<unsigned char>(icon.bytes[pixel + channel]);
                }
            }
            for (const int sum : sums)
                result.bytes[place++] = static_cast<char>(sum / count);
        }
    }
    return result;
}

} // namespace

std::optional<IconPixels> decode(const QByteArray &bytes)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&image, bytes.constData(), static_cast<std::size_t>(bytes.size())) ==
        0)
        return {};
    std::optional<IconPixels> icon;
    if (image.width <= largestHonestSide && image.height <= largestHonestSide) {
        image.format = PNG_FORMAT_RGBA;
        icon = IconPixels{.width = static_cast<int>(image.width),
                          .height = static_cast<int>(image.height),
                          .bytes = QByteArray(static_cast<qsizetype>(PNG_IMAGE_SIZE(image)), '\0')};
        if (png_image_finish_read(&image, nullptr, icon->bytes.data(), 0, nullptr) == 0)
            icon.reset();
    }
    png_image_free(&image);
    if (!icon)
        return {};
    const int side = std::max(icon->width, icon->height);
    return side <= largestSide ? icon : smaller(*icon, (side + largestSide - 1) / largestSide);
}

} // namespace roamlet::PngIcon
