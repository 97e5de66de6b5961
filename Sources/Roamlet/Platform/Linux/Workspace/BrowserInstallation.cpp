// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/BrowserInstallation.h"

#include "Model/Browser.h"
#include "Platform/BrowserFolders.h"

#include <QList>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// The installation that keeps its data in `root`; nothing when that does not tell, as in a home folder that
/// came from a Mac. A setting may name the data of any browser for any other.
std::optional<Browser::Installation> installationOfData(const QString &root)
{
    std::optional<Browser::Installation> best;
    qsizetype longest = 0;
    for (const Browser &browser : Browser::all()) {
        for (const Browser::Installation &installation : browser.installations) {
            for (const auto &[base, path] : installation.places) {
                // The folder of one may end like that of another: ".../config/google-chrome".
                if (base != Browser::Place::Base::MacSupport && path.size() > longest &&
                    root.endsWith(QString(u'/' % path))) {
                    best = installation;
                    longest = path.size();
                    // Two applications may share a key; the folder of a sandbox is named by its own.
                    const QString application = path.section(u'/', 2, 2);
                    if (path.startsWith(u".var/app/") && best->desktopEntries.contains(application))
                        best->desktopEntries = {application};
                }
            }
        }
    }
    return best;
}

DesktopEntry::Packaging packagingOf(const Browser::Installation &installation)
{
    switch (installation.packaging()) {
    case Browser::Installation::Packaging::Flatpak:
        return DesktopEntry::Packaging::Flatpak;
    case Browser::Installation::Packaging::Snap:
        return DesktopEntry::Packaging::Snap;
    case Browser::Installation::Packaging::Native:
        break;
    }
    return DesktopEntry::Packaging::Native;
}

std::optional<BrowserInstallation> find(const QList<Browser::Installation> &installations,
                                        const QStringList &dataFolders)
{
    for (const Browser::Installation &installation : installations) {
        for (const QString &name : installation.desktopEntries) {
            for (const DesktopEntry &entry : DesktopEntry::named(name % u".desktop", dataFolders)) {
                if (entry.packaging() != packagingOf(installation))
                    continue;
                QStringList classes = installation.windowClasses;
                if (!entry.windowClass.isEmpty())
                    classes.append(entry.windowClass);
                return BrowserInstallation{.entry = entry, .windowClasses = classes};
            }
        }
    }
    return {};
}

} // namespace

std::optional<BrowserInstallation> BrowserInstallation::ofSource(const Source &source,
                                                                 const BrowserFolders &folders,
                                                                 const QStringList &dataFolders)
{
    const auto installation = installationOfData(folders.roots(source).value(0));
    return find(installation ? QList{*installation} : Browser::of(source.kind).installations, dataFolders);
}

std::optional<BrowserInstallation>
BrowserInstallation::any(Source::Kind browser, const BrowserFolders &folders, const QStringList &dataFolders)
{
    for (const BrowserFolders::Installation &data : folders.installations) {
        if (data.browser != browser || !data.hasProfiles)
            continue;
        const Source source{
            .kind = browser, .profile = {}, .name = {}, .safariBookmarks = {}, .installation = data.key};
        if (auto installation = ofSource(source, folders, dataFolders))
            return installation;
    }
    return find(Browser::of(browser).installations, dataFolders);
}

} // namespace roamlet
