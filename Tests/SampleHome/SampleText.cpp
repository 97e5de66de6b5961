// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/SampleText.h"

#include <QBuffer>
#include <QColor>
#include <QImage>

#include <algorithm>
#include <array>
#include <utility>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int subjectsPerSite = 6;

/// A site with a few things that its pages are about: a title, and what it becomes in a URL.
struct Site {
    QStringView address;
    QStringView name;
    std::array<std::pair<QStringView, QStringView>, subjectsPerSite> subjects;
};

constexpr std::array sites{Site{u"https://www.riverside-gazette.example/",
                                u"Riverside Gazette",
                                {{{u"City council votes for the new tram line", u"city/tram-vote"},
                                  {u"What the harbour looked like a hundred years ago", u"history/harbour"},
                                  {u"Weekend weather: sun, then more sun", u"weather/weekend"},
                                  {u"The library stays open until midnight", u"city/library-hours"},
                                  {u"Three bakeries, one queue", u"food/bakeries"},
                                  {u"Letters to the editor", u"opinion/letters"}}}},
                           Site{u"https://wiki.example.org/",
                                u"Open Wiki",
                                {{{u"Astrolabe", u"wiki/Astrolabe"},
                                  {u"History of the bicycle", u"wiki/History_of_the_bicycle"},
                                  {u"List of lighthouses", u"wiki/List_of_lighthouses"},
                                  {u"Sourdough", u"wiki/Sourdough"},
                                  {u"Møøse", u"wiki/M%C3%B8%C3%B8se"},
                                  {u"Binary search", u"wiki/Binary_search"}}}},
                           Site{u"https://code.example.org/",
                                u"Code Forge",
                                {{{u"Fix the off-by-one in the date picker", u"roof/calendar/pull"},
                                  {u"Crash when the disk is full · Issue", u"roof/backup/issues"},
                                  {u"Release notes", u"roof/calendar/releases"},
                                  {u"README.md at main", u"lantern/blob/main"},
                                  {u"Compare v2.1...v2.2", u"lantern/compare"},
                                  {u"Build failed: linux-arm64", u"lantern/actions/runs"}}}},
                           Site{u"https://docs.lantern.test/en/latest/",
                                u"Lantern documentation",
                                {{{u"Getting started", u"start"},
                                  {u"Configuration reference", u"reference/configuration"},
                                  {u"Migrating from version 1", u"howto/migrate"},
                                  {u"class Lamp<T>", u"api/Lamp"},
                                  {u"Frequently asked questions", u"faq"},
                                  {u"Search results for “timeout”", u"search?q=timeout&page"}}}},
                           Site{u"https://mail.example.net/",
                                u"Mail",
                                {{{u"Inbox (12)", u"mail/inbox"},
                                  {u"Re: Invoice for March", u"mail/thread"},
                                  {u"Your train tickets", u"mail/travel"},
                                  {u"Drafts", u"mail/drafts"},
                                  {u"Contacts", u"contacts"},
                                  {u"Settings", u"settings"}}}},
                           Site{u"https://shop.kettle-and-cup.example/",
                                u"Kettle & Cup",
                                {{{u"Gooseneck kettle, 0.9 l", u"kettles/gooseneck?ref"},
                                  {u"Teapots", u"teapots?page"},
                                  {u"Your basket", u"basket"},
                                  {u"Order confirmed", u"orders"},
                                  {u"Spare lids & filters", u"parts/lids"},
                                  {u"Gift cards", u"gifts"}}}},
                           Site{u"https://forum.clock-makers.example/",
                                u"Clock Makers Forum",
                                {{{u"Pendulum stops after ten minutes", u"t/pendulum-stops"},
                                  {u"Which oil for a 1920s movement?", u"t/which-oil"},
                                  {u"[SOLVED] Broken mainspring", u"t/mainspring"},
                                  {u"Show your workshop!", u"t/workshops"},
                                  {u"New members say hello", u"t/hello"},
                                  {u"For sale: lathe, slightly used", u"t/lathe"}}}},
                           Site{u"https://video.example.com/",
                                u"Watch",
                                {{{u"How a harpsichord is made", u"watch?v=harpsichord"},
                                  {u"4 hours of rain on a tin roof", u"watch?v=rain"},
                                  {u"Knots for beginners", u"watch?v=knots"},
                                  {u"Live: the space station from below", u"watch?v=station"},
                                  {u"Playlist: cooking on one flame", u"playlist?list=flame"},
                                  {u"Every bridge of the river, drawn", u"watch?v=bridges"}}}},
                           Site{u"https://maps.example.com/",
                                u"Maps",
                                {{{u"Central Station to Harbour Street", u"route/station-harbour"},
                                  {u"Bicycle routes", u"layers/bicycle"},
                                  {u"Museum of Everyday Things", u"place/museum"},
                                  {u"Coffee near here", u"search/coffee"},
                                  {u"Ferry pier 3", u"place/pier-3"},
                                  {u"Public gardens", u"place/gardens"}}}},
                           Site{u"https://www.wetterwarte.example/",
                                u"Wetterwarte",
                                {{{u"Vorhersage für Köln", u"koeln/heute"},
                                  {u"Unwetterwarnungen", u"warnungen"},
                                  {u"Schneehöhen in den Bergen", u"schnee"},
                                  {u"Regenradar", u"radar?schritt"},
                                  {u"Straßenwetter und Glätte", u"strassen"},
                                  {u"Pollenflug: Größe und Verlauf", u"pollen"}}}},
                           Site{u"https://xn--bcher-kva.example/",
                                u"Bücher",
                                {{{u"Neuerscheinungen im Mai", u"neu"},
                                  {u"Der lange Weg zum Meer", u"titel/meer"},
                                  {u"Gebrauchte Atlanten", u"antiquariat/atlanten"},
                                  {u"Merkliste", u"merkliste"},
                                  {u"Hörbücher", u"hoeren"},
                                  {u"Übersetzungen aus dem Finnischen", u"finnisch"}}}},
                           Site{u"https://www.cuisine-du-marche.example/",
                                u"Cuisine du marché",
                                {{{u"Tarte aux pommes à l’ancienne", u"recettes/tarte-aux-pommes"},
                                  {u"Crème brûlée sans four", u"recettes/creme-brulee"},
                                  {u"Légumes de saison", u"saison"},
                                  {u"Où acheter du bon pain ?", u"adresses/pain"},
                                  {u"Bœuf bourguignon", u"recettes/boeuf"},
                                  {u"Vos questions", u"questions"}}}},
                           Site{u"https://periodico-del-sur.example/",
                                u"Periódico del Sur",
                                {{{u"El museo abre sus puertas de noche", u"cultura/museo"},
                                  {u"Así será el año nuevo", u"sociedad/ano-nuevo"},
                                  {u"¿Cuánto cuesta alquilar?", u"economia/alquiler"},
                                  {u"Fútbol: resultados", u"deportes/futbol"},
                                  {u"El tiempo en Málaga", u"tiempo/malaga"},
                                  {u"Opinión", u"opinion"}}}},
                           Site{u"https://www.tabi-no-techou.example/",
                                u"旅の手帖",
                                {{{u"京都の紅葉を歩く", u"kyoto/momiji"},
                                  {u"温泉ランキング", u"onsen"},
                                  {u"各駅停車で行く北海道", u"hokkaido/train"},
                                  {u"駅弁カタログ", u"ekiben"},
                                  {u"東京の古い喫茶店", u"tokyo/kissaten"},
                                  {u"予約の確認", u"yoyaku"}}}},
                           Site{u"https://novosti.example/",
                                u"Новости",
                                {{{u"Мост через реку открыт", u"gorod/most"},
                                  {u"Погода на выходные", u"pogoda"},
                                  {u"Расписание электричек", u"transport/raspisanie"},
                                  {u"Выставка старых карт", u"kultura/karty"},
                                  {u"Шахматы: партия дня", u"shahmaty"},
                                  {u"Ёлка на площади", u"gorod/yolka"}}}},
                           Site{u"https://akhbar.example/",
                                u"أخبار",
                                {{{u"افتتاح المكتبة الجديدة", u"maktaba"},
                                  {u"الطقس اليوم", u"taqs"},
                                  {u"وصفات من المطبخ", u"matbakh"},
                                  {u"مواعيد القطارات", u"qitar"},
                                  {u"كأس العالم 2026", u"kas"},
                                  {u"رسائل القراء", u"rasail"}}}},
                           Site{u"https://news.seoul-radio.example/",
                                u"서울 라디오",
                                {{{u"오늘의 음악", u"music"},
                                  {u"주말 날씨", u"weather"},
                                  {u"한강 자전거 길", u"bike"},
                                  {u"다시 듣기", u"replay"},
                                  {u"편성표", u"schedule"},
                                  {u"청취자 사연", u"letters"}}}},
                           Site{u"http://router.test:8080/",
                                u"Router",
                                {{{u"Status", u"status"},
                                  {u"Wireless", u"wireless"},
                                  {u"Connected devices", u"devices"},
                                  {u"Firmware update", u"firmware"},
                                  {u"Log", u"log"},
                                  {u"Backup & restore", u"backup"}}}},
                           Site{u"https://intranet.office.test/",
                                u"Intranet",
                                {{{u"Time sheet", u"hr/time"},
                                  {u"Meeting rooms", u"rooms"},
                                  {u"Quarterly report (draft)", u"reports/quarter"},
                                  {u"Who is who", u"people"},
                                  {u"Canteen menu", u"canteen"},
                                  {u"Holiday request", u"hr/holidays"}}}},
                           Site{u"https://bank.example/",
                                u"Harbour Bank",
                                {{{u"Accounts", u"accounts"},
                                  {u"Transfer", u"transfer"},
                                  {u"Statements", u"statements"},
                                  {u"Log in", u"login"},
                                  {u"Cards", u"cards"},
                                  {u"Exchange rates", u"rates"}}}}};

/// Beside the sites with a name there are the many that somebody sees once.
constexpr qsizetype smallSites = 300;

/// Front pages are the same in every profile, so that some pages are found in several.
constexpr qsizetype pagesPerFrontPage = 40;

QString smallSiteHost(qsizetype number)
{
    return u"site-%1.example.org"_s.arg(number);
}

} // namespace

quint64 Random::next()
{
    m_state += 0x9e37'79b9'7f4a'7c15;
    quint64 mixed = m_state;
    mixed = (mixed ^ (mixed >> 30)) * 0xbf58'476d'1ce4'e5b9;
    mixed = (mixed ^ (mixed >> 27)) * 0x94d0'49bb'1331'11eb;
    return mixed ^ (mixed >> 31);
}

qint64 Random::below(qint64 bound)
{
    return qint64(next() % quint64(bound));
}

QString Random::uuid()
{
    const QString digits =
        u"%1%2"_s.arg(next(), 16, 16, QChar(u'0')).arg(next(), 16, 16, QChar(u'0')).toUpper();
    const QStringView hex = digits;
    return hex.first(8) % u'-' % hex.sliced(8, 4) % u"-4" % hex.sliced(13, 3) % u"-A" % hex.sliced(17, 3) %
           u'-' % hex.sliced(20, 12);
}

QString Random::guid()
{
    constexpr QStringView characters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
    // Nine characters for each random number, and six of its 64 bits for each of them.
    QString guid;
    for (quint64 bits = next(), left = 0; guid.size() < 12; ++left, bits >>= 6) {
        if (left == 9)
            bits = next();
        guid += characters.at(qsizetype(bits & 63));
    }
    return guid;
}

Page page(quint64 seed, qsizetype number)
{
    if (number % pagesPerFrontPage == 0)
        return frontPage(number / pagesPerFrontPage);
    Random random(seed ^ (quint64(number) * 0x2545'f491'4f6c'dd1d));
    if (random.below(8) == 0) {
        const QString host = smallSiteHost(random.below(smallSites));
        return {u"https://" % host % u"/page/" % QString::number(number),
                host % u", page " % QString::number(number)};
    }
    // The sites at the front are the favourites.
    const auto site = std::min(random.below(sites.size()), random.below(sites.size()));
    const Site &chosen = sites.at(size_t(site));
    const auto &[title, path] = chosen.subjects.at(size_t(random.below(subjectsPerSite)));
    const QStringView separator = path.contains(u'=') ? u"&n=" : path.contains(u'?') ? u"=" : u"/";
    return {chosen.address % path % separator % QString::number(number),
            title % (site % 2 == 0 ? u" - " : u" | ") % chosen.name};
}

Page frontPage(qsizetype site)
{
    if (site < qsizetype(sites.size()))
        return {sites.at(size_t(site)).address.toString(), sites.at(size_t(site)).name.toString()};
    const QString host = smallSiteHost(site - qsizetype(sites.size()));
    return {u"https://" % host % u"/", host};
}

QByteArray siteIcon(qsizetype site, int width)
{
    // A disc with a lighter ring; the golden angle keeps the hues of neighbours apart.
    const QColor colour = QColor::fromHsv(int(site * 137 % 360), 200, 190);
    QImage image(width, width, QImage::Format_ARGB32);
    const int radius = width / 2;
    for (int y = 0; y < width; ++y) {
        for (int x = 0; x < width; ++x) {
            const int across = 2 * x + 1 - width;
            const int down = 2 * y + 1 - width;
            const int distance = across * across + down * down;
            const bool isInside = distance <= 4 * radius * radius;
            const bool isRing = distance > 2 * radius * radius;
            image.setPixelColor(x, y,
                                !isInside ? QColor(Qt::transparent)
                                : isRing  ? colour.lighter(130)
                                          : colour);
        }
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

} // namespace roamlet::sample
