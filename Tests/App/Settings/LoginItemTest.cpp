// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Settings/LoginItem.h"

#include "Support/FakeLoginService.h"
#include "Support/MemoryUserDefaults.h"

#include <gtest/gtest.h>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;

class LoginItemTest : public ::testing::Test
{
protected:
    FakeLoginService service;
    MemoryUserDefaults defaults;
};

TEST_F(LoginItemTest, theSwitchRegistersAndUnregisters)
{
    EXPECT_EQ(LoginItem::set(true, service), std::nullopt);
    EXPECT_EQ(service.status(), LoginService::Status::Enabled);
    EXPECT_EQ(LoginItem::set(false, service), std::nullopt);
    EXPECT_EQ(service.status(), LoginService::Status::NotRegistered);
}

TEST_F(LoginItemTest, aFailureIsTheServicesOwnWords)
{
    service.error = u"Permission denied"_s;
    EXPECT_EQ(LoginItem::set(true, service), u"Permission denied"_s);
    EXPECT_EQ(LoginItem::set(false, service), u"Permission denied"_s);
    EXPECT_EQ(service.status(), LoginService::Status::NotRegistered);
}

TEST_F(LoginItemTest, theFirstLaunchOfAnInstalledCopyRegistersOnce)
{
    LoginItem::setUpOnFirstLaunch(service, defaults);
    EXPECT_EQ(service.status(), LoginService::Status::Enabled);
    EXPECT_EQ(defaults.boolean(u"loginItemSetUp"_s), true);

    LoginItem::set(false, service);
    LoginItem::setUpOnFirstLaunch(service, defaults);
    EXPECT_EQ(service.status(), LoginService::Status::NotRegistered);
    EXPECT_EQ(service.registrations, 1);
}

TEST_F(LoginItemTest, aCopyThatWasNotInstalledIsNeverRegistered)
{
    service.isInstalled = false;
    LoginItem::setUpOnFirstLaunch(service, defaults);
    EXPECT_EQ(service.registrations, 0);
    EXPECT_FALSE(defaults.contains(u"loginItemSetUp"_s));
}

TEST_F(LoginItemTest, aFailureOnTheFirstLaunchIsNotTriedAgain)
{
    service.error = u"Permission denied"_s;
    LoginItem::setUpOnFirstLaunch(service, defaults);
    EXPECT_EQ(defaults.boolean(u"loginItemSetUp"_s), true);
    service.error = {};
    LoginItem::setUpOnFirstLaunch(service, defaults);
    EXPECT_EQ(service.registrations, 1);
}

} // namespace
} // namespace roamlet::testing
