// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "SampleHome/Installations.h"

#include "SampleHome/PlainFiles.h"
#include "SampleHome/SampleHome.h"

#include <algorithm>
#include <array>

namespace roamlet::sample
{

using namespace Qt::StringLiterals;

namespace
{

using enum Arrangement;

// A further browser is one more row.
constexpr std::array installations{
    Installation{u"chrome", u"", Chromium, u"Google/Chrome", u".config/google-chrome"},
    Installation{u"chrome", u"beta", Chromium, u"", u".config/google-chrome-beta"},
    Installation{u"chrome", u"dev", Chromium, u"", u".config/google-chrome-unstable"},
    Installation{u"chrome", u"flatpak", Chromium, u"", u".var/app/com.google.Chrome/config/google-chrome"},
    Installation{u"chrome", u"dev-flatpak", Chromium, u"",
                 u".var/app/com.google.ChromeDev/config/google-chrome-unstable"},
    Installation{u"edge", u"", Edge, u"Microsoft Edge", u".config/microsoft-edge"},
    Installation{u"edge", u"beta", Edge, u"", u".config/microsoft-edge-beta"},
    Installation{u"edge", u"dev", Edge, u"", u".config/microsoft-edge-dev"},
    Installation{u"edge", u"flatpak", Edge, u"", u".var/app/com.microsoft.Edge/config/microsoft-edge"},
    Installation{u"edge", u"beta-flatpak", Edge, u"",
                 u".var/app/com.microsoft.Edge/config/microsoft-edge-beta"},
    Installation{u"chromium", u"", Chromium, u"Chromium", u".config/chromium"},
    Installation{u"chromium", u"snap", Chromium, u"", u"snap/chromium/common/chromium"},
    Installation{u"chromium", u"flatpak", Chromium, u"", u".var/app/org.chromium.Chromium/config/chromium"},
    Installation{u"brave", u"", Chromium, u"BraveSoftware/Brave-Browser",
                 u".config/BraveSoftware/Brave-Browser"},
    Installation{u"brave", u"beta", Chromium, u"", u".config/BraveSoftware/Brave-Browser-Beta"},
    Installation{u"brave", u"nightly", Chromium, u"", u".config/BraveSoftware/Brave-Browser-Nightly"},
    Installation{u"brave", u"snap", Chromium, u"", u"snap/brave/current/.config/BraveSoftware/Brave-Browser"},
    Installation{u"brave", u"flatpak", Chromium, u"",
                 u".var/app/com.brave.Browser/config/BraveSoftware/Brave-Browser"},
    Installation{u"vivaldi", u"", Vivaldi, u"Vivaldi", u".config/vivaldi"},
    Installation{u"vivaldi", u"nightly", Vivaldi, u"", u".config/vivaldi-snapshot"},
    Installation{u"vivaldi", u"snap", Vivaldi, u"", u"snap/vivaldi/current/.config/vivaldi"},
    Installation{u"vivaldi", u"flatpak", Vivaldi, u"", u".var/app/com.vivaldi.Vivaldi/config/vivaldi"},
    Installation{u"opera", u"", Opera, u"com.operasoftware.Opera", u".config/opera"},
    Installation{u"opera", u"old", OldOpera, u"com.operasoftware.Opera", u".config/opera"},
    Installation{u"opera", u"beta", Opera, u"", u".config/opera-beta"},
    Installation{u"opera", u"dev", Opera, u"", u".config/opera-developer"},
    Installation{u"opera", u"snap", Opera, u"", u"snap/opera/current/.config/opera"},
    Installation{u"opera", u"flatpak", Opera, u"", u".var/app/com.opera.Opera/config/opera"},
    Installation{u"firefox", u"", Firefox, u"Firefox", u".config/mozilla/firefox"},
    Installation{u"firefox", u"old", Firefox, u"", u".mozilla/firefox"},
    Installation{u"firefox", u"snap", Firefox, u"", u"snap/firefox/common/.mozilla/firefox"},
    Installation{u"firefox", u"flatpak", Firefox, u"",
                 u".var/app/org.mozilla.firefox/config/mozilla/firefox"},
    Installation{u"firefox", u"old-flatpak", Firefox, u"", u".var/app/org.mozilla.firefox/.mozilla/firefox"},
    Installation{u"librewolf", u"", Firefox, u"LibreWolf", u".config/librewolf/librewolf"},
    Installation{u"librewolf", u"old", Firefox, u"", u".librewolf"},
    Installation{u"librewolf", u"flatpak", Firefox, u"",
                 u".var/app/io.gitlab.librewolf-community/config/librewolf/librewolf"},
    Installation{u"librewolf", u"old-flatpak", Firefox, u"",
                 u".var/app/io.gitlab.librewolf-community/.librewolf"},
    Installation{u"waterfox", u"", Firefox, u"Waterfox", u".waterfox"},
    Installation{u"waterfox", u"flatpak", Firefox, u"", u".var/app/net.waterfox.waterfox/.waterfox"},
    Installation{u"floorp", u"", Firefox, u"Floorp", u".floorp"},
    Installation{u"floorp", u"flatpak", Firefox, u"", u".var/app/one.ablaze.floorp/.floorp"},
    Installation{u"zen", u"", Firefox, u"zen", u".config/zen"},
    Installation{u"zen", u"old", Firefox, u"", u".zen"},
    Installation{u"zen", u"flatpak", Firefox, u"", u".var/app/app.zen_browser.zen/.zen"}};

} // namespace

QString Installation::dataFolder(Layout layout) const
{
    if (layout == Layout::Linux)
        return linuxFolder.toString();
    if (macFolder.isEmpty())
        throw Failure(kind % u'@' % key % u" has no folder on a Mac");
    return u"Library/Application Support/" % macFolder;
}

QList<Installation> allInstallations()
{
    return {installations.begin(), installations.end()};
}

const Installation &installation(const QString &name)
{
    const qsizetype at = name.indexOf(u'@');
    const QStringView kind = QStringView(name).first(at < 0 ? name.size() : at);
    const QStringView key = at < 0 ? QStringView() : QStringView(name).sliced(at + 1);
    const auto *found = std::find_if(installations.begin(), installations.end(),
                                     [&](const auto &row) { return row.kind == kind && row.key == key; });
    if (found == installations.end())
        throw Failure(u"no sample of \""_s % name % u"\" is known");
    return *found;
}

} // namespace roamlet::sample
