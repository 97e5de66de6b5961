// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/DesktopSettings.h"

#include "Platform/FakePortal.h"
#include "Support/SessionBus.h"
#include "Support/Waiting.h"

#include <QString>
#include <QVariantMap>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int noBus = 2;
constexpr int tooEarly = 3;
constexpr int notHeard = 4;

/// The answer as the status of a process.
int statusOf(const DesktopSettings &settings)
{
    return 10 + (settings.allowsMotion ? 1 : 0) + (settings.wantsMoreContrast ? 2 : 0);
}

/// Asks on a thread of its own, as in the program.
DesktopSettings readElsewhere()
{
    std::atomic<bool> isDone = false;
    DesktopSettings answer;
    const std::jthread reader([&] {
        answer = DesktopSettings::read();
        isDone = true;
    });
    waitUntil([&isDone] { return isDone.load(); });
    return answer;
}

/// Follows the settings from a thread of its own, lets `change` set something, and reads when it hears of it.
DesktopSettings readAfter(const std::function<void()> &change)
{
    bool hasChanged = false;
    std::shared_ptr<void> follower;
    std::atomic<bool> follows = false;
    const std::jthread reader([&] {
        follower = DesktopSettings::follow([&hasChanged] { hasChanged = true; });
        DesktopSettings::read();
        follows = true;
    });
    waitUntil([&follows] { return follows.load(); });
    if (hasChanged)
        std::exit(tooEarly);
    change();
    if (!waitUntil([&hasChanged] { return hasChanged; }))
        std::exit(notHeard);
    follower.reset();
    return readElsewhere();
}

/// Asks on a bus whose portal has these settings of all desktops; with `later`, once the user has set that.
[[noreturn]] void exitWithAnswer(const QVariantMap &settings, const std::optional<QVariantMap> &later = {})
{
    const QString group = u"org.freedesktop.appearance"_s;
    DesktopSettings answer;
    {
        SessionBus bus;
        if (!bus.start())
            std::exit(noBus);
        FakePortal portal(bus.address());
        portal.settings = {{group, settings}};
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
        answer = !later ? readElsewhere()
                        : readAfter([&] { portal.change(group, later->firstKey(), later->first()); });
    }
    std::exit(statusOf(answer));
}

/// In a process of its own: which bus is the session's is found out once.
template<typename... Settings>
void expectAnswer(const DesktopSettings &answer, const Settings &...settings)
{
    EXPECT_EXIT(exitWithAnswer(settings...), ::testing::ExitedWithCode(statusOf(answer)), "^$");
}

} // namespace

class DesktopSettingsTest : public ::testing::Test
{
protected:
    DesktopSettingsTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
    ~DesktopSettingsTest() override { GTEST_FLAG_SET(death_test_style, m_style); }

private:
    const std::string m_style = GTEST_FLAG_GET(death_test_style);
};

TEST_F(DesktopSettingsTest, motionAndContrastAreAsThePortalOfTheSessionSays)
{
    if (!SessionBus::isAvailable())
        GTEST_SKIP() << "dbus-daemon is not installed";
    expectAnswer({.allowsMotion = false}, QVariantMap{{u"reduced-motion"_s, 1U}});
    expectAnswer({.wantsMoreContrast = true}, QVariantMap{{u"contrast"_s, 1U}});
    expectAnswer({}, QVariantMap());
}

TEST_F(DesktopSettingsTest, whatTheUserSetsLaterIsHeardOf)
{
    if (!SessionBus::isAvailable())
        GTEST_SKIP() << "dbus-daemon is not installed";
    expectAnswer({.wantsMoreContrast = true}, QVariantMap(), QVariantMap{{u"contrast"_s, 1U}});
    expectAnswer({}, QVariantMap{{u"reduced-motion"_s, 1U}}, QVariantMap{{u"reduced-motion"_s, 0U}});
}

} // namespace roamlet::testing
