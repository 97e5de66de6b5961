// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <functional>

class QDBusConnection;
class QObject;

namespace roamlet
{

class Clock;

/// The tray of the desktop's panel. Qt looks for one of the kind that is told of icons by D-Bus only once and
/// keeps the answer, so that at login, when panels start beside the programs, it has to be asked after this.
namespace PanelTray
{

/// Whether there is a tray at present, of either kind.
bool isThere(const QDBusConnection &bus);
/// Calls `then` once there is a tray, or once nobody would wait any longer for one, unless `context` is gone
/// by then. The clock outlives the context.
void await(const Clock &clock, QObject *context, const std::function<bool()> &isThere,
           const std::function<void()> &then, std::chrono::seconds patience = std::chrono::seconds(15));

} // namespace PanelTray

} // namespace roamlet
