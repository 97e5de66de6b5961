// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/LinuxWorkspaceTest.h"

#include <ostream>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// An installation of a browser: where its data lies, its entry, and the classes of its windows where its
/// pages are typed into one.
struct Installed {
    QString browser;
    QString key;
    QString data;
    QString entry;
    QStringList windowClasses;
};

/// What a test of it is called.
void PrintTo(const Installed &installed, std::ostream *stream)
{
    *stream << QString(installed.browser % u'@' % installed.key % u": " % installed.entry).toStdString();
}

class BrowserEntryTest : public LinuxWorkspaceTest, public ::testing::WithParamInterface<Installed>
{
};

TEST_P(BrowserEntryTest, everyBrowserIsOpenedByItsEntry)
{
    const auto &[browser, key, data, entry, windowClasses] = GetParam();
    QString command = desktop.addProgram(entry);
    if (key.endsWith(u"flatpak"))
        command = desktop.addProgram(u"flatpak"_s) % u" run " % entry;
    else if (key == u"snap")
        command = desktop.addProgram(u"snap/bin/"_s % entry);
    desktop.addEntry(entry % u".desktop", command % u" %U");
    keepDataIn(data);
    keepFirefoxIn(data, u"Default"_s);
    const Source source = profileOf(browserKind(browser), u"Default"_s, key);

    EXPECT_EQ(workspace.installedBrowsers(), QList{source.kind});
    workspace.openInProfile({u"http://a/"_s}, source);
    const FakeDesktop::Start start = onlyStart();
    EXPECT_EQ(key.endsWith(u"flatpak") ? start.arguments.value(1) : start.program, entry);
    EXPECT_EQ(start.arguments.last(), u"http://a/");
    workspace.showPage(u"about:a"_s, source);
    EXPECT_EQ(starts().size(), 2);
    EXPECT_EQ(windows->askedClasses, windowClasses);
}

INSTANTIATE_TEST_SUITE_P(
    Chromiums, BrowserEntryTest,
    ::testing::Values(
        Installed{u"chrome"_s, {}, u".config/google-chrome"_s, u"google-chrome"_s, {u"google-chrome"_s}},
        Installed{u"chrome"_s,
                  u"beta"_s,
                  u".config/google-chrome-beta"_s,
                  u"google-chrome-beta"_s,
                  {u"google-chrome-beta"_s}},
        Installed{u"chrome"_s,
                  u"dev"_s,
                  u".config/google-chrome-unstable"_s,
                  u"google-chrome-unstable"_s,
                  {u"google-chrome-unstable"_s}},
        Installed{u"chrome"_s,
                  u"flatpak"_s,
                  u".var/app/com.google.Chrome/config/google-chrome"_s,
                  u"com.google.Chrome"_s,
                  {u"google-chrome"_s}},
        Installed{u"chrome"_s,
                  u"dev-flatpak"_s,
                  u".var/app/com.google.ChromeDev/config/google-chrome-unstable"_s,
                  u"com.google.ChromeDev"_s,
                  {u"google-chrome-unstable"_s}},
        Installed{u"edge"_s, {}, u".config/microsoft-edge"_s, u"microsoft-edge"_s, {u"microsoft-edge"_s}},
        Installed{u"edge"_s,
                  u"beta"_s,
                  u".config/microsoft-edge-beta"_s,
                  u"microsoft-edge-beta"_s,
                  {u"microsoft-edge-beta"_s}},
        Installed{u"edge"_s,
                  u"dev"_s,
                  u".config/microsoft-edge-dev"_s,
                  u"microsoft-edge-dev"_s,
                  {u"microsoft-edge-dev"_s}},
        Installed{u"edge"_s,
                  u"flatpak"_s,
                  u".var/app/com.microsoft.Edge/config/microsoft-edge"_s,
                  u"com.microsoft.Edge"_s,
                  {u"microsoft-edge"_s}},
        Installed{u"edge"_s,
                  u"beta-flatpak"_s,
                  u".var/app/com.microsoft.Edge/config/microsoft-edge-beta"_s,
                  u"com.microsoft.Edge"_s,
                  {u"microsoft-edge-beta"_s}},
        Installed{
            u"chromium"_s, {}, u".config/chromium"_s, u"chromium"_s, {u"chromium"_s, u"chromium-browser"_s}},
        Installed{u"chromium"_s,
                  {},
                  u".config/chromium"_s,
                  u"chromium-browser"_s,
                  {u"chromium"_s, u"chromium-browser"_s}},
        Installed{u"chromium"_s,
                  u"snap"_s,
                  u"snap/chromium/common/chromium"_s,
                  u"chromium_chromium"_s,
                  {u"chromium"_s, u"chromium-browser"_s}},
        Installed{u"chromium"_s,
                  u"flatpak"_s,
                  u".var/app/org.chromium.Chromium/config/chromium"_s,
                  u"org.chromium.Chromium"_s,
                  {u"chromium"_s, u"chromium-browser"_s}},
        Installed{u"chromium"_s,
                  u"flatpak"_s,
                  u".var/app/io.github.ungoogled_software.ungoogled_chromium/config/chromium"_s,
                  u"io.github.ungoogled_software.ungoogled_chromium"_s,
                  {u"chromium"_s, u"chromium-browser"_s}},
        Installed{u"brave"_s,
                  {},
                  u".config/BraveSoftware/Brave-Browser"_s,
                  u"brave-browser"_s,
                  {u"brave-browser"_s}},
        Installed{u"brave"_s,
                  u"beta"_s,
                  u".config/BraveSoftware/Brave-Browser-Beta"_s,
                  u"brave-browser-beta"_s,
                  {u"brave-browser-beta"_s}},
        Installed{u"brave"_s,
                  u"nightly"_s,
                  u".config/BraveSoftware/Brave-Browser-Nightly"_s,
                  u"brave-browser-nightly"_s,
                  {u"brave-browser-nightly"_s}},
        Installed{u"brave"_s,
                  u"snap"_s,
                  u"snap/brave/current/.config/BraveSoftware/Brave-Browser"_s,
                  u"brave_brave"_s,
                  {u"brave-browser"_s}},
        Installed{u"brave"_s,
                  u"flatpak"_s,
                  u".var/app/com.brave.Browser/config/BraveSoftware/Brave-Browser"_s,
                  u"com.brave.Browser"_s,
                  {u"brave-browser"_s}},
        Installed{u"vivaldi"_s, {}, u".config/vivaldi"_s, u"vivaldi-stable"_s, {u"vivaldi-stable"_s}},
        Installed{u"vivaldi"_s,
                  u"nightly"_s,
                  u".config/vivaldi-snapshot"_s,
                  u"vivaldi-snapshot"_s,
                  {u"vivaldi-snapshot"_s}},
        Installed{u"vivaldi"_s,
                  u"snap"_s,
                  u"snap/vivaldi/current/.config/vivaldi"_s,
                  u"vivaldi_vivaldi-stable"_s,
                  {u"vivaldi-stable"_s}},
        Installed{u"vivaldi"_s,
                  u"flatpak"_s,
                  u".var/app/com.vivaldi.Vivaldi/config/vivaldi"_s,
                  u"com.vivaldi.Vivaldi"_s,
                  {u"vivaldi-stable"_s}},
        Installed{u"opera"_s, {}, u".config/opera"_s, u"opera"_s, {u"Opera"_s}},
        Installed{u"opera"_s, u"beta"_s, u".config/opera-beta"_s, u"opera-beta"_s, {u"Opera beta"_s}},
        Installed{
            u"opera"_s, u"dev"_s, u".config/opera-developer"_s, u"opera-developer"_s, {u"Opera developer"_s}},
        Installed{
            u"opera"_s, u"snap"_s, u"snap/opera/current/.config/opera"_s, u"opera_opera"_s, {u"Opera"_s}},
        Installed{u"opera"_s,
                  u"flatpak"_s,
                  u".var/app/com.opera.Opera/config/opera"_s,
                  u"com.opera.Opera"_s,
                  {u"Opera"_s}}));

INSTANTIATE_TEST_SUITE_P(
    Firefoxes, BrowserEntryTest,
    ::testing::Values(
        Installed{u"firefox"_s, {}, u".config/mozilla/firefox"_s, u"firefox"_s, {}},
        Installed{u"firefox"_s, {}, u".mozilla/firefox"_s, u"firefox-esr"_s, {}},
        Installed{u"firefox"_s,
                  u"flatpak"_s,
                  u".var/app/org.mozilla.firefox/config/mozilla/firefox"_s,
                  u"org.mozilla.firefox"_s,
                  {}},
        Installed{
            u"firefox"_s, u"snap"_s, u"snap/firefox/common/.mozilla/firefox"_s, u"firefox_firefox"_s, {}},
        Installed{u"librewolf"_s, {}, u".librewolf"_s, u"librewolf"_s, {}},
        Installed{u"librewolf"_s,
                  u"flatpak"_s,
                  u".var/app/io.gitlab.librewolf-community/.librewolf"_s,
                  u"io.gitlab.librewolf-community"_s,
                  {}},
        Installed{u"waterfox"_s, {}, u".waterfox"_s, u"waterfox"_s, {}},
        Installed{u"waterfox"_s,
                  u"flatpak"_s,
                  u".var/app/net.waterfox.waterfox/.waterfox"_s,
                  u"net.waterfox.waterfox"_s,
                  {}},
        Installed{u"floorp"_s, {}, u".floorp"_s, u"floorp"_s, {}},
        Installed{
            u"floorp"_s, u"flatpak"_s, u".var/app/one.ablaze.floorp/.floorp"_s, u"one.ablaze.floorp"_s, {}},
        Installed{u"zen"_s, {}, u".config/zen"_s, u"zen"_s, {}},
        Installed{u"zen"_s, {}, u".zen"_s, u"zen-browser"_s, {}},
        Installed{
            u"zen"_s, u"flatpak"_s, u".var/app/app.zen_browser.zen/.zen"_s, u"app.zen_browser.zen"_s, {}}));

} // namespace
} // namespace roamlet::testing
