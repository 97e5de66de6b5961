// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "App/Look/SourceIcons.h"
#include "Model/UserCalendar.h"

#include <QMenu>

#include <functional>

namespace roamlet
{

class ActivationPolicy;
class Library;
class Opener;

/// The menu of the icon in the tray: the pages visited last, and the program's main actions. It follows the
/// Library, except while it is open.
class MenuBarMenu final : public QMenu
{
    Q_OBJECT

public:
    /// What it works with; all of it outlives it.
    struct Services {
        Library &library;
        Opener &opener;
        ActivationPolicy &activation;
        /// By which times are told.
        std::function<UserCalendar()> calendar;
        std::function<void()> openMainWindow;
        std::function<void()> openSettings;
        /// Shows the update that waits.
        std::function<void()> checkForUpdates;
        std::function<void()> quit;
    };

    explicit MenuBarMenu(const Services &services, QWidget *parent = nullptr);

    /// Only an update that waits has an item.
    void setUpdateIsWaiting(bool isWaiting);

protected:
    /// An open menu keeps other windows' shortcuts from working, so its own have to; in the submenu, too.
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QAction *addItem(const QString &name, const QString &text, const QKeySequence &shortcut,
                     std::function<void()> action);
    void addLine(const QString &name, const QString &text);
    /// Whether the keys belong to an item, which is then chosen.
    bool chooseByShortcut(const QKeyEvent &keys);
    void setOpen(bool isOpen);
    void fill();

    Services m_services;
    SourceIcons m_icons;
    QMenu *m_recent;
    QAction *m_updated;
    QAction *m_updateIsWaiting;
    bool m_isOpen = false;
};

} // namespace roamlet
