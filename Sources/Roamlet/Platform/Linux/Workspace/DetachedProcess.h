// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

/// Programs that are started and then left alone.
namespace roamlet::DetachedProcess
{

/// Starts a program with its arguments. No shell sees them, nobody waits for it, it goes on when this process
/// ends, and it leaves no zombie. The token, where there is one, lets its window come forward. False when it
/// could not be started.
bool start(const QStringList &command, const QString &activationToken = {});
/// Where a program looks for the token by which its window may come forward.
inline constexpr const char *tokenVariable = "XDG_ACTIVATION_TOKEN";
/// The arguments in as few lists as will do, each short enough for one start. What is longer than any program
/// could be given is left out, as all that is beside it would be refused, too.
QList<QStringList> portions(const QStringList &arguments);
/// Runs in a new process before it becomes another program, and undoes what this program has changed for
/// itself: the signals that it blocks or ignores, and its terminal. Makes system calls only.
void prepareChild(void *unused);

} // namespace roamlet::DetachedProcess
