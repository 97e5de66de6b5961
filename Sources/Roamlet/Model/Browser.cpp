// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/Browser.h"

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

using Installation = Browser::Installation;
using Family = Browser::Family;

Browser::Place atHome(const QString &path)
{
    return {.base = Browser::Place::Base::Home, .path = path};
}

Browser::Place inConfig(const QString &path)
{
    return {.base = Browser::Place::Base::Config, .path = path};
}

/// Where a browser keeps its data on a Mac.
Browser::Place onMac(const QString &path)
{
    return {.base = Browser::Place::Base::MacSupport, .path = path};
}

/// A folder of the sandbox that Flatpak gives to an application.
Browser::Place inFlatpak(const QString &application, const QString &path)
{
    return atHome(u".var/app/" % application % u'/' % path);
}

Browser chromium(const QString &rawValue, const QString &displayName, const QString &historyPage,
                 const QString &bookmarksPage, const QList<Installation> &installations)
{
    return {.rawValue = rawValue,
            .displayName = displayName,
            .family = Family::Chromium,
            .bundleID = {},
            .historyPage = historyPage,
            .bookmarksPage = bookmarksPage,
            .folderQuery = u"?id="_s,
            .installations = installations};
}

/// Where the data of one installation lies; its entries and its windows are those of the browser.
struct DataPlaces {
    QString key;
    QList<Browser::Place> places;
};

Browser firefox(const QString &rawValue, const QString &displayName, const QStringList &desktopEntries,
                const QList<DataPlaces> &installations)
{
    Browser browser{.rawValue = rawValue,
                    .displayName = displayName,
                    .family = Family::Firefox,
                    .bundleID = {},
                    .historyPage = u"about:firefoxview#history"_s,
                    .bookmarksPage = u"chrome://browser/content/places/places.xhtml"_s,
                    .folderQuery = {},
                    .installations = {}};
    for (const auto &[key, places] : installations)
        browser.installations.append({key, places, desktopEntries, {}});
    return browser;
}

Browser listingEphemeralProfiles(Browser browser)
{
    browser.listsEphemeralProfiles = true;
    return browser;
}

/// One whose application is known to a Mac by this identifier.
Browser identifiedOnMac(Browser browser, const QString &bundleID)
{
    browser.bundleID = bundleID;
    return browser;
}

Browser withPersonalProfiles(Browser browser)
{
    browser.namesPersonalProfiles = true;
    return browser;
}

Browser opera(Browser browser)
{
    browser.hasOperaLayout = true;
    return browser;
}

/// Whose bookmark manager shows no folder that an address names.
Browser withoutFolders(Browser browser)
{
    browser.folderQuery.clear();
    return browser;
}

/// Every browser but for its kind, which is its place here. An installation is its key, the places of its
/// data, its desktop entries and its window classes.
QList<Browser> table()
{
    const QStringList chromeEntries{u"google-chrome"_s, u"com.google.Chrome"_s};
    const QStringList edgeEntries{u"microsoft-edge"_s, u"com.microsoft.Edge"_s};
    const QStringList chromiumEntries{u"chromium"_s, u"chromium-browser"_s, u"org.chromium.Chromium"_s,
                                      u"io.github.ungoogled_software.ungoogled_chromium"_s,
                                      u"chromium_chromium"_s};
    const QStringList chromiumClasses{u"chromium"_s, u"chromium-browser"_s};
    const QStringList braveEntries{u"brave-browser"_s, u"com.brave.Browser"_s, u"brave_brave"_s};
    const QStringList vivaldiEntries{u"vivaldi-stable"_s, u"com.vivaldi.Vivaldi"_s,
                                     u"vivaldi_vivaldi-stable"_s};
    const QStringList operaEntries{u"opera"_s, u"com.opera.Opera"_s, u"opera_opera"_s};

    return {
        {.rawValue = u"safari"_s,
         .displayName = u"Safari"_s,
         .family = Family::Safari,
         .bundleID = u"com.apple.Safari"_s,
         .historyPage = u"history://"_s,
         .bookmarksPage = u"bookmarks://"_s,
         .folderQuery = {},
         .installations = {{{}, {atHome(u"Library/Safari"_s)}, {}, {}}}},

        listingEphemeralProfiles(identifiedOnMac(
            chromium(u"chrome"_s, u"Chrome"_s, u"chrome://history/"_s, u"chrome://bookmarks/"_s,
                     {{{},
                       {onMac(u"Google/Chrome"_s), inConfig(u"google-chrome"_s)},
                       chromeEntries,
                       {u"google-chrome"_s}},
                      {u"beta"_s,
                       {inConfig(u"google-chrome-beta"_s)},
                       {u"google-chrome-beta"_s},
                       {u"google-chrome-beta"_s}},
                      {u"dev"_s,
                       {inConfig(u"google-chrome-unstable"_s)},
                       {u"google-chrome-unstable"_s},
                       {u"google-chrome-unstable"_s}},
                      {u"flatpak"_s,
                       {inFlatpak(u"com.google.Chrome"_s, u"config/google-chrome"_s)},
                       chromeEntries,
                       {u"google-chrome"_s}},
                      {u"dev-flatpak"_s,
                       {inFlatpak(u"com.google.ChromeDev"_s, u"config/google-chrome-unstable"_s)},
                       {u"com.google.ChromeDev"_s},
                       {u"google-chrome-unstable"_s}}}),
            u"com.google.Chrome"_s)),

        withPersonalProfiles(listingEphemeralProfiles(
            identifiedOnMac(chromium(u"edge"_s, u"Edge"_s, u"edge://history/"_s, u"edge://favorites/"_s,
                                     {{{},
                                       {onMac(u"Microsoft Edge"_s), inConfig(u"microsoft-edge"_s)},
                                       edgeEntries,
                                       {u"microsoft-edge"_s}},
                                      {u"beta"_s,
                                       {inConfig(u"microsoft-edge-beta"_s)},
                                       {u"microsoft-edge-beta"_s},
                                       {u"microsoft-edge-beta"_s}},
                                      {u"dev"_s,
                                       {inConfig(u"microsoft-edge-dev"_s)},
                                       {u"microsoft-edge-dev"_s},
                                       {u"microsoft-edge-dev"_s}},
                                      {u"flatpak"_s,
                                       {inFlatpak(u"com.microsoft.Edge"_s, u"config/microsoft-edge"_s)},
                                       edgeEntries,
                                       {u"microsoft-edge"_s}},
                                      {u"beta-flatpak"_s,
                                       {inFlatpak(u"com.microsoft.Edge"_s, u"config/microsoft-edge-beta"_s)},
                                       {u"com.microsoft.Edge"_s},
                                       {u"microsoft-edge-beta"_s}}}),
                            u"com.microsoft.edgemac"_s))),

        chromium(u"chromium"_s, u"Chromium"_s, u"chrome://history/"_s, u"chrome://bookmarks/"_s,
                 {{{}, {onMac(u"Chromium"_s), inConfig(u"chromium"_s)}, chromiumEntries, chromiumClasses},
                  {u"snap"_s, {atHome(u"snap/chromium/common/chromium"_s)}, chromiumEntries, chromiumClasses},
                  {u"flatpak"_s,
                   {inFlatpak(u"org.chromium.Chromium"_s, u"config/chromium"_s),
                    inFlatpak(u"io.github.ungoogled_software.ungoogled_chromium"_s, u"config/chromium"_s)},
                   chromiumEntries,
                   chromiumClasses}}),

        identifiedOnMac(
            chromium(u"brave"_s, u"Brave"_s, u"brave://history/"_s, u"brave://bookmarks/"_s,
                     {{{},
                       {onMac(u"BraveSoftware/Brave-Browser"_s), inConfig(u"BraveSoftware/Brave-Browser"_s)},
                       braveEntries,
                       {u"brave-browser"_s}},
                      {u"beta"_s,
                       {inConfig(u"BraveSoftware/Brave-Browser-Beta"_s)},
                       {u"brave-browser-beta"_s},
                       {u"brave-browser-beta"_s}},
                      {u"nightly"_s,
                       {inConfig(u"BraveSoftware/Brave-Browser-Nightly"_s)},
                       {u"brave-browser-nightly"_s},
                       {u"brave-browser-nightly"_s}},
                      {u"snap"_s,
                       {atHome(u"snap/brave/current/.config/BraveSoftware/Brave-Browser"_s)},
                       braveEntries,
                       {u"brave-browser"_s}},
                      {u"flatpak"_s,
                       {inFlatpak(u"com.brave.Browser"_s, u"config/BraveSoftware/Brave-Browser"_s)},
                       braveEntries,
                       {u"brave-browser"_s}}}),
            u"com.brave.Browser"_s),

        withoutFolders(chromium(
            u"vivaldi"_s, u"Vivaldi"_s, u"vivaldi://history/"_s, u"vivaldi://bookmarks/"_s,
            {{{}, {onMac(u"Vivaldi"_s), inConfig(u"vivaldi"_s)}, vivaldiEntries, {u"vivaldi-stable"_s}},
             {u"nightly"_s,
              {inConfig(u"vivaldi-snapshot"_s)},
              {u"vivaldi-snapshot"_s},
              {u"vivaldi-snapshot"_s}},
             {u"snap"_s,
              {atHome(u"snap/vivaldi/current/.config/vivaldi"_s)},
              vivaldiEntries,
              {u"vivaldi-stable"_s}},
             {u"flatpak"_s,
              {inFlatpak(u"com.vivaldi.Vivaldi"_s, u"config/vivaldi"_s)},
              vivaldiEntries,
              {u"vivaldi-stable"_s}}})),

        opera(withoutFolders(chromium(
            u"opera"_s, u"Opera"_s, u"opera://history/"_s, u"opera://bookmarks/"_s,
            {{{}, {onMac(u"com.operasoftware.Opera"_s), inConfig(u"opera"_s)}, operaEntries, {u"Opera"_s}},
             {u"beta"_s, {inConfig(u"opera-beta"_s)}, {u"opera-beta"_s}, {u"Opera beta"_s}},
             {u"dev"_s, {inConfig(u"opera-developer"_s)}, {u"opera-developer"_s}, {u"Opera developer"_s}},
             {u"snap"_s, {atHome(u"snap/opera/current/.config/opera"_s)}, operaEntries, {u"Opera"_s}},
             {u"flatpak"_s,
              {inFlatpak(u"com.opera.Opera"_s, u"config/opera"_s)},
              operaEntries,
              {u"Opera"_s}}}))),

        firefox(u"firefox"_s, u"Firefox"_s,
                {u"firefox"_s, u"firefox-esr"_s, u"org.mozilla.firefox"_s, u"firefox_firefox"_s},
                {{{}, {onMac(u"Firefox"_s), inConfig(u"mozilla/firefox"_s), atHome(u".mozilla/firefox"_s)}},
                 {u"snap"_s, {atHome(u"snap/firefox/common/.mozilla/firefox"_s)}},
                 {u"flatpak"_s,
                  {inFlatpak(u"org.mozilla.firefox"_s, u".mozilla/firefox"_s),
                   inFlatpak(u"org.mozilla.firefox"_s, u"config/mozilla/firefox"_s)}}}),

        firefox(u"librewolf"_s, u"LibreWolf"_s, {u"librewolf"_s, u"io.gitlab.librewolf-community"_s},
                {{{}, {onMac(u"LibreWolf"_s), inConfig(u"librewolf/librewolf"_s), atHome(u".librewolf"_s)}},
                 {u"flatpak"_s,
                  {inFlatpak(u"io.gitlab.librewolf-community"_s, u".librewolf"_s),
                   inFlatpak(u"io.gitlab.librewolf-community"_s, u"config/librewolf/librewolf"_s)}}}),

        firefox(u"waterfox"_s, u"Waterfox"_s, {u"waterfox"_s, u"net.waterfox.waterfox"_s},
                {{{}, {onMac(u"Waterfox"_s), atHome(u".waterfox"_s)}},
                 {u"flatpak"_s, {inFlatpak(u"net.waterfox.waterfox"_s, u".waterfox"_s)}}}),

        firefox(u"floorp"_s, u"Floorp"_s, {u"floorp"_s, u"one.ablaze.floorp"_s},
                {{{}, {onMac(u"Floorp"_s), atHome(u".floorp"_s)}},
                 {u"flatpak"_s, {inFlatpak(u"one.ablaze.floorp"_s, u".floorp"_s)}}}),

        firefox(u"zen"_s, u"Zen"_s, {u"zen"_s, u"zen-browser"_s, u"app.zen_browser.zen"_s},
                {{{}, {onMac(u"zen"_s), inConfig(u"zen"_s), atHome(u".zen"_s)}},
                 {u"flatpak"_s, {inFlatpak(u"app.zen_browser.zen"_s, u".zen"_s)}}}),
    };
}

} // namespace

Browser::Installation::Packaging Browser::Installation::packaging() const
{
    if (key.endsWith(u"flatpak"))
        return Packaging::Flatpak;
    return key.endsWith(u"snap") ? Packaging::Snap : Packaging::Native;
}

const QList<Browser> &Browser::all()
{
    static const QList<Browser> browsers = [] {
        QList<Browser> rows = table();
        for (qsizetype i = 0; i < rows.size(); ++i)
            // NOLINTNEXTLINE(clang-analyzer-optin.core.EnumCastOutOfRange): most kinds have no name
            rows[i].kind = static_cast<Source::Kind>(i);
        return rows;
    }();
    return browsers;
}

const Browser &Browser::of(Source::Kind kind)
{
    return all().at(static_cast<qsizetype>(kind));
}

QString Browser::profileList(Family family)
{
    return family == Family::Firefox ? u"profiles.ini"_s : u"Local State"_s;
}

QString Browser::historyFile(Family family)
{
    switch (family) {
    case Family::Safari:
        return u"History.db"_s;
    case Family::Firefox:
        return u"places.sqlite"_s;
    case Family::Chromium:
        break;
    }
    return u"History"_s;
}

QString Browser::sideProfile(const QString &key)
{
    return key.section(u'/', 0, 0) == sideProfilesFolder ? key.section(u'/', 1, 1) : QString();
}

QString Browser::installationName(const QString &key)
{
    QStringList words;
    for (const QString &part : key.split(u'-', Qt::SkipEmptyParts)) {
        const QString word = part.first(1).toUpper() % part.sliced(1);
        const bool isSandbox = part == u"flatpak" || part == u"snap";
        words.append(isSandbox ? QString(u'(' % word % u')') : word);
    }
    return words.join(u' ');
}

} // namespace roamlet
