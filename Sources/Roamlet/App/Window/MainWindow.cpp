// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Window/MainWindow.h"

#include "App/AppDelegate.h"
#include "App/Updates/Updater.h"
#include "App/Window/ContentView.h"
#include "App/Window/OpenWindows.h"
#include "Library/Library.h"
#include "Platform/ActivationPolicy.h"
#include "Platform/Clock.h"
#include "Platform/UserDefaults.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QMessageBox>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

const QString placeKey = u"window.main"_s;
const QString columnsKey = u"window.main.columns"_s;
constexpr QSize smallest{820, 480};
constexpr QSize usual{1100, 700};
/// Nobody notices so short a time.
constexpr std::chrono::milliseconds longestHold{50};

} // namespace

MainWindow::MainWindow(const Services &services)
    : m_services(services), m_content(new ContentView(services.content, this))
{
    setObjectName(u"main"_s);
    setCentralWidget(m_content);
    setMinimumSize(smallest);
    setWindowTitle(m_content->title());
    connect(m_content, &ContentView::titleChanged, this, &QWidget::setWindowTitle);
    connect(m_content, &ContentView::exportRequested, this, &MainWindow::showExportSheet);
    connect(m_content, &ContentView::exportActionChanged, this, &MainWindow::updateExportCommand);
    buildMenus();
    restorePlace();
}

void MainWindow::open()
{
    if (!m_wasOpened)
        holdFirstPicture();
    m_wasOpened = true;
    // Only that: what was maximised before shall be so again.
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    m_services.activation.bringToFront();
    raise();
    activateWindow();
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

void MainWindow::putAway()
{
    if (isVisible() || windowHandle() == nullptr)
        return;
    // With the window goes the picture of its content, which takes more than anything else.
    destroy();
    // The next window knows nothing of what the window manager had made of this one.
    setWindowState(Qt::WindowNoState);
    restorePlace();
}

void MainWindow::buildMenus()
{
    QMenu *file = menuBar()->addMenu(u"&File"_s);
    m_exportCommand = file->addAction(u"Export Bookmarks…"_s, this, [this] {
        if (const std::optional<ExportAction> action = m_content->exportAction())
            action->open({.sourceID = action->sourceID});
    });
    m_exportCommand->setObjectName(u"exportCommand"_s);
    file->addSeparator();
    file->addAction(u"Close Window"_s, QKeySequence::Close, this, &QWidget::close);
    QAction *quit =
        file->addAction(u"Quit Roamlet"_s, QKeySequence(Qt::CTRL | Qt::Key_Q), qApp, &QApplication::quit);
    quit->setMenuRole(QAction::QuitRole);

    QMenu *edit = menuBar()->addMenu(u"&Edit"_s);
    QAction *find = edit->addAction(u"Find"_s, QKeySequence::Find, m_content, &ContentView::startSearch);
    find->setObjectName(u"findCommand"_s);
    edit->addSeparator();
    QAction *settings = edit->addAction(u"Settings…"_s, QKeySequence(Qt::CTRL | Qt::Key_Comma), this,
                                        &MainWindow::settingsRequested);
    settings->setObjectName(u"settingsCommand"_s);
    settings->setMenuRole(QAction::PreferencesRole);

    QMenu *view = menuBar()->addMenu(u"&View"_s);
    m_reloadCommand =
        view->addAction(u"Reload"_s, QKeySequence(Qt::CTRL | Qt::Key_R), m_content, &ContentView::reload);
    m_reloadCommand->setObjectName(u"reloadCommand"_s);
    Library *library = &m_services.content.library;
    const auto updateReload = [this, library] { m_reloadCommand->setEnabled(!library->isLoading()); };
    connect(library, &Library::isLoadingChanged, this, updateReload);
    updateReload();
    view->addMenu(m_content->groupingMenu());
    view->addSeparator();
    constexpr int step = 30;
    QAction *widen = view->addAction(u"Wider Sidebar"_s, this, [this] { m_content->widenSidebar(step); });
    widen->setObjectName(u"widerSidebarCommand"_s);
    QAction *narrow =
        view->addAction(u"Narrower Sidebar"_s, this, [this] { m_content->widenSidebar(-step); });
    narrow->setObjectName(u"narrowerSidebarCommand"_s);

    QMenu *help = menuBar()->addMenu(u"&Help"_s);
    if (m_services.updater.isAvailable()) {
        QAction *check = help->addAction(u"Check for Updates…"_s, this, [this] {
            m_services.activation.bringToFront();
            m_services.updater.checkForUpdates();
        });
        check->setObjectName(u"checkForUpdatesCommand"_s);
        check->setMenuRole(QAction::ApplicationSpecificRole);
    }
    QAction *about = help->addAction(u"About Roamlet"_s, this, [this] {
        QMessageBox::about(this, u"About Roamlet"_s,
                           u"<h3>Roamlet " ROAMLET_VERSION
                           "</h3><p>Your history and bookmarks from every browser, in one window. Roamlet "
                           "never writes to the browsers’ files.</p>"_s);
    });
    about->setMenuRole(QAction::AboutRole);
    updateExportCommand();
}

void MainWindow::updateExportCommand()
{
    m_exportCommand->setEnabled(m_content->exportAction().has_value());
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
                               .activation = m_services.activation},
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
}

void MainWindow::restorePlace()
{
    const UserDefaults &defaults = m_services.content.defaults;
    resize(usual);
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
