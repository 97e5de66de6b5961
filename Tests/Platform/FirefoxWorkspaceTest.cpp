// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/LinuxWorkspaceTest.h"
#include "Platform/Variable.h"

#include <QDir>
#include <QFile>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// Firefox is started with the folder of a profile, which only it knows how to take over.
class FirefoxWorkspaceTest : public LinuxWorkspaceTest
{
};

TEST_F(FirefoxWorkspaceTest, firefoxOpensInTheFolderOfItsProfile)
{
    desktop.addApplication(u"firefox-esr.desktop"_s, u"firefox-esr"_s);
    keepFirefoxIn(u".mozilla/firefox"_s, u"abc.default"_s);
    workspace.openInProfile({u"http://a/"_s, u"http://b/"_s},
                            profileOf(browserKind(u"firefox"), u"abc.default"_s));
    const FakeDesktop::Start start = onlyStart();
    EXPECT_EQ(start.program, u"firefox-esr");
    EXPECT_EQ(start.arguments, QStringList({u"--profile"_s, home.path(u".mozilla/firefox/abc.default"_s),
                                            u"http://a/"_s, u"http://b/"_s}));
}

TEST_F(FirefoxWorkspaceTest, ofTwoFirefoxesTheOneThatUsedTheProfileLastOpensIt)
{
    desktop.addApplication(u"firefox.desktop"_s, u"firefox-esr/firefox"_s);
    desktop.addApplication(u"firefox-esr.desktop"_s, u"firefox/firefox-esr"_s);
    const QString root = u".mozilla/firefox"_s;
    keepFirefoxIn(root, u"abc.default"_s);
    keepFirefoxIn(root, u"def.new"_s);
    // The one folder's name begins like the other's.
    useFirefoxLastFrom(desktop.programFolder() % u"/firefox", root, u"abc.default"_s);
    const Source firefox = profileOf(browserKind(u"firefox"), u"abc.default"_s);
    workspace.openInProfile({u"http://a/"_s}, firefox);
    EXPECT_EQ(onlyStart().program, u"firefox-esr");
    workspace.showPage(u"about:firefoxview#history"_s, firefox);
    EXPECT_EQ(starts().value(1).program, u"firefox-esr");
    workspace.openInProfile({u"http://a/"_s}, profileOf(browserKind(u"firefox"), u"def.new"_s));
    EXPECT_EQ(starts().value(0).program, u"firefox") << "a profile that nobody has used yet";
}

TEST_F(FirefoxWorkspaceTest, theFirefoxThatUsedAProfileLastIsKnownBehindLinks)
{
    desktop.addApplication(u"firefox.desktop"_s, u"firefox/firefox"_s);
    QDir programs(desktop.programFolder());
    desktop.addProgram(u"lib/esr/firefox-esr"_s);
    ASSERT_TRUE(programs.mkpath(u"links"_s));
    ASSERT_TRUE(QFile::link(u"../lib/esr/firefox-esr"_s, programs.filePath(u"links/linked-firefox"_s)));
    ASSERT_TRUE(QFile::link(u"lib"_s, programs.filePath(u"lib64"_s)));
    const Variable path("PATH", QFile::encodeName(programs.filePath(u"links"_s)) + ':' + qgetenv("PATH"));
    desktop.addEntry(u"firefox-esr.desktop"_s, u"env LANG=C linked-firefox %u"_s);
    keepFirefoxIn(u".mozilla/firefox"_s, u"abc.default"_s);
    useFirefoxLastFrom(programs.filePath(u"lib64/esr"_s), u".mozilla/firefox"_s, u"abc.default"_s);
    workspace.openInProfile({u"http://a/"_s}, profileOf(browserKind(u"firefox"), u"abc.default"_s));
    EXPECT_EQ(onlyStart().program, u"linked-firefox");
}

TEST_F(FirefoxWorkspaceTest, aFirefoxEntryOfTheUsersOwnStandsBeforeTheSystemsOfThatName)
{
    desktop.addApplication(u"firefox.desktop"_s, u"my-firefox"_s);
    desktop.addEntry(u"firefox.desktop"_s, desktop.addProgram(u"firefox/firefox"_s) % u" %u", {}, 1);
    keepFirefoxIn(u".mozilla/firefox"_s, u"abc.default"_s);
    useFirefoxLastFrom(desktop.programFolder() % u"/firefox", u".mozilla/firefox"_s, u"abc.default"_s);
    workspace.openInProfile({u"http://a/"_s}, profileOf(browserKind(u"firefox"), u"abc.default"_s));
    EXPECT_EQ(onlyStart().program, u"my-firefox");
}

TEST_F(FirefoxWorkspaceTest, whereNoFirefoxHasUsedTheProfileTheFirstOneOpensIt)
{
    desktop.addApplication(u"firefox.desktop"_s, u"firefox/firefox"_s);
    desktop.addApplication(u"firefox-esr.desktop"_s, u"firefox-esr/firefox-esr"_s);
    const QString root = u".mozilla/firefox"_s;
    keepFirefoxIn(root, u"abc.default"_s);
    const QString file = home.path(root % u"/abc.default/compatibility.ini");
    const QByteArray folder = QFile::encodeName(desktop.programFolder()) + "/firefox-esr";
    const QByteArrayList texts{"[Compatibility]\nLastPlatformDir=/usr/lib/gone\n",
                               "[Compatibility]\nLastPlatformDir=\n",
                               "[Compatibility]\n",
                               "",
                               QByteArray("\xFF\0[", 3),
                               "LastPlatformDir=" + folder + '\n',
                               "[Other]\nLastPlatformDir=" + folder + '\n'};
    for (const QByteArray &text : texts) {
        sample::writeFile(file, text);
        workspace.openInProfile({u"http://a/"_s}, profileOf(browserKind(u"firefox"), u"abc.default"_s));
    }
    const QList<FakeDesktop::Start> started = starts();
    EXPECT_EQ(started.size(), texts.size());
    for (const FakeDesktop::Start &start : started)
        EXPECT_EQ(start.program, u"firefox");
}

TEST_F(FirefoxWorkspaceTest, firefoxFindsItsProfileInEitherDataFolder)
{
    desktop.addApplication(u"firefox.desktop"_s, u"firefox"_s);
    keepFirefoxIn(u".config/mozilla/firefox"_s, u"new.default"_s);
    keepFirefoxIn(u".mozilla/firefox"_s, u"old.default"_s);
    workspace.openInProfile({u"http://a/"_s}, profileOf(browserKind(u"firefox"), u"old.default"_s));
    EXPECT_EQ(onlyStart().arguments.value(1), home.path(u".mozilla/firefox/old.default"_s));
}

TEST_F(FirefoxWorkspaceTest, aFirefoxProfileMayLieAnywhere)
{
    desktop.addApplication(u"firefox.desktop"_s, u"firefox"_s);
    keepFirefoxIn(u".mozilla/firefox"_s, u"../../elsewhere"_s);
    const QString folder = home.path(u"elsewhere"_s);
    workspace.openInProfile({u"http://a/"_s}, profileOf(browserKind(u"firefox"), folder));
    EXPECT_EQ(onlyStart().arguments.value(1), folder);
}

TEST_F(FirefoxWorkspaceTest, firefoxIsNotStartedForAProfileThatIsGone)
{
    desktop.addApplication(u"firefox.desktop"_s, u"firefox"_s);
    keepFirefoxIn(u".mozilla/firefox"_s, u"abc.default"_s);
    workspace.openInProfile({u"http://a/"_s}, profileOf(browserKind(u"firefox"), u"gone.default"_s));
    workspace.openInProfile({u"http://a/"_s}, profileOf(browserKind(u"firefox"), u"/nonexistent/profile"_s));
    workspace.showPage(u"about:firefoxview#history"_s, profileOf(browserKind(u"firefox"), u"gone.default"_s));
    EXPECT_TRUE(starts().isEmpty());
}

TEST_F(FirefoxWorkspaceTest, firefoxShowsItsPagesByItsOwnArguments)
{
    desktop.addApplication(u"firefox.desktop"_s, u"firefox"_s);
    keepFirefoxIn(u".mozilla/firefox"_s, u"abc.default"_s);
    const QString folder = home.path(u".mozilla/firefox/abc.default"_s);
    const Source firefox = profileOf(browserKind(u"firefox"), u"abc.default"_s);
    workspace.showPage(u"about:firefoxview#history"_s, firefox);
    workspace.showPage(u"chrome://browser/content/places/places.xhtml"_s, firefox);
    const QList<FakeDesktop::Start> started = starts();
    ASSERT_EQ(started.size(), 2);
    EXPECT_EQ(started.at(0).arguments, QStringList({u"--profile"_s, folder, u"--chrome"_s,
                                                    u"chrome://browser/content/places/places.xhtml"_s}));
    EXPECT_EQ(started.at(1).arguments, QStringList({u"--profile"_s, folder, u"about:firefoxview#history"_s}));
    EXPECT_EQ(windows->looks, 0) << "nothing has to be typed";
}

TEST_F(FirefoxWorkspaceTest, firefoxsFlatpakIsStartedByItsOwnCommand)
{
    desktop.addEntry(u"org.mozilla.firefox.desktop"_s,
                     desktop.addProgram(u"flatpak"_s) %
                         u" run --branch=stable --file-forwarding org.mozilla.firefox @@u %u @@");
    keepFirefoxIn(u".var/app/org.mozilla.firefox/.mozilla/firefox"_s, u"abc.default"_s);
    workspace.openInProfile({u"http://a/"_s},
                            profileOf(browserKind(u"firefox"), u"abc.default"_s, u"flatpak"_s));
    EXPECT_EQ(onlyStart().arguments,
              QStringList({u"run"_s, u"--branch=stable"_s, u"--file-forwarding"_s, u"org.mozilla.firefox"_s,
                           u"--profile"_s,
                           home.path(u".var/app/org.mozilla.firefox/.mozilla/firefox/abc.default"_s),
                           u"http://a/"_s}));
}

TEST_F(FirefoxWorkspaceTest, firefoxsSnapIsStartedByItsOwnCommand)
{
    desktop.addApplication(u"firefox.desktop"_s, u"firefox"_s);
    desktop.addEntry(u"firefox_firefox.desktop"_s,
                     desktop.addProgram(u"env"_s) %
                         u" BAMF_DESKTOP_FILE_HINT=/a/firefox_firefox.desktop /snap/bin/firefox %u");
    keepFirefoxIn(u"snap/firefox/common/.mozilla/firefox"_s, u"abc.default"_s);
    workspace.openInProfile({u"http://a/"_s},
                            profileOf(browserKind(u"firefox"), u"abc.default"_s, u"snap"_s));
    const FakeDesktop::Start start = onlyStart();
    EXPECT_EQ(start.program, u"env");
    EXPECT_EQ(start.arguments,
              QStringList({u"BAMF_DESKTOP_FILE_HINT=/a/firefox_firefox.desktop"_s, u"/snap/bin/firefox"_s,
                           u"--profile"_s, home.path(u"snap/firefox/common/.mozilla/firefox/abc.default"_s),
                           u"http://a/"_s}));
}

} // namespace
} // namespace roamlet::testing
