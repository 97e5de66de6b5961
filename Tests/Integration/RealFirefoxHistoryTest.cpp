// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "BrowsingLog.h"
#include "HeadlessFirefox.h"
#include "Library/FaviconImage.h"
#include "LoopbackServer.h"
#include "ProgramRun.h"
#include "Readers/BrowserReader.h"
#include "RealFirefoxTest.h"
#include "Support/Waiting.h"

#include <QFileInfo>
#include <QImage>

#include <cmath>
#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// One row as a line, with the microseconds of its latest visit.
QString rowText(const QString &url, const QString &title, qint64 visits, qint64 lastVisit)
{
    return u"%1 %2 %3x \"%4\""_s.arg(url).arg(lastVisit).arg(visits).arg(title);
}

/// The pages of one chain of redirects may share their time, so that their order says nothing.
std::string asText(QStringList lines)
{
    lines.sort();
    return lines.join(u'\n').toStdString();
}

/// Without the icons that came with the bookmarks of a new profile.
Favicons iconsOfHistory(const BrowserReader::Content &content)
{
    Favicons icons = content.favicons.value_or(Favicons());
    for (const BookmarkNode &root : content.bookmarks.value_or(BookmarkTrees()).roots) {
        for (const Bookmark &bookmark : root.flattened())
            icons.remove(bookmark.site);
    }
    return icons;
}

class RealFirefoxHistoryTest : public RealFirefoxTest
{
protected:
    /// A profile, what was visited in it and what the browser itself says about that.
    struct Browsed {
        QString profile;
        QString name;
        BrowsingLog log{BrowsingLog::Redirects::Hidden};
        QStringList shown;
    };

    void visit(HeadlessFirefox &browser, Browsed &browsed, const QString &url,
               const LoopbackServer::Page &page, const QStringList &redirects = {});
    void browsePrivately(HeadlessFirefox &browser);
    void browseAtWork(HeadlessFirefox &browser);
    void browseInGroup(HeadlessFirefox &browser);
    /// Makes a group of the running profile and another, as the menu of profiles does.
    void makeGroup(HeadlessFirefox &browser);
    /// Waits until the browser has written what was visited, and keeps what it says about it.
    void settle(HeadlessFirefox &browser, Browsed &browsed);

    void expectProfiles() const;
    void expectHistory(const Browsed &browsed) const;
    void expectIcons(const Browsed &browsed) const;
    void expectSummary() const;
    void expectSearches() const;
    void expectMostVisited() const;
    /// Everything that can be read, by way of the readers and of the program.
    void expectAll() const;

    QList<const Browsed *> all() const { return {&work, &group, &first}; }

    LoopbackServer server{2};
    Browsed first;
    Browsed work;
    Browsed group;
};

void RealFirefoxHistoryTest::visit(HeadlessFirefox &browser, Browsed &browsed, const QString &url,
                                   const LoopbackServer::Page &page, const QStringList &redirects)
{
    browsed.log.visit(browser, server, url, page, redirects);
    ASSERT_FALSE(HasFatalFailure());
    // The browser lets go of an icon that is still on its way when the next page is opened.
    const QString shown = redirects.isEmpty() ? url : redirects.last();
    ASSERT_TRUE(waitUntil([&] {
        return browser
            .run(u"return !!await PlacesUtils.favicons.getFaviconForPage(Services.io.newURI(args[0]));"_s,
                 {shown})
            .value_or(false)
            .toBool();
    })) << "no icon is kept of "
        << url.toStdString();
}

void RealFirefoxHistoryTest::browsePrivately(HeadlessFirefox &browser)
{
    const LoopbackServer::Page garden{u"Gärten & Höfe ☘"_s, QColor(200, 30, 60), {}};
    const LoopbackServer::Page beds{u"Beete <b>und</b> Wege"_s, QColor(30, 160, 60), {}};
    const LoopbackServer::Page landing{u"着陆 🛬 Landung"_s, QColor(20, 60, 220), {}};
    const LoopbackServer::Page raw{u"‏مرحبا | {1}"_s, QColor(240, 200, 0), {}};
    const LoopbackServer::Page untitled{{}, QColor(120, 0, 140), {}};
    const LoopbackServer::Page missing{u"Nichts da"_s, QColor(90, 60, 30), {}, "404 Not Found"};

    const QString front = server.add(u"www.garten.example"_s, 0, u"/"_s, garden);
    const QString sub = server.add(u"garten.example"_s, 1, u"/beete"_s, beds);
    const QString target = server.add(u"ziel.example"_s, 1, u"/landung?von=start"_s, landing);
    const QString next =
        server.add(u"weiter.example"_s, 1, u"/next"_s, {{}, {}, target, "301 Moved Permanently"});
    const QString start = server.add(u"start.example"_s, 0, u"/start"_s, {{}, {}, next});
    const QString address = server.add(u"127.0.0.1"_s, 1, u"/wiki/%C3%9Cberblick?q={1}|2^3`"_s, raw);
    const QString bare = server.add(u"ohne.example"_s, 0, u"/ohne-titel"_s, untitled);
    const QString gone = server.add(u"weg.example"_s, 0, u"/weg"_s, missing);

    visit(browser, first, front, garden);
    visit(browser, first, sub, beds);
    visit(browser, first, start, landing, {next, target});
    visit(browser, first, front, garden);
    visit(browser, first, address, raw);
    visit(browser, first, bare, untitled);
    visit(browser, first, gone, missing);
    visit(browser, first, front, garden);
}

void RealFirefoxHistoryTest::browseAtWork(HeadlessFirefox &browser)
{
    const LoopbackServer::Page office{u"Büro"_s, QColor(0, 128, 128), {}};
    const LoopbackServer::Page books{u"Bücher und Gärten"_s, QColor(90, 90, 90), {}};
    const QString officeUrl = server.add(u"www.www.buero.example"_s, 1, u"/"_s, office);
    const QString booksUrl = server.add(u"www.xn--bcher-kva.example"_s, 0, u"/b%C3%BCcher"_s, books);

    visit(browser, work, officeUrl, office);
    visit(browser, work, booksUrl, books);
    visit(browser, work, officeUrl, office);
}

void RealFirefoxHistoryTest::browseInGroup(HeadlessFirefox &browser)
{
    // This host has an icon for all its pages, and the pages name none.
    const QColor color(10, 220, 180);
    server.add(u"alt.example"_s, 0, u"/favicon.ico"_s, {{}, color, {}});
    const QString url = server.add(u"alt.example"_s, 0, u"/seite"_s, {u"Alte Seite"_s, {}, {}});
    visit(browser, group, url, {u"Alte Seite"_s, color, {}});
}

void RealFirefoxHistoryTest::makeGroup(HeadlessFirefox &browser)
{
    const auto made = browser.run(uR"(
        const { SelectableProfileService } = ChromeUtils.importESModule(
            'resource:///modules/profiles/SelectableProfileService.sys.mjs');
        const added = await SelectableProfileService.createNewProfile(false);
        added.name = args[0];
        SelectableProfileService.currentProfile.name = args[1];
        return PathUtils.filename(added.path);)"_s,
                                  {group.name, first.name});
    ASSERT_TRUE(made) << made.error().toStdString();
    group.profile = made->toString();
}

void RealFirefoxHistoryTest::settle(HeadlessFirefox &browser, Browsed &browsed)
{
    EXPECT_TRUE(waitUntil(
        [&] {
            const auto content = BrowserReader::content(
                {.kind = kind(), .profile = browsed.profile, .name = {}, .safariBookmarks = {}},
                home.context());
            // A live database must be readable at every moment; only what it says may be old.
            EXPECT_TRUE(content.history.has_value() && content.favicons.has_value());
            qint64 visits = 0;
            for (const HistoryItem &row : content.history.value_or(QList<HistoryItem>()))
                visits += row.title == browsed.log.entries().value(row.url).title ? row.visitCount : 0;
            qint64 expected = 0;
            for (const BrowsingLog::Entry &entry : browsed.log.entries())
                expected += entry.visitCount;
            return visits == expected && iconsOfHistory(content).size() == browsed.log.iconsBySite().size();
        },
        patience, std::chrono::milliseconds(200)));

    const auto shown = browser.run(uR"(
        const options = PlacesUtils.history.getNewQueryOptions();
        options.queryType = options.QUERY_TYPE_HISTORY;
        options.resultType = options.RESULTS_AS_URI;
        const root = PlacesUtils.history.executeQuery(PlacesUtils.history.getNewQuery(), options).root;
        root.containerOpen = true;
        const rows = [];
        for (let i = 0; i < root.childCount; ++i) {
            const node = root.getChild(i);
            rows.push([node.uri, node.title, node.accessCount, node.time]);
        }
        root.containerOpen = false;
        return rows;)"_s);
    ASSERT_TRUE(shown) << shown.error().toStdString();
    browsed.shown.clear();
    const QJsonArray rows = shown->toArray();
    for (const auto &row : rows) {
        const QString url = row.toArray().at(0).toString();
        const QString title = row.toArray().at(1).toString();
        browsed.shown.append(rowText(url, title.isEmpty() ? url : title, row.toArray().at(2).toInteger(),
                                     row.toArray().at(3).toInteger()));
    }
    EXPECT_EQ(browsed.shown.size(), browsed.log.entries().size()) << asText(browsed.shown);
}

void RealFirefoxHistoryTest::expectProfiles() const
{
    const QList<Source> sources = BrowserReader::profiles(kind(), home.context());
    ASSERT_EQ(sources.size(), 3);
    // Where there is a group, all are in the order of their names.
    for (qsizetype i = 0; i < sources.size(); ++i) {
        EXPECT_EQ(sources[i].id(), u"firefox/"_s % all()[i]->profile);
        EXPECT_EQ(sources[i].name, all()[i]->name);
        EXPECT_EQ(sources[i].label(), u"Firefox - "_s % all()[i]->name);
    }
}

void RealFirefoxHistoryTest::expectHistory(const Browsed &browsed) const
{
    const Source from = source(browsed.profile);
    const auto rows = BrowserReader::history(from, HistoryQuery::recent(), home.context());
    ASSERT_TRUE(rows) << rows.error().errorDescription().toStdString();
    QStringList lines;
    PointInTime newer = PointInTime::max();
    for (const HistoryItem &row : *rows) {
        SCOPED_TRACE(row.url.toStdString());
        lines.append(rowText(row.url, row.title, row.visitCount,
                             std::llround(secondsSince1970(row.lastVisit) * 1'000'000)));
        EXPECT_LE(row.lastVisit, newer);
        newer = row.lastVisit;
        EXPECT_EQ(row.source, from);
        const auto entry = browsed.log.entries().constFind(row.url);
        ASSERT_NE(entry, browsed.log.entries().cend());
        EXPECT_EQ(row.title, entry->title);
        EXPECT_EQ(row.visitCount, entry->visitCount);
        EXPECT_GE(secondsSince1970(row.lastVisit), entry->notBefore);
        EXPECT_LE(secondsSince1970(row.lastVisit), entry->notAfter);
    }
    EXPECT_EQ(asText(lines), asText(browsed.shown));
}

void RealFirefoxHistoryTest::expectIcons(const Browsed &browsed) const
{
    const auto content = BrowserReader::content(source(browsed.profile), home.context());
    ASSERT_TRUE(content.favicons) << content.favicons.error().errorDescription().toStdString();
    const Favicons icons = iconsOfHistory(content);
    const QHash<QString, QList<QColor>> expected = browsed.log.iconsBySite();
    EXPECT_EQ(asText(icons.keys()), asText(expected.keys()));
    for (auto icon = icons.cbegin(); icon != icons.cend(); ++icon) {
        SCOPED_TRACE(icon.key().toStdString());
        const QImage image = FaviconImage::decode(icon.value(), home.files);
        ASSERT_FALSE(image.isNull());
        EXPECT_EQ(image.size(), QSize(32, 32));
        EXPECT_TRUE(expected.value(icon.key()).contains(image.pixelColor(image.rect().center())));
    }
}

void RealFirefoxHistoryTest::expectSummary() const
{
    const ProgramRun run = ProgramRun::of(home, {u"--summary"_s});
    EXPECT_EQ(run.status, 0) << run.errors.toStdString();
    const QStringList lines = run.lines();
    ASSERT_EQ(lines.size(), all().size() + 1) << run.output.toStdString();
    for (qsizetype i = 0; i < all().size(); ++i) {
        const BrowsingLog &log = all()[i]->log;
        const auto content = BrowserReader::content(source(all()[i]->profile), home.context());
        const qsizetype icons = content.favicons.value_or(Favicons()).size();
        EXPECT_TRUE(lines[i].startsWith(u"Firefox - "_s % all()[i]->name % u"  ")) << lines[i].toStdString();
        EXPECT_TRUE(lines[i].contains(u" "_s % QString::number(icons) % u" site icons"))
            << lines[i].toStdString();
        const QString counts =
            u" "_s % QString::number(log.entries().size()) % u" history URLs, latest visit ";
        EXPECT_TRUE(lines[i].endsWith(counts % ProgramRun::printed(log.latest().notBefore)) ||
                    lines[i].endsWith(counts % ProgramRun::printed(log.latest().notAfter)))
            << lines[i].toStdString();
    }
}

void RealFirefoxHistoryTest::expectSearches() const
{
    const ProgramRun run = ProgramRun::of(home, {u"--search"_s});
    EXPECT_EQ(run.status, 0) << run.errors.toStdString();
    QStringList actual;
    for (const ProgramRun::Visit &visit : run.visits())
        actual.append(u"%1 %2 \"%3\""_s.arg(visit.label, visit.url, visit.title));
    QStringList expected;
    for (const Browsed *browsed : all()) {
        const auto &entries = browsed->log.entries();
        for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry)
            expected.append(u"Firefox - %1 %2 \"%3\""_s.arg(browsed->name, entry.key(), entry->title));
    }
    EXPECT_EQ(asText(actual), asText(expected));

    // Words in any order and any case, some in the title and some in the address, across the profiles.
    const ProgramRun words = ProgramRun::of(home, {u"--search"_s, u"EXAMPLE"_s, u"gärten"_s});
    EXPECT_THAT(words.lines().last().toStdString(), ::testing::StartsWith("2 matches, not capped"));
    const ProgramRun redirects = ProgramRun::of(home, {u"--search"_s, u"start.example"_s});
    EXPECT_THAT(redirects.lines().last().toStdString(), ::testing::StartsWith("0 matches"));
}

void RealFirefoxHistoryTest::expectMostVisited() const
{
    const ProgramRun run = ProgramRun::of(home, {u"--top"_s});
    EXPECT_EQ(run.status, 0) << run.errors.toStdString();
    EXPECT_EQ(run.lines().first(), u"3  "_s % first.name % u"  garten.example  Gärten & Höfe ☘");
    EXPECT_TRUE(run.lines().contains(u"2  "_s % work.name % u"  www.buero.example  Büro"))
        << run.output.toStdString();
}

void RealFirefoxHistoryTest::expectAll() const
{
    expectProfiles();
    for (const Browsed *browsed : all()) {
        expectHistory(*browsed);
        expectIcons(*browsed);
    }
    expectSummary();
    expectSearches();
    expectMostVisited();
}

} // namespace

TEST_F(RealFirefoxHistoryTest, whatWasVisitedIsReadWhileTheBrowserRunsAndAfterItEnded)
{
    ASSERT_TRUE(server.isListening());
    work.name = u"Arbeit☕"_s;
    group.name = u"Gemeinsam ☂"_s;
    first.name = u"Privat"_s;
    // The name that it has before there is a group.
    first.profile = createProfile(u"Heim"_s);
    work.profile = createProfile(work.name);
    ASSERT_FALSE(first.profile.isEmpty() || work.profile.isEmpty());
    {
        HeadlessFirefox browser;
        ASSERT_EQ(browser.start(options(work.profile)), QString());
        browseAtWork(browser);
        ASSERT_FALSE(HasFatalFailure());
        settle(browser, work);
        ASSERT_TRUE(browser.close());
    }
    {
        HeadlessFirefox browser;
        ASSERT_EQ(browser.start(options(first.profile)), QString());
        browsePrivately(browser);
        ASSERT_FALSE(HasFatalFailure());
        settle(browser, first);
        EXPECT_EQ(source(first.profile).name, u"Heim"_s);
        makeGroup(browser);
        ASSERT_FALSE(HasFatalFailure());
        ASSERT_TRUE(browser.close());
    }

    HeadlessFirefox browser;
    ASSERT_EQ(browser.start(options(group.profile)), QString());
    browseInGroup(browser);
    ASSERT_FALSE(HasFatalFailure());
    settle(browser, group);
    ASSERT_TRUE(browser.freeze());
    EXPECT_GT(QFileInfo(folder(group.profile) % u"/places.sqlite-wal").size(), 0);
    {
        SCOPED_TRACE("while the browser runs");
        expectNothingTouched([this] { expectAll(); });
    }
    browser.thaw();
    ASSERT_TRUE(browser.close());
    {
        SCOPED_TRACE("after the browser has ended");
        expectNothingTouched([this] { expectAll(); });
    }
}

} // namespace roamlet::testing
