// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "HeadlessFirefox.h"
#include "KeptBookmark.h"
#include "ProgramRun.h"
#include "Readers/BrowserReader.h"
#include "RealFirefoxTest.h"
#include "Support/Waiting.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cmath>
#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

/// Both sides divide the browser's microseconds by themselves.
constexpr double lessThanAMicrosecond = 0.0000005;

/// What a user sees below a node of the browser's own tree. Separators and the browser's queries are no
/// bookmarks.
void appendShown(const QJsonObject &node, const QStringList &folders, QList<KeptBookmark> *list)
{
    const QString title = node.value(u"title"_s).toString();
    const QString url = node.value(u"uri"_s).toString();
    if (node.value(u"type"_s).toString() == u"text/x-moz-place-container") {
        const QJsonArray children = node.value(u"children"_s).toArray();
        for (const auto &child : children)
            appendShown(child.toObject(), folders + QStringList{title}, list);
    } else if (!url.isEmpty() && !url.startsWith(u"place:")) {
        list->append(
            {folders, title.isEmpty() ? url : title, url, node.value(u"dateAdded"_s).toDouble() / 1'000'000});
    }
}

/// The same from the browser's own mouth, in the order of the roots that is ours.
QList<KeptBookmark> shownBy(HeadlessFirefox &browser)
{
    const auto roots = browser.run(uR"(
        const tree = await PlacesUtils.promiseBookmarksTree();
        return ['toolbar_____', 'menu________', 'unfiled_____', 'mobile______'].map(guid => {
            const root = tree.children.find(child => child.guid == guid);
            root.title = PlacesUtils.bookmarks.getLocalizedTitle(root);
            return root;
        });)"_s);
    EXPECT_TRUE(roots) << (roots ? "" : roots.error().toStdString());
    QList<KeptBookmark> list;
    const QJsonArray trees = roots.value_or(QJsonValue()).toArray();
    for (const auto &root : trees)
        appendShown(root.toObject(), {}, &list);
    return list;
}

class RealFirefoxBookmarksTest : public RealFirefoxTest
{
protected:
    /// Bookmarks that a user has had for long, and some of today.
    static void addBookmarks(HeadlessFirefox &browser);
    QList<KeptBookmark> read(const QString &profile) const;
};

void RealFirefoxBookmarksTest::addBookmarks(HeadlessFirefox &browser)
{
    const auto added = browser.run(uR"(
        const { bookmarks, tagging } = PlacesUtils;
        const page = (title, url, time) => ({ title, url, dateAdded: new Date(time) });
        const folder = (title, ...children) => ({ type: bookmarks.TYPE_FOLDER, title, children });
        const separator = { type: bookmarks.TYPE_SEPARATOR };
        await bookmarks.insertTree({ guid: bookmarks.toolbarGuid, children: [
            page('A & B <c> &lt; it\'s "quoted"', 'http://a.example/', 1350000000123),
            separator,
            folder('Reisen & <Orte>',
                page('Zürich, "Hauptbahnhof" 🚉', 'http://zuerich.example/?a=1&b=%22x%22', 1400000000000),
                folder('日本', page('東京 | Tōkyō', 'https://tokyo.example/', 1500000000987)),
                separator,
                folder('Leer')),
            page('‏עברית', 'http://ivrit.example/%D7%A9', 1600000000001),
            page('Skript', 'javascript:void(0)', 1600000000002),
            page('Häufig', 'place:sort=8&maxResults=10', 1600000000003),
        ] });
        await bookmarks.insertTree({ guid: bookmarks.menuGuid, children: [
            page('Wieder Zürich', 'http://zuerich.example/?a=1&b=%22x%22', 1450000000000),
        ] });
        await bookmarks.insertTree({ guid: bookmarks.unfiledGuid, children: [
            folder('Später', page('Lesen, vielleicht', 'http://spaeter.example/a,b;c', 1200000000500)),
            page('', 'http://ohne-titel.example/', 1700000000000),
        ] });
        await bookmarks.insertTree({ guid: bookmarks.mobileGuid, children: [
            page('Unterwegs', 'http://mobil.example/', 1650000000000),
        ] });
        // The first of its folder by now.
        await bookmarks.insert({ parentGuid: bookmarks.toolbarGuid, index: 0, title: 'Neu – heute',
                                 url: 'http://neu.example/' });
        tagging.tagURI(Services.io.newURI('https://tokyo.example/'), ['Asien', 'Städte']);
        tagging.tagURI(Services.io.newURI('http://a.example/'), ['Städte']);)"_s);
    ASSERT_TRUE(added) << added.error().toStdString();
}

QList<KeptBookmark> RealFirefoxBookmarksTest::read(const QString &profile) const
{
    const auto trees = BrowserReader::bookmarks(source(profile), home.context());
    EXPECT_TRUE(trees) << (trees ? "" : trees.error().first().errorDescription().toStdString());
    return KeptBookmark::allOf(trees.value_or(BookmarkTrees()).roots);
}

/// Where Firefox puts what it restores: the bookmarks bar's content onto its bar, everything else into the
/// menu. A bookmarks file has whole seconds.
QList<KeptBookmark> asRestored(QList<KeptBookmark> list)
{
    for (KeptBookmark &kept : list) {
        kept.added = std::trunc(kept.added);
        if (kept.folders.first() != u"Bookmarks Toolbar")
            kept.folders.prepend(u"Bookmarks Menu"_s);
    }
    return list;
}

} // namespace

TEST_F(RealFirefoxBookmarksTest, bookmarksAreReadAsTheBrowserShowsThemAndComeBackFromAnExportedFile)
{
    const QString from = createProfile(u"Alt"_s);
    const QString into = createProfile(u"Neu"_s);
    ASSERT_FALSE(from.isEmpty() || into.isEmpty());
    QList<KeptBookmark> kept;
    {
        HeadlessFirefox browser;
        ASSERT_EQ(browser.start(options(from)), QString());
        addBookmarks(browser);
        ASSERT_FALSE(HasFatalFailure());
        kept = shownBy(browser);
        ASSERT_GE(kept.size(), 10);
        ASSERT_TRUE(browser.freeze());
        {
            SCOPED_TRACE("while the browser runs");
            expectNothingTouched([&] { expectSameBookmarks(read(from), kept, lessThanAMicrosecond); });
        }
        browser.thaw();
        ASSERT_TRUE(browser.close());
    }

    ProgramRun exported;
    {
        SCOPED_TRACE("after the browser has ended");
        expectNothingTouched([&] {
            expectSameBookmarks(read(from), kept, lessThanAMicrosecond);
            const ProgramRun summary = ProgramRun::of(home, {u"--summary"_s});
            EXPECT_THAT(summary.output.toStdString(),
                        ::testing::HasSubstr(std::to_string(kept.size()) + " bookmarks"));
            exported = ProgramRun::of(home, {u"--export"_s, u"html"_s, u"--source"_s, u"firefox/"_s % from});
        });
    }
    ASSERT_EQ(exported.status, 0) << exported.errors.toStdString();
    const QString file = home.path(u"bookmarks.html"_s);
    write(file, exported.output.toUtf8());

    HeadlessFirefox browser;
    ASSERT_EQ(browser.start(options(into)), QString());
    const auto imported = browser.run(uR"(
        const { BookmarkHTMLUtils } = ChromeUtils.importESModule(
            'resource://gre/modules/BookmarkHTMLUtils.sys.mjs');
        return BookmarkHTMLUtils.importFromFile(args[0], { replace: true });)"_s,
                                      {file});
    ASSERT_TRUE(imported) << imported.error().toStdString();
    EXPECT_EQ(imported->toInteger(), kept.size());
    const QList<KeptBookmark> expected = asRestored(kept);
    expectSameBookmarks(shownBy(browser), expected, lessThanAMicrosecond);
    ASSERT_TRUE(browser.close());
    expectSameBookmarks(read(into), expected, lessThanAMicrosecond);
}

} // namespace roamlet::testing
