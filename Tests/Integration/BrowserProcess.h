// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <sys/types.h>

namespace roamlet::testing
{

/// A browser with all its helper processes, which never outlive this object.
class BrowserProcess final
{
public:
    struct Start {
        QString program;
        QStringList arguments;
        /// Stands in for the user's home folder and is where the browser's output goes.
        QString home;
        QString temporary;
        /// The file descriptors that the browser finds as 3 (to read from) and 4 (to write to), if any.
        int readEnd = -1;
        int writeEnd = -1;
        /// When not empty, the browser sees this folder in the place of `covered`; nobody else does.
        QString cover;
        QString covered;
    };

    BrowserProcess() = default;
    BrowserProcess(const BrowserProcess &) = delete;
    BrowserProcess &operator=(const BrowserProcess &) = delete;
    ~BrowserProcess();

    /// Whether this machine lets a process see another folder in the place of one, as `Start::cover` needs.
    static bool canCoverFolders();

    bool start(const Start &start);
    /// Takes over a browser that somebody else started, by the session that its processes belong to.
    void adopt(pid_t session) { m_session = session; }
    /// Stops every process where it stands, so that no file can change, and returns once all have stopped.
    bool freeze();
    /// Lets all the processes go on.
    void thaw();
    /// Waits until no process is left.
    bool waitUntilGone();
    /// Ends all the processes at once.
    void kill();

private:
    struct Member {
        pid_t id = 0;
        bool isStopped = false;
    };

    /// The browser's processes that still run.
    QList<Member> members() const;
    void signalAll(int signal);

    QProcess m_process;
    pid_t m_session = 0;
};

} // namespace roamlet::testing
