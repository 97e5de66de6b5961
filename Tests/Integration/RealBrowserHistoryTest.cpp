// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "BrowsingLog.h"
#include "HeadlessBrowser.h"
#include "Library/FaviconImage.h"
#include "LoopbackServer.h"
#include "ProgramRun.h"
#include "Readers/BrowserReader.h"
#include "Readers/Chromium/ChromiumReader.h"
#include "Readers/FaviconReader.h"
#include "RealBrowserTest.h"
#include "Support/Waiting.h"

#include <QImage>
#include <QSet>

#include <gmock/gmock.h>
#include <limits>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// The name that a user gave to the second profile.
const QString workName = u"Arbeit ☕"_s;

QSet<QString> urls(const QList<ProgramRun::Visit> &visits)
{
    QSet<QString> found;
    for (const ProgramRun::Visit &visit : visits)
        found.insert(visit.url);
    return found;
}

QSet<QString> asSet(const QStringList &texts)
{
    return {texts.cbegin(), texts.cend()};
}

class RealBrowserHistoryTest : public RealBrowserTest
{
protected:
    /// Pages of several hosts on two ports, for the first profile and then for the second.
    void browsePrivately(HeadlessBrowser &browser);
    void browseAtWork(HeadlessBrowser &browser);

    void expectProfiles() const;
    void expectHistory(const QString &profile, const BrowsingLog &log) const;
    void expectIcons(const QString &profile, const BrowsingLog &log) const;
    void expectSummary() const;
    void expectSearches() const;
    void expectMostVisited() const;
    /// Everything that can be read, by way of the readers and of the program.
    void expectAll() const;
    /// Whether the browser has written what the log says.
    bool isWritten(const QString &profile, const BrowsingLog &log) const;

    LoopbackServer server{2};
    BrowsingLog privateLog;
    BrowsingLog workLog;
};

void RealBrowserHistoryTest::browsePrivately(HeadlessBrowser &browser)
{
    const LoopbackServer::Page garden{u"Gärten & Höfe ☘"_s, QColor(200, 30, 60), {}};
    const LoopbackServer::Page beds{u"Beete <b>und</b> Wege"_s, QColor(30, 160, 60), {}};
    const LoopbackServer::Page landing{u"着陆 🛬 Landung"_s, QColor(20, 60, 220), {}};
    const LoopbackServer::Page raw{u"‏مرحبا | {1}"_s, QColor(240, 200, 0), {}};
    const LoopbackServer::Page untitled{{}, QColor(120, 0, 140), {}};

    const QString front = server.add(u"www.garten.example"_s, 0, u"/"_s, garden);
    const QString sub = server.add(u"garten.example"_s, 1, u"/beete"_s, beds);
    const QString target = server.add(u"ziel.example"_s, 1, u"/landung?von=start"_s, landing);
    const QString next = server.add(u"weiter.example"_s, 1, u"/next"_s, {{}, {}, target});
    const QString start = server.add(u"start.example"_s, 0, u"/start"_s, {{}, {}, next});
    const QString address = server.add(u"127.0.0.1"_s, 1, u"/wiki/%C3%9Cberblick?q={1}|2^3`"_s, raw);
    const QString bare = server.add(u"ohne.example"_s, 0, u"/ohne-titel"_s, untitled);

    privateLog.visit(browser, server, front, garden);
    privateLog.visit(browser, server, sub, beds);
    privateLog.visit(browser, server, start, landing, {next, target});
    privateLog.visit(browser, server, front, garden);
    privateLog.visit(browser, server, address, raw);
    privateLog.visit(browser, server, bare, untitled);
    privateLog.visit(browser, server, front, garden);
    privateLog.visit(browser, server, start, landing, {next, target});
}

void RealBrowserHistoryTest::browseAtWork(HeadlessBrowser &browser)
{
    const LoopbackServer::Page office{u"Büro"_s, QColor(0, 128, 128), {}};
    const LoopbackServer::Page books{u"Bücher und Gärten"_s, QColor(90, 90, 90), {}};
    const QString officeUrl = server.add(u"www.www.buero.example"_s, 1, u"/"_s, office);
    const QString booksUrl = server.add(u"www.xn--bcher-kva.example"_s, 0, u"/b%C3%BCcher"_s, books);

    workLog.visit(browser, server, officeUrl, office);
    workLog.visit(browser, server, booksUrl, books);
    workLog.visit(browser, server, officeUrl, office);
}

void RealBrowserHistoryTest::expectProfiles() const
{
    const QList<Source> sources = BrowserReader::profiles(chromium(), home.context());
    ASSERT_EQ(sources.size(), 2);
    EXPECT_EQ(sources[0].id(), u"chromium/Default"_s);
    EXPECT_FALSE(sources[0].name.isEmpty());
    EXPECT_EQ(sources[1].id(), u"chromium/Profile 1"_s);
    EXPECT_EQ(sources[1].name, workName);
    EXPECT_EQ(sources[1].label(), u"Chromium - Arbeit ☕"_s);
}

void RealBrowserHistoryTest::expectHistory(const QString &profile, const BrowsingLog &log) const
{
    const Source from = source(profile);
    const auto rows = ChromiumReader::history(from, HistoryQuery::recent(), home.context());
    ASSERT_TRUE(rows) << rows.error().errorDescription().toStdString();
    EXPECT_EQ(rows->size(), log.entries().size());
    int step = std::numeric_limits<int>::max();
    for (const HistoryItem &row : *rows) {
        SCOPED_TRACE(row.url.toStdString());
        const auto entry = log.entries().constFind(row.url);
        ASSERT_NE(entry, log.entries().cend());
        EXPECT_EQ(row.title, entry->title);
        EXPECT_EQ(row.visitCount, entry->visitCount);
        EXPECT_GE(secondsSince1970(row.lastVisit), entry->notBefore);
        EXPECT_LE(secondsSince1970(row.lastVisit), entry->notAfter);
        EXPECT_EQ(row.source, from);
        // Newest first; the pages of one chain share their time, so they may come in any order.
        EXPECT_LE(entry->step, step);
        step = entry->step;
    }
}

void RealBrowserHistoryTest::expectIcons(const QString &profile, const BrowsingLog &log) const
{
    const auto icons = FaviconReader::chromium(source(profile), home.context());
    ASSERT_TRUE(icons) << icons.error().errorDescription().toStdString();
    const QHash<QString, QList<QColor>> expected = log.iconsBySite();
    EXPECT_EQ(asSet(icons->keys()), asSet(expected.keys()));
    for (auto icon = icons->cbegin(); icon != icons->cend(); ++icon) {
        const QImage image = FaviconImage::decode(icon.value(), home.files);
        ASSERT_FALSE(image.isNull()) << icon.key().toStdString();
        // Browsers keep icons in 16 and 32 pixels; the larger one is sharp on every display.
        EXPECT_EQ(image.size(), QSize(32, 32));
        EXPECT_TRUE(expected.value(icon.key()).contains(image.pixelColor(image.rect().center())))
            << icon.key().toStdString();
    }
}

void RealBrowserHistoryTest::expectSummary() const
{
    const ProgramRun run = ProgramRun::of(home, {u"--summary"_s});
    EXPECT_EQ(run.status, 0) << run.errors.toStdString();
    const QStringList lines = run.lines();
    ASSERT_EQ(lines.size(), 3) << run.output.toStdString();
    const auto expectLine = [](const QString &line, const QString &label, const BrowsingLog &log) {
        EXPECT_TRUE(line.startsWith(label % u"  ")) << line.toStdString();
        EXPECT_TRUE(line.contains(u"0 bookmarks, 0 folders")) << line.toStdString();
        EXPECT_TRUE(line.contains(u" "_s % QString::number(log.iconsBySite().size()) % u" site icons"))
            << line.toStdString();
        const QString counts = QString::number(log.entries().size()) % u" history URLs, latest visit ";
        EXPECT_TRUE(line.endsWith(counts % ProgramRun::printed(log.latest().notBefore)) ||
                    line.endsWith(counts % ProgramRun::printed(log.latest().notAfter)))
            << line.toStdString();
    };
    expectLine(lines[0], source(firstProfile).label(), privateLog);
    expectLine(lines[1], source(secondProfile).label(), workLog);
    EXPECT_TRUE(lines[2].startsWith(u"Read in ")) << lines[2].toStdString();
}

void RealBrowserHistoryTest::expectSearches() const
{
    const ProgramRun all = ProgramRun::of(home, {u"--search"_s});
    EXPECT_EQ(all.status, 0) << all.errors.toStdString();
    const QList<ProgramRun::Visit> visits = all.visits();
    EXPECT_EQ(visits.size(), privateLog.entries().size() + workLog.entries().size());
    QString newer = visits.isEmpty() ? QString() : visits.first().time;
    for (const ProgramRun::Visit &visit : visits) {
        SCOPED_TRACE(visit.url.toStdString());
        const bool isPrivate = privateLog.entries().contains(visit.url);
        const BrowsingLog::Entry entry = (isPrivate ? privateLog : workLog).entries().value(visit.url);
        EXPECT_EQ(visit.title, entry.title);
        EXPECT_EQ(visit.label, source(isPrivate ? firstProfile : secondProfile).label());
        EXPECT_GE(visit.time, ProgramRun::printed(entry.notBefore));
        EXPECT_LE(visit.time, ProgramRun::printed(entry.notAfter));
        EXPECT_LE(visit.time, newer);
        newer = visit.time;
    }

    // Words in any order and any case, some in the title and some in the address, across both profiles.
    const ProgramRun words = ProgramRun::of(home, {u"--search"_s, u"EXAMPLE"_s, u"gärten"_s});
    EXPECT_THAT(words.lines().last().toStdString(), ::testing::StartsWith("2 matches, not capped"));
    EXPECT_EQ(urls(words.visits()), asSet(privateLog.entries().keys().filter(u"/www.garten.example"_s) +
                                          workLog.entries().keys().filter(u"xn--bcher-kva"_s)));

    const ProgramRun site = ProgramRun::of(home, {u"--site"_s, u"garten.example"_s});
    EXPECT_EQ(urls(site.visits()), asSet(privateLog.urlsOfSite(u"garten.example"_s)));
    const ProgramRun nested = ProgramRun::of(home, {u"--site"_s, u"www.buero.example"_s});
    EXPECT_EQ(urls(nested.visits()), asSet(workLog.urlsOfSite(u"www.buero.example"_s)));
    const ProgramRun address = ProgramRun::of(home, {u"--site"_s, u"127.0.0.1"_s});
    EXPECT_EQ(urls(address.visits()), asSet(privateLog.urlsOfSite(u"127.0.0.1"_s)));
}

void RealBrowserHistoryTest::expectMostVisited() const
{
    const ProgramRun run = ProgramRun::of(home, {u"--top"_s});
    EXPECT_EQ(run.status, 0) << run.errors.toStdString();
    const QStringList lines = run.lines();
    const qsizetype rows = privateLog.entries().size() + workLog.entries().size();
    ASSERT_EQ(lines.size(), std::min<qsizetype>(rows, 10) + 1) << run.output.toStdString();
    EXPECT_EQ(lines.first(), u"3  "_s % source(firstProfile).name % u"  garten.example  Gärten & Höfe ☘");
    EXPECT_TRUE(lines.contains(u"2  "_s % workName % u"  www.buero.example  Büro"));
    EXPECT_TRUE(lines.last().startsWith(QString::number(rows) % u" URLs in ")) << run.output.toStdString();
}

void RealBrowserHistoryTest::expectAll() const
{
    expectProfiles();
    expectHistory(firstProfile, privateLog);
    expectHistory(secondProfile, workLog);
    expectIcons(firstProfile, privateLog);
    expectIcons(secondProfile, workLog);
    expectSummary();
    expectSearches();
    expectMostVisited();
}

bool RealBrowserHistoryTest::isWritten(const QString &profile, const BrowsingLog &log) const
{
    const ReadContext context = home.context();
    const Source from{.kind = chromium(), .profile = profile, .name = {}, .safariBookmarks = {}};
    const auto rows = ChromiumReader::history(from, HistoryQuery::recent(), context);
    const auto icons = FaviconReader::chromium(from, context);
    // A live database must be readable at every moment; only what it says may be old.
    EXPECT_TRUE(rows.has_value() && icons.has_value());
    qint64 visits = 0;
    for (const HistoryItem &row : rows.value_or(QList<HistoryItem>()))
        visits += row.title == log.entries().value(row.url).title ? row.visitCount : 0;
    qint64 expected = 0;
    for (const BrowsingLog::Entry &entry : log.entries())
        expected += entry.visitCount;
    return visits == expected && icons.value_or(Favicons()).size() == log.iconsBySite().size() &&
           BrowserReader::profiles(chromium(), context).size() == 2;
}

} // namespace

TEST_F(RealBrowserHistoryTest, whatWasVisitedIsReadWhileTheBrowserRunsAndAfterItEnded)
{
    ASSERT_TRUE(server.isListening());
    place(u"Profile 1/Preferences"_s, QString(u"{\"profile\": {\"name\": \"" % workName % u"\"}}").toUtf8());
    {
        HeadlessBrowser browser;
        ASSERT_EQ(browser.start(options(firstProfile)), QString());
        browsePrivately(browser);
        ASSERT_FALSE(HasFatalFailure());
        ASSERT_TRUE(browser.close());
    }

    HeadlessBrowser browser;
    ASSERT_EQ(browser.start(options(secondProfile)), QString());
    browseAtWork(browser);
    ASSERT_FALSE(HasFatalFailure());

    // In the middle of the browser's transaction, with a journal beside the database.
    ASSERT_TRUE(browser.freeze());
    expectNothingTouched([this] {
        expectHistory(firstProfile, privateLog);
        const ProgramRun run = ProgramRun::of(home, {u"--summary"_s});
        EXPECT_EQ(run.status, 0);
        EXPECT_FALSE(run.output.contains(u"Couldn't read")) << run.output.toStdString();
    });
    browser.thaw();

    // The browser commits every ten seconds.
    EXPECT_TRUE(waitUntil([this] { return isWritten(secondProfile, workLog); }, patience,
                          std::chrono::milliseconds(200)));
    ASSERT_TRUE(browser.freeze());
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
