// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "BrowserProcess.h"
#include "HeadlessFirefox.h"
#include "LoopbackServer.h"
#include "Opening/Opener.h"
#include "Platform/Linux/LinuxWorkspace.h"
#include "Readers/BrowserReader.h"
#include "RealFirefoxTest.h"
#include "Support/FolderFingerprint.h"
#include "Support/SessionBus.h"
#include "Support/Waiting.h"
#include "VirtualScreen.h"

#include <QDBusConnection>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <memory>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

constexpr char busVariable[] = "DBUS_SESSION_BUS_ADDRESS";

/// A real Firefox on a screen, in which links of its own profiles are opened. Without a screen it would not
/// listen for further links.
class OpenInFirefoxTest : public RealFirefoxTest
{
protected:
    void SetUp() override
    {
        RealFirefoxTest::SetUp();
        if (IsSkipped())
            return;
        if (const QString missing = VirtualScreen::missing(); !missing.isEmpty())
            GTEST_SKIP() << missing.toStdString()
                         << " is not installed, so there is no screen for a browser.";
        if (!SessionBus::isAvailable())
            GTEST_SKIP() << "dbus-daemon is not installed.";
        ASSERT_TRUE(screen.start(home.path()));
        ASSERT_TRUE(server.isListening());
        ASSERT_TRUE(bus.start());
        // What is opened finds the browser that runs by this process's bus.
        outerBus = qgetenv(busVariable);
        qputenv(busVariable, bus.address().toUtf8());
        addBrowser();
        workspace = std::make_unique<LinuxWorkspace>(
            LinuxWorkspace::Environment{.dataFolders = {home.path(u"data"_s)}, .display = {}}, home.folders,
            home.files, home.clock,
            PasteNotice(
                QDBusConnection(u"nobody"_s), [](const QString &) {},
                [](const QString &) { return PasteNotice::Words(); }));
        opener = std::make_unique<Opener>(*workspace);
    }

    void TearDown() override
    {
        opener.reset();
        workspace.reset();
        // Each start was a session of its own; those that found no browser running became one.
        for (const QString &session : lines(u"sessions"_s))
            BrowserProcess().adopt(session.toInt());
        if (outerBus.isNull())
            qunsetenv(busVariable);
        else
            qputenv(busVariable, outerBus);
    }

    /// Installs a browser that notes who it was at each start and how each start ended.
    void addBrowser() const
    {
        const QString path = home.path(u"browser"_s);
        const QString script =
            u"#!/bin/sh\n"
            "echo $$ >> '%1/sessions'\n"
            "env -i PATH=\"$PATH\" LANG=C.UTF-8 HOME='%1' TMPDIR='%2' DISPLAY='%3' NO_AT_BRIDGE=1"
            " DBUS_SESSION_BUS_ADDRESS=\"$DBUS_SESSION_BUS_ADDRESS\" '%4' \"$@\" >> '%2/browser.log' 2>&1\n"
            "echo $? >> '%1/ends'\n"_s.arg(home.path(), browserTemporary.path(),
                                           QString::fromLatin1(screen.display()), HeadlessFirefox::program());
        write(path, script.toUtf8());
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QString entry =
            u"[Desktop Entry]\nType=Application\nName=Firefox\nExec=\"%1\" %u\n"_s.arg(path);
        write(home.path(u"data/applications/firefox-esr.desktop"_s), entry.toUtf8());
    }

    /// What the browser's starts wrote into this file.
    QStringList lines(const QString &name) const
    {
        QFile file(home.path(name));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }

    /// Makes a profile and lets the browser put its files there.
    QString makeProfile(const QString &name)
    {
        const QString profile = createProfile(name);
        HeadlessFirefox browser;
        EXPECT_EQ(browser.start(options(profile)), QString());
        EXPECT_TRUE(browser.close());
        return profile;
    }

    QString addPage(const QString &path)
    {
        return server.add(u"site.example"_s, 0, path, {.title = path, .icon = Qt::red, .movedTo = {}});
    }

    bool hasVisited(const QString &profile, const QString &url) const
    {
        const auto items = BrowserReader::history(source(profile), HistoryQuery::recent(), home.context());
        return items && std::ranges::find(*items, url, &HistoryItem::url) != items->end();
    }

    bool waitForVisit(const QString &profile, const QString &url) const
    {
        return waitUntil([&] { return hasVisited(profile, url); }, 3 * patience,
                         std::chrono::milliseconds(200));
    }

    VirtualScreen screen;
    SessionBus bus;
    QByteArray outerBus;
    LoopbackServer server{1};
    std::unique_ptr<LinuxWorkspace> workspace;
    std::unique_ptr<Opener> opener;
};

TEST_F(OpenInFirefoxTest, aLinkOpensInItsProfileWhetherThatRunsOrRests)
{
    const QString work = makeProfile(u"Arbeit"_s);
    const QString privat = makeProfile(u"Privat"_s);
    const Source workSource = source(work);
    const QString toStart = addPage(u"/start"_s);
    const QString besideStart = addPage(u"/beside-start"_s);
    const QString toHandOver = addPage(u"/further"_s);
    const QString besideHandOver = addPage(u"/beside-further"_s);
    const QString toOther = addPage(u"/other"_s);
    const QString toSource = addPage(u"/source"_s);
    const QString toEnd = addPage(u"/end"_s);
    const FolderFingerprint resting(folder(privat));

    opener->openLinks({{toStart, workSource}, {besideStart, workSource}});
    ASSERT_TRUE(waitForVisit(work, toStart));
    EXPECT_TRUE(waitForVisit(work, besideStart));
    EXPECT_EQ(lines(u"ends"_s), QStringList()) << "the browser that should run has ended";

    opener->openLinks({{toHandOver, workSource}, {besideHandOver, workSource}});
    ASSERT_TRUE(waitForVisit(work, toHandOver));
    EXPECT_TRUE(waitForVisit(work, besideHandOver));
    ASSERT_TRUE(waitUntil([this] { return !lines(u"ends"_s).isEmpty(); }));
    EXPECT_EQ(lines(u"ends"_s), QStringList{u"0"_s});
    EXPECT_EQ(lines(u"sessions"_s).size(), 2);
    EXPECT_EQ(resting.differencesTo(FolderFingerprint(folder(privat))), "");

    // Beside the one that runs.
    opener->openLinks({{toOther, source(privat)}});
    ASSERT_TRUE(waitForVisit(privat, toOther));
    EXPECT_FALSE(hasVisited(work, toOther));
    EXPECT_FALSE(hasVisited(privat, toHandOver));
    EXPECT_EQ(lines(u"ends"_s), QStringList{u"0"_s});

    // A source is no visit.
    opener->openLinks({{u"view-source:" % toSource, workSource}});
    EXPECT_TRUE(waitUntil([&] { return server.hasServed(toSource); }, 3 * patience));

    // A profile that is gone: Firefox would wait with a question. Starts come one after the other.
    Source gone = workSource;
    gone.profile = work % u"-gone";
    opener->openLinks({{toStart, gone}, {toEnd, workSource}});
    ASSERT_TRUE(waitForVisit(work, toEnd));
    EXPECT_EQ(lines(u"sessions"_s).size(), 5);
    EXPECT_FALSE(QDir(dataFolder()).exists(*gone.profile));
}

} // namespace

} // namespace roamlet::testing
