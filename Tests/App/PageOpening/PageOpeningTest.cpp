// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/PageOpening/PageOpening.h"

#include "Support/FakeWorkspace.h"
#include "Support/Sources.h"

#include <gmock/gmock.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using ::testing::HasSubstr;

std::string problem(const QString &url, const Source &source, FakeWorkspace &workspace)
{
    const auto opened = PageOpening::open(url, source, workspace);
    return opened ? std::string() : opened.error().toStdString();
}

Source chrome()
{
    return profileOf(Source::Kind::Chrome, u"Default"_s);
}

} // namespace

TEST(PageOpeningTest, aPageOpensInItsBrowserAndProfile)
{
    FakeWorkspace workspace;
    EXPECT_EQ(problem(u"https://a.example/"_s, chrome(), workspace), "");
    EXPECT_EQ(workspace.requests,
              QList<QStringList>({{u"profile"_s, u"chrome"_s, u"Default"_s, u"https://a.example/"_s}}));
}

TEST(PageOpeningTest, anAddressThatTheBrowserCannotBeGivenIsNamed)
{
    FakeWorkspace workspace;
    EXPECT_THAT(problem(u"--incognito"_s, chrome(), workspace),
                HasSubstr("Chrome cannot be given this address to open: --incognito"));
    EXPECT_THAT(problem(u"javascript:alert(1)"_s, profileOf(browserKind(u"firefox"), u"a"_s), workspace),
                HasSubstr("Firefox cannot be given this address to open: javascript:alert(1)"));
    EXPECT_THAT(problem(u"no address"_s, Source::safari(), workspace), HasSubstr("Safari cannot be given"));
    EXPECT_TRUE(workspace.requests.isEmpty());
}

TEST(PageOpeningTest, aBrowserThatIsNotHereIsNamed)
{
    FakeWorkspace workspace;
    workspace.missing = Source::Kind::Chrome;
    EXPECT_THAT(
        problem(u"https://a.example/"_s, chrome(), workspace),
        HasSubstr("The browser or the profile of " + chrome().label().toStdString() + " is not here"));
}

} // namespace roamlet::testing
