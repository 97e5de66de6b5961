// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "BrowserProcess.h"
#include "HeadlessBrowser.h"
#include "LoopbackServer.h"
#include "Opening/Opener.h"
#include "Platform/Linux/LinuxWorkspace.h"
#include "Platform/Linux/SystemClock.h"
#include "Platform/Linux/Workspace/Programs/XdoBrowserWindows.h"
#include "Readers/BrowserReader.h"
#include "Readers/Chromium/ChromiumReader.h"
#include "RealBrowserTest.h"
#include "Support/Waiting.h"
#include "VirtualScreen.h"

#include <QDBusConnection>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <list>
#include <memory>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// The machine's clock, slowed down: under a busy machine's tests a browser takes its time.
class SlowClock final : public Clock
{
public:
    PointInTime now() const override { return m_clock.now(); }
    void sleep(Duration duration, const std::stop_token &stop) const override
    {
        m_clock.sleep(duration, stop);
    }
    void after(Duration duration, QObject *context, std::function<void()> action) const override
    {
        constexpr int factor = 5;
        m_clock.after(duration * factor, context, std::move(action));
    }

private:
    SystemClock m_clock;
};

/// A real Chromium on a screen, in which links of its own profiles are opened.
class OpenInChromiumTest : public RealBrowserTest
{
protected:
    void SetUp() override
    {
        RealBrowserTest::SetUp();
        if (IsSkipped())
            return;
        if (const QString missing = VirtualScreen::missing(); !missing.isEmpty())
            GTEST_SKIP() << missing.toStdString()
                         << " is not installed, so there is no screen for a browser.";
        ASSERT_TRUE(screen.start(home.path()));
        ASSERT_TRUE(server.isListening());
        windows = std::make_unique<XdoBrowserWindows>(screen.display());
        ASSERT_TRUE(windows->canSteer());
        useClock(slowClock);
        place(u"Local State"_s, R"({"profile":{"info_cache":{
            "Default":{"name":"Home"},"Profile 1":{"name":"Work"}},"last_used":"Default"}})");
        place(u"Default/Preferences"_s, "{}");
        place(u"Profile 1/Preferences"_s, "{}");
        addBrowser(u"\"$@\""_s);
    }

    void TearDown() override
    {
        // Each start was a session of its own; the one that found no browser running became it.
        QFile file(sessionsPath());
        if (!file.open(QIODevice::ReadOnly))
            return;
        for (const QByteArray &session : file.readAll().trimmed().split('\n'))
            BrowserProcess().adopt(session.toInt());
    }

    /// Makes everything that opens links anew, with this clock.
    void useClock(const Clock &clock)
    {
        opener.reset();
        workspace = std::make_unique<LinuxWorkspace>(
            LinuxWorkspace::Environment{.dataFolders = {home.path(u"data"_s)}, .display = screen.display()},
            home.folders, home.files, clock,
            PasteNotice(
                QDBusConnection(u"nobody"_s), [](const QString &) {},
                [](const QString &) { return PasteNotice::Words(); }));
        opener = std::make_unique<Opener>(*workspace);
    }

    QString sessionsPath() const { return home.path(u"sessions"_s); }

    /// Installs a browser that is started with these arguments after the ones that tests need.
    void addBrowser(const QString &arguments) const
    {
        const QString path = home.path(u"browser"_s);
        write(path, u"#!/bin/sh\n"
                    "echo $$ >> '" %
                        sessionsPath() %
                        u"'\n"
                        "exec env -i PATH=\"$PATH\" LANG=C.UTF-8 HOME='" %
                        home.path() % u"' TMPDIR='" % browserTemporary.path() % u"' DISPLAY='" %
                        QString::fromLatin1(screen.display()) % u"' '" % HeadlessBrowser::program() %
                        u"' --no-sandbox --disable-gpu --disable-quic --disable-background-networking"
                        " --disable-component-update --disable-sync --disable-dev-shm-usage --no-first-run"
                        " --no-proxy-server --password-store=basic '--host-resolver-rules=MAP * 127.0.0.1' " %
                        arguments % u'\n');
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        write(home.path(u"data/applications/chromium.desktop"_s),
              u"[Desktop Entry]\nType=Application\nName=Chromium\nStartupWMClass=chromium\nExec=\"" % path %
                  u"\" %U\n");
    }

    static void write(const QString &path, const QString &text)
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }

    QString addPage(const QString &title)
    {
        const QString path = u'/' % QString(title).replace(u' ', u'-');
        return server.add(u"site.example"_s, 0, path, {.title = title, .icon = Qt::red, .movedTo = {}});
    }

    /// Opens a page and waits until the browser shows it, so that it runs.
    void openAndAwait(const QString &name, const Source &source)
    {
        opener->openLinks({{addPage(name), source}});
        ASSERT_TRUE(waitForTitle(name)) << title().toStdString();
    }

    /// The title of the browser's front window.
    QString title()
    {
        const auto window = windows->front({u"chromium"_s});
        return window ? window->title : QString();
    }

    bool waitForTitle(const QString &beginning)
    {
        return waitUntil([this, &beginning] { return title().startsWith(beginning); });
    }

    bool hasVisited(const QString &profile, const QString &url) const
    {
        const auto items = ChromiumReader::history(source(profile), HistoryQuery::recent(), home.context());
        return items && std::ranges::find(*items, url, &HistoryItem::url) != items->end();
    }

    /// Whether a tab of this profile shows the address, by what the browser keeps to restore its tabs.
    bool showsTab(const QString &profile, const QString &address) const
    {
        const QDir folder(userData() % u'/' % profile % u"/Sessions");
        const QByteArray bytes = address.toUtf8();
        return std::ranges::any_of(folder.entryList(QDir::Files), [&](const QString &name) {
            QFile file(folder.filePath(name));
            return file.open(QIODevice::ReadOnly) && file.readAll().contains(bytes);
        });
    }

    /// The id of a folder of this title in the profile's bookmarks, as they are shown.
    std::optional<QString> folderID(const Source &source, const QString &title) const
    {
        const auto trees = ChromiumReader::bookmarks(source, home.context());
        for (const BookmarkNode &tree : trees.value_or(BookmarkTrees()).roots) {
            for (const BookmarkNode &node : tree.children.value_or(QList<BookmarkNode>())) {
                if (node.title == title)
                    return node.id;
            }
        }
        return {};
    }

    VirtualScreen screen;
    LoopbackServer server{1};
    SlowClock slowClock;
    std::unique_ptr<XdoBrowserWindows> windows;
    std::unique_ptr<LinuxWorkspace> workspace;
    std::unique_ptr<Opener> opener;
};

TEST_F(OpenInChromiumTest, aLinkOpensInTheProfileThatItCameFrom)
{
    const QString url = addPage(u"Work page"_s);
    const QString otherUrl = addPage(u"Home page"_s);
    // Once as the start of the browser, and once in the browser that runs.
    opener->openLinks({{url, source(secondProfile)}});
    ASSERT_TRUE(waitForTitle(u"Work page"_s)) << title().toStdString();
    opener->openLinks({{otherUrl, source(firstProfile)}});
    ASSERT_TRUE(waitForTitle(u"Home page"_s)) << title().toStdString();

    EXPECT_TRUE(waitUntil([&] { return hasVisited(secondProfile, url); }));
    EXPECT_TRUE(waitUntil([&] { return hasVisited(firstProfile, otherUrl); }));
    EXPECT_FALSE(hasVisited(firstProfile, url));
    EXPECT_FALSE(hasVisited(secondProfile, otherUrl));
}

TEST_F(OpenInChromiumTest, theHistoryPageOpensInTheProfile)
{
    openAndAwait(u"Work page"_s, source(secondProfile));
    openAndAwait(u"Home page"_s, source(firstProfile));
    opener->showHistory(source(secondProfile));
    ASSERT_TRUE(waitForTitle(u"History"_s)) << title().toStdString();
    EXPECT_TRUE(waitUntil([this] { return showsTab(secondProfile, u"chrome://history/"_s); }));
    EXPECT_FALSE(showsTab(firstProfile, u"chrome://history/"_s));
}

TEST_F(OpenInChromiumTest, theBookmarkManagerOpensAtTheFolder)
{
    place(u"Profile 1/Bookmarks"_s, R"({"version":1,"roots":{
        "bookmark_bar":{"id":"1","name":"Bookmarks bar","type":"folder","children":[
            {"id":"5","name":"Recipes","type":"folder","children":[
                {"id":"6","name":"Soup","type":"url","url":"http://soup.example/"}]},
            {"id":"7","name":"Trips","type":"folder","children":[
                {"id":"8","name":"Alps","type":"url","url":"http://alps.example/"}]}]},
        "other":{"id":"2","name":"Other bookmarks","type":"folder","children":[]},
        "synced":{"id":"3","name":"Mobile bookmarks","type":"folder","children":[]}}})");
    openAndAwait(u"Work page"_s, source(secondProfile));
    const std::optional<QString> folder = folderID(source(secondProfile), u"Trips"_s);
    ASSERT_TRUE(folder);
    opener->editBookmarks(source(secondProfile), folder);
    ASSERT_TRUE(waitForTitle(u"Bookmarks"_s)) << title().toStdString();
    const QString page = u"chrome://bookmarks/?id=" % folder->section(u'/', -1);
    EXPECT_TRUE(waitUntil([&] { return showsTab(secondProfile, page); })) << page.toStdString();
}

TEST_F(OpenInChromiumTest, pagesOpenOneAfterTheOther)
{
    openAndAwait(u"Work page"_s, source(secondProfile));
    opener->showHistory(source(secondProfile));
    opener->editBookmarks(source(secondProfile), {});
    ASSERT_TRUE(waitForTitle(u"Bookmarks"_s)) << title().toStdString();
    EXPECT_TRUE(waitUntil([this] {
        return showsTab(secondProfile, u"chrome://history/"_s) &&
               showsTab(secondProfile, u"chrome://bookmarks/"_s);
    }));
}

TEST_F(OpenInChromiumTest, whereNoBlankTabComesNothingHappens)
{
    openAndAwait(u"Work page"_s, source(secondProfile));
    // A browser that shows something else, as one does that a policy forbids blank tabs.
    addBrowser(u"'"_s % addPage(u"Something else"_s) % u"'"_s);
    useClock(home.clock);
    opener->showHistory(source(secondProfile));
    ASSERT_TRUE(waitForTitle(u"Something else"_s)) << title().toStdString();
    home.clock.advance(PageSteering::lookInterval * PageSteering::looks);
    EXPECT_EQ(home.clock.waiting(), 0U) << "it still looks for a blank tab";

    // What had been typed would have been taken before this.
    openAndAwait(u"Something else"_s, source(secondProfile));
    EXPECT_TRUE(waitUntil([this] { return showsTab(secondProfile, u"/Something-else"_s); }));
    EXPECT_FALSE(showsTab(secondProfile, u"chrome://history/"_s));
}

TEST_F(OpenInChromiumTest, aProfileThatWasDeletedDoesNotComeBack)
{
    Source deleted = source(secondProfile);
    deleted.profile = u"Profile 7"_s;
    openAndAwait(u"Somewhere"_s, deleted);
    opener->showHistory(deleted);
    ASSERT_TRUE(waitForTitle(u"History"_s)) << title().toStdString();
    EXPECT_FALSE(QDir(userData()).exists(u"Profile 7"_s));
    for (const Source &profile : BrowserReader::profiles(chromium(), home.context()))
        EXPECT_NE(profile.profile, u"Profile 7"_s);
}

} // namespace

} // namespace roamlet::testing
