// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/FuzzHome.h"
#include "Kit/Looks.h"
#include "Kit/Sources.h"
#include "Kit/Targets.h"
#include "Readers/BrowserReader.h"
#include "SampleHome/FirefoxFiles.h"
#include "SampleHome/PlainFiles.h"

#include <QFile>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

const QString placeOfFirefox = u"Library/Application Support/Firefox/"_s;

void attackFirefoxProfiles(QByteArrayView bytes)
{
    static const FuzzHome home(placeOfFirefox % u"profiles.ini"_s);
    [[maybe_unused]] static const bool hasProfiles = [] {
        for (const QString &profile : {u"abcd.default"_s, u"Profiles/ijkl.zoë"_s})
            sample::writeFile(home.path() % u'/' % placeOfFirefox % profile % u"/places.sqlite"_s, {});
        return true;
    }();
    home.reading(bytes, [] {
        static const ReadContext context = home.context();
        const QList<Source> profiles = BrowserReader::profiles(firefox().kind, context);
        lookAt(profiles);
        for (const Source &source : profiles)
            require(context.files->exists(context.folders.profile(source, *context.files)),
                    "a profile has a folder");
    });
}

QList<QByteArray> firefoxProfileSeeds()
{
    QList<QByteArray> seeds;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"profiles.ini"_s);
    for (const sample::IniStyle &style :
         {sample::IniStyle{}, sample::IniStyle{.hasByteOrderMark = true, .hasWindowsLineEnds = true},
          sample::IniStyle{.hasComments = true, .repeatsKeys = true, .splitsSections = true}}) {
        sample::writeFirefoxProfiles(
            path,
            {{.name = u"default"_s, .path = u"abcd.default"_s, .isDefault = true},
             {.name = u"Zoë"_s, .path = u"Profiles/ijkl.zoë"_s, .storeID = u"1234abcd"_s}},
            {{.hash = u"4F96D1932A9F858E"_s, .defaultPath = u"abcd.default"_s}}, style);
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            seeds.append(file.readAll());
    }
    return seeds;
}

} // namespace

Target firefoxProfiles()
{
    return {.name = "FirefoxProfiles",
            .attack = attackFirefoxProfiles,
            .seeds = firefoxProfileSeeds,
            .dictionary = "FirefoxProfiles"};
}

} // namespace roamlet::fuzz
