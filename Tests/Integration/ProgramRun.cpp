// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "ProgramRun.h"

#include "Support/TestHome.h"
#include "Support/Waiting.h"

#include <QDateTime>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

QStringList ProgramRun::lines() const
{
    QStringList lines = output.split(u'\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

QList<ProgramRun::Visit> ProgramRun::visits() const
{
    static const QRegularExpression gap(u" {2,}"_s);
    QList<Visit> visits;
    const QStringList printedLines = lines();
    for (const QString &line : printedLines.first(std::max<qsizetype>(printedLines.size() - 1, 0))) {
        const QStringList cells = line.split(gap);
        EXPECT_EQ(cells.size(), 4) << line.toStdString();
        visits.append({cells.value(0), cells.value(1), cells.value(2), cells.value(3)});
    }
    return visits;
}

QString ProgramRun::printed(double secondsSince1970)
{
    const QDateTime utc =
        QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(secondsSince1970 * 1000), Qt::UTC);
    return utc.addSecs(std::chrono::seconds(localTimeOffset).count()).toString(u"yyyy-MM-dd HH:mm"_s);
}

ProgramRun ProgramRun::of(const TestHome &home, const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // A service or a container often runs without a language and never has a display.
    for (const QString &name :
         {u"LANG"_s, u"LC_ALL"_s, u"XDG_CONFIG_HOME"_s, u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s})
        environment.remove(name);
    environment.insert(u"HOME"_s, home.path());
    environment.insert(u"TMPDIR"_s, home.temporary());
    // POSIX counts west of Greenwich; this form needs no time zone files.
    environment.insert(u"TZ"_s, u"TST-5:30"_s);

    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ROAMLET_PROGRAM), arguments);
    process.closeWriteChannel();
    if (!process.waitForFinished(static_cast<int>(std::chrono::milliseconds(patience).count()))) {
        process.kill();
        process.waitForFinished();
        return {.status = -1, .output = {}, .errors = process.errorString()};
    }
    return {.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            .output = QString::fromUtf8(process.readAllStandardOutput()),
            .errors = QString::fromUtf8(process.readAllStandardError())};
}

} // namespace roamlet::testing
