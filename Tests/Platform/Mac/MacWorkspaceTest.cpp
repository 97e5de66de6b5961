// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Mac/MacWorkspace.h"

#include "Model/Browser.h"
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
    bool open(const QStringList &urls, Source::Kind browser) override
    {
        requests.append(QStringList{u"open"_s, Source::rawValue(browser)} + urls);
        return true;
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
QList<QStringList> pageRequests(const QStringList &application, Source::Kind browser, const QString &profile,
                                const QString &page)
{
    return {QStringList{u"/usr/bin/open"_s, u"-n"_s} + application +
                QStringList{u"--args"_s, u"--profile-directory=" % profile, u"about:blank"_s},
            {u"/usr/bin/osascript"_s, u"-e"_s, OpenCommands::pageScript(Browser::of(browser), page)}};
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

TEST_F(MacWorkspaceTest, aBrowserWithoutAnIdentifierIsOpenedAsAnApplication)
{
    workspace.openInProfile({u"http://one/"_s, u"http://two/"_s},
                            profileOf(browserKind(u"firefox"), u"abc.default"_s));
    workspace.openInProfile({u"http://one/"_s}, profileOf(browserKind(u"vivaldi"), {}));
    workspace.openInProfile({u"http://one/"_s}, profileOf(browserKind(u"vivaldi"), u"Profile 1"_s));
    EXPECT_EQ(
        workspace.requests,
        QList<QStringList>({{u"/usr/bin/open"_s, u"-a"_s, u"Firefox"_s, u"http://one/"_s, u"http://two/"_s},
                            {u"/usr/bin/open"_s, u"-a"_s, u"Vivaldi"_s, u"http://one/"_s},
                            {u"/usr/bin/open"_s, u"-n"_s, u"-a"_s, u"Vivaldi"_s, u"--args"_s,
                             u"--profile-directory=Profile 1"_s, u"http://one/"_s}}));
}

TEST_F(MacWorkspaceTest, everyBrowserIsOpenedByWhatItIsCalledThere)
{
    for (const QStringList &called : {QStringList{u"chromium"_s, u"-a"_s, u"Chromium"_s},
                                      {u"brave"_s, u"-b"_s, u"com.brave.Browser"_s},
                                      {u"vivaldi"_s, u"-a"_s, u"Vivaldi"_s},
                                      {u"opera"_s, u"-a"_s, u"Opera"_s},
                                      {u"chrome"_s, u"-b"_s, u"com.google.Chrome"_s},
                                      {u"edge"_s, u"-b"_s, u"com.microsoft.edgemac"_s}}) {
        workspace.requests.clear();
        workspace.openInProfile({}, profileOf(browserKind(called.first()), u"Default"_s));
        ASSERT_EQ(workspace.requests.size(), 1);
        EXPECT_EQ(workspace.requests.first().sliced(2, 2), called.sliced(1)) << called.first().toStdString();
    }
    for (const QStringList &called : {QStringList{u"firefox"_s, u"Firefox"_s},
                                      {u"librewolf"_s, u"LibreWolf"_s},
                                      {u"waterfox"_s, u"Waterfox"_s},
                                      {u"floorp"_s, u"Floorp"_s},
                                      {u"zen"_s, u"Zen"_s}}) {
        workspace.requests.clear();
        workspace.openInProfile({u"http://one/"_s}, profileOf(browserKind(called.first()), u"a.default"_s));
        EXPECT_EQ(workspace.requests,
                  QList<QStringList>({{u"/usr/bin/open"_s, u"-a"_s, called.last(), u"http://one/"_s}}));
    }
}

TEST_F(MacWorkspaceTest, firefoxsPagesRunNoScript)
{
    const Source firefox = profileOf(browserKind(u"firefox"), u"abc.default"_s);
    workspace.showPage(u"about:firefoxview#history"_s, firefox);
    workspace.showPage(u"chrome://browser/content/places/places.xhtml"_s, firefox);
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"/usr/bin/open"_s, u"-n"_s, u"-a"_s, u"Firefox"_s, u"--args"_s,
                                   u"about:firefoxview#history"_s},
                                  {u"/usr/bin/open"_s, u"-n"_s, u"-a"_s, u"Firefox"_s, u"--args"_s,
                                   u"--chrome"_s, u"chrome://browser/content/places/places.xhtml"_s}}));
}

TEST_F(MacWorkspaceTest, operasProfilesBesideTheFirstHaveAnOptionOfTheirOwn)
{
    workspace.openInProfile({u"http://one/"_s},
                            profileOf(browserKind(u"opera"), u"_side_profiles/Work/Default"_s));
    workspace.openInProfile({u"http://one/"_s}, profileOf(browserKind(u"opera"), u""_s));
    EXPECT_EQ(workspace.requests,
              QList<QStringList>(
                  {{u"/usr/bin/open"_s, u"-n"_s, u"-a"_s, u"Opera"_s, u"--args"_s,
                    u"--side-profile-name=Work"_s, u"--with-feature:side-profiles"_s, u"http://one/"_s},
                   {u"/usr/bin/open"_s, u"-n"_s, u"-a"_s, u"Opera"_s, u"--args"_s, u"http://one/"_s}}));
}

TEST_F(MacWorkspaceTest, aPageIsABlankTabAndTheScript)
{
    workspace.showPage(u"chrome://history/"_s, profileOf(Source::Kind::Chrome, u"Profile 1"_s));
    EXPECT_EQ(workspace.requests, pageRequests({u"-b"_s, u"com.google.Chrome"_s}, Source::Kind::Chrome,
                                               u"Profile 1"_s, u"chrome://history/"_s));
    workspace.requests.clear();
    workspace.showPage(u"edge://favorites/?id=12"_s, profileOf(Source::Kind::Edge, u"Default"_s));
    EXPECT_EQ(workspace.requests, pageRequests({u"-b"_s, u"com.microsoft.edgemac"_s}, Source::Kind::Edge,
                                               u"Default"_s, u"edge://favorites/?id=12"_s));
    workspace.requests.clear();
    workspace.showPage(u"vivaldi://history/"_s, profileOf(browserKind(u"vivaldi"), u"Default"_s));
    EXPECT_EQ(workspace.requests, pageRequests({u"-a"_s, u"Vivaldi"_s}, browserKind(u"vivaldi"), u"Default"_s,
                                               u"vivaldi://history/"_s));
}

TEST_F(MacWorkspaceTest, aPageWithoutAProfileOpensItsBlankTabAsAnApplication)
{
    workspace.showPage(u"chrome://history/"_s, profileOf(Source::Kind::Chrome, {}));
    ASSERT_EQ(workspace.requests.size(), 2);
    EXPECT_EQ(workspace.requests.at(0), QStringList({u"open"_s, u"chrome"_s, u"about:blank"_s}));
    EXPECT_EQ(workspace.requests.at(1).at(0), u"/usr/bin/osascript");
}

} // namespace roamlet::testing
