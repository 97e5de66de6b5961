// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "DesktopSearch/PngIcon.h"

#include "Support/LibraryHome.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

QByteArray encoded(const QImage &image, const char *format = "PNG")
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return bytes;
}

} // namespace

TEST(PngIconTest, aSmallPictureKeepsItsPixels)
{
    QImage image(3, 2, QImage::Format_RGBA8888);
    image.fill(QColor(1, 2, 3, 4));
    image.setPixelColor(2, 1, QColor(255, 128, 0, 255));
    const auto icon = PngIcon::decode(encoded(image));
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->width, 3);
    EXPECT_EQ(icon->height, 2);
    ASSERT_EQ(icon->bytes.size(), 3 * 2 * 4);
    EXPECT_EQ(icon->bytes.first(4), QByteArray("\x01\x02\x03\x04"));
    EXPECT_EQ(icon->bytes.last(4), QByteArray("\xFF\x80\x00\xFF", 4));
}

TEST(PngIconTest, everyKindOfPixelBecomesTheOne)
{
    for (const QImage::Format format :
         {QImage::Format_Mono, QImage::Format_Grayscale8, QImage::Format_Indexed8, QImage::Format_RGB32,
          QImage::Format_RGBA64}) {
        QImage image(4, 4, format);
        if (image.colorCount() > 0 || format == QImage::Format_Indexed8)
            image.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
        image.fill(format == QImage::Format_Mono || format == QImage::Format_Indexed8 ? 1U : 0xFFFFFFFFU);
        const auto icon = PngIcon::decode(encoded(image));
        ASSERT_TRUE(icon) << format;
        EXPECT_EQ(icon->bytes, QByteArray(4 * 4 * 4, '\xFF')) << format;
    }
}

TEST(PngIconTest, aLargePictureIsMadeSmaller)
{
    QImage image(192, 100, QImage::Format_RGBA8888);
    image.fill(QColor(10, 20, 30));
    const auto icon = PngIcon::decode(encoded(image));
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->width, 64);
    EXPECT_EQ(icon->height, 33);
    ASSERT_EQ(icon->bytes.size(), 64 * 33 * 4);
    EXPECT_EQ(icon->bytes.last(4), QByteArray("\x0A\x14\x1E\xFF"));
}

TEST(PngIconTest, aThinPictureKeepsAPixel)
{
    QImage image(512, 1, QImage::Format_RGBA8888);
    image.fill(Qt::red);
    const auto icon = PngIcon::decode(encoded(image));
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->width, 64);
    EXPECT_EQ(icon->height, 1);
    EXPECT_EQ(icon->bytes.first(4), QByteArray("\xFF\x00\x00\xFF", 4));
}

TEST(PngIconTest, whatIsNoIconIsNone)
{
    EXPECT_FALSE(PngIcon::decode({}));
    EXPECT_FALSE(PngIcon::decode("no picture"));
    QImage image(513, 2, QImage::Format_RGBA8888);
    image.fill(Qt::red);
    EXPECT_FALSE(PngIcon::decode(encoded(image)));
    image = image.copy(0, 0, 16, 2);
    EXPECT_FALSE(PngIcon::decode(encoded(image, "BMP")));
    const QByteArray whole = encoded(image);
    for (qsizetype size = 0; size < whole.size() - 12; ++size)
        EXPECT_FALSE(PngIcon::decode(whole.first(size))) << size;
}

} // namespace roamlet::testing
