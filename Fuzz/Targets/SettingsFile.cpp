// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Kit/FuzzHome.h"
#include "Kit/Sources.h"
#include "Kit/Targets.h"
#include "Library/ProfileChoice.h"
#include "Platform/Linux/LinuxFiles.h"
#include "Platform/Linux/LinuxFolders.h"
#include "Platform/Linux/SettingsUserDefaults.h"

#include <QDir>
#include <QFile>

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

/// Everything that the program reads of it without a window.
void readSettings(const FuzzHome &home)
{
    SettingsUserDefaults defaults(home.file());
    const ProfileChoice choice(defaults);
    require(choice.ordered({chrome(), firefox(), Source::safari()}).size() == 3, "an order loses nothing");
    require(choice.enabled({chrome(), firefox()}).size() <= 2, "a choice adds nothing");
    const LinuxFolders folders({.home = home.path(), .configHome = {}, .temporary = home.path()}, home.files,
                               defaults);
    for (const Source &source : {chrome(), firefox(), Source::safari()})
        require(!folders.dataFolders(source.kind, {}).isEmpty(), "every browser has a place");
    require(!folders.safariContainer().isEmpty(), "and Safari another");
    for (const QString &key : {u"search.memoryLimit"_s, u"window.place"_s, u"showDockIcon"_s}) {
        static_cast<void>(defaults.string(key));
        static_cast<void>(defaults.bytes(key));
        static_cast<void>(defaults.boolean(key));
        static_cast<void>(defaults.stringList(key));
    }
}

void attackSettingsFile(QByteArrayView bytes)
{
    static const FuzzHome home(u".config/Roamlet/Roamlet.conf"_s);
    home.reading(bytes, [] { readSettings(home); });
    // What is stored beside whatever stands there is there the next time.
    const QStringList list{u"one"_s, u"two, three"_s, u"@Invalid()"_s};
    {
        SettingsUserDefaults defaults(home.file());
        defaults.setStringList(u"list"_s, list);
        defaults.setBoolean(u"flag"_s, true);
        defaults.setBytes(u"bytes"_s, bytes.toByteArray());
    }
    const SettingsUserDefaults defaults(home.file());
    require(defaults.stringList(u"list"_s) == list, "a list is kept");
    require(defaults.boolean(u"flag"_s) == true, "a choice is kept");
    require(defaults.bytes(u"bytes"_s).value_or(QByteArray()) == bytes.toByteArray(), "bytes are kept");
    QFile::remove(home.file());
}

QList<QByteArray> settingsFileSeeds()
{
    return {"[General]\ndisabledProfiles=chrome/Default, "
            "firefox/abcd.default\nsourceOrder=safari\nshowDockIcon=true\n"
            "dataRoot.chrome=~/data\ndataRoot.firefox@flatpak=/x\nsearch.memoryLimit=256\n"
            "window.place=@ByteArray(\\x1\\xd9\\0)\n",
            "[General]\nlist=@Invalid()\nvariant=@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x3)\npoint=@Point(1 2)\n"
            "date=@DateTime(\\0\\0)\n[Other]\na=\"\\x20ac;\", b\n%41=1\n"};
}

} // namespace

Target settingsFile()
{
    return {.name = "SettingsFile",
            .attack = attackSettingsFile,
            .seeds = settingsFileSeeds,
            .dictionary = "SettingsFile",
            .longest = 2048};
}

} // namespace roamlet::fuzz
