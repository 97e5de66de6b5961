// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Support/SessionBus.h"

#include "Support/Waiting.h"

#include <QStandardPaths>

#include <sys/prctl.h>

#include <csignal>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

const QString program = u"dbus-daemon"_s;

} // namespace

SessionBus::~SessionBus()
{
    m_daemon.terminate();
    m_daemon.waitForFinished();
}

bool SessionBus::isAvailable()
{
    return !QStandardPaths::findExecutable(program).isEmpty();
}

bool SessionBus::start(const QProcessEnvironment &environment)
{
    m_daemon.setProcessEnvironment(environment);
    m_daemon.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    m_daemon.setStandardErrorFile(QProcess::nullDevice());
    m_daemon.start(program, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    if (!waitUntil([this] { return m_daemon.canReadLine(); }))
        return false;
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    return true;
}

} // namespace roamlet::testing
