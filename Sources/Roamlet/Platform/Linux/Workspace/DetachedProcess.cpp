// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/Workspace/DetachedProcess.h"

#include "Platform/Linux/Workspace/GLibPointer.h"

#include <QByteArray>
#include <QList>

#include <signal.h>
#include <unistd.h>

#include <vector>

namespace roamlet::DetachedProcess
{

bool start(const QStringList &command, const QString &activationToken)
{
    QList<QByteArray> texts;
    for (const QString &text : command)
        texts.append(text.toLocal8Bit());
    std::vector<char *> arguments;
    for (QByteArray &text : texts)
        arguments.push_back(text.data());
    arguments.push_back(nullptr);
    GLibPointer<gchar *> environment(g_get_environ());
    if (!activationToken.isEmpty())
        environment.reset(g_environ_setenv(environment.release(), tokenVariable,
                                           activationToken.toUtf8().constData(), TRUE));
    // Without G_SPAWN_DO_NOT_REAP_CHILD a process in between starts the program, so that it becomes nobody's
    // child that would have to be waited for.
    return g_spawn_async(nullptr, arguments.data(), environment.get(), spawnFlags, prepareChild, nullptr,
                         nullptr, nullptr) != FALSE;
}

QList<QStringList> portions(const QStringList &arguments)
{
    // The system's limits: 128 KiB for one, and for all of them with the environment a quarter of the stack,
    // usually 2 MiB. Whatever stands between us and the browser may add to them.
    constexpr qsizetype longestArgument = qsizetype{128} * 1024;
    constexpr qsizetype longestList = 4 * longestArgument;
    QList<QStringList> lists;
    qsizetype room = 0;
    for (const QString &argument : arguments) {
        const qsizetype length = argument.toLocal8Bit().size() + 1;
        if (length > longestArgument)
            continue;
        // Its place in the list of arguments counts, too.
        const qsizetype size = length + static_cast<qsizetype>(sizeof(char *));
        if (size > room) {
            lists.append(QStringList());
            room = longestList;
        }
        lists.last().append(argument);
        room -= size;
    }
    return lists;
}

void prepareChild(void * /*unused*/)
{
    // A session of its own: what is typed into our terminal is not meant for it.
    setsid();
    signal(SIGPIPE, SIG_DFL);
    signal(SIGXFSZ, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    pthread_sigmask(SIG_SETMASK, &none, nullptr);
}

} // namespace roamlet::DetachedProcess
