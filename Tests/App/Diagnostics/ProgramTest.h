// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "BrowserHome.h"
#include "Program.h"

#include <QList>
#include <QStringList>

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace roamlet::testing
{

/// Runs the built program in a home folder of the test's own.
class ProgramTest : public ::testing::Test
{
protected:
    /// The regular expression of the seconds that a run took.
    static const std::string seconds;
    /// The jobs that read and end by themselves.
    static const QList<QStringList> readingJobs;

    /// The lines of a run that succeeds without a message.
    std::vector<std::string> linesOf(const QStringList &arguments) const;

    BrowserHome home;
    Program program{home};
};

} // namespace roamlet::testing
