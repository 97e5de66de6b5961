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

TEST(BundleInformation, hasANameAndAVersionToCompareWith)
{
    const BundleInformation here = BundleInformation::ofThisProgram();
    EXPECT_EQ(here.name, u"Roamlet"_s);
    EXPECT_TRUE(Versions::isVersion(here.version)) << qPrintable(here.version);
}

TEST(BundleInformation, namesNoFeedWhereNobodyReleasedTheBuild)
{
    const BundleInformation here = BundleInformation::ofThisProgram();
    EXPECT_EQ(here.feedURL.isEmpty(), here.publicKey.isEmpty()) << "one is of no use without the other";
}

} // namespace
} // namespace roamlet::testing
