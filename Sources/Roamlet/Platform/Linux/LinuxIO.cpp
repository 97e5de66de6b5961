// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/LinuxIO.h"

#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>

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

bool waitFor(std::span<pollfd> descriptors)
{
    constexpr std::chrono::milliseconds moment{10};
    for (;;) {
        if (::poll(descriptors.data(), descriptors.size(), -1) >= 0)
            return true;
        if (errno == EINTR)
            continue;
        std::this_thread::sleep_for(moment);
        return false;
    }
}

bool ensureDescriptors()
{
    // For several sources that are read at the same time, each with a source, a copy and its logs.
    constexpr rlim_t usual = 256;
    constexpr rlim_t fewest = 20;
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= usual)
        return true;
    limit.rlim_cur = std::min(usual, limit.rlim_max);
    ::setrlimit(RLIMIT_NOFILE, &limit);
    return limit.rlim_cur >= fewest;
}

void ignoreFileSizeSignal()
{
    signal(SIGXFSZ, SIG_IGN);
}

} // namespace roamlet
