// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "VirtualScreen.h"

#include "Platform/Linux/Workspace/Programs/XdoBrowserWindows.h"
#include "Support/Waiting.h"

#include <QStandardPaths>

#include <sys/prctl.h>

#include <csignal>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

const QString serverProgram = u"Xvfb"_s;
const QString windowManagerProgram = u"openbox"_s;

void endWithTest(QProcess &process)
{
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

void end(QProcess &process)
{
    process.terminate();
    if (!process.waitForFinished())
        process.kill();
    process.waitForFinished();
}

} // namespace

VirtualScreen::~VirtualScreen()
{
    end(m_windowManager);
    end(m_server);
}

QString VirtualScreen::missing()
{
    for (const QString &program : {serverProgram, windowManagerProgram}) {
        if (QStandardPaths::findExecutable(program).isEmpty())
            return program;
    }
    return {};
}

bool VirtualScreen::start(const QString &home)
{
    endWithTest(m_server);
    m_server.setStandardErrorFile(QProcess::nullDevice());
    // The server chooses a number that is free and writes it to its output once it is ready.
    m_server.start(serverProgram, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1280x900x24"_s,
                                   u"-nolisten"_s, u"tcp"_s});
    if (!waitUntil([this] { return m_server.canReadLine(); }))
        return false;
    m_display = ':' + m_server.readLine().trimmed();

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DISPLAY"_s, QString::fromLatin1(m_display));
    environment.insert(u"HOME"_s, home);
    m_windowManager.setProcessEnvironment(environment);
    endWithTest(m_windowManager);
    m_windowManager.setStandardErrorFile(QProcess::nullDevice());
    m_windowManager.start(windowManagerProgram, {u"--sm-disable"_s});
    XdoBrowserWindows windows(m_display);
    return waitUntil([&windows] { return windows.canSteer(); });
}

} // namespace roamlet::testing
