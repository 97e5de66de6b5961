// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/LinuxConsole.h"

#include "Platform/Linux/LinuxIO.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <poll.h>

namespace roamlet
{

LinuxConsole::LinuxConsole(const std::stop_token &stop)
    : m_wake(eventfd(0, EFD_CLOEXEC)), m_onStop(stop, [this] { eventfd_write(m_wake, 1); })
{
    signal(SIGPIPE, SIG_IGN);
}

LinuxConsole::~LinuxConsole()
{
    close(m_wake);
}

std::error_code LinuxConsole::writeOutput(QByteArrayView bytes)
{
    // So much can be written without waiting to a pipe that has room at all.
    constexpr qsizetype atOnce = PIPE_BUF;
    while (!bytes.isEmpty()) {
        std::array<pollfd, 2> descriptors{pollfd{STDOUT_FILENO, POLLOUT, 0}, pollfd{m_wake, POLLIN, 0}};
        if (waitFor(descriptors) && descriptors[1].revents != 0)
            return std::make_error_code(std::errc::operation_canceled);
        // One write for each look: whoever shares a terminal with us may have set it to refuse instead of to
        // wait.
        const ssize_t written =
            ::write(STDOUT_FILENO, bytes.data(), static_cast<size_t>(std::min(atOnce, bytes.size())));
        if (written >= 0)
            bytes = bytes.sliced(written);
        else if (errno != EINTR && errno != EAGAIN)
            return lastError();
    }
    return {};
}

void LinuxConsole::writeError(QByteArrayView bytes)
{
    [[maybe_unused]] const std::error_code ignored = writeAll(STDERR_FILENO, bytes);
}

bool LinuxConsole::isTerminal() const
{
    return isatty(STDOUT_FILENO) == 1;
}

void LinuxConsole::holdClosedStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // The lowest free number is the one that is taken.
        if (fcntl(stream, F_GETFD) < 0 && open("/", O_PATH) != stream)
            abort();
    }
}

} // namespace roamlet
