// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "BrowserHome.h"

#include <ctime>

namespace roamlet::testing
{

/// Lets this process live in the time zone of the sample pages for as long as it stands.
class LocalTime final
{
public:
    LocalTime()
    {
        qputenv("TZ", BrowserHome::timeZone);
        tzset();
    }
    LocalTime(const LocalTime &) = delete;
    LocalTime &operator=(const LocalTime &) = delete;
    ~LocalTime()
    {
        qunsetenv("TZ");
        tzset();
    }
};

} // namespace roamlet::testing
