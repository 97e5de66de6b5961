// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/BusyBar.h"

#include "App/Look/Motion.h"
#include "App/Look/StillStyle.h"
#include "Support/Waiting.h"

#include <QImage>

#include <gtest/gtest.h>

namespace roamlet::testing
{

class BusyBarTest : public ::testing::Test
{
protected:
    BusyBarTest() { bar.resize(200, BusyBar::thickness); }
    void TearDown() override { setMotionAllowed(true); }

    /// Something stands out of the line.
    bool isRunning()
    {
        const QImage image = bar.grab().toImage();
        for (int x = 1; x < image.width(); ++x) {
            if (image.pixel(x, 0) != image.pixel(0, 0))
                return true;
        }
        return false;
    }

    BusyBar bar;
};

TEST_F(BusyBarTest, somethingRunsAlongItWhileItIsShown)
{
    bar.show();
    EXPECT_TRUE(waitUntil([this] { return isRunning(); }));
}

TEST_F(BusyBarTest, itIsAStillLineWhereNothingMoves)
{
    StillStyle still;
    bar.setStyle(&still);
    const QImage before = bar.grab().toImage();
    bar.show();
    EXPECT_FALSE(isRunning());
    EXPECT_EQ(bar.grab().toImage(), before);
    bar.setStyle(nullptr);
}

TEST_F(BusyBarTest, aWishForStillnessThatComesLateStopsIt)
{
    const QImage still = bar.grab().toImage();
    bar.show();
    ASSERT_TRUE(waitUntil([this] { return isRunning(); }));
    setMotionAllowed(false);
    EXPECT_TRUE(waitUntil([&] { return bar.grab().toImage() == still; }));
}

} // namespace roamlet::testing
