// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/FakeDesktop.h"
#include "Platform/Linux/Updates/UpdateInstaller.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

TEST(PackageOpeningTest, aFileIsOpenedByTheApplicationForItsType)
{
    const FakeDesktop desktop;
    EXPECT_TRUE(
        UpdateInstaller::openFile(u"/home/anna/100% new/Roamlet.deb"_s, u"x-scheme-handler/settings"_s));
    const FakeDesktop::Start start = desktop.onlyStart();
    EXPECT_EQ(start.program, u"system-handler");
    EXPECT_EQ(start.arguments, QStringList({u"--own-option"_s, u"/home/anna/100% new/Roamlet.deb"_s}));
}

TEST(PackageOpeningTest, aFileThatNoApplicationTakesIsNotOpened)
{
    const FakeDesktop desktop;
    EXPECT_FALSE(
        UpdateInstaller::openFile(u"/home/anna/Roamlet.deb"_s, u"application/vnd.debian.binary-package"_s));
    EXPECT_TRUE(desktop.starts().isEmpty());
}

} // namespace
} // namespace roamlet::testing
