// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Menu/MenuBarIcon.h"

#include "App/AppDelegate.h"
#include "App/Look/Symbol.h"
#include "Library/Library.h"
#include "Platform/ActivationPolicy.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMenu>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

MenuBarIcon::MenuBarIcon(const Services &services, QMenu &menu, QObject *parent)
    : QObject(parent), m_services(services), m_menu(menu), m_icon(panelIcon(), this)
{
    setObjectName(u"menuBarIcon"_s);
    m_icon.setObjectName(u"trayIcon"_s);
    m_icon.setToolTip(u"Roamlet"_s);
    m_icon.setContextMenu(&menu);
    connect(&m_icon, &QSystemTrayIcon::activated, this, &MenuBarIcon::activate);
}

bool MenuBarIcon::isAvailable()
{
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void MenuBarIcon::appear()
{
    m_services.delegate.windowOpenerIsReady([this] { openWindow(); });
    followSafari();
    connect(&m_services.library, &Library::snapshotChanged, this, &MenuBarIcon::followSafari,
            Qt::UniqueConnection);
}

void MenuBarIcon::openWindow()
{
    m_services.openMainWindow();
    m_services.activation.bringToFront();
}

void MenuBarIcon::followSafari()
{
    const bool isBlocked = m_services.library.snapshot().safariBlocked;
    if (isBlocked && !std::exchange(m_isSafariBlocked, isBlocked))
        openWindow();
    m_isSafariBlocked = isBlocked;
}

void MenuBarIcon::activate(QSystemTrayIcon::ActivationReason reason)
{
    if (reason != QSystemTrayIcon::Trigger)
        return;
    // Where no window may place itself, the menu can only be opened by the tray's own means.
    if (QGuiApplication::platformName().startsWith("wayland"_L1)) {
        openWindow();
        return;
    }
    m_menu.popup(QCursor::pos());
    m_menu.activateWindow();
}

} // namespace roamlet
