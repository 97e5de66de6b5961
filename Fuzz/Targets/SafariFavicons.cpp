// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/DatabaseInput.h"
#include "Kit/Looks.h"
#include "Kit/Targets.h"
#include "Readers/FaviconReader.h"
#include "SampleHome/PlainFiles.h"
#include "SampleHome/SafariFiles.h"

#include <QDir>
#include <QFile>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

void attackSafariFavicons(QByteArrayView bytes)
{
    static const FuzzHome home(u"Library/Safari/Favicon Cache/favicons.db"_s);
    DatabaseInput::of(bytes).attack(home, [] {
        static const ReadContext context = home.context();
        const auto favicons = FaviconReader::safari(context);
        lookAt(favicons);
        const QString folder = home.path() % u"/Library/Safari/Favicon Cache/favicons/";
        for (const Favicon &favicon : favicons.value_or(Favicons())) {
            const auto *file = std::get_if<FaviconFile>(&favicon);
            require(file != nullptr && QDir::cleanPath(file->path).startsWith(folder),
                    "an icon lies in the folder of icons");
        }
    });
}

QList<QByteArray> safariFaviconSeeds()
{
    return databaseSeeds(
               {.tables =
                    "CREATE TABLE page_url(url TEXT NOT NULL, uuid TEXT NOT NULL);"
                    "CREATE TABLE icon_info(uuid TEXT PRIMARY KEY NOT NULL, timestamp INTEGER NOT NULL)",
                .earlier = "INSERT INTO page_url VALUES('https://www.a.example/x', "
                           "'6F9619FF-8B86-D011-B42D-00CF4FC964FF');"
                           "INSERT INTO icon_info VALUES('6F9619FF-8B86-D011-B42D-00CF4FC964FF', 700000000)",
                .later = "INSERT INTO page_url VALUES('https://b.example/', '../..');"
                         "INSERT INTO icon_info VALUES('../..', 700000001)",
                .change = "UPDATE icon_info SET timestamp = 1"}) +
           QList<QByteArray>{databaseSeed([](const QString &path) {
               const QTemporaryDir folder;
               sample::writeSafariFavicons(folder.path(), {{.uuid = u"u"_s, .timestamp = 1}},
                                           {{.url = u"https://www.a.example/x"_s, .uuid = u"u"_s}});
               if (!QFile::copy(folder.filePath(u"favicons.db"_s), path))
                   throw sample::Failure(path);
           })};
}

} // namespace

Target safariFavicons()
{
    return {.name = "SafariFavicons",
            .attack = attackSafariFavicons,
            .seeds = safariFaviconSeeds,
            .dictionary = "Database",
            .longest = 60'000,
            .input = Target::Input::Database};
}

} // namespace roamlet::fuzz
