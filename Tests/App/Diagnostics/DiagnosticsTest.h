// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "BrowserHome.h"
#include "LocalTime.h"
#include "Support/FakeConsole.h"

#include <QByteArray>
#include <QStringList>

#include <gmock/gmock.h>
#include <stop_token>
#include <string>

namespace roamlet::testing
{

/// Runs jobs in this process, on a home folder of the test's own and with a console that keeps what they
/// print.
class DiagnosticsTest : public ::testing::Test
{
protected:
    /// The regular expression of the seconds that a run took.
    static const std::string seconds;

    /// Runs a job as the program would for these arguments. Every run must leave the home as it was.
    int run(const QStringList &arguments);
    /// What a run that succeeds prints.
    QByteArray outputOf(const QStringList &arguments);
    QStringList linesOf(const QStringList &arguments);
    /// The same without its last line, which says how long the run took.
    QStringList rowsOf(const QStringList &arguments);
    /// Lines as a failed expectation can show them.
    static std::string text(const QStringList &lines) { return lines.join(u'\n').toStdString(); }

    /// Stores which sources are switched off.
    void switchOff(const QStringList &ids);
    /// The path of a file of Safari's.
    QString safari(const QString &file) const { return home.path(u"Library/Safari/" % file); }
    /// A Safari with one page and one bookmark.
    void addSafari() const;

    LocalTime localTime;
    BrowserHome home;
    FakeConsole console;
    std::stop_source stop;
};

} // namespace roamlet::testing
