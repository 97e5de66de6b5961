// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "BrowserHome.h"

#include "SampleHome/PlainFiles.h"
#include "SampleHome/SampleText.h"

#include <QJsonObject>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

void BrowserHome::addProfiles() const
{
    sample::writeLocalState(chrome(u"Local State"_s),
                            {{u"Default"_s, QJsonObject{{u"name"_s, u"Personal"_s}}},
                             {u"Profile 1"_s, QJsonObject{{u"name"_s, u"Work"_s}}}});
    sample::writeLocalState(edge(u"Local State"_s), {{u"Default"_s, QJsonObject{{u"name"_s, u"Office"_s}}}});
    for (const QString &folder : {chrome(u"Default"_s), chrome(u"Profile 1"_s), edge(u"Default"_s)})
        sample::makeFolder(folder);
}

void BrowserHome::addPages() const
{
    addProfiles();
    sample::writeHistory(
        chrome(u"Default/History"_s),
        {page(u"https://www.example.org/news"_s, u"Daily page"_s, 12, newest),
         page(u"https://example.org:8443/bike"_s, u"Blue Bike page 東京"_s, 3, newest - 7200),
         page(u"https://mirror.example.net/?from=https://example.org/"_s, u"Mirror page"_s, 7,
              newest - 10800)});
    sample::writeHistory(chrome(u"Profile 1/History"_s),
                         {page(u"https://work.example.com/"_s, u"Board page"_s, 40, newest - 3600),
                          page(u"https://bike.example.com/"_s, u"Red Bike page"_s, 2, newest - 86'400)});
    sample::writeHistory(edge(u"Default/History"_s),
                         {page(u"https://intra.example/page"_s, QString(), 5, newest - 60)});
}

void BrowserHome::addBookmarks() const
{
    const qint64 added = sample::chromiumTime(newest);
    const QJsonArray bar{sample::bookmarkNode(u"5"_s, u"A & B"_s, u"https://a.example/?x=1&y=2"_s, added),
                         sample::folderNode(u"6"_s, u"Sub"_s,
                                            {sample::bookmarkNode(u"7"_s, u"Größe, \"東京\""_s,
                                                                  u"https://b.example/"_s, added + 900'000)}),
                         sample::folderNode(u"8"_s, u"Empty"_s, {})};
    sample::writeBookmarks(
        chrome(u"Default/Bookmarks"_s),
        {{u"bookmark_bar"_s, sample::folderNode(u"1"_s, u"Bar"_s, bar)},
         {u"other"_s, sample::folderNode(u"2"_s, u"Other"_s, {})},
         {u"synced"_s,
          sample::folderNode(u"3"_s, u"Phone"_s,
                             {sample::bookmarkNode(u"9"_s, u"C"_s, u"https://c.example/"_s, 0)})}});
}

void BrowserHome::addIcons() const
{
    sample::writeFavicons(chrome(u"Default/Favicons"_s),
                          {{.iconID = 1, .image = sample::siteIcon(1, 16), .width = 16}},
                          {{.pageURL = u"https://www.example.org/news"_s, .iconID = 1},
                           {.pageURL = u"https://example.org/"_s, .iconID = 1},
                           {.pageURL = u"https://a.example/"_s, .iconID = 1}});
}

void BrowserHome::setSettings(const QByteArray &linesInGeneral) const
{
    sample::writeFile(path(u".config/Roamlet/Roamlet.conf"_s), "[General]\n" + linesInGeneral);
}

sample::HistoryRow BrowserHome::page(const QString &url, const QString &title, qint64 visits, qint64 moment)
{
    return {.url = url, .title = title, .visitCount = visits, .lastVisitTime = sample::chromiumTime(moment)};
}

} // namespace roamlet::testing
