// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// What macOS is told so that a Chromium browser opens something in one of its profiles.
namespace roamlet::OpenCommands
{

/// A program and what it is given, argument by argument.
struct Command {
    QString program;
    QStringList arguments;

    bool operator==(const Command &) const = default;
};

/// Opens `urls` in a profile: a further instance of the browser hands them to the one that runs.
Command inProfile(const QStringList &urls, const QString &bundleID, const QString &profile);
/// Runs pageScript().
Command showPage(const QString &bundleID, const QString &page);
/// The script that waits, for about 4 s, until the browser's front tab is blank, and then shows `page` in it.
/// Neither text may contain a quote.
QString pageScript(const QString &bundleID, const QString &page);

} // namespace roamlet::OpenCommands
