// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/Targets.h"
#include "Model/Site.h"

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

void attackSiteName(QByteArrayView bytes)
{
    const QString url = QString::fromUtf8(bytes);
    const std::optional<QString> site = Site::name(url);
    if (!site)
        return;
    require(url.toLower().contains(*site), "a site is found in the stored text");
    require(*site == site->toLower(), "a site is in small letters");
    for (const QChar c : *site)
        require(c.unicode() > 0x20 && c.unicode() < 0x7F && !u"/?#@\\"_s.contains(c),
                "a site is of a host's letters");
    // Brackets may not have one, as they are no name.
    const QString host = site->startsWith(u'[') ? *site : QString(u"www." % *site);
    for (const QString &again :
         {QString(u"https://" % host % u":80/path?query#fragment"), QString(u"//user:word@" % host)})
        require(Site::name(again) == site, "a site's own address is of the site");
}

QList<QByteArray> siteNameSeeds()
{
    return {"https://www.a.example/x",
            "http://user:word@münchen.example:8080/?q=1#f",
            "HTTPS://XN--MNCHEN-3YA.DE./",
            "//a.example",
            "http://[::1%25eth0]:80/",
            "http://[v1.a:b]/",
            "chrome://settings/",
            "about:blank",
            "file:///home/a",
            "https://a%2Eb.example/|{^ }"};
}

} // namespace

Target siteName()
{
    return {.name = "SiteName",
            .attack = attackSiteName,
            .seeds = siteNameSeeds,
            .dictionary = "Address",
            .longest = 256};
}

} // namespace roamlet::fuzz
