// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSystemTrayIcon>

#include <functional>

class QMenu;

namespace roamlet
{

class ActivationPolicy;
class AppDelegate;
class Library;

/// The program's icon in the tray. It is there for as long as the program runs, so it is from here that the
/// main window opens: at launch, and when Safari's files turn out to be blocked, which the window explains.
class MenuBarIcon final : public QObject
{
    Q_OBJECT

public:
    /// What it works with; all of it outlives it.
    struct Services {
        Library &library;
        AppDelegate &delegate;
        ActivationPolicy &activation;
        std::function<void()> openMainWindow;
    };

    MenuBarIcon(const Services &services, QMenu &menu, QObject *parent = nullptr);

    /// Whether this desktop has a tray at present. Without one the menu cannot be reached.
    static bool isAvailable();
    /// Hands out the way to open the main window.
    void appear();
    /// Shows the icon, as soon as there is a tray.
    void show() { m_icon.show(); }

private:
    void openWindow();
    void followSafari();
    void activate(QSystemTrayIcon::ActivationReason reason);

    Services m_services;
    QMenu &m_menu;
    QSystemTrayIcon m_icon;
    bool m_isSafariBlocked = false;
};

} // namespace roamlet
