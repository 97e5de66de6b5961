// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/LinuxConsole.h"

#include "Platform/Linux/LinuxIO.h"

#include <signal.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace roamlet
{

LinuxConsole::LinuxConsole()
{
    signal(SIGPIPE, SIG_IGN);
}

std::error_code LinuxConsole::writeOutput(QByteArrayView bytes)
{
    return writeAll(STDOUT_FILENO, bytes);
}

void LinuxConsole::writeError(QByteArrayView bytes)
{
    [[maybe_unused]] const std::error_code ignored = writeAll(STDERR_FILENO, bytes);
}

bool LinuxConsole::isTerminal() const
{
    return isatty(STDOUT_FILENO) == 1;
}

int LinuxConsole::columns() const
{
    constexpr int usual = 80;
    winsize size = {};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usual;
}

} // namespace roamlet
