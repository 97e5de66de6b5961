// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/DatabaseInput.h"
#include "Kit/HistoryReading.h"
#include "Kit/Sources.h"
#include "Kit/Targets.h"
#include "Readers/BrowserReader.h"
#include "Readers/HistoryText.h"
#include "SampleHome/ChromiumFiles.h"

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

void attackChromiumHistory(QByteArrayView bytes)
{
    static const FuzzHome home(u"Library/Application Support/Google/Chrome/Default/History"_s);
    DatabaseInput::of(bytes).attack(home, [] {
        static const ReadContext context = home.context();
        readHistory(chrome(), context);
    });
}

QList<QByteArray> chromiumHistorySeeds()
{
    return databaseSeeds(
               {.tables = "CREATE TABLE urls(id INTEGER PRIMARY KEY, url LONGVARCHAR, title LONGVARCHAR,"
                          "visit_count INTEGER, last_visit_time INTEGER NOT NULL, hidden INTEGER DEFAULT 0);"
                          "CREATE INDEX urls_url_index ON urls(url)",
                .earlier = "INSERT INTO urls VALUES(1, 'https://www.a.example/x', 'One word', 3, "
                           "13344473600000000, 0), (2, 'https://b.example/', '', 1, 13344473600000001, 0)",
                .later = "INSERT INTO urls VALUES(3, 'http://a.example:80/', 'Zoë', 7, 13344473600000002, 0),"
                         "(4, 'https://c.example/', 'hidden', 1, 13344473600000003, 1)",
                .change = "UPDATE urls SET title = 'wrong'"}) +
           QList<QByteArray>{databaseSeed([](const QString &path) {
               sample::writeHistory(path, {{.url = u"https://www.a.example/x"_s,
                                            .title = u"One word"_s,
                                            .lastVisitTime = sample::chromiumTime(1'700'000'000)},
                                           {.url = u"https://b.example/"_s,
                                            .title = u"ä"_s,
                                            .lastVisitTime = sample::chromiumTime(1'700'000'001)}});
           })};
}

} // namespace

Target chromiumHistory()
{
    return {.name = "ChromiumHistory",
            .attack = attackChromiumHistory,
            .seeds = chromiumHistorySeeds,
            .dictionary = "Database",
            .longest = 100'000,
            .input = Target::Input::Database};
}

} // namespace roamlet::fuzz
