// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/DBusRunningInstance.h"

#include "Platform/Linux/Search/ApplicationCall.h"
#include "Support/SessionBus.h"
#include "Support/Waiting.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMetaObject>
#include <QScopeGuard>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace roamlet::testing
{
namespace
{

using namespace Qt::StringLiterals;
using Claim = RunningInstance::Claim;
using Wish = RunningInstance::Wish;

/// A session bus of the test's own.
class DBusRunningInstanceTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!SessionBus::isAvailable())
            GTEST_SKIP() << "dbus-daemon is not installed";
        ASSERT_TRUE(bus.start());
        address = bus.address();
    }

    void TearDown() override
    {
        for (const QString &name : std::as_const(names))
            QDBusConnection::disconnectFromBus(name);
    }

    QDBusConnection connection(const QString &name)
    {
        names.append(name);
        return QDBusConnection::connectToBus(address, name);
    }

    /// Claims from another thread, as another process would, while this one answers.
    Claim claimElsewhere(const QString &name, Wish wish = Wish::ComeForward)
    {
        names.append(name);
        std::atomic<bool> isDone = false;
        Claim claim = Claim::Alone;
        const std::jthread other([&] {
            DBusRunningInstance instance(QDBusConnection::connectToBus(address, name));
            claim = instance.claim(wish, [](const Wish & /*wish*/) {});
            isDone = true;
        });
        EXPECT_TRUE(waitUntil([&isDone] { return isDone.load(); }));
        return claim;
    }

    SessionBus bus;
    QString address;
    QStringList names;
};

TEST_F(DBusRunningInstanceTest, theFirstOneRuns)
{
    DBusRunningInstance first(connection(u"first"_s));
    EXPECT_EQ(first.claim(Wish::ComeForward, [](const Wish & /*wish*/) {}), Claim::First);
}

TEST_F(DBusRunningInstanceTest, aLaterStartActivatesTheFirstAndHandsOver)
{
    int activations = 0;
    DBusRunningInstance first(connection(u"first"_s));
    ASSERT_EQ(first.claim(Wish::ComeForward, [&activations](const Wish & /*wish*/) { ++activations; }),
              Claim::First);
    EXPECT_EQ(claimElsewhere(u"second"_s), Claim::HandedOver);
    EXPECT_EQ(activations, 1);
    EXPECT_EQ(claimElsewhere(u"third"_s), Claim::HandedOver);
    EXPECT_EQ(activations, 2);
}

TEST_F(DBusRunningInstanceTest, aStartThatNobodyWaitsForDisturbsNobody)
{
    int activations = 0;
    DBusRunningInstance first(connection(u"first"_s));
    ASSERT_EQ(first.claim(Wish::Nothing, [&activations](const Wish & /*wish*/) { ++activations; }),
              Claim::First);
    EXPECT_EQ(claimElsewhere(u"second"_s, Wish::Nothing), Claim::HandedOver);
    // What the second one might have asked for comes before this.
    EXPECT_EQ(claimElsewhere(u"third"_s, Wish::ComeForward), Claim::HandedOver);
    EXPECT_EQ(activations, 1);
}

TEST_F(DBusRunningInstanceTest, aLaterStartThatRestoresASessionSaysSo)
{
    QList<Wish> wishes;
    DBusRunningInstance first(connection(u"first"_s));
    ASSERT_EQ(first.claim(Wish::Nothing, [&wishes](const Wish &wish) { wishes.append(wish); }), Claim::First);
    EXPECT_EQ(claimElsewhere(u"second"_s, Wish::RestoreSession), Claim::HandedOver);
    EXPECT_EQ(claimElsewhere(u"third"_s, Wish::ComeForward), Claim::HandedOver);
    EXPECT_EQ(wishes, (QList<Wish>{Wish::RestoreSession, Wish::ComeForward}));
}

TEST_F(DBusRunningInstanceTest, eachActionOfTheDesktopEntryArrives)
{
    QList<Wish> wishes;
    DBusRunningInstance first(connection(u"first"_s));
    ASSERT_EQ(first.claim(Wish::Nothing, [&wishes](const Wish &wish) { wishes.append(wish); }), Claim::First);
    const QList<Wish> wished{Wish(Wish::Search, u"two words"_s), Wish::Search, Wish::Bookmarks,
                             Wish::ExportBookmarks};
    for (qsizetype i = 0; i < wished.size(); ++i)
        EXPECT_EQ(claimElsewhere(u"start %1"_s.arg(i), wished[i]), Claim::HandedOver);
    EXPECT_EQ(wishes, wished);
}

TEST_F(DBusRunningInstanceTest, aTokenThatLetsTheWindowComeForwardIsHandedOn)
{
    const auto tokenless = qScopeGuard([] { qunsetenv("XDG_ACTIVATION_TOKEN"); });
    int activations = 0;
    DBusRunningInstance first(connection(u"first"_s));
    ASSERT_EQ(first.claim(Wish::Nothing, [&activations](const Wish & /*wish*/) { ++activations; }),
              Claim::First);
    QDBusMessage activation = QDBusMessage::createMethodCall(
        u"org.roamlet.Roamlet"_s, u"/org/roamlet/Roamlet"_s, u"org.freedesktop.Application"_s, u"Activate"_s);
    activation << QVariantMap{{u"activation-token"_s, u"one"_s}};
    ASSERT_TRUE(connection(u"desktop"_s).send(activation));
    EXPECT_TRUE(waitUntil([&activations] { return activations == 1; }));
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "one");

    // What a later start was given goes to the one that runs.
    const QDBusMessage message = ApplicationCall::message({}, Wish::ComeForward, u"two"_s);
    EXPECT_EQ(ApplicationCall::activationToken(message.arguments().last().toMap()), u"two");
}

TEST_F(DBusRunningInstanceTest, anActionThatNobodyKnowsBringsItForward)
{
    QList<Wish> wishes;
    DBusRunningInstance first(connection(u"first"_s));
    ASSERT_EQ(first.claim(Wish::Nothing, [&wishes](const Wish &wish) { wishes.append(wish); }), Claim::First);
    QDBusMessage action =
        QDBusMessage::createMethodCall(u"org.roamlet.Roamlet"_s, u"/org/roamlet/Roamlet"_s,
                                       u"org.freedesktop.Application"_s, u"ActivateAction"_s);
    action << u"dance"_s << QVariantList() << QVariantMap();
    ASSERT_TRUE(connection(u"desktop"_s).send(action));
    EXPECT_TRUE(waitUntil([&wishes] { return wishes == QList<Wish>{Wish::ComeForward}; }));
}

TEST_F(DBusRunningInstanceTest, theNameIsFreeAgainWhenTheFirstHasEnded)
{
    {
        DBusRunningInstance first(connection(u"first"_s));
        ASSERT_EQ(first.claim(Wish::ComeForward, [](const Wish & /*wish*/) {}), Claim::First);
    }
    DBusRunningInstance second(connection(u"second"_s));
    EXPECT_EQ(second.claim(Wish::ComeForward, [](const Wish & /*wish*/) {}), Claim::First);
}

TEST_F(DBusRunningInstanceTest, theDesktopCanActivateIt)
{
    int activations = 0;
    DBusRunningInstance first(connection(u"first"_s));
    ASSERT_EQ(first.claim(Wish::ComeForward, [&activations](const Wish & /*wish*/) { ++activations; }),
              Claim::First);
    QDBusConnection desktop = connection(u"desktop"_s);
    QDBusMessage activate = QDBusMessage::createMethodCall(
        u"org.roamlet.Roamlet"_s, u"/org/roamlet/Roamlet"_s, u"org.freedesktop.Application"_s, u"Activate"_s);
    activate << QVariantMap();
    ASSERT_TRUE(desktop.send(activate));
    EXPECT_TRUE(waitUntil([&activations] { return activations == 1; }));
}

TEST_F(DBusRunningInstanceTest, aFirstOneThatIsStuckDoesNotKeepTheSecondForever)
{
    const QDBusConnection stuck = connection(u"stuck"_s);
    // The name is taken, but nothing stands behind it.
    ASSERT_TRUE(QDBusConnection(stuck).registerService(u"org.roamlet.Roamlet"_s));
    EXPECT_EQ(claimElsewhere(u"second"_s), Claim::HandedOver);
}

/// Has the name, and ends as soon as it is asked for anything, without an answer.
class EndingOwner final : public QDBusVirtualObject
{
public:
    explicit EndingOwner(const QString &connection) : m_connection(connection) {}
    QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection & /*connection*/) override
    {
        message.setDelayedReply(true);
        QMetaObject::invokeMethod(
            this, [this] { QDBusConnection::disconnectFromBus(m_connection); }, Qt::QueuedConnection);
        return true;
    }

private:
    QString m_connection;
};

TEST_F(DBusRunningInstanceTest, aStartThatMeetsTheEndOfTheFirstTakesItsPlace)
{
    EndingOwner owner(u"first"_s);
    {
        QDBusConnection first = connection(u"first"_s);
        ASSERT_TRUE(first.registerVirtualObject(u"/org/roamlet/Roamlet"_s, &owner, QDBusConnection::SubPath));
        ASSERT_TRUE(first.registerService(u"org.roamlet.Roamlet"_s));
    }
    EXPECT_EQ(claimElsewhere(u"second"_s), Claim::First);
}

TEST_F(DBusRunningInstanceTest, aProgramThatIsEndingLeavesThePlaceToTheNext)
{
    int activations = 0;
    DBusRunningInstance first(connection(u"first"_s));
    ASSERT_EQ(first.claim(Wish::ComeForward, [&activations](const Wish & /*wish*/) { ++activations; }),
              Claim::First);
    first.release();
    EXPECT_EQ(claimElsewhere(u"second"_s), Claim::First);
    EXPECT_EQ(activations, 0);
}

TEST(DBusRunningInstanceWithoutABusTest, theProgramRunsAlone)
{
    DBusRunningInstance instance(QDBusConnection::connectToBus(u"unix:path=/nonexistent/bus"_s, u"no bus"_s));
    EXPECT_EQ(instance.claim(Wish::ComeForward, [](const Wish & /*wish*/) {}), Claim::Alone);
    QDBusConnection::disconnectFromBus(u"no bus"_s);
}

} // namespace
} // namespace roamlet::testing
