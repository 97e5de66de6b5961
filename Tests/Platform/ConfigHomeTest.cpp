// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/ConfigHome.h"

#include "Platform/Variable.h"
#include "Support/Stranger.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

TEST(ConfigHomeTest, aUserWhomNobodyKnowsHasTheHomeOfTheVariableOrNone)
{
    const uid_t stranger = strangerToTheUserDatabase();
    {
        const Variable home("HOME", QByteArray("/srv/stranger/"));
        EXPECT_EQ(homeFolder(stranger), u"/srv/stranger"_s);
    }
    for (const std::optional<QByteArray> &value :
         {std::optional<QByteArray>(), std::optional(QByteArray(""))}) {
        const Variable home("HOME", value);
        EXPECT_EQ(homeFolder(stranger), QString());
    }
}

} // namespace roamlet::testing
