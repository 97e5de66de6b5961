// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <chrono>

namespace roamlet::testing
{

class TestHome;

/// One run of the built program, as a user with this home folder would start it from a terminal.
struct ProgramRun {
    int status = -1;
    QString output;
    QString errors;

    /// What the program's local time is ahead of UTC, so that a test notices times of another zone.
    static constexpr std::chrono::minutes localTimeOffset{330};

    /// One line of a printed list of visits.
    struct Visit {
        QString time;
        QString label;
        QString title;
        QString url;
    };

    /// The output's lines without the empty one after the last line end.
    QStringList lines() const;
    /// The visits that it printed; its last line is the count.
    QList<Visit> visits() const;
    /// A time, in seconds since 1970, as it prints it.
    static QString printed(double secondsSince1970);

    static ProgramRun of(const TestHome &home, const QStringList &arguments);
};

} // namespace roamlet::testing
