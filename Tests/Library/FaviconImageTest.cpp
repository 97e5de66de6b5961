// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/FaviconImage.h"

#include "Library/LibraryHome.h"
#include "Support/TestHome.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class FaviconImageTest : public ::testing::Test
{
protected:
    QImage decode(const QByteArray &bytes) const
    {
        return FaviconImage::decode(FaviconData{bytes}, home.files);
    }

    TestHome home;
};

TEST_F(FaviconImageTest, AnIconKeepsItsSizeAndColours)
{
    const QImage image = decode(png(32, QColor(1, 2, 3)));
    EXPECT_EQ(image.size(), QSize(32, 32));
    EXPECT_EQ(image.pixelColor(5, 5), QColor(1, 2, 3));
}

TEST_F(FaviconImageTest, ALargeIconIsScaledDownAndKeepsItsShape)
{
    EXPECT_EQ(decode(png(512, Qt::red)).size(), QSize(64, 64));
}

TEST_F(FaviconImageTest, WhatClaimsToBeHugeIsNotDecoded)
{
    EXPECT_TRUE(decode(png(2049, Qt::red)).isNull());
    QByteArray lying = png(16, Qt::red);
    lying.replace(16, 4, QByteArray::fromHex("7fffffff")); // the width in the header
    EXPECT_TRUE(decode(lying).isNull());
}

TEST_F(FaviconImageTest, BrokenBytesAreNoIcon)
{
    const QByteArray whole = png(16, Qt::red);
    EXPECT_TRUE(decode({}).isNull());
    EXPECT_TRUE(decode("hello").isNull());
    EXPECT_TRUE(decode(QByteArray(100, '\0')).isNull());
    for (qsizetype length = 0; length < whole.size(); ++length)
        decode(whole.first(length));
    for (qsizetype i = 0; i < whole.size(); ++i) {
        QByteArray flipped = whole;
        flipped[i] = static_cast<char>(flipped[i] ^ 0x55);
        const QImage image = decode(flipped);
        EXPECT_LE(image.width(), FaviconImage::largestSide);
        EXPECT_LE(image.height(), FaviconImage::largestSide);
    }
}

TEST_F(FaviconImageTest, DrawingsAreRefused)
{
    EXPECT_TRUE(decode("<svg xmlns='http://www.w3.org/2000/svg' width='16' height='16'><rect width='16' "
                       "height='16'/></svg>")
                    .isNull());
}

TEST_F(FaviconImageTest, OfAnAnimationTheFirstPictureCounts)
{
    // Two pictures of one pixel each, the first one red, the second one blue.
    const QByteArray animation =
        QByteArray::fromHex("47494638396101000100f00000ff00000000ff21ff0b4e45545343415045322e300301000000"
                            "21f904000a0000002c00000000010001000002024401002"
                            "1f904000a0000002c000000000100010000020254010"
                            "03b");
    const QImage image = decode(animation);
    ASSERT_EQ(image.size(), QSize(1, 1));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(FaviconImageTest, AFileIsReadFromDisk)
{
    QFile file(home.path(u"icon.png"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(png(16, Qt::blue));
    file.close();
    EXPECT_EQ(FaviconImage::decode(FaviconFile{file.fileName()}, home.files).pixelColor(0, 0),
              QColor(Qt::blue));
    EXPECT_TRUE(FaviconImage::decode(FaviconFile{home.path(u"missing"_s)}, home.files).isNull());
    EXPECT_TRUE(FaviconImage::decode(FaviconFile{home.path()}, home.files).isNull());
}

} // namespace
} // namespace roamlet::testing
