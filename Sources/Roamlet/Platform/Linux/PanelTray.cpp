// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/PanelTray.h"

#include "Platform/Clock.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace roamlet::PanelTray
{

using namespace Qt::StringLiterals;

namespace
{

/// Whether a window takes other programs' icons in.
bool takesWindows()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || x11->connection() == nullptr)
        return false;
    constexpr std::string_view name = "_NET_SYSTEM_TRAY_S0";
    xcb_connection_t *connection = x11->connection();
    const auto asked = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> selection(
        xcb_intern_atom_reply(connection, asked, nullptr), &std::free);
    if (!selection)
        return false;
    const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection->atom),
                                      nullptr),
        &std::free);
    return owner && owner->owner != xcb_window_t{XCB_WINDOW_NONE};
}

} // namespace

bool isThere(const QDBusConnection &bus)
{
    const bool isTold =
        bus.isConnected() && bus.interface()->isServiceRegistered(u"org.kde.StatusNotifierWatcher"_s);
    return isTold || takesWindows();
}

void await(const Clock &clock, QObject *context, const std::function<bool()> &isThere,
           const std::function<void()> &then, std::chrono::seconds patience)
{
    constexpr std::chrono::seconds step{1};
    if (patience < step || isThere()) {
        then();
        return;
    }
    clock.after(step, context, [&clock, context, isThere, then, left = patience - step] {
        await(clock, context, isThere, then, left);
    });
}

} // namespace roamlet::PanelTray
