// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/PanelTray.h"

#include "Support/FakeClock.h"
#include "Support/SessionBus.h"

#include <QDBusConnection>
#include <QObject>

#include <gtest/gtest.h>

#include <memory>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

class PanelTrayTest : public ::testing::Test
{
protected:
    void await()
    {
        PanelTray::await(clock, context.get(), [this] { return isThere; }, [this] { ++calls; });
    }

    FakeClock clock;
    std::unique_ptr<QObject> context = std::make_unique<QObject>();
    bool isThere = false;
    int calls = 0;
};

TEST_F(PanelTrayTest, whereThereIsATrayNobodyWaits)
{
    isThere = true;
    await();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(clock.waiting(), 0);
}

TEST_F(PanelTrayTest, aTrayThatComesLateIsWaitedFor)
{
    await();
    clock.advance(std::chrono::seconds(5));
    EXPECT_EQ(calls, 0);
    isThere = true;
    clock.advance(std::chrono::seconds(1));
    EXPECT_EQ(calls, 1);
    clock.advance(std::chrono::seconds(30));
    EXPECT_EQ(calls, 1);
}

TEST_F(PanelTrayTest, nobodyWaitsForever)
{
    await();
    clock.advance(std::chrono::seconds(14));
    EXPECT_EQ(calls, 0);
    clock.advance(std::chrono::seconds(1));
    EXPECT_EQ(calls, 1);
}

TEST_F(PanelTrayTest, whoeverHasGoneIsNotCalled)
{
    await();
    context.reset();
    clock.advance(std::chrono::seconds(30));
    EXPECT_EQ(calls, 0);
}

TEST_F(PanelTrayTest, aTrayThatIsToldByDBusIsThereAsLongAsItHasItsName)
{
    if (!SessionBus::isAvailable())
        GTEST_SKIP() << "dbus-daemon is not installed";
    SessionBus bus;
    ASSERT_TRUE(bus.start());
    const QString name = u"panel"_s;
    {
        QDBusConnection panel = QDBusConnection::connectToBus(bus.address(), name);
        EXPECT_FALSE(PanelTray::isThere(panel));
        panel.registerService(u"org.kde.StatusNotifierWatcher"_s);
        EXPECT_TRUE(PanelTray::isThere(panel));
        panel.unregisterService(u"org.kde.StatusNotifierWatcher"_s);
        EXPECT_FALSE(PanelTray::isThere(panel));
    }
    QDBusConnection::disconnectFromBus(name);
    EXPECT_FALSE(PanelTray::isThere(QDBusConnection(u"nobody"_s)));
}

} // namespace roamlet::testing
