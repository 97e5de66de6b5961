// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/BrowserInstallation.h"

#include "Platform/Folders.h"

#include <QList>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

using Packaging = DesktopEntry::Packaging;

/// One way in which a browser comes to a machine.
struct Variant {
    Packaging packaging;
    QStringList entries;       ///< the names of its desktop entry, without the suffix
    QStringList windowClasses; ///< of its windows, where the entry names none
};

Variant chrome(Packaging packaging)
{
    return {packaging, {u"google-chrome"_s, u"com.google.Chrome"_s}, {u"google-chrome"_s}};
}

Variant chromium(Packaging packaging)
{
    return {packaging,
            {u"chromium"_s, u"chromium-browser"_s, u"org.chromium.Chromium"_s, u"chromium_chromium"_s},
            {u"chromium"_s, u"chromium-browser"_s}};
}

Variant edge(Packaging packaging)
{
    return {packaging, {u"microsoft-edge"_s, u"com.microsoft.Edge"_s}, {u"microsoft-edge"_s}};
}

/// The browser with this identifier, as its maker calls it.
std::optional<QString> browserOf(const QString &bundleID)
{
    if (bundleID == u"com.google.Chrome")
        return u"chrome"_s;
    if (bundleID == u"com.microsoft.edgemac")
        return u"edge"_s;
    return {};
}

/// Every way in which the browser itself may be here, best first.
QList<Variant> variantsOf(const QString &browser)
{
    if (browser == u"chrome")
        return {chrome(Packaging::Native), chrome(Packaging::Flatpak)};
    return {edge(Packaging::Native), edge(Packaging::Flatpak)};
}

/// The variant that keeps its data in `root`; nothing when that does not tell, as in a home folder that came
/// from a Mac.
std::optional<Variant> variantOfData(const QString &root)
{
    if (root.contains(u"/.var/app/com.google.Chrome/"))
        return chrome(Packaging::Flatpak);
    if (root.contains(u"/.var/app/org.chromium.Chromium/"))
        return chromium(Packaging::Flatpak);
    if (root.contains(u"/.var/app/com.microsoft.Edge/"))
        return edge(Packaging::Flatpak);
    if (root.contains(u"/snap/chromium/"))
        return chromium(Packaging::Snap);
    if (root.endsWith(u"/chromium"))
        return chromium(Packaging::Native);
    if (root.endsWith(u"/google-chrome"))
        return chrome(Packaging::Native);
    if (root.endsWith(u"/microsoft-edge"))
        return edge(Packaging::Native);
    // Such as "google-chrome-beta": early versions are packages of their own, which give this name to all
    // that is theirs.
    const QString name = root.section(u'/', -1);
    if (name.startsWith(u"google-chrome-") || name.startsWith(u"microsoft-edge-"))
        return Variant{Packaging::Native, {name}, {name}};
    return {};
}

std::optional<BrowserInstallation> find(const QList<Variant> &variants, const QStringList &dataFolders)
{
    for (const Variant &variant : variants) {
        for (const QString &name : variant.entries) {
            for (const DesktopEntry &entry : DesktopEntry::named(name % u".desktop", dataFolders)) {
                if (entry.packaging() != variant.packaging)
                    continue;
                QStringList classes = variant.windowClasses;
                if (!entry.windowClass.isEmpty())
                    classes.append(entry.windowClass);
                return BrowserInstallation{.entry = entry, .windowClasses = classes};
            }
        }
    }
    return {};
}

} // namespace

std::optional<BrowserInstallation>
BrowserInstallation::ofData(const QString &bundleID, const Folders &folders, const QStringList &dataFolders)
{
    const std::optional<QString> browser = browserOf(bundleID);
    if (!browser)
        return {};
    const std::optional<Variant> variant = variantOfData(folders.dataRoot(*browser));
    return find(variant ? QList<Variant>{*variant} : variantsOf(*browser), dataFolders);
}

std::optional<BrowserInstallation> BrowserInstallation::any(const QString &bundleID, const Folders &folders,
                                                            const QStringList &dataFolders)
{
    if (std::optional<BrowserInstallation> installation = ofData(bundleID, folders, dataFolders))
        return installation;
    const std::optional<QString> browser = browserOf(bundleID);
    return browser ? find(variantsOf(*browser), dataFolders) : std::nullopt;
}

} // namespace roamlet
