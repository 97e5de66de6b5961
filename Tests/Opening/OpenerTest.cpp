// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Opening/Opener.h"

#include "Model/Browser.h"
#include "Support/FakeWorkspace.h"
#include "Support/Sources.h"

#include <gtest/gtest.h>

#include <iterator>
#include <utility>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class OpenerTest : public ::testing::Test
{
protected:
    Source chrome = profileOf(Source::Kind::Chrome, u"Profile 1"_s);
    Source edge = profileOf(Source::Kind::Edge, u"Default"_s);
    Source firefox = profileOf(browserKind(u"firefox"), u"abc.default"_s);
    FakeWorkspace workspace;
    Opener opener{workspace};
};

TEST_F(OpenerTest, aLinkOpensInItsProfile)
{
    opener.openLinks({{u"http://one/"_s, chrome}, {u"http://two/"_s, edge}});
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"profile"_s, u"chrome"_s, u"Profile 1"_s, u"http://one/"_s},
                                  {u"profile"_s, u"edge"_s, u"Default"_s, u"http://two/"_s}}));
}

TEST_F(OpenerTest, eachLinkIsARequestOfItsOwn)
{
    opener.openLinks({{u"http://one/"_s, chrome}, {u"http://two/"_s, chrome}});
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"profile"_s, u"chrome"_s, u"Profile 1"_s, u"http://one/"_s},
                                  {u"profile"_s, u"chrome"_s, u"Profile 1"_s, u"http://two/"_s}}));
}

TEST_F(OpenerTest, aLinkOpensInTheInstallationThatItCameFrom)
{
    chrome.installation = u"beta-flatpak"_s;
    opener.openLinks({{u"http://one/"_s, chrome}});
    opener.showHistory(chrome);
    EXPECT_EQ(
        workspace.requests,
        QList<QStringList>({{u"profile"_s, u"chrome@beta-flatpak"_s, u"Profile 1"_s, u"http://one/"_s},
                            {u"page"_s, u"chrome@beta-flatpak"_s, u"Profile 1"_s, u"chrome://history/"_s}}));
}

TEST_F(OpenerTest, aSourceWithoutAProfileIsOpenedAsAnApplication)
{
    opener.openLinks({{u"http://one/"_s, profileOf(Source::Kind::Chrome, {})}});
    EXPECT_EQ(workspace.requests, QList<QStringList>({{u"open"_s, u"chrome"_s, u"http://one/"_s}}));
}

TEST_F(OpenerTest, firefoxOpensInItsProfile)
{
    opener.openLinks({{u"https://one/"_s, firefox}});
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"profile"_s, u"firefox"_s, u"abc.default"_s, u"https://one/"_s}}));
}

TEST_F(OpenerTest, linksOfOneFirefoxProfileOpenInOneStart)
{
    Source other = firefox;
    other.profile = u"other"_s;
    opener.openLinks(
        {{u"https://one/"_s, firefox}, {u"https://two/"_s, other}, {u"https://three/"_s, firefox}});
    EXPECT_EQ(workspace.requests,
              QList<QStringList>(
                  {{u"profile"_s, u"firefox"_s, u"abc.default"_s, u"https://one/"_s, u"https://three/"_s},
                   {u"profile"_s, u"firefox"_s, u"other"_s, u"https://two/"_s}}));
}

TEST_F(OpenerTest, firefoxGetsOnlyAddressesThatItOpensItself)
{
    const QStringList opened{u"http://a/"_s, u"HTTPS://a/"_s,   u"file:///tmp/a.html"_s,
                             u"ftp://a/"_s,  u"about:memory"_s, u"moz-extension://1-2/page.html"_s};
    const QStringList refused{
        u"javascript:alert(1)"_s, u"data:text/html,x"_s,         u"example.com"_s, u"a b"_s,
        u"unknown:x"_s,           u"--new-instance"_s,           QString(),        u"-P"_s,
        u" http://a/"_s,          u"chrome://browser/content/"_s};
    opener.openInFirefox(refused + opened, firefox);
    opener.open(refused + opened, firefox.kind);
    opener.openInFirefox(refused, firefox);
    opener.open(refused, firefox.kind);
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({QStringList{u"profile"_s, u"firefox"_s, u"abc.default"_s} + opened,
                                  QStringList{u"open"_s, u"firefox"_s} + opened}));
}

TEST_F(OpenerTest, firefoxShowsTheSourceOfWhateverItOpensItself)
{
    const QStringList opened{u"view-source:http://a/"_s, u"View-Source:file:///tmp/a.html"_s};
    const QStringList refused{
        u"view-source:unknown:x"_s, u"view-source:javascript:alert(1)"_s,   u"view-source:example.com"_s,
        u"view-source:"_s,          u"view-source:view-source:http://a/"_s, u"view-source: http://a/"_s};
    opener.openInFirefox(refused + opened, firefox);
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({QStringList{u"profile"_s, u"firefox"_s, u"abc.default"_s} + opened}));
}

TEST_F(OpenerTest, firefoxHasPagesOfItsOwn)
{
    opener.showHistory(firefox);
    opener.editBookmarks(firefox, u"firefox/abc.default/5"_s);
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"page"_s, u"firefox"_s, u"abc.default"_s, u"about:firefoxview#history"_s},
                                  {u"page"_s, u"firefox"_s, u"abc.default"_s,
                                   u"chrome://browser/content/places/places.xhtml"_s}}));
}

TEST_F(OpenerTest, everyBrowserHasPagesOfItsOwn)
{
    struct Pages {
        QString browser;
        QString history;
        QString bookmarks;
        QString folder;
    };
    const QString window = u"chrome://browser/content/places/places.xhtml"_s;
    const QString view = u"about:firefoxview#history"_s;
    const Pages all[] = {
        {u"safari"_s, u"history://"_s, u"bookmarks://"_s, u"bookmarks://"_s},
        {u"chrome"_s, u"chrome://history/"_s, u"chrome://bookmarks/"_s, u"chrome://bookmarks/?id=5"_s},
        {u"edge"_s, u"edge://history/"_s, u"edge://favorites/"_s, u"edge://favorites/?id=5"_s},
        {u"chromium"_s, u"chrome://history/"_s, u"chrome://bookmarks/"_s, u"chrome://bookmarks/?id=5"_s},
        {u"brave"_s, u"brave://history/"_s, u"brave://bookmarks/"_s, u"brave://bookmarks/?id=5"_s},
        {u"vivaldi"_s, u"vivaldi://history/"_s, u"vivaldi://bookmarks/"_s, u"vivaldi://bookmarks/"_s},
        {u"opera"_s, u"opera://history/"_s, u"opera://bookmarks/"_s, u"opera://bookmarks/"_s},
        {u"firefox"_s, view, window, window},
        {u"librewolf"_s, view, window, window},
        {u"waterfox"_s, view, window, window},
        {u"floorp"_s, view, window, window},
        {u"zen"_s, view, window, window},
    };
    ASSERT_EQ(Browser::all().size(), static_cast<qsizetype>(std::size(all)));
    for (const auto &[name, history, bookmarks, folder] : all) {
        workspace.requests.clear();
        const Source source = profileOf(browserKind(name), u"p"_s);
        opener.showHistory(source);
        opener.editBookmarks(source, {});
        opener.editBookmarks(source, u"%1/p/5"_s.arg(name));
        QStringList pages;
        for (const QStringList &request : std::as_const(workspace.requests))
            pages.append(request.last());
        EXPECT_EQ(pages, QStringList({history, bookmarks, folder})) << name.toStdString();
    }
}

TEST_F(OpenerTest, aSafariLinkOpensInSafariWhateverItsProfile)
{
    opener.openLinks({{u"http://one/"_s, Source::safari()},
                      {u"http://two/"_s, profileOf(Source::Kind::Safari, u"7F1C"_s)}});
    EXPECT_EQ(workspace.requests, QList<QStringList>({{u"open"_s, u"safari"_s, u"http://one/"_s},
                                                      {u"open"_s, u"safari"_s, u"http://two/"_s}}));
}

TEST_F(OpenerTest, linksOfDifferentBrowsersKeepTheirOrder)
{
    opener.openLinks(
        {{u"http://one/"_s, edge}, {u"http://two/"_s, Source::safari()}, {u"http://3/"_s, edge}});
    ASSERT_EQ(workspace.requests.size(), 3);
    EXPECT_EQ(workspace.requests.at(0).last(), u"http://one/");
    EXPECT_EQ(workspace.requests.at(1).last(), u"http://two/");
    EXPECT_EQ(workspace.requests.at(2).last(), u"http://3/");
}

TEST_F(OpenerTest, aChosenBrowserGetsAllTheUrlsAtOnce)
{
    opener.open({u"http://one/"_s, u"http://two/"_s}, Source::Kind::Edge);
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"open"_s, u"edge"_s, u"http://one/"_s, u"http://two/"_s}}));
}

TEST_F(OpenerTest, whatIsNoUrlIsLeftOut)
{
    opener.open({QString(), u"--user-data-dir=/tmp"_s, u"http://[::1"_s, u"plain words"_s, u"http://ok/"_s,
                 u"http://a b/"_s, u"plain words: http://a/"_s, u"-x:y"_s, u"http://a:port/"_s,
                 u"http://[]/"_s, u"http://::1/"_s, u"://a/"_s},
                Source::Kind::Chrome);
    EXPECT_EQ(workspace.requests, QList<QStringList>({{u"open"_s, u"chrome"_s, u"http://ok/"_s}}));
}

TEST_F(OpenerTest, aHostMayHaveANameThatKeepsNoRule)
{
    const QStringList urls{u"https://foo-.tumblr.com/"_s,
                           u"https://-foo.example.com/"_s,
                           u"http://under_score.example:8080/"_s,
                           u"https://"_s % QString(64, u'a') % u".example/",
                           u"http://user:word@[::1]:80?x"_s,
                           u"history://"_s,
                           u"file:///home/a b"_s};
    opener.open(urls, Source::Kind::Chrome);
    ASSERT_EQ(workspace.requests.size(), 1);
    EXPECT_EQ(workspace.requests.at(0).sliced(2), urls);
}

TEST_F(OpenerTest, nothingIsOpenedWhenNoUrlIsLeft)
{
    opener.open({u"http://[::1"_s}, Source::Kind::Chrome);
    opener.openInChromium({u"-x"_s, QString()}, chrome);
    EXPECT_TRUE(workspace.requests.isEmpty());
}

TEST_F(OpenerTest, aUrlReachesTheBrowserAsItIsStored)
{
    // Histories are full of such addresses, and what the browser wrote down it also understands.
    const QStringList urls{u"http://example.com/a|b{c}^ d"_s, u"https://münchen.de/straße?q=%zz"_s,
                           u"https://xn--mnchen-3ya.de/"_s, u"about:blank"_s};
    opener.open(urls, Source::Kind::Chrome);
    opener.openInChromium(urls, chrome);
    ASSERT_EQ(workspace.requests.size(), 2);
    EXPECT_EQ(workspace.requests.at(0).sliced(2), urls);
    EXPECT_EQ(workspace.requests.at(1).sliced(3), urls);
}

TEST_F(OpenerTest, aTextThatABrowserWouldTakeForAnOptionIsNoUrl)
{
    opener.openInChromium({u"--no-sandbox"_s, u"-h"_s, u" \t--renderer-cmd-prefix=x"_s, u"http://ok/"_s},
                          chrome);
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"profile"_s, u"chrome"_s, u"Profile 1"_s, u"http://ok/"_s}}));
}

TEST_F(OpenerTest, whetherALinkIsOpenedIsSaid)
{
    EXPECT_TRUE(opener.openLinks({{u"http://one/"_s, chrome}, {u"http://two/"_s, firefox}}));
    EXPECT_TRUE(opener.openLinks({{u"http://one/"_s, Source::safari()}}));
    EXPECT_FALSE(opener.openLinks({{u"-one"_s, chrome}, {u"http://two/"_s, firefox}}));
    EXPECT_FALSE(opener.openLinks({{u"http://one/"_s, chrome}, {u"data:two"_s, firefox}}));
    EXPECT_FALSE(opener.openLinks({{u"no address"_s, Source::safari()}, {u"http://one/"_s, edge}}));
    workspace.missing = Source::Kind::Edge;
    workspace.requests.clear();
    EXPECT_FALSE(opener.openLinks({{u"http://one/"_s, edge}, {u"http://two/"_s, chrome}}));
    EXPECT_EQ(workspace.requests.size(), 2) << "one that cannot be opened stops no other";
}

TEST_F(OpenerTest, whatABrowserCanBeGivenIsKnownBefore)
{
    EXPECT_TRUE(Opener::canOpen({u"javascript:x"_s, chrome}));
    EXPECT_FALSE(Opener::canOpen({u" --incognito"_s, chrome}));
    EXPECT_FALSE(Opener::canOpen({u""_s, chrome}));
    EXPECT_FALSE(Opener::canOpen({u"no address"_s, profileOf(Source::Kind::Chrome, {})}));
    EXPECT_TRUE(Opener::canOpen({u"about:config"_s, firefox}));
    EXPECT_FALSE(Opener::canOpen({u"javascript:x"_s, firefox}));
    EXPECT_TRUE(Opener::canOpen({u"javascript:x"_s, Source::safari()}));
    EXPECT_FALSE(Opener::canOpen({u"no address"_s, Source::safari()}));
}

TEST_F(OpenerTest, historyPagesAreTheBrowsersOwn)
{
    opener.showHistory(Source::safari());
    opener.showHistory(chrome);
    opener.showHistory(edge);
    opener.showHistory(profileOf(Source::Kind::Chrome, {}));
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"open"_s, u"safari"_s, u"history://"_s},
                                  {u"page"_s, u"chrome"_s, u"Profile 1"_s, u"chrome://history/"_s},
                                  {u"page"_s, u"edge"_s, u"Default"_s, u"edge://history/"_s},
                                  {u"page"_s, u"chrome"_s, u"(no profile)"_s, u"chrome://history/"_s}}));
}

TEST_F(OpenerTest, theBookmarkManagerOpensAtAFolderThatHasANumber)
{
    opener.editBookmarks(chrome, u"chrome/Profile 1/5"_s);
    EXPECT_EQ(workspace.requests.last(),
              QStringList({u"page"_s, u"chrome"_s, u"Profile 1"_s, u"chrome://bookmarks/?id=5"_s}));
    opener.editBookmarks(chrome, u"chrome/Profile 1/5//"_s);
    EXPECT_EQ(workspace.requests.last().last(), u"chrome://bookmarks/?id=5");
    opener.editBookmarks(chrome, u"5"_s);
    EXPECT_EQ(workspace.requests.last().last(), u"chrome://bookmarks/?id=5");
}

TEST_F(OpenerTest, theBookmarkManagerOpensWithoutAFolderOtherwise)
{
    for (const std::optional<QString> &folderID :
         {std::optional<QString>(), std::optional(QString()), std::optional(u"///"_s),
          std::optional(u"abc"_s), std::optional(u"edge/Default/abc"_s), std::optional(u"edge/Default/5a"_s),
          std::optional(u"edge/Default/-5"_s), std::optional(u"edge/Default/5&x=\""_s)}) {
        opener.editBookmarks(edge, folderID);
        EXPECT_EQ(workspace.requests.last(),
                  QStringList({u"page"_s, u"edge"_s, u"Default"_s, u"edge://favorites/"_s}))
            << folderID.value_or(u"(none)"_s).toStdString();
    }
}

TEST_F(OpenerTest, safarisBookmarksOpenWhateverTheFolder)
{
    opener.editBookmarks(Source::safari(), u"safari/5"_s);
    opener.editBookmarks(Source::safari(), {});
    const QStringList request{u"open"_s, u"safari"_s, u"bookmarks://"_s};
    EXPECT_EQ(workspace.requests, QList<QStringList>({request, request}));
}

TEST_F(OpenerTest, knowsWhichBrowsersAreInstalled)
{
    EXPECT_EQ(opener.installedBrowsers(), QList<Source::Kind>());
    workspace.icons = {{u"firefox"_s, Qt::red}, {u"edge"_s, Qt::blue}};
    EXPECT_EQ(opener.installedBrowsers(), QList({Source::Kind::Edge, firefox.kind}));
}

TEST_F(OpenerTest, anIconIsAskedForOnce)
{
    workspace.icons = {{u"chrome"_s, Qt::red}, {u"safari"_s, Qt::green}};
    const std::optional<QImage> icon = opener.icon(Source::Kind::Chrome, 1);
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->size(), QSize(16, 16));
    EXPECT_EQ(icon->pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(opener.icon(Source::Kind::Chrome, 1), icon);
    EXPECT_EQ(workspace.iconRequests, 1);
    EXPECT_EQ(opener.icon(Source::Kind::Safari, 1).value_or(QImage()).pixelColor(0, 0), QColor(Qt::green));
}

TEST_F(OpenerTest, anIconIsKeptForEachPixelRatio)
{
    workspace.icons = {{u"chrome"_s, Qt::red}};
    EXPECT_EQ(opener.icon(Source::Kind::Chrome, 1).value_or(QImage()).width(), 16);
    const QImage sharp = opener.icon(Source::Kind::Chrome, 2).value_or(QImage());
    EXPECT_EQ(sharp.width(), 32);
    EXPECT_EQ(sharp.deviceIndependentSize(), QSizeF(16, 16));
    EXPECT_EQ(opener.icon(Source::Kind::Chrome, 2).value_or(QImage()), sharp);
    EXPECT_EQ(workspace.iconRequests, 2);
}

TEST_F(OpenerTest, aBrowserThatIsInstalledLaterIsFound)
{
    EXPECT_EQ(opener.icon(Source::Kind::Edge, 1), std::nullopt);
    workspace.icons = {{u"edge"_s, Qt::blue}};
    EXPECT_NE(opener.icon(Source::Kind::Edge, 1), std::nullopt);
}

} // namespace
} // namespace roamlet::testing
