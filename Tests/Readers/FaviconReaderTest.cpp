// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/FaviconReader.h"

#include "Readers/ReaderTest.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/SafariFiles.h"

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using sample::FaviconBitmap;
using sample::FaviconMapping;
using sample::SafariIcon;
using sample::SafariIconPage;
using sample::Text;

namespace
{

class FaviconReading : public ReaderTest
{
protected:
    void write(const QList<FaviconBitmap> &bitmaps, const QList<FaviconMapping> &mappings,
               sample::Journal journal = sample::Journal::Clean)
    {
        change([&] { sample::writeFavicons(chromeFile(u"Favicons"_s), bitmaps, mappings, journal); });
    }

    void writeSafari(const QList<SafariIcon> &icons, const QList<SafariIconPage> &pages,
                     sample::Journal journal = sample::Journal::Clean)
    {
        change([&] { sample::writeSafariFavicons(safariFile(u"Favicon Cache"_s), icons, pages, journal); });
    }

    Favicons chromium(const Source &source = chrome())
    {
        const auto favicons = FaviconReader::chromium(source, context());
        if (!favicons)
            ADD_FAILURE() << favicons.error();
        return favicons.value_or(Favicons());
    }

    Favicons safari()
    {
        const auto favicons = FaviconReader::safari(context());
        if (!favicons)
            ADD_FAILURE() << favicons.error();
        return favicons.value_or(Favicons());
    }

    /// The width that is kept when one icon has bitmaps of these, read in this order.
    QByteArray kept(const QList<qint64> &widths)
    {
        QList<FaviconBitmap> bitmaps;
        for (const qint64 width : widths)
            bitmaps.append({.iconID = 1, .image = QByteArray::number(width), .width = width});
        write(bitmaps, {{.pageURL = u"https://a.example/"_s, .iconID = 1}});
        return bytes(chromium(), u"a.example"_s);
    }

    static QByteArray bytes(const Favicons &favicons, const QString &site)
    {
        const auto found = favicons.constFind(site);
        if (found == favicons.cend() || !std::holds_alternative<FaviconData>(*found))
            return "none";
        return std::get<FaviconData>(*found).bytes;
    }

    static QString file(const Favicons &favicons, const QString &site)
    {
        const auto found = favicons.constFind(site);
        if (found == favicons.cend() || !std::holds_alternative<FaviconFile>(*found))
            return u"none"_s;
        return std::get<FaviconFile>(*found).path;
    }
};

} // namespace

TEST_F(FaviconReading, missingStoresMeanNoIcons)
{
    EXPECT_EQ(chromium(), Favicons());
    EXPECT_EQ(safari(), Favicons());
}

TEST_F(FaviconReading, theSmallestWidthFrom32OnWinsElseTheWidest)
{
    EXPECT_EQ(kept({16, 32, 64}), "32");
    EXPECT_EQ(kept({64, 32, 16}), "32");
    EXPECT_EQ(kept({32, 16, 64}), "32");
    EXPECT_EQ(kept({64, 16, 32}), "32");
    EXPECT_EQ(kept({16, 24}), "24");
    EXPECT_EQ(kept({24, 16}), "24");
    EXPECT_EQ(kept({64, 48}), "48");
    EXPECT_EQ(kept({48, 64}), "48");
    EXPECT_EQ(kept({31, 256}), "256");
    EXPECT_EQ(kept({256, 31}), "256");
    EXPECT_EQ(kept({33, 32}), "32");
    EXPECT_EQ(kept({31, 32}), "32");
    EXPECT_EQ(kept({0}), "0");
    EXPECT_EQ(kept({-5, 0}), "0");
}

TEST_F(FaviconReading, amongEqualWidthsTheFirstStays)
{
    for (const qint64 width : {16, 32, 64}) {
        write({{.iconID = 1, .image = "first", .width = width},
               {.iconID = 1, .image = "second", .width = width}},
              {{.pageURL = u"https://a.example/"_s, .iconID = 1}});
        EXPECT_EQ(bytes(chromium(), u"a.example"_s), "first") << width;
    }
}

TEST_F(FaviconReading, bitmapsWithoutBytesDoNotCount)
{
    write({{.iconID = 1, .image = {}, .width = 32},
           {.iconID = 1, .image = QByteArray(""), .width = 32},
           {.iconID = 1, .image = "small", .width = 16},
           {.iconID = 2, .image = {}, .width = 32}},
          {{.pageURL = u"https://a.example/"_s, .iconID = 1},
           {.pageURL = u"https://b.example/"_s, .iconID = 2}});
    EXPECT_EQ(chromium(), (Favicons{{u"a.example"_s, FaviconData{"small"}}}));
}

TEST_F(FaviconReading, aSiteIsTheLowerCaseHostWithoutWwwAndTheLaterPageWins)
{
    write({{.iconID = 1, .image = "one", .width = 32}, {.iconID = 2, .image = "two", .width = 32}},
          {{.pageURL = u"https://WWW.Example.COM/a"_s, .iconID = 1},
           {.pageURL = u"http://example.com:8080/b"_s, .iconID = 2},
           {.pageURL = u"https://user@sub.example.com/"_s, .iconID = 1}});
    EXPECT_EQ(chromium(),
              (Favicons{{u"example.com"_s, FaviconData{"two"}}, {u"sub.example.com"_s, FaviconData{"one"}}}));
}

TEST_F(FaviconReading, pagesWithoutASiteOrAnIconAreSkipped)
{
    write({{.iconID = 1, .image = "one", .width = 32}},
          {{.pageURL = u"about:blank"_s, .iconID = 1},
           {.pageURL = u"file:///tmp/x"_s, .iconID = 1},
           {.pageURL = u""_s, .iconID = 1},
           {.pageURL = u"https://bad host/"_s, .iconID = 1},
           {.pageURL = u"https://unknown.example/"_s, .iconID = 9},
           {.pageURL = u"https://null.example/"_s, .iconID = {}},
           {.pageURL = u"https://good.example/"_s, .iconID = 1},
           // Does not take the icon away that another page has.
           {.pageURL = u"https://good.example/other"_s, .iconID = 9}});
    EXPECT_EQ(chromium(), (Favicons{{u"good.example"_s, FaviconData{"one"}}}));
}

TEST_F(FaviconReading, rowsWithNullsAreSkipped)
{
    const QString path = chromeFile(u"Favicons"_s);
    sample::makeFolder(chromeFile({}));
    sample::Database(path).execute("CREATE TABLE favicon_bitmaps(icon_id, image_data, width);"
                                   "CREATE TABLE icon_mapping(page_url, icon_id);"
                                   "INSERT INTO favicon_bitmaps VALUES(1, x'01', NULL), (NULL, x'02', 16);"
                                   "INSERT INTO icon_mapping VALUES(NULL, 1), ('https://a.example/', 1)");
    EXPECT_EQ(chromium(), (Favicons{{u"a.example"_s, FaviconData{"\x01"}}}));
}

TEST_F(FaviconReading, eachProfileHasItsOwnIcons)
{
    sample::writeFavicons(chromeFile(u"Favicons"_s, u"Profile 1"_s),
                          {{.iconID = 1, .image = "one", .width = 32}},
                          {{.pageURL = u"https://a.example/"_s, .iconID = 1}});
    sample::writeFavicons(edgeFile(u"Favicons"_s), {{.iconID = 1, .image = "two", .width = 32}},
                          {{.pageURL = u"https://a.example/"_s, .iconID = 1}});
    EXPECT_EQ(chromium(), Favicons());
    EXPECT_EQ(bytes(chromium(chrome(u"Profile 1"_s)), u"a.example"_s), "one");
    EXPECT_EQ(bytes(chromium(edge()), u"a.example"_s), "two");
}

TEST_F(FaviconReading, iconsKeepEveryByte)
{
    QByteArray image(100'000, '\0');
    for (qsizetype i = 0; i < image.size(); ++i)
        image[i] = static_cast<char>(i % 251);
    write({{.iconID = 1, .image = image, .width = 32}}, {{.pageURL = u"https://a.example/"_s, .iconID = 1}});
    EXPECT_EQ(bytes(chromium(), u"a.example"_s), image);
}

TEST_F(FaviconReading, iconsThatAreNotMergedYetCount)
{
    QList<FaviconBitmap> bitmaps;
    QList<FaviconMapping> mappings;
    QList<SafariIcon> icons;
    QList<SafariIconPage> pages;
    for (int i = 0; i < 200; ++i) {
        bitmaps.append({.iconID = i, .image = QByteArray(500, 'x'), .width = 32});
        mappings.append({.pageURL = u"https://s%1.example/"_s.arg(i), .iconID = i});
        icons.append({.uuid = QString::number(i), .timestamp = double(i)});
        pages.append({.url = u"https://s%1.example/"_s.arg(i), .uuid = QString::number(i)});
    }
    for (const sample::Journal journal : {sample::Journal::UnmergedWal, sample::Journal::HotJournal}) {
        write(bitmaps, mappings, journal);
        writeSafari(icons, pages, journal);
        EXPECT_EQ(chromium().size(), 200);
        EXPECT_EQ(bytes(chromium(), u"s0.example"_s), QByteArray(500, 'x'));
        EXPECT_EQ(safari().size(), 200);
    }
}

TEST_F(FaviconReading, safarisFilesAreNamedByTheDigestOfTheExactIdentifier)
{
    writeSafari({{.uuid = u"ABC"_s, .timestamp = 1},
                 {.uuid = u"abc"_s, .timestamp = 1},
                 {.uuid = u"Zoë"_s, .timestamp = 1}},
                {{.url = u"https://upper.example/"_s, .uuid = u"ABC"_s},
                 {.url = u"https://www.lower.example/"_s, .uuid = u"abc"_s},
                 {.url = u"https://other.example/"_s, .uuid = u"Zoë"_s}});
    const QString folder = safariFile(u"Favicon Cache/favicons/"_s);
    const Favicons favicons = safari();
    EXPECT_EQ(favicons.size(), 3);
    EXPECT_EQ(file(favicons, u"upper.example"_s), folder + u"902FBDD2B1DF0C4F70B4A5D23525E932"_s);
    EXPECT_EQ(file(favicons, u"lower.example"_s), folder + u"900150983CD24FB0D6963F7D28E17F72"_s);
    EXPECT_EQ(file(favicons, u"other.example"_s), folder + sample::safariIconFileName(u"Zoë"_s.toUtf8()));
}

TEST_F(FaviconReading, safarisNewestIconOfASiteWins)
{
    for (const bool isFirstNewer : {true, false}) {
        writeSafari({{.uuid = u"first"_s, .timestamp = isFirstNewer ? 5.5 : 5.25},
                     {.uuid = u"second"_s, .timestamp = isFirstNewer ? 5.25 : 5.5}},
                    {{.url = u"https://a.example/1"_s, .uuid = u"first"_s},
                     {.url = u"https://www.A.example/2"_s, .uuid = u"second"_s}});
        const QByteArray winner = isFirstNewer ? "first" : "second";
        EXPECT_EQ(file(safari(), u"a.example"_s),
                  safariFile(u"Favicon Cache/favicons/"_s) + sample::safariIconFileName(winner));
    }
}

TEST_F(FaviconReading, safarisPagesWithoutASiteOrAnIconAreSkipped)
{
    writeSafari({{.uuid = u"one"_s, .timestamp = 1}},
                {{.url = u"about:blank"_s, .uuid = u"one"_s},
                 {.url = u"https://null.example/"_s, .uuid = {}},
                 {.url = {}, .uuid = u"one"_s},
                 {.url = u"https://unknown.example/"_s, .uuid = u"two"_s},
                 {.url = u"https://good.example/"_s, .uuid = u"one"_s}});
    EXPECT_EQ(safari().keys(), QStringList{u"good.example"_s});
}

} // namespace roamlet::testing
