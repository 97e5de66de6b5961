// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "App/Diagnostics/DiagnosticRun.h"

#include "App/Diagnostics/CommandLine.h"
#include "App/Diagnostics/Diagnostics.h"
#include "App/Diagnostics/Printing.h"
#include "Platform/Confinement.h"
#include "Platform/Folders.h"
#include "Platform/Linux/ConfigHome.h"
#include "Platform/Linux/LinuxConsole.h"
#include "Platform/Linux/LinuxIO.h"
#include "Platform/Linux/LinuxPlatform.h"
#include "Platform/Linux/ProgramModule.h"
#include "Platform/Linux/StopSignals.h"
#include "Platform/Linux/UnicodeLocale.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>
#include <new>
#include <optional>

namespace roamlet::DiagnosticRun
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int success = 0;
constexpr int failure = 1;
constexpr int misuse = 2;

QStringList argumentsOf(int argc, char **argv)
{
    QStringList result;
    for (int i = 1; i < argc; ++i)
        result.append(QFile::decodeName(argv[i]));
    return result;
}

/// Without one, Qt would end the process without a word that helps.
bool hasDisplay()
{
    return std::ranges::any_of(std::array{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"},
                               [](const char *name) { return !qEnvironmentVariableIsEmpty(name); });
}

int printed(Console &console, const QString &text)
{
    return print(console, text) == Printed::Failed ? failure : success;
}

/// Sees to it that whoever looks for the home folder finds the same one. False, with a message, when there is
/// none, or when the variable names a relative one: what that means would depend on where the program was
/// started.
bool settleHome(Console &console)
{
    const QString home = homeFolder();
    if (home.isEmpty()) {
        complain(console, u"the user database knows no home folder of this user. Set HOME to one."_s);
        return false;
    }
    if (!QDir::isAbsolutePath(home)) {
        complain(console, u"the home folder is not an absolute path: "_s % home % u". Set HOME to one.");
        return false;
    }
    // Qt's own look-ups, of caches for example, know nothing but the variable.
    if (qEnvironmentVariableIsEmpty("HOME"))
        qputenv("HOME", QFile::encodeName(home));
    return true;
}

bool haveDescriptors(Console &console)
{
    if (ensureDescriptors())
        return true;
    complain(console,
             u"the system lets this program open too few files at a time. ulimit -n 256 is enough."_s);
    return false;
}

int runDiagnostics(const Command &command, int argc, char **argv, const OpenPage &openPage)
{
    LinuxPlatform platform;
    // A job writes nothing but private copies, starts no program, and has no other threads yet. One that
    // opens a page confines its reading itself.
    if (command.job != Command::Job::Open)
        Confinement::ofReadingProcess(platform.services().folders.temporary());
    StopSignals signals;
    LinuxConsole console(signals.token());
    // Only watching needs an event loop; everything else starts faster without one.
    std::optional<QCoreApplication> application;
    if (command.job == Command::Job::Watch)
        application.emplace(argc, argv);
    int status = failure;
    try {
        status = Diagnostics::run(command, platform.services(), console, signals.token(), openPage);
    } catch (const std::bad_alloc &) {
        complain(console, u"there is not enough memory."_s);
    }
    signals.endProcessIfAsked();
    return status;
}

/// A module of its own: no other job needs the session's bus.
int answerDesktops(Console &console, int argc, char **argv)
{
    using Entry = int(int argc, char **argv);
    const auto function = ProgramModule::function(u"roamlet-search.so"_s, "roamletRunDesktopSearch");
    if (function)
        return reinterpret_cast<Entry *>(*function)(argc, argv);
    complain(console, u"cannot answer the desktop: "_s % function.error());
    return failure;
}

} // namespace

std::optional<int> run(int argc, char **argv, const OpenPage &openPage)
{
    LinuxConsole::holdClosedStreams();
    useUnicodeLocale();
    const Command command = Command::of(argumentsOf(argc, argv));
    LinuxConsole console({});
    switch (command.job) {
    case Command::Job::Help:
        return printed(console, Command::help());
    case Command::Job::Version:
        return printed(console, u"Roamlet " ROAMLET_VERSION "\n"_s);
    case Command::Job::Windows:
        if (!settleHome(console) || !haveDescriptors(console))
            return failure;
        if (hasDisplay())
            return {};
        complain(console,
                 u"there is no display to open a window on. roamlet --help lists what works without one."_s);
        return failure;
    case Command::Job::DesktopSearch:
        if (!settleHome(console) || !haveDescriptors(console))
            return failure;
        return answerDesktops(console, argc, argv);
    case Command::Job::Unknown:
        complain(console, u"unknown switch "_s % command.argument.value_or(QString()) %
                              u". roamlet --help lists what there is.");
        return misuse;
    case Command::Job::Misuse:
        complain(console, command.argument.value_or(QString()));
        return misuse;
    default:
        if (!settleHome(console) || !haveDescriptors(console))
            return failure;
        return runDiagnostics(command, argc, argv, openPage);
    }
}

} // namespace roamlet::DiagnosticRun
