// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Settings/SettingsWindow.h"

#include "App/Look/Symbol.h"
#include "App/Settings/BrowserProfileSettings.h"
#include "App/Settings/GeneralSettings.h"

#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace roamlet
{

using namespace Qt::StringLiterals;

SettingsWindow::SettingsWindow(const SettingsServices &services, QWidget *parent)
    : QWidget(parent, Qt::Window), m_tabs(new QTabWidget)
{
    setObjectName(u"settingsWindow"_s);
    setWindowTitle(tr("Settings"));
    m_tabs->setObjectName(u"settingsTabs"_s);
    m_tabs->tabBar()->setObjectName(u"settingsTabBar"_s);
    m_tabs->setAccessibleName(tr("Settings"));
    m_tabs->tabBar()->setAccessibleName(tr("Settings"));
    m_tabs->addTab(new GeneralSettings(services), symbolIcon(u"gearshape"_s), tr("General"));
    m_tabs->addTab(new BrowserProfileSettings(services.library, services.opener), symbolIcon(u"person.2"_s),
                   tr("Browser Profiles"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    resize(480, 380);

    for (const QKeySequence &keys : {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, &SettingsWindow::close);
}

void SettingsWindow::open()
{
    show();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

} // namespace roamlet
