// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/PlainFiles.h"
#include "Support/LibraryHome.h"

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

using LibraryIconsTest = LibraryHome;

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

} // namespace
} // namespace roamlet::testing
