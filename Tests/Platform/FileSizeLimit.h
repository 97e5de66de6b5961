// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <signal.h>
#include <sys/resource.h>

namespace roamlet::testing
{

/// No file can grow beyond this size for as long as this lives, as on a disk that is full. Until then this
/// process ignores the signal for it, as the program does from its start.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size) : m_handler(::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{size, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        ::signal(SIGXFSZ, m_handler);
    }

private:
    sighandler_t m_handler;
    rlimit m_before{};
};

} // namespace roamlet::testing
