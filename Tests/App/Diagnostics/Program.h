// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>

namespace roamlet::testing
{

class TestHome;

/// What a run of the program left.
struct Ended {
    /// The exit status; absent when a signal ended it or when it did not end.
    std::optional<int> status;
    /// The signal that ended it, or 0.
    int signal = 0;
    QByteArray output;
    QByteArray errors;

    /// The output's lines without the empty one after the last line end.
    QStringList lines() const;
};

/// Far longer than anything here takes on a slow machine; only a failure ever waits for it.
constexpr std::chrono::seconds patience{60};

/// The built program, to be started in a test's home folder.
class Program
{
public:
    explicit Program(const TestHome &home);

    QProcessEnvironment environment;
    /// Runs in the new process just before the program does.
    std::function<void()> prepare;

    /// Starts it and waits for its end. What stands under `home` must not change meanwhile, and no private
    /// copy may be left.
    Ended run(const QStringList &arguments) const;
    /// The same on a terminal: what the program shows there is the output.
    Ended runOnTerminal(const QStringList &arguments) const;
    /// The same through a shell, in which "$0" is the program.
    Ended runInShell(const QString &script) const;

    /// Starts it for a test that has to do with it while it runs.
    void start(QProcess &process, const QStringList &arguments) const;
    /// Waits for the end of such a run.
    static Ended end(QProcess &process, std::chrono::milliseconds deadline = patience);

private:
    void start(QProcess &process, const QString &program, const QStringList &arguments) const;
    Ended watched(const std::function<Ended()> &run) const;

    const TestHome &m_home;
};

/// Waits until a condition holds that the process brings about, for as long as it runs. Says whether it came
/// to hold.
bool waitWhileRunning(QProcess &process, const std::function<bool()> &condition);

} // namespace roamlet::testing
