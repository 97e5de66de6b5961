// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/Linux/InotifyFileEvents.h"
#include "SampleHome/PlainFiles.h"
#include "Support/FakeClock.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace roamlet::testing
{

/// The kernel's own events with a clock that a test moves. A test never waits for a time: it changes a file
/// of its own, and once that is reported, so is everything that happened before.
class InotifyFileEventsTest : public ::testing::Test
{
protected:
    using Paths = std::vector<std::string>;

    InotifyFileEventsTest() { sample::makeFolder(path(QStringLiteral("mark"))); }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    void write(const QString &name, const QByteArray &content = "x") const
    {
        sample::writeFile(path(name), content);
    }
    void make(const QString &name) const { sample::makeFolder(path(name)); }
    void removeFile(const QString &name) const { ASSERT_TRUE(QFile::remove(path(name))) << qPrintable(name); }
    void removeFolder(const QString &name) const
    {
        ASSERT_TRUE(QDir(path(name)).removeRecursively()) << qPrintable(name);
    }
    void rename(const QString &from, const QString &to) const
    {
        ASSERT_EQ(
            ::rename(QFile::encodeName(path(from)).constData(), QFile::encodeName(path(to)).constData()), 0)
            << qPrintable(from);
    }
    void link(const QString &target, const QString &name) const
    {
        ASSERT_TRUE(QFile::link(path(target), path(name))) << qPrintable(name);
    }

    /// Watches these folders, named below the test's own.
    void watch(const QStringList &roots)
    {
        QStringList folders;
        for (const QString &root : roots)
            folders.append(path(root));
        folders.append(path(QStringLiteral("mark")));
        stream = events.open(folders, [this](const QStringList &paths) { reports.append(paths); });
        ASSERT_NE(stream, nullptr);
    }

    /// What was reported for everything that happened so far, named below the test's own folder, sorted.
    Paths changes()
    {
        const QString mark = QStringLiteral("mark/%1").arg(++m_marks);
        write(mark, {});
        const auto isReported = [&] {
            clock.advance(InotifyFileEvents::latency);
            for (const QStringList &report : std::as_const(reports)) {
                if (report.contains(path(mark)))
                    return true;
            }
            return false;
        };
        EXPECT_TRUE(QTest::qWaitFor(isReported, patience)) << "events do not arrive";
        Paths result;
        for (const QStringList &report : std::as_const(reports)) {
            for (const QString &changed : report) {
                if (changed != path(mark))
                    result.push_back(QDir(m_folder.path()).relativeFilePath(changed).toStdString());
            }
        }
        reports.clear();
        std::ranges::sort(result);
        result.erase(std::ranges::unique(result).begin(), result.end());
        return result;
    }

    static constexpr int patience = 20'000;

    FakeClock clock;
    InotifyFileEvents events{clock};
    QList<QStringList> reports;
    std::unique_ptr<FileEvents::Stream> stream;

private:
    QTemporaryDir m_folder;
    int m_marks = 0;
};

} // namespace roamlet::testing
