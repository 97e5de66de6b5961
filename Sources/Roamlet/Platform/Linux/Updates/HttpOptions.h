// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Clock.h"

#include <QByteArray>

namespace roamlet
{

/// How all addresses of an update are fetched.
struct HttpOptions {
    enum class Loopback { Refused, Allowed };

    /// Whether this machine's own address will do without encryption. Nobody stands in between there; tests
    /// need it.
    Loopback loopback = Loopback::Refused;
    /// The longest time in which nothing comes.
    Clock::Duration patience = std::chrono::seconds(30);
    /// How the program calls itself.
    QByteArray userAgent;
};

} // namespace roamlet
