// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/DatabaseInput.h"
#include "Kit/Looks.h"
#include "Kit/Sources.h"
#include "Kit/Targets.h"
#include "Readers/FaviconReader.h"
#include "SampleHome/FirefoxFiles.h"

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

void attackFirefoxFavicons(QByteArrayView bytes)
{
    static const FuzzHome home(u"Library/Application Support/Firefox/abcd.default/favicons.sqlite"_s);
    DatabaseInput::of(bytes).attack(home, [] {
        static const ReadContext context = home.context();
        lookAt(FaviconReader::firefox(firefox(), context));
    });
}

QList<QByteArray> firefoxFaviconSeeds()
{
    return databaseSeeds(
               {.tables =
                    "CREATE TABLE moz_icons(id INTEGER PRIMARY KEY, icon_url TEXT NOT NULL, width INTEGER,"
                    "root INTEGER NOT NULL DEFAULT 0, data BLOB);"
                    "CREATE TABLE moz_pages_w_icons(id INTEGER PRIMARY KEY, page_url TEXT NOT NULL);"
                    "CREATE TABLE moz_icons_to_pages(page_id INTEGER, icon_id INTEGER,"
                    "PRIMARY KEY(page_id, icon_id)) WITHOUT ROWID",
                .earlier = "INSERT INTO moz_icons VALUES(1, 'https://www.a.example/i', 16, 0, x'89504E47');"
                           "INSERT INTO moz_pages_w_icons VALUES(1, 'https://www.a.example/x');"
                           "INSERT INTO moz_icons_to_pages VALUES(1, 1)",
                .later =
                    "INSERT INTO moz_icons VALUES(2, 'https://b.example/favicon.ico', 32, 1, zeroblob(1200)),"
                    "(3, 'https://c.example/s', 65535, 0, x'3C');"
                    "INSERT INTO moz_pages_w_icons VALUES(2, 'https://b.example/');"
                    "INSERT INTO moz_icons_to_pages VALUES(2, 2), (2, 3)",
                .change = "UPDATE moz_icons SET width = 64"}) +
           QList<QByteArray>{databaseSeed([](const QString &path) {
               sample::writeFirefoxFavicons(
                   path, {{.url = u"https://www.a.example/i"_s, .width = 32, .root = true, .data = "i"}},
                   {{.url = u"https://www.a.example/x"_s, .icons = {1}}});
           })};
}

} // namespace

Target firefoxFavicons()
{
    return {.name = "FirefoxFavicons",
            .attack = attackFirefoxFavicons,
            .seeds = firefoxFaviconSeeds,
            .dictionary = "Database",
            .longest = 100'000,
            .input = Target::Input::Database};
}

} // namespace roamlet::fuzz
