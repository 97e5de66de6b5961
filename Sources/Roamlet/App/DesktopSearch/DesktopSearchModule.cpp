// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/DesktopSearch/DesktopSearchRun.h"
#include "App/PageOpening/OpenPage.h"
#include "App/Translations.h"
#include "DesktopSearch/DesktopAnswers.h"
#include "Platform/Clock.h"
#include "Platform/Folders.h"
#include "Platform/Linux/LinuxPlatform.h"
#include "Platform/Linux/Search/SearchService.h"
#include "Platform/Linux/StopSignals.h"
#include "Platform/Processes.h"
#include "Readers/Files/SQLiteSnapshot.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QLocale>
#include <QMetaObject>

#include <chrono>
#include <cstdio>
#include <stop_token>

namespace
{

using namespace Qt::StringLiterals;

int answerDesktops(int argc, char **argv, const std::stop_token &stop)
{
    QCoreApplication application(argc, argv);
    // Before the reading: profiles are called here what the windows call them. The languages are read where
    // they lie in the module, so that this takes no memory to speak of.
    const roamlet::Translations translations(QLocale::system().uiLanguages());
    const std::stop_callback end(stop, [] {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
    });
    roamlet::LinuxPlatform platform;
    const roamlet::Platform services = platform.services();
    roamlet::SearchService *running = nullptr;
    roamlet::DesktopAnswers answers(
        {.platform = services,
         .open =
             [](const QString &url, const roamlet::Source &source, const QString &token) {
                 if (const auto opened = roamlet::openPage(url, source, token); !opened)
                     std::fputs(QString(u"roamlet: "_s % opened.error() % u'\n').toUtf8().constData(),
                                stderr);
             },
         .fallSilent =
             [&] {
                 running->release();
                 // What was sent before the name was free has come by then.
                 constexpr std::chrono::seconds onTheWay{1};
                 services.clock.after(onTheWay, &application, [] { QCoreApplication::exit(); });
             }});
    // Somebody asks already, or this would not have been started: what it takes is read at once.
    answers.prepare();
    roamlet::SearchService service(
        QDBusConnection::sessionBus(), answers,
        QCoreApplication::translate("roamlet::DesktopSearch", "Show All in Roamlet"),
        [] { QCoreApplication::exit(); });
    running = &service;
    switch (service.start()) {
    case roamlet::SearchService::Start::Answering:
        return QCoreApplication::exec();
    case roamlet::SearchService::Start::Taken:
        return 0;
    case roamlet::SearchService::Start::NoBus:
        break;
    }
    std::fputs("roamlet: there is no session bus on which a desktop could ask.\n", stderr);
    return 1;
}

} // namespace

extern "C" Q_DECL_EXPORT int roamletRunDesktopSearch(int argc, char **argv)
{
    int status = 0;
    roamlet::Processes::limitHeaps();
    // Before any other thread: each of them leaves the signals to this one.
    roamlet::StopSignals signals;
    status = answerDesktops(argc, argv, signals.token());
    {
        // Copies of runs that were killed wait for nobody's window.
        roamlet::LinuxPlatform platform;
        const roamlet::Platform services = platform.services();
        roamlet::SQLiteSnapshot::removeLeftovers(services.files, services.folders.temporary());
    }
    signals.endProcessIfAsked();
    return status;
}
