// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>

#include <functional>
#include <map>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace roamlet
{

/// The one list of what the main window can be told to do. The menu bar, the header's menu and the keyboard
/// show and trigger the same actions; each has the text, the shortcut and the object's name of its command.
class WindowCommands final : public QObject
{
    Q_OBJECT

public:
    enum class ID {
        ExportBookmarks,
        CloseWindow,
        Quit,
        Find,
        Settings,
        Reload,
        GroupBy, ///< a menu of its own
        Sidebar, ///< checked while the sidebar is shown
        WiderSidebar,
        NarrowerSidebar,
        MenuBar, ///< checked while the menu bar is shown
        CheckForUpdates,
        About,
    };

    /// Their shortcuts work in `window`, whichever menu shows them. `groupings` is the menu behind GroupBy.
    WindowCommands(QWidget &window, QMenu &groupings);

    /// What it does when it is chosen. One that nothing was set for is shown nowhere.
    void onTriggered(ID id, std::function<void()> action);
    QAction &action(ID id) const { return *m_actions.at(id); }

    /// All of them, in menus.
    void fill(QMenuBar &bar) const;
    /// All of them, in one menu.
    void fill(QMenu &menu) const;

private:
    void append(QMenu &menu, const QList<ID> &ids) const;

    std::map<ID, QAction *> m_actions;
};

} // namespace roamlet
