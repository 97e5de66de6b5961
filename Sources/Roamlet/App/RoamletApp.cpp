// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/RoamletApp.h"

#include "App/Export/FileSavePanel.h"
#include "App/Export/MessageAlert.h"
#include "App/Look/Look.h"
#include "App/Look/Motion.h"
#include "App/Look/Symbol.h"
#include "App/Settings/LoginItem.h"
#include "App/Settings/SettingsServices.h"
#include "App/Translations.h"
#include "App/Updates/BundleInformation.h"
#include "App/Updates/PlatformUpdateDriver.h"
#include "App/Updates/UpdateWindows.h"
#include "App/Updates/Updater.h"
#include "App/Window/ContentView.h"
#include "App/Window/OpenWindows.h"
#include "Platform/ActivationPolicy.h"
#include "Platform/Linux/AutostartLoginService.h"
#include "Platform/Linux/DBusRunningInstance.h"
#include "Platform/Linux/LinuxActivationPolicy.h"
#include "Platform/Linux/LinuxPlatform.h"
#include "Platform/Linux/LinuxWorkspace.h"
#include "Platform/Linux/PanelTray.h"
#include "Platform/Linux/Search/ApplicationCall.h"
#include "Platform/Linux/SilentBus.h"
#include "Platform/Linux/StopSignals.h"
#include "Platform/Processes.h"
#include "Platform/UserLocale.h"

#include <QApplication>
#include <QClipboard>
#include <QDBusConnection>
#include <QFont>
#include <QLocale>
#include <QPixmapCache>

#include <unistd.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

namespace
{

/// What helps where no window can be steered to a page.
PasteNotice pasteNotice()
{
    return {QDBusConnection::sessionBus(),
            [](const QString &text) { QGuiApplication::clipboard()->setText(text); },
            [](const QString &page) {
                return PasteNotice::Words{
                    .title = QCoreApplication::translate("roamlet::RoamletApp",
                                                         "Paste the address into the new tab"),
                    .text = QCoreApplication::translate("roamlet::RoamletApp",
                                                        "Only the browser itself opens %1.")
                                .arg(page),
                    .copy = QCoreApplication::translate("roamlet::RoamletApp", "Copy Address")};
            }};
}

/// Ends the program. Qt's own quit asks each window first, and a sheet that is busy would refuse, also a
/// logout or a signal; it finishes what it writes when it goes.
void quit()
{
    QCoreApplication::exit();
}

/// Lets go of what Qt keeps for the next drawing. Where the pages' titles are of many scripts, their fonts
/// take more than the rows.
void forgetPicturesAndFonts()
{
    QPixmapCache::clear();
    QFont::cleanup();
}

/// What the desktop entry's actions say where the desktop starts programs by commands.
RunningInstance::Wish wishedAction()
{
    const QStringList arguments = QCoreApplication::arguments();
    const qsizetype place = arguments.indexOf(u"--action");
    return place < 0 ? RunningInstance::Wish(RunningInstance::Wish::ComeForward)
                     : ApplicationCall::wishOf(arguments.value(place + 1));
}

bool hasVisibleWindow()
{
    const QWidgetList windows = openWindows();
    return std::ranges::any_of(windows, [](const QWidget *window) { return !window->isMinimized(); });
}

} // namespace

RoamletApp::RoamletApp(const Services &services)
    : m_services(services),
      m_delegate(services.platform.defaults, services.activation, services.hasTray),
      m_opener(services.workspace),
      m_collation(std::make_shared<const Collation>(UserLocale::collation())),
      m_menu({.library = m_services.library,
              .opener = m_opener,
              .activation = services.activation,
              .calendar = UserLocale::calendar,
              .openMainWindow = [this] { openMainWindow(); },
              .openSettings = [this] { settingsWindow().open(m_mainWindow.get()); },
              .checkForUpdates = [this] { m_services.updater.checkForUpdates(); },
              .quit = quit}),
      m_icon({.library = m_services.library,
              .delegate = m_delegate,
              .activation = services.activation,
              .openMainWindow = [this] { openMainWindow(); }},
             m_menu)
{
    m_menu.setUpdateIsWaiting(services.updater.updateIsWaiting());
    QObject::connect(&services.updater, &Updater::updateIsWaitingChanged, &m_menu,
                     &MenuBarMenu::setUpdateIsWaiting);
    // Without a tray nobody sees the menu that tells of an update, so it is shown as soon as the user is
    // here.
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, &m_context,
                     [this](Qt::ApplicationState state) {
                         if (state == Qt::ApplicationActive && !m_services.hasTray() &&
                             m_services.updater.updateIsWaiting())
                             m_services.updater.checkForUpdates();
                     });
    // Without a tray there is no way back to a program without windows. Where one window takes the place of
    // another, there is none for a moment, so this looks once that has passed.
    QObject::connect(
        qApp, &QGuiApplication::lastWindowClosed, &m_context,
        [this] {
            if (!m_services.hasTray() && openWindows().isEmpty())
                quit();
        },
        Qt::QueuedConnection);
    QObject::connect(qApp, &QGuiApplication::lastWindowClosed, &m_context, [this] {
        m_services.library.endSearch();
        rest();
    });
    QObject::connect(&m_services.library, &Library::lastLoadedChanged, &m_context, [this] { rest(); });
    // Before anything of the session is closed. Some session managers ask for one of the two, some for both.
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &m_context, [this] { storeSession(); });
    QObject::connect(qApp, &QGuiApplication::saveStateRequest, &m_context, [this] { storeSession(); });
}

RoamletApp::~RoamletApp()
{
    // They use services that may go right after the program.
    for (const QPointer<MainWindow> &window : m_closedWindows)
        delete window;
}

void RoamletApp::openMainWindow()
{
    dropClosedWindow();
    makeMainWindow();
    m_mainWindow->open();
}

void RoamletApp::makeMainWindow()
{
    if (!m_mainWindow) {
        m_mainWindow = std::make_unique<MainWindow>(
            MainWindow::Services{.content = {.library = m_services.library,
                                             .defaults = m_services.platform.defaults,
                                             .clock = m_services.platform.clock,
                                             .folders = m_services.platform.folders,
                                             .opener = m_opener,
                                             .workspace = m_services.workspace,
                                             .collation = m_collation,
                                             .calendar = UserLocale::calendar},
                                 .delegate = m_delegate,
                                 .activation = m_services.activation,
                                 .savePanel = m_services.savePanel,
                                 .alert = m_services.alert,
                                 .updater = m_services.updater,
                                 .quit = quit});
        QObject::connect(m_mainWindow.get(), &MainWindow::settingsRequested, &m_context,
                         [this] { settingsWindow().open(m_mainWindow.get()); });
        QObject::connect(
            m_mainWindow.get(), &MainWindow::closed, &m_context, [this] { dropClosedWindow(); },
            Qt::QueuedConnection);
    }
}

void RoamletApp::dropClosedWindow()
{
    m_closedWindows.removeIf([](const QPointer<MainWindow> &window) { return window.isNull(); });
    if (!m_mainWindow || m_mainWindow->isVisible())
        return;
    // Whoever asks may have been called by it.
    m_mainWindow->deleteLater();
    m_closedWindows.append(m_mainWindow.release());
}

SettingsWindow &RoamletApp::settingsWindow()
{
    if (!m_settingsWindow)
        m_settingsWindow =
            std::make_unique<SettingsWindow>(SettingsServices{.library = m_services.library,
                                                              .defaults = m_services.platform.defaults,
                                                              .loginService = m_services.loginService,
                                                              .activation = m_services.activation,
                                                              .delegate = m_delegate,
                                                              .opener = m_opener,
                                                              .updater = &m_services.updater});
    return *m_settingsWindow;
}

void RoamletApp::storeSession()
{
    SessionWindows session;
    session.hasSettings = m_settingsWindow && m_settingsWindow->isVisible();
    if (m_mainWindow && m_mainWindow->isVisible()) {
        session.hasMain = true;
        session.pane = m_mainWindow->content()->pane();
        m_mainWindow->storePlace();
    }
    session.store(m_services.platform.defaults);
}

void RoamletApp::restoreSession(const SessionWindows &session)
{
    if (session.hasMain) {
        makeMainWindow();
        m_mainWindow->content()->setPane(session.pane);
        m_mainWindow->open();
    }
    if (session.hasSettings)
        settingsWindow().open(m_mainWindow.get());
}

void RoamletApp::rest()
{
    constexpr std::chrono::seconds untilAllIsPutAway{1};
    if (!openWindows().isEmpty())
        return;
    m_services.platform.clock.after(untilAllIsPutAway, &m_context, [this] {
        if (!openWindows().isEmpty())
            return;
        forgetPicturesAndFonts();
        Processes::giveBackMemory();
    });
}

void RoamletApp::readDesktopSettings()
{
    // However often they change meanwhile, they are read once more.
    if (m_isReadingDesktopSettings) {
        m_haveDesktopSettingsChanged = true;
        return;
    }
    m_isReadingDesktopSettings = true;
    m_tasks.run(
        &m_context,
        [this, follow = m_services.followDesktopSettings,
         read = m_services.desktopSettings](const std::stop_token & /*stop*/) {
            // Before reading, so that nothing changes unnoticed between the two.
            if (!m_desktopFollower)
                m_desktopFollower = follow([this] { readDesktopSettings(); });
            return read();
        },
        [this](const DesktopSettings &settings) {
            setMotionAllowed(settings.allowsMotion);
            setContrast(settings.wantsMoreContrast ? Look::Contrast::More : Look::Contrast::Normal);
            m_isReadingDesktopSettings = false;
            if (std::exchange(m_haveDesktopSettingsChanged, false))
                readDesktopSettings();
        });
}

void RoamletApp::start(bool isLaunchedAtLogin, const SessionWindows &session)
{
    // While the window is being made, so that it is drawn only once.
    readDesktopSettings();
    LoginItem::setUpOnFirstLaunch(m_services.loginService, m_services.platform.defaults);
    m_delegate.applicationWillFinishLaunching(isLaunchedAtLogin);
    m_delegate.applicationDidFinishLaunching();
    m_icon.appear();
    restoreSession(session);
    if (openWindows().isEmpty() && !m_services.hasTray()) {
        makeMainWindow();
        m_mainWindow->showMinimized();
    }
    // What somebody waits for is the window; whatever else is drawn comes after it.
    constexpr std::chrono::milliseconds untilTheWindowIsThere{150};
    m_services.platform.clock.after(untilTheWindowIsThere, &m_context, [this] {
        m_icon.show();
        QApplication::setWindowIcon(applicationIcon());
    });
}

void RoamletApp::reopen()
{
    m_delegate.applicationShouldHandleReopen(hasVisibleWindow());
}

void RoamletApp::reopen(const SessionWindows &session)
{
    if (!hasVisibleWindow())
        restoreSession(session);
}

void RoamletApp::perform(const RunningInstance::Wish &wish)
{
    using Wish = RunningInstance::Wish;
    switch (wish.kind) {
    case Wish::ComeForward:
        reopen();
        break;
    case Wish::RestoreSession:
        reopen(SessionWindows::stored(m_services.platform.defaults));
        break;
    case Wish::Nothing:
        break;
    case Wish::Search:
        openMainWindow();
        m_mainWindow->content()->search(wish.words);
        break;
    case Wish::Bookmarks:
        openMainWindow();
        m_mainWindow->content()->setPane(BookmarksPane());
        break;
    case Wish::ExportBookmarks:
        openMainWindow();
        m_mainWindow->exportBookmarks();
        break;
    }
}

int RoamletApp::run(int argc, char **argv)
{
    int status = 0;
    Processes::limitHeaps();
    SilentBus::leaveAlone();
    {
        // Before any other thread: each of them leaves the signals to this one.
        StopSignals signals;
        status = runUntilTheEnd(argc, argv, signals.token());
        // Everything is gone by now, and with it every private copy and every half download.
        signals.endProcessIfAsked();
    }
    return status;
}

int RoamletApp::runUntilTheEnd(int argc, char **argv, const std::stop_token &stop)
{
    const QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(u"Roamlet"_s);
    QApplication::setApplicationVersion(u"" ROAMLET_VERSION ""_s);
    QApplication::setDesktopFileName(u"org.roamlet.Roamlet"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(UserLocale::formats());
    // Before the reading, whose words are the windows' as well, and before the first window.
    const Translations translations(QLocale::system().uiLanguages());
    const std::stop_callback end(stop, [] {
        QMetaObject::invokeMethod(QCoreApplication::instance(), [] { quit(); }, Qt::QueuedConnection);
    });

    LinuxPlatform platform;
    const Platform services = platform.services();
    // What a session manager brings back looks as it did when the session ended, and that may be the tray
    // alone.
    const bool isRestored = application.isSessionRestored();
    const SessionWindows session = isRestored ? SessionWindows::stored(services.defaults) : SessionWindows();
    const bool isLaunchedAtLogin = isRestored || QCoreApplication::arguments().contains(
                                                     QLatin1StringView(AutostartLoginService::launchMarker));
    const bool isAwaited = !isLaunchedAtLogin || !session.isEmpty();
    // The browsers are read while the windows are being made. Where another Roamlet is running already, that
    // was for nothing; far more often it is the first.
    Library library(services);
    library.start();
    DBusRunningInstance instance;
    // Asked for by whoever starts it once more.
    using Wish = RunningInstance::Wish;
    std::function<void(const Wish &)> reopen;
    // A desktop that restores its session starts the program beside the login item, and either can be the
    // first.
    const Wish wish = !isAwaited ? Wish::Nothing : isRestored ? Wish::RestoreSession : wishedAction();
    if (instance.claim(wish, [&reopen](const Wish &later) {
            if (reopen)
                reopen(later);
        }) == RunningInstance::Claim::HandedOver)
        return 0;

    LinuxActivationPolicy activation;
    AutostartLoginService loginService(AutostartLoginService::Environment::ofThisProcess());
    LinuxWorkspace workspace(LinuxWorkspace::Environment::ofThisProcess(), services.folders, services.files,
                             services.clock, pasteNotice());
    FileSavePanel savePanel(services.folders.home());
    MessageAlert alert;
    const BundleInformation information = BundleInformation::ofThisProgram();
    UpdateWindows updateWindows(information.version,
                                [&workspace](const QString &url) { workspace.openSystemURL(url); });
    Updater updater(information, platformUpdateDriver(information, services, updateWindows));
    std::optional<RoamletApp> app;
    const auto start = [&] {
        if (app)
            return;
        app.emplace(RoamletApp::Services{.platform = services,
                                         .library = library,
                                         .activation = activation,
                                         .loginService = loginService,
                                         .workspace = workspace,
                                         .savePanel = savePanel,
                                         .alert = alert,
                                         .updater = updater,
                                         .desktopSettings = DesktopSettings::read,
                                         .followDesktopSettings = DesktopSettings::follow,
                                         .hasTray = MenuBarIcon::isAvailable});
        app->start(isLaunchedAtLogin, session);
    };
    reopen = [&](const Wish &later) {
        start();
        app->perform(later);
    };
    QObject waiting;
    if (!isAwaited)
        PanelTray::await(
            services.clock, &waiting, [] { return PanelTray::isThere(QDBusConnection::sessionBus()); },
            start);
    else if (start(); wish.kind != Wish::ComeForward && wish.kind != Wish::RestoreSession)
        app->perform(wish);
    const int status = QApplication::exec();
    reopen = nullptr;
    // Putting everything away takes a while, in which nobody would answer a later start.
    instance.release();
    if (MainWindow *window = app ? app->mainWindow() : nullptr)
        window->close();
    return status;
}

} // namespace roamlet
