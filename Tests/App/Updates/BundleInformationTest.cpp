// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Updates/BundleInformation.h"

#include "Platform/Linux/Updates/Versions.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

QByteArray propertyList(const QByteArray &entries)
{
    return "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>" + entries + "</dict></plist>";
}

TEST(BundleInformationTest, TheTextsOfAReleaseAreRead)
{
    EXPECT_EQ(BundleInformation::parse(
                  propertyList("<key>CFBundleName</key><string>Roamlet</string>"
                               "<key>CFBundleVersion</key><string>1.2.3</string>"
                               "<key>SUFeedURL</key><string>https://example.org/feed.xml?a=1&amp;b=2</string>"
                               "<key>SUPublicEDKey</key><string>a2V5</string>")),
              (BundleInformation{.name = u"Roamlet"_s,
                                 .version = u"1.2.3"_s,
                                 .feedURL = u"https://example.org/feed.xml?a=1&b=2"_s,
                                 .publicKey = u"a2V5"_s}));
}

TEST(BundleInformationTest, WhatIsNoTextIsEmpty)
{
    for (const QByteArray entry :
         {"", "<key>SUFeedURL</key><string></string>", "<key>SUFeedURL</key><integer>1</integer>",
          "<key>SUFeedURL</key><true/>", "<key>SUFeedURL</key><array><string>x</string></array>"})
        EXPECT_EQ(BundleInformation::parse(propertyList(entry)), BundleInformation()) << entry.constData();
}

TEST(BundleInformationTest, WhatIsNoPropertyListSaysNothing)
{
    for (const QByteArray &bytes : {QByteArray(), QByteArray("nonsense"), propertyList("<key>").chopped(20)})
        EXPECT_EQ(BundleInformation::parse(bytes), BundleInformation()) << bytes.constData();
}

TEST(BundleInformationTest, ThisProgramHasANameAndAVersionToCompareWith)
{
    const BundleInformation here = BundleInformation::ofThisProgram();
    EXPECT_EQ(here.name, u"Roamlet"_s);
    EXPECT_TRUE(Versions::isVersion(here.version)) << qPrintable(here.version);
}

} // namespace
} // namespace roamlet::testing
