// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/RoamletApp.h"

#include "App/AppDelegate.h"
#include "App/Export/FileSavePanel.h"
#include "App/Export/MessageAlert.h"
#include "App/Window/MainWindow.h"
#include "Library/Library.h"
#include "Opening/Opener.h"
#include "Platform/Linux/AutostartLoginService.h"
#include "Platform/Linux/DBusRunningInstance.h"
#include "Platform/Linux/LinuxActivationPolicy.h"
#include "Platform/Linux/LinuxPlatform.h"
#include "Platform/Linux/LinuxWorkspace.h"
#include "Platform/Linux/StopSignals.h"

#include <QApplication>
#include <QClipboard>
#include <QDBusConnection>
#include <QLocale>
#include <QStandardPaths>

namespace roamlet::RoamletApp
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
                return PasteNotice::Words{.title = u"Paste the address into the new tab"_s,
                                          .text = u"Roamlet has put "_s % page % u" on the clipboard."};
            }};
}

} // namespace

int run(int argc, char **argv)
{
    // Before any other thread: each of them leaves the signals to this one.
    StopSignals signals;
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(u"Roamlet"_s);
    QApplication::setDesktopFileName(u"org.roamlet.Roamlet"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    const std::stop_callback quit(signals.token(), [&application] {
        QMetaObject::invokeMethod(&application, &QCoreApplication::quit, Qt::QueuedConnection);
    });

    LinuxPlatform platform;
    const Platform services = platform.services();
    LinuxActivationPolicy activation;
    AppDelegate delegate(services.defaults, activation);
    delegate.applicationWillFinishLaunching(
        application.arguments().contains(QLatin1StringView(AutostartLoginService::launchMarker)));
    LinuxWorkspace workspace(LinuxWorkspace::Environment::ofThisProcess(), services.folders, services.clock,
                             pasteNotice());
    Opener opener(workspace);
    FileSavePanel savePanel(services.folders.home());
    MessageAlert alert;

    Library library(services);
    library.start();
    MainWindow window(
        {.content = {.library = library,
                     .defaults = services.defaults,
                     .clock = services.clock,
                     .folders = services.folders,
                     .opener = opener,
                     .workspace = workspace,
                     .collation = std::make_shared<const Collation>(QLocale::system().collation().name()),
                     .calendar = UserCalendar::ofSystem},
         .delegate = delegate,
         .activation = activation,
         .savePanel = savePanel,
         .alert = alert});
    delegate.applicationDidFinishLaunching();
    delegate.windowOpenerIsReady([&window] { window.open(); });
    const int status = QApplication::exec();
    window.close();
    signals.endProcessIfAsked();
    return status;
}

} // namespace roamlet::RoamletApp
