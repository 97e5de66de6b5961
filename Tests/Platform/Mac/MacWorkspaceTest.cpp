// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Mac/MacWorkspace.h"

#include "Platform/Mac/OpenCommands.h"
#include "Support/Sources.h"

#include <QList>

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

/// Writes down what the system was asked for.
class RecordingWorkspace final : public MacWorkspace
{
public:
    QList<Source::Kind> installedBrowsers() const override { return {}; }
    std::optional<QImage> icon(Source::Kind /*browser*/, int /*side*/, qreal /*ratio*/) const override
    {
        return {};
    }
    void open(const QStringList &urls, Source::Kind browser) override
    {
        requests.append(QStringList{u"open"_s, Source::rawValue(browser)} + urls);
    }
    void openSystemURL(const QString & /*url*/) override {}

    /// What was asked for, in order.
    QList<QStringList> requests;

private:
    void start(const QString &program, const QStringList &arguments) override
    {
        requests.append(QStringList{program} + arguments);
    }
};

/// What a request for a page asks: the blank tab, then the script.
QList<QStringList> pageRequests(const QString &bundleID, const QString &profile, const QString &page)
{
    return {{u"/usr/bin/open"_s, u"-n"_s, u"-b"_s, bundleID, u"--args"_s, u"--profile-directory=" % profile,
             u"about:blank"_s},
            {u"/usr/bin/osascript"_s, u"-e"_s, OpenCommands::pageScript(bundleID, page)}};
}

} // namespace

class MacWorkspaceTest : public ::testing::Test
{
protected:
    RecordingWorkspace workspace;
};

TEST_F(MacWorkspaceTest, aProfileIsOpenedByOneCommand)
{
    workspace.openInProfile({u"https://example.com/a b"_s}, profileOf(Source::Kind::Chrome, u"Profile 1"_s));
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"/usr/bin/open"_s, u"-n"_s, u"-b"_s, u"com.google.Chrome"_s, u"--args"_s,
                                   u"--profile-directory=Profile 1"_s, u"https://example.com/a b"_s}}));
}

TEST_F(MacWorkspaceTest, aSourceWithoutAProfileIsOpenedAsAnApplication)
{
    workspace.openInProfile({u"http://one/"_s}, profileOf(Source::Kind::Chrome, {}));
    EXPECT_EQ(workspace.requests, QList<QStringList>({{u"open"_s, u"chrome"_s, u"http://one/"_s}}));
}

TEST_F(MacWorkspaceTest, aBrowserThatTakesNoSuchCommandIsOpenedAsAnApplication)
{
    workspace.openInProfile({u"http://one/"_s}, profileOf(browserKind(u"firefox"), u"abc.default"_s));
    EXPECT_EQ(workspace.requests, QList<QStringList>({{u"open"_s, u"firefox"_s, u"http://one/"_s}}));
}

TEST_F(MacWorkspaceTest, aPageIsABlankTabAndTheScript)
{
    workspace.showPage(u"chrome://history/"_s, profileOf(Source::Kind::Chrome, u"Profile 1"_s));
    EXPECT_EQ(workspace.requests,
              pageRequests(u"com.google.Chrome"_s, u"Profile 1"_s, u"chrome://history/"_s));
    workspace.requests.clear();
    workspace.showPage(u"edge://favorites/?id=12"_s, profileOf(Source::Kind::Edge, u"Default"_s));
    EXPECT_EQ(workspace.requests,
              pageRequests(u"com.microsoft.edgemac"_s, u"Default"_s, u"edge://favorites/?id=12"_s));
}

TEST_F(MacWorkspaceTest, aPageWithoutAProfileOpensItsBlankTabAsAnApplication)
{
    workspace.showPage(u"chrome://history/"_s, profileOf(Source::Kind::Chrome, {}));
    ASSERT_EQ(workspace.requests.size(), 2);
    EXPECT_EQ(workspace.requests.at(0), QStringList({u"open"_s, u"chrome"_s, u"about:blank"_s}));
    EXPECT_EQ(workspace.requests.at(1).at(0), u"/usr/bin/osascript");
}

} // namespace roamlet::testing
