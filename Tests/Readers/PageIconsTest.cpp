// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/PageIcons.h"

#include "Readers/ReaderTest.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/SafariFiles.h"

#include <variant>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

class PageIconsTest : public ReaderTest
{
protected:
    QByteArray iconOf(const Source &source, const QString &url)
    {
        const auto icons = PageIcons::of(source, context());
        if (!icons)
            return "cannot be read";
        const auto icon = icons->icon(url);
        if (!icon)
            return "none";
        const auto *data = std::get_if<FaviconData>(&*icon);
        return data != nullptr ? data->bytes : std::get<FaviconFile>(*icon).path.toUtf8();
    }
};

} // namespace

TEST_F(PageIconsTest, withoutAStoreThereAreNone)
{
    for (const Source &source : {chrome(), firefox(), Source::safari()})
        EXPECT_EQ(iconOf(source, u"https://a.example/"_s), "none");
}

TEST_F(PageIconsTest, aChromiumPageHasItsOwnIconOrOneOfItsSite)
{
    change([this] {
        sample::writeFavicons(chromeFile(u"Favicons"_s),
                              {{.iconID = 1, .image = "small", .width = 16},
                               {.iconID = 1, .image = "fitting", .width = 32},
                               {.iconID = 1, .image = "large", .width = 64},
                               {.iconID = 2, .image = "other", .width = 16},
                               {.iconID = 3, .image = {}, .width = 16}},
                              {{.pageURL = u"https://a.example/"_s, .iconID = 1},
                               {.pageURL = u"https://a.example/other"_s, .iconID = 2},
                               {.pageURL = u"https://empty.example/"_s, .iconID = 3}});
    });
    EXPECT_EQ(iconOf(chrome(), u"https://a.example/"_s), "fitting");
    EXPECT_EQ(iconOf(chrome(), u"https://a.example/other"_s), "other");
    EXPECT_EQ(iconOf(chrome(), u"https://a.example/third?q"_s), "fitting");
    EXPECT_EQ(iconOf(chrome(), u"https://a.example.org/"_s), "none");
    EXPECT_EQ(iconOf(chrome(), u"https://empty.example/"_s), "none");
    EXPECT_EQ(iconOf(chrome(), u"about:blank"_s), "none");
    EXPECT_EQ(iconOf(chrome(), u"no address"_s), "none");
}

TEST_F(PageIconsTest, aFirefoxPageHasItsOwnIconOrItsHosts)
{
    const QString longAddress = u"https://a.example/"_s + u"x"_s.repeated(2'000);
    change([&] {
        sample::writeFirefoxFavicons(
            firefoxFile(u"favicons.sqlite"_s),
            {{.id = 1, .url = u"https://a.example/one.png"_s, .width = 32, .data = "one"},
             {.id = 2, .url = u"https://a.example/one.png"_s, .width = 16, .data = "small"},
             {.id = 3, .url = u"https://b.example/favicon.ico"_s, .width = 16, .root = true, .data = "host"},
             {.id = 4,
              .url = u"https://c.example/x.svg"_s,
              .width = sample::FirefoxIcon::drawing,
              .data = "<svg/>"}},
            {{.url = u"https://a.example/page"_s, .icons = {1, 2}},
             {.url = longAddress, .icons = {2}},
             {.url = u"https://c.example/"_s, .icons = {4}}});
    });
    EXPECT_EQ(iconOf(firefox(), u"https://a.example/page"_s), "one");
    EXPECT_EQ(iconOf(firefox(), longAddress), "small");
    EXPECT_EQ(iconOf(firefox(), u"https://b.example/any"_s), "host");
    EXPECT_EQ(iconOf(firefox(), u"https://c.example/"_s), "none");
    EXPECT_EQ(iconOf(firefox(), u"about:blank"_s), "none");
}

TEST_F(PageIconsTest, aSafariPageHasTheNewestIconOfItsOwnOrOfItsSite)
{
    change([this] {
        sample::writeSafariFavicons(safariFile(u"Favicon Cache"_s),
                                    {{.uuid = u"old"_s, .timestamp = 1, .image = "old"},
                                     {.uuid = u"new"_s, .timestamp = 2, .image = "new"}},
                                    {{.url = u"https://a.example/"_s, .uuid = u"old"_s},
                                     {.url = u"https://a.example/2"_s, .uuid = u"new"_s}});
    });
    const auto fileOf = [this](const QString &url) {
        return QString::fromUtf8(iconOf(Source::safari(), url)).section(u'/', -1);
    };
    EXPECT_EQ(fileOf(u"https://a.example/"_s), u"149603E6C03516362A8DA23F624DB945");
    EXPECT_EQ(fileOf(u"https://a.example/2"_s), u"22AF645D1859CB5CA6DA0C484F1F37EA");
    EXPECT_EQ(fileOf(u"https://a.example/3"_s), u"22AF645D1859CB5CA6DA0C484F1F37EA");
    EXPECT_EQ(fileOf(u"https://b.example/"_s), u"none");
}

TEST_F(PageIconsTest, aStoreThatIsNoneCannotBeRead)
{
    change([this] { sample::writeFile(chromeFile(u"Favicons"_s), "no database at all"); });
    const auto icons = PageIcons::of(chrome(), context());
    EXPECT_FALSE(icons && icons->icon(u"https://a.example/"_s));
}

TEST_F(PageIconsTest, theCopyGoesWithIt)
{
    change([this] {
        sample::writeFavicons(chromeFile(u"Favicons"_s), {{.iconID = 1, .image = "i", .width = 16}},
                              {{.pageURL = u"https://a.example/"_s, .iconID = 1}});
    });
    {
        const auto icons = PageIcons::of(chrome(), context());
        ASSERT_TRUE(icons);
        EXPECT_EQ(home.leftovers().size(), 1);
        EXPECT_TRUE(icons->icon(u"https://a.example/"_s));
    }
    EXPECT_EQ(home.leftovers(), QStringList());
}

} // namespace roamlet::testing
