// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/DesktopPortal.h"

#include "Platform/FakePortal.h"
#include "Support/SessionBus.h"
#include "Support/Waiting.h"

#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <optional>
#include <thread>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

DesktopSettings settingsOn(const QString &address)
{
    const QString name = u"portal's guest"_s;
    const DesktopSettings settings = DesktopPortal::settings(QDBusConnection::connectToBus(address, name));
    QDBusConnection::disconnectFromBus(name);
    return settings;
}

} // namespace

/// A session bus of the test's own.
class DesktopPortalTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!SessionBus::isAvailable())
            GTEST_SKIP() << "dbus-daemon is not installed";
        ASSERT_TRUE(bus.start());
        portal.emplace(bus.address());
    }

    /// Asked on a thread of its own, as in the program, while this one is the portal.
    DesktopSettings settings() const
    {
        std::atomic<bool> isDone = false;
        DesktopSettings answer;
        const std::jthread guest([&] {
            answer = settingsOn(bus.address());
            isDone = true;
        });
        EXPECT_TRUE(waitUntil([&isDone] { return isDone.load(); }));
        return answer;
    }

    /// With these settings of all desktops.
    DesktopSettings settings(const QVariantMap &appearance)
    {
        portal->settings = {{u"org.freedesktop.appearance"_s, appearance},
                            {u"org.example"_s, {{u"contrast"_s, 1U}, {u"reduced-motion"_s, 1U}}}};
        return settings();
    }

    const DesktopSettings usual;
    SessionBus bus;
    std::optional<FakePortal> portal;
};

TEST_F(DesktopPortalTest, contrastAndMotionAreAsTheUserHasChosen)
{
    EXPECT_EQ(settings({{u"contrast"_s, 1U}, {u"reduced-motion"_s, 0U}}),
              (DesktopSettings{.allowsMotion = true, .wantsMoreContrast = true}));
    EXPECT_EQ(settings({{u"contrast"_s, 0U}, {u"reduced-motion"_s, 1U}}),
              (DesktopSettings{.allowsMotion = false, .wantsMoreContrast = false}));
    EXPECT_EQ(portal->questions, QStringList(2, u"org.freedesktop.portal.Settings.ReadAll"_s));
}

TEST_F(DesktopPortalTest, whatOneDesktopSaysInItsOwnWordsCountsAsMuch)
{
    portal->settings = {{u"org.gnome.desktop.interface"_s, {{u"enable-animations"_s, false}}}};
    EXPECT_EQ(settings(), (DesktopSettings{.allowsMotion = false}));
    portal->settings = {{u"org.gnome.desktop.interface"_s, {{u"enable-animations"_s, true}}},
                        {u"org.gnome.desktop.a11y.interface"_s, {{u"high-contrast"_s, true}}},
                        {u"org.freedesktop.appearance"_s, {{u"contrast"_s, 0U}}}};
    EXPECT_EQ(settings(), (DesktopSettings{.wantsMoreContrast = true}));
}

TEST_F(DesktopPortalTest, whatItDoesNotKnowIsAsUsual)
{
    EXPECT_EQ(settings({{u"color-scheme"_s, 1U}}), usual);
    EXPECT_EQ(settings({{u"contrast"_s, 7U}, {u"reduced-motion"_s, u"yes"_s}}), usual);
    portal->settings.clear();
    EXPECT_EQ(settings(), usual);
}

TEST_F(DesktopPortalTest, answersOfAnotherKindAreNone)
{
    portal->strange = u"contrast"_s;
    EXPECT_EQ(settings(), usual);
    portal->strange = QVariantMap{{u"contrast"_s, 1U}};
    EXPECT_EQ(settings(), usual);
}

TEST_F(DesktopPortalTest, oneThatDoesNotAnswerHoldsNobodyUpForLong)
{
    portal->isSilent = true;
    EXPECT_EQ(settings(), usual);
    EXPECT_EQ(portal->questions.size(), 1);
}

TEST_F(DesktopPortalTest, whereThereIsNoneAllIsAsUsual)
{
    portal.reset();
    EXPECT_EQ(settings(), usual);
    EXPECT_EQ(settingsOn(u"unix:path=/nonexistent/bus"_s), usual);
}

TEST_F(DesktopPortalTest, itsChangesAreHeardOnTheMainThread)
{
    const QString name = u"portal's listener"_s;
    const QString group = u"org.freedesktop.appearance"_s;
    const QThread *heardOn = nullptr;
    int changes = 0;
    std::optional<DesktopPortal::Listener> listener;
    // Made on a thread of its own, as in the program.
    std::thread([&] {
        listener.emplace(QDBusConnection::connectToBus(bus.address(), name), [&] {
            heardOn = QThread::currentThread();
            ++changes;
        });
        // What comes back was sent after the wish to hear.
        QDBusConnection(name).interface()->serviceOwner(u"org.freedesktop.DBus"_s).value();
    }).join();
    portal->change(group, u"contrast"_s, 1U);
    EXPECT_TRUE(waitUntil([&changes] { return changes == 1; }));
    EXPECT_EQ(heardOn, QThread::currentThread());
    portal->change(group, u"reduced-motion"_s, 1U);
    EXPECT_TRUE(waitUntil([&changes] { return changes == 2; }));

    portal->change(u"org.gnome.desktop.interface"_s, u"enable-animations"_s, false);
    EXPECT_TRUE(waitUntil([&changes] { return changes == 3; }));

    // What all of them are is no concern of ours.
    portal->change(u"org.gnome.desktop.interface"_s, u"font-name"_s, u"Sans"_s);
    portal->change(group, u"accent-color"_s, 1U);
    portal->change(u"org.example"_s, u"contrast"_s, 1U);
    portal->change(group, u"contrast"_s, 0U);
    EXPECT_TRUE(waitUntil([&changes] { return changes >= 4; }));
    EXPECT_EQ(changes, 4);

    // One that comes later is the portal, too.
    portal.reset();
    portal.emplace(bus.address());
    portal->change(group, u"contrast"_s, 1U);
    EXPECT_TRUE(waitUntil([&changes] { return changes == 5; }));
    listener.reset();
    QDBusConnection::disconnectFromBus(name);
}

TEST_F(DesktopPortalTest, withoutABusThereIsNothingToHear)
{
    const QString name = u"portal's listener"_s;
    {
        const DesktopPortal::Listener listener(
            QDBusConnection::connectToBus(u"unix:path=/nonexistent/bus"_s, name), [] {});
    }
    QDBusConnection::disconnectFromBus(name);
}

TEST(DesktopPortalThatRestsTest, isNotStarted)
{
    if (!SessionBus::isAvailable())
        GTEST_SKIP() << "dbus-daemon is not installed";
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"dbus-1/services"_s));
    const QString started = folder.filePath(u"started"_s);
    QFile service(folder.filePath(u"dbus-1/services/org.freedesktop.portal.Desktop.service"_s));
    ASSERT_TRUE(service.open(QIODevice::WriteOnly));
    service.write("[D-BUS Service]\nName=org.freedesktop.portal.Desktop\nExec=/bin/sh -c \"touch '" +
                  QFile::encodeName(started) + "'; exit 1\"\n");
    service.close();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_DATA_DIRS"_s, folder.path());
    SessionBus bus;
    ASSERT_TRUE(bus.start(environment));
    EXPECT_EQ(settingsOn(bus.address()), DesktopSettings());
    EXPECT_FALSE(QFile::exists(started));
    QDBusConnection other = QDBusConnection::connectToBus(bus.address(), u"other guest"_s);
    other.call(QDBusMessage::createMethodCall(u"org.freedesktop.portal.Desktop"_s, u"/"_s,
                                              u"org.freedesktop.DBus.Peer"_s, u"Ping"_s));
    EXPECT_TRUE(QFile::exists(started)) << "the bus would have known how to";
    QDBusConnection::disconnectFromBus(u"other guest"_s);
}

} // namespace roamlet::testing
