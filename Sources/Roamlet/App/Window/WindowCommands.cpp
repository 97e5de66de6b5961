// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/WindowCommands.h"

#include "App/Look/RoamletStyle.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

WindowCommands::WindowCommands(QWidget &window, QMenu &groupings) : QObject(&window)
{
    const auto add = [&](ID id, const QString &name, const QString &text, const QKeySequence &shortcut = {},
                         QAction::MenuRole role = QAction::NoRole) {
        auto *action = new QAction(text, this);
        action->setObjectName(name);
        action->setShortcut(shortcut);
        action->setMenuRole(role);
        action->setVisible(false);
        window.addAction(action);
        m_actions[id] = action;
    };
    add(ID::ExportBookmarks, u"exportCommand"_s, tr("Export Bookmarks…"));
    add(ID::CloseWindow, u"closeCommand"_s, tr("Close Window"), QKeySequence::Close);
    add(ID::Quit, u"quitCommand"_s, tr("Quit Roamlet"), QKeySequence(Qt::CTRL | Qt::Key_Q),
        QAction::QuitRole);
    add(ID::Find, u"findCommand"_s, tr("Find"), QKeySequence::Find);
    add(ID::Settings, u"settingsCommand"_s, tr("Settings…"), QKeySequence(Qt::CTRL | Qt::Key_Comma),
        QAction::PreferencesRole);
    add(ID::Reload, u"reloadCommand"_s, tr("Reload"), QKeySequence(Qt::CTRL | Qt::Key_R));
    m_actions[ID::GroupBy] = groupings.menuAction();
    add(ID::Sidebar, u"sidebarCommand"_s, tr("Sidebar"), QKeySequence(Qt::Key_F9));
    action(ID::Sidebar).setCheckable(true);
    add(ID::WiderSidebar, u"widerSidebarCommand"_s, tr("Wider Sidebar"));
    add(ID::NarrowerSidebar, u"narrowerSidebarCommand"_s, tr("Narrower Sidebar"));
    add(ID::MenuBar, u"menuBarCommand"_s, tr("Menu Bar"), QKeySequence(Qt::CTRL | Qt::Key_M));
    action(ID::MenuBar).setCheckable(true);
    add(ID::CheckForUpdates, u"checkForUpdatesCommand"_s, tr("Check for Updates…"), {},
        QAction::ApplicationSpecificRole);
    add(ID::About, u"aboutCommand"_s, tr("About Roamlet"), {}, QAction::AboutRole);
}

void WindowCommands::onTriggered(ID id, std::function<void()> action)
{
    QAction &command = this->action(id);
    command.setVisible(true);
    connect(&command, &QAction::triggered, this, std::move(action));
}

void WindowCommands::fill(QMenuBar &bar) const
{
    const auto addMenu = [&](const QString &title, const QList<ID> &first, const QList<ID> &then = {}) {
        QMenu *menu = bar.addMenu(title);
        RoamletStyle::outline(*menu);
        append(*menu, first);
        append(*menu, then);
    };
    addMenu(tr("&File"), {ID::ExportBookmarks}, {ID::CloseWindow, ID::Quit});
    addMenu(tr("&Edit"), {ID::Find}, {ID::Settings});
    addMenu(tr("&View"), {ID::Reload, ID::GroupBy},
            {ID::Sidebar, ID::WiderSidebar, ID::NarrowerSidebar, ID::MenuBar});
    addMenu(tr("&Help"), {ID::CheckForUpdates, ID::About});
}

void WindowCommands::fill(QMenu &menu) const
{
    append(menu, {ID::ExportBookmarks, ID::Find, ID::Reload, ID::GroupBy});
    append(menu, {ID::Settings, ID::Sidebar, ID::WiderSidebar, ID::NarrowerSidebar, ID::MenuBar});
    append(menu, {ID::CheckForUpdates, ID::About, ID::CloseWindow, ID::Quit});
}

void WindowCommands::append(QMenu &menu, const QList<ID> &ids) const
{
    if (!menu.isEmpty() && !ids.isEmpty())
        menu.addSeparator();
    for (const ID id : ids)
        menu.addAction(&action(id));
}

} // namespace roamlet
