// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/DatabaseInput.h"
#include "Kit/Looks.h"
#include "Kit/Sources.h"
#include "Kit/Targets.h"
#include "Readers/FaviconReader.h"
#include "SampleHome/ChromiumFiles.h"

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

void attackChromiumFavicons(QByteArrayView bytes)
{
    static const FuzzHome home(u"Library/Application Support/Google/Chrome/Default/Favicons"_s);
    DatabaseInput::of(bytes).attack(home, [] {
        static const ReadContext context = home.context();
        lookAt(FaviconReader::chromium(chrome(), context));
    });
}

QList<QByteArray> chromiumFaviconSeeds()
{
    return databaseSeeds(
               {.tables = "CREATE TABLE favicon_bitmaps(id INTEGER PRIMARY KEY, icon_id INTEGER NOT NULL,"
                          "image_data BLOB, width INTEGER DEFAULT 0);"
                          "CREATE TABLE icon_mapping(id INTEGER PRIMARY KEY, page_url LONGVARCHAR,"
                          "icon_id INTEGER)",
                .earlier = "INSERT INTO favicon_bitmaps VALUES(1, 1, x'89504E47', 16), (2, 1, x'01', 32);"
                           "INSERT INTO icon_mapping VALUES(1, 'https://www.a.example/x', 1)",
                .later = "INSERT INTO favicon_bitmaps VALUES(3, 2, zeroblob(1200), 32);"
                         "INSERT INTO icon_mapping VALUES(2, 'https://b.example/', 2)",
                .change = "UPDATE favicon_bitmaps SET width = 64"}) +
           QList<QByteArray>{databaseSeed([](const QString &path) {
               sample::writeFavicons(path,
                                     {{.iconID = 1, .image = QByteArray(40, 'i'), .width = 16},
                                      {.iconID = 1, .image = QByteArray(90, 'j'), .width = 32}},
                                     {{.pageURL = u"https://www.a.example/x"_s, .iconID = 1}});
           })};
}

} // namespace

Target chromiumFavicons()
{
    return {.name = "ChromiumFavicons",
            .attack = attackChromiumFavicons,
            .seeds = chromiumFaviconSeeds,
            .dictionary = "Database",
            .longest = 100'000,
            .input = Target::Input::Database};
}

} // namespace roamlet::fuzz
