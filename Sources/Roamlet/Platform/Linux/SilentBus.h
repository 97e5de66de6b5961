// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <chrono>

/// A session bus that takes connections and never answers. The libraries wait half a minute for each answer,
/// and the window system asks it before anything can be seen.
namespace roamlet::SilentBus
{

/// How long a bus has to answer. Any that runs does so within a millisecond.
inline constexpr std::chrono::seconds mostPatience{3};

/// Whether the bus at this address (as in DBUS_SESSION_BUS_ADDRESS) takes a connection and does not say a
/// word within this time. Only local sockets are asked; what cannot even be connected to keeps nobody
/// waiting.
bool isSilent(const QByteArray &address, std::chrono::milliseconds patience);
/// Where this session's bus is such a one, lets this process and what it starts go on without any. Before the
/// first use of it, and before other threads start.
void leaveAlone(std::chrono::milliseconds patience = mostPatience);

} // namespace roamlet::SilentBus
