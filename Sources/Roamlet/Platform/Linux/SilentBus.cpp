// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/SilentBus.h"

#include <QByteArrayList>
#include <QtGlobal>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <poll.h>
#include <thread>

namespace roamlet::SilentBus
{

namespace
{

using Time = std::chrono::steady_clock::time_point;

constexpr auto variable = "DBUS_SESSION_BUS_ADDRESS";

/// The name of the local socket that the first of these addresses means; an abstract one begins with a NUL.
std::optional<QByteArray> socketOf(const QByteArray &addresses)
{
    const QByteArray first = addresses.split(';').value(0);
    if (!first.startsWith("unix:"))
        return {};
    for (const QByteArray &pair : first.sliced(5).split(',')) {
        if (pair.startsWith("path="))
            return QByteArray::fromPercentEncoding(pair.sliced(5));
        if (pair.startsWith("abstract="))
            return QByteArray('\0' + QByteArray::fromPercentEncoding(pair.sliced(9)));
    }
    return {};
}

/// Where the libraries look for a bus that the session does not name.
QByteArray sessionAddress()
{
    if (!qEnvironmentVariableIsEmpty(variable))
        return qgetenv(variable);
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    return folder.isEmpty() ? QByteArray()
                            : QByteArray("unix:path=" + folder.toPercentEncoding("/") + "/bus");
}

/// Whether somebody writes to the socket, or closes it, in time.
bool isHeardFrom(int descriptor, Time end)
{
    for (;;) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now()).count();
        pollfd watched{.fd = descriptor, .events = POLLIN, .revents = 0};
        const int ready = ::poll(&watched, 1, static_cast<int>(std::max<std::int64_t>(left, 0)));
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

enum class Connection { Made, Refused, TooLate };

/// A bus that takes nobody any more, because too many wait already, lets others wait, too.
Connection connectTo(int descriptor, const QByteArray &name, Time end)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (name.isEmpty() || static_cast<std::size_t>(name.size()) >= sizeof(address.sun_path))
        return Connection::Refused;
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    const bool isAbstract = name.startsWith('\0');
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) +
                                             static_cast<std::size_t>(name.size()) + (isAbstract ? 0 : 1));
    while (::connect(descriptor, reinterpret_cast<const sockaddr *>(&address), size) != 0) {
        if (errno != EAGAIN && errno != EINTR)
            return Connection::Refused;
        if (std::chrono::steady_clock::now() >= end)
            return Connection::TooLate;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return Connection::Made;
}

/// Whether this socket, which is nobody's yet, hears nothing from whoever listens at this name.
bool hearsNothing(int descriptor, const QByteArray &name, Time end)
{
    const Connection connection = connectTo(descriptor, name, end);
    if (connection != Connection::Made)
        return connection == Connection::TooLate;
    // The first words of every connection. A refusal is an answer as good as any, and so is a closed door.
    const QByteArray greeting =
        '\0' + QByteArray("AUTH EXTERNAL ") + QByteArray::number(geteuid()).toHex() + "\r\n";
    const auto size = static_cast<std::size_t>(greeting.size());
    return ::send(descriptor, greeting.constData(), size, MSG_NOSIGNAL) == greeting.size() &&
           !isHeardFrom(descriptor, end);
}

} // namespace

bool isSilent(const QByteArray &address, std::chrono::milliseconds patience)
{
    const std::optional<QByteArray> name = socketOf(address);
    const int descriptor = name ? ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0) : -1;
    if (descriptor < 0)
        return false;
    const bool isSilent = hearsNothing(descriptor, *name, std::chrono::steady_clock::now() + patience);
    ::close(descriptor);
    return isSilent;
}

void leaveAlone(std::chrono::milliseconds patience)
{
    // An address that no library can make anything of.
    if (isSilent(sessionAddress(), patience))
        qputenv(variable, "disabled:");
}

} // namespace roamlet::SilentBus
