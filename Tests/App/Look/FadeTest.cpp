// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Look/Fade.h"

#include "App/Look/StillStyle.h"
#include "Support/Waiting.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace roamlet::testing
{

/// Counts how often it is drawn.
class DrawnWidget final : public QWidget
{
public:
    int count = 0;

protected:
    void paintEvent(QPaintEvent * /*event*/) override { ++count; }
};

TEST(FadeTest, goesFromWhereItWasToWhereItIsAndStaysThere)
{
    DrawnWidget widget;
    Fade fade(widget, 50);
    EXPECT_EQ(fade.share(), 1) << "nothing has begun";
    widget.show();
    ASSERT_TRUE(waitUntil([&widget] { return widget.count > 0; }));
    const int before = widget.count;
    fade.begin();
    EXPECT_EQ(fade.share(), 0);
    EXPECT_TRUE(waitUntil([&fade] { return !fade.isRunning(); }));
    EXPECT_EQ(fade.share(), 1);
    EXPECT_TRUE(waitUntil([&] { return widget.count > before; }));
    fade.begin();
    EXPECT_LT(fade.share(), 0.5) << "once more from the beginning";
}

TEST(FadeTest, isThereAtOnceWhereNothingMoves)
{
    StillStyle still;
    QWidget widget;
    widget.setStyle(&still);
    Fade fade(widget, 50);
    fade.begin();
    EXPECT_FALSE(fade.isRunning());
    EXPECT_EQ(fade.share(), 1);
}

} // namespace roamlet::testing
