// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/FaviconImage.h"

#include "SampleHome/PlainFiles.h"
#include "Support/LibraryHome.h"
#include "Support/TestHome.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class FaviconImageTest : public ::testing::Test
{
protected:
    static QByteArray encoded(int width, int height, const char *format)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::red);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        EXPECT_TRUE(image.save(&buffer, format)) << format;
        return buffer.data();
    }

    /// An icon file of one picture that claims these sides.
    static QByteArray ico(char width, char height, const QByteArray &picture)
    {
        QByteArray bytes = QByteArray::fromHex("000001000100");
        bytes.append(width).append(height).append(QByteArray::fromHex("000001002000"));
        for (const qsizetype number : {picture.size(), qsizetype{22}}) {
            for (int shift = 0; shift < 32; shift += 8)
                bytes.append(static_cast<char>((number >> shift) & 0xff));
        }
        return bytes + picture;
    }

    QImage decode(const QByteArray &bytes) const
    {
        return FaviconImage::decode(FaviconData{bytes}, home.files);
    }

    TestHome home;
};

TEST_F(FaviconImageTest, anIconKeepsItsSizeAndColours)
{
    const QImage image = decode(png(32, QColor(1, 2, 3)));
    EXPECT_EQ(image.size(), QSize(32, 32));
    EXPECT_EQ(image.pixelColor(5, 5), QColor(1, 2, 3));
}

TEST_F(FaviconImageTest, aLargeIconIsScaledDownAndKeepsItsShape)
{
    EXPECT_EQ(decode(png(64, Qt::red)).size(), QSize(64, 64));
    EXPECT_EQ(decode(png(65, Qt::red)).size(), QSize(64, 64));
    EXPECT_EQ(decode(png(512, Qt::red)).size(), QSize(64, 64));
    EXPECT_EQ(decode(encoded(200, 100, "PNG")).size(), QSize(64, 32));
    EXPECT_EQ(decode(encoded(100, 200, "PNG")).size(), QSize(32, 64));
    EXPECT_EQ(decode(encoded(2048, 1, "PNG")).size(), QSize(64, 1)) << "a line stays a line";
}

TEST_F(FaviconImageTest, whatIsClearStaysClear)
{
    EXPECT_EQ(decode(png(16, QColor(0, 0, 0, 0))).pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(decode(png(128, QColor(0, 0, 0, 0))).pixelColor(0, 0).alpha(), 0);
}

TEST_F(FaviconImageTest, theUsualFormatsAreKnown)
{
    for (const char *format : {"PNG", "JPEG", "BMP"})
        EXPECT_EQ(decode(encoded(20, 10, format)).size(), QSize(20, 10)) << format;
    EXPECT_EQ(decode(ico(32, 32, png(32, Qt::blue))).pixelColor(9, 9), QColor(Qt::blue));
}

TEST_F(FaviconImageTest, otherFormatsAreRefused)
{
    for (const char *format : {"XPM", "XBM", "PPM"}) {
        const QByteArray bytes = encoded(16, 16, format);
        ASSERT_FALSE(bytes.isEmpty()) << format;
        EXPECT_TRUE(decode(bytes).isNull()) << format;
    }
}

TEST_F(FaviconImageTest, aFileThatIsTooLargeIsNotDecoded)
{
    constexpr qsizetype limit = 8LL * 1024 * 1024;
    QByteArray bytes = png(16, Qt::red);
    bytes.resize(limit, '\0');
    EXPECT_FALSE(decode(bytes).isNull());
    bytes.append('\0');
    EXPECT_TRUE(decode(bytes).isNull());
}

TEST_F(FaviconImageTest, whatClaimsToBeHugeIsNotDecoded)
{
    EXPECT_FALSE(decode(png(2048, Qt::red)).isNull());
    EXPECT_TRUE(decode(encoded(2049, 1, "PNG")).isNull());
    EXPECT_TRUE(decode(encoded(1, 2049, "PNG")).isNull());
    QByteArray lying = png(16, Qt::red);
    lying.replace(16, 4, QByteArray::fromHex("7fffffff")); // the width in the header
    EXPECT_TRUE(decode(lying).isNull());
}

TEST_F(FaviconImageTest, anIconThatSaysItIsSmallMayNotHoldAHugePicture)
{
    EXPECT_TRUE(decode(ico(16, 16, png(2049, Qt::red))).isNull());
}

TEST_F(FaviconImageTest, brokenBytesAreNoIcon)
{
    const QByteArray whole = png(16, Qt::red);
    EXPECT_TRUE(decode({}).isNull());
    EXPECT_TRUE(decode("hello").isNull());
    EXPECT_TRUE(decode(QByteArray(100, '\0')).isNull());
    EXPECT_TRUE(decode(whole.first(whole.size() / 2)).isNull());
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

TEST_F(FaviconImageTest, drawingsAreRefused)
{
    EXPECT_TRUE(decode("<svg xmlns='http://www.w3.org/2000/svg' width='16' height='16'><rect width='16' "
                       "height='16'/></svg>")
                    .isNull());
}

TEST_F(FaviconImageTest, ofAnAnimationTheFirstPictureCounts)
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

TEST_F(FaviconImageTest, aFileIsReadFromDisk)
{
    const QString file = home.path(u"icon.png"_s);
    sample::writeFile(file, png(16, Qt::blue));
    EXPECT_EQ(FaviconImage::decode(FaviconFile{file}, home.files).pixelColor(0, 0), QColor(Qt::blue));
    EXPECT_TRUE(FaviconImage::decode(FaviconFile{home.path(u"missing"_s)}, home.files).isNull());
    EXPECT_TRUE(FaviconImage::decode(FaviconFile{home.path()}, home.files).isNull());
    const QString pipe = home.path(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_TRUE(FaviconImage::decode(FaviconFile{pipe}, home.files).isNull()) << "and nobody waits for it";
}

} // namespace
} // namespace roamlet::testing
