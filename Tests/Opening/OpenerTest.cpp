// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Opening/Opener.h"

#include "Opening/OpenArguments.h"
#include "Support/FakeWorkspace.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

Source source(Source::Kind kind, const std::optional<QString> &profile)
{
    return {.kind = kind, .profile = profile, .name = u"Name"_s, .safariBookmarks = {}};
}

class OpenerTest : public ::testing::Test
{
protected:
    Source chrome = source(Source::Kind::Chrome, u"Profile 1"_s);
    Source edge = source(Source::Kind::Edge, u"Default"_s);
    FakeWorkspace workspace;
    Opener opener{workspace};
};

/// A system that reaches a profile by commands only.
class OpenerByCommandsTest : public OpenerTest
{
protected:
    OpenerByCommandsTest() { workspace.reachesProfiles = false; }

    /// What a request for a page asks: the blank tab, then the script.
    static QList<QStringList> pageRequests(const QString &bundleID, const QString &profile,
                                           const QString &page)
    {
        return {{u"start"_s, u"/usr/bin/open"_s, u"-n"_s, u"-b"_s, bundleID, u"--args"_s,
                 u"--profile-directory=" % profile, u"about:blank"_s},
                {u"start"_s, u"/usr/bin/osascript"_s, u"-e"_s, OpenArguments::pageScript(bundleID, page)}};
    }
};

TEST_F(OpenerByCommandsTest, AChromeLinkStartsOneCommandWithItsProfile)
{
    opener.openInChromium({u"https://example.com/a b"_s}, Source::Kind::Chrome, u"Profile 1"_s);
    EXPECT_EQ(workspace.requests,
              QList<QStringList>(
                  {{u"start"_s, u"/usr/bin/open"_s, u"-n"_s, u"-b"_s, u"com.google.Chrome"_s, u"--args"_s,
                    u"--profile-directory=Profile 1"_s, u"https://example.com/a b"_s}}));
}

TEST_F(OpenerByCommandsTest, EachLinkIsAProcessOfItsOwn)
{
    opener.openLinks({{u"http://one/"_s, chrome}, {u"http://two/"_s, chrome}});
    ASSERT_EQ(workspace.requests.size(), 2);
    EXPECT_EQ(workspace.requests.at(0).last(), u"http://one/");
    EXPECT_EQ(workspace.requests.at(1).last(), u"http://two/");
}

TEST_F(OpenerByCommandsTest, ASourceWithoutAProfileIsOpenedAsAnApplication)
{
    opener.openLinks({{u"http://one/"_s, source(Source::Kind::Chrome, {})}});
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"open"_s, u"com.google.Chrome"_s, u"http://one/"_s}}));
}

TEST_F(OpenerByCommandsTest, APageIsABlankTabAndTheScript)
{
    opener.showHistory(chrome);
    EXPECT_EQ(workspace.requests,
              pageRequests(u"com.google.Chrome"_s, u"Profile 1"_s, u"chrome://history/"_s));
    workspace.requests.clear();
    opener.showHistory(edge);
    EXPECT_EQ(workspace.requests,
              pageRequests(u"com.microsoft.edgemac"_s, u"Default"_s, u"edge://history/"_s));
    workspace.requests.clear();
    opener.editBookmarks(edge, u"edge/Default/12"_s);
    EXPECT_EQ(workspace.requests,
              pageRequests(u"com.microsoft.edgemac"_s, u"Default"_s, u"edge://favorites/?id=12"_s));
}

TEST_F(OpenerByCommandsTest, APageWithoutAProfileOpensItsBlankTabAsAnApplication)
{
    opener.showHistory(source(Source::Kind::Chrome, {}));
    ASSERT_EQ(workspace.requests.size(), 2);
    EXPECT_EQ(workspace.requests.at(0), QStringList({u"open"_s, u"com.google.Chrome"_s, u"about:blank"_s}));
    EXPECT_EQ(workspace.requests.at(1).at(1), u"/usr/bin/osascript");
}

TEST_F(OpenerTest, ASystemThatReachesProfilesIsAskedInstead)
{
    opener.openLinks({{u"http://one/"_s, chrome}, {u"http://two/"_s, edge}});
    EXPECT_EQ(
        workspace.requests,
        QList<QStringList>({{u"profile"_s, u"com.google.Chrome"_s, u"Profile 1"_s, u"http://one/"_s},
                            {u"profile"_s, u"com.microsoft.edgemac"_s, u"Default"_s, u"http://two/"_s}}));
}

TEST_F(OpenerTest, ASafariLinkOpensInSafariWhateverItsProfile)
{
    opener.openLinks(
        {{u"http://one/"_s, Source::safari()}, {u"http://two/"_s, source(Source::Kind::Safari, u"7F1C"_s)}});
    EXPECT_EQ(workspace.requests, QList<QStringList>({{u"open"_s, u"com.apple.Safari"_s, u"http://one/"_s},
                                                      {u"open"_s, u"com.apple.Safari"_s, u"http://two/"_s}}));
}

TEST_F(OpenerTest, LinksOfDifferentBrowsersKeepTheirOrder)
{
    opener.openLinks(
        {{u"http://one/"_s, edge}, {u"http://two/"_s, Source::safari()}, {u"http://3/"_s, edge}});
    ASSERT_EQ(workspace.requests.size(), 3);
    EXPECT_EQ(workspace.requests.at(0).last(), u"http://one/");
    EXPECT_EQ(workspace.requests.at(1).last(), u"http://two/");
    EXPECT_EQ(workspace.requests.at(2).last(), u"http://3/");
}

TEST_F(OpenerTest, AChosenBrowserGetsAllTheUrlsAtOnce)
{
    opener.open({u"http://one/"_s, u"http://two/"_s}, Opener::bundleID(Source::Kind::Edge));
    EXPECT_EQ(workspace.requests, QList<QStringList>({{u"open"_s, u"com.microsoft.edgemac"_s,
                                                       u"http://one/"_s, u"http://two/"_s}}));
}

TEST_F(OpenerTest, WhatIsNoUrlIsLeftOut)
{
    opener.open({QString(), u"--user-data-dir=/tmp"_s, u"http://[::1"_s, u"plain words"_s, u"http://ok/"_s,
                 u"http://a b/"_s, u"plain words: http://a/"_s, u"-x:y"_s, u"http://a:port/"_s,
                 u"http://[]/"_s, u"http://::1/"_s, u"://a/"_s},
                u"com.google.Chrome"_s);
    EXPECT_EQ(workspace.requests, QList<QStringList>({{u"open"_s, u"com.google.Chrome"_s, u"http://ok/"_s}}));
}

TEST_F(OpenerTest, AHostMayHaveANameThatKeepsNoRule)
{
    const QStringList urls{u"https://foo-.tumblr.com/"_s,
                           u"https://-foo.example.com/"_s,
                           u"http://under_score.example:8080/"_s,
                           u"https://"_s % QString(64, u'a') % u".example/",
                           u"http://user:word@[::1]:80?x"_s,
                           u"history://"_s,
                           u"file:///home/a b"_s};
    opener.open(urls, u"com.google.Chrome"_s);
    ASSERT_EQ(workspace.requests.size(), 1);
    EXPECT_EQ(workspace.requests.at(0).sliced(2), urls);
}

TEST_F(OpenerTest, NothingIsOpenedWhenNoUrlIsLeft)
{
    opener.open({u"http://[::1"_s}, u"com.google.Chrome"_s);
    opener.openInChromium({u"-x"_s, QString()}, Source::Kind::Chrome, u"Default"_s);
    EXPECT_TRUE(workspace.requests.isEmpty());
}

TEST_F(OpenerTest, AUrlReachesTheBrowserAsItIsStored)
{
    // Histories are full of such addresses, and what the browser wrote down it also understands.
    const QStringList urls{u"http://example.com/a|b{c}^ d"_s, u"https://münchen.de/straße?q=%zz"_s,
                           u"https://xn--mnchen-3ya.de/"_s, u"about:blank"_s};
    opener.open(urls, u"com.google.Chrome"_s);
    opener.openInChromium(urls, Source::Kind::Chrome, u"Default"_s);
    ASSERT_EQ(workspace.requests.size(), 2);
    EXPECT_EQ(workspace.requests.at(0).sliced(2), urls);
    EXPECT_EQ(workspace.requests.at(1).sliced(3), urls);
}

TEST_F(OpenerTest, ATextThatABrowserWouldTakeForAnOptionIsNoUrl)
{
    opener.openInChromium({u"--no-sandbox"_s, u"-h"_s, u" \t--renderer-cmd-prefix=x"_s, u"http://ok/"_s},
                          Source::Kind::Chrome, u"Default"_s);
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"profile"_s, u"com.google.Chrome"_s, u"Default"_s, u"http://ok/"_s}}));
}

TEST_F(OpenerTest, HistoryPagesAreTheBrowsersOwn)
{
    opener.showHistory(Source::safari());
    opener.showHistory(chrome);
    opener.showHistory(edge);
    opener.showHistory(source(Source::Kind::Chrome, {}));
    EXPECT_EQ(
        workspace.requests,
        QList<QStringList>({{u"open"_s, u"com.apple.Safari"_s, u"history://"_s},
                            {u"page"_s, u"com.google.Chrome"_s, u"Profile 1"_s, u"chrome://history/"_s},
                            {u"page"_s, u"com.microsoft.edgemac"_s, u"Default"_s, u"edge://history/"_s},
                            {u"page"_s, u"com.google.Chrome"_s, u"(no profile)"_s, u"chrome://history/"_s}}));
}

TEST_F(OpenerTest, TheBookmarkManagerOpensAtAFolderThatHasANumber)
{
    opener.editBookmarks(chrome, u"chrome/Profile 1/5"_s);
    EXPECT_EQ(workspace.requests.last(), QStringList({u"page"_s, u"com.google.Chrome"_s, u"Profile 1"_s,
                                                      u"chrome://bookmarks/?id=5"_s}));
    opener.editBookmarks(chrome, u"chrome/Profile 1/5//"_s);
    EXPECT_EQ(workspace.requests.last().last(), u"chrome://bookmarks/?id=5");
    opener.editBookmarks(chrome, u"5"_s);
    EXPECT_EQ(workspace.requests.last().last(), u"chrome://bookmarks/?id=5");
}

TEST_F(OpenerTest, TheBookmarkManagerOpensWithoutAFolderOtherwise)
{
    for (const std::optional<QString> &folderID :
         {std::optional<QString>(), std::optional(QString()), std::optional(u"///"_s),
          std::optional(u"abc"_s), std::optional(u"edge/Default/abc"_s), std::optional(u"edge/Default/5a"_s),
          std::optional(u"edge/Default/-5"_s), std::optional(u"edge/Default/5&x=\""_s)}) {
        opener.editBookmarks(edge, folderID);
        EXPECT_EQ(workspace.requests.last(),
                  QStringList({u"page"_s, u"com.microsoft.edgemac"_s, u"Default"_s, u"edge://favorites/"_s}))
            << folderID.value_or(u"(none)"_s).toStdString();
    }
}

TEST_F(OpenerTest, SafarisBookmarksOpenWhateverTheFolder)
{
    opener.editBookmarks(Source::safari(), u"safari/5"_s);
    opener.editBookmarks(Source::safari(), {});
    const QStringList request{u"open"_s, u"com.apple.Safari"_s, u"bookmarks://"_s};
    EXPECT_EQ(workspace.requests, QList<QStringList>({request, request}));
}

TEST_F(OpenerTest, KnowsWhichBrowsersAreInstalled)
{
    workspace.icons.insert(u"com.microsoft.edgemac"_s, Qt::blue);
    EXPECT_TRUE(opener.isInstalled(Source::Kind::Edge));
    EXPECT_FALSE(opener.isInstalled(Source::Kind::Chrome));
    EXPECT_FALSE(opener.isInstalled(Source::Kind::Safari));
}

TEST_F(OpenerTest, AnIconIsAskedForOnce)
{
    workspace.icons = {{u"com.google.Chrome"_s, Qt::red}, {u"com.apple.Safari"_s, Qt::green}};
    const std::optional<QImage> icon = opener.icon(Source::Kind::Chrome, 1);
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->size(), QSize(16, 16));
    EXPECT_EQ(icon->pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(opener.icon(Source::Kind::Chrome, 1), icon);
    EXPECT_EQ(workspace.iconRequests, 1);
    EXPECT_EQ(opener.icon(Source::Kind::Safari, 1).value_or(QImage()).pixelColor(0, 0), QColor(Qt::green));
}

TEST_F(OpenerTest, AnIconIsKeptForEachPixelRatio)
{
    workspace.icons = {{u"com.google.Chrome"_s, Qt::red}};
    EXPECT_EQ(opener.icon(Source::Kind::Chrome, 1).value_or(QImage()).width(), 16);
    const QImage sharp = opener.icon(Source::Kind::Chrome, 2).value_or(QImage());
    EXPECT_EQ(sharp.width(), 32);
    EXPECT_EQ(sharp.deviceIndependentSize(), QSizeF(16, 16));
    EXPECT_EQ(opener.icon(Source::Kind::Chrome, 2).value_or(QImage()), sharp);
    EXPECT_EQ(workspace.iconRequests, 2);
}

TEST_F(OpenerTest, ABrowserThatIsInstalledLaterIsFound)
{
    EXPECT_EQ(opener.icon(Source::Kind::Edge, 1), std::nullopt);
    workspace.icons = {{u"com.microsoft.edgemac"_s, Qt::blue}};
    EXPECT_NE(opener.icon(Source::Kind::Edge, 1), std::nullopt);
}

} // namespace
} // namespace roamlet::testing
