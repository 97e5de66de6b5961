// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Updates/Session/Feed.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class UpdateChoiceTest : public ::testing::Test
{
protected:
    static FeedItem item(const QString &version, const QList<FeedItem::Package> &packages = {deb()})
    {
        FeedItem result;
        result.version = version;
        result.displayVersion = version;
        result.packages = packages;
        return result;
    }
    static FeedItem::Package package(const QString &name, const QString &system = {})
    {
        return {.address = QUrl(u"https://example.org/"_s % name),
                .length = 10,
                .signature = {},
                .system = system};
    }
    static FeedItem::Package deb() { return package(u"roamlet.deb"_s); }

    QString best(const QList<FeedItem> &items) const
    {
        const auto choice = UpdateChoice::best(items, host);
        return choice ? choice->item.version : QString();
    }

    UpdateHost host{.version = u"1.0"_s, .systemVersion = u"6.1.0-18-amd64"_s, .architecture = u"x86_64"_s};
};

TEST_F(UpdateChoiceTest, theNewestReleaseIsTakenWhereverItStands)
{
    EXPECT_EQ(best({item(u"1.1"_s), item(u"1.10"_s), item(u"1.9"_s)}), u"1.10"_s);
}

TEST_F(UpdateChoiceTest, nothingIsOfferedThatIsNotNewer)
{
    EXPECT_EQ(best({}), QString());
    EXPECT_EQ(best({item(u"1.0"_s), item(u"1.0.0"_s), item(u"0.9"_s), item(u"1.0b7"_s)}), QString());
}

TEST_F(UpdateChoiceTest, releasesOnChannelsAreLeftOut)
{
    FeedItem beta = item(u"3.0"_s);
    beta.channel = u"beta"_s;
    EXPECT_EQ(best({beta, item(u"2.0"_s)}), u"2.0"_s);
}

TEST_F(UpdateChoiceTest, aSystemThatIsTooOldOrTooNewIsLeftAlone)
{
    FeedItem tooNew = item(u"3.0"_s);
    tooNew.minimumSystemVersion = u"6.2"_s;
    FeedItem tooOld = item(u"4.0"_s);
    tooOld.maximumSystemVersion = u"6.0.9"_s;
    FeedItem right = item(u"2.0"_s);
    right.minimumSystemVersion = u"6.1"_s;
    right.maximumSystemVersion = u"6.1"_s;
    EXPECT_EQ(best({tooNew, tooOld, right}), u"2.0"_s);
}

TEST_F(UpdateChoiceTest, onlyPackagesForThisSystemFit)
{
    EXPECT_EQ(best({item(u"2.0"_s, {package(u"roamlet.dmg"_s)})}), QString());
    EXPECT_EQ(best({item(u"2.0"_s, {package(u"roamlet.deb"_s, u"macos"_s)})}), QString());
    EXPECT_EQ(best({item(u"2.0"_s, {package(u"roamlet.deb"_s, u"linux-arm64"_s)})}), QString());
    EXPECT_EQ(best({item(u"2.0"_s, {package(u"roamlet.deb"_s, u"linux"_s)})}), u"2.0"_s);
    EXPECT_EQ(best({item(u"2.0"_s, {package(u"roamlet.DEB"_s, u"linux-x64"_s)})}), u"2.0"_s);
    EXPECT_EQ(best({item(u"2.0"_s, {package(u"roamlet.deb"_s, u"linux-amd64"_s)})}), u"2.0"_s);
    host.architecture = u"arm64"_s;
    EXPECT_EQ(best({item(u"2.0"_s, {package(u"roamlet.deb"_s, u"linux-aarch64"_s)})}), u"2.0"_s);
}

TEST_F(UpdateChoiceTest, aReleaseWithoutAPackageThatFitsDoesNotHideAnOlderOne)
{
    EXPECT_EQ(best({item(u"2.0"_s), item(u"3.0"_s, {package(u"roamlet.dmg"_s)}), item(u"4.0"_s, {})}),
              u"2.0"_s);
}

TEST_F(UpdateChoiceTest, onlyDebianPackagesFit)
{
    const QList<FeedItem> items{item(u"2.0"_s, {package(u"Roamlet.AppImage"_s), deb()})};
    EXPECT_EQ(UpdateChoice::best(items, host)->package.address.fileName(), u"roamlet.deb"_s);
}

TEST_F(UpdateChoiceTest, anAddressThatIsNoneFitsNobody)
{
    EXPECT_EQ(best({item(u"2.0"_s, {FeedItem::Package()})}), QString());
}

TEST_F(UpdateChoiceTest, aReleaseIsCriticalForThoseWhoAreOldEnough)
{
    const auto isCritical = [this](const std::optional<QString> &before) {
        FeedItem release = item(u"2.0"_s);
        release.criticalBefore = before;
        return UpdateChoice::best({release}, host)->isCritical;
    };
    EXPECT_FALSE(isCritical({}));
    EXPECT_TRUE(isCritical(QString()));
    EXPECT_TRUE(isCritical(u"1.1"_s));
    EXPECT_FALSE(isCritical(u"1.0"_s));
    EXPECT_TRUE(isCritical(QString(u"0" % u".1"_s.repeated(1'000)))) << "that is no version";
}

TEST_F(UpdateChoiceTest, aLimitThatIsNoVersionFitsNobody)
{
    for (const QString &limit : {u"old"_s, u"9"_s.repeated(1'000), QString(u"1" % u".1"_s.repeated(1'000))}) {
        FeedItem release = item(u"2.0"_s);
        release.minimumSystemVersion = limit;
        EXPECT_EQ(best({release}), QString()) << qPrintable(limit);
        release.minimumSystemVersion.clear();
        release.maximumSystemVersion = limit;
        EXPECT_EQ(best({release}), QString()) << qPrintable(limit);
    }
}

TEST_F(UpdateChoiceTest, whatIsToldAboutItComesFromTheFeed)
{
    FeedItem release = item(u"205"_s);
    release.displayVersion = u"2.0.5"_s;
    release.notes = ReleaseNotes{ReleaseNotes::Format::Plain, u"New"_s};
    release.criticalBefore = QString();
    EXPECT_EQ(UpdateChoice::best({release}, host)->update(), (Update{.version = u"205"_s,
                                                                     .displayVersion = u"2.0.5"_s,
                                                                     .notes = release.notes,
                                                                     .size = 10,
                                                                     .isCritical = true}));
}

} // namespace
} // namespace roamlet::testing
