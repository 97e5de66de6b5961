// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/LinuxWorkspaceTest.h"

#include "Platform/Variable.h"

#include <QDir>
#include <QFile>

#include <chrono>
#include <gmock/gmock.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST_F(LinuxWorkspaceTest, aProfileIsOpenedByTheBrowsersOwnCommand)
{
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    keepDataIn(u".config/google-chrome"_s);
    workspace.openInProfile({u"http://a/"_s, u"http://b/"_s},
                            profileOf(Source::Kind::Chrome, u"Profile 1"_s));
    const FakeDesktop::Start start = onlyStart();
    EXPECT_EQ(start.program, u"chrome");
    EXPECT_EQ(start.arguments,
              QStringList({u"--profile-directory=Profile 1"_s, u"--ignore-profile-directory-if-not-exists"_s,
                           u"http://a/"_s, u"http://b/"_s}));
}

TEST_F(LinuxWorkspaceTest, whatIsStartedGetsTheTokenByWhichItMayComeForward)
{
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    keepDataIn(u".config/google-chrome"_s);
    workspace.setActivationToken(u"a token"_s);
    workspace.openInProfile({u"http://a/"_s}, profileOf(Source::Kind::Chrome, u"Profile 1"_s));
    workspace.finishStarts();
    workspace.open({u"http://b/"_s}, Source::Kind::Chrome);
    workspace.finishStarts();
    workspace.setActivationToken({});
    workspace.openInProfile({u"http://c/"_s}, profileOf(Source::Kind::Chrome, u"Profile 1"_s));
    QStringList tokens;
    for (const FakeDesktop::Start &start : starts())
        tokens.append(QString(start.arguments.last() % u' ' % start.activationToken));
    EXPECT_THAT(tokens, ::testing::UnorderedElementsAre(u"http://a/ a token"_s, u"http://b/ a token"_s,
                                                        u"http://c/ "_s));
    // Nothing of it stays in this process.
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

TEST_F(LinuxWorkspaceTest, aProfileInTheDataFolderItselfIsNamedToNobody)
{
    desktop.addApplication(u"opera.desktop"_s, u"opera"_s);
    keepDataIn(u".config/opera"_s);
    windows->isSteerable = false;
    workspace.openInProfile({u"http://a/"_s}, profileOf(browserKind(u"opera"), u""_s));
    workspace.showPage(u"opera://bookmarks/"_s, profileOf(browserKind(u"opera"), u""_s));
    const QList<FakeDesktop::Start> started = starts();
    ASSERT_EQ(started.size(), 2);
    EXPECT_EQ(started.at(0).arguments, QStringList{u"about:blank"_s});
    EXPECT_EQ(started.at(1).arguments, QStringList{u"http://a/"_s});
}

TEST_F(LinuxWorkspaceTest, aSideProfileOfOperasIsStartedByItsName)
{
    desktop.addApplication(u"opera.desktop"_s, u"opera"_s);
    keepDataIn(u".config/opera"_s);
    sample::writeFile(home.path(u".config/opera/_side_profiles/My Work/History"_s), "");
    sample::writeFile(home.path(u".config/opera/_side_profiles/Play/Default/History"_s), "");
    windows->isSteerable = false;
    workspace.openInProfile({u"http://a/"_s}, profileOf(browserKind(u"opera"), u"_side_profiles/My Work"_s));
    workspace.showPage(u"opera://bookmarks/"_s,
                       profileOf(browserKind(u"opera"), u"_side_profiles/Play/Default"_s));
    const QList<FakeDesktop::Start> started = starts();
    ASSERT_EQ(started.size(), 2);
    EXPECT_EQ(started.at(0).arguments, QStringList({u"--side-profile-name=My Work"_s,
                                                    u"--with-feature:side-profiles"_s, u"http://a/"_s}));
    EXPECT_EQ(started.at(1).arguments, QStringList({u"--side-profile-name=Play"_s,
                                                    u"--with-feature:side-profiles"_s, u"about:blank"_s}));
}

TEST_F(LinuxWorkspaceTest, aSideProfileOfOperasThatIsGoneDoesNotComeBack)
{
    desktop.addApplication(u"opera.desktop"_s, u"opera"_s);
    keepDataIn(u".config/opera"_s);
    const Source gone = profileOf(browserKind(u"opera"), u"_side_profiles/Work"_s);
    workspace.openInProfile({u"http://a/"_s}, gone);
    workspace.showPage(u"opera://bookmarks/"_s, gone);
    EXPECT_TRUE(starts().isEmpty());
}

TEST_F(LinuxWorkspaceTest, whetherAnythingIsOpenedIsSaid)
{
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    const Source chrome = profileOf(Source::Kind::Chrome, u"Default"_s);
    EXPECT_TRUE(workspace.openInProfile({u"http://a/"_s}, chrome));
    EXPECT_TRUE(workspace.open({u"http://b/"_s}, Source::Kind::Chrome));
    EXPECT_FALSE(workspace.openInProfile({u"http://a/"_s}, profileOf(Source::Kind::Edge, u"Default"_s)));
    EXPECT_FALSE(workspace.open({u"http://a/"_s}, Source::Kind::Edge));
    EXPECT_FALSE(workspace.openInProfile({QString(200'000, u'a')}, chrome)) << "longer than any argument";
    EXPECT_FALSE(workspace.open({u"history://"_s}, Source::Kind::Safari));
    EXPECT_TRUE(workspace.finishStarts());
    EXPECT_EQ(starts().size(), 2);
}

TEST_F(LinuxWorkspaceTest, aBrowserThatCannotBeStartedIsSaid)
{
    const QString program = desktop.addProgram(u"chrome"_s);
    desktop.addEntry(u"google-chrome.desktop"_s, program % u" %U");
    // It can be run, and there is nothing to run it with.
    sample::writeFile(program, "#!/nowhere/at-all\n");
    EXPECT_TRUE(workspace.openInProfile({u"http://a/"_s}, profileOf(Source::Kind::Chrome, u"Default"_s)));
    EXPECT_FALSE(workspace.finishStarts());
}

TEST_F(LinuxWorkspaceTest, noShellSeesTheArguments)
{
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    const QString url = u"http://a/$(touch x);`id`'\"&|\\ *?%u%20ä"_s;
    workspace.openInProfile({url}, profileOf(Source::Kind::Chrome, u"$HOME \"1\""_s));
    EXPECT_EQ(onlyStart().arguments, QStringList({u"--profile-directory=$HOME \"1\""_s,
                                                  u"--ignore-profile-directory-if-not-exists"_s, url}));
}

TEST_F(LinuxWorkspaceTest, theEntrysOwnArgumentsStay)
{
    desktop.addEntry(u"google-chrome.desktop"_s, u"env LANG=C \"" % desktop.addProgram(u"my chrome"_s) %
                                                     u"\" --dark \"--name=a b\" --rate=5%% %i %c %U");
    workspace.openInProfile({u"http://a/"_s}, profileOf(Source::Kind::Chrome, u"Default"_s));
    const FakeDesktop::Start start = onlyStart();
    EXPECT_EQ(start.program, u"my chrome");
    EXPECT_EQ(start.arguments,
              QStringList({u"--dark"_s, u"--name=a b"_s, u"--rate=5%"_s, u"--profile-directory=Default"_s,
                           u"--ignore-profile-directory-if-not-exists"_s, u"http://a/"_s}));
}

TEST_F(LinuxWorkspaceTest, eitherNameOfABrowsersEntryWillDo)
{
    desktop.addApplication(u"com.google.Chrome.desktop"_s, u"chrome"_s);
    desktop.addApplication(u"com.microsoft.Edge.desktop"_s, u"edge"_s);
    keepDataIn(u".config/google-chrome"_s);
    keepDataIn(u".config/microsoft-edge"_s);
    EXPECT_EQ(programForLink(Source::Kind::Chrome), u"chrome");
    EXPECT_TRUE(hasBrowser(Source::Kind::Edge));
}

TEST_F(LinuxWorkspaceTest, edgeIsKnownByItsPackagesEntry)
{
    desktop.addApplication(u"microsoft-edge.desktop"_s, u"edge"_s);
    keepDataIn(u".config/microsoft-edge"_s);
    EXPECT_EQ(programForLink(Source::Kind::Edge), u"edge");
    EXPECT_FALSE(hasBrowser(Source::Kind::Chrome));
}

TEST_F(LinuxWorkspaceTest, dataOfTheFlatpakIsOpenedByTheFlatpak)
{
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    addFlatpakChrome();
    keepDataIn(u".var/app/com.google.Chrome/config/google-chrome"_s);
    workspace.openInProfile({u"http://a/"_s}, profileOf(Source::Kind::Chrome, u"Default"_s, u"flatpak"_s));
    const FakeDesktop::Start start = onlyStart();
    EXPECT_EQ(start.program, u"flatpak");
    EXPECT_EQ(start.arguments,
              QStringList({u"run"_s, u"--branch=stable"_s, u"--command=/app/bin/chrome"_s,
                           u"--file-forwarding"_s, u"com.google.Chrome"_s, u"--profile-directory=Default"_s,
                           u"--ignore-profile-directory-if-not-exists"_s, u"http://a/"_s}));
}

TEST_F(LinuxWorkspaceTest, thePackageIsToldFromTheFlatpakByItsCommand)
{
    addFlatpakChrome();
    desktop.addEntry(u"com.google.Chrome.desktop"_s, desktop.addProgram(u"chrome"_s) % u" %U", {}, 1);
    keepDataIn(u".config/google-chrome"_s);
    EXPECT_EQ(programForLink(Source::Kind::Chrome), u"chrome");
}

TEST_F(LinuxWorkspaceTest, anotherInstallationDoesNotStandInForAProfile)
{
    addFlatpakChrome();
    keepDataIn(u".config/google-chrome"_s);
    // Its profiles are others, whatever their names.
    workspace.openInProfile({u"http://a/"_s}, profileOf(Source::Kind::Chrome, u"Default"_s));
    workspace.showPage(u"chrome://history/"_s, profileOf(Source::Kind::Chrome, u"Default"_s));
    EXPECT_TRUE(starts().isEmpty());
    EXPECT_EQ(windows->looks, 0);
    // Without a profile the browser is the browser.
    EXPECT_TRUE(hasBrowser(Source::Kind::Chrome));
    workspace.open({u"http://a/"_s}, Source::Kind::Chrome);
    EXPECT_EQ(onlyStart().program, u"flatpak");
}

TEST_F(LinuxWorkspaceTest, installedBrowsersComeInTheOrderInWhichBrowsersAreListed)
{
    EXPECT_EQ(workspace.installedBrowsers(), QList<Source::Kind>());
    desktop.addApplication(u"firefox.desktop"_s, u"firefox"_s);
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    desktop.addApplication(u"opera.desktop"_s, u"opera"_s);
    keepFirefoxIn(u".mozilla/firefox"_s, u"abc.default"_s);
    EXPECT_EQ(workspace.installedBrowsers(),
              QList({Source::Kind::Chrome, browserKind(u"opera"), browserKind(u"firefox")}));
}

TEST_F(LinuxWorkspaceTest, chromiumIsABrowserOfItsOwn)
{
    desktop.addApplication(u"chromium.desktop"_s, u"chromium"_s);
    keepDataIn(u".config/chromium"_s);
    EXPECT_TRUE(hasBrowser(browserKind(u"chromium")));
    EXPECT_FALSE(hasBrowser(Source::Kind::Chrome));
    EXPECT_EQ(programForLink(browserKind(u"chromium")), u"chromium");
}

TEST_F(LinuxWorkspaceTest, aSettingMayNameTheDataOfAnotherBrowser)
{
    desktop.addApplication(u"chromium.desktop"_s, u"chromium"_s);
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    keepDataIn(u".config/chromium"_s);
    home.defaults.setString(u"dataRoot.chrome"_s, u"~/.config/chromium"_s);
    EXPECT_EQ(programForLink(Source::Kind::Chrome), u"chromium");
}

TEST_F(LinuxWorkspaceTest, aFolderThatASettingNamesOpensInTheInstallationOfItsKey)
{
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    desktop.addApplication(u"firefox.desktop"_s, u"firefox"_s);
    keepDataIn(u"mnt/x"_s);
    keepFirefoxIn(u"mnt/y"_s, u"abc.default"_s);
    home.defaults.setString(u"dataRoot.chrome@beta"_s, home.path(u"mnt/x"_s));
    home.defaults.setString(u"dataRoot.firefox@snap"_s, home.path(u"mnt/y"_s));
    const Source chrome = profileOf(Source::Kind::Chrome, u"Default"_s, u"beta"_s);
    const Source firefox = profileOf(browserKind(u"firefox"), u"abc.default"_s, u"snap"_s);
    workspace.openInProfile({u"http://a/"_s}, chrome);
    workspace.openInProfile({u"http://a/"_s}, firefox);
    EXPECT_TRUE(starts().isEmpty()) << "the package stands in for it";

    desktop.addApplication(u"google-chrome-beta.desktop"_s, u"chrome-beta"_s);
    desktop.addApplication(u"firefox_firefox.desktop"_s, u"snap/bin/firefox-snap"_s);
    workspace.openInProfile({u"http://a/"_s}, chrome);
    workspace.openInProfile({u"http://a/"_s}, firefox);
    const QList<FakeDesktop::Start> started = starts();
    ASSERT_EQ(started.size(), 2);
    EXPECT_EQ(started.at(0).program, u"chrome-beta");
    EXPECT_EQ(started.at(1).program, u"firefox-snap");
    EXPECT_EQ(started.at(1).arguments.value(1), home.path(u"mnt/y/abc.default"_s));
}

TEST_F(LinuxWorkspaceTest, eachInstallationOpensItsOwnData)
{
    desktop.addApplication(u"chromium.desktop"_s, u"chromium"_s);
    desktop.addEntry(u"org.chromium.Chromium.desktop"_s,
                     desktop.addProgram(u"flatpak"_s) % u" run org.chromium.Chromium @@u %U @@");
    keepDataIn(u".config/chromium"_s);
    keepDataIn(u".var/app/org.chromium.Chromium/config/chromium"_s);
    EXPECT_EQ(programForLink(browserKind(u"chromium"), u"flatpak"_s), u"flatpak");
    workspace.openInProfile({u"http://a/"_s}, profileOf(browserKind(u"chromium"), u"Default"_s));
    EXPECT_EQ(starts().value(0).program, u"chromium");
}

TEST_F(LinuxWorkspaceTest, ofTwoFlatpaksTheOneWithTheDataOpensIt)
{
    for (const QString &id :
         {u"org.chromium.Chromium"_s, u"io.github.ungoogled_software.ungoogled_chromium"_s})
        desktop.addEntry(id % u".desktop", desktop.addProgram(u"flatpak"_s) % u" run " % id % u" @@u %U @@");
    keepDataIn(u".var/app/io.github.ungoogled_software.ungoogled_chromium/config/chromium"_s);
    workspace.openInProfile({u"http://a/"_s},
                            profileOf(browserKind(u"chromium"), u"Default"_s, u"flatpak"_s));
    EXPECT_EQ(onlyStart().arguments.value(1), u"io.github.ungoogled_software.ungoogled_chromium");
}

TEST_F(LinuxWorkspaceTest, aSnapIsKnownWhereverSnapsAreMounted)
{
    desktop.addEntry(u"chromium_chromium.desktop"_s,
                     desktop.addProgram(u"env"_s) % u" X=1 /var/lib/snapd/snap/bin/chromium %U");
    keepDataIn(u".config/chromium"_s);
    workspace.openInProfile({u"http://a/"_s}, profileOf(browserKind(u"chromium"), u"Default"_s));
    EXPECT_TRUE(starts().isEmpty()) << "a snap stands in for the package";
    keepDataIn(u"snap/chromium/common/chromium"_s);
    EXPECT_EQ(programForLink(browserKind(u"chromium"), u"snap"_s), u"env");
}

TEST_F(LinuxWorkspaceTest, chromiumsSnapIsNotThePackage)
{
    desktop.addApplication(u"chromium.desktop"_s, u"chromium"_s);
    keepDataIn(u"snap/chromium/common/chromium"_s);
    workspace.openInProfile({u"http://a/"_s}, profileOf(browserKind(u"chromium"), u"Default"_s, u"snap"_s));
    EXPECT_TRUE(starts().isEmpty());
}

TEST_F(LinuxWorkspaceTest, aTestVersionOpensItsOwnData)
{
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    keepDataIn(u".config/google-chrome-beta"_s);
    workspace.openInProfile({u"http://a/"_s}, profileOf(Source::Kind::Chrome, u"Default"_s, u"beta"_s));
    EXPECT_TRUE(starts().isEmpty()) << "another version stands in for it";
    desktop.addApplication(u"google-chrome-beta.desktop"_s, u"chrome-beta"_s);
    EXPECT_EQ(programForLink(Source::Kind::Chrome, u"beta"_s), u"chrome-beta");
}

TEST_F(LinuxWorkspaceTest, anEarlyVersionsDataIsOpenedByTheEarlyVersion)
{
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    desktop.addApplication(u"microsoft-edge.desktop"_s, u"edge"_s);
    home.defaults.setString(u"dataRoot.chrome"_s, u"~/.config/google-chrome-beta"_s);
    home.defaults.setString(u"dataRoot.edge"_s, u"~/.config/microsoft-edge-dev"_s);
    workspace.openInProfile({u"http://a/"_s}, profileOf(Source::Kind::Chrome, u"Default"_s));
    workspace.openInProfile({u"http://a/"_s}, profileOf(Source::Kind::Edge, u"Default"_s));
    EXPECT_TRUE(starts().isEmpty()) << "another version stands in for it";
    desktop.addApplication(u"google-chrome-beta.desktop"_s, u"chrome-beta"_s);
    EXPECT_EQ(programForLink(Source::Kind::Chrome), u"chrome-beta");
    desktop.addApplication(u"microsoft-edge-dev.desktop"_s, u"edge-dev"_s);
    workspace.showPage(u"edge://favorites/"_s, profileOf(Source::Kind::Edge, u"Default"_s));
    EXPECT_EQ(starts().value(1).program, u"edge-dev");
    EXPECT_EQ(windows->askedClasses, QStringList{u"microsoft-edge-dev"_s});
}

TEST_F(LinuxWorkspaceTest, dataFromAMacIsOpenedByTheBrowserThatIsHere)
{
    keepDataIn(u"Library/Application Support/Google/Chrome"_s);
    addFlatpakChrome();
    EXPECT_EQ(programForLink(Source::Kind::Chrome), u"flatpak");
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    workspace.open({u"http://a/"_s}, Source::Kind::Chrome);
    EXPECT_EQ(starts().value(0).program, u"chrome");
}

TEST_F(LinuxWorkspaceTest, dataFromAMacThatLiesAsItDoesHereIsOpenedByTheBrowserThatIsHere)
{
    keepDataIn(u"Library/Application Support/BraveSoftware/Brave-Browser"_s);
    desktop.addEntry(u"com.brave.Browser.desktop"_s,
                     desktop.addProgram(u"flatpak"_s) %
                         u" run --command=brave --file-forwarding com.brave.Browser @@u %U @@");
    EXPECT_EQ(programForLink(browserKind(u"brave")), u"flatpak");
}

TEST_F(LinuxWorkspaceTest, anEntryThatCannotBeStartedIsNoApplication)
{
    desktop.addEntry(u"google-chrome.desktop"_s, {});
    EXPECT_FALSE(hasBrowser(Source::Kind::Chrome));
    desktop.addEntry(u"google-chrome.desktop"_s, u""_s);
    EXPECT_FALSE(hasBrowser(Source::Kind::Chrome));
    desktop.addEntry(u"google-chrome.desktop"_s, u"%U"_s);
    EXPECT_FALSE(hasBrowser(Source::Kind::Chrome));
    desktop.addEntry(u"google-chrome.desktop"_s, u"/nonexistent/chrome %U"_s);
    EXPECT_FALSE(hasBrowser(Source::Kind::Chrome));
    desktop.addEntry(u"google-chrome.desktop"_s, u"\"unclosed %U"_s);
    EXPECT_FALSE(hasBrowser(Source::Kind::Chrome));
    desktop.addEntry(u"google-chrome.desktop"_s, desktop.addProgram(u"chrome"_s),
                     u"TryExec=/nonexistent\n"_s);
    EXPECT_FALSE(hasBrowser(Source::Kind::Chrome));

    workspace.openInProfile({u"http://a/"_s}, profileOf(Source::Kind::Chrome, u"Default"_s));
    workspace.open({u"http://a/"_s}, Source::Kind::Chrome);
    EXPECT_TRUE(starts().isEmpty());
    // The system's entry counts where the user's own is broken.
    desktop.addEntry(u"google-chrome.desktop"_s, desktop.addProgram(u"chrome"_s) % u" %U", {}, 1);
    EXPECT_TRUE(hasBrowser(Source::Kind::Chrome));
}

TEST_F(LinuxWorkspaceTest, anEntryThatHidesTheApplicationHidesAllOfItsName)
{
    desktop.addEntry(u"google-chrome.desktop"_s, desktop.addProgram(u"chrome"_s) % u" %U", {}, 1);
    EXPECT_TRUE(hasBrowser(Source::Kind::Chrome));
    desktop.addEntry(u"google-chrome.desktop"_s, desktop.addProgram(u"chrome"_s) % u" %U",
                     u"Hidden=true\n"_s);
    EXPECT_FALSE(hasBrowser(Source::Kind::Chrome));
    // It need not say what it hides.
    desktop.addEntry(u"google-chrome.desktop"_s, {}, u"Hidden=true\n"_s);
    EXPECT_FALSE(hasBrowser(Source::Kind::Chrome));
}

TEST_F(LinuxWorkspaceTest, aBrokenEntryIsNoApplication)
{
    desktop.addEntry(u"google-chrome.desktop"_s, desktop.addProgram(u"chrome"_s),
                     u"Type=Link\nURL=http://a/\n"_s);
    EXPECT_FALSE(hasBrowser(Source::Kind::Chrome));
    EXPECT_TRUE(QDir().mkpath(desktop.dataFolders().first() % u"/applications/com.google.Chrome.desktop"));
    EXPECT_FALSE(hasBrowser(Source::Kind::Chrome));
}

TEST_F(LinuxWorkspaceTest, urlsWithoutAProfileGoToTheApplicationAtOnce)
{
    desktop.addApplication(u"microsoft-edge.desktop"_s, u"edge"_s);
    workspace.open({u"http://a/?x='1'"_s, u"about:blank"_s}, Source::Kind::Edge);
    EXPECT_EQ(onlyStart().arguments, QStringList({u"http://a/?x='1'"_s, u"about:blank"_s}));
}

TEST_F(LinuxWorkspaceTest, anApplicationThatTakesOneUrlIsStartedForEach)
{
    desktop.addEntry(u"microsoft-edge.desktop"_s, desktop.addProgram(u"edge"_s) % u" %u");
    workspace.open({u"http://a/"_s, u"http://b/"_s}, Source::Kind::Edge);
    const QList<FakeDesktop::Start> started = starts();
    ASSERT_EQ(started.size(), 2);
    EXPECT_EQ(started.at(0).arguments, QStringList({u"http://a/"_s}));
    EXPECT_EQ(started.at(1).arguments, QStringList({u"http://b/"_s}));
}

TEST_F(LinuxWorkspaceTest, severalUrlsAreOneStartOfAFirefox)
{
    desktop.addEntry(u"firefox.desktop"_s, desktop.addProgram(u"firefox"_s) % u" --own-option %u");
    desktop.addEntry(u"app.zen_browser.zen.desktop"_s,
                     desktop.addProgram(u"flatpak"_s) %
                         u" run --file-forwarding app.zen_browser.zen @@u %u @@");
    for (const QStringView browser : {u"firefox", u"zen"})
        workspace.open({u"http://a/"_s, u"http://b/?x='1'"_s, u"about:blank"_s}, browserKind(browser));
    const QList<FakeDesktop::Start> started = starts();
    ASSERT_EQ(started.size(), 2);
    EXPECT_EQ(started.at(0).arguments,
              QStringList({u"--own-option"_s, u"http://a/"_s, u"http://b/?x='1'"_s, u"about:blank"_s}));
    EXPECT_EQ(started.at(1).arguments,
              QStringList({u"run"_s, u"--file-forwarding"_s, u"app.zen_browser.zen"_s, u"http://a/"_s,
                           u"http://b/?x='1'"_s, u"about:blank"_s}));
}

TEST_F(LinuxWorkspaceTest, aSingleUrlIsLeftToFirefoxsEntry)
{
    // Only there does a Flatpak let the browser see a file.
    desktop.addEntry(u"org.mozilla.firefox.desktop"_s,
                     desktop.addProgram(u"flatpak"_s) %
                         u" run --file-forwarding org.mozilla.firefox @@u %u @@");
    workspace.open({u"file:///tmp/a.html"_s}, browserKind(u"firefox"));
    EXPECT_EQ(onlyStart().arguments, QStringList({u"run"_s, u"--file-forwarding"_s, u"org.mozilla.firefox"_s,
                                                  u"@@u"_s, u"/tmp/a.html"_s, u"@@"_s}));
}

TEST_F(LinuxWorkspaceTest, moreUrlsThanAProgramTakesAreOpenedInSeveralStarts)
{
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    desktop.addApplication(u"firefox.desktop"_s, u"firefox"_s);
    keepFirefoxIn(u".mozilla/firefox"_s, u"abc.default"_s);
    QStringList urls;
    for (int i = 100; i < 320; ++i)
        urls.append(u"http://a/%1"_s.arg(i) % QString(10'000, u'x'));
    workspace.openInProfile(urls, profileOf(browserKind(u"firefox"), u"abc.default"_s));
    workspace.open(urls, Source::Kind::Chrome);
    const QList<FakeDesktop::Start> started = starts();
    QStringList ofChrome;
    QStringList ofFirefox;
    for (const FakeDesktop::Start &start : started) {
        if (start.program == u"chrome")
            ofChrome += start.arguments;
        else
            ofFirefox += start.arguments.sliced(2);
    }
    EXPECT_EQ(ofChrome, urls);
    EXPECT_EQ(ofFirefox, urls);
    EXPECT_EQ(started.size(), 2 * 5) << "as few as will do";
}

TEST_F(LinuxWorkspaceTest, aUrlThatNoProgramTakesKeepsNoOtherFromOpening)
{
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    desktop.addApplication(u"firefox.desktop"_s, u"firefox"_s);
    keepFirefoxIn(u".mozilla/firefox"_s, u"abc.default"_s);
    const QString tooLong = u"http://a/"_s % QString(200'000, u'x');
    const QStringList urls{u"http://b/"_s, tooLong, u"http://c/"_s};
    workspace.openInProfile(urls, profileOf(browserKind(u"firefox"), u"abc.default"_s));
    workspace.open(urls, Source::Kind::Chrome);
    workspace.open({tooLong}, Source::Kind::Chrome);
    const QList<FakeDesktop::Start> started = starts();
    ASSERT_EQ(started.size(), 2);
    EXPECT_EQ(started.at(0).arguments, QStringList({u"http://b/"_s, u"http://c/"_s}));
    EXPECT_EQ(started.at(1).arguments.sliced(2), QStringList({u"http://b/"_s, u"http://c/"_s}));
}

TEST_F(LinuxWorkspaceTest, safariIsNeverHereAndItsLinksOpenInThePreferredBrowser)
{
    EXPECT_FALSE(hasBrowser(Source::Kind::Safari));
    workspace.open({u"http://a/"_s}, Source::Kind::Safari);
    const FakeDesktop::Start start = onlyStart();
    EXPECT_EQ(start.program, u"preferred-browser");
    EXPECT_EQ(start.arguments, QStringList({u"--own-option"_s, u"http://a/"_s}));
}

TEST_F(LinuxWorkspaceTest, safarisOwnPagesOpenNowhere)
{
    EXPECT_FALSE(workspace.canShowPages(Source::Kind::Safari));
    EXPECT_TRUE(workspace.canShowPages(Source::Kind::Chrome)) << "it can be installed";
    workspace.open({u"history://"_s}, Source::Kind::Safari);
    workspace.open({u"bookmarks://"_s}, Source::Kind::Safari);
    EXPECT_TRUE(starts().isEmpty());
}

TEST_F(LinuxWorkspaceTest, aSystemUrlGoesToWhateverTheSystemHasForIt)
{
    workspace.openSystemURL(u"settings:privacy"_s);
    const FakeDesktop::Start start = onlyStart();
    EXPECT_EQ(start.program, u"system-handler");
    EXPECT_EQ(start.arguments, QStringList({u"--own-option"_s, u"settings:privacy"_s}));
}

TEST_F(LinuxWorkspaceTest, aFolderGoesToTheFileManager)
{
    workspace.openSystemURL(u"file:///home/anna/Library"_s);
    const FakeDesktop::Start start = onlyStart();
    EXPECT_EQ(start.program, u"system-handler");
    EXPECT_EQ(start.arguments, QStringList({u"--own-option"_s, u"/home/anna/Library"_s}));
}

TEST_F(LinuxWorkspaceTest, aSystemUrlThatNobodyHandlesOpensNothing)
{
    workspace.openSystemURL(u"x-apple.systempreferences:privacy"_s);
    workspace.openSystemURL(u"no url"_s);
    workspace.openSystemURL({});
    EXPECT_TRUE(starts().isEmpty());
}

TEST_F(LinuxWorkspaceTest, aPageIsTypedIntoABlankTabOfTheProfile)
{
    desktop.addEntry(u"google-chrome.desktop"_s, desktop.addProgram(u"chrome"_s) % u" %U",
                     u"StartupWMClass=My-Chrome\n"_s);
    workspace.showPage(u"chrome://history/"_s, profileOf(Source::Kind::Chrome, u"Profile 1"_s));
    EXPECT_EQ(onlyStart().arguments,
              QStringList({u"--profile-directory=Profile 1"_s, u"--ignore-profile-directory-if-not-exists"_s,
                           u"about:blank"_s}));
    EXPECT_EQ(windows->askedClasses, QStringList({u"google-chrome"_s, u"My-Chrome"_s}));
    windows->window = {.id = 7, .title = u"about:blank - Google Chrome"_s, .isActive = true};
    home.clock.advance(1s);
    EXPECT_EQ(windows->keys.value(2), u"7: chrome://history/");
    EXPECT_EQ(noticed, QStringList());
    EXPECT_TRUE(clipboard.isEmpty());
}

TEST_F(LinuxWorkspaceTest, aPageWithoutAProfileOpensInTheApplication)
{
    desktop.addApplication(u"microsoft-edge.desktop"_s, u"edge"_s);
    workspace.showPage(u"edge://favorites/"_s, profileOf(Source::Kind::Edge, {}));
    EXPECT_EQ(onlyStart().arguments, QStringList({u"about:blank"_s}));
}

TEST_F(LinuxWorkspaceTest, whereNoWindowCanBeSteeredTheUserIsAskedToPasteTheAddress)
{
    desktop.addApplication(u"google-chrome.desktop"_s, u"chrome"_s);
    windows->isSteerable = false;
    workspace.showPage(u"chrome://bookmarks/?id=5"_s, profileOf(Source::Kind::Chrome, u"Default"_s));
    EXPECT_EQ(onlyStart().arguments.value(2), u"about:blank");
    EXPECT_EQ(noticed, QStringList{u"chrome://bookmarks/?id=5"_s});
    EXPECT_TRUE(clipboard.isEmpty()) << "it holds what the user has put there";
    home.clock.advance(10s);
    EXPECT_EQ(windows->looks, 0);
}

TEST(LinuxWorkspaceEnvironmentTest, noWindowIsSteeredInAWaylandSession)
{
    struct Case {
        const char *waylandDisplay;
        const char *sessionType;
        QByteArray display;
    };
    const Case cases[] = {{"", "", ":7"}, {"", "x11", ":7"}, {"wayland-0", "", ""}, {"", "wayland", ""}};
    const QByteArray previous[] = {qgetenv("DISPLAY"), qgetenv("WAYLAND_DISPLAY"),
                                   qgetenv("XDG_SESSION_TYPE")};
    for (const auto &[waylandDisplay, sessionType, display] : cases) {
        qputenv("DISPLAY", ":7");
        qputenv("WAYLAND_DISPLAY", waylandDisplay);
        qputenv("XDG_SESSION_TYPE", sessionType);
        EXPECT_EQ(LinuxWorkspace::Environment::ofThisProcess().display, display);
    }
    qputenv("DISPLAY", previous[0]);
    qputenv("WAYLAND_DISPLAY", previous[1]);
    qputenv("XDG_SESSION_TYPE", previous[2]);
}

} // namespace
} // namespace roamlet::testing
