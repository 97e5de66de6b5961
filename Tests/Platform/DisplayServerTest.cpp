// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/DisplayServer.h"

#include <QByteArray>

#include <gtest/gtest.h>

namespace roamlet::testing
{

TEST(DisplayServerTest, withoutAServerNobodyAnswers)
{
    EXPECT_FALSE(displayServerAnswers({}));
    EXPECT_FALSE(displayServerAnswers("no display at all"));
    EXPECT_FALSE(displayServerAnswers(":3999")) << "no server has this number";
}

} // namespace roamlet::testing
