// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/RowIcons.h"

#include "App/Look/Look.h"

#include <QImage>
#include <QPixmap>
#include <QSet>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

class RowIconsTest : public TableTest
{
protected:
    static QColor colour(const QIcon &icon, QIcon::Mode mode = QIcon::Normal)
    {
        return icon.pixmap(QSize(16, 16), 1, mode).toImage().pixelColor(8, 8);
    }

    QWidget widget;
    RowIcons icons{*library, opener, widget};
};

} // namespace

TEST_F(RowIconsTest, aSiteWithoutAnIconGetsAGlobe)
{
    EXPECT_FALSE(icons.site(u"example.org"_s).isNull());
    EXPECT_TRUE(icons.siteIfKnown(u"example.org"_s).isNull());
    EXPECT_EQ(icons.site(u"example.org"_s).cacheKey(), icons.site(u"example.com"_s).cacheKey());
}

TEST_F(RowIconsTest, symbolsAreSeenOnThePureHighlight)
{
    // Its texts are too pale for a selection in a shade.
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, QColor(0x71, 0x71, 0x71));
    palette.setColor(QPalette::Highlight, QColor(0, 0, 0x80));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    widget.setPalette(palette);
    const Look look = Look::of(widget);
    ASSERT_EQ(look.list.selected.base, QColor(0, 0, 0x80));
    const auto inks = [](const QIcon &icon, QIcon::Mode mode) {
        const QImage image = icon.pixmap(QSize(64, 64), 1, mode).toImage();
        QSet<QRgb> result;
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, image.height() / 2).alpha() == 255)
                result.insert(image.pixel(x, image.height() / 2));
        }
        return result;
    };
    const QIcon globe = icons.site(u"example.org"_s);
    EXPECT_EQ(inks(globe, QIcon::Normal), QSet<QRgb>{look.list.quiet.rgb()});
    EXPECT_EQ(inks(globe, QIcon::Selected), QSet<QRgb>{look.list.selected.quiet.rgb()});
    EXPECT_EQ(inks(icons.folder(), QIcon::Selected), QSet<QRgb>{look.list.selected.ink.rgb()});
}

TEST_F(RowIconsTest, aSiteHasItsOwnIconAlsoInASelectedRow)
{
    addChromium();
    setChromeIcon(u"Default"_s, u"https://a1.example/"_s, png(32, Qt::green));
    loadNow(*library);
    EXPECT_EQ(colour(icons.site(u"a1.example"_s)), QColor(Qt::green));
    EXPECT_EQ(colour(icons.site(u"a1.example"_s), QIcon::Selected), QColor(Qt::green));
    const int side = Look::of(widget).measures.iconSide;
    EXPECT_EQ(icons.site(u"a1.example"_s).availableSizes().value(0), QSize(side, side));
}

TEST_F(RowIconsTest, aNewSnapshotBringsNewIcons)
{
    addChromium();
    loadNow(*library);
    EXPECT_TRUE(icons.siteIfKnown(u"a1.example"_s).isNull());
    setChromeIcon(u"Default"_s, u"https://a1.example/"_s, png(16, Qt::green));
    loadNow(*library);
    icons.clear();
    EXPECT_FALSE(icons.siteIfKnown(u"a1.example"_s).isNull());
}

TEST_F(RowIconsTest, aBrokenIconIsAGlobe)
{
    addChromium();
    setChromeIcon(u"Default"_s, u"https://a1.example/"_s, "no image");
    loadNow(*library);
    EXPECT_EQ(icons.site(u"a1.example"_s).cacheKey(), icons.site(u"b.example"_s).cacheKey());
}

TEST_F(RowIconsTest, aSourceHasItsBrowsersIconOrAMark)
{
    workspace.icons.insert(u"chrome"_s, Qt::red);
    const Source chrome{
        .kind = Source::Kind::Chrome, .profile = u"Default"_s, .name = {}, .safariBookmarks = {}};
    const QIcon safari = icons.source(Source::safari());
    EXPECT_EQ(colour(icons.source(chrome)), QColor(Qt::red));
    EXPECT_NE(safari.cacheKey(), icons.site(u"example.org"_s).cacheKey());
    EXPECT_EQ(safari.pixmap(QSize(16, 16), 1.0).toImage().pixelColor(8, 3), QColor(0x1a, 0x7f, 0xe0));
}

} // namespace roamlet::testing
