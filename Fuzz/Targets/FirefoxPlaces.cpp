// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/DatabaseInput.h"
#include "Kit/HistoryReading.h"
#include "Kit/Looks.h"
#include "Kit/Sources.h"
#include "Kit/Targets.h"
#include "Readers/Firefox/FirefoxReader.h"
#include "SampleHome/FirefoxFiles.h"

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

void attackFirefoxPlaces(QByteArrayView bytes)
{
    static const FuzzHome home(u"Library/Application Support/Firefox/abcd.default/places.sqlite"_s);
    DatabaseInput::of(bytes).attack(home, [] {
        static const ReadContext context = home.context();
        readHistory(firefox(), context);
        const HistoryQuery recent = HistoryQuery::recent();
        const FirefoxReader::Content content = FirefoxReader::content(firefox(), recent, context);
        lookAt(content.bookmarks);
        lookAt(content.history, recent);
    });
}

QList<QByteArray> firefoxPlacesSeeds()
{
    return databaseSeeds(
               {.tables =
                    "CREATE TABLE moz_places(id INTEGER PRIMARY KEY, url LONGVARCHAR, title LONGVARCHAR,"
                    "visit_count INTEGER DEFAULT 0, hidden INTEGER DEFAULT 0 NOT NULL, last_visit_date "
                    "INTEGER);"
                    "CREATE INDEX moz_places_lastvisitdateindex ON moz_places(last_visit_date);"
                    "CREATE TABLE moz_bookmarks(id INTEGER PRIMARY KEY, type INTEGER, fk INTEGER DEFAULT "
                    "NULL,"
                    "parent INTEGER, position INTEGER, title LONGVARCHAR, dateAdded INTEGER, guid TEXT)",
                .earlier = "INSERT INTO moz_places VALUES(1, 'https://www.a.example/x', 'One word', 3, 0, "
                           "1700000000000000), (2, 'https://b.example/', NULL, 1, 0, 1700000000000001);"
                           "INSERT INTO moz_bookmarks VALUES(1, 2, NULL, 0, 0, '', 1, 'root________'),"
                           "(2, 2, NULL, 1, 0, 'menu', 1, 'menu________'),"
                           "(3, 2, NULL, 1, 1, 'toolbar', 1, 'toolbar_____'), (4, 2, NULL, 1, 2, 'tags', 1, "
                           "'tags________')",
                .later =
                    "INSERT INTO moz_places VALUES(3, 'http://a.example:80/', 'Zoë', 7, 0, 1700000000000002),"
                    "(4, 'https://c.example/', 'hidden', 1, 1, NULL);"
                    "INSERT INTO moz_bookmarks VALUES(5, 1, 1, 3, 0, 'one', 1700000000000000, "
                    "'abcdefghijkl'),"
                    "(6, 2, NULL, 3, 1, 'folder', 1, 'abcdefghijkm'), (7, 1, 2, 6, 0, NULL, 1, "
                    "'abcdefghijkn'),"
                    "(8, 3, NULL, 6, 1, NULL, 1, 'abcdefghijko')",
                .change = "UPDATE moz_places SET title = 'wrong'"}) +
           QList<QByteArray>{databaseSeed([](const QString &path) {
               sample::FirefoxBookmarks bookmarks;
               bookmarks.toolbar = {
                   sample::firefoxBookmark(u"one"_s, u"https://www.a.example/x"_s, 1, {u"tag"_s}),
                   sample::firefoxFolder(u"folder"_s, {sample::firefoxSeparator()})};
               sample::writeFirefoxPlaces(path,
                                          {{.url = u"https://www.a.example/x"_s,
                                            .title = u"One word"_s,
                                            .lastVisitDate = sample::firefoxTime(1'700'000'000)}},
                                          sample::firefoxBookmarkRows(bookmarks));
           })};
}

} // namespace

Target firefoxPlaces()
{
    return {.name = "FirefoxPlaces",
            .attack = attackFirefoxPlaces,
            .seeds = firefoxPlacesSeeds,
            .dictionary = "Database",
            .longest = 100'000,
            .input = Target::Input::Database};
}

} // namespace roamlet::fuzz
