// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/DatabaseInput.h"
#include "Kit/HistoryReading.h"
#include "Kit/Targets.h"
#include "SampleHome/SafariFiles.h"

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

void attackSafariHistory(QByteArrayView bytes)
{
    static const FuzzHome home(u"Library/Safari/History.db"_s);
    DatabaseInput::of(bytes).attack(home, [] {
        static const ReadContext context = home.context();
        readHistory(Source::safari(), context);
    });
}

QList<QByteArray> safariHistorySeeds()
{
    return databaseSeeds(
               {.tables = "CREATE TABLE history_items(id INTEGER PRIMARY KEY, url TEXT NOT NULL UNIQUE,"
                          "visit_count INTEGER NOT NULL);"
                          "CREATE TABLE history_visits(id INTEGER PRIMARY KEY, history_item INTEGER NOT NULL,"
                          "visit_time REAL NOT NULL, title TEXT NULL);"
                          "CREATE INDEX history_visits__item ON history_visits(history_item)",
                .earlier = "INSERT INTO history_items VALUES(1, 'https://www.a.example/x', 3), (2, "
                           "'https://b.example/', 1);"
                           "INSERT INTO history_visits VALUES(1, 1, 700000000.5, 'One word'), (2, 1, "
                           "700000001, NULL)",
                .later =
                    "INSERT INTO history_items VALUES(3, 'http://a.example:80/', 7);"
                    "INSERT INTO history_visits VALUES(3, 2, 700000002.25, 'two'), (4, 3, 700000003, 'Zoë')",
                .change = "UPDATE history_visits SET title = 'wrong'"}) +
           QList<QByteArray>{databaseSeed([](const QString &path) {
               sample::writeSafariHistory(path, {{.id = 1, .url = u"https://www.a.example/x"_s}},
                                          {{.itemID = 1, .time = 700'000'000.5, .title = u"One word"_s},
                                           {.itemID = 1, .time = 700'000'001, .title = u"ä"_s}});
           })};
}

} // namespace

Target safariHistory()
{
    return {.name = "SafariHistory",
            .attack = attackSafariHistory,
            .seeds = safariHistorySeeds,
            .dictionary = "Database",
            .longest = 100'000,
            .input = Target::Input::Database};
}

} // namespace roamlet::fuzz
