// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/SilentBus.h"

#include "Platform/Variable.h"
#include "Support/SessionBus.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <thread>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// Longer than any bus takes, so that only a failure waits for it.
constexpr auto enough = 30s;
/// What is given to a bus that will not answer.
constexpr auto little = 20ms;

/// A socket at which somebody listens who does no more than that, unless a test does.
class Listener
{
public:
    explicit Listener(int queue = 5)
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        const QByteArray name = QFile::encodeName(path());
        std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
        EXPECT_EQ(::bind(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof(address)), 0);
        EXPECT_EQ(::listen(descriptor, queue), 0);
    }
    Listener(const Listener &) = delete;
    Listener &operator=(const Listener &) = delete;
    ~Listener() { ::close(descriptor); }

    QString path() const { return m_folder.filePath(u"a bus"_s); }
    QByteArray address() const { return "unix:path=" + QFile::encodeName(path()).toPercentEncoding("/"); }

    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST(SilentBus, aBusThatRunsAnswers)
{
    if (!SessionBus::isAvailable())
        GTEST_SKIP() << "dbus-daemon is not installed";
    SessionBus bus;
    ASSERT_TRUE(bus.start());
    EXPECT_FALSE(SilentBus::isSilent(bus.address().toUtf8(), enough));
}

TEST(SilentBus, whoeverListensAndSaysNothingIsSilent)
{
    const Listener listener;
    EXPECT_TRUE(SilentBus::isSilent(listener.address(), little));
    EXPECT_TRUE(SilentBus::isSilent(listener.address() + ",guid=0123;unix:path=/nowhere", little));
}

TEST(SilentBus, aBusThatTakesNobodyAnyMoreIsSilent)
{
    const Listener listener(0);
    // The first connection waits to be taken, and there is no room for another one.
    EXPECT_TRUE(SilentBus::isSilent(listener.address(), little));
    const int waiting = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(listener.path());
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    static_cast<void>(::connect(waiting, reinterpret_cast<const sockaddr *>(&address), sizeof(address)));
    EXPECT_TRUE(SilentBus::isSilent(listener.address(), little));
    ::close(waiting);
}

TEST(SilentBus, aRefusalAndAClosedDoorAreAnswers)
{
    for (const QByteArray &answer : {QByteArray("REJECTED EXTERNAL\r\n"), QByteArray()}) {
        const Listener listener;
        std::thread other([&listener, answer] {
            const int connection = ::accept(listener.descriptor, nullptr, nullptr);
            EXPECT_EQ(::write(connection, answer.constData(), static_cast<std::size_t>(answer.size())),
                      answer.size());
            ::close(connection);
        });
        EXPECT_FALSE(SilentBus::isSilent(listener.address(), enough));
        other.join();
    }
}

TEST(SilentBus, whereNobodyCanBeReachedNobodyWaits)
{
    for (const char *address :
         {"", "unix:path=/nonexistent/bus", "unix:abstract=roamlet-nobody", "tcp:host=localhost,port=1",
          "autolaunch:", "unix:", "unix:path=", "disabled:", ";;"})
        EXPECT_FALSE(SilentBus::isSilent(address, enough)) << address;
    EXPECT_FALSE(SilentBus::isSilent("unix:path=/" + QByteArray(200, 'x'), enough));
}

TEST(SilentBus, theProcessGoesOnWithoutASilentOneOnly)
{
    const Listener listener;
    const Variable address("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    SilentBus::leaveAlone(little);
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), "unix:path=/nonexistent/bus");
    qputenv("DBUS_SESSION_BUS_ADDRESS", listener.address());
    SilentBus::leaveAlone(little);
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), "disabled:");
}

} // namespace roamlet::testing
