// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Symbol.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QColor text(10, 20, 30);
const QColor disabledText(120, 130, 140);
const QColor selectedText(250, 240, 230);

class SymbolTest : public ::testing::Test
{
protected:
    SymbolTest() : m_before(QGuiApplication::palette())
    {
        QPalette palette = m_before;
        palette.setColor(QPalette::Active, QPalette::WindowText, text);
        palette.setColor(QPalette::Disabled, QPalette::WindowText, disabledText);
        palette.setColor(QPalette::Active, QPalette::HighlightedText, selectedText);
        QGuiApplication::setPalette(palette);
    }
    ~SymbolTest() override { QGuiApplication::setPalette(m_before); }

private:
    QPalette m_before;
};

QImage imageOf(const QIcon &icon, int side, qreal ratio = 1, QIcon::Mode mode = QIcon::Normal)
{
    return icon.pixmap(QSize(side, side), ratio, mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The one colour of all that is drawn fully opaque; invalid when there are several, or none.
QColor colorOf(const QImage &image)
{
    QColor result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() < 255)
                continue;
            if (result.isValid() && result != pixel)
                return {};
            result = pixel;
        }
    }
    return result;
}

/// What is drawn, without the empty margin.
QRect inkOf(const QImage &image)
{
    QRect result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > 127)
                result |= QRect(x, y, 1, 1);
        }
    }
    return result;
}

TEST_F(SymbolTest, anUnknownNameGivesNone)
{
    EXPECT_TRUE(symbolIcon(u"no.such.symbol"_s).isNull());
    EXPECT_TRUE(symbolIcon(QString()).isNull());
}

TEST_F(SymbolTest, hasTheColorOfTheText)
{
    EXPECT_EQ(colorOf(imageOf(symbolIcon(u"clock"_s), 64)), text);
}

TEST_F(SymbolTest, followsThePaletteWhenItChanges)
{
    const QIcon icon = symbolIcon(u"clock"_s);
    ASSERT_EQ(colorOf(imageOf(icon, 64)), text);

    QPalette dark = QGuiApplication::palette();
    dark.setColor(QPalette::Active, QPalette::WindowText, QColor(238, 238, 238));
    QGuiApplication::setPalette(dark);

    EXPECT_EQ(colorOf(imageOf(icon, 64)), QColor(238, 238, 238));
}

TEST_F(SymbolTest, followsTheSelectionAndWhatIsDisabled)
{
    const QIcon icon = symbolIcon(u"folder"_s);

    EXPECT_EQ(colorOf(imageOf(icon, 64, 1, QIcon::Active)), text);
    EXPECT_EQ(colorOf(imageOf(icon, 64, 1, QIcon::Selected)), selectedText);
    EXPECT_EQ(colorOf(imageOf(icon, 64, 1, QIcon::Disabled)), disabledText);
}

TEST_F(SymbolTest, keepsToAColorOfItsOwn)
{
    const QColor orange(230, 120, 0);
    const QIcon icon = symbolIcon(u"lock.fill"_s, orange);

    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected, QIcon::Disabled})
        EXPECT_EQ(colorOf(imageOf(icon, 64, 1, mode)), orange);
}

TEST_F(SymbolTest, aThinOneHasLessInk)
{
    const auto ink = [](const QImage &image) {
        int opaque = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                opaque += image.pixelColor(x, y).alpha() > 127 ? 1 : 0;
        }
        return opaque;
    };
    const int usual = ink(imageOf(symbolIcon(u"clock"_s, text), 64));
    const int thin = ink(imageOf(symbolIcon(u"clock"_s, text, SymbolWeight::Thin), 64));
    EXPECT_GT(thin, usual / 2);
    EXPECT_LT(thin, usual * 9 / 10);
}

TEST_F(SymbolTest, isDrawnAnewForAFineScreenAndNotEnlarged)
{
    const QIcon icon = symbolIcon(u"gearshape"_s);

    const QPixmap pixmap = icon.pixmap(QSize(16, 16), 2);

    EXPECT_EQ(pixmap.size(), QSize(32, 32));
    EXPECT_EQ(pixmap.devicePixelRatio(), 2);
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    image.setDevicePixelRatio(1);
    EXPECT_EQ(image, imageOf(icon, 32));
}

TEST_F(SymbolTest, paintsOnAFineScreenWithEveryPixelItHas)
{
    const QIcon icon = symbolIcon(u"globe"_s);
    QImage screen(32, 32, QImage::Format_ARGB32);
    screen.setDevicePixelRatio(2);
    screen.fill(Qt::transparent);
    QPainter painter(&screen);

    icon.paint(&painter, QRect(0, 0, 16, 16));
    painter.end();

    screen.setDevicePixelRatio(1);
    EXPECT_EQ(screen, imageOf(icon, 32));
}

TEST_F(SymbolTest, staysInTheMiddleOfAPlaceThatIsNotSquare)
{
    const QRect ink = inkOf(
        symbolIcon(u"clock"_s).pixmap(QSize(96, 32), 1.0).toImage().convertToFormat(QImage::Format_ARGB32));

    EXPECT_EQ(ink.width(), ink.height());
    EXPECT_EQ(ink.center(), QPoint(47, 15));
}

TEST_F(SymbolTest, oneIsNotTakenForAnother)
{
    EXPECT_NE(imageOf(symbolIcon(u"globe"_s), 16), imageOf(symbolIcon(u"clock"_s), 16));
}

TEST_F(SymbolTest, theProgramHasAnIconOfItsOwn)
{
    const QIcon icon = applicationIcon();

    for (const int side : {16, 48, 256}) {
        const QImage image = imageOf(icon, side);
        EXPECT_EQ(image.size(), QSize(side, side));
        EXPECT_GT(inkOf(image).width(), side * 3 / 4);
    }
}

TEST_F(SymbolTest, aPanelThatKnowsTheThemeGetsTheNameOfItsSign)
{
    const QStringList pathsBefore = QIcon::themeSearchPaths();
    const QString nameBefore = QIcon::themeName();
    const QTemporaryDir themes;
    QDir(themes.path()).mkpath(u"hicolor/symbolic/apps"_s);
    const auto write = [&themes](const QString &name, const QByteArray &content) {
        QFile file(themes.filePath(u"hicolor/" % name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    };
    write(u"index.theme"_s, "[Icon Theme]\nName=Hicolor\nDirectories=symbolic/apps\n"
                            "[symbolic/apps]\nSize=16\nType=Scalable\nMinSize=8\nMaxSize=512\n");
    QIcon::setThemeSearchPaths({themes.path()});
    QIcon::setThemeName(u"hicolor"_s);
    EXPECT_EQ(panelIcon().name(), QString()) << "it is not installed";
    write(u"symbolic/apps/org.roamlet.Roamlet-symbolic.svg"_s, "<svg xmlns=\"http://www.w3.org/2000/svg\"/>");
    QIcon::setThemeSearchPaths({themes.path()});
    EXPECT_EQ(panelIcon().name(), u"org.roamlet.Roamlet-symbolic"_s);
    EXPECT_EQ(colorOf(imageOf(panelIcon(), 64)), QColor(0x5b, 0x9d, 0xf0)) << "others get the drawing";
    QIcon::setThemeSearchPaths(pathsBefore);
    QIcon::setThemeName(nameBefore);
}

class EverySymbolTest : public SymbolTest, public ::testing::WithParamInterface<const char *>
{
protected:
    static QIcon icon() { return symbolIcon(QString::fromLatin1(GetParam())); }
};

TEST_P(EverySymbolTest, isThere)
{
    EXPECT_FALSE(icon().isNull());
    EXPECT_EQ(colorOf(imageOf(icon(), 64)), text);
}

TEST_P(EverySymbolTest, fillsItsPlaceLikeTheOthersDo)
{
    constexpr int side = 160;
    constexpr int middle = side / 2;
    // One pixel and a half in a small icon.
    constexpr int tenth = side / 10;
    const QRect ink = inkOf(imageOf(icon(), side));

    EXPECT_GE(std::max(ink.width(), ink.height()), 7 * tenth);
    EXPECT_LE(std::max(ink.width(), ink.height()), 9 * tenth);
    EXPECT_LE(std::abs(ink.center().x() - middle), tenth / 2);
    EXPECT_LE(std::abs(ink.center().y() - middle), tenth / 2);
}

INSTANTIATE_TEST_SUITE_P(, EverySymbolTest,
                         ::testing::Values("arrow.clockwise", "bookmark", "chart.bar", "clock", "folder",
                                           "gearshape", "globe", "line.3.horizontal", "lock.fill",
                                           "magnifyingglass", "person.2", "rectangle.3.group",
                                           "square.and.arrow.up", "steeringwheel"));

} // namespace

} // namespace roamlet
