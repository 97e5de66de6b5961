// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/LinuxIO.h"

#include <signal.h>
#include <unistd.h>

#include <cerrno>

namespace roamlet
{

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

std::error_code writeAll(int descriptor, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written >= 0)
            bytes = bytes.sliced(written);
        else if (errno != EINTR)
            return lastError();
    }
    return {};
}

void ignoreFileSizeSignal()
{
    signal(SIGXFSZ, SIG_IGN);
}

} // namespace roamlet
