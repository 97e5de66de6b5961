// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace roamlet
{

struct Browser;

} // namespace roamlet

/// What macOS is told so that a browser opens something.
namespace roamlet::OpenCommands
{

/// A program and what it is given, argument by argument.
struct Command {
    QString program;
    QStringList arguments;

    bool operator==(const Command &) const = default;
};

/// Opens `urls` with the browser, in the profile that it chooses.
Command inApplication(const QStringList &urls, const Browser &browser);
/// Opens `urls` in a profile of a Chromium browser: a further instance hands them to the one that runs.
Command inProfile(const QStringList &urls, const Browser &browser, const QString &profile);
/// Starts the browser with arguments, which a further instance hands to the one that runs.
Command withArguments(const Browser &browser, const QStringList &arguments);
/// Runs pageScript().
Command showPage(const Browser &browser, const QString &page);
/// The script that waits, for about 4 s, until the front tab of a Chromium browser is blank, and then shows
/// `page` in it, which may not contain a quote.
QString pageScript(const Browser &browser, const QString &page);

} // namespace roamlet::OpenCommands
