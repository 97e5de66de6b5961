// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/BrowserFolders.h"

#include "Model/Browser.h"
#include "Platform/Files.h"
#include "Platform/Folders.h"

#include <QDir>

#include <algorithm>

namespace roamlet
{

namespace
{

BrowserFolders::Installation installation(const Browser &browser, const QString &key, const Folders &folders,
                                          const Files &files)
{
    const QStringList places = folders.dataFolders(browser.kind, key);
    QStringList roots = places;
    const QString list = u'/' % Browser::profileList(browser.family);
    roots.removeIf([&](const QString &place) { return !files.exists(place % list); });
    const bool hasProfiles = !roots.isEmpty();
    if (!hasProfiles)
        roots = places.first(1);
    else if (browser.family != Browser::Family::Firefox)
        roots = roots.first(1);
    return {.browser = browser.kind, .key = key, .roots = roots, .hasProfiles = hasProfiles};
}

} // namespace

BrowserFolders BrowserFolders::of(const Folders &folders, const Files &files)
{
    BrowserFolders result;
    result.temporary = folders.temporary();
    result.safari = folders.dataFolders(Source::Kind::Safari, {}).first();
    result.safariContainer = folders.safariContainer();
    result.hasSafari = files.exists(result.safari) || files.exists(result.safariContainer);
    for (const Browser &browser : Browser::all()) {
        if (browser.family == Browser::Family::Safari)
            continue;
        QList<Installation> found;
        for (const Browser::Installation &each : browser.installations)
            found.append(installation(browser, each.key, folders, files));
        const bool areSeveral = std::ranges::count(found, true, &Installation::hasProfiles) > 1;
        for (Installation &each : found)
            each.isNamed = areSeveral && !each.key.isEmpty();
        result.installations += found;
    }
    return result;
}

QString BrowserFolders::safariProfiles() const
{
    return safariContainer % u"/Profiles";
}

QStringList BrowserFolders::roots(const Source &source) const
{
    const auto found = std::ranges::find_if(installations, [&source](const Installation &each) {
        return each.browser == source.kind && each.key == source.installation;
    });
    return found == installations.end() ? QStringList() : found->roots;
}

QString BrowserFolders::firefoxProfile(const QString &root, const QString &key)
{
    return QDir::cleanPath(key.startsWith(u'/') ? key : QString(root % u'/' % key));
}

QString BrowserFolders::profile(const Source &source, const Files &files) const
{
    const QString key = source.profile.value_or(QString());
    const bool isFirefox = Browser::of(source.kind).family == Browser::Family::Firefox;
    if (isFirefox && key.startsWith(u'/'))
        return firefoxProfile({}, key);
    QStringList profiles = roots(source);
    for (QString &folder : profiles) {
        if (isFirefox)
            folder = firefoxProfile(folder, key);
        else if (!key.isEmpty())
            folder += u'/' % key;
    }
    // A folder that has been given up may still be there; only what a profile always has tells it apart.
    const QString history = u'/' % Browser::historyFile(Browser::Family::Firefox);
    const auto found =
        profiles.size() < 2
            ? profiles.cend()
            : std::ranges::find_if(
                  profiles, [&](const QString &folder) { return files.exists(folder % history); });
    return found == profiles.cend() ? profiles.value(0) : *found;
}

} // namespace roamlet
