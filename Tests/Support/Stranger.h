// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <sys/types.h>

#include <pwd.h>

namespace roamlet::testing
{

/// A user of whom the user database knows nothing, as a container may run programs.
inline uid_t strangerToTheUserDatabase()
{
    uid_t user = 50'000;
    while (getpwuid(user) != nullptr) // NOLINT(concurrency-mt-unsafe): no other thread asks
        ++user;
    return user;
}

} // namespace roamlet::testing
