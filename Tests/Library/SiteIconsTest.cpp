// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Library/SiteIcons.h"

#include "SampleHome/PlainFiles.h"
#include "Support/LibraryHome.h"

#include <QFile>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class SiteIconsTest : public LibraryHome
{
protected:
    /// Where the icon of a site that Safari knows lies.
    static QString iconFile(const Library &library, const QString &site)
    {
        return std::get<FaviconFile>(library.snapshot().favicons.value(site)).path;
    }
};

TEST_F(SiteIconsTest, anIconIsDecodedOnceForEachGeneration)
{
    addChromium();
    setChromeIcon(u"Default"_s, u"https://icon.example/"_s, png(16, Qt::red));
    Library library(home.platform());
    EXPECT_EQ(library.favicon(u"icon.example"_s), std::nullopt) << "before anything was read";
    loadNow(library);
    const std::optional<QImage> image = library.favicon(u"icon.example"_s);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixelColor(3, 3), QColor(Qt::red));
    EXPECT_EQ(library.favicon(u"icon.example"_s)->cacheKey(), image->cacheKey());
    EXPECT_EQ(library.favicon(u"unknown.example"_s), std::nullopt);

    loadNow(library);
    EXPECT_NE(library.favicon(u"icon.example"_s)->cacheKey(), image->cacheKey());
}

TEST_F(SiteIconsTest, anIconThatCouldNotBeDecodedIsNotTriedAgainInItsGeneration)
{
    addSafari();
    Library library(home.platform());
    loadNow(library);
    const QString file = iconFile(library, u"shared.example"_s);
    change([&file] { QFile::remove(file); });
    EXPECT_EQ(library.favicon(u"shared.example"_s), std::nullopt);
    change([&file] { sample::writeFile(file, png(16, Qt::blue)); });
    EXPECT_EQ(library.favicon(u"shared.example"_s), std::nullopt);
    loadNow(library);
    const std::optional<QImage> image = library.favicon(u"shared.example"_s);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixelColor(0, 0), QColor(Qt::blue));
}

TEST_F(SiteIconsTest, anIconFileIsReadOnceForEachGeneration)
{
    addSafari();
    Library library(home.platform());
    loadNow(library);
    ASSERT_TRUE(library.favicon(u"shared.example"_s));
    const QString file = iconFile(library, u"shared.example"_s);
    change([&file] { QFile::remove(file); });
    EXPECT_TRUE(library.favicon(u"shared.example"_s));
    loadNow(library);
    EXPECT_EQ(library.favicon(u"shared.example"_s), std::nullopt);
}

TEST_F(SiteIconsTest, whoHearsOfANewSnapshotGetsItsIcons)
{
    addChromium();
    setChromeIcon(u"Default"_s, u"https://icon.example/"_s, png(16, Qt::red));
    Library library(home.platform());
    loadNow(library);
    ASSERT_TRUE(library.favicon(u"icon.example"_s));
    setChromeIcon(u"Default"_s, u"https://icon.example/"_s, png(16, Qt::blue));
    std::optional<QImage> heard;
    QObject::connect(&library, &Library::snapshotChanged, &library,
                     [&] { heard = library.favicon(u"icon.example"_s); });
    loadNow(library);
    ASSERT_TRUE(heard);
    EXPECT_EQ(heard->pixelColor(0, 0), QColor(Qt::blue));
}

} // namespace
} // namespace roamlet::testing
