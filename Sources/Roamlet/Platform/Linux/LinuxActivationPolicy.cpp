// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/LinuxActivationPolicy.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace roamlet
{

namespace
{

/// Not so a menu, nor the window that some trays want for the icon.
bool isOrdinary(const QWindow &window)
{
    return window.isVisible() && (window.type() == Qt::Window || window.type() == Qt::Dialog) &&
           !window.flags().testFlag(Qt::BypassWindowManagerHint);
}

xcb_atom_t atom(xcb_connection_t *connection, std::string_view name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// Asks the window manager to leave the window out of its lists, or to show it there.
void setSkipsTaskbar(xcb_connection_t *connection, xcb_window_t window, bool skips)
{
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    for (const std::string_view state : {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"}) {
        constexpr std::uint32_t applicationIsTheSource = 1;
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = atom(connection, "_NET_WM_STATE");
        message.data.data32[0] = skips ? 1 : 0;
        message.data.data32[1] = atom(connection, state);
        message.data.data32[3] = applicationIsTheSource;
        xcb_send_event(connection, 0, screen->root,
                       XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                       reinterpret_cast<const char *>(&message));
    }
    xcb_flush(connection);
}

} // namespace

LinuxActivationPolicy::LinuxActivationPolicy()
{
    QCoreApplication::instance()->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](QWindow *window) {
        if (window != nullptr && isOrdinary(*window))
            m_usedLast = window;
    });
}

void LinuxActivationPolicy::setPolicy(Policy policy)
{
    m_policy = policy;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (const QWindow *window : windows) {
        if (isOrdinary(*window))
            apply(*window);
    }
}

void LinuxActivationPolicy::bringToFront()
{
    QWindowList windows = QGuiApplication::topLevelWindows();
    // What is minimised stays so: whoever wants to see it opens it.
    windows.removeIf([](const QWindow *window) {
        return !isOrdinary(*window) || window->windowStates().testFlag(Qt::WindowMinimized);
    });
    if (windows.isEmpty())
        return;
    // Whichever is raised last stands before the others.
    if (const qsizetype place = windows.indexOf(m_usedLast); place >= 0)
        windows.move(place, windows.size() - 1);
    QWindow *front = windows.last();
    for (QWindow *window : windows)
        window->raise();
    for (QWindow *window : windows) {
        // And a dialog before the window that it belongs to.
        if (window->transientParent() == front) {
            window->raise();
            front = window;
        }
    }
    front->requestActivate();
}

bool LinuxActivationPolicy::eventFilter(QObject *watched, QEvent *event)
{
    // Only a window that is on the screen can be told.
    if (event->type() == QEvent::Expose) {
        const auto *window = qobject_cast<const QWindow *>(watched);
        if (window != nullptr && window->isExposed() && isOrdinary(*window))
            apply(*window);
    }
    return QObject::eventFilter(watched, event);
}

void LinuxActivationPolicy::apply(const QWindow &window) const
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || x11->connection() == nullptr)
        return;
    setSkipsTaskbar(x11->connection(), static_cast<xcb_window_t>(window.winId()),
                    m_policy == Policy::Accessory);
}

} // namespace roamlet
