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
    void letDesktopSay(bool answer)
    {
        questions = 0;
        setMotionSetting([this, answer] {
            ++questions;
            return answer;
        });
    }
    void TearDown() override { setMotionSetting({}); }

    int questions = 0;
    QWidget widget;
};

TEST_F(MotionTest, thingsMoveUnlessTheDesktopSaysNo)
{
    EXPECT_EQ(motionTime(widget, 120), 120) << "nobody to ask";
    letDesktopSay(true);
    EXPECT_EQ(motionTime(widget, 120), 120);
    letDesktopSay(false);
    EXPECT_FALSE(isMotionWanted(widget));
    EXPECT_EQ(motionTime(widget, 120), 0);
}

TEST_F(MotionTest, theDesktopIsAskedOnceAndOnlyWhenSomethingWouldMove)
{
    letDesktopSay(true);
    StillStyle still;
    widget.setStyle(&still);
    EXPECT_FALSE(isMotionWanted(widget));
    EXPECT_EQ(questions, 0);
    widget.setStyle(nullptr);
    EXPECT_TRUE(isMotionWanted(widget));
    EXPECT_TRUE(isMotionWanted(widget));
    EXPECT_EQ(questions, 1);
}

} // namespace roamlet::testing
