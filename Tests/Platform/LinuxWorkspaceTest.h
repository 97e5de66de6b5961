// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/FakeBrowserWindows.h"
#include "Platform/FakeDesktop.h"
#include "Platform/Linux/LinuxWorkspace.h"
#include "SampleHome/PlainFiles.h"
#include "Support/Sources.h"
#include "Support/TestHome.h"

#include <gtest/gtest.h>

#include <memory>

namespace roamlet::testing
{

/// A desktop without anything on it, and a workspace that starts what is put there.
class LinuxWorkspaceTest : public ::testing::Test
{
protected:
    LinuxWorkspaceTest()
        : workspace(desktop.dataFolders(), home.folders, home.files, home.clock,
                    [this] { return std::move(ownWindows); },
                    {QDBusConnection(QStringLiteral("nobody")),
                     [this](const QString &text) { clipboard = text; },
                     [this](const QString &page) {
                         noticed.append(page);
                         return PasteNotice::Words();
                     }})
    {
    }

    /// Makes the browser's data lie in this folder below the home folder.
    void keepDataIn(const QString &folder) { sample::writeFile(home.path(folder % u"/Local State"), "{}"); }

    /// Makes a profile of Firefox's lie there.
    void keepFirefoxIn(const QString &root, const QString &profile)
    {
        sample::writeFile(home.path(root % u"/profiles.ini"), "");
        sample::writeFile(home.path(root % u'/' % profile % u"/places.sqlite"), "");
    }

    void addFlatpakChrome()
    {
        desktop.addEntry(QStringLiteral("com.google.Chrome.desktop"),
                         desktop.addProgram(QStringLiteral("flatpak")) %
                             u" run --branch=stable --command=/app/bin/chrome --file-forwarding "
                             "com.google.Chrome @@u %U @@");
    }

    /// Makes the profile one that a program in this folder used last.
    void useFirefoxLastFrom(const QString &folder, const QString &root, const QString &profile)
    {
        sample::writeFile(home.path(root % u'/' % profile % u"/compatibility.ini"),
                          QString(u"[Compatibility]\nLastVersion=140.0_20260101/20260101\n"
                                  "LastOSABI=Linux_x86_64-gcc3\nLastPlatformDir=" %
                                  folder % u"\nLastAppDir=" % folder % u"/browser\n")
                              .toUtf8());
    }

    bool hasBrowser(Source::Kind browser) const { return workspace.installedBrowsers().contains(browser); }

    QList<FakeDesktop::Start> starts()
    {
        workspace.finishStarts();
        return desktop.starts();
    }

    FakeDesktop::Start onlyStart()
    {
        workspace.finishStarts();
        return desktop.onlyStart();
    }

    /// The program that opens a link of this browser's profile.
    QString programForLink(Source::Kind browser, const QString &installation = {})
    {
        workspace.openInProfile({QStringLiteral("http://a/")},
                                profileOf(browser, QStringLiteral("Default"), installation));
        return onlyStart().program;
    }

    TestHome home;
    FakeDesktop desktop;
    std::unique_ptr<FakeBrowserWindows> ownWindows = std::make_unique<FakeBrowserWindows>();
    FakeBrowserWindows *windows = ownWindows.get();
    QString clipboard;
    /// The addresses that the user was asked to paste.
    QStringList noticed;
    LinuxWorkspace workspace;
};

} // namespace roamlet::testing
