// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/FuzzHome.h"
#include "Kit/Looks.h"
#include "Kit/Sources.h"
#include "Kit/Targets.h"
#include "Readers/BrowserReader.h"
#include "SampleHome/ChromiumFiles.h"
#include "SampleHome/PlainFiles.h"

#include <QFile>
#include <QJsonObject>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

const QString folderOfChrome = u"Library/Application Support/Google/Chrome/"_s;

void attackChromiumProfiles(QByteArrayView bytes)
{
    static const FuzzHome home(folderOfChrome % u"Local State"_s);
    [[maybe_unused]] static const bool hasProfiles = [] {
        for (const QString &profile : {u"Default"_s, u"Profile 1"_s})
            sample::writeFile(home.path() % u'/' % folderOfChrome % profile % u"/History"_s, {});
        return true;
    }();
    home.reading(bytes, [] {
        static const ReadContext context = home.context();
        const QList<Source> profiles = BrowserReader::profiles(Source::Kind::Chrome, context);
        lookAt(profiles);
        for (const Source &source : profiles)
            require(context.files->exists(context.folders.profile(source, *context.files)),
                    "a profile has a folder");
    });
}

QList<QByteArray> chromiumProfileSeeds()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"Local State"_s));
    sample::writeLocalState(file.fileName(),
                            {{u"Default"_s, sample::profileInfo(u"Person 1"_s)},
                             {u"Profile 1"_s, sample::profileInfo(u"Zoë"_s)},
                             {u"Guest Profile"_s, sample::ephemeralProfileInfo(u"Guest"_s)}});
    return {file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(),
            "{\"profile\":{\"info_cache\":{\"Default\":{\"name\":\"a\"},\"..\":{\"name\":\"b\"}}}}"};
}

} // namespace

Target chromiumProfiles()
{
    return {.name = "ChromiumProfiles",
            .attack = attackChromiumProfiles,
            .seeds = chromiumProfileSeeds,
            .dictionary = "ChromiumProfiles"};
}

} // namespace roamlet::fuzz
