// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/MainWindow.h"

#include "App/AppDelegate.h"
#include "App/Updates/Updater.h"
#include "App/Window/ContentView.h"
#include "App/Window/OpenWindows.h"
#include "App/Window/WindowCommands.h"
#include "Library/Library.h"
#include "Platform/ActivationPolicy.h"
#include "Platform/Clock.h"
#include "Platform/UserDefaults.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QShortcut>
#include <QStyle>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString placeKey = u"window.main"_s;
const QString columnsKey = u"window.main.columns"_s;
const QString menuBarKey = u"window.main.menuBar"_s;
constexpr QSize smallest{820, 480};
constexpr QSize usual{1100, 700};
/// Nobody notices so short a time.
constexpr std::chrono::milliseconds longestHold{50};

} // namespace

MainWindow::MainWindow(const Services &services)
    : m_services(services),
      m_content(new ContentView(services.content, this)),
      m_commands(new WindowCommands(*this, *m_content->groupingMenu()))
{
    setObjectName(u"main"_s);
    // By this a window manager finds the place that it had in the last session.
    setWindowRole(objectName());
    setCentralWidget(m_content);
    setMinimumSize(smallest);
    setWindowTitle(m_content->title());
    connect(m_content, &ContentView::titleChanged, this, &QWidget::setWindowTitle);
    connect(m_content, &ContentView::exportRequested, this, &MainWindow::showExportSheet);
    connect(m_content, &ContentView::exportActionChanged, this, &MainWindow::updateExportCommand);
    setUpCommands();
    restorePlace();
}

void MainWindow::open()
{
    if (!testAttribute(Qt::WA_WState_Created))
        holdFirstPicture();
    // Only that: what was maximised before shall be so again.
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    m_services.activation.bringToFront();
    raise();
    activateWindow();
}

void MainWindow::exportBookmarks()
{
    const Library &library = m_services.content.library;
    if (const std::optional<ExportAction> action = m_content->exportAction())
        action->open({.sourceID = action->sourceID});
    else if (!library.lastLoaded())
        connect(&library, &Library::lastLoadedChanged, this, &MainWindow::exportBookmarks,
                Qt::SingleShotConnection);
}

void MainWindow::holdFirstPicture()
{
    setUpdatesEnabled(false);
    auto *hold = new QObject(this);
    const auto release = [this, hold] {
        hold->deleteLater();
        setUpdatesEnabled(true);
    };
    connect(m_content, &ContentView::listShown, hold, release);
    m_services.content.clock.after(longestHold, hold, release);
}

void MainWindow::setUpCommands()
{
    using ID = WindowCommands::ID;
    m_commands->onTriggered(ID::ExportBookmarks, [this] { exportBookmarks(); });
    m_commands->onTriggered(ID::CloseWindow, [this] { close(); });
    m_commands->onTriggered(ID::Quit, m_services.quit);
    m_commands->onTriggered(ID::Find, [this] { m_content->startSearch(); });
    m_commands->onTriggered(ID::Settings, [this] { Q_EMIT settingsRequested(); });
    m_commands->onTriggered(ID::Reload, [this] { m_content->reload(); });
    QAction &reload = m_commands->action(ID::Reload);
    const Library *library = &m_services.content.library;
    const auto updateReload = [&reload, library] { reload.setEnabled(!library->isLoading()); };
    connect(library, &Library::isLoadingChanged, this, updateReload);
    updateReload();
    QAction &sidebar = m_commands->action(ID::Sidebar);
    m_commands->onTriggered(ID::Sidebar,
                            [this, &sidebar] { m_content->setSidebarShown(sidebar.isChecked()); });
    const auto followSidebar = [this, &sidebar] { sidebar.setChecked(m_content->isSidebarShown()); };
    connect(m_content, &ContentView::sidebarShownChanged, this, followSidebar);
    followSidebar();
    constexpr int step = 30;
    m_commands->onTriggered(ID::WiderSidebar, [this] { m_content->widenSidebar(step); });
    m_commands->onTriggered(ID::NarrowerSidebar, [this] { m_content->widenSidebar(-step); });
    m_commands->onTriggered(ID::MenuBar, [this] {
        const bool isShown = m_commands->action(ID::MenuBar).isChecked();
        m_services.content.defaults.setBoolean(menuBarKey, isShown);
        showMenuBar(isShown);
    });
    if (m_services.updater.isAvailable()) {
        m_commands->onTriggered(ID::CheckForUpdates, [this] {
            m_services.activation.bringToFront();
            m_services.updater.checkForUpdates();
        });
    }
    m_commands->onTriggered(ID::About, [this] {
        QMessageBox::about(
            this, tr("About Roamlet"),
            tr("<h3>Roamlet %1</h3><p>Your history and bookmarks from every browser, in one window. Roamlet "
               "never writes to the browsers’ files.</p>")
                .arg(u"" ROAMLET_VERSION ""_s));
    });
    m_commands->fill(*m_content->mainMenu());
    connect(new QShortcut(QKeySequence(Qt::Key_F10), this), &QShortcut::activated, m_content,
            &ContentView::openMainMenu);
    showMenuBar(m_services.content.defaults.boolean(menuBarKey).value_or(false));
    updateExportCommand();
}

void MainWindow::showMenuBar(bool isShown)
{
    m_commands->action(WindowCommands::ID::MenuBar).setChecked(isShown);
    // Making one takes a tenth of the program's start, and most people never see it.
    if (isShown && menuWidget() == nullptr)
        m_commands->fill(*menuBar());
    if (menuWidget() != nullptr)
        menuWidget()->setVisible(isShown);
}

void MainWindow::updateExportCommand()
{
    m_commands->action(WindowCommands::ID::ExportBookmarks).setEnabled(m_content->exportAction().has_value());
}

void MainWindow::showExportSheet(const ExportRequest &request)
{
    if (m_sheet != nullptr && m_sheet->isVisible()) {
        m_sheet->raise();
        return;
    }
    m_sheet = new ExportPanel(request,
                              {.library = m_services.content.library,
                               .defaults = m_services.content.defaults,
                               .savePanel = m_services.savePanel,
                               .alert = m_services.alert,
                               .activation = m_services.activation,
                               .opener = m_services.content.opener},
                              this);
    m_sheet->open();
}

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    // Coming back from being minimised is no appearance.
    if (!event->spontaneous())
        m_services.delegate.mainWindowDidAppear();
}

void MainWindow::hideEvent(QHideEvent *event)
{
    QMainWindow::hideEvent(event);
    if (event->spontaneous())
        return;
    QWidgetList others = openWindows();
    others.removeAll(this);
    m_services.delegate.mainWindowDidDisappear(!others.isEmpty());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    storePlace();
    QMainWindow::closeEvent(event);
    if (event->isAccepted())
        Q_EMIT closed();
}

void MainWindow::restorePlace()
{
    const UserDefaults &defaults = m_services.content.defaults;
    // Room for the window's frame, which is not known before it is shown.
    const int frame = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    resize(usual.boundedTo(screen()->availableSize() - QSize(0, frame)));
    if (const std::optional<QByteArray> place = defaults.bytes(placeKey))
        restoreGeometry(*place);
    if (const std::optional<QByteArray> columns = defaults.bytes(columnsKey))
        m_content->restoreState(*columns);
}

void MainWindow::storePlace()
{
    UserDefaults &defaults = m_services.content.defaults;
    defaults.setBytes(placeKey, saveGeometry());
    defaults.setBytes(columnsKey, m_content->saveState());
}

} // namespace roamlet
