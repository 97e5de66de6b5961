// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Tables/RowIcons.h"

#include "App/Look/Look.h"

#include <QImage>
#include <QPixmap>

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
