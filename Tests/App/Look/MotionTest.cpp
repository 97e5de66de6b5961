// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Motion.h"

#include "App/Look/StillStyle.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace roamlet::testing
{

class MotionTest : public ::testing::Test
{
protected:
    void TearDown() override { setMotionAllowed(true); }

    QWidget widget;
};

TEST_F(MotionTest, thingsMoveUnlessTheDesktopSaysNo)
{
    EXPECT_TRUE(isMotionWanted(widget)) << "nothing is known yet";
    EXPECT_EQ(motionTime(widget, 120), 120);
    setMotionAllowed(false);
    EXPECT_FALSE(isMotionWanted(widget));
    EXPECT_EQ(motionTime(widget, 120), 0);
    setMotionAllowed(true);
    EXPECT_EQ(motionTime(widget, 120), 120);
}

TEST_F(MotionTest, aStyleThatMovesNothingIsFollowedWhateverTheDesktopSays)
{
    StillStyle still;
    widget.setStyle(&still);
    EXPECT_FALSE(isMotionWanted(widget));
    EXPECT_EQ(motionTime(widget, 120), 0);
    widget.setStyle(nullptr);
    EXPECT_TRUE(isMotionWanted(widget));
}

} // namespace roamlet::testing
