// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <chrono>

namespace roamlet
{

/// How all addresses of an update are fetched.
struct HttpOptions {
    enum class Loopback { Refused, Allowed };

    /// Whether this machine's own address will do without encryption. Nobody stands in between there; tests
    /// need it.
    Loopback loopback = Loopback::Refused;
    /// The longest time in which nothing comes.
    std::chrono::milliseconds patience = std::chrono::seconds(30);
    /// The longest time that a document takes: a server that lets its bytes drip must not hold a check up.
    std::chrono::milliseconds documentTime = std::chrono::minutes(5);
    /// How the program calls itself.
    QByteArray userAgent;
};

} // namespace roamlet
