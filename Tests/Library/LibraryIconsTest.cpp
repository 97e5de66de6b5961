// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/PlainFiles.h"
#include "Support/LibraryHome.h"

#include <QFile>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class LibraryIconsTest : public LibraryHome
{
protected:
    /// Where the icon of a site that Safari knows lies.
    static QString iconFile(const Library &library, const QString &site)
    {
        return std::get<FaviconFile>(library.snapshot().favicons.value(site)).path;
    }
};

TEST_F(LibraryIconsTest, iconsThatCannotBeReadOrAreRefusedAreKeptWithoutAWord)
{
    addChromium();
    addSafari();
    setChromeIcon(u"Default"_s, u"https://icon.example/"_s, png(16, Qt::red));
    Library library(home.platform());
    loadNow(library);
    const Library::Snapshot before = library.snapshot();
    ASSERT_EQ(before.favicons.size(), 2);
    for (const std::errc error : {std::errc::io_error, std::errc::permission_denied}) {
        home.files.failure = [this, error](const QString &path) {
            return path == chromeFile(u"Default/Favicons"_s) ||
                           path == safariFile(u"Favicon Cache/favicons.db"_s)
                       ? std::make_error_code(error)
                       : std::error_code{};
        };
        loadNow(library);
        EXPECT_EQ(library.snapshot(), before);
    }
    EXPECT_TRUE(home.clock.sleeps().empty());
}

TEST_F(LibraryIconsTest, aBrokenIconDatabaseIsNoProblem)
{
    addChromium();
    change([this] { sample::writeFile(chromeFile(u"Default/Favicons"_s), QByteArray(5000, 'x')); });
    Library library(home.platform());
    loadNow(library);
    EXPECT_TRUE(library.snapshot().problems.isEmpty());
    EXPECT_TRUE(library.snapshot().favicons.isEmpty());
    EXPECT_TRUE(home.clock.sleeps().empty());
}

TEST_F(LibraryIconsTest, theFirstSourcesIconOfASiteWins)
{
    addChromium();
    addSafari();
    setChromeIcon(u"Default"_s, u"https://shared.example/"_s, png(16, Qt::red));
    setChromeIcon(u"Profile 1"_s, u"https://shared.example/"_s, png(16, Qt::blue));
    Library library(home.platform());
    loadNow(library);
    EXPECT_TRUE(std::holds_alternative<FaviconFile>(library.snapshot().favicons.value(u"shared.example"_s)));
    EXPECT_EQ(library.snapshot().sourceFavicons.value(u"chrome/Profile 1"_s).value(u"shared.example"_s),
              Favicon(FaviconData{png(16, Qt::blue)}));
}

TEST_F(LibraryIconsTest, theUsersOrderDoesNotDecideWhoseIconWins)
{
    addChromium();
    home.defaults.setStringList(u"sourceOrder"_s, {u"chrome/Profile 1"_s, u"chrome/Default"_s});
    setChromeIcon(u"Default"_s, u"https://shared.example/"_s, png(16, Qt::red));
    setChromeIcon(u"Profile 1"_s, u"https://shared.example/"_s, png(16, Qt::blue));
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(library.snapshot().favicons.value(u"shared.example"_s), Favicon(FaviconData{png(16, Qt::red)}));
    library.setEnabled(false, *library.source(u"chrome/Default"_s));
    loadNow(library);
    EXPECT_EQ(library.snapshot().favicons.value(u"shared.example"_s),
              Favicon(FaviconData{png(16, Qt::blue)}));
}

TEST_F(LibraryIconsTest, ofSafariTheDefaultProfileAloneHasIcons)
{
    addSafari();
    addSafariProfile();
    Library library(home.platform());
    loadNow(library);
    EXPECT_EQ(library.snapshot().sourceFavicons.value(u"safari"_s).size(), 1);
    EXPECT_TRUE(library.snapshot().sourceFavicons.value(u"safari/T"_s).isEmpty());
}

TEST_F(LibraryIconsTest, anIconIsDecodedOnceForEachGeneration)
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

TEST_F(LibraryIconsTest, anIconThatCouldNotBeDecodedIsNotTriedAgainInItsGeneration)
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

TEST_F(LibraryIconsTest, anIconFileIsReadOnceForEachGeneration)
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

TEST_F(LibraryIconsTest, whoHearsOfANewSnapshotGetsItsIcons)
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
