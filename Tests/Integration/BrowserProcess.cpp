// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "BrowserProcess.h"

#include "Support/Waiting.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <sched.h>
#include <string>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

// What follows runs in a new process before it becomes the browser: system calls only.

bool writeText(const char *path, const std::string &text)
{
    const int descriptor = ::open(path, O_WRONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool isWritten = ::write(descriptor, text.data(), text.size()) == std::ssize(text);
    ::close(descriptor);
    return isWritten;
}

/// Gives this process file systems of its own, so that what it mounts is seen by nobody else. Without the
/// right to do so it first becomes the only user of a name space of its own.
bool leaveSharedFileSystems()
{
    const std::string user = std::to_string(::getuid());
    const std::string group = std::to_string(::getgid());
    if (::unshare(CLONE_NEWNS) != 0) {
        const bool isAlone = ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 &&
                             writeText("/proc/self/setgroups", "deny") &&
                             writeText("/proc/self/uid_map", user + " " + user + " 1") &&
                             writeText("/proc/self/gid_map", group + " " + group + " 1");
        if (!isAlone)
            return false;
    }
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

bool coverFolder(const QByteArray &cover, const QByteArray &covered)
{
    return leaveSharedFileSystems() &&
           ::mount(cover.constData(), covered.constData(), nullptr, MS_BIND, nullptr) == 0;
}

void placeDescriptors(int readEnd, int writeEnd)
{
    // By way of high numbers: either end may itself be 3 or 4.
    constexpr int firstHigh = 100;
    const int reading = ::fcntl(readEnd, F_DUPFD_CLOEXEC, firstHigh);
    const int writing = ::fcntl(writeEnd, F_DUPFD_CLOEXEC, firstHigh);
    ::dup2(reading, 3);
    ::dup2(writing, 4);
}

} // namespace

BrowserProcess::~BrowserProcess()
{
    kill();
}

bool BrowserProcess::canCoverFolders()
{
    const pid_t child = ::fork();
    if (child == 0) {
        const bool isCovered = coverFolder("/var", "/usr");
        ::_exit(isCovered ? 0 : 1);
    }
    int status = 1;
    return child > 0 && ::waitpid(child, &status, 0) == child && status == 0;
}

bool BrowserProcess::start(const Start &start)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &name : environment.keys()) {
        // No desktop, no session bus and no settings of whoever runs the test.
        if (name.startsWith(u"XDG_") || name.startsWith(u"DBUS_") || name.startsWith(u"CHROM") ||
            name.startsWith(u"MOZ_"))
            environment.remove(name);
    }
    environment.remove(u"DISPLAY"_s);
    environment.remove(u"WAYLAND_DISPLAY"_s);
    environment.insert(u"HOME"_s, start.home);
    environment.insert(u"TMPDIR"_s, start.temporary);

    m_process.setProcessEnvironment(environment);
    m_process.setWorkingDirectory(start.home);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.setStandardOutputFile(QDir(start.temporary).filePath(u"browser.log"_s));
    const QByteArray cover = QFile::encodeName(start.cover);
    const QByteArray covered = QFile::encodeName(start.covered);
    m_process.setChildProcessModifier([start, cover, covered] {
        // A session of its own tells its processes from all others. The kernel ends it when the test dies.
        ::setsid();
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (!cover.isEmpty() && !coverFolder(cover, covered))
            ::_exit(1);
        if (start.readEnd >= 0)
            placeDescriptors(start.readEnd, start.writeEnd);
    });
    m_process.start(start.program, start.arguments);
    if (!m_process.waitForStarted())
        return false;
    m_session = static_cast<pid_t>(m_process.processId());
    return true;
}

bool BrowserProcess::freeze()
{
    return waitUntil([this] {
        signalAll(SIGSTOP);
        return std::ranges::all_of(members(), [](const Member &member) { return member.isStopped; });
    });
}

void BrowserProcess::thaw()
{
    signalAll(SIGCONT);
}

bool BrowserProcess::waitUntilGone()
{
    return waitUntil([this] { return members().isEmpty(); });
}

void BrowserProcess::kill()
{
    if (m_session == 0)
        return;
    waitUntil([this] {
        signalAll(SIGKILL);
        return members().isEmpty();
    });
    m_process.waitForFinished();
    m_session = 0;
}

QList<BrowserProcess::Member> BrowserProcess::members() const
{
    QList<Member> found;
    if (m_session == 0)
        return found;
    for (const QString &name : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        bool isProcess = false;
        const pid_t id = name.toInt(&isProcess);
        QFile file(u"/proc/" % name % u"/stat");
        if (!isProcess || !file.open(QIODevice::ReadOnly))
            continue;
        // After the name, which may hold anything: state, parent, group, session. Nothing is left to read of
        // a process that has just ended.
        const QByteArray line = file.readAll();
        const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
        const QByteArray &state = fields.first();
        const bool isRunning = !state.isEmpty() && state != "Z" && state != "X";
        if (isRunning && fields.value(3).toInt() == m_session)
            found.append({.id = id, .isStopped = state == "T"});
    }
    return found;
}

void BrowserProcess::signalAll(int signal)
{
    for (const Member &member : members())
        ::kill(member.id, signal);
}

} // namespace roamlet::testing
