// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/FaviconReader.h"

#include "Readers/ReaderTest.h"
#include "SampleHome/AwkwardFirefox.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/SafariFiles.h"
#include "SampleHome/SqliteFile.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using sample::FaviconBitmap;
using sample::FaviconMapping;
using sample::FirefoxIcon;
using sample::FirefoxIconPage;
using sample::SafariIcon;
using sample::SafariIconPage;
using sample::Text;

namespace
{

/// Leads all rows of a database that continue on further pages to the pages of the first of them, and cuts
/// the others off.
void shareOverflowPages(const QString &path, qint64 size)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::ReadWrite));
    QByteArray bytes = file.readAll();
    const auto number = [&bytes](qsizetype place) {
        return qFromBigEndian<quint16>(bytes.constData() + place);
    };
    const auto varint = [&bytes](qsizetype &place) {
        qint64 value = 0;
        for (bool goesOn = true; goesOn; ++place) {
            value = value << 7 | (bytes[place] & 0x7f);
            goesOn = (bytes[place] & 0x80) != 0;
        }
        return value;
    };
    const qsizetype page = number(16);
    const qint64 least = ((page - 12) * 32 / 255) - 23;
    QByteArray first;
    for (qsizetype begin = page; begin < bytes.size(); begin += page) {
        constexpr char leafOfTable = 13;
        for (int cell = 0; bytes[begin] == leafOfTable && cell < number(begin + 3); ++cell) {
            qsizetype place = begin + number(begin + 8 + (2 * cell));
            const qint64 payload = varint(place);
            varint(place);
            if (payload <= page - 35)
                continue;
            const qint64 local = least + ((payload - least) % (page - 4));
            place += local <= page - 35 ? local : least;
            if (first.isEmpty())
                first = bytes.mid(place, 4);
            bytes.replace(place, 4, first);
        }
    }
    ASSERT_FALSE(first.isEmpty());
    bytes.truncate(size);
    qToBigEndian(static_cast<quint32>(size / page), bytes.data() + 28);
    ASSERT_TRUE(file.resize(size) && file.seek(0) && file.write(bytes) == size);
}

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

    void writeFirefox(const QList<FirefoxIcon> &icons, const QList<FirefoxIconPage> &pages,
                      sample::Journal journal = sample::Journal::Clean)
    {
        change(
            [&] { sample::writeFirefoxFavicons(firefoxFile(u"favicons.sqlite"_s), icons, pages, journal); });
    }

    Favicons firefoxIcons(const Source &source = firefox())
    {
        const auto favicons = FaviconReader::firefox(source, context());
        if (!favicons)
            ADD_FAILURE() << favicons.error();
        return favicons.value_or(Favicons());
    }

    /// The width that is kept when one page has icons of these, or one host.
    QByteArray keptOfFirefox(const QList<qint64> &widths, bool areRoots = false)
    {
        QList<FirefoxIcon> icons;
        QList<qint64> numbers;
        for (const qint64 width : widths) {
            numbers.append(icons.size() + 1);
            icons.append({.url = u"https://a.example/favicon.ico"_s,
                          .width = width,
                          .root = areRoots,
                          .data = QByteArray::number(width)});
        }
        writeFirefox(icons, areRoots
                                ? QList<FirefoxIconPage>()
                                : QList<FirefoxIconPage>{{.url = u"https://a.example/"_s, .icons = numbers}});
        return bytes(firefoxIcons(), u"a.example"_s);
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
    EXPECT_EQ(firefoxIcons(), Favicons());
}

TEST_F(FaviconReading, theSmallestWidthFrom32OnWinsElseTheWidest)
{
    QList<qint64> widths{16, 32, 64};
    do {
        EXPECT_EQ(kept(widths), "32") << widths[0] << ' ' << widths[1] << ' ' << widths[2];
    } while (std::ranges::next_permutation(widths).found);
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

TEST_F(FaviconReading, bitmapsThatAllLieInTheSamePlaceAreAnErrorBeforeTheyFillTheMemory)
{
    // All but the beginning of each of them lies on pages of its own, one bitmap after the other.
    const QString file = chromeFile(u"Favicons"_s);
    const auto writeBitmaps = [&](int count) {
        QFile::remove(file);
        sample::writeFile(file, "");
        sample::Database database(file);
        database.execute("CREATE TABLE favicon_bitmaps(icon_id, image_data, width);"
                         "CREATE TABLE icon_mapping(page_url, icon_id)");
        for (int i = 1; i <= count; ++i) {
            const QByteArray number = QByteArray::number(i);
            const QByteArray rows = "INSERT INTO favicon_bitmaps VALUES(" + number +
                                    ", zeroblob(4092 * 250), 32); INSERT INTO icon_mapping "
                                    "VALUES('https://site" +
                                    number + ".example/', " + number + ")";
            database.execute(rows.constData());
        }
    };
    change([&] { writeBitmaps(1); });
    const qint64 sizeOfOne = QFileInfo(file).size();
    change([&] { writeBitmaps(6); });
    EXPECT_EQ(chromium().size(), 6) << "honest ones";
    change([&] { shareOverflowPages(file, sizeOfOne); });
    const auto favicons = FaviconReader::chromium(chrome(), context());
    ASSERT_FALSE(favicons);
    EXPECT_EQ(favicons.error().reason(), u"database disk image is malformed"_s);
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

TEST_F(FaviconReading, ofAFirefoxPagesIconsTheBestWidthWins)
{
    for (const bool areRoots : {false, true}) {
        QList<qint64> widths{16, 32, 64};
        do {
            EXPECT_EQ(keptOfFirefox(widths, areRoots), "32")
                << widths[0] << ' ' << widths[1] << ' ' << widths[2];
        } while (std::ranges::next_permutation(widths).found);
        EXPECT_EQ(keptOfFirefox({16, 24}, areRoots), "24");
        EXPECT_EQ(keptOfFirefox({64, 48}, areRoots), "48");
        EXPECT_EQ(keptOfFirefox({48, 64}, areRoots), "48");
        EXPECT_EQ(keptOfFirefox({31, 256}, areRoots), "256");
        EXPECT_EQ(keptOfFirefox({0}, areRoots), "0");
    }
}

TEST_F(FaviconReading, ofEqualWidthsTheFirstFirefoxIconStays)
{
    for (const bool isRoot : {false, true}) {
        const QString url = u"https://a.example/favicon.ico"_s;
        writeFirefox({{.url = url, .width = 32, .root = isRoot, .data = "first"},
                      {.url = url, .width = 32, .root = isRoot, .data = "second"}},
                     {{.url = isRoot ? u"about:blank"_s : u"https://a.example/"_s, .icons = {2, 1}}});
        EXPECT_EQ(bytes(firefoxIcons(), u"a.example"_s), "first");
    }
}

TEST_F(FaviconReading, drawingsAndIconsWithoutBytesDoNotCount)
{
    writeFirefox({{.url = u"https://a.example/svg"_s, .width = FirefoxIcon::drawing, .data = "<svg/>"},
                  {.url = u"https://a.example/16"_s, .width = 16, .data = "small"},
                  {.url = u"fake-favicon-uri:https://a.example/"_s, .width = 32},
                  {.url = u"https://a.example/empty"_s, .width = 32, .data = QByteArray("")},
                  {.url = u"https://c.example/favicon.ico"_s,
                   .width = FirefoxIcon::drawing,
                   .root = true,
                   .data = "<svg/>"},
                  {.url = u"https://d.example/favicon.ico"_s, .width = 16, .root = true}},
                 {{.url = u"https://a.example/"_s, .icons = {1, 2, 3, 4}},
                  {.url = u"https://b.example/"_s, .icons = {1, 3, 4}}});
    EXPECT_EQ(firefoxIcons(), (Favicons{{u"a.example"_s, FaviconData{"small"}}}));
}

TEST_F(FaviconReading, aHostsOwnIconServesWhereNoPageHasOne)
{
    writeFirefox(
        {{.url = u"https://cdn.example/page.png"_s, .width = 16, .data = "page"},
         {.url = u"https://www.A.example/favicon.ico"_s, .width = 32, .root = true, .data = "host a"},
         {.url = u"https://b.example:8443/favicon.ico"_s, .width = 32, .root = true, .data = "host b"},
         {.url = u"fake-favicon-uri:https://c.example/"_s, .width = 16, .data = "imported"},
         {.url = u"/favicon.ico"_s, .width = 16, .root = true, .data = "of nobody"}},
        {{.url = u"https://a.example/"_s, .icons = {1}}, {.url = u"https://c.example/x"_s, .icons = {4}}});
    EXPECT_EQ(firefoxIcons(), (Favicons{{u"a.example"_s, FaviconData{"page"}},
                                        {u"b.example"_s, FaviconData{"host b"}},
                                        {u"c.example"_s, FaviconData{"imported"}}}));
}

TEST_F(FaviconReading, ofAFirefoxSitesPagesTheLaterOneWins)
{
    writeFirefox({{.url = u"https://a.example/1"_s, .width = 32, .data = "one"},
                  {.url = u"https://a.example/2"_s, .width = 16, .data = "two"}},
                 {{.url = u"https://WWW.A.example/x"_s, .icons = {1}},
                  {.url = u"http://a.example:80/y"_s, .icons = {2}},
                  {.url = u"https://a.example/without"_s},
                  {.url = u"https://a.example/unknown"_s, .icons = {1'000}},
                  {.url = u"about:blank"_s, .icons = {1}},
                  {.url = u""_s, .icons = {1}}});
    EXPECT_EQ(firefoxIcons(), (Favicons{{u"a.example"_s, FaviconData{"two"}}}));
}

TEST_F(FaviconReading, firefoxIconsThatAreNotMergedYetCount)
{
    QList<FirefoxIcon> icons;
    QList<FirefoxIconPage> pages;
    for (int i = 0; i < 200; ++i) {
        const QString url = u"https://s%1.example/"_s.arg(i);
        icons.append({.url = url, .width = 32, .data = QByteArray(500, 'x')});
        pages.append({.url = url, .icons = {i + 1}});
    }
    for (const sample::Journal journal :
         {sample::Journal::UnmergedWal, sample::Journal::WalAlone, sample::Journal::HotJournal}) {
        writeFirefox(icons, pages, journal);
        EXPECT_EQ(firefoxIcons().size(), 200);
        EXPECT_EQ(bytes(firefoxIcons(), u"s0.example"_s), QByteArray(500, 'x'));
        EXPECT_EQ(bytes(firefoxIcons(), u"s199.example"_s), QByteArray(500, 'x'));
    }
}

TEST_F(FaviconReading, awkwardFirefoxIconsAreReadAsFarAsTheyGo)
{
    writeFirefox(sample::awkwardFirefoxIcons(1), sample::awkwardFirefoxIconPages(1));
    const Favicons favicons = firefoxIcons();
    QStringList sites = favicons.keys();
    sites.sort();
    EXPECT_EQ(sites, (QStringList{u""_s, u"[2001:db8::1]"_s, u"broken.example"_s, u"fake.example"_s,
                                  u"many.example"_s, u"root.example"_s, u"upper.example"_s,
                                  u"wrong-width.example"_s}));
    EXPECT_EQ(favicons.value(u"many.example"_s), favicons.value(u"upper.example"_s));
}

TEST_F(FaviconReading, eachFirefoxProfileHasItsOwnIcons)
{
    change([&] {
        sample::writeFirefoxFavicons(firefoxFile(u"favicons.sqlite"_s, u"efgh.work"_s),
                                     {{.url = u"https://a.example/i"_s, .width = 32, .data = "one"}},
                                     {{.url = u"https://a.example/"_s, .icons = {1}}});
    });
    EXPECT_EQ(firefoxIcons(), Favicons());
    EXPECT_EQ(bytes(firefoxIcons(firefox(u"efgh.work"_s)), u"a.example"_s), "one");
}

} // namespace roamlet::testing
