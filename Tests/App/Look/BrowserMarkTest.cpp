// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/BrowserMark.h"

#include "App/Look/Contrast.h"
#include "App/Look/Look.h"
#include "App/Look/PlainPalette.h"
#include "Model/Browser.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include <gtest/gtest.h>

#include <set>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class BrowserMarkTest : public ::testing::Test
{
protected:
    /// So large that each part of a mark has pixels that nothing else touches.
    static constexpr int large = 160;
    /// Places in the units of the marks.
    static constexpr QPointF inSquare{2.5, 8};
    static constexpr QPointF dot{13.2, 13.2};
    static constexpr QPointF mirroredDot{2.8, 13.2};
    static constexpr QPointF ring{9.9, 13.2};
    static constexpr QPointF mirroredRing{6.1, 13.2};

    ~BrowserMarkTest() override
    {
        QGuiApplication::setPalette(m_palette);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    static Source::Kind kind(const QString &browser) { return *Source::kindFromRawValue(browser); }
    static QImage drawn(const QIcon &icon, int side = large, QIcon::Mode mode = QIcon::Normal)
    {
        return icon.pixmap(QSize(side, side), 1, mode).toImage().convertToFormat(QImage::Format_ARGB32);
    }
    static QColor at(const QImage &image, const QPointF &place)
    {
        return image.pixelColor((place * image.width() / 16).toPoint());
    }
    static QImage plainImage(const QColor &color, int side = 16)
    {
        QImage image(side, side, QImage::Format_ARGB32);
        image.fill(color);
        return image;
    }

private:
    QPalette m_palette = QGuiApplication::palette();
};

TEST_F(BrowserMarkTest, everyBrowserHasASquareAndAGlyphOfItsOwn)
{
    std::set<QRgb> squares;
    QList<QImage> glyphs;
    for (const Browser &browser : Browser::all()) {
        SCOPED_TRACE(qPrintable(browser.rawValue));
        const QImage mark = drawn(browserMark(browser.kind));
        const QColor square = at(mark, inSquare);
        EXPECT_EQ(square.alpha(), 255);
        EXPECT_NE(square, QColor(Qt::black)) << "it has no colour yet";
        EXPECT_TRUE(squares.insert(square.rgb()).second) << "another one has its colour";
        EXPECT_GE(contrastRatio(square, Qt::white), 3.2);
        const QImage glyph = mark.createMaskFromColor(QColor(Qt::white).rgba(), Qt::MaskOutColor);
        EXPECT_GT(glyph.convertToFormat(QImage::Format_Grayscale8)
                      .scaled(1, 1, {}, Qt::SmoothTransformation)
                      .pixelColor(0, 0)
                      .lightness(),
                  5)
            << "nothing is drawn on it";
        EXPECT_FALSE(glyphs.contains(glyph)) << "another one has its glyph";
        glyphs.append(glyph);
    }
}

TEST_F(BrowserMarkTest, aSquareIsSeenOnDarkGrounds)
{
    const Source::Kind opera = kind(u"opera"_s);
    const QIcon icon = browserMark(opera);
    QGuiApplication::setPalette(paletteOf(Qt::white, Qt::black));
    EXPECT_EQ(at(drawn(icon), inSquare), QColor(0xa6, 0x1e, 0x4d));
    const QPalette dark = paletteOf(Qt::black, Qt::white);
    QGuiApplication::setPalette(dark);
    const Look look(dark, QGuiApplication::font());
    const QColor square = at(drawn(icon), inSquare);
    EXPECT_GE(lowestContrast(square, {look.list.base, look.sidebar.base, look.card.base}), 3);
    EXPECT_NE(square, QColor(0xa6, 0x1e, 0x4d));
}

TEST_F(BrowserMarkTest, onlyANumberedProfileHasADot)
{
    const QImage plain = drawn(browserMark(kind(u"firefox"_s)));
    EXPECT_EQ(at(plain, dot), at(plain, inSquare));
    const QImage first = drawn(browserMark(kind(u"firefox"_s), 0));
    EXPECT_EQ(at(first, dot), QColor(0xf0, 0x8c, 0x00));
    EXPECT_EQ(at(first, ring).alpha(), 0);
    EXPECT_EQ(at(first, inSquare), at(plain, inSquare));
}

TEST_F(BrowserMarkTest, eightProfilesHaveDifferentDotsAndTheNinthBeginsAnew)
{
    std::set<QRgb> colors;
    for (qsizetype number = 0; number < 8; ++number)
        colors.insert(at(drawn(browserMark(Source::Kind::Edge, number)), dot).rgba());
    EXPECT_EQ(colors.size(), 8);
    EXPECT_EQ(drawn(browserMark(Source::Kind::Edge, 8)), drawn(browserMark(Source::Kind::Edge, 0)));
}

TEST_F(BrowserMarkTest, theGroundShowsThroughTheRingInEveryState)
{
    const Look look(QGuiApplication::palette(), QGuiApplication::font());
    const QIcon icon = browserMark(Source::Kind::Chrome, 1);
    for (const QColor &ground : {look.list.base, look.list.selected.base, look.sidebar.base}) {
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected, QIcon::Active}) {
            QImage row = plainImage(ground, large);
            QPainter painter(&row);
            icon.paint(&painter, row.rect(), Qt::AlignCenter, mode);
            painter.end();
            EXPECT_EQ(at(row, ring), ground);
            EXPECT_EQ(at(row, dot), QColor(0xd6, 0x33, 0x6c));
            EXPECT_EQ(at(row, inSquare), look.mark(QColor(0x2b, 0x8a, 0x3e)));
        }
    }
}

TEST_F(BrowserMarkTest, fromRightToLeftTheDotIsAtTheLeft)
{
    const QIcon icon = browserMark(Source::Kind::Chrome, 0);
    QImage row(large, large, QImage::Format_ARGB32);
    row.fill(Qt::transparent);
    QPainter painter(&row);
    painter.setLayoutDirection(Qt::RightToLeft);
    icon.paint(&painter, row.rect());
    painter.end();
    EXPECT_EQ(at(row, mirroredDot), QColor(0xf0, 0x8c, 0x00));
    EXPECT_EQ(at(row, mirroredRing).alpha(), 0);
    EXPECT_EQ(at(row, dot), at(drawn(browserMark(Source::Kind::Chrome)), dot)) << "glyphs are not mirrored";
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(at(drawn(icon), mirroredDot), at(row, mirroredDot))
        << "menus ask for a picture and not for a drawing";
}

TEST_F(BrowserMarkTest, anIconOfTheBrowsersOwnTakesThePlaceOfTheMarkAndHasTheDot)
{
    const QIcon alone = browserMark(Source::Kind::Chrome, {}, plainImage(Qt::cyan));
    EXPECT_EQ(drawn(alone, 16), plainImage(Qt::cyan));
    EXPECT_EQ(drawn(alone, 16, QIcon::Selected), plainImage(Qt::cyan));
    const QImage numbered = drawn(browserMark(Source::Kind::Chrome, 0, plainImage(Qt::cyan)));
    EXPECT_EQ(at(numbered, inSquare), QColor(Qt::cyan));
    EXPECT_EQ(at(numbered, ring).alpha(), 0);
    EXPECT_EQ(at(numbered, dot), QColor(0xf0, 0x8c, 0x00));
    EXPECT_NE(drawn(browserMark(Source::Kind::Chrome, 0, plainImage(Qt::magenta))), numbered);
}

TEST_F(BrowserMarkTest, isDrawnAnewForAFineScreenWithSharpEdges)
{
    const QIcon icon = browserMark(Source::Kind::Edge, 2);
    for (const qreal ratio : {1.0, 1.25, 1.5, 2.0, 2.5}) {
        const QPixmap pixmap = icon.pixmap(QSize(16, 16), ratio);
        ASSERT_EQ(pixmap.width(), qRound(16 * ratio));
        EXPECT_EQ(pixmap.devicePixelRatio(), ratio);
        QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
        image.setDevicePixelRatio(1);
        const int middle = image.height() / 2;
        int x = 0;
        while (image.pixelColor(x, middle).alpha() == 0)
            ++x;
        EXPECT_EQ(image.pixelColor(x, middle).alpha(), 255) << ratio;
        EXPECT_EQ(x, qRound(ratio));
    }
}

TEST_F(BrowserMarkTest, whatIsDisabledIsHalfAsStrong)
{
    const QImage image = drawn(browserMark(Source::Kind::Edge), large, QIcon::Disabled);
    EXPECT_NEAR(at(image, inSquare).alpha(), 128, 1);
}

TEST_F(BrowserMarkTest, staysInTheMiddleOfAPlaceThatIsNotSquare)
{
    const QImage image = browserMark(Source::Kind::Chrome).pixmap(QSize(48, 16), 1.0).toImage();
    EXPECT_EQ(image.pixelColor(16, 8).alpha(), 0);
    EXPECT_EQ(image.pixelColor(17, 8).alpha(), 255);
    EXPECT_EQ(image.pixelColor(30, 8).alpha(), 255);
    EXPECT_EQ(image.pixelColor(31, 8).alpha(), 0);
}

} // namespace
} // namespace roamlet::testing
