// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/FuzzHome.h"
#include "Kit/Looks.h"
#include "Kit/Sources.h"
#include "Kit/Targets.h"
#include "Readers/Chromium/ChromiumReader.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/SampleBookmarks.h"

#include <QFile>
#include <QJsonObject>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

void attackChromiumBookmarks(QByteArrayView bytes)
{
    static const FuzzHome home(u"Library/Application Support/Google/Chrome/Default/Bookmarks"_s);
    home.reading(bytes, [] {
        static const ReadContext context = home.context();
        lookAt(ChromiumReader::bookmarks(chrome(), context));
    });
}

QList<QByteArray> chromiumBookmarkSeeds()
{
    QList<QByteArray> seeds;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Bookmarks"_s);
    const auto add = [&](const QJsonObject &roots) {
        sample::writeBookmarks(path, roots);
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            seeds.append(file.readAll());
    };
    qint64 id = 10;
    const QJsonArray nodes = sample::chromiumNodes(sample::bookmarkEntries(1, 6, 1'700'000'000), id);
    add({});
    add({{u"bookmark_bar"_s, sample::folderNode(u"1"_s, u"Bar"_s, nodes)},
         {u"other"_s, sample::folderNode(u"2"_s, u"Other"_s, {})},
         {u"synced"_s, sample::folderNode(u"3"_s, u"Mobile"_s, {})}});
    add({{u"custom_root"_s, sample::operaCustomRoot({{u"speedDial"_s, nodes}})}});
    seeds.append(
        "{\"roots\":{\"other\":{\"children\":[{\"url\":\"https://a.example/\",\"name\":\"\\ud83d\\ude00\","
        "\"type\":\"url\",\"date_added\":\"13300000000000000\"}],\"type\":\"folder\"}}}");
    return seeds;
}

} // namespace

Target chromiumBookmarks()
{
    return {.name = "ChromiumBookmarks",
            .attack = attackChromiumBookmarks,
            .seeds = chromiumBookmarkSeeds,
            .dictionary = "ChromiumBookmarks",
            .longest = 8192};
}

} // namespace roamlet::fuzz
