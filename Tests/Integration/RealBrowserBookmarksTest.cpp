// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "HeadlessBrowser.h"
#include "KeptBookmark.h"
#include "ProgramRun.h"
#include "Readers/BrowserReader.h"
#include "Readers/Chromium/ChromiumReader.h"
#include "RealBrowserTest.h"
#include "Support/Waiting.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>
#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

QList<KeptBookmark> read(const Source &source, const TestHome &home)
{
    const auto trees = ChromiumReader::bookmarks(source, home.context());
    EXPECT_TRUE(trees) << (trees ? "" : trees.error().first().errorDescription().toStdString());
    return KeptBookmark::allOf(trees.value_or(BookmarkTrees()).roots);
}

/// The same from the browser's own mouth, whose times have milliseconds.
void append(const QJsonObject &node, const QStringList &folders, QList<KeptBookmark> *list)
{
    const QString title = node.value(u"title"_s).toString();
    if (node.contains(u"url"_s)) {
        list->append({folders, title.isEmpty() ? node.value(u"url"_s).toString() : title,
                      node.value(u"url"_s).toString(), node.value(u"dateAdded"_s).toDouble() / 1000});
        return;
    }
    // The node above the root folders has no title and no place in a path.
    const bool isTop = !node.contains(u"parentId"_s);
    const QJsonArray children = node.value(u"children"_s).toArray();
    for (const auto &child : children)
        append(child.toObject(), isTop ? folders : folders + QStringList{title}, list);
}

QList<KeptBookmark> shownBy(HeadlessBrowser &browser)
{
    const auto address = browser.open(u"chrome://bookmarks/"_s);
    EXPECT_TRUE(address) << (address ? "" : address.error().toStdString());
    const auto tree = browser.evaluate(u"new Promise(done => chrome.bookmarks.getTree(done))"_s);
    EXPECT_TRUE(tree) << (tree ? "" : tree.error().toStdString());
    QList<KeptBookmark> list;
    append(tree.value_or(QJsonValue()).toArray().at(0).toObject(), {}, &list);
    return list;
}

/// Where a new Chromium puts what it imports: the bookmarks bar's content onto its bar, everything else into
/// a folder there. A bookmarks file has whole seconds.
QList<KeptBookmark> asImported(QList<KeptBookmark> list)
{
    const QString bar = list.first().folders.first();
    for (KeptBookmark &kept : list) {
        kept.added = std::trunc(kept.added);
        if (kept.folders.first() != bar)
            kept.folders = QStringList{bar, u"Imported"_s} + kept.folders;
    }
    return list;
}

/// The lines of an exported bookmarks file that are bookmarks, without what shows their depth.
QStringList bookmarkLines(const ProgramRun &run)
{
    QStringList found;
    for (const QString &line : run.lines()) {
        if (line.contains(u"<A HREF="))
            found.append(line.trimmed());
    }
    return found;
}

/// Bookmarks that a user has had for long: a file of the browser's own with fixed times, some with a fraction
/// of a second. The microseconds are counted from 1601.
QByteArray longKeptBookmarks()
{
    const auto url = [](const QString &title, const QString &address, const QString &added) {
        return QJsonObject{
            {u"type"_s, u"url"_s}, {u"name"_s, title}, {u"url"_s, address}, {u"date_added"_s, added}};
    };
    const auto folder = [](const QString &title, const QJsonArray &children) {
        return QJsonObject{{u"type"_s, u"folder"_s},
                           {u"name"_s, title},
                           {u"date_added"_s, u"12900000000000000"_s},
                           {u"children"_s, children}};
    };
    const QJsonObject deep = folder(
        u"Reisen & <Orte>"_s,
        {url(u"Zürich, \"Hauptbahnhof\" 🚉"_s, u"http://zuerich.example/?a=1&b=%22x%22"_s,
             u"13000000000000000"_s),
         folder(u"日本"_s, {url(u"東京 | Tōkyō"_s, u"https://tokyo.example/"_s, u"13100000000987654"_s)})});
    const QJsonArray onBar{
        url(u"A & B <c> &lt; it's \"quoted\""_s, u"http://a.example/"_s, u"12950000000123456"_s), deep,
        url(u"‏עברית"_s, u"http://ivrit.example/%D7%A9"_s, u"13250000000000001"_s)};
    const QJsonArray others{
        folder(u"Später"_s,
               {url(u"Lesen, vielleicht"_s, u"http://spaeter.example/a,b;c"_s, u"12800000000500000"_s)}),
        url({}, u"http://ohne-titel.example/"_s, u"13300000000000000"_s)};
    const QJsonObject roots{{u"bookmark_bar"_s, folder(u"Bookmarks bar"_s, onBar)},
                            {u"other"_s, folder(u"Other bookmarks"_s, others)},
                            {u"synced"_s, folder(u"Mobile bookmarks"_s, {})}};
    return QJsonDocument(QJsonObject{{u"roots"_s, roots}, {u"version"_s, 1}}).toJson();
}

class RealBrowserBookmarksTest : public RealBrowserTest
{
protected:
    /// Lets the browser keep the bookmarks, add one of today, and end.
    void keepBookmarks();

    /// What the browser showed before it ended.
    QList<KeptBookmark> kept;
};

void RealBrowserBookmarksTest::keepBookmarks()
{
    place(secondProfile % u"/Bookmarks", longKeptBookmarks());
    HeadlessBrowser browser;
    ASSERT_EQ(browser.start(options(secondProfile)), QString());
    ASSERT_EQ(shownBy(browser).size(), 6);
    const auto added = browser.evaluate(uR"(chrome.bookmarks.getTree().then(tree => chrome.bookmarks.create({
            parentId: tree[0].children[0].id, title: 'Neu – heute', url: 'http://neu.example/'})))"_s);
    ASSERT_TRUE(added) << added.error().toStdString();
    kept = shownBy(browser);
    ASSERT_EQ(kept.size(), 7);
    ASSERT_TRUE(browser.close());
}

} // namespace

TEST_F(RealBrowserBookmarksTest, bookmarksAreReadAsTheBrowserShowsThem)
{
    keepBookmarks();
    ASSERT_FALSE(HasFatalFailure());
    expectNothingTouched([this] {
        // The browser shows milliseconds and cuts the rest off.
        expectSameBookmarks(read(source(secondProfile), home), kept, 0.0011);
        const ProgramRun summary = ProgramRun::of(home, {u"--summary"_s});
        EXPECT_THAT(summary.output.toStdString(), ::testing::HasSubstr("7 bookmarks, 5 folders"));
    });
}

TEST_F(RealBrowserBookmarksTest, exportedBookmarksComeBackWhenTheBrowserImportsThem)
{
    if (!HeadlessBrowser::canImport())
        GTEST_SKIP() << "This machine does not let a process cover a folder, so no import could be tried.";
    keepBookmarks();
    ASSERT_FALSE(HasFatalFailure());
    ProgramRun exported;
    expectNothingTouched([&] {
        exported =
            ProgramRun::of(home, {u"--export"_s, u"html"_s, u"--source"_s, u"chromium/"_s % secondProfile});
    });
    ASSERT_EQ(exported.status, 0) << exported.errors.toStdString();
    ASSERT_EQ(bookmarkLines(exported).size(), kept.size());
    const QString path = home.path(u"bookmarks.html"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(exported.output.toUtf8());
    file.close();

    // Another user, whose browser keeps its data where a setting says.
    TestHome other;
    const QString otherUserData = other.path(u"browser data"_s);
    other.defaults.setString(u"dataRoot.chromium"_s, otherUserData);
    ASSERT_TRUE(QDir().mkpath(other.path(u".config/Roamlet"_s)));
    QFile settings(other.path(u".config/Roamlet/Roamlet.conf"_s));
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write(QString(u"[General]\ndataRoot.chromium=" % otherUserData % u'\n').toUtf8());
    settings.close();

    HeadlessBrowser browser;
    ASSERT_EQ(browser.start({.home = other.path(),
                             .temporary = browserTemporary.path(),
                             .userData = otherUserData,
                             .profile = u"Default"_s,
                             .bookmarksToImport = path}),
              QString());
    const Source imported{.kind = chromium(), .profile = u"Default"_s, .name = {}, .safariBookmarks = {}};
    // The browser replaces its file some seconds after the import.
    ASSERT_TRUE(waitUntil([&] {
        return read(imported, other).size() == kept.size() &&
               BrowserReader::profiles(chromium(), other.context()).size() == 1;
    }));
    const QList<KeptBookmark> expected = asImported(kept);
    expectSameBookmarks(shownBy(browser), expected, 0);
    const auto expectImported = [&] {
        expectSameBookmarks(read(imported, other), expected, 0);
        const ProgramRun again =
            ProgramRun::of(other, {u"--export"_s, u"html"_s, u"--source"_s, u"chromium/Default"_s});
        EXPECT_EQ(bookmarkLines(again).join(u'\n').toStdString(),
                  bookmarkLines(exported).join(u'\n').toStdString())
            << again.errors.toStdString();
    };
    ASSERT_TRUE(browser.freeze());
    expectNothingTouched(other, otherUserData, expectImported);
    browser.thaw();
    ASSERT_TRUE(browser.close());
    expectNothingTouched(other, otherUserData, expectImported);
}

} // namespace roamlet::testing
