// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/Programs/XdoBrowserWindows.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

TEST(XdoBrowserWindowsTest, withoutADisplayThereIsNothingToSteer)
{
    for (const QByteArray &display : {QByteArray(), QByteArray(":nonsense")}) {
        XdoBrowserWindows windows(display);
        EXPECT_FALSE(windows.canSteer()) << display.toStdString();
        // Whoever asks all the same gets no answer, and nothing breaks.
        EXPECT_EQ(windows.front({u"chromium"_s}), std::nullopt);
        EXPECT_FALSE(windows.isModifierHeld());
        windows.activate(1);
        windows.press(1, u"Return"_s);
        windows.type(1, u"text"_s);
    }
}

} // namespace
} // namespace roamlet::testing
