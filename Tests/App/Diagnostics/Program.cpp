// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Program.h"

#include "BrowserHome.h"
#include "Support/FolderFingerprint.h"
#include "Support/TestHome.h"

#include <QDeadlineTimer>

#include <unistd.h>

#include <array>
#include <gmock/gmock.h>
#include <pty.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

QStringList Ended::lines() const
{
    QStringList result = QString::fromUtf8(output).split(u'\n');
    if (result.last().isEmpty())
        result.removeLast();
    return result;
}

Program::Program(const TestHome &home) : environment(QProcessEnvironment::systemEnvironment()), m_home(home)
{
    // A service or a container often runs without a language and never has a display.
    for (const QString &name :
         {u"LANG"_s, u"LANGUAGE"_s, u"LC_ALL"_s, u"LC_CTYPE"_s, u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s})
        environment.remove(name);
    environment.insert(u"HOME"_s, home.path());
    environment.insert(u"XDG_CONFIG_HOME"_s, home.path(u".config"_s));
    environment.insert(u"TMPDIR"_s, home.temporary());
    environment.insert(u"TZ"_s, QString::fromLatin1(BrowserHome::timeZone));
}

void Program::start(QProcess &process, const QString &program, const QStringList &arguments) const
{
    process.setProcessEnvironment(environment);
    if (prepare)
        process.setChildProcessModifier(prepare);
    process.start(program, arguments);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForStarted()) << process.errorString().toStdString();
}

void Program::start(QProcess &process, const QStringList &arguments) const
{
    start(process, QStringLiteral(ROAMLET_PROGRAM), arguments);
}

Ended Program::end(QProcess &process, std::chrono::milliseconds deadline)
{
    Ended ended;
    const bool hasEnded = process.state() == QProcess::NotRunning ||
                          process.waitForFinished(static_cast<int>(deadline.count()));
    EXPECT_TRUE(hasEnded) << "the program goes on";
    if (!hasEnded) {
        process.kill();
        process.waitForFinished();
    } else if (process.exitStatus() == QProcess::NormalExit) {
        ended.status = process.exitCode();
    } else {
        ended.signal = process.exitCode();
    }
    ended.output = process.readAllStandardOutput();
    ended.errors = process.readAllStandardError();
    return ended;
}

Ended Program::watched(const std::function<Ended()> &run) const
{
    const FolderFingerprint before(m_home.path());
    const QStringList copiesBefore = m_home.leftovers();
    Ended ended = run();
    EXPECT_EQ(before.differencesTo(FolderFingerprint(m_home.path())), "");
    EXPECT_EQ(m_home.leftovers(), copiesBefore);
    return ended;
}

Ended Program::run(const QStringList &arguments) const
{
    return watched([&] {
        QProcess process;
        start(process, arguments);
        return end(process);
    });
}

Ended Program::runInShell(const QString &script) const
{
    return watched([&] {
        QProcess process;
        start(process, u"/bin/bash"_s, {u"-c"_s, script, QStringLiteral(ROAMLET_PROGRAM)});
        return end(process);
    });
}

Ended Program::runOnTerminal(const QStringList &arguments) const
{
    return watched([&] {
        int master = -1;
        int slave = -1;
        termios settings = {};
        // No line end is changed on its way to the screen.
        cfmakeraw(&settings);
        EXPECT_EQ(openpty(&master, &slave, nullptr, &settings, nullptr), 0);
        Program onTerminal = *this;
        onTerminal.prepare = [this, slave] {
            dup2(slave, STDOUT_FILENO);
            if (prepare)
                prepare();
        };
        QProcess process;
        onTerminal.start(process, arguments);
        close(slave);
        QByteArray output;
        std::array<char, 4096> buffer{};
        // Ends with an error as soon as nobody holds the other side any more.
        for (ssize_t count = 0; (count = read(master, buffer.data(), buffer.size())) > 0;)
            output.append(buffer.data(), count);
        close(master);
        Ended ended = end(process);
        ended.output = output;
        return ended;
    });
}

bool waitWhileRunning(QProcess &process, const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(patience);
    while (!condition()) {
        // Returns at once when the process has ended, and soon otherwise.
        if (process.state() == QProcess::NotRunning || deadline.hasExpired())
            return condition();
        process.waitForFinished(1);
    }
    return true;
}

} // namespace roamlet::testing
