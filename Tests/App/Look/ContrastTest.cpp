// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Contrast.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

TEST(ContrastTest, isThatOfTheGuidelines)
{
    EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(contrastRatio(Qt::white, Qt::black), 21, 0.001);
    EXPECT_NEAR(contrastRatio(QColor(0x777777), Qt::white), 4.48, 0.005);
    EXPECT_NEAR(contrastRatio(QColor(0x777777), QColor(0x777777)), 1, 0.001);
    EXPECT_NEAR(lowestContrast(QColor(0x777777), {Qt::black, Qt::white}), 4.48, 0.005);
}

TEST(ContrastTest, aMixtureHasAShareOfEach)
{
    EXPECT_EQ(mixedColor(Qt::black, Qt::white, 0.2), QColor(51, 51, 51));
    EXPECT_EQ(mixedColor(QColor(10, 20, 30), QColor(30, 20, 10), 0.5), QColor(20, 20, 20));
    EXPECT_EQ(mixedColor(Qt::white, Qt::red, 1), QColor(Qt::red));
}

TEST(ContrastTest, aMixtureTakesNoMoreInkThanItNeeds)
{
    const auto color = readableMix(Qt::white, Qt::black, 0.3, {Qt::white}, 4.5);
    ASSERT_TRUE(color);
    EXPECT_GE(contrastRatio(*color, Qt::white), 4.5);
    EXPECT_LT(contrastRatio(*color, Qt::white), 5);
    EXPECT_EQ(readableMix(Qt::white, Qt::black, 0.9, {Qt::white}, 4.5),
              mixedColor(Qt::white, Qt::black, 0.9));
    EXPECT_FALSE(readableMix(Qt::white, QColor(0xcccccc), 0.3, {Qt::white}, 4.5));
}

TEST(ContrastTest, aShadeKeepsItsHueAndMovesAwayFromTheGround)
{
    const QColor blue(0x3daee9);
    const auto onWhite = readableShade(blue, {Qt::white}, 4.5);
    ASSERT_TRUE(onWhite);
    EXPECT_LT(onWhite->lightness(), blue.lightness());
    EXPECT_NEAR(onWhite->hslHue(), blue.hslHue(), 2);
    EXPECT_GE(contrastRatio(*onWhite, Qt::white), 4.5);
    EXPECT_LT(contrastRatio(*onWhite, Qt::white), 4.7);
    EXPECT_EQ(readableShade(blue, {Qt::black}, 4.5), blue) << "it is light enough";
    const auto onBlack = readableShade(QColor(0x000080), {Qt::black}, 4.5);
    ASSERT_TRUE(onBlack);
    EXPECT_GE(contrastRatio(*onBlack, Qt::black), 4.5);
}

TEST(ContrastTest, betweenALightAndADarkGroundAShadeMayGoEitherWay)
{
    for (const QColor &color : {QColor(0xe0e8ff), QColor(0x000840)}) {
        const auto found = readableShade(color, {Qt::white, Qt::black}, 4.5);
        ASSERT_TRUE(found);
        EXPECT_GE(lowestContrast(*found, {Qt::white, Qt::black}), 4.5);
    }
    EXPECT_FALSE(readableShade(Qt::red, {Qt::white, Qt::black}, 5)) << "no colour is that far from both";
}

} // namespace
} // namespace roamlet::testing
