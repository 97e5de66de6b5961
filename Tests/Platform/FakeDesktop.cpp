// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/FakeDesktop.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

void write(const QString &path, const QString &text)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(text.toUtf8());
}

/// Writes its arguments, one a line, to a file of its own. The masks come first.
QString writeProgram(const QString &path)
{
    write(path, u"#!/bin/sh\n"
                "record=$ROAMLET_TEST_RECORDS/$$\n"
                "{\n"
                "  sed -n 's/^Sig\\(Blk\\|Ign\\):[[:space:]]*//p' /proc/self/status\n"
                "  printf '%s\\n' \"$XDG_ACTIVATION_TOKEN\" \"${0##*/}\" \"$@\"\n"
                "} > \"$record\"\n"_s);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

void writeEntry(const QString &path, const QString &command, const QString &furtherLines)
{
    const QString commandLine = command.isNull() ? QString() : QString(u"Exec=" % command % u'\n');
    write(path, u"[Desktop Entry]\nType=Application\nName=Test\n" % commandLine % furtherLines);
}

} // namespace

FakeDesktop::FakeDesktop()
{
    prepareProcess();
    const QString records = m_folder.filePath(u"records"_s);
    EXPECT_TRUE(QDir().mkpath(records));
    qputenv("ROAMLET_TEST_RECORDS", QFile::encodeName(records));
    // What nobody waits for falls to this process, so that a test knows when all of it has ended.
    EXPECT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
}

FakeDesktop::~FakeDesktop()
{
    starts();
    prctl(PR_SET_CHILD_SUBREAPER, 0);
    qunsetenv("ROAMLET_TEST_RECORDS");
}

QStringList FakeDesktop::dataFolders() const
{
    return {m_folder.filePath(u"data0"_s), m_folder.filePath(u"data1"_s)};
}

QString FakeDesktop::programFolder() const
{
    return m_folder.filePath(u"bin"_s);
}

QString FakeDesktop::addProgram(const QString &name) const
{
    return writeProgram(programFolder() % u'/' % name);
}

void FakeDesktop::addEntry(const QString &name, const QString &command, const QString &furtherLines,
                           int folder) const
{
    writeEntry(dataFolders().at(folder) % u"/applications/" % name, command, furtherLines);
}

void FakeDesktop::addApplication(const QString &entry, const QString &program) const
{
    addEntry(entry, addProgram(program) % u" %U");
}

QList<FakeDesktop::Start> FakeDesktop::starts() const
{
    while (waitpid(-1, nullptr, 0) > 0 || errno == EINTR) {
    }
    const QDir records(m_folder.filePath(u"records"_s));
    QList<Start> starts;
    for (const QString &name : records.entryList(QDir::Files)) {
        QFile file(records.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
        lines.removeLast();
        starts.append({.program = lines.value(3),
                       .arguments = lines.mid(4),
                       .blockedSignals = lines.value(0),
                       .ignoredSignals = lines.value(1),
                       .activationToken = lines.value(2)});
    }
    std::ranges::sort(starts, {},
                      [](const Start &start) { return QString(start.program % start.arguments.join(u' ')); });
    return starts;
}

FakeDesktop::Start FakeDesktop::onlyStart() const
{
    const QList<Start> all = starts();
    EXPECT_EQ(all.size(), 1);
    return all.size() == 1 ? all.first() : Start();
}

void FakeDesktop::prepareProcess()
{
    static const QTemporaryDir folder;
    static bool isPrepared = false;
    if (std::exchange(isPrepared, true))
        return;
    const QString data = folder.filePath(u"data"_s);
    const QString config = folder.filePath(u"config"_s);
    for (const QString &name : {u"preferred-browser"_s, u"system-handler"_s})
        writeEntry(data % u"/applications/" % name % u".desktop",
                   writeProgram(folder.filePath(name)) % u" --own-option %u", u"NoDisplay=true\n"_s);
    write(config % u"/mimeapps.list", u"[Default Applications]\n"
                                      "x-scheme-handler/https=preferred-browser.desktop\n"
                                      "x-scheme-handler/settings=system-handler.desktop\n"
                                      "inode/directory=system-handler.desktop\n"_s);
    qputenv("HOME", QFile::encodeName(folder.path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(data));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(folder.filePath(u"nothing"_s)));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(config));
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(folder.filePath(u"nothing"_s)));
    // No desktop of whoever runs the tests is told about what starts here.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
}

} // namespace roamlet::testing
