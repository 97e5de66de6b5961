// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/BrowserInstallation.h"

#include "Model/Browser.h"
#include "Platform/BrowserFolders.h"
#include "Platform/Files.h"
#include "Platform/Linux/Workspace/GLibPointer.h"

#include <QFile>
#include <QList>

#include <functional>

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
                const bool isOnMac = base == Browser::Place::Base::MacSupport;
                const QString end = isOnMac ? QString(u"/Application Support/" % path) : QString(u'/' % path);
                if (!root.endsWith(end))
                    continue;
                if (isOnMac)
                    return {};
                // The folder of one may end like that of another: ".../config/google-chrome".
                if (path.size() > longest) {
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

/// All that a source's data and its installation's key leave to choose from.
QList<Browser::Installation> candidates(const Source &source, const BrowserFolders &folders)
{
    if (const auto installation = installationOfData(folders.roots(source).value(0)))
        return {*installation};
    QList<Browser::Installation> installations = Browser::of(source.kind).installations;
    // Without a key the data may be anybody's, such as those of a home folder that came from a Mac.
    if (!source.installation.isEmpty())
        installations.removeIf(
            [&source](const Browser::Installation &each) { return each.key != source.installation; });
    return installations;
}

/// The folder of the Firefox that used the profile last; empty when that is not known. An older one would
/// refuse the profile, and a newer one change it.
QString lastProgramFolder(const Source &source, const BrowserFolders &folders, const Files &files)
{
    if (!source.profile || Browser::of(source.kind).family != Browser::Family::Firefox)
        return {};
    const auto text = files.read(folders.profile(source, files) % u"/compatibility.ini");
    const GLibPointer<GKeyFile> values(g_key_file_new());
    if (!text || g_key_file_load_from_data(values.get(), text->constData(), static_cast<gsize>(text->size()),
                                           G_KEY_FILE_NONE, nullptr) == FALSE)
        return {};
    // As it stands there: what looks like an escape is a part of the path.
    const GLibPointer<gchar> folder(
        g_key_file_get_value(values.get(), "Compatibility", "LastPlatformDir", nullptr));
    return QFile::decodeName(folder.get());
}

/// The first one of which an entry will do.
std::optional<BrowserInstallation> find(const QList<Browser::Installation> &installations,
                                        const QStringList &dataFolders,
                                        const std::function<bool(const DesktopEntry &)> &isWanted)
{
    for (const Browser::Installation &installation : installations) {
        for (const QString &name : installation.desktopEntries) {
            for (const DesktopEntry &entry : DesktopEntry::named(name % u".desktop", dataFolders)) {
                if (entry.packaging() != installation.packaging())
                    continue;
                // One of the user's own stands before the system's of that name.
                if (!isWanted(entry))
                    break;
                QStringList classes = installation.windowClasses;
                if (!entry.windowClass.isEmpty())
                    classes.append(entry.windowClass);
                return BrowserInstallation{.entry = entry, .windowClasses = classes};
            }
        }
    }
    return {};
}

bool isAny(const DesktopEntry & /*entry*/)
{
    return true;
}

} // namespace

std::optional<BrowserInstallation> BrowserInstallation::ofSource(const Source &source,
                                                                 const BrowserFolders &folders,
                                                                 const QStringList &dataFolders,
                                                                 const Files &files)
{
    const QList<Browser::Installation> installations = candidates(source, folders);
    if (const QString folder = lastProgramFolder(source, folders, files); !folder.isEmpty()) {
        const auto isLast = [&folder](const DesktopEntry &entry) { return entry.startsFrom(folder); };
        if (auto installation = find(installations, dataFolders, isLast))
            return installation;
    }
    return find(installations, dataFolders, isAny);
}

std::optional<BrowserInstallation>
BrowserInstallation::any(Source::Kind browser, const BrowserFolders &folders, const QStringList &dataFolders)
{
    for (const BrowserFolders::Installation &data : folders.installations) {
        if (data.browser != browser || !data.hasProfiles)
            continue;
        const Source source{
            .kind = browser, .profile = {}, .name = {}, .safariBookmarks = {}, .installation = data.key};
        if (auto installation = find(candidates(source, folders), dataFolders, isAny))
            return installation;
    }
    return find(Browser::of(browser).installations, dataFolders, isAny);
}

} // namespace roamlet
