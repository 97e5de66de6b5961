// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/DesktopEntry.h"

#include "Kit/FuzzHome.h"
#include "Kit/Targets.h"
#include "SampleHome/PlainFiles.h"

namespace roamlet::fuzz
{

using namespace Qt::StringLiterals;

namespace
{

void attackDesktopEntry(QByteArrayView bytes)
{
    static const FuzzHome home(u"applications/browser.desktop"_s);
    home.reading(bytes, [] {
        for (const roamlet::DesktopEntry &entry :
             roamlet::DesktopEntry::named(u"browser.desktop"_s, {home.path()})) {
            require(entry.path == home.file(), "an entry is of its file");
            require(!entry.command.isEmpty(), "an entry starts something");
            static_cast<void>(entry.packaging());
            static_cast<void>(entry.startsFrom(home.path()));
        }
    });
}

QList<QByteArray> desktopEntrySeeds()
{
    return {"[Desktop Entry]\nType=Application\nName=Browser\nName[de]=Stöberer\nExec=sh %U\nIcon=browser\n"
            "StartupWMClass=Browser\nTerminal=false\nActions=new;\n\n[Desktop Action new]\nName=New\nExec=sh "
            "-c \"%%\"\n",
            "[Desktop Entry]\nType=Application\nName=a\nTryExec=/bin/sh\n"
            "Exec=/usr/bin/env NAME=\"a b\" /bin/sh --command=x @@u %U @@ '\\\\$1' %i %c %k\nHidden=false\n",
            "# comment\n[Desktop Entry]\nType=Application\nName=a\nExec=/snap/bin/a\nHidden=true\n"};
}

} // namespace

Target desktopEntry()
{
    return {.name = "DesktopEntry",
            .attack = attackDesktopEntry,
            .seeds = desktopEntrySeeds,
            .dictionary = "DesktopEntry"};
}

} // namespace roamlet::fuzz
